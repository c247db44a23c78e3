// The life of a control's record: made, found by the property "MAIN", and given back.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "tests/support/live/window_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

constexpr const char* kProperty = "MAIN";

Config DateConfig()
{
    Config config;
    config.mask = "MM/DD/YY";
    config.type = DT_DATE;
    config.data = "1995-07-04";
    return config;
}

class CreationWay : public WindowTest, public OfRow<Creation> {};

ROW_TEST(CreationWay, ShowsTheInitialData)
{
    Make(DateConfig(), GetParam());
    EXPECT_EQ(Text(), "07/04/95");
}

ROW_TEST(CreationWay, TakesTyping)
{
    Make(DateConfig(), GetParam());
    PutCaret(0);
    Type("12");
    EXPECT_EQ(Shown(), "12/|04/95");
}

ROW_TEST(CreationWay, ReadsTheValueBack)
{
    Make(DateConfig(), GetParam());
    EXPECT_EQ(Value(), "1995-07-04");
}

ROW_TEST(CreationWay, NotifiesTheParent)
{
    Config config = DateConfig();
    config.options = ZTEO_AUTOSKIP;
    Make(config, GetParam());
    PutCaret(7);
    Type("6");
    EXPECT_EQ(Skips(), 1);
}

ROW_TEST(CreationWay, AttachesTheProperty)
{
    Make(DateConfig(), GetParam());
    EXPECT_NE(GetPropA(Window(), kProperty), nullptr);
}

ROW_TEST(CreationWay, KnowsItsDataType)
{
    Make(DateConfig(), GetParam());
    EXPECT_EQ(ZTE_FmtGetDataType(Window()), DT_DATE);
}

ROW_TEST(CreationWay, WithoutInitialDataShowsTheEmptyValue)
{
    Config config = DateConfig();
    config.data = nullptr;
    Make(config, GetParam());
    EXPECT_EQ(Text(), "00/00/00");
}

ROW_TEST(CreationWay, OptionBitsAboveTheLowestByteAreNotRead)
{
    Config config = DateConfig();
    config.options = 0xFFFFFF00u;
    Make(config, GetParam());
    PutCaret(7);
    Type("6");
    EXPECT_EQ(Skips(), 0);
    EXPECT_EQ(GetWindow(Window(), GW_CHILD), nullptr);
}

std::string CreationName(const Creation& creation)
{
    constexpr const char* kNames[] = {"ByClass", "ByInit", "BySubclassing"};
    return kNames[static_cast<int>(creation)];
}

TEST_ROWS_NAMED(Ways, CreationWay, CreationName,
                std::vector{Creation::ByClass, Creation::ByInit, Creation::BySubclassing});

class Record : public WindowTest {};

TEST_F(Record, GoesWithTheWindow)
{
    const SharedHeap heap = SharedHeapCreate();
    EditInitParams params = {};
    params.heap = heap;
    params.dataType = DT_STRING;
    const HWND hwnd =
        CreateWindowExA(0, ZTEDIT_CLASS, "", WS_CHILD, 0, 0, 100, 20, form_.hwnd(), nullptr, nullptr, &params);
    const uint32_t alive = SharedHeapBlockCount(heap);
    DestroyWindow(hwnd);
    EXPECT_EQ(SharedHeapBlockCount(heap), alive - 1);
    SharedHeapDestroy(heap);
}

TEST_F(Record, StringsStayInTheHeapOfTheHost)
{
    const SharedHeap heap = SharedHeapCreate();
    EditInitParams params = {};
    params.heap = heap;
    params.dataType = DT_DATE;
    params.maskText = "MM/DD/YY";
    DestroyWindow(
        CreateWindowExA(0, ZTEDIT_CLASS, "", WS_CHILD, 0, 0, 100, 20, form_.hwnd(), nullptr, nullptr, &params));
    EXPECT_EQ(SharedHeapBlockCount(heap), 1u);  // the mask
    SharedHeapDestroy(heap);
}

TEST_F(Record, ParametersAreOnlyRead)
{
    const SharedHeap heap = SharedHeapCreate();
    EditInitParams params = {};
    params.heap = heap;
    params.dataType = DT_DATE;
    params.maskText = "[nothing]";
    params.initialData = "1995-07-04";
    params.options = ZTEO_AUTOSKIP;
    const EditInitParams before = params;
    DestroyWindow(
        CreateWindowExA(0, ZTEDIT_CLASS, "", WS_CHILD, 0, 0, 100, 20, form_.hwnd(), nullptr, nullptr, &params));
    EXPECT_EQ(std::memcmp(&before, &params, sizeof params), 0);
    SharedHeapDestroy(heap);
}

