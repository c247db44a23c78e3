// The exports of modern editing: what they promise, of modern and of classic controls, and of what is no control.
#include "tests/support/rows.h"
#include "tests/win32/modern_window.h"

namespace zttest {
namespace {

constexpr char kNothing[] = "null";

class ModernExports : public ModernWindow {
protected:
    std::string Canonical() const
    {
        char* text = ZTE_GetDataString(Window());
        const std::string copy = text ? text : kNothing;
        SharedHeapFree(control_->heap(), text);
        return copy;
    }
    std::string Read() const
    {
        void* data = ZTE_FmtGetData(Window());
        const std::string read = data ? "value" : kNothing;
        SharedHeapFree(control_->heap(), data);
        return read;
    }
    int32_t Try(const char* text) const { return ZTE_TrySetDataString(Window(), text); }
};

TEST_F(ModernExports, DoNothingWithoutAControl)
{
    const HWND plain =
        CreateWindowExA(0, ZTEDIT_CLASS, "", WS_CHILD, 0, 0, 100, 20, parent_.hwnd(), nullptr, nullptr, nullptr);
    for (const HWND hwnd : {static_cast<HWND>(nullptr), parent_.hwnd(), plain}) {
        EXPECT_EQ(ZTE_SetModern(hwnd, 1), 0);
        EXPECT_EQ(ZTE_SetModern(hwnd, 1), 0);
        EXPECT_EQ(ZTE_GetState(hwnd), -1);
        EXPECT_EQ(ZTE_TrySetDataString(hwnd, "1"), ZTR_DOES_NOT_FIT);
        EXPECT_EQ(ZTE_TrySetDataString(hwnd, nullptr), ZTR_DOES_NOT_FIT);
        EXPECT_EQ(ZTE_GetDataString(hwnd), nullptr);
    }
    DestroyWindow(plain);
}

TEST_F(ModernExports, TellWhatEditingWas)
{
    Config config;
    config.mask = kDate;
    config.type = DT_DATE;
    Make(config, 0);
    EXPECT_EQ(ZTE_SetModern(Window(), 0), 0);
    EXPECT_EQ(ZTE_SetModern(Window(), 2), 0);
    EXPECT_EQ(ZTE_SetModern(Window(), 1), 1);
    EXPECT_EQ(ZTE_SetModern(Window(), 0), 1);
    EXPECT_EQ(ZTE_SetModern(Window(), 0), 0);
}

TEST_F(ModernExports, KeepWhatThePositionsHoldWhenEditingChanges)
{
    Config config;
    config.mask = kDate;
    config.type = DT_DATE;
    Make(config, 0);
    const std::string blankClassic = control_->Text();
    ZTE_SetModern(Window(), 1);
    EXPECT_EQ(control_->Text(), "  /  /    ");
    EXPECT_EQ(State(), ZTS_EMPTY);
    EXPECT_FALSE(CanUndo());
    ZTE_SetModern(Window(), 0);
    EXPECT_EQ(control_->Text(), blankClassic);
    ZTE_FmtSetDataString(Window(), "2024-02-29");
    ZTE_SetModern(Window(), 1);
    EXPECT_EQ(control_->Text(), "02/29/2024");
    EXPECT_EQ(State(), ZTS_COMPLETE);
}

// ---- states and texts

struct StateCase {
    const char* name;
    const char* windowText;
    int32_t state;
    const char* canonical;  // or "null"
    const char* read;
};
void PrintTo(const StateCase& row, std::ostream* out)
{
    *out << row.name;
}

class ModernState : public ModernExports, public OfRow<StateCase> {};

ROW_TEST(ModernState, IsToldAndNoGetterGivesMore)
{
    const StateCase& row = GetParam();
    Config config;
    config.mask = kDate;
    config.type = DT_DATE;
    config.range = "2020-01-01~2029-12-31";
    config.increment = 1;
    config.options = ZTEO_SPIN;
    Make(config);
    SetWindowTextA(Window(), row.windowText);
    EXPECT_EQ(State(), row.state);
    EXPECT_EQ(Canonical(), row.canonical);
    EXPECT_EQ(Read(), row.read);
    if (Canonical() != kNothing) {
        EXPECT_EQ(Try(Canonical().c_str()), 0);
        EXPECT_EQ(control_->Text(), row.windowText);
    }
}

// clang-format off
const StateCase kDateStates[] = {
    {"Empty",      "  /  /    ", ZTS_EMPTY,        "",           "null"},
    {"Incomplete", "02/2 /    ", ZTS_INCOMPLETE,   "null",       "null"},
    {"NoSuchDay",  "02/30/2024", ZTS_INVALID,      "null",       "null"},
    {"NoDate",     "any",        ZTS_INVALID,      "null",       "null"},
    {"OutOfRange", "02/28/2019", ZTS_OUT_OF_RANGE, "2019-02-28", "value"},
    {"Complete",   "02/29/2024", ZTS_COMPLETE,     "2024-02-29", "value"},
};
// clang-format on
TEST_ROWS(Rows, ModernState, kDateStates);

TEST_F(ModernExports, SetATextOrChangeNothing)
{
    Make(kDate, DT_DATE, "2024-02-29");
    Select(3, 5);
    Type("1");
    const std::string before = Shown();
    TakeTold();
    EXPECT_NE(Try("2023-02-29"), 0);
    EXPECT_NE(Try("no date"), 0);
    EXPECT_EQ(Shown(), before);
    EXPECT_TRUE(CanUndo());
    EXPECT_TRUE(TakeTold().empty());
    EXPECT_EQ(Beeps(), 0);
    EXPECT_EQ(Try("2024-02-28"), 0);
    EXPECT_EQ(control_->Text(), "02/28/2024");
    EXPECT_FALSE(IsModified());
    EXPECT_FALSE(CanUndo());
    EXPECT_EQ(Try(nullptr), 0);
    EXPECT_EQ(State(), ZTS_EMPTY);
    EXPECT_EQ(Try("2024-02-28"), 0);
    EXPECT_EQ(Try(""), 0);
    EXPECT_EQ(State(), ZTS_EMPTY);
}

TEST_F(ModernExports, FormatAsTheyWouldShow)
{
    Make(kDate, DT_DATE, "2024-02-29");
    FormatResult* result = ZTE_FmtFormatData(Window(), nullptr);
    ASSERT_NE(result, nullptr);
    EXPECT_STREQ(result->text, "  /  /    ");
    EXPECT_EQ(control_->Text(), "02/29/2024");
    SharedHeapFree(control_->heap(), result->text);
    SharedHeapFree(control_->heap(), result);
}

TEST_F(ModernExports, ServeClassicControls)
{
    Config config;
    config.mask = kDate;
    config.type = DT_DATE;
    Make(config, 0);
    EXPECT_EQ(State(), ZTS_EMPTY);
    EXPECT_EQ(Canonical(), "");
    EXPECT_NE(Try("2023-02-29"), 0);
    EXPECT_EQ(Try("2024-02-29"), 0);
    EXPECT_EQ(control_->Text(), "02/29/2024");
    EXPECT_EQ(State(), ZTS_COMPLETE);
    EXPECT_EQ(Canonical(), "2024-02-29");
    for (const std::string& told : TakeTold())
        EXPECT_TRUE(told == "update" || told == "change") << told;
}

TEST_F(ModernExports, TellMidnightFromNothing)
{
    Make("HH:MM", DT_TIME);
    EXPECT_EQ(State(), ZTS_EMPTY);
    EXPECT_EQ(Read(), kNothing);
    ASSERT_EQ(Try("00:00"), 0);
    EXPECT_EQ(State(), ZTS_COMPLETE);
    EXPECT_EQ(Read(), "value");
    EXPECT_EQ(Canonical(), "00:00:00");
}

TEST_F(ModernExports, GiveStringsAsTheyStand)
{
    Make("(###) ###-####", DT_STRING, "555");
    EXPECT_EQ(State(), ZTS_INCOMPLETE);
    EXPECT_EQ(Canonical(), "555");
    EXPECT_EQ(Read(), "value");
}

}  // namespace
}  // namespace zttest
