// One handler a message of the masked edit's window procedure.
#pragma once

#include "core/edit_instance.h"

namespace zte {

// What became of a message: kept, or left to the edit control underneath.
struct Reply {
    bool kept;
    LRESULT result;
};
constexpr Reply kPassOn{false, 0};
constexpr Reply Keep(LRESULT result = 1)
{
    return {true, result};
}

// Placement and painting of the spin.
Reply OnMove(EditInstance& edit);
Reply OnSize(EditInstance& edit, WPARAM wParam, LPARAM lParam);
Reply OnFocus(EditInstance& edit);
Reply OnPaint(EditInstance& edit);
Reply OnSetFont(EditInstance& edit, WPARAM wParam, LPARAM lParam);

// Keys and characters.
Reply OnKeyDown(EditInstance& edit, WPARAM wParam, LPARAM lParam);
Reply OnKeyUp(EditInstance& edit, WPARAM wParam);
Reply OnChar(EditInstance& edit, WPARAM wParam, LPARAM lParam);
Reply OnPaste(EditInstance& edit);

// The mouse.
Reply OnButtonDown(EditInstance& edit);
Reply OnButtonUp(EditInstance& edit, WPARAM wParam, LPARAM lParam);

}  // namespace zte
