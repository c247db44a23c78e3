// The left button over the text.
#include "win32/mouse.h"

#include "engine/edit/click.h"
#include "win32/placement.h"
#include "win32/standard_field.h"

namespace zte {

Reply OnButtonDown(EditInstance& edit)
{
    ForgetPassed(edit);
    return OnFocus(edit);
}

// Where nothing is corrected the base sees the release a second time; it is used to that.
Reply OnButtonUp(EditInstance& edit, WPARAM wParam, LPARAM lParam)
{
    if (!IsClickCorrected(edit) || CallBaseEdit(WindowOf(edit), WM_GETTEXTLENGTH, 0, 0) == 0)
        return kPassOn;
    FieldOf(edit).ToBase(WM_LBUTTONUP, wParam, lParam);
    return CorrectClick(edit) ? Keep() : kPassOn;
}

}  // namespace zte
