// The left button over the text.
#pragma once

#include <windows.h>

#include "engine/edit/keyboard.h"

namespace zte {

Reply OnButtonDown(EditInstance& edit);
Reply OnButtonUp(EditInstance& edit, WPARAM wParam, LPARAM lParam);

}  // namespace zte
