// Messages that keep the spin child placed, shown and painted beside the text.
#pragma once

#include <windows.h>

#include "engine/edit/keyboard.h"

namespace zte {

Reply OnMove(EditInstance& edit);
Reply OnLooksChanged(EditInstance& edit);  // enabled, read-only, theme, colours
Reply OnDpiChanged(EditInstance& edit);
Reply OnSize(EditInstance& edit, WPARAM wParam, LPARAM lParam);
Reply OnFocus(EditInstance& edit);
Reply OnPaint(EditInstance& edit);
Reply OnSetFont(EditInstance& edit, WPARAM wParam, LPARAM lParam);

// The host sets and reads margins of its own, as if no spin stood in the right one.
Reply OnSetMargins(EditInstance& edit, WPARAM which, LPARAM margins);
Reply OnGetMargins(EditInstance& edit);

}  // namespace zte