TEST_F(Record, MaskAndDataMayBeOverwrittenAfterCreation)
{
    char mask[] = "MM/DD/YY";
    char data[] = "1995-07-04";
    Config config;
    config.mask = mask;
    config.type = DT_DATE;
    config.data = data;
    Make(config);
    std::memset(mask, 'x', sizeof mask - 1);
    std::memset(data, 'x', sizeof data - 1);
    PutCaret(0);
    Type("12");
    EXPECT_EQ(Shown(), "12/|04/95");
}

TEST_F(Record, ASecondInitConfiguresTheControlAnew)
{
    Make(DateConfig());
    EditInitParams params = {};
    params.heap = control_->heap();
    params.dataType = DT_NUMBER;
    params.maskText = "#,##0.00";
    params.initialData = "12.5";
    ZTE_Init(Window(), &params);
    EXPECT_EQ(Text(), "12.50");
    EXPECT_EQ(ZTE_FmtGetDataType(Window()), DT_NUMBER);
    control_->AcceptHeap();
}

TEST_F(Record, ASecondInitInAnotherHeapOutlivesTheFirstHeap)
{
    const HWND hwnd =
        CreateWindowExA(0, ZTEDIT_CLASS, "", WS_CHILD, 0, 0, 100, 20, form_.hwnd(), nullptr, nullptr, nullptr);
    const SharedHeap first = SharedHeapCreate();
    const SharedHeap second = SharedHeapCreate();
    EditInitParams params = {};
    params.dataType = DT_DATE;
    params.maskText = "MM/DD/YY";
    params.heap = first;
    ZTE_Init(hwnd, &params);
    params.heap = second;
    ZTE_Init(hwnd, &params);
    SharedHeapDestroy(first);
    ZTE_FmtSetDataString(hwnd, "1995-07-04");
    EXPECT_EQ(TextOf(hwnd), "07/04/95");
    DestroyWindow(hwnd);
    SharedHeapDestroy(second);
}

TEST_F(Record, ASecondInitDoesNotAddASecondSpin)
{
    Config config;
    config.mask = "####";
    config.type = DT_NUMBER;
    config.options = ZTEO_SPIN;
    Make(config);
    EditInitParams params = {};
    params.heap = control_->heap();
    params.dataType = DT_NUMBER;
    params.maskText = "####";
    params.options = ZTEO_SPIN;
    ZTE_Init(Window(), &params);
    const HWND spin = GetWindow(Window(), GW_CHILD);
    ASSERT_NE(spin, nullptr);
    EXPECT_EQ(GetWindow(spin, GW_HWNDNEXT), nullptr);
    control_->AcceptHeap();
}

TEST_F(Record, WithoutAPropertyTheExportsDoNothing)
{
    Make(DateConfig());
    const HANDLE property = RemovePropA(Window(), kProperty);
    ZTE_FmtSetDataString(Window(), "2001-12-31");
    EXPECT_EQ(Text(), "07/04/95");
    EXPECT_EQ(ZTE_FmtGetDataType(Window()), 0);
    EXPECT_EQ(ZTE_FmtGetData(Window()), nullptr);
    SetPropA(Window(), kProperty, property);
}

TEST_F(Record, WithoutAPropertyTheControlIsAPlainEdit)
{
    Make(DateConfig());
    const HANDLE property = RemovePropA(Window(), kProperty);
    PutCaret(0);
    Type("x");
    EXPECT_EQ(Shown(), "x|07/04/95");
    SetPropA(Window(), kProperty, property);
}

TEST_F(Record, WithoutAPropertyTheNextKeySeesItAlsoAfterAPaint)
{
    Make(DateConfig());
    PutCaret(0);
    Type("1");
    const HANDLE property = RemovePropA(Window(), kProperty);
    InvalidateRect(Window(), nullptr, TRUE);
    UpdateWindow(Window());
    Type("x");
    EXPECT_EQ(Shown(), "1x|0/04/95");
    SetPropA(Window(), kProperty, property);
}

TEST_F(Record, WithThePropertyPutBackItIsFoundAgain)
{
    Make(DateConfig());
    const HANDLE property = RemovePropA(Window(), kProperty);
    SetPropA(Window(), kProperty, property);
    EXPECT_EQ(Value(), "1995-07-04");
}

// What each export gives for a window that is no control; those that give nothing stand with 0.
struct ExportCase {
    const char* name;
    long long (*call)(HWND);
    long long result;
};

