// The control used last, so that painting and placing need not ask the window manager for its record.
#pragma once

#include <windows.h>

#include "engine/record.h"

namespace zte {

// The record of a control or of its spin, or null. What a message says that changes nothing but pixels: where a host has removed the
// property meanwhile, that is seen by the next key or call, not here.
EditInstance* KnownRecord(HWND hwnd);

void RememberRecord(HWND control, EditInstance& edit);

// Of a control or of a spin whose property goes.
void ForgetRecord(HWND hwnd);

}  // namespace zte
