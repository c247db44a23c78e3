// Key-downs of a masked control: deletion, arrows, the spin's keys, and paste by Shift+Insert.
#pragma once

#include "engine/record.h"

namespace zte {

// Whether a key does anything on its way down, as what a key-down message carries; all others only type.
bool ConcernsKeyDown(uint32_t key);

// True when the key was consumed, false to leave it to the edit control underneath.
bool HandleKeyDown(EditInstance& edit, int32_t key, KeyData keyData);

// The same for Up and Down alone, which step a spin whether or not there is a mask.
bool HandleSpinKey(EditInstance& edit, int32_t key);

// Copies the selection and deletes it as the Delete key does, for keys that the field underneath takes otherwise. Without a
// selection it is the Delete key. A control that takes no input is copied from, and keeps its text.
void CutByKey(EditInstance& edit, KeyData keyData);

}  // namespace zte
