// What the window procedure keeps and what it passes on.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/support/clipboard.h"
#include "tests/support/live/base_recorder.h"
#include "tests/support/live/spin_window_test.h"
#include "tests/support/live/window_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

class WindowProc : public WindowTest {
protected:
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return SendMessageA(Window(), message, wParam, lParam);
    }
    size_t PassedOn(UINT message) const { return recorder_.Of(message).size(); }

    BaseRecorder recorder_;
};

struct CharResult {
    const char* name;
    WPARAM character;
    LRESULT result;
    bool passedOn;
};

void PrintTo(const CharResult& row, std::ostream* out)
{
    *out << row.name;
}

class CharacterResult : public WindowProc, public OfRow<CharResult> {};

ROW_TEST(CharacterResult, UnderAMask)
{
    Given("MM/DD/YY", DT_DATE, "|07/04/95");
    recorder_.Forget();
    const LRESULT result = Send(WM_CHAR, GetParam().character, 1);
    EXPECT_EQ(PassedOn(WM_CHAR), GetParam().passedOn ? 1u : 0u);
    if (!GetParam().passedOn) {
        EXPECT_EQ(result, GetParam().result);
    }
}

constexpr CharResult kCharacters[] = {
    {"TabIsSwallowedWithZero",      9,   0, false},
    {"LineFeedIsSwallowedWithZero", 10,  0, false},
    {"EscapeIsSwallowedWithZero",   27,  0, false},
    {"ADigitIsKeptWithOne",         '0', 1, false},
    {"ARefusedLetterIsKeptWithOne", 'x', 1, false},
    {"CtrlCIsPassedOn",             3,   0, true },
    {"CtrlDIsPassedOn",             4,   0, true },
};
TEST_ROWS(Rows, CharacterResult, kCharacters);

TEST_F(WindowProc, CtrlVIsKeptWithOne)
{
    Given("MM/DD/YY", DT_DATE, "|07/04/95");
    EmptyTheClipboard();
    EXPECT_EQ(Send(WM_CHAR, 22, 1), 1);
}

TEST_F(WindowProc, PasteIsKeptWithOne)
{
    Given("MM/DD/YY", DT_DATE, "|07/04/95");
    EmptyTheClipboard();
    recorder_.Forget();
    EXPECT_EQ(Send(WM_PASTE), 1);
    EXPECT_EQ(PassedOn(WM_PASTE), 0u);
}

TEST_F(WindowProc, PasteWithoutARecordIsPassedOn)
{
    const HWND plain = CreateWindowExA(0, ZTEDIT_CLASS, "", WS_CHILD | ES_AUTOHSCROLL, 0, 0, 100, 20, form_.hwnd(),
                                       nullptr, nullptr, nullptr);
    CopyToClipboard("abc");
    SendMessageA(plain, WM_PASTE, 0, 0);
    EXPECT_EQ(TextOf(plain), "abc");
    DestroyWindow(plain);
}

TEST_F(WindowProc, FontReachesTheEditTwice)
{
    Given("MM/DD/YY", DT_DATE, "|07/04/95");
    recorder_.Forget();
    const auto font = reinterpret_cast<WPARAM>(GetStockObject(ANSI_FIXED_FONT));
    Send(WM_SETFONT, font, FALSE);
    EXPECT_EQ(PassedOn(WM_SETFONT), 2u);
    EXPECT_EQ(Send(WM_GETFONT), static_cast<LRESULT>(font));
}

TEST_F(WindowProc, KeysWithoutAMaskArePassedOn)
{
    Given("", DT_STRING, "ab|c");
    recorder_.Forget();
    Press(VK_LEFT);
    EXPECT_EQ(PassedOn(WM_KEYDOWN), 1u);
    EXPECT_EQ(Shown(), "a|bc");
}

TEST_F(WindowProc, KeyReleaseIsPassedOn)
{
    Given("MM/DD/YY", DT_DATE, "|07/04/95");
    recorder_.Forget();
    Send(WM_KEYUP, 'A', 1);
    EXPECT_EQ(PassedOn(WM_KEYUP), 1u);
}

// Between a Backspace's way down and what belongs to it a key that only types is looked at, too.
class OpenDeletion : public SpinWindowTest {
protected:
    OpenDeletion()
    {
        Given("##0", DT_NUMBER, "|0");
        Config config;
        config.mask = "##0";
        config.type = DT_NUMBER;
        other_ = std::make_unique<Control>(form_.hwnd(), 77, config);
    }

    HWND Other() const { return other_->hwnd(); }
    void DestroyOther() { other_.reset(); }
    static void Down(HWND hwnd, WPARAM key) { SendMessageA(hwnd, WM_KEYDOWN, key, 1); }
    static void Up(HWND hwnd, WPARAM key) { SendMessageA(hwnd, WM_KEYUP, key, 1); }
    static bool IsOpen(HWND hwnd) { return RecordOf(hwnd)->deletePending != 0; }

private:
    std::unique_ptr<Control> other_;
};

TEST_F(OpenDeletion, EndsWithTheNextKeyDown)
{
    Down(Window(), VK_BACK);
    EXPECT_TRUE(IsOpen(Window()));
    Down(Window(), '8');
    EXPECT_FALSE(IsOpen(Window()));
}

