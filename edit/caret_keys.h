// Key-downs of a masked control: deletion, arrows, the spin's keys, and paste by Shift+Insert.
#pragma once

#include "core/edit_instance.h"

namespace zte {

// True when the key was consumed, false to leave it to the edit control underneath.
bool HandleKeyDown(EditInstance& edit, WPARAM key, LPARAM keyData);

}  // namespace zte
