// What the exports do for windows that are no controls, for no window, and without arguments.
#include "tests/support/live/window_test.h"

namespace zttest {
namespace {

// A plain window of the program's, no window at all, and a handle of none.
enum class Target { Form, Null, Stale };

class NoControl : public testing::TestWithParam<Target> {
protected:
    HWND It() const
    {
        constexpr uintptr_t kStaleHandle = 0x7ABC;
        switch (GetParam()) {
        case Target::Form: return form_.hwnd();
        case Target::Null: return nullptr;
        default: return reinterpret_cast<HWND>(kStaleHandle);
        }
    }
    // Nothing is done to the window either.
    void TearDown() override
    {
        EXPECT_EQ(TextOf(form_.hwnd()), "form");
        EXPECT_EQ(GetPropA(form_.hwnd(), "MAIN"), nullptr);
    }

    const Form form_;
};

TEST_P(NoControl, TakesNoMask)
{
    EXPECT_EQ(ZTE_FmtSetMask(It(), "##", DT_STRING), 1);
}

TEST_P(NoControl, HasNoDataType)
{
    EXPECT_EQ(ZTE_FmtGetDataType(It()), 0);
}

TEST_P(NoControl, TakesNoData)
{
    const double number = 1.0;
    EXPECT_EQ(ZTE_FmtSetData(It(), &number), 0);
    EXPECT_EQ(ZTE_FmtSetData(It(), nullptr), 0);
    EXPECT_EQ(ZTE_FmtSetDataString(It(), "1"), 0);
}

TEST_P(NoControl, FormatsAndReadsNothing)
{
    const double number = 1.0;
    EXPECT_EQ(ZTE_FmtFormatData(It(), &number), nullptr);
    EXPECT_EQ(ZTE_FmtFormatData(It(), nullptr), nullptr);
    EXPECT_EQ(ZTE_FmtGetData(It()), nullptr);
    EXPECT_EQ(ZTE_FmtUnformatData(It(), "1"), nullptr);
}

TEST_P(NoControl, HasNoSpinToSetUp)
{
    const RECT rect = {0, 0, 10, 30};
    ZTE_SetSpin(It(), 1, "1~2", "a\tb", SPINSTYLE_CODETABLE);
    ZTE_SetSpinBkColor(It(), 1);
    EXPECT_EQ(ZTE_GetSpinWidth(It(), &rect), 0);
}

TEST_P(NoControl, HasNoRange)
{
    const double one = 1.0;
    const double two = 2.0;
    DateTimeValue value = {7, 7, 7, 7, 7, 7, 7, 7};
    EXPECT_EQ(ZTE_SpinDateRange(It(), &value, "1999-01-02"), 1);
    EXPECT_EQ(ZTE_SpinRangeCompare(It(), &one, &two), 1);
    EXPECT_EQ(value.day, 7) << "nothing may be written";
}

std::string TargetName(const testing::TestParamInfo<Target>& info)
{
    constexpr const char* kNames[] = {"AForm", "NoWindow", "AHandleOfNone"};
    return kNames[static_cast<int>(info.param)];
}

INSTANTIATE_TEST_SUITE_P(Windows, NoControl, testing::Values(Target::Form, Target::Null, Target::Stale), TargetName);

class NullArguments : public WindowTest {};

TEST_F(NullArguments, OfTheRangeAreHarmless)
{
    Given("MM/DD/YY", DT_DATE, "|07/04/95");
    DateTimeValue value = {};
    EXPECT_EQ(ZTE_SpinDateRange(Window(), nullptr, "1999-01-02"), 1);
    EXPECT_EQ(ZTE_SpinDateRange(Window(), &value, nullptr), 1);
    EXPECT_EQ(ZTE_SpinRangeCompare(Window(), nullptr, &value), 0);
    EXPECT_EQ(ZTE_SpinRangeCompare(Window(), &value, nullptr), 0);
}

}  // namespace
}  // namespace zttest