void PrintTo(const ExportCase& row, std::ostream* out)
{
    *out << row.name;
}

long long Address(const void* pointer)
{
    return static_cast<long long>(reinterpret_cast<intptr_t>(pointer));
}

long long Number(int32_t number)
{
    return number;
}

const double kOne = 1.0;
const double kTwo = 2.0;

// clang-format off
const ExportCase kExports[] = {
    {"SetAutoskip",      [](HWND h) { return ZTE_SetAutoskip(h, 1), 0LL; },                         0},
    {"SetFormatRect",    [](HWND h) { return ZTE_UtilSetFormatRect(h), 0LL; },                      0},
    {"SetMask",          [](HWND h) { return Number(ZTE_FmtSetMask(h, "MM/DD/YY", DT_DATE)); },     1},
    {"SetData",          [](HWND h) { return Number(ZTE_FmtSetData(h, "abc")); },                   0},
    {"SetDataString",    [](HWND h) { return Number(ZTE_FmtSetDataString(h, "abc")); },             0},
    {"GetData",          [](HWND h) { return Address(ZTE_FmtGetData(h)); },                         0},
    {"GetDataType",      [](HWND h) { return Number(ZTE_FmtGetDataType(h)); },                      0},
    {"FormatData",       [](HWND h) { return Address(ZTE_FmtFormatData(h, "abc")); },               0},
    {"UnformatData",     [](HWND h) { return Address(ZTE_FmtUnformatData(h, "abc")); },             0},
    {"SetSpin",          [](HWND h) { return ZTE_SetSpin(h, 1, "1~2", "a\tb", 0), 0LL; },           0},
    {"CreateSpin",       [](HWND h) { return ZTE_CreateSpin(h), 0LL; },                             0},
    {"DestroySpin",      [](HWND h) { return ZTE_DestroySpin(h), 0LL; },                            0},
    {"PaintSpin",        [](HWND h) { return ZTE_PaintSpin(h, nullptr, nullptr), 0LL; },            0},
    {"GetSpinWidth",     [](HWND h) { return Number(ZTE_GetSpinWidth(h, nullptr)); },               0},
    {"SetSpinBkColor",   [](HWND h) { return ZTE_SetSpinBkColor(h, 1), 0LL; },                      0},
    {"SpinRangeCompare", [](HWND h) { return Number(ZTE_SpinRangeCompare(h, &kOne, &kTwo)); },      1},
};
// clang-format on

BOOL CALLBACK ListWindow(HWND hwnd, LPARAM list)
{
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(hwnd);
    return TRUE;
}

BOOL CALLBACK ListTree(HWND hwnd, LPARAM list)
{
    EnumChildWindows(hwnd, ListWindow, list);
    return ListWindow(hwnd, list);
}

// The windows of this thread, and all that is on them.
std::vector<HWND> Windows()
{
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), ListTree, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

class ExportWithoutAControl : public WindowTest, public OfRow<ExportCase> {
protected:
    // The call gives its result, sends nothing to the host, and makes or removes no window.
    void ExpectNothingDone(HWND hwnd)
    {
        const std::vector<HWND> before = Windows();
        form_.Forget();
        EXPECT_EQ(GetParam().call(hwnd), GetParam().result);
        EXPECT_EQ(form_.Notifications(), std::vector<Notification>{});
        EXPECT_EQ(Windows(), before);
    }
    void ExpectLeftAlone(const char* className)
    {
        const HWND plain =
            CreateWindowExA(0, className, "text", WS_CHILD, 0, 0, 100, 20, form_.hwnd(), nullptr, nullptr, nullptr);
        ExpectNothingDone(plain);
        EXPECT_EQ(TextOf(plain), "text");
        EXPECT_EQ(GetPropA(plain, kProperty), nullptr);
        DestroyWindow(plain);
    }
};

ROW_TEST(ExportWithoutAControl, LeavesAPlainEditAlone)
{
    ExpectLeftAlone("edit");
}

ROW_TEST(ExportWithoutAControl, LeavesAnUnconfiguredControlAlone)
{
    ExpectLeftAlone(ZTEDIT_CLASS);
}

ROW_TEST(ExportWithoutAControl, TakesANullWindow)
{
    ExpectNothingDone(nullptr);
}

ROW_TEST(ExportWithoutAControl, TakesADestroyedWindow)
{
    Make(DateConfig());
    const HWND hwnd = Window();
    control_.reset();
    ExpectNothingDone(hwnd);
}

TEST_ROWS(Exports, ExportWithoutAControl, kExports);

}  // namespace
}  // namespace zttest
