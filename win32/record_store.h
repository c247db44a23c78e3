// The record of a control: made in the caller's heap, found by the window property "MAIN".
#pragma once

#include <windows.h>

#include "engine/record.h"
#include "ztedit.h"

namespace zte {

// Makes the record of a control with its field, and attaches it; null when the system does not let it be attached.
EditInstance* NewRecord(HWND hwnd, const EditInitParams& params);

// Frees the record, which is detached.
void FreeRecord(EditInstance& edit);

// Stores the record under the property of a window that has none. False when the system refuses.
bool AttachEditInstance(HWND hwnd, EditInstance* edit);

// The record of a window, or null.
EditInstance* GetEditInstance(HWND hwnd);

// Whether the window's messages come to this thread: on another one its control may end at any time.
bool IsOnThisThread(HWND hwnd);

// Removes the property and its block; the record itself, which is not freed, or null.
EditInstance* DetachEditInstance(HWND hwnd);

}  // namespace zte
