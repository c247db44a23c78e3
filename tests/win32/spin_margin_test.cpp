// The text and the caret stand clear of the spin, and the margins are the host's as far as the host can see.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/live/base_recorder.h"
#include "tests/support/live/window_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

constexpr char kShort[] = "12345";
const std::string kLong(120, 'W');

enum class SpinBy { Class, Init, Subclassing, CreateSpin };

struct Alignment {
    const char* name;
    uint32_t style;
    SpinBy by;
};
void PrintTo(const Alignment& row, std::ostream* out)
{
    *out << row.name;
}

class SpinMarginTest : public WindowTest {
protected:
    void MakeText(uint32_t style, SpinBy by, int width = 150, int height = 24)
    {
        Config config;
        config.mask = "";
        config.data = kShort;
        config.options = by == SpinBy::CreateSpin ? 0 : ZTEO_SPIN;
        config.increment = 1;
        config.style = WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL | style;
        config.width = width;
        config.height = height;
        const bool byClass = by == SpinBy::Class || by == SpinBy::CreateSpin;
        Make(config, byClass ? Creation::ByClass : by == SpinBy::Init ? Creation::ByInit : Creation::BySubclassing);
        if (by == SpinBy::CreateSpin)
            ZTE_CreateSpin(Window());
        control_->AcceptHeap();
        SetFocus(Window());
    }

    HWND Spin() const { return GetWindow(Window(), GW_CHILD); }
    RECT Client() const
    {
        RECT client;
        GetClientRect(Window(), &client);
        return client;
    }
    // Where the arrows begin; a spin that has not been painted yet has no place of its own.
    int SpinLeft() const
    {
        RECT place;
        GetWindowRect(Spin(), &place);
        MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&place), 2);
        const RECT client = Client();
        return place.right > place.left ? static_cast<int>(place.left)
                                        : static_cast<int>(client.right) - ZTE_GetSpinWidth(Window(), &client);
    }
    int CaretX() const
    {
        POINT caret{};
        GetCaretPos(&caret);
        return static_cast<int>(caret.x);
    }
    // The left edge of a character.
    int XOf(int position) const
    {
        const LRESULT point = Send(EM_POSFROMCHAR, static_cast<WPARAM>(position));
        return static_cast<int16_t>(LOWORD(point));
    }
    void ShowEndOf(const std::string& text)
    {
        SetWindowTextA(Window(), text.c_str());
        Press(VK_END);
    }
    void ExpectClear(const std::string& what) const
    {
        const int last = static_cast<int>(Text().size()) - 1;
        EXPECT_LT(CaretX(), SpinLeft()) << what;
        EXPECT_GT(CaretX(), 0) << what;
        EXPECT_LT(XOf(last), CaretX()) << what << ": the caret stands behind the last character";
    }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return SendMessageA(Window(), message, wParam, lParam);
    }
    int LeftMargin() const { return LOWORD(Send(EM_GETMARGINS)); }
    int RightMargin() const { return HIWORD(Send(EM_GETMARGINS)); }
    void SetRightMargin(int pixels) const { Send(EM_SETMARGINS, EC_RIGHTMARGIN, MAKELPARAM(0, pixels)); }

    // As the edit control underneath has it.
    int RealRightMargin() const
    {
        WNDCLASSA edit{};
        GetClassInfoA(nullptr, "edit", &edit);
        return HIWORD(CallWindowProcA(edit.lpfnWndProc, Window(), EM_GETMARGINS, 0, 0));
    }
    int Strip() const { return RealRightMargin() - RightMargin(); }
    // The spin's width and that of the caret behind the text.
    int StripWanted() const
    {
        const RECT client = Client();
        return ZTE_GetSpinWidth(Window(), &client) + 1;
    }
};

class TextBesideSpin : public SpinMarginTest, public OfRow<Alignment> {
protected:
    void SetUp() override { MakeText(GetParam().style, GetParam().by); }
    void ExpectAllClear(const std::string& what)
    {
        ShowEndOf(kShort);
        ExpectClear(what + ", short");
        ShowEndOf(kLong);
        ExpectClear(what + ", long");
        Type("WWW");
        ExpectClear(what + ", typed");
    }
};

ROW_TEST(TextBesideSpin, IsClearOfTheArrows)
{
    ExpectAllClear("created");
}

ROW_TEST(TextBesideSpin, IsClearWithDataSet)
{
    ZTE_FmtSetDataString(Window(), kLong.c_str());
    Press(VK_END);
    ExpectClear("long");
}

