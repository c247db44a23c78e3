// What ZTE_SetSpin keeps, and the exports for the spin's width and colour.
#include <gtest/gtest.h>

#include "tests/spin/spin_test.h"

namespace zttest {
namespace {

class SpinSettings : public SpinTest {
protected:
    void SetUp() override { MakeSpin("##0", DT_NUMBER, "1~5", 1, "3"); }
    void Set(const char* range, uint32_t increment = 1, uint32_t style = 0)
    {
        ZTE_SetSpin(Window(), increment, range, nullptr, style);
        control_->AcceptHeap();
    }
    const zte::EditInstance& Record() const { return *RecordOf(Window()); }
};

TEST_F(SpinSettings, AnIncrementOfNothingIsOne)
{
    Set("1~5", 0);
    EXPECT_EQ(Record().spinIncrement, 1u);
    Set("1~5", 7);
    EXPECT_EQ(Record().spinIncrement, 7u);
}

struct Bounds {
    const char* name;
    const char* range;
    double minimum;
    double maximum;
};
void PrintTo(const Bounds& row, std::ostream* out)
{
    *out << row.name << " (" << row.range << ")";
}

class RangeText : public SpinSettings, public testing::WithParamInterface<Bounds> {};

TEST_P(RangeText, GivesTheBounds)
{
    Set(GetParam().range);
    EXPECT_EQ(Record().spinMin, GetParam().minimum);
    EXPECT_EQ(Record().spinMax, GetParam().maximum);
    EXPECT_STREQ(Record().spinRange, GetParam().range);
}

INSTANTIATE_TEST_SUITE_P(Texts, RangeText,
                         testing::Values(Bounds{"Both", "10~50", 10, 50}, Bounds{"MinimumAlone", "10", 10, 0},
                                         Bounds{"MinimumAndTilde", "10~", 10, 0}, Bounds{"MaximumAlone", "~50", 0, 50},
                                         Bounds{"ZeroAsMaximum", "5~0", 5, 0}, Bounds{"TildeAlone", "~", 0, 0},
                                         Bounds{"Empty", "", 0, 0}, Bounds{"Words", "a~b", 0, 0},
                                         Bounds{"Fractions", "-1.5~2.25", -1.5, 2.25},
                                         Bounds{"Exponents", "1e2~1e3", 100, 1000},
                                         Bounds{"SecondTildeEndsTheNumber", "1~2~3", 1, 2},
                                         Bounds{"BlanksBefore", " 1~ 2", 1, 2}),
                         RowName<Bounds>);

TEST_F(SpinSettings, NoRangeTextLeavesTheBounds)
{
    Set(nullptr);
    EXPECT_EQ(Record().spinMin, 1.0);
    EXPECT_EQ(Record().spinMax, 5.0);
    EXPECT_EQ(Record().spinRange, nullptr);
}

TEST_F(SpinSettings, TheCallersTextIsNotWrittenTo)
{
    // A text in memory that must not be written to would fault.
    void* page = VirtualAlloc(nullptr, 4096, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    ASSERT_NE(page, nullptr);
    lstrcpyA(static_cast<char*>(page), "1~9");
    DWORD before = 0;
    VirtualProtect(page, 4096, PAGE_READONLY, &before);
    Set(static_cast<const char*>(page));
    EXPECT_EQ(Record().spinMax, 9.0);
    VirtualFree(page, 0, MEM_RELEASE);
}

TEST_F(SpinSettings, ARangeOfDatesIsKeptAsText)
{
    MakeSpin("MM/DD/YYYY", DT_DATE, "2000-01-01~2000-12-31", 1, nullptr);
    EXPECT_STREQ(Record().spinRange, "2000-01-01~2000-12-31");
    EXPECT_EQ(Record().spinMin, 0.0);
    EXPECT_EQ(Record().spinMax, 0.0);
}

TEST_F(SpinSettings, StylesSetAndClearTheirFlags)
{
    Set("1~5", 1, SPINSTYLE_CODETABLE | SPINSTYLE_PICKLIST | 0x7);
    EXPECT_TRUE(HasFlag(zte::CODE_SPIN));
    EXPECT_TRUE(HasFlag(zte::CODE_PICKLIST));
    Set("1~5", 1, 0);
    EXPECT_FALSE(HasFlag(zte::CODE_SPIN));
    EXPECT_FALSE(HasFlag(zte::CODE_PICKLIST));
}

TEST_F(SpinSettings, ChangeNothingThatIsShown)
{
    form_.Forget();
    Set("20~30", 5);
    EXPECT_EQ(Text(), "3");
    EXPECT_TRUE(form_.Notifications().empty());
}

TEST_F(SpinSettings, ReplaceTheRangeWithoutLosingBlocks)
{
    const uint32_t before = SharedHeapBlockCount(control_->heap());
    for (int i = 0; i < 50; ++i)
        ZTE_SetSpin(Window(), 1, "100~200", nullptr, 0);
    EXPECT_EQ(SharedHeapBlockCount(control_->heap()), before);
}

struct Width {
    const char* name;
    LONG height;
    int width;
};
void PrintTo(const Width& row, std::ostream* out)
{
    *out << row.name;
}

class SpinWidth : public SpinTest, public testing::WithParamInterface<Width> {};

// The figures hold for a scroll bar of at least 20 pixels; a narrower one bounds them.
TEST_P(SpinWidth, FollowsTheHeight)
{
    MakeSpin("##0", DT_NUMBER, nullptr, 1, nullptr);
    const int bar = GetSystemMetrics(SM_CXVSCROLL) + 2;
    const int expected = GetParam().width > bar ? bar + bar % 2 : GetParam().width;
    const RECT rect = {3, 100, 4, 100 + GetParam().height};
    EXPECT_EQ(ZTE_GetSpinWidth(Window(), &rect), expected);
}

INSTANTIATE_TEST_SUITE_P(Heights, SpinWidth,
                         testing::Values(Width{"Nothing", 0, 8}, Width{"Seven", 7, 8}, Width{"Eight", 8, 8},
                                         Width{"Nine", 9, 8}, Width{"Fifteen", 15, 12}, Width{"Thirty", 30, 22},
                                         Width{"Negative", -40, 8}, Width{"Tall", 2000, 1000}),
                         RowName<Width>);

TEST_F(SpinSettings, TheWidthWithoutARectangleIsThatOfTheSpinWindow)
{
    RECT client{};
    GetClientRect(Spin(), &client);
    ASSERT_EQ(client.bottom, 20);
    EXPECT_EQ(ZTE_GetSpinWidth(Window(), nullptr), ZTE_GetSpinWidth(Window(), &client));
}

TEST_F(SpinSettings, TheWidthWithoutASpinIsTheSmallest)
{
    Given("##0", DT_NUMBER, "7|");
    EXPECT_EQ(ZTE_GetSpinWidth(Window(), nullptr), 8);
}

TEST_F(SpinSettings, TheColourIsKept)
{
    ZTE_SetSpinBkColor(Window(), RGB(1, 2, 3));
    EXPECT_EQ(Record().spinBkColor, RGB(1, 2, 3));
}

TEST_F(SpinSettings, WindowsThatAreNoControlsAreLeftAlone)
{
    for (const HWND window : {form_.hwnd(), static_cast<HWND>(nullptr), reinterpret_cast<HWND>(0x7ABC)}) {
        const RECT rect = {0, 0, 10, 30};
        ZTE_SetSpin(window, 1, "1~2", "a\tb", SPINSTYLE_CODETABLE);
        ZTE_SetSpinBkColor(window, 1);
        EXPECT_EQ(ZTE_GetSpinWidth(window, &rect), 0);
        EXPECT_EQ(GetPropA(window, "MAIN"), nullptr);
    }
}

}  // namespace
}  // namespace zttest
