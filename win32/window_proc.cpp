// The window procedure of the masked edit: finds the record, routes the message, and keeps it or passes it on.
#include <optional>

#include "engine/edit/key_down.h"
#include "engine/edit/plain_edit.h"
#include "engine/editing.h"
#include "win32/characters.h"
#include "win32/context_menu.h"
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

constexpr WPARAM kBackspace = 8;  // a character

Reply OnKillFocus(EditInstance& edit)
{
    EditingOf(edit).focusLost(edit);
    FieldOf(edit).wheelRest = 0;
    FieldOf(edit).bytesToCome = 0;
    return OnFocus(edit);
}

// The base handles a message, and what it has come to is noted; its answer stands also where the control ends meanwhile.
Reply PassOnAndNote(EditInstance& edit, const MSG& message, void (*note)(EditInstance&))
{
    LRESULT result = 0;
    WhileAlive(edit, [&] {
        const LifeCheck life(edit);
        result = CallBaseEdit(message.hwnd, message.message, message.wParam, message.lParam);
        life.Check();
        note(edit);
    });
    return Keep(result);
}

Reply OnTextSet(EditInstance& edit, const MSG& message)
{
    EditingOf(edit).beforeTextSet(edit);
    return PassOnAndNote(edit, message, EditingOf(edit).afterTextSet);
}

Reply OnSelect(EditInstance& edit, const MSG& message)
{
    EditingOf(edit).beforeTextSet(edit);
    return PassOnAndNote(edit, message, EditingOf(edit).afterSelect);
}

Reply OnReplace(EditInstance& edit, WPARAM wParam, LPARAM lParam)
{
    return EditingOf(edit).replaceSelection(edit, reinterpret_cast<const char*>(lParam), wParam != 0);
}

