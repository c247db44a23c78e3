// What the window procedure keeps, what it passes on, and how it places the spin.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/support/base_recorder.h"
#include "tests/support/clipboard.h"
#include "tests/support/edit_test.h"

namespace zttest {
namespace {

class WindowProc : public EditTest {
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

class CharacterResult : public WindowProc, public testing::WithParamInterface<CharResult> {};

TEST_P(CharacterResult, UnderAMask)
{
    Given("MM/DD/YY", DT_DATE, "|07/04/95");
    recorder_.Forget();
    const LRESULT result = Send(WM_CHAR, GetParam().character, 1);
    EXPECT_EQ(PassedOn(WM_CHAR), GetParam().passedOn ? 1u : 0u);
    if (!GetParam().passedOn) {
        EXPECT_EQ(result, GetParam().result);
    }
}

INSTANTIATE_TEST_SUITE_P(Characters, CharacterResult,
                         testing::Values(CharResult{"TabIsSwallowedWithZero", 9, 0, false},
                                         CharResult{"LineFeedIsSwallowedWithZero", 10, 0, false},
                                         CharResult{"EscapeIsSwallowedWithZero", 27, 0, false},
                                         CharResult{"ADigitIsKeptWithOne", '0', 1, false},
                                         CharResult{"ARefusedLetterIsKeptWithOne", 'x', 1, false},
                                         CharResult{"CtrlCIsPassedOn", 3, 0, true},
                                         CharResult{"CtrlDIsPassedOn", 4, 0, true}),
                         RowName<CharResult>);

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

struct PlainMessage {
    const char* name;
    UINT message;
    WPARAM wParam;
};

void PrintTo(const PlainMessage& row, std::ostream* out)
{
    *out << row.name;
}

class MessageLeftAlone : public WindowProc, public testing::WithParamInterface<PlainMessage> {};

TEST_P(MessageLeftAlone, ReachesTheEditOnce)
{
    Given("MM/DD/YY", DT_DATE, "[07/]04/95");
    recorder_.Forget();
    Send(GetParam().message, GetParam().wParam);
    EXPECT_EQ(PassedOn(GetParam().message), 1u);
}

INSTANTIATE_TEST_SUITE_P(Messages, MessageLeftAlone,
                         testing::Values(PlainMessage{"Move", WM_MOVE, 0}, PlainMessage{"Size", WM_SIZE, 0},
                                         PlainMessage{"SetFocus", WM_SETFOCUS, 0},
                                         PlainMessage{"KillFocus", WM_KILLFOCUS, 0}, PlainMessage{"Copy", WM_COPY, 0},
                                         PlainMessage{"Cut", WM_CUT, 0}, PlainMessage{"Clear", WM_CLEAR, 0},
                                         PlainMessage{"GetSel", EM_GETSEL, 0}, PlainMessage{"SetSel", EM_SETSEL, 0},
                                         PlainMessage{"ScrollCaret", EM_SCROLLCARET, 0},
                                         PlainMessage{"LimitText", EM_SETLIMITTEXT, 100},
                                         PlainMessage{"GetDlgCode", WM_GETDLGCODE, 0},
                                         PlainMessage{"ButtonDown", WM_LBUTTONDOWN, MK_LBUTTON},
                                         PlainMessage{"DoubleClick", WM_LBUTTONDBLCLK, MK_LBUTTON},
                                         PlainMessage{"SettingsChange", WM_WININICHANGE, 0},
                                         PlainMessage{"Paint", WM_PAINT, 0}, PlainMessage{"User", WM_USER + 77, 0}),
                         RowName<PlainMessage>);

// A window of the class without a record takes every message as a plain edit does.
class MessageWithoutARecord : public testing::TestWithParam<UINT> {};

TEST_P(MessageWithoutARecord, IsSurvived)
{
    Form form;
    const HWND plain = CreateWindowExA(0, ZTEDIT_CLASS, "text", WS_CHILD | ES_AUTOHSCROLL, 0, 0, 100, 20, form.hwnd(),
                                       nullptr, nullptr, nullptr);
    ASSERT_NE(plain, nullptr);
    SendMessageA(plain, GetParam(), 0, 0);
    EXPECT_TRUE(IsWindow(plain));
    DestroyWindow(plain);
}

INSTANTIATE_TEST_SUITE_P(Messages, MessageWithoutARecord,
                         testing::Values(WM_MOVE, WM_SIZE, WM_SETFOCUS, WM_KILLFOCUS, WM_PAINT, WM_WININICHANGE,
                                         WM_SETFONT, WM_KEYDOWN, WM_KEYUP, WM_CHAR, WM_LBUTTONDOWN, WM_LBUTTONUP,
                                         WM_LBUTTONDBLCLK, WM_PASTE));

TEST(WindowClasses, TheControlIsAGlobalCopyOfTheEditClass)
{
    WNDCLASSA edit = {};
    WNDCLASSA control = {};
    ASSERT_TRUE(GetClassInfoA(nullptr, "edit", &edit));
    ASSERT_TRUE(GetClassInfoA(GetModuleHandleA("ztedit050.dll"), ZTEDIT_CLASS, &control));
    EXPECT_EQ(control.style, edit.style | CS_GLOBALCLASS);
    EXPECT_EQ(control.cbWndExtra, edit.cbWndExtra);
    EXPECT_EQ(control.cbClsExtra, edit.cbClsExtra);
    EXPECT_EQ(control.hCursor, edit.hCursor);
    EXPECT_EQ(control.hbrBackground, edit.hbrBackground);
}

TEST(WindowClasses, TheControlsProcedureIsTheExportedOne)
{
    WNDCLASSA control = {};
    ASSERT_TRUE(GetClassInfoA(GetModuleHandleA("ztedit050.dll"), ZTEDIT_CLASS, &control));
    const auto exported = GetProcAddress(GetModuleHandleA("ztedit050.dll"), "ZTE_SuperEditWndProc");
    EXPECT_EQ(reinterpret_cast<void*>(control.lpfnWndProc), reinterpret_cast<void*>(exported));
}

TEST(WindowClasses, TheSpinHasFourExtraBytesAndIsNotGlobal)
{
    WNDCLASSA spin = {};
    ASSERT_TRUE(GetClassInfoA(GetModuleHandleA("ztedit050.dll"), "spin", &spin));
    EXPECT_EQ(spin.style, 0u);
    EXPECT_EQ(spin.cbWndExtra, 4);
    EXPECT_EQ(spin.cbClsExtra, 0);
    EXPECT_EQ(spin.hIcon, nullptr);
    EXPECT_EQ(spin.hbrBackground, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    WNDCLASSA elsewhere = {};
    EXPECT_FALSE(GetClassInfoA(GetModuleHandleA(nullptr), "spin", &elsewhere));
}

// A second copy of the library under another name, which can be unloaded although this program is linked to the first.
// A class name for all modules can be registered once only, so the first gives its own up for the time.
class SecondLibrary : public testing::Test {
protected:
    void SetUp() override
    {
        const HMODULE first = GetModuleHandleA("ztedit050.dll");
        char path[MAX_PATH];
        GetModuleFileNameA(first, path, sizeof path);
        copy_ = path;
        copy_.insert(copy_.rfind('.'), "_second");
        ASSERT_TRUE(CopyFileA(path, copy_.c_str(), FALSE));
        ASSERT_TRUE(GetClassInfoA(first, ZTEDIT_CLASS, &firstClass_));
        firstClass_.hInstance = first;
        firstClass_.lpszClassName = ZTEDIT_CLASS;
        ASSERT_TRUE(UnregisterClassA(ZTEDIT_CLASS, first));
    }
    void TearDown() override
    {
        EXPECT_TRUE(RegisterClassA(&firstClass_));
        DeleteFileA(copy_.c_str());
    }

    std::string copy_;
    WNDCLASSA firstClass_ = {};
};

TEST_F(SecondLibrary, RegistersItsClassesEachTimeItIsLoaded)
{
    for (int time = 0; time < 3; ++time) {
        const HMODULE library = LoadLibraryA(copy_.c_str());
        ASSERT_NE(library, nullptr);
        for (const char* name : {ZTEDIT_CLASS, "spin"}) {
            WNDCLASSA info = {};
            EXPECT_TRUE(GetClassInfoA(library, name, &info)) << name;
        }
        FreeLibrary(library);
        for (const char* name : {ZTEDIT_CLASS, "spin"}) {
            WNDCLASSA info = {};
            EXPECT_FALSE(GetClassInfoA(library, name, &info)) << name;
        }
    }
}

class SpinPlacement : public EditTest {
protected:
    HWND MakeWithSpin(int height, Creation creation = Creation::ByClass)
    {
        Config config;
        config.mask = "####";
        config.type = DT_NUMBER;
        config.options = ZTEO_SPIN;
        config.style = WS_CHILD | ES_AUTOHSCROLL;
        config.height = height;
        Make(config, creation);
        return GetWindow(Window(), GW_CHILD);
    }
    RECT Client() const
    {
        RECT client;
        GetClientRect(Window(), &client);
        return client;
    }
    // Of the spin, in the control's client coordinates.
    RECT PlaceOf(HWND spin) const
    {
        RECT place;
        GetWindowRect(spin, &place);
        MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    static bool IsShown(HWND spin) { return (GetWindowLongPtrA(spin, GWL_STYLE) & WS_VISIBLE) != 0; }
};

TEST_F(SpinPlacement, TheSpinIsAnInvisibleChildOfTheSpinClassUntilASizeOrPaintComes)
{
    const HWND spin = MakeWithSpin(24, Creation::ByInit);
    ASSERT_NE(spin, nullptr);
    char name[20];
    GetClassNameA(spin, name, sizeof name);
    EXPECT_STREQ(name, "spin");
    EXPECT_EQ(GetParent(spin), Window());
    EXPECT_FALSE(IsShown(spin));
}

TEST_F(SpinPlacement, WithoutTheOptionThereIsNoSpin)
{
    Given("####", DT_NUMBER, "12|", ZTEO_AUTOSKIP);
    EXPECT_EQ(GetWindow(Window(), GW_CHILD), nullptr);
}

TEST_F(SpinPlacement, ResizingPlacesItAtTheRightEdge)
{
    const HWND spin = MakeWithSpin(24);
    SetWindowPos(Window(), nullptr, 0, 0, 180, 30, SWP_NOMOVE | SWP_NOZORDER);
    RECT client = Client();
    const int width = ZTE_GetSpinWidth(Window(), &client);
    const RECT place = PlaceOf(spin);
    EXPECT_EQ(place.left, client.right - width);
    EXPECT_EQ(place.right, client.right);
    EXPECT_EQ(place.top, client.top);
    EXPECT_EQ(place.bottom, client.bottom);
    EXPECT_TRUE(IsShown(spin));
}

TEST_F(SpinPlacement, ResizingToNothingLeavesItWhereItIs)
{
    const HWND spin = MakeWithSpin(24);
    SetWindowPos(Window(), nullptr, 0, 0, 180, 30, SWP_NOMOVE | SWP_NOZORDER);
    const RECT before = PlaceOf(spin);
    SetWindowPos(Window(), nullptr, 0, 0, 0, 30, SWP_NOMOVE | SWP_NOZORDER);
    const RECT after = PlaceOf(spin);
    EXPECT_TRUE(EqualRect(&before, &after));
}

TEST_F(SpinPlacement, PaintingShowsIt)
{
    const HWND spin = MakeWithSpin(24, Creation::ByInit);
    SendMessageA(Window(), WM_PAINT, 0, 0);
    EXPECT_TRUE(IsShown(spin));
}

TEST_F(SpinPlacement, ItGoesWithTheControl)
{
    const HWND spin = MakeWithSpin(24);
    control_.reset();
    EXPECT_FALSE(IsWindow(spin));
}

TEST_F(SpinPlacement, CodeOptionsWithoutTheSpinOptionMakeNoCodeTable)
{
    Config config;
    config.mask = "";
    config.type = DT_STRING;
    config.options = ZTEO_CODE_DISPLAY;
    config.codes = "Red\tR/Green\tG";
    Make(config);
    ZTE_FmtSetDataString(Window(), "R");
    EXPECT_EQ(Text(), "");
}

class FormatRect : public SpinPlacement {
protected:
    // How much of the client width the library keeps free of text.
    int ReserveAtHeight(int height)
    {
        MakeWithSpin(height);
        recorder_.Forget();
        ZTE_UtilSetFormatRect(Window());
        const std::vector<BaseMessage> set = recorder_.Of(EM_SETRECTNP);
        EXPECT_EQ(set.size(), 1u);
        return set.empty() ? -1 : static_cast<int>(Client().right - set[0].rect.right);
    }

    BaseRecorder recorder_;
};

TEST_F(FormatRect, OfALowControlReservesSevenPixels)
{
    EXPECT_EQ(ReserveAtHeight(6), 7);
}

TEST_F(FormatRect, OfAnOrdinaryControlReservesTwoThirdsOfTheHeight)
{
    EXPECT_EQ(ReserveAtHeight(15), 2 * 15 / 3 + 2);
}

TEST_F(FormatRect, OfATallControlReservesAScrollBar)
{
    EXPECT_EQ(ReserveAtHeight(200), GetSystemMetrics(SM_CXVSCROLL) + 2);
}

TEST_F(FormatRect, WithoutASpinIsLeftAlone)
{
    Given("####", DT_NUMBER, "12|");
    recorder_.Forget();
    ZTE_UtilSetFormatRect(Window());
    EXPECT_TRUE(recorder_.Of(EM_SETRECTNP).empty());
}

TEST_F(FormatRect, IsSetAgainWhenDataIsSet)
{
    MakeWithSpin(15);
    recorder_.Forget();
    ZTE_FmtSetDataString(Window(), "12");
    EXPECT_EQ(recorder_.Of(EM_SETRECTNP).size(), 2u);  // before the text and after it
}

}  // namespace
}  // namespace zttest
