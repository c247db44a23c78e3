// Stepping as only a spin's window can do it: by the mouse on its arrows, by its timer, and beside a window that moves;
// and the exports for its width and colour.
#include "tests/support/live/base_recorder.h"
#include "tests/support/live/spin_window_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

constexpr char kColours[] = "Red\tR/Green\tG/Blue\tB";

class StepByMouse : public SpinWindowTest {};

TEST_F(StepByMouse, CyclesThroughACodeTable)
{
    MakeCodeTable("XXXXXXXX", DT_STRING, kColours, SPINSTYLE_CODETABLE);
    PressArrow(Arrow::Up);
    Tick();
    Release();
    EXPECT_EQ(Text(), "Green");
    PressArrow(Arrow::Down);
    Release();
    EXPECT_EQ(Text(), "Red");
}

TEST_F(StepByMouse, DoesNothingWithTheStyleOfACodeTableAndWithoutATable)
{
    MakeCodeTable("XXXX", DT_STRING, nullptr, SPINSTYLE_CODETABLE);
    form_.Forget();
    PressArrow(Arrow::Down);
    Release();
    EXPECT_EQ(Changes(), 0);
    EXPECT_FALSE(HasFlag(zte::SPUN));
}

TEST_F(StepByMouse, IsRefusedByAReadOnlyControl)
{
    MakeSpin("##0", DT_NUMBER, nullptr, 1, "7");
    SendMessageA(Window(), EM_SETREADONLY, TRUE, 0);
    form_.Forget();
    PressArrow(Arrow::Up);
    Tick();
    Release();
    EXPECT_EQ(Text(), "7");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(StepByMouse, IsRefusedByADisabledControl)
{
    MakeSpin("##0", DT_NUMBER, nullptr, 1, "7");
    EnableWindow(Window(), FALSE);
    form_.Forget();
    PressArrow(Arrow::Down);
    Release();
    EXPECT_EQ(Text(), "7");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(StepByMouse, NeedsASpinThatWasSetUp)
{
    Given("##0", DT_NUMBER, "7|");
    ZTE_CreateSpin(Window());  // no range, no increment
    control_->AcceptHeap();
    form_.Forget();
    PressArrow(Arrow::Up);
    Release();
    EXPECT_EQ(Text(), "7");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(StepByMouse, NotifiesInTheNameOfTheControl)
{
    MakeSpin("##0", DT_NUMBER, nullptr, 1, "7");
    form_.Forget();
    PressArrow(Arrow::Up);
    Release();
    ASSERT_FALSE(form_.Notifications().empty());
    EXPECT_EQ(form_.Notifications().back(), (Notification{EN_CHANGE, control_->id(), Window()}));
}

TEST_F(StepByMouse, OfACodeTableGoesOnFromTheEntryShownWhenTheControlWasMoved)
{
    MakeCodeTable("XXXXXXXX", DT_STRING, kColours, SPINSTYLE_CODETABLE);
    ZTE_FmtSetData(Window(), "G");
    SetWindowPos(Window(), nullptr, 30, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_FALSE(HasFlag(zte::CODE_POSITIONED));
    Up();
    EXPECT_EQ(Text(), "Blue");
}

TEST_F(StepByMouse, SetsTheModifiedFlag)
{
    MakeSpin("##0", DT_NUMBER, "1~9", 1, "8");
    PressArrow(Arrow::Up);
    EXPECT_NE(SendMessageA(Window(), EM_GETMODIFY, 0, 0), 0);
    ZTE_FmtSetDataString(Window(), "8");
    EXPECT_EQ(SendMessageA(Window(), EM_GETMODIFY, 0, 0), 0);
    Tick();
    EXPECT_NE(SendMessageA(Window(), EM_GETMODIFY, 0, 0), 0);
    SendMessageA(Window(), EM_SETMODIFY, FALSE, 0);
    Tick();  // refused: the maximum is shown
    EXPECT_EQ(SendMessageA(Window(), EM_GETMODIFY, 0, 0), 0);
    Release();
}

TEST_F(StepByMouse, OfATextWithoutAMaskMovesNothing)
{
    MakeSpin("", DT_STRING, nullptr, 1, "abcd");
    control_->Select(1, 3);
    form_.Forget();
    PressArrow(Arrow::Up);
    Release();
    EXPECT_EQ(Shown(), "a[bc]d");
    EXPECT_EQ(Changes(), 1);
}

// While the mouse is outside the spin the timer steps with neither direction.
struct OutsideCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* codes;  // null: no code table
    const char* from;   // null: nothing shown
    const char* shown;  // after one step down by the press and one without direction by the tick
};
void PrintTo(const OutsideCase& row, std::ostream* out)
{
    *out << row.name;
}

class StepWithoutDirection : public SpinWindowTest, public OfRow<OutsideCase> {};

ROW_TEST(StepWithoutDirection, LeadsTo)
{
    const OutsideCase& row = GetParam();
    if (row.codes)
        MakeCodeTable(row.mask, row.type, row.codes, SPINSTYLE_CODETABLE);
    else
        MakeSpin(row.mask, row.type, nullptr, 1, nullptr);
    if (row.from)
        Show(row.from);
    PressArrow(Arrow::Down);
    MouseAt(WM_MOUSEMOVE, {-50, -50});
    Tick();
    Release();
    EXPECT_EQ(Text(), row.shown);
}

const OutsideCase kOutsideRows[] = {
    {"MovesTheYearUpward",      "MM/DD/YYYY", DT_DATE,   nullptr,          "07/04/|1995", "07/04/1995"},
    {"LeavesEveryOtherField",   "MM/DD/YYYY", DT_DATE,   nullptr,          "07/|04/1995", "07/03/1995"},
    {"MovesANumberUpward",      "##0",        DT_NUMBER, nullptr,          "|7",          "7"         },
    {"MovesACodeTableBackward", "XXXX",       DT_STRING, "a\t1/b\t2/c\t3", nullptr,       "b"         },
};
TEST_ROWS(Fields, StepWithoutDirection, kOutsideRows);

// Turning redrawing on would show the control.
struct HiddenStep {
    const char* name;
    const char* mask;
    int32_t type;
    const char* data;
};
void PrintTo(const HiddenStep& row, std::ostream* out)
{
    *out << row.name;
}

class StepOfAHiddenControl : public SpinWindowTest, public OfRow<HiddenStep> {};

ROW_TEST(StepOfAHiddenControl, LeavesRedrawingAlone)
{
    Config config;
    config.mask = GetParam().mask;
    config.type = GetParam().type;
    config.data = GetParam().data;
    config.options = ZTEO_SPIN;
    config.increment = 1;
    config.style = WS_CHILD | ES_AUTOHSCROLL;
    Make(config);
    const BaseRecorder recorder;
    Up();
    EXPECT_TRUE(recorder.Of(WM_SETREDRAW).empty());
    EXPECT_EQ(GetWindowLongA(Window(), GWL_STYLE) & WS_VISIBLE, 0);
}

const HiddenStep kHiddenSteps[] = {
    {"Number",   "##0",            DT_NUMBER,   "7"               },
    {"Decimal",  "##0",            DT_DECIMAL,  "7"               },
    {"Date",     "MM/DD/YY",       DT_DATE,     "1995-07-04"      },
    {"Time",     "HH:MM",          DT_TIME,     "10:20"           },
    {"DateTime", "MM/DD/YY HH:MM", DT_DATETIME, "1995-07-04 10:20"},
    {"String",   "AAAA",           DT_STRING,   "abcd"            },
};
TEST_ROWS(Types, StepOfAHiddenControl, kHiddenSteps);

struct Width {
    const char* name;
    LONG height;
    int width;
};
void PrintTo(const Width& row, std::ostream* out)
{
    *out << row.name;
}

class SpinWidth : public SpinWindowTest, public OfRow<Width> {};

// The figures hold for a scroll bar of at least 20 pixels; a narrower one bounds them.
ROW_TEST(SpinWidth, FollowsTheHeight)
{
    MakeSpin("##0", DT_NUMBER, nullptr, 1, nullptr);
    const int bar = GetSystemMetrics(SM_CXVSCROLL) + 2;
    const int expected = GetParam().width > bar ? bar + bar % 2 : GetParam().width;
    const RECT rect = {3, 100, 4, 100 + GetParam().height};
    EXPECT_EQ(ZTE_GetSpinWidth(Window(), &rect), expected);
}

TEST_ROWS_OF(Heights, SpinWidth, Width{"Nothing", 0, 8}, Width{"Seven", 7, 8}, Width{"Eight", 8, 8},
             Width{"Nine", 9, 8}, Width{"Fifteen", 15, 12}, Width{"Thirty", 30, 22}, Width{"Negative", -40, 8},
             Width{"Tall", 2000, 1000});

class SpinExports : public SpinWindowTest {
protected:
    void SetUp() override { MakeSpin("##0", DT_NUMBER, "1~5", 1, "3"); }
};

TEST_F(SpinExports, TheWidthWithoutARectangleIsThatOfTheSpinWindow)
{
    RECT client{};
    GetClientRect(Spin(), &client);
    ASSERT_EQ(client.bottom, 20);
    EXPECT_EQ(ZTE_GetSpinWidth(Window(), nullptr), ZTE_GetSpinWidth(Window(), &client));
}

TEST_F(SpinExports, TheWidthWithoutASpinIsTheSmallest)
{
    Given("##0", DT_NUMBER, "7|");
    EXPECT_EQ(ZTE_GetSpinWidth(Window(), nullptr), 8);
}

TEST_F(SpinExports, TheColourIsKept)
{
    ZTE_SetSpinBkColor(Window(), RGB(1, 2, 3));
    EXPECT_EQ(RecordOf(Window())->spinBkColor, RGB(1, 2, 3));
}

// A text in memory that must not be written to would fault.
TEST_F(SpinExports, TheCallersRangeTextIsNotWrittenTo)
{
    void* page = VirtualAlloc(nullptr, 4096, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    ASSERT_NE(page, nullptr);
    lstrcpyA(static_cast<char*>(page), "1~9");
    DWORD before = 0;
    VirtualProtect(page, 4096, PAGE_READONLY, &before);
    ZTE_SetSpin(Window(), 1, static_cast<const char*>(page), nullptr, 0);
    control_->AcceptHeap();
    EXPECT_EQ(RecordOf(Window())->spinMax, 9.0);
    VirtualFree(page, 0, MEM_RELEASE);
}

}  // namespace
}  // namespace zttest
