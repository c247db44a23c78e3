// The edit control's own context menu, over a control that has an undo of its own. What is chosen comes as messages.
// The base offers Undo after its own undo, which never holds anything, and does not tell its window of the menu:
// the menu is met when it is about to be shown.
#include "win32/context_menu.h"

#include "engine/editing.h"
#include "win32/life_guard.h"

namespace zte {

namespace {

constexpr UINT kAskMenu = 0x01E1;                  // a menu's window answers with the menu
constexpr ULONG_PTR kMenuClass = 0x8000;           // the class of menus' windows
constexpr UINT kUndoItems[] = {WM_UNDO, EM_UNDO};  // the item carries the number of either message

void EnableUndo(HMENU menu)
{
    for (const UINT item : kUndoItems)
        EnableMenuItem(menu, item, MF_BYCOMMAND | MF_ENABLED);
}

LRESULT CALLBACK EnableUndoOfShownMenu(int code, WPARAM wParam, LPARAM lParam)
{
    const auto* sent = reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && sent->message == WM_WINDOWPOSCHANGING &&
        GetClassLongPtrA(sent->hwnd, GCW_ATOM) == kMenuClass)
        EnableUndo(reinterpret_cast<HMENU>(SendMessageA(sent->hwnd, kAskMenu, 0, 0)));
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// While it lives, the menus that this thread shows offer Undo.
class OfferedUndo {
public:
    explicit OfferedUndo(bool offered)
        : hook_(offered ? SetWindowsHookExA(WH_CALLWNDPROC, EnableUndoOfShownMenu, nullptr, GetCurrentThreadId())
                        : nullptr)
    {
    }
    OfferedUndo(const OfferedUndo&) = delete;
    OfferedUndo& operator=(const OfferedUndo&) = delete;
    ~OfferedUndo()
    {
        if (hook_)
            UnhookWindowsHookEx(hook_);
    }

private:
    HHOOK hook_;
};

}  // namespace

Reply OnContextMenu(EditInstance& edit, const MSG& message)
{
    const Reply canUndo = EditingOf(edit).canUndo(edit);
    if (!canUndo.kept)
        return kPassOn;
    const OfferedUndo offered(canUndo.result != 0 && !edit.field->RefusesInput());
    return Keep(FieldOf(edit).ToBase(message.message, message.wParam, message.lParam));
}

}  // namespace zte
