// Range and code-table texts of any length and kind.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/edit_test.h"

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

class SpinTextTest : public EditTest, public testing::WithParamInterface<SpinText> {
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
        control_->AcceptHeap();
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, RangeText,
                         testing::Values(SpinText{"Nines", std::string(100000, '9')},
                                         SpinText{"Tildes", std::string(100000, '~')},
                                         SpinText{"LongEnds", std::string(50000, '1') + "~" + std::string(50000, '2')},
                                         SpinText{"Letters", std::string(100000, 'x')},
                                         SpinText{"HighBytes", std::string(100000, '\xE4')},
                                         SpinText{"Reversed", "9~1"}, SpinText{"Empty", ""},
                                         SpinText{"WrongDates", "2001-02-30~1995-13-13"}),
                         RowName<SpinText>);

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
        }
}

std::string ManyEntries(int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += "entry " + std::to_string(i) + "\t" + std::to_string(i) + "/";
    return text;
}

INSTANTIATE_TEST_SUITE_P(Texts, CodeTableText,
                         testing::Values(SpinText{"OneLongText", std::string(100000, 'x')},
                                         SpinText{"OneLongValue", "x\t" + std::string(100000, 'y')},
                                         SpinText{"Slashes", std::string(100000, '/')},
                                         SpinText{"Tabs", std::string(100000, '\t')},
                                         SpinText{"HighBytes", std::string(100000, '\xE4')},
                                         SpinText{"ManyEntries", ManyEntries(5000)}, SpinText{"Empty", ""},
                                         SpinText{"OneSlash", "/"}, SpinText{"OneTab", "\t"},
                                         SpinText{"ThirtyThreeThousandEntries", ManyEntries(33000)}),
                         RowName<SpinText>);

TEST_F(EditTest, SettingTheSpinAgainAndAgainGivesTheRangeBack)
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
