// The window procedure of the masked edit: finds the record, routes the message, and keeps it or passes it on.
#include "engine/edit/key_down.h"
#include "engine/edit/paste.h"
#include "engine/edit/plain_edit.h"
#include "win32/creation.h"
#include "win32/known_record.h"
#include "win32/library.h"
#include "win32/life_guard.h"
#include "win32/mouse.h"
#include "win32/open_deletion.h"
#include "win32/placement.h"
#include "win32/record_store.h"
#include "win32/regional_settings.h"

namespace zte {

namespace {

Reply OnPaste(EditInstance& edit)
{
    PasteClipboard(edit);
    return Keep();
}

Reply OnKillFocus(EditInstance& edit)
{
    OnFocusLost(edit);
    return OnFocus(edit);
}

Reply OnTextSet(EditInstance& edit)
{
    OnTextSetFromOutside(edit);
    return kPassOn;
}

// What a user does.
bool IsInput(UINT message)
{
    switch (message) {
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_CHAR:
    case WM_LBUTTONUP:
    case WM_PASTE: return true;
    default: return false;
    }
}

// What changes nothing but places and pixels.
bool IsAppearance(UINT message)
{
    return message == WM_PAINT || message == WM_SIZE || message == WM_MOVE;
}

// A removed property is seen by all but what is painted and placed, which may come with every key: see known_record.h.
EditInstance* RecordFor(HWND hwnd, UINT message)
{
    if (IsAppearance(message))
        return KnownRecord(hwnd);
    EditInstance* edit = GetEditInstance(hwnd);
    if (edit)
        RememberRecord(hwnd, *edit);
    else
        ForgetRecord(hwnd);
    return edit;
}

bool IsKeyMessage(UINT message)
{
    return message == WM_KEYDOWN || message == WM_KEYUP || message == WM_CHAR;
}

// What a user does to a control that is told from a plain edit by nothing.
Reply OnPlainInput(EditInstance& edit, UINT message, WPARAM wParam)
{
    const auto number = static_cast<uint32_t>(wParam);
    switch (message) {
    case WM_KEYDOWN: return OnPlainKeyDown(edit, number);
    case WM_CHAR: return OnPlainChar(edit, number);
    default: return kPassOn;
    }
}

// Routes a message that the control handles. False for all others, the library's own EM_ messages among them, and a key's way down
// and up where only its character matters: they are passed on without a look-up of the record, which is a call into the window manager.
template <typename Handler>
bool Dispatch(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, Handler&& handle)
{
    const auto number = static_cast<uint32_t>(wParam);
    switch (message) {
    case WM_MOVE: return handle([](EditInstance& edit) { return OnMove(edit); });
    case WM_SIZE: return handle([=](EditInstance& edit) { return OnSize(edit, wParam, lParam); });
    case WM_SETFOCUS: return handle([](EditInstance& edit) { return OnFocus(edit); });
    case WM_KILLFOCUS: return handle([](EditInstance& edit) { return OnKillFocus(edit); });
    case WM_PAINT: return handle([](EditInstance& edit) { return OnPaint(edit); });
    case WM_SETFONT: return handle([=](EditInstance& edit) { return OnSetFont(edit, wParam, lParam); });
    case WM_KEYDOWN:
        return (ConcernsKeyDown(number) || DeletionIsOpen()) &&
               handle([=](EditInstance& edit) { return OnKeyDown(edit, number, lParam); });
    case WM_KEYUP: return DeletionIsOpen() && handle([=](EditInstance& edit) { return OnKeyUp(edit, number); });
    case WM_CHAR: return handle([=](EditInstance& edit) { return OnChar(edit, number, lParam); });
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK: return handle([](EditInstance& edit) { return OnButtonDown(edit); });
    case WM_LBUTTONUP: return handle([=](EditInstance& edit) { return OnButtonUp(edit, wParam, lParam); });
    case EM_SETSEL:
    case EM_REPLACESEL:
    case WM_SETTEXT: return !StandardField::TakeOwnMessage(hwnd) && handle(OnTextSet);
    case WM_PASTE: return handle([](EditInstance& edit) { return OnPaste(edit); });
    case EM_SETMARGINS: return handle([=](EditInstance& edit) { return OnSetMargins(edit, wParam, lParam); });
    case EM_GETMARGINS: return handle([](EditInstance& edit) { return OnGetMargins(edit); });
    default: return false;
    }
}

// True when the control kept the message; kept with result 0 when the control is gone: nothing is left to pass the message on to.
bool IsKept(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result)
{
    return Dispatch(hwnd, message, wParam, lParam, [&](auto&& work) {
        EditInstance* edit = RecordFor(hwnd, message);
        if (!edit)
            return false;
        const bool isPlain = IsInput(message) && IsPlainEdit(*edit);
        const Reply reply = WhileAlive(*edit, Keep(0), [&] {
            const Reply done = isPlain ? OnPlainInput(*edit, message, wParam) : work(*edit);
            if (IsKeyMessage(message))
                NoteDeletion(*edit);
            return done;
        });
        result = reply.result;
        return reply.kept;
    });
}

}  // namespace

}  // namespace zte

using namespace zte;

LRESULT CALLBACK ZTE_SuperEditWndProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == reachMessage)
        return reinterpret_cast<LRESULT>(libraryInstance);
    if (message == WM_CREATE)
        return CreateControl(hwnd, wParam, lParam);
    if (message == WM_WININICHANGE)
        ReadIntlSettings();
    if (message == WM_DESTROY)
        DiscardRecord(hwnd);
    LRESULT result = 0;
    if (message != WM_DESTROY && IsKept(hwnd, message, wParam, lParam, result))
        return result;
    return CallBaseEdit(hwnd, message, wParam, lParam);
}
