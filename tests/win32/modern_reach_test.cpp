// Who cannot see the spin, and who writes in other characters: the accessible spin, value-change events, input methods.
#include <algorithm>

#include "tests/support/live/accessible_client.h"
#include "tests/support/live/import_patch.h"
#include "tests/support/rows.h"
#include "tests/win32/modern_window.h"

namespace zttest {
namespace {

class ModernReach : public ModernWindow {
protected:
    void MakeSpin(const char* data, uint32_t options = ZTEO_MODERN)
    {
        Config config;
        config.mask = kDate;
        config.type = DT_DATE;
        config.data = data;
        config.options = ZTEO_SPIN;
        Make(config, options);
        SetWindowPos(Window(), nullptr, 0, 0, 150, 20, SWP_NOMOVE | SWP_NOZORDER);
        Select(3, 3);
        TakeTold();
    }
};

TEST_F(ModernReach, TellsOfASpinButtonWithTwoActions)
{
    MakeSpin("2024-02-26");
    const AccessibleClient client(Spin());
    ASSERT_TRUE(client);
    LONG count = 0;
    EXPECT_EQ(client->get_accChildCount(&count), S_OK);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(client.Role(0), ROLE_SYSTEM_SPINBUTTON);
    EXPECT_EQ(client.Role(1), ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_EQ(client.Role(2), ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_EQ(client.Text(&IAccessible::get_accValue, 0), "02/26/2024");
    EXPECT_EQ(client.Text(&IAccessible::get_accName, 1), "Up");
    EXPECT_EQ(client.Text(&IAccessible::get_accName, 2), "Down");
    EXPECT_EQ(client.Text(&IAccessible::get_accDefaultAction, 0), "none");
    EXPECT_EQ(client.Text(&IAccessible::get_accDefaultAction, 1), "Press");
    EXPECT_EQ(client.Text(&IAccessible::get_accDefaultAction, 2), "Press");
    EXPECT_EQ(client->accDoDefaultAction(Id(1)), S_OK);
    EXPECT_EQ(control_->Text(), "02/27/2024");
    EXPECT_EQ(client->accDoDefaultAction(Id(2)), S_OK);
    EXPECT_EQ(client->accDoDefaultAction(Id(2)), S_OK);
    EXPECT_EQ(control_->Text(), "02/25/2024");
    EXPECT_NE(client->accDoDefaultAction(Id(0)), S_OK);
    EXPECT_EQ(client->accDoDefaultAction(Id(3)), E_INVALIDARG);
    EXPECT_EQ(client.Role(-1), -1);
    EXPECT_EQ(client->get_accRole(Id(1), nullptr), E_INVALIDARG);
}

// What a program prints that is started with a window's number; this thread answers messages meanwhile, as a form does.
std::string WhatAProgramSees(const char* program, HWND hwnd)
{
    char folder[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, folder, MAX_PATH);
    const std::string path = folder;
    std::string command = "\"" + path.substr(0, path.find_last_of('\\') + 1) + program + "\" " +
                          std::to_string(reinterpret_cast<uintptr_t>(hwnd));
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    HANDLE reading = nullptr;
    HANDLE writing = nullptr;
    EXPECT_TRUE(CreatePipe(&reading, &writing, &inherited, 0));
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = writing;
    PROCESS_INFORMATION process{};
    EXPECT_TRUE(
        CreateProcessA(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process));
    CloseHandle(writing);
    const DWORD begin = GetTickCount();
    while (MsgWaitForMultipleObjects(1, &process.hProcess, FALSE, 1000, QS_ALLINPUT) != WAIT_OBJECT_0 &&
           GetTickCount() - begin < 60000)
        DrainMessages();
    TerminateProcess(process.hProcess, 99);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    std::string seen(4096, '\0');
    DWORD length = 0;
    ReadFile(reading, seen.data(), static_cast<DWORD>(seen.size()), &length, nullptr);
    CloseHandle(reading);
    seen.resize(length);
    seen.erase(std::remove(seen.begin(), seen.end(), '\r'), seen.end());
    return seen;
}

TEST_F(ModernReach, IsSeenAndPressedByAnotherProgram)
{
    MakeSpin("2024-02-26");
    EXPECT_EQ(WhatAProgramSees("assistive_client.exe", Spin()),
              "role 52, 2 children of the roles 43 and 43\n"
              "value 02/26/2024\n"
              "Press Up: done\n"
              "new values: field spin; value 02/27/2024\n"
              "Press Down: done\n"
              "new values: field spin; value 02/26/2024\n"
              "Press Down: done\n"
              "new values: field spin; value 02/25/2024\n");
    EXPECT_EQ(control_->Text(), "02/25/2024");
}

TEST_F(ModernReach, TellsWhereTheArrowsAre)
{
    MakeSpin("2024-02-26");
    const AccessibleClient client(Spin());
    ASSERT_TRUE(client);
    for (const LONG id : {1, 2}) {
        LONG left = 0;
        LONG top = 0;
        LONG width = 0;
        LONG height = 0;
        EXPECT_EQ(client->accLocation(&left, &top, &width, &height, Id(id)), S_OK);
        EXPECT_GT(width, 4);
        EXPECT_GT(height, 4);
        VARIANT hit{};
        EXPECT_EQ(client->accHitTest(left + width / 2, top + height / 2, &hit), S_OK);
        EXPECT_EQ(hit.lVal, id);
    }
    VARIANT next{};
    EXPECT_EQ(client->accNavigate(NAVDIR_FIRSTCHILD, Id(0), &next), S_OK);
    EXPECT_EQ(next.lVal, 1);
    EXPECT_EQ(client->accNavigate(NAVDIR_NEXT, Id(1), &next), S_OK);
    EXPECT_EQ(next.lVal, 2);
    EXPECT_EQ(client->accNavigate(NAVDIR_NEXT, Id(2), &next), S_FALSE);
}

TEST_F(ModernReach, TellsStatesAndOutlivesTheControl)
{
    MakeSpin("2024-02-26");
    const AccessibleClient client(Spin());
    ASSERT_TRUE(client);
    EXPECT_EQ(client.State(0) & STATE_SYSTEM_UNAVAILABLE, 0);
    Send(EM_SETREADONLY, TRUE);
    EXPECT_NE(client.State(1) & STATE_SYSTEM_UNAVAILABLE, 0);
    Send(EM_SETREADONLY, FALSE);
    SendMessageA(Spin(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 4));
    EXPECT_NE(client.State(1) & STATE_SYSTEM_PRESSED, 0);
    EXPECT_EQ(client.State(2) & STATE_SYSTEM_PRESSED, 0);
    SendMessageA(Spin(), WM_LBUTTONUP, 0, MAKELPARAM(4, 4));
    const HWND hwnd = Window();
    parent_.onTold = [hwnd](const std::string&) { DestroyWindow(hwnd); };
    EXPECT_EQ(client->accDoDefaultAction(Id(1)), S_OK);
    parent_.onTold = nullptr;
    EXPECT_FALSE(IsWindow(hwnd));
    EXPECT_NE(client->accDoDefaultAction(Id(1)), S_OK);
    EXPECT_NE(client.State(0) & STATE_SYSTEM_UNAVAILABLE, 0);
}

TEST_F(ModernReach, LeavesAClassicSpinToTheSystem)
{
    MakeSpin("2024-02-26", 0);
    const AccessibleClient client(Spin());
    ASSERT_TRUE(client);
    EXPECT_NE(client.Role(0), ROLE_SYSTEM_SPINBUTTON);
}

// ---- events

std::vector<HWND> toldOfValues;

void WINAPI NoteEvent(DWORD event, HWND hwnd, LONG object, LONG child)
{
    if (event == EVENT_OBJECT_VALUECHANGE && object == OBJID_CLIENT && child == CHILDID_SELF)
        toldOfValues.push_back(hwnd);
}

class ModernValues : public ModernReach {
protected:
    ModernValues() : patch_("user32.dll", "NotifyWinEvent", reinterpret_cast<void*>(NoteEvent))
    {
        toldOfValues.clear();
    }

    ImportPatch patch_;
};

TEST_F(ModernValues, AreToldAfterStepsAndUndoButNotAfterTyping)
{
    MakeSpin("2024-02-26");
    SetFocus(Window());
    const std::vector<HWND> both = {Window(), Spin()};
    Type("1");
    EXPECT_TRUE(toldOfValues.empty());
    Send(WM_UNDO);
    EXPECT_EQ(toldOfValues, both);
    toldOfValues.clear();
    Type("\x19");
    EXPECT_EQ(toldOfValues, both);
    toldOfValues.clear();
    Play("{Up}");
    EXPECT_EQ(toldOfValues, both);
    toldOfValues.clear();
    Send(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
    EXPECT_EQ(toldOfValues, both);
}

TEST_F(ModernValues, AreToldAfterAChoice)
{
    Config config;
    config.codes = "Red\tR/Green\tG";
    config.options = ZTEO_SPIN | ZTEO_CODE_DISPLAY | ZTEO_CODE_PICK;
    config.increment = 1;
    Make(config);
    Type("g");
    EXPECT_EQ(control_->Text(), "Green");
    EXPECT_EQ(toldOfValues.size(), 2u);
    Type("x");
    EXPECT_EQ(toldOfValues.size(), 2u);
}

TEST_F(ModernValues, AreNotToldOfClassicControls)
{
    MakeSpin("2024-02-26", 0);
    Play("{Up}{Down}5");
    EXPECT_TRUE(toldOfValues.empty());
}

// ---- characters

struct CharacterCase {
    const char* name;
    UINT message;
    WPARAM character;
    const char* shown;
    Told told;
};
void PrintTo(const CharacterCase& row, std::ostream* out)
{
    *out << row.name;
}

class ModernCharacter : public ModernWindow, public OfRow<CharacterCase> {};

ROW_TEST(ModernCharacter, IsTakenOrRefusedAsAWhole)
{
    const CharacterCase& row = GetParam();
    Make("XXXX", DT_STRING, "abcd");
    Select(1, 2);
    TakeTold();
    Send(row.message, row.character, 1);
    EXPECT_EQ(Shown(), row.shown);
    EXPECT_EQ(TakeTold(), row.told);
}

// clang-format off
const CharacterCase kCharactersSent[] = {
    {"OfTheCodePage",        WM_CHAR,     0xE4,    "a\xE4|cd", {"update", "change"}},
    {"BeyondAByte",          WM_CHAR,     0x20AC,  "a[b]cd",   {"rejected not in the code page at 1"}},
    {"OfAnInputMethod",      WM_IME_CHAR, 'x',     "ax|cd",    {"update", "change"}},
    {"OfAnInputMethodOfTwo", WM_IME_CHAR, 0x82A0,  "a[b]cd",   {"rejected not in the code page at 1"}},
    {"ACodePoint",           WM_UNICHAR,  'x',     "ax|cd",    {"update", "change"}},
    {"ACodePointOfThePage",  WM_UNICHAR,  0xE4,    "a\xE4|cd", {"update", "change"}},
    {"AForeignCodePoint",    WM_UNICHAR,  0x4E00,  "a[b]cd",   {"rejected not in the code page at 1"}},
    {"ACodePointOfTwoUnits", WM_UNICHAR,  0x1F600, "a[b]cd",   {"rejected not in the code page at 1"}},
    {"TheQuestion",          WM_UNICHAR,  0xFFFF,  "a[b]cd",   {}},
};
// clang-format on
TEST_ROWS(Rows, ModernCharacter, kCharactersSent);

// ---- a code page of two bytes, as the library sees it

BOOL WINAPI IsLeadOfTwo(BYTE byte)
{
    return byte == 0x82;
}

class ModernTwoBytes : public ModernWindow {};

TEST_F(ModernTwoBytes, AreRefusedTogether)
{
    const ImportPatch patch("kernel32.dll", "IsDBCSLeadByte", reinterpret_cast<void*>(IsLeadOfTwo));
    Make("XXXX", DT_STRING, "abcd");
    Select(1, 2);
    TakeTold();
    Send(WM_CHAR, 0x82, 1);
    Send(WM_CHAR, 'A', 1);  // its other half
    EXPECT_EQ(Shown(), "a[b]cd");
    EXPECT_EQ(TakeTold(), (Told{"rejected not in the code page at 1"}));
    Send(WM_CHAR, 'A', 1);
    EXPECT_EQ(Shown(), "aA|cd");
}

}  // namespace
}  // namespace zttest
