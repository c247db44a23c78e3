// Messages that keep the spin child placed, shown and painted beside the text.
#include "core/base_edit.h"
#include "core/instance.h"
#include "core/life_guard.h"
#include "core/message_handlers.h"

namespace zte {

namespace {

void Invalidate(HWND hwnd)
{
    InvalidateRect(hwnd, nullptr, TRUE);
}

bool IsEmptyWindow(HWND hwnd)
{
    RECT rect{};
    GetWindowRect(hwnd, &rect);
    return rect.right <= rect.left || rect.bottom <= rect.top;
}

void DropFace(HBITMAP& face)
{
    if (face)
        DeleteObject(face);
    face = nullptr;
}

// The spin sits flush right inside the client area, as high as it.
void PlaceSpin(EditInstance& edit)
{
    if (IsEmptyWindow(edit.hwnd))
        return;
    RECT client{};
    GetClientRect(edit.hwnd, &client);
    const auto height = static_cast<int16_t>(client.bottom - client.top);
    const int16_t width = ZTE_GetSpinWidth(edit.hwnd, &client);
    DropFace(edit.spinFaceNormal);
    DropFace(edit.spinFacePressed);
    MoveWindow(edit.hwndSpin, client.right - width, client.top, width, height, TRUE);
    ShowWindow(edit.hwndSpin, SW_SHOW);
}

// Passes a message on that makes the base lay its formatting rectangle anew, and narrows it again.
Reply PassOnAndKeepTextOffSpin(EditInstance& edit, UINT message, WPARAM wParam, LPARAM lParam)
{
    const LifeCheck life(edit);
    const LRESULT result = CallBaseEdit(edit.hwnd, message, wParam, lParam);
    life.Check();
    KeepTextOffSpin(edit);
    return Keep(result);
}

}  // namespace

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

Reply OnFocus(EditInstance& edit)
{
    if (edit.hwndSpin)
        Invalidate(edit.hwndSpin);
    return kPassOn;
}

// A spin that came with ZTE_Init has seen no WM_SIZE yet; the first paint places it.
Reply OnPaint(EditInstance& edit)
{
    if (!edit.hwndSpin)
        return kPassOn;
    if (IsEmptyWindow(edit.hwndSpin))
        PlaceSpin(edit);
    ShowWindow(edit.hwndSpin, SW_SHOW);
    Invalidate(edit.hwndSpin);
    UpdateWindow(edit.hwndSpin);
    return kPassOn;
}

// The base sees the font twice: kept, hosts that watch the edit underneath rely on it.
Reply OnSetFont(EditInstance& edit, WPARAM wParam, LPARAM lParam)
{
    CallBaseEdit(edit.hwnd, WM_SETFONT, wParam, lParam);
    return PassOnAndKeepTextOffSpin(edit, WM_SETFONT, wParam, lParam);
}

Reply OnButtonDown(EditInstance& edit)
{
    edit.carriedTo = 0;
    return OnFocus(edit);
}

}  // namespace zte
