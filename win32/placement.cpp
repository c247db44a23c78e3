// Messages that keep the spin child placed, shown and painted beside the text.
#include "win32/placement.h"

#include "win32/life_guard.h"
#include "win32/spin_layout.h"
#include "win32/spin_window.h"
#include "ztedit.h"

namespace zte {

namespace {

bool IsEmptyWindow(HWND hwnd)
{
    RECT rect{};
    GetWindowRect(hwnd, &rect);
    return rect.right <= rect.left || rect.bottom <= rect.top;
}

bool IsShown(HWND spin)
{
    return (GetWindowLongA(spin, GWL_STYLE) & WS_VISIBLE) != 0 && !IsEmptyWindow(spin);
}

// The spin sits flush right inside the client area, as high as it.
void PlaceSpin(EditInstance& edit)
{
    if (IsEmptyWindow(WindowOf(edit)))
        return;
    const RECT client = ClientOf(WindowOf(edit));
    const auto height = static_cast<int16_t>(client.bottom - client.top);
    const int16_t width = EvenSpinWidth(edit, client);
    DropFaces(edit);
    MoveWindow(SpinOf(edit), client.right - width, client.top, width, height, TRUE);
    ShowWindow(SpinOf(edit), SW_SHOW);
}

// Passes a message on that makes the base lay its formatting rectangle anew, and narrows it again.
Reply PassOnAndKeepTextOffSpin(EditInstance& edit, UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = FieldOf(edit).ToBase(message, wParam, lParam);
    KeepTextOffSpin(edit);
    ShowCaretBesideSpin(edit);
    return Keep(result);
}

}  // namespace

Reply OnLooksChanged(EditInstance& edit)
{
    if (edit.editor && edit.hwndSpin)
        InvalidateRect(SpinOf(edit), nullptr, TRUE);
    return kPassOn;
}

Reply OnDpiChanged(EditInstance& edit)
{
    if (edit.editor && edit.hwndSpin) {
        PlaceSpin(edit);
        KeepTextOffSpin(edit);
    }
    return kPassOn;
}

Reply OnMove(EditInstance& edit)
{
    SetFlag(edit, CODE_POSITIONED, false);
    return kPassOn;
}

Reply OnSize(EditInstance& edit, WPARAM wParam, LPARAM lParam)
{
    if (!edit.hwndSpin)
        return kPassOn;
    PlaceSpin(edit);
    return PassOnAndKeepTextOffSpin(edit, WM_SIZE, wParam, lParam);
}

// The base may paint itself whole in these messages, without asking for what lies over it.
Reply OnFocus(EditInstance& edit)
{
    if (edit.hwndSpin)
        InvalidateRect(SpinOf(edit), nullptr, TRUE);
    return kPassOn;
}

// A spin that came with ZTE_Init has seen no WM_SIZE yet; the first paint places it. One that somebody has hidden is shown again. All
// else that a paint of the base touches the system has found touched itself.
Reply OnPaint(EditInstance& edit)
{
    if (!edit.hwndSpin || IsShown(SpinOf(edit)))
        return kPassOn;
    if (IsEmptyWindow(SpinOf(edit)))
        PlaceSpin(edit);
    ShowWindow(SpinOf(edit), SW_SHOW);
    return kPassOn;
}

// The base sees the font twice: kept, hosts that watch the edit underneath rely on it. It may set margins that go with the font.
Reply OnSetFont(EditInstance& edit, WPARAM wParam, LPARAM lParam)
{
    GiveMarginBack(edit);
    CallBaseEdit(WindowOf(edit), WM_SETFONT, wParam, lParam);
    return PassOnAndKeepTextOffSpin(edit, WM_SETFONT, wParam, lParam);
}

Reply OnSetMargins(EditInstance& edit, WPARAM which, LPARAM margins)
{
    if (!edit.hwndSpin || (which & EC_RIGHTMARGIN) == 0)
        return kPassOn;
    GiveMarginBack(edit);
    return PassOnAndKeepTextOffSpin(edit, EM_SETMARGINS, which, margins);
}

Reply OnGetMargins(EditInstance& edit)
{
    if (!edit.hwndSpin)
        return kPassOn;
    const LRESULT margins = FieldOf(edit).ToBase(EM_GETMARGINS, 0, 0);
    return Keep(MAKELONG(LOWORD(margins), HostMargin(edit)));
}

}  // namespace zte