ROW_TEST(TextBesideSpin, StaysClearWhenTheControlIsResized)
{
    for (const int height : {30, 16, 40, 8}) {
        SetWindowPos(Window(), nullptr, 0, 0, 100 + height, height, SWP_NOMOVE | SWP_NOZORDER);
        ExpectAllClear("height " + std::to_string(height));
        EXPECT_EQ(Strip(), StripWanted());
    }
}

ROW_TEST(TextBesideSpin, KeepsItsCaretInViewWhenTheControlIsResized)
{
    ShowEndOf(kLong);
    for (const int width : {100, 130, 60}) {
        SetWindowPos(Window(), nullptr, 0, 0, width, 24, SWP_NOMOVE | SWP_NOZORDER);
        ExpectClear("width " + std::to_string(width));
    }
}

ROW_TEST(TextBesideSpin, StaysClearUnderAnotherFont)
{
    for (const int font : {ANSI_FIXED_FONT, DEFAULT_GUI_FONT, SYSTEM_FONT}) {
        Send(WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(font)), TRUE);
        ExpectAllClear("font " + std::to_string(font));
    }
}

ROW_TEST(TextBesideSpin, StaysClearBesideTheHostsMargin)
{
    SetRightMargin(11);
    ExpectAllClear("with a margin");
    ShowEndOf(kLong);
    EXPECT_LE(CaretX(), SpinLeft() - 11);
    Send(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(EC_USEFONTINFO, EC_USEFONTINFO));
    ExpectAllClear("with the font's margin");
    Send(EM_SETMARGINS, EC_USEFONTINFO, MAKELPARAM(2, 3));
    ExpectAllClear("with all margins");
}

ROW_TEST(TextBesideSpin, TakesTheWholeWidthWithoutIt)
{
    const int beside = RealRightMargin();
    ZTE_DestroySpin(Window());
    EXPECT_LT(RealRightMargin(), beside);
    EXPECT_EQ(RealRightMargin(), RightMargin());
    ZTE_FmtSetDataString(Window(), kShort);
    EXPECT_EQ(RealRightMargin(), RightMargin());
    if (GetParam().style & ES_RIGHT) {
        ShowEndOf(kShort);
        EXPECT_GE(CaretX(), Client().right - RightMargin() - 3);
    }
    control_->AcceptHeap();
}

constexpr Alignment kAlignments[] = {
    {"Left",                   0,                     SpinBy::Class      },
    {"Right",                  ES_RIGHT,              SpinBy::Class      },
    {"Centred",                ES_CENTER,             SpinBy::Class      },
    {"LeftInABorder",          WS_BORDER,             SpinBy::Class      },
    {"RightInABorder",         WS_BORDER | ES_RIGHT,  SpinBy::Class      },
    {"CentredInABorder",       WS_BORDER | ES_CENTER, SpinBy::Class      },
    {"LeftByInit",             0,                     SpinBy::Init       },
    {"RightByInit",            ES_RIGHT,              SpinBy::Init       },
    {"CentredByInit",          ES_CENTER,             SpinBy::Init       },
    {"LeftSubclassed",         0,                     SpinBy::Subclassing},
    {"RightSubclassed",        ES_RIGHT,              SpinBy::Subclassing},
    {"LeftWithALaterSpin",     0,                     SpinBy::CreateSpin },
    {"RightWithALaterSpin",    ES_RIGHT,              SpinBy::CreateSpin },
    {"CentredWithALaterSpin",  ES_CENTER,             SpinBy::CreateSpin },
    {"PasswordWithALaterSpin", ES_PASSWORD,           SpinBy::CreateSpin },
};
TEST_ROWS(Alignments, TextBesideSpin, kAlignments);

class HostMargin : public SpinMarginTest {};

TEST_F(HostMargin, IsWhatTheHostHasSet)
{
    MakeText(0, SpinBy::Class);
    EXPECT_EQ(Strip(), StripWanted());
    Send(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(5, 9));
    EXPECT_EQ(LeftMargin(), 5);
    EXPECT_EQ(RightMargin(), 9);
    EXPECT_EQ(RealRightMargin(), 9 + StripWanted());
    Send(EM_SETMARGINS, EC_LEFTMARGIN, MAKELPARAM(7, 99));
    EXPECT_EQ(LeftMargin(), 7);
    EXPECT_EQ(RightMargin(), 9);
    EXPECT_EQ(Strip(), StripWanted());
}

TEST_F(HostMargin, CanBeReadAndSetAgainWithoutGrowing)
{
    MakeText(0, SpinBy::Class);
    SetRightMargin(9);
    for (int i = 0; i < 5; ++i)
        Send(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, Send(EM_GETMARGINS));
    EXPECT_EQ(RightMargin(), 9);
    EXPECT_EQ(Strip(), StripWanted());
}

