// Range and code-table texts of any length and kind.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/live/window_test.h"

namespace zttest {
namespace {

struct SpinText {
    const char* name;
    std::string text;
};

void PrintTo(const SpinText& row, std::ostream* out)
{
    *out << row.name;
}

class SpinTextTest : public WindowTest, public testing::WithParamInterface<SpinText> {
protected:
    void MakeSpin(int32_t type, const char* mask)
    {
        Config config;
        config.mask = mask;
        config.type = type;
        config.options = ZTEO_SPIN;
        config.increment = 1;
        Make(config);
    }

    // Whatever came before: a spin set up anew steps.
    void ExpectItSteps()
    {
        ZTE_FmtSetMask(Window(), "##0", DT_NUMBER);
        ZTE_SetSpin(Window(), 1, "1~9", nullptr, 0);
        control_->AcceptHeap();
        ZTE_FmtSetDataString(Window(), "5");
        Press(VK_UP);
        EXPECT_EQ(Text(), "6");
    }
    void Step()
    {
        PutCaret(0);
        Play("{Up}{Down}{Up}5a{Back}{Del}");
    }
};

struct KindOfField {
    int32_t type;
    const char* mask;
};
constexpr KindOfField kKinds[] = {
    {DT_STRING,   nullptr         },
    {DT_NUMBER,   "#,##0.00"      },
    {DT_DECIMAL,  "#,##0.00"      },
    {DT_DATE,     "MM/DD/YY"      },
    {DT_TIME,     "HH:MM AM/PM"   },
    {DT_DATETIME, "MM/DD/YY HH:MM"},
};

class RangeText : public SpinTextTest {};

TEST_P(RangeText, IsSurvived)
{
    for (const KindOfField& kind : kKinds) {
        MakeSpin(kind.type, kind.mask);
        ZTE_SetSpin(Window(), 1, GetParam().text.c_str(), nullptr, 0);
        Step();
        DateTimeValue value = {};
        ZTE_SpinDateRange(Window(), &value, GetParam().text.c_str());
        ExpectItSteps();
    }
}

// clang-format off
const SpinText kRanges[] = {
    {"Nines",      std::string(100000, '9')},
    {"Tildes",     std::string(100000, '~')},
    {"LongEnds",   std::string(50000, '1') + "~" + std::string(50000, '2')},
    {"Letters",    std::string(100000, 'x')},
    {"HighBytes",  std::string(100000, '\xE4')},
    {"Reversed",   "9~1"},
    {"Empty",      ""},
    {"WrongDates", "2001-02-30~1995-13-13"},
};
// clang-format on
INSTANTIATE_TEST_SUITE_P(Texts, RangeText, testing::ValuesIn(kRanges), RowName<SpinText>);

class CodeTableText : public SpinTextTest {};

TEST_P(CodeTableText, IsSurvived)
{
    for (const KindOfField& kind : kKinds)
        for (const uint32_t style : {0u, SPINSTYLE_CODETABLE, SPINSTYLE_CODETABLE | SPINSTYLE_PICKLIST}) {
            MakeSpin(kind.type, kind.mask);
            ZTE_SetSpin(Window(), 1, nullptr, GetParam().text.c_str(), style);
            control_->AcceptHeap();
            Step();
            SharedHeapFree(control_->heap(), ZTE_FmtGetData(Window()));
            ZTE_FmtSetData(Window(), nullptr);
            ExpectItSteps();
        }
}

std::string ManyEntries(int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += "entry " + std::to_string(i) + "\t" + std::to_string(i) + "/";
    return text;
}

// clang-format off
const SpinText kCodeTables[] = {
    {"OneLongText",                std::string(100000, 'x')},
    {"OneLongValue",               "x\t" + std::string(100000, 'y')},
    {"Slashes",                    std::string(100000, '/')},
    {"Tabs",                       std::string(100000, '\t')},
    {"HighBytes",                  std::string(100000, '\xE4')},
    {"ManyEntries",                ManyEntries(5000)},
    {"Empty",                      ""},
    {"OneSlash",                   "/"},
    {"OneTab",                     "\t"},
    {"ThirtyThreeThousandEntries", ManyEntries(33000)},
};
// clang-format on
INSTANTIATE_TEST_SUITE_P(Texts, CodeTableText, testing::ValuesIn(kCodeTables), RowName<SpinText>);

TEST_F(WindowTest, SettingTheSpinAgainAndAgainGivesTheRangeBack)
{
    Config config;
    config.mask = "####";
    config.type = DT_NUMBER;
    Make(config);
    ZTE_SetSpin(Window(), 1, "1~2", nullptr, 0);
    const uint32_t once = SharedHeapBlockCount(control_->heap());
    for (int i = 0; i < 20; ++i)
        ZTE_SetSpin(Window(), 1, "1~2", nullptr, 0);
    EXPECT_EQ(SharedHeapBlockCount(control_->heap()), once);
    control_->AcceptHeap();
}

}  // namespace
}  // namespace zttest