TEST_F(OpenDeletion, EndsWithTheNextKeyUp)
{
    Down(Window(), VK_BACK);
    Up(Window(), '8');
    EXPECT_FALSE(IsOpen(Window()));
}

TEST_F(OpenDeletion, EndsInEachOfTwoControls)
{
    Down(Window(), VK_BACK);
    Down(Other(), VK_BACK);
    Up(Other(), VK_BACK);
    EXPECT_TRUE(IsOpen(Window()));
    EXPECT_FALSE(IsOpen(Other()));
    Down(Other(), '8');
    Down(Window(), '8');
    EXPECT_FALSE(IsOpen(Window()));
}

TEST_F(OpenDeletion, OfADestroyedControlLeavesTheOthers)
{
    Down(Window(), VK_BACK);
    Down(Other(), VK_BACK);
    DestroyOther();
    Down(Window(), '8');
    EXPECT_FALSE(IsOpen(Window()));
}

struct PlainMessage {
    const char* name;
    UINT message;
    WPARAM wParam;
};

void PrintTo(const PlainMessage& row, std::ostream* out)
{
    *out << row.name;
}

class MessageLeftAlone : public WindowProc, public OfRow<PlainMessage> {};

ROW_TEST(MessageLeftAlone, ReachesTheEditOnce)
{
    Given("MM/DD/YY", DT_DATE, "[07/]04/95");
    recorder_.Forget();
    Send(GetParam().message, GetParam().wParam);
    EXPECT_EQ(PassedOn(GetParam().message), 1u);
}

constexpr PlainMessage kPlainMessages[] = {
    {"Move",           WM_MOVE,          0         },
    {"Size",           WM_SIZE,          0         },
    {"SetFocus",       WM_SETFOCUS,      0         },
    {"KillFocus",      WM_KILLFOCUS,     0         },
    {"Copy",           WM_COPY,          0         },
    {"Cut",            WM_CUT,           0         },
    {"Clear",          WM_CLEAR,         0         },
    {"GetSel",         EM_GETSEL,        0         },
    {"SetSel",         EM_SETSEL,        0         },
    {"ScrollCaret",    EM_SCROLLCARET,   0         },
    {"LimitText",      EM_SETLIMITTEXT,  100       },
    {"GetDlgCode",     WM_GETDLGCODE,    0         },
    {"ButtonDown",     WM_LBUTTONDOWN,   MK_LBUTTON},
    {"DoubleClick",    WM_LBUTTONDBLCLK, MK_LBUTTON},
    {"SettingsChange", WM_WININICHANGE,  0         },
    {"Paint",          WM_PAINT,         0         },
    {"User",           WM_USER + 77,     0         },
};
TEST_ROWS(Messages, MessageLeftAlone, kPlainMessages);

// A window of the class without a record takes every message as a standard edit does.
class MessageWithoutARecord : public WindowProc, public OfRow<PlainMessage> {
protected:
    HWND MakeWindow(const char* className) const
    {
        return CreateWindowExA(0, className, "text", WS_CHILD | ES_AUTOHSCROLL, 0, 0, 100, 20, form_.hwnd(), nullptr,
                               nullptr, nullptr);
    }
    static LRESULT SendTo(HWND window) { return SendMessageA(window, GetParam().message, GetParam().wParam, 0); }
};

ROW_TEST(MessageWithoutARecord, DoesWhatItDoesToAStandardEdit)
{
    CopyToClipboard("abc");
    const HWND standard = MakeWindow("edit");
    const HWND ours = MakeWindow(ZTEDIT_CLASS);
    const LRESULT result = SendTo(standard);
    recorder_.Forget();
    EXPECT_EQ(SendTo(ours), result);
    EXPECT_EQ(PassedOn(GetParam().message), 1u);
    EXPECT_EQ(TextOf(ours), TextOf(standard));
    EXPECT_EQ(SendMessageA(ours, EM_GETSEL, 0, 0), SendMessageA(standard, EM_GETSEL, 0, 0));
    DestroyWindow(ours);
    DestroyWindow(standard);
}

constexpr PlainMessage kMessagesWithoutARecord[] = {
    {"Move",           WM_MOVE,          0         },
    {"Size",           WM_SIZE,          0         },
    {"SetFocus",       WM_SETFOCUS,      0         },
    {"KillFocus",      WM_KILLFOCUS,     0         },
    {"Paint",          WM_PAINT,         0         },
    {"SettingsChange", WM_WININICHANGE,  0         },
    {"SetFont",        WM_SETFONT,       0         },
    {"KeyDown",        WM_KEYDOWN,       VK_RIGHT  },
    {"KeyUp",          WM_KEYUP,         VK_RIGHT  },
    {"Char",           WM_CHAR,          'x'       },
    {"ButtonDown",     WM_LBUTTONDOWN,   MK_LBUTTON},
    {"ButtonUp",       WM_LBUTTONUP,     0         },
    {"DoubleClick",    WM_LBUTTONDBLCLK, MK_LBUTTON},
    {"Paste",          WM_PASTE,         0         },
};
TEST_ROWS(Messages, MessageWithoutARecord, kMessagesWithoutARecord);

}  // namespace
}  // namespace zttest