TEST_F(HostMargin, SetBeforeTheSpinStays)
{
    MakeText(ES_RIGHT, SpinBy::CreateSpin);
    ZTE_DestroySpin(Window());
    SetRightMargin(13);
    ZTE_CreateSpin(Window());
    EXPECT_EQ(RightMargin(), 13);
    EXPECT_EQ(RealRightMargin(), 13 + StripWanted());
    ZTE_DestroySpin(Window());
    EXPECT_EQ(RealRightMargin(), 13);
    control_->AcceptHeap();
}

TEST_F(HostMargin, SetWhileThereIsASpinStaysWithoutIt)
{
    MakeText(0, SpinBy::Class);
    SetRightMargin(13);
    ZTE_DestroySpin(Window());
    EXPECT_EQ(RightMargin(), 13);
    EXPECT_EQ(RealRightMargin(), 13);
    control_->AcceptHeap();
}

TEST_F(HostMargin, ComesBackWhenTheHostDestroysTheSpinsWindow)
{
    MakeText(0, SpinBy::Class);
    SetRightMargin(13);
    DestroyWindow(Spin());
    EXPECT_EQ(RealRightMargin(), 13);
    control_->AcceptHeap();
}

TEST_F(HostMargin, StaysWhenTheControlIsConfiguredAnew)
{
    MakeText(0, SpinBy::Class);
    SetRightMargin(13);
    EditInitParams params{};
    params.heap = control_->heap();
    params.maskText = "##0";
    params.dataType = DT_NUMBER;
    params.options = ZTEO_SPIN;
    params.spinIncrement = 1;
    ZTE_Init(Window(), &params);
    EXPECT_EQ(RightMargin(), 13);
    EXPECT_EQ(RealRightMargin(), 13 + StripWanted());
    params.options = 0;
    ZTE_Init(Window(), &params);
    EXPECT_EQ(RightMargin(), 13);
    EXPECT_EQ(RealRightMargin(), 13);
    control_->AcceptHeap();
}

// What the edit control makes of a font, or of EC_USEFONTINFO, is the same with a spin and without.
TEST_F(HostMargin, GoesWithTheFontAsInAnEditWithoutASpin)
{
    const HFONT font = CreateFontA(-17, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, ANSI_CHARSET, OUT_TT_PRECIS,
                                   CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, "Tahoma");
    LRESULT margins[2][3];
    for (const bool withSpin : {false, true}) {
        MakeText(0, SpinBy::Class);
        if (!withSpin)
            ZTE_DestroySpin(Window());
        control_->AcceptHeap();
        LRESULT* seen = margins[withSpin];
        SetRightMargin(21);
        Send(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
        seen[0] = Send(EM_GETMARGINS);
        Send(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(EC_USEFONTINFO, EC_USEFONTINFO));
        seen[1] = Send(EM_GETMARGINS);
        Send(EM_SETMARGINS, EC_USEFONTINFO, MAKELPARAM(4, 6));
        seen[2] = Send(EM_GETMARGINS);
        EXPECT_EQ(Strip(), withSpin ? StripWanted() : 0);
        Send(WM_SETFONT, 0, FALSE);
    }
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(margins[true][i], margins[false][i]) << i;
    DeleteObject(font);
}

TEST_F(HostMargin, OfManyLinesHoldsNoStrip)
{
    MakeText(ES_MULTILINE, SpinBy::Class, 150, 60);
    EXPECT_EQ(Strip(), 0);
    RECT format{};
    Send(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&format));
    EXPECT_LE(format.right, SpinLeft() + 1) << "the formatting rectangle keeps the text off";
}

TEST_F(HostMargin, IsNotSetAgainByTypingSteppingAndData)
{
    BaseRecorder recorder;
    Config config;
    config.mask = "#,##0.00";
    config.type = DT_NUMBER;
    config.options = ZTEO_SPIN;
    config.increment = 1;
    config.style = WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL | ES_RIGHT;
    Make(config);
    recorder.Forget();
    Type("12.5");
    Press(VK_UP);
    ZTE_FmtSetDataString(Window(), "3");
    ZTE_UtilSetFormatRect(Window());
    SetWindowPos(Window(), nullptr, 0, 0, 170, 20, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_TRUE(recorder.Of(EM_SETMARGINS).empty());
}

TEST_F(HostMargin, WithoutASpinIsLeftToTheEdit)
{
    Given("##0", DT_NUMBER, "7|");
    SetRightMargin(13);
    EXPECT_EQ(RightMargin(), 13);
    EXPECT_EQ(RealRightMargin(), 13);
}

}  // namespace
}  // namespace zttest
