// The spin for assistive technology: a spin button with its two arrows, each of which can be pressed.
#pragma once

#include <windows.h>

namespace zte {

// The answer of a modern control's spin to WM_GETOBJECT, where it asks for the window's contents; 0 without the system's library for
// it.
LRESULT AnswerAssistance(HWND spin, WPARAM wParam);

}  // namespace zte
