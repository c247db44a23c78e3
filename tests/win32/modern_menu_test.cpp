// The edit control's own context menu over a modern control, opened for real and chosen from by keys.
#include "tests/support/clipboard.h"
#include "tests/win32/modern_window.h"

namespace zttest {
namespace {

constexpr UINT kAskMenu = 0x01E1;  // a menu's window answers with the menu

// What is done while the menu is open; a timer calls without a context.
std::function<void(HMENU)> whileOpen;

HMENU OpenMenuNow()
{
    const HWND window = FindWindowA("#32768", nullptr);
    return window ? reinterpret_cast<HMENU>(SendMessageA(window, kAskMenu, 0, 0)) : nullptr;
}

void CALLBACK UseMenu(HWND hwnd, UINT, UINT_PTR timer, DWORD)
{
    const HMENU menu = OpenMenuNow();
    if (!menu)
        return;
    if (whileOpen)
        whileOpen(menu);
    whileOpen = nullptr;
    KillTimer(hwnd, timer);
}

bool IsItem(HMENU menu, int place, UINT id)
{
    const UINT found = GetMenuItemID(menu, place);
    return found == id || (id == WM_UNDO && found == EM_UNDO);
}

// The number of the item among those that are no separators; -1 for none.
int ChoiceOf(HMENU menu, UINT id)
{
    int choice = 0;
    for (int place = 0; place < GetMenuItemCount(menu); ++place) {
        if (IsItem(menu, place, id))
            return choice;
        choice += (GetMenuState(menu, static_cast<UINT>(place), MF_BYPOSITION) & MF_SEPARATOR) == 0;
    }
    return -1;
}

class ModernMenu : public ModernWindow {
protected:
    template <class What>
    void Open(What what)
    {
        whileOpen = what;
        const UINT_PTR timer = SetTimer(parent_.hwnd(), 77, 10, UseMenu);
        Send(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Window()), MAKELPARAM(60, 60));
        KillTimer(parent_.hwnd(), timer);
        EXPECT_FALSE(whileOpen) << "no menu was shown";
        DrainMessages();
    }

    // Opens the menu and looks at its Undo.
    bool OffersUndo()
    {
        bool offered = false;
        Open([&](HMENU menu) {
            const int choice = ChoiceOf(menu, WM_UNDO);
            EXPECT_EQ(choice, 0);
            offered = (GetMenuState(menu, 0, MF_BYPOSITION) & (MF_GRAYED | MF_DISABLED)) == 0;
            EndMenu();
        });
        return offered;
    }

    void Choose(UINT id)
    {
        Open([&](HMENU menu) {
            const int choice = ChoiceOf(menu, id);
            EXPECT_GE(choice, 0) << "the menu has no such item";
            for (int i = 0; i <= choice; ++i)
                PostMessageA(Window(), WM_KEYDOWN, VK_DOWN, 1);
            PostMessageA(Window(), WM_KEYDOWN, VK_RETURN, 1);
        });
    }
};

TEST_F(ModernMenu, OffersUndoWhereThereIsOne)
{
    Make(kPhone, DT_STRING);
    SetFocus(Window());
    EXPECT_FALSE(OffersUndo());
    Select(1, 1);
    Type("5");
    EXPECT_TRUE(OffersUndo());
    Send(EM_SETREADONLY, TRUE);
    EXPECT_FALSE(OffersUndo());
    Send(EM_SETREADONLY, FALSE);
    Send(WM_UNDO);
    EXPECT_FALSE(OffersUndo());
}

TEST_F(ModernMenu, CutsPastesDeletesAndUndoesWithTheLiteralsInPlace)
{
    Make(kPhone, DT_STRING, "5551234567");
    SetFocus(Window());
    Select(0, -1);
    Choose(WM_CUT);
    EXPECT_EQ(Shown(), "(|   )    -    ");
    EXPECT_EQ(ClipboardText(), "(555) 123-4567");
    Choose(WM_PASTE);
    EXPECT_EQ(Shown(), "(555) 123-4567|");
    Select(1, 4);
    Choose(WM_CLEAR);
    EXPECT_EQ(Shown(), "(|   ) 123-4567");
    Choose(WM_UNDO);
    EXPECT_EQ(Shown(), "([555]) 123-4567");
    Choose(WM_UNDO);
    EXPECT_EQ(Shown(), "(|   )    -    ");
    EXPECT_EQ(Beeps(), 0);
}

TEST_F(ModernMenu, EndsAFieldWhenItSelectsAll)
{
    Make(kDate, DT_DATE);
    SetFocus(Window());
    Select(3, 3);
    Type("1");
    Choose(EM_SETSEL);
    EXPECT_EQ(Shown(), "[  /01/    ]");
}

}  // namespace
}  // namespace zttest
