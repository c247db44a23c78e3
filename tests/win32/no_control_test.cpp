// What the exports do for windows that are no controls, for no window, and without arguments.
#include "tests/support/live/window_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

// A plain window of the program's, no window at all, and a handle of none.
enum class Target { Form, Null, Stale, Edit, Desktop };

class NoControl : public RowTest<Target> {
protected:
    HWND It() const
    {
        constexpr uintptr_t kStaleHandle = 0x7ABC;
        switch (GetParam()) {
        case Target::Form: return form_.hwnd();
        case Target::Null: return nullptr;
        case Target::Edit: return edit_;
        case Target::Desktop: return GetDesktopWindow();
        default: return reinterpret_cast<HWND>(kStaleHandle);
        }
    }
    // Nothing is done to the window either.
    void TearDown() override
    {
        EXPECT_EQ(TextOf(form_.hwnd()), "form");
        EXPECT_EQ(TextOf(edit_), "");
        EXPECT_EQ(GetPropA(It(), "MAIN"), nullptr);
        EXPECT_EQ(GetPropA(form_.hwnd(), "MAIN"), nullptr);
    }

    const Form form_;
    const HWND edit_ = CreateWindowExA(0, "edit", "", WS_CHILD, 0, 0, 50, 20, form_.hwnd(), nullptr, nullptr, nullptr);
};

ROW_TEST(NoControl, TakesNoMask)
{
    EXPECT_EQ(ZTE_FmtSetMask(It(), "##", DT_STRING), 1);
}

ROW_TEST(NoControl, IsNotConfigured)
{
    const SharedHeap heap = SharedHeapCreate();
    EditInitParams params = {};
    params.heap = heap;
    params.maskText = "MM/DD/YY";
    params.dataType = DT_DATE;
    params.initialData = "1995-07-04";
    params.options = ZTEO_SPIN;
    EXPECT_EQ(ZTE_Init(It(), &params), 0);
    EXPECT_EQ(SharedHeapBlockCount(heap), 0u);
    SharedHeapDestroy(heap);
    EXPECT_EQ(ZTE_FmtGetDataType(It()), 0);
}

ROW_TEST(NoControl, HasNoDataType)
{
    EXPECT_EQ(ZTE_FmtGetDataType(It()), 0);
}

ROW_TEST(NoControl, TakesNoData)
{
    const double number = 1.0;
    EXPECT_EQ(ZTE_FmtSetData(It(), &number), 0);
    EXPECT_EQ(ZTE_FmtSetData(It(), nullptr), 0);
    EXPECT_EQ(ZTE_FmtSetDataString(It(), "1"), 0);
}

ROW_TEST(NoControl, FormatsAndReadsNothing)
{
    const double number = 1.0;
    EXPECT_EQ(ZTE_FmtFormatData(It(), &number), nullptr);
    EXPECT_EQ(ZTE_FmtFormatData(It(), nullptr), nullptr);
    EXPECT_EQ(ZTE_FmtGetData(It()), nullptr);
    EXPECT_EQ(ZTE_FmtUnformatData(It(), "1"), nullptr);
}

ROW_TEST(NoControl, HasNoSpinToSetUp)
{
    const RECT rect = {0, 0, 10, 30};
    ZTE_SetSpin(It(), 1, "1~2", "a\tb", SPINSTYLE_CODETABLE);
    ZTE_SetSpinBkColor(It(), 1);
    EXPECT_EQ(ZTE_GetSpinWidth(It(), &rect), 0);
}

ROW_TEST(NoControl, HasNoRange)
{
    const double one = 1.0;
    const double two = 2.0;
    DateTimeValue value = {7, 7, 7, 7, 7, 7, 7, 7};
    EXPECT_EQ(ZTE_SpinDateRange(It(), &value, "1999-01-02"), 1);
    EXPECT_EQ(ZTE_SpinRangeCompare(It(), &one, &two), 1);
    EXPECT_EQ(value.day, 7) << "nothing may be written";
}

std::string TargetName(const Target& target)
{
    constexpr const char* kNames[] = {"AForm", "NoWindow", "AHandleOfNone", "AnEdit", "TheDesktop"};
    return kNames[static_cast<int>(target)];
}

TEST_ROWS_NAMED(Windows, NoControl, TargetName,
                std::vector{Target::Form, Target::Null, Target::Stale, Target::Edit, Target::Desktop});

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
