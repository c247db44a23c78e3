// The window procedure of the masked edit: finds the record, routes the message, and keeps it or passes it on.
#include "core/base_edit.h"
#include "core/creation.h"
#include "core/instance.h"
#include "core/life_guard.h"
#include "core/message_handlers.h"
#include "intl/regional_settings.h"

namespace zte {

namespace {

// The messages that need the record; all others, the library's own EM_ messages among them, are passed on without a look-up.
bool NeedsRecord(UINT message)
{
    switch (message) {
    case WM_MOVE:
    case WM_SIZE:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_PAINT:
    case WM_SETFONT:
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_CHAR:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_PASTE: return true;
    default: return false;
    }
}

Reply Route(EditInstance& edit, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_MOVE: return OnMove(edit);
    case WM_SIZE: return OnSize(edit, wParam, lParam);
    case WM_SETFOCUS:
    case WM_KILLFOCUS: return OnFocus(edit);
    case WM_PAINT: return OnPaint(edit);
    case WM_SETFONT: return OnSetFont(edit, wParam, lParam);
    case WM_KEYDOWN: return OnKeyDown(edit, wParam, lParam);
    case WM_KEYUP: return OnKeyUp(edit, wParam);
    case WM_CHAR: return OnChar(edit, wParam, lParam);
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: return OnButtonDown(edit);
    case WM_LBUTTONUP: return OnButtonUp(edit, wParam, lParam);
    case WM_PASTE: return OnPaste(edit);
    default: return kPassOn;
    }
}

// Kept with result 0 when the control is gone: nothing is left to pass the message on to.
Reply Handle(EditInstance& edit, UINT message, WPARAM wParam, LPARAM lParam)
{
    return WhileAlive(edit, Keep(0), [&] { return Route(edit, message, wParam, lParam); });
}

}  // namespace

}  // namespace zte

using namespace zte;

LRESULT CALLBACK ZTE_SuperEditWndProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_CREATE)
        return CreateControl(hwnd, wParam, lParam);
    if (message == WM_WININICHANGE)
        ReadIntlSettings();
    if (message == WM_DESTROY)
        DiscardRecord(hwnd);
    else if (NeedsRecord(message)) {
        if (EditInstance* edit = GetEditInstance(hwnd)) {
            const Reply reply = Handle(*edit, message, wParam, lParam);
            if (reply.kept)
                return reply.result;
        }
    }
    return CallBaseEdit(hwnd, message, wParam, lParam);
}
