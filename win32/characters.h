// Characters that messages bring in other ways than one byte at a time, or in several.
#pragma once

#include <windows.h>

#include "engine/record.h"
#include "engine/reply.h"

namespace zte {

// WM_CHAR, and of modern controls also what an input method and other programs send.
Reply OnCharacter(EditInstance& edit, WPARAM wParam, LPARAM lParam);
Reply OnInputMethodCharacter(EditInstance& edit, WPARAM wParam, LPARAM lParam);
Reply OnCodePoint(EditInstance& edit, WPARAM wParam, LPARAM lParam);

}  // namespace zte