// What a user does, or asks for by a message of the edit control: a plain edit does it itself.
bool IsLeftToPlainEdit(UINT message)
{
    switch (message) {
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_CHAR:
    case WM_SYSCHAR:
    case WM_IME_CHAR:
    case WM_UNICHAR:
    case WM_LBUTTONDBLCLK:
    case WM_LBUTTONUP:
    case WM_MOUSEWHEEL:
    case WM_CONTEXTMENU:
    case WM_PASTE:
    case WM_CUT:
    case WM_CLEAR:
    case WM_UNDO:
    case EM_UNDO:
    case EM_CANUNDO:
    case EM_EMPTYUNDOBUFFER:
    case EM_REPLACESEL: return true;
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

// What the library takes part in where a control is told from a plain edit by nothing.
Reply OnPlainInput(EditInstance& edit, const MSG& message)
{
    const auto number = static_cast<uint32_t>(message.wParam);
    switch (message.message) {
    case WM_KEYDOWN: return OnPlainKeyDown(edit, number);
    case WM_CHAR: return OnPlainChar(edit, number);
    case WM_LBUTTONDBLCLK: return OnButtonDown(edit);
    default: return kPassOn;
    }
}

// What was left open by a key's way down is known before the next message.
Reply AfterKey(EditInstance& edit, const MSG& message, Reply reply)
{
    if (!IsKeyMessage(message.message))
        return reply;
    FieldOf(edit).isPointToCome = edit.editor && message.message == WM_KEYDOWN && message.wParam == VK_DECIMAL;
    NoteDeletion(edit);
    return reply;
}

Reply LeaveToPlainEdit(EditInstance& edit, const MSG& message)
{
    const Reply reply = AfterKey(edit, message, OnPlainInput(edit, message));
    return reply.kept ? reply : PassOnAndNote(edit, message, EditingOf(edit).afterTextSet);
}

// A key that is left to the edit control may take its caret out of what is being typed.
Reply LeaveKey(EditInstance& edit, const MSG& message, Reply reply)
{
    const auto note = message.message == WM_KEYDOWN && !reply.kept ? EditingOf(edit).afterKey : nullptr;
    return note ? PassOnAndNote(edit, message, note) : reply;
}

bool ConcernsKeyDownHere(uint32_t key)
{
    return ConcernsKeyDown(key) || key == VK_DECIMAL || DeletionIsOpen();
}

// Routes a message that the control handles. False for all others, the library's own EM_ messages among them, and a key's way down
// and up where only its character matters: they are passed on without a look-up of the record, which is a call into the window manager.
template <typename Handler>
bool Dispatch(const MSG& message, Handler&& handle)
{
    const WPARAM wParam = message.wParam;
    const LPARAM lParam = message.lParam;
    const auto number = static_cast<uint32_t>(wParam);
    const auto act = [&](Reply (*const Editing::*of)(EditInstance&)) {
        return handle([=](EditInstance& edit) { return (EditingOf(edit).*of)(edit); });
    };
    switch (message.message) {
    case WM_MOVE: return handle([](EditInstance& edit) { return OnMove(edit); });
    case WM_SIZE: return handle([=](EditInstance& edit) { return OnSize(edit, wParam, lParam); });
    case WM_SETFOCUS: return handle([](EditInstance& edit) { return OnFocus(edit); });
    case WM_KILLFOCUS: return handle([](EditInstance& edit) { return OnKillFocus(edit); });
    case WM_PAINT: return handle([](EditInstance& edit) { return OnPaint(edit); });
    case WM_ENABLE:
    case EM_SETREADONLY:
    case WM_THEMECHANGED:
    case WM_SYSCOLORCHANGE: return handle([](EditInstance& edit) { return OnLooksChanged(edit); });
    case WM_DPICHANGED_AFTERPARENT: return handle([](EditInstance& edit) { return OnDpiChanged(edit); });
    case WM_SETFONT: return handle([=](EditInstance& edit) { return OnSetFont(edit, wParam, lParam); });
    case WM_KEYDOWN:
        return ConcernsKeyDownHere(number) &&
               handle([=](EditInstance& edit) { return EditingOf(edit).keyDown(edit, number, lParam); });
    case WM_KEYUP:
        return DeletionIsOpen() && handle([=](EditInstance& edit) { return EditingOf(edit).keyUp(edit, number); });
    case WM_CHAR: return handle([=](EditInstance& edit) { return OnCharacter(edit, wParam, lParam); });
    case WM_IME_CHAR: return handle([=](EditInstance& edit) { return OnInputMethodCharacter(edit, wParam, lParam); });
    case WM_UNICHAR: return handle([=](EditInstance& edit) { return OnCodePoint(edit, wParam, lParam); });
    case WM_SYSCHAR: return wParam == kBackspace && act(&Editing::undo);
    case WM_LBUTTONDOWN: return handle([](EditInstance& edit) { return OnButtonDown(edit); });
    case WM_LBUTTONDBLCLK: return handle([=](EditInstance& edit) { return OnDoubleClick(edit, lParam); });
    case WM_LBUTTONUP: return handle([=](EditInstance& edit) { return OnButtonUp(edit, wParam, lParam); });
    case WM_MOUSEWHEEL: return handle([=](EditInstance& edit) { return OnWheel(edit, wParam, lParam); });
    case EM_SETSEL:
        return !StandardField::TakeOwnMessage(message.hwnd) &&
               handle([&](EditInstance& edit) { return OnSelect(edit, message); });
    case WM_SETTEXT:
        return !StandardField::TakeOwnMessage(message.hwnd) &&
               handle([&](EditInstance& edit) { return OnTextSet(edit, message); });
    case WM_CONTEXTMENU: return handle([&](EditInstance& edit) { return OnContextMenu(edit, message); });
    case EM_REPLACESEL: return handle([=](EditInstance& edit) { return OnReplace(edit, wParam, lParam); });
    case WM_PASTE: return act(&Editing::paste);
    case WM_CUT: return act(&Editing::cut);
    case WM_CLEAR: return act(&Editing::clear);
    case WM_UNDO:
    case EM_UNDO: return act(&Editing::undo);
    case EM_CANUNDO: return act(&Editing::canUndo);
    case EM_EMPTYUNDOBUFFER: return act(&Editing::emptyUndo);
    case EM_SETMARGINS: return handle([=](EditInstance& edit) { return OnSetMargins(edit, wParam, lParam); });
    case EM_GETMARGINS: return handle([](EditInstance& edit) { return OnGetMargins(edit); });
    default: return false;
    }
}

// Where the control has ended there is nothing to pass a message on to, as a rule; but a window that only was one has to learn that
// the focus goes.
Reply IfGone(const MSG& message)
{
    return message.message == WM_KILLFOCUS && IsWindow(message.hwnd) ? kPassOn : Keep(0);
}

// True when the control kept the message.
bool IsKept(const MSG& message, LRESULT& result)
{
    return Dispatch(message, [&](auto&& work) {
        EditInstance* edit = RecordFor(message.hwnd, message.message);
        if (!edit)
            return false;
        std::optional<Reply> reply;
        WhileAlive(*edit, [&] {
            if (IsLeftToPlainEdit(message.message) && IsPlainEdit(*edit))
                reply = LeaveToPlainEdit(*edit, message);
            else
                reply = LeaveKey(*edit, message, AfterKey(*edit, message, work(*edit)));
        });
        const Reply done = reply ? *reply : IfGone(message);
        result = done.result;
        return done.kept;
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
    if (message != WM_DESTROY && IsKept({hwnd, message, wParam, lParam, 0, {}}, result))
        return result;
    return CallBaseEdit(hwnd, message, wParam, lParam);
}
