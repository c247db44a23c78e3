// Key-downs of a masked control: deletion, arrows, the spin's keys, and paste by Shift+Insert.
#pragma once

#include "engine/record.h"

namespace zte {

// True when the key was consumed, false to leave it to the edit control underneath.
bool HandleKeyDown(EditInstance& edit, int32_t key, KeyData keyData);

// The same for Up and Down alone, which step a spin whether or not there is a mask.
bool HandleSpinKey(EditInstance& edit, int32_t key);

}  // namespace zte
