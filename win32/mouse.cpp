// The mouse over the text.
#include "win32/mouse.h"

#include "engine/editing.h"
#include "win32/placement.h"
#include "win32/standard_field.h"

namespace zte {

namespace {

// The whole notches that a wheel has turned by now; parts of one add up, as long as it goes the same way.
int32_t TakeNotches(EditInstance& edit, int32_t turned)
{
    int32_t& rest = FieldOf(edit).wheelRest;
    if ((rest < 0) != (turned < 0))
        rest = 0;
    rest += turned;
    const int32_t notches = rest / WHEEL_DELTA;
    rest -= notches * WHEEL_DELTA;
    return notches;
}

bool IsWheelMeant(const EditInstance& edit, WPARAM wParam)
{
    return (GET_KEYSTATE_WPARAM(wParam) & MK_CONTROL) == 0 && GetFocus() == WindowOf(edit);
}

}  // namespace

Reply OnButtonDown(EditInstance& edit)
{
    ForgetPassed(edit);
    return OnFocus(edit);
}

// Where nothing is corrected the base sees the release a second time; it is used to that.
Reply OnButtonUp(EditInstance& edit, WPARAM wParam, LPARAM lParam)
{
    const Editing& editing = EditingOf(edit);
    if (!editing.beforeClick(edit) || CallBaseEdit(WindowOf(edit), WM_GETTEXTLENGTH, 0, 0) == 0)
        return kPassOn;
    FieldOf(edit).ToBase(WM_LBUTTONUP, wParam, lParam);
    return editing.afterClick(edit) ? Keep() : kPassOn;
}

// The first of the two clicks has given the focus.
Reply OnDoubleClick(EditInstance& edit, LPARAM lParam)
{
    const Reply down = OnButtonDown(edit);
    const auto select = EditingOf(edit).doubleClick;
    if (!select)
        return down;
    const LRESULT place = FieldOf(edit).ToBase(EM_CHARFROMPOS, 0, lParam);
    return select(edit, LOWORD(place));
}

// What does not step is the parent's: the base would scroll its only line.
Reply OnWheel(EditInstance& edit, WPARAM wParam, LPARAM lParam)
{
    const auto turn = EditingOf(edit).wheel;
    if (!turn)
        return kPassOn;
    if (IsWheelMeant(edit, wParam) && turn(edit, 0).kept)
        return turn(edit, TakeNotches(edit, GET_WHEEL_DELTA_WPARAM(wParam)));
    return Keep(DefWindowProcA(WindowOf(edit), WM_MOUSEWHEEL, wParam, lParam));
}

}  // namespace zte
