// What SetSpin keeps.
#include <gtest/gtest.h>

#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

class SpinSettings : public SpinTest {
protected:
    void SetUp() override { MakeSpin("##0", DT_NUMBER, "1~5", 1, "3"); }
    void Set(const char* range, uint32_t increment = 1, uint32_t style = 0)
    {
        SetSpin(increment, range, nullptr, style);
    }
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

class RangeText : public SpinSettings, public OfRow<Bounds> {};

ROW_TEST(RangeText, GivesTheBounds)
{
    Set(GetParam().range);
    EXPECT_EQ(Record().spinMinimum, GetParam().minimum);
    EXPECT_EQ(Record().spinMaximum, GetParam().maximum);
    EXPECT_EQ(Record().spinRange, GetParam().range);
}

TEST_ROWS_OF(Texts, RangeText, Bounds{"Both", "10~50", 10, 50}, Bounds{"MinimumAlone", "10", 10, 0},
             Bounds{"MinimumAndTilde", "10~", 10, 0}, Bounds{"MaximumAlone", "~50", 0, 50},
             Bounds{"ZeroAsMaximum", "5~0", 5, 0}, Bounds{"TildeAlone", "~", 0, 0}, Bounds{"Empty", "", 0, 0},
             Bounds{"Words", "a~b", 0, 0}, Bounds{"Fractions", "-1.5~2.25", -1.5, 2.25},
             Bounds{"Exponents", "1e2~1e3", 100, 1000}, Bounds{"SecondTildeEndsTheNumber", "1~2~3", 1, 2},
             Bounds{"BlanksBefore", " 1~ 2", 1, 2});

TEST_F(SpinSettings, NoRangeTextLeavesTheBounds)
{
    Set(nullptr);
    EXPECT_EQ(Record().spinMinimum, 1.0);
    EXPECT_EQ(Record().spinMaximum, 5.0);
    EXPECT_EQ(Record().spinRange, std::nullopt);
}

TEST_F(SpinSettings, TheCallersTextIsNotWrittenTo)
{
    std::string range = "1~9";
    Set(range.c_str());
    EXPECT_EQ(range, "1~9");
    range = "5~6";
    EXPECT_EQ(Record().spinRange, "1~9") << "nor kept";
}

TEST_F(SpinSettings, ARangeOfDatesIsKeptAsText)
{
    MakeSpin("MM/DD/YYYY", DT_DATE, "2000-01-01~2000-12-31", 1, nullptr);
    EXPECT_EQ(Record().spinRange, "2000-01-01~2000-12-31");
    EXPECT_EQ(Record().spinMinimum, 0.0);
    EXPECT_EQ(Record().spinMaximum, 0.0);
}

TEST_F(SpinSettings, StylesSetAndClearTheirFlags)
{
    Set("1~5", 1, SPINSTYLE_CODETABLE | SPINSTYLE_PICKLIST | 0x7);
    EXPECT_TRUE(Record().codeDisplay);
    EXPECT_TRUE(Record().pickList);
    Set("1~5", 1, 0);
    EXPECT_FALSE(Record().codeDisplay);
    EXPECT_FALSE(Record().pickList);
}

TEST_F(SpinSettings, ChangeNothingThatIsShown)
{
    control_->Forget();
    Set("20~30", 5);
    EXPECT_EQ(Text(), "3");
    EXPECT_TRUE(control_->Notices().empty());
}

TEST_F(SpinSettings, ReplaceTheCodeTableWithoutLosingBlocks)
{
    struct Settings {
        const char* range;
        const char* codes;
    };
    constexpr Settings kSettings[] = {
        {nullptr, "One\t1/Two\t2/Without/Twice\ta\tb"},
        {"1~9",   "A\t1"                             },
        {"5",     nullptr                            },
        {"",      ""                                 }
    };
    std::string many;
    for (int i = 0; i < 120; ++i)
        many += "display" + std::to_string(i) + "\t" + std::to_string(i) + "/";
    control_->SetSpin(1, "1~5", nullptr, 0);
    const uint32_t before = control_->Blocks();
    for (int i = 0; i < 10000; ++i) {
        const Settings& settings = kSettings[i % 4];
        control_->SetSpin(1, settings.range, i % 500 == 0 ? many.c_str() : settings.codes, SPINSTYLE_CODETABLE);
    }
    control_->SetSpin(1, "1~5", nullptr, 0);
    EXPECT_EQ(control_->Blocks(), before);
    control_->SetSpin(1, nullptr, many.c_str(), 0);
    control_->DestroySpin();
    EXPECT_EQ(control_->Blocks(), before - 1) << "the range goes with the spin as well";
    control_->AcceptBlocks();
}

TEST_F(SpinSettings, ReplaceTheRangeWithoutLosingBlocks)
{
    const uint32_t before = control_->Blocks();
    for (int i = 0; i < 50; ++i)
        control_->SetSpin(1, "100~200", nullptr, 0);
    EXPECT_EQ(control_->Blocks(), before);
}

}  // namespace
}  // namespace zttest
