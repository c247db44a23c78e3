// Stepping of numbers and decimals through their ranges.
#include <gtest/gtest.h>

#include "tests/support/engine_test.h"

namespace zttest {
namespace {

enum class Outcome { Changed, Refused };

// From a value, a step under a range leads to another value, or is refused.
struct NumberStep {
    const char* name;
    const char* range;  // null: none given
    uint32_t increment;
    const char* from;
    Arrow arrow;
    const char* shown;
    Outcome outcome = Outcome::Changed;
};
void PrintTo(const NumberStep& row, std::ostream* out)
{
    *out << row.name << " (from " << row.from << " by " << row.increment << " in "
         << (row.range ? row.range : "no range") << (row.arrow == Arrow::Up ? ", up)" : ", down)");
}

class NumberSteps : public SpinTest, public testing::WithParamInterface<NumberStep> {
protected:
    // A refused step still selects the whole text and notifies once; nothing is set, which would notify as well.
    void Check(const char* mask, int32_t type)
    {
        const NumberStep& row = GetParam();
        MakeSpin(mask, type, row.range, row.increment, row.from);
        const std::string before = Text();
        Step(row.arrow);
        EXPECT_EQ(Shown(), "[" + std::string(row.shown) + "]");
        ASSERT_FALSE(control_->Notices().empty());
        EXPECT_EQ(control_->Notices().back(), Notice::Changed);
        if (row.outcome == Outcome::Refused) {
            EXPECT_EQ(Text(), before);
            EXPECT_EQ(control_->Notices(), std::vector<Notice>{Notice::Changed});
        }
    }
};

using StepOfNumber = NumberSteps;

TEST_P(StepOfNumber, LeadsTo)
{
    Check("#,##0.00", DT_NUMBER);
}

constexpr Arrow kUp = Arrow::Up;
constexpr Arrow kDown = Arrow::Down;
constexpr Outcome kRefused = Outcome::Refused;
constexpr uint32_t kLargest = 0xFFFFFFFF;

// The rows that numbers and decimals have in common.
constexpr NumberStep kCommonSteps[] = {
    {"UpFromZero",                    nullptr, 1,"0",   kUp,   "1.00"},
    {"DownFromZeroStaysAtTheMinimum", nullptr, 1,"0",   kDown, "0.00",kRefused},
    {"DownInsideKeepsTheFraction",                               nullptr,           1,"2.75",kDown,"1.75"                                                                     },
    {"UpOverAThousand",                               nullptr,                      1,"999.50",kUp,"1,000.50"},
    {"DownUnderAThousand",                               nullptr,                   2,"1001.25",kDown,"999.25"                                                                     },
    {"DownBelowZeroIsRefused",                               nullptr,               1,"0.75",kDown,"0.75",kRefused},
    {"DownFromBelowWithoutMaximum",                       nullptr,                              1,"-5",kDown,"-5.00",kRefused},
    {"UpInside",                        "1~10",                       3,"4",kUp,                                           "7.00"                                                                    },
    {"UpToTheMaximum",                            "1~10",                             3,"7", kUp,"10.00"},
    {"UpPastTheMaximumIsRefused",                            "1~10",                            3,"9",kUp,"9.00",                                                                                                                         kRefused},
    {"UpAtTheMaximumIsRefused",                            "1~10",                             3,"10",                    kUp,                    "10.00",kRefused},
    {"UpFromAboveGoesToTheMinimum",                           "1~10",                               3,    "11",kUp,"1.00"                                                                         },
    {"UpFromFarBelowIsRaised",                              "5~10",   1,"-7",kUp,"5.00"},
    {"DownInside",                              "1~10",                               3,                                "7",                                                                                    kDown,                                                                                                        "4.00"                                                                                                                                                                                                           },
    {"DownToTheMinimum",                              "1~10",    3,"4",kDown,"1.00"},
    {"DownPastTheMinimumIsRefused",                              "1~10",                               3,                                                           "2",                                                                                                                                                                                                                                                  kDown,                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                 "2.00",                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                           kRefused},
    {"DownFromBelowGoesToTheMaximum",                              "1~10",    3,"0",kDown,"10.00"},
    {"DownFromFarAboveIsCut","1~10",3,                                                        "20",                                                                                                                                                                                                                                                                                                                                                                                                                                         kDown,                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                           "10.00"                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                        },
    {"DownFromJustAboveIsAStep",                              "1~10",                                      3,"12",kDown,"9.00"},
    {"MaximumOnlyUp","~50",10,"40",                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                kUp,                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                            "50.00"                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                },
    {"MaximumOnlyStopsAtZero",                               "~50",                                                                        10,                   "5",kDown,"5.00",kRefused},
    {"MinimumOnlyHasNoTop","10",1,"12345",                                                                                                                                                                                                                                                                                                                             kUp,                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                    "12,346.00"                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                   },
    {"MinimumOnlyStopsAtIt",           "10",                   1,                      "10",                                                                                                                                                                                   kDown,"10.00",kRefused},
    {"EmptyMaximumIsNone",          "10~",   1,"12345",kUp,"12,346.00"},
    {"NegativeMinimum",                               "-20~5",                   7,"-13",kDown,                      "-20.00"                                                                                                       },
    {"NegativeMinimumIsAnEnd",                               "-20~5",                      7,"-14",kDown,"-14.00",                                                                                                                                                                                kRefused},
    {"FractionsInTheRange",                               "0.5~2.5",               1,"1.5",kUp,"2.50"},
    {"FractionsInTheRangeCount",                       "0.5~2.5",                              1,"1.75",kUp,"1.75",kRefused},
    {"IncrementOfNothingIsOne",                         nullptr,                                0,"3",kUp,"4.00"},
    {"LargestIncrementUp",                         nullptr,                        kLargest,"0.25",kUp,              "4,294,967,295.25"                                                                                                                                                                             },
    {"LargestIncrementDown",                            nullptr,                             kLargest,"4294967296",                                   kDown,                                                                                                 "1.00"                                               },
    {"LargestIncrementRefused",                            "1~10",                 kLargest,"5",kUp,"5.00",kRefused},
    {"RangeReadAsFarAsItIsANumber",                          "5apples",                           1,"6",kDown,"5.00"},
    {"MaximumBelowTheMinimumUp",                            "9~1",                             1,"5",kUp,"9.00"                                                                                                                                                                                                              },
    {"MaximumBelowTheMinimumDown",                            "9~1",                              1,"5",                                                                                                 kDown,                                                                                                                                                                                                                                                                                                       "1.00"                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                                       },
};
INSTANTIATE_TEST_SUITE_P(Common, StepOfNumber, testing::ValuesIn(kCommonSteps), RowName<NumberStep>);

INSTANTIATE_TEST_SUITE_P(NumbersAlone, StepOfNumber,
                         testing::Values(NumberStep{"WrittenMaximumOfZeroIsNone", "~0", 1, "0", kUp, "1.00"},
                                         NumberStep{"MaximumOfMinusZeroIsNone", "5~-0", 1, "100", kUp, "101.00"},
                                         NumberStep{"MinimumAndMaximumOfZero", "5~0", 1, "5", kDown, "5.00", kRefused},
                                         NumberStep{"RaisedToTheMinimumWithoutMaximum", "5", 1, "2", kUp, "5.00"},
                                         NumberStep{"NegativeIsRaisedToZeroWithoutARange", nullptr, 1, "-5", kUp,
                                                    "0.00"},
                                         NumberStep{"WordsAsRangeAreNone", "few~many", 1, "7", kUp, "8.00"},
                                         NumberStep{"LargeRangeEnd", "1e3~2e3", 1, "999", kUp, "1,000.00"}),
                         RowName<NumberStep>);

using StepOfDecimal = NumberSteps;

TEST_P(StepOfDecimal, LeadsTo)
{
    Check("#,##0.00", DT_DECIMAL);
}

INSTANTIATE_TEST_SUITE_P(Common, StepOfDecimal, testing::ValuesIn(kCommonSteps), RowName<NumberStep>);

INSTANTIATE_TEST_SUITE_P(
    DecimalsAlone, StepOfDecimal,
    testing::Values(NumberStep{"WrittenMaximumOfZeroCounts", "~0", 1, "0", kUp, "0.00", kRefused},
                    NumberStep{"WrittenMaximumOfZeroFromBelow", "-5~0", 1, "-1", kUp, "0.00"},
                    NumberStep{"WordsAsMaximumAreAZeroThatCounts", "few~many", 1, "7", kDown, "0.00"},
                    NumberStep{"NotRaisedToTheMinimumWithoutMaximum", "5", 1, "2", kUp, "3.00"},
                    NumberStep{"NotRaisedToTheMinimumWithAnEmptyMaximum", "5~", 1, "2", kUp, "3.00"},
                    NumberStep{"NegativeStaysNegativeWithoutARange", nullptr, 1, "-5", kUp, "-4.00"},
                    NumberStep{"ExactAt28Digits", nullptr, 1, "12345678901234567890123456.99", kUp,
                               "12,345,678,901,234,567,890,123,457.99"},
                    NumberStep{"ExactAt28DigitsDown", nullptr, 1, "10000000000000000000000000.01", kDown,
                               "9,999,999,999,999,999,999,999,999.01"},
                    NumberStep{"RangeOf28Digits", "~99999999999999999999999999.99", 1, "99999999999999999999999999.00",
                               kUp, "99,999,999,999,999,999,999,999,999.00", kRefused}),
    RowName<NumberStep>);

// Numbers that leave their type.
class StepAtTheLimits : public SpinTest {};

TEST_F(StepAtTheLimits, AStepTooSmallForAHugeDoubleLeavesIt)
{
    MakeSpin("#", DT_NUMBER, nullptr, 1, "1e300");
    const std::string before = Text();
    ASSERT_EQ(before.size(), 301u);
    Up();
    EXPECT_EQ(Text(), before);
    Down();
    EXPECT_EQ(Text(), before);
}

TEST_F(StepAtTheLimits, AHugeMaximumBounds)
{
    MakeSpin("#", DT_NUMBER, "0~1e300", 1, nullptr);
    control_->SetDataString("2e300");
    Up();
    control_->SetDataString("-1");
    Down();
    EXPECT_EQ(Text().size(), 301u);
}

TEST_F(StepAtTheLimits, AMaximumBeyondAllDoublesShowsAReadableText)
{
    MakeSpin("#,##0.00", DT_NUMBER, "5~1e999", 1, "0");
    Down();
    EXPECT_EQ(Text(), "0.00");
    Up();
    EXPECT_EQ(Text(), "5.00");
}

TEST_F(StepAtTheLimits, ADecimalAtItsLargestStays)
{
    MakeSpin("#", DT_DECIMAL, nullptr, 0xFFFFFFFF, "79228162514264337593543950335");
    Up();
    EXPECT_EQ(Text(), "79228162514264337593543950335");
}

TEST_F(StepAtTheLimits, ARangeOfAHundredThousandCharactersIsReadWhole)
{
    const std::string range = std::string(50000, '0') + "3~" + std::string(50000, '0') + "9";
    for (const int32_t type : {DT_NUMBER, DT_DECIMAL}) {
        MakeSpin("##0", type, range.c_str(), 1, "9");
        Up();
        EXPECT_EQ(Text(), "9");
        control_->SetDataString("3");
        Down();
        EXPECT_EQ(Text(), "3");
        Up();
        EXPECT_EQ(Text(), "4");
    }
}

TEST_F(StepAtTheLimits, ADecimalStepsExactly)
{
    MakeSpin("0.00000", DT_DECIMAL, nullptr, 1, "0.00001");
    for (int i = 0; i < 100; ++i)
        Up();
    EXPECT_EQ(Text(), "100.00001");
}

TEST_F(StepAtTheLimits, DecimalEndsAreReadWhenStepped)
{
    MakeSpin("##0", DT_DECIMAL, "1~3", 1, "3");
    SetSpin(1, "1~4", nullptr, 0);
    Up();
    EXPECT_EQ(Text(), "4");
    SetSpin(1, nullptr, nullptr, 0);  // no range text: minimum 0, no maximum
    Up();
    EXPECT_EQ(Text(), "5");
    for (int i = 0; i < 9; ++i)
        Down();
    EXPECT_EQ(Text(), "0");
}

// What the display text of a setting stands for is what is stepped.
struct RegionalStep {
    const char* name;
    const RegionalSet* settings;
    const char* mask;
    const char* data;
    const char* before;
    const char* after;
};
void PrintTo(const RegionalStep& row, std::ostream* out)
{
    *out << row.name;
}

class StepUnderSettings : public SpinTest, public testing::WithParamInterface<RegionalStep> {};

TEST_P(StepUnderSettings, KeepsFractionsAndGroups)
{
    const RegionalStep& row = GetParam();
    const Regional settings(*row.settings);
    for (const int32_t type : {DT_NUMBER, DT_DECIMAL}) {
        MakeSpin(row.mask, type, "~100000", 1, row.data);
        ASSERT_EQ(Text(), row.before);
        Up();
        EXPECT_EQ(Text(), row.after);
        Down();
        EXPECT_EQ(Text(), row.before);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Settings, StepUnderSettings,
    testing::Values(RegionalStep{"DecimalComma", &kGerman, "#,##0.00", "1234.75", "1.234,75", "1.235,75"},
                    RegionalStep{"BlankAsThousands", &kFrench, "#,##0.00", "1234.75", "1 234,75", "1 235,75"},
                    RegionalStep{"ApostropheAsThousands", &kSwiss, "#,##0.00", "1234.75", "1'234.75", "1'235.75"},
                    RegionalStep{"DecimalPoint", &kUnitedStates, "#,##0.00", "1234.75", "1,234.75", "1,235.75"},
                    RegionalStep{"PercentWithComma", &kGerman, "##0.0%", "0.125", "12,5%", "112,5%"},
                    RegionalStep{"PercentWithPoint", &kUnitedStates, "##0.0%", "0.125", "12.5%", "112.5%"},
                    RegionalStep{"Literals", &kGerman, "~k##0.0", "99.5", "k99,5", "k100,5"}),
    RowName<RegionalStep>);

// What every step does beside its value.
class EveryStep : public SpinTest {};

TEST_F(EveryStep, ShowsTheNewTextBeforeItNotifies)
{
    MakeSpin("##0", DT_NUMBER, nullptr, 1, "7");
    std::string seen;
    control_->OnNotice([&] { seen = Text(); });
    Up();
    EXPECT_EQ(seen, "8");
}

TEST_F(EveryStep, SwitchesRedrawingOffAndOn)
{
    Config config;
    config.mask = "##0";
    config.type = DT_NUMBER;
    config.options = ZTEO_SPIN;
    config.range = "0~9";
    config.visible = true;
    Make(config);
    const FieldRecorder recorder;
    Up();
    EXPECT_EQ(recorder.Told(), (std::vector<std::string>{"redraw off", "redraw on", "text"}));
}

TEST_F(EveryStep, OfAStringChangesNothingButNotifies)
{
    MakeSpin("AAAA", DT_STRING, nullptr, 1, "abcd");
    PutCaret(2);
    const FieldRecorder recorder;
    Up();
    EXPECT_EQ(Shown(), "ab|cd");
    EXPECT_EQ(control_->Notices(), std::vector<Notice>{Notice::Changed});
    const std::vector<std::string> told = recorder.Told();
    EXPECT_TRUE(told.empty() || told.back() == "redraw on");
}

TEST_F(EveryStep, MarksTheTextAsSpun)
{
    MakeSpin("##0", DT_NUMBER, nullptr, 1, "7");
    EXPECT_FALSE(Record().spun);
    Down();
    EXPECT_TRUE(Record().spun);
    Play("{Home}1");
    EXPECT_FALSE(Record().spun);
}

TEST_F(EveryStep, LeavesNoDirectionBehind)
{
    MakeSpin("##0", DT_NUMBER, nullptr, 1, "7");
    Up();
    Down();
    EXPECT_FALSE(Record().stepping);
}

TEST_F(EveryStep, IsRefusedByAReadOnlyControl)
{
    MakeSpin("##0", DT_NUMBER, nullptr, 1, "7");
    control_->SetReadOnly();
    Up();
    EXPECT_EQ(Text(), "7");
    EXPECT_EQ(Changes(), 0);
    control_->SetDataString("12");
    EXPECT_EQ(Text(), "12");
}

TEST_F(EveryStep, IsRefusedByADisabledControl)
{
    MakeSpin("##0", DT_NUMBER, nullptr, 1, "7");
    control_->Disable();
    Up();
    EXPECT_EQ(Text(), "7");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(EveryStep, OfAnEmptyTextStepsFromZero)
{
    MakeSpin("##0", DT_NUMBER, "~5", 1, "3");
    control_->SetText("");
    Up();
    EXPECT_EQ(Text(), "1");
}

TEST_F(EveryStep, NeedsASpinThatWasSetUp)
{
    Given("##0", DT_NUMBER, "7|");
    control_->CreateSpin();  // no range, no increment
    control_->AcceptBlocks();
    Up();
    EXPECT_EQ(Text(), "7");
    EXPECT_EQ(Changes(), 0);
}

TEST_F(EveryStep, OfTheKeysNeedsASpinWindow)
{
    Given("##0", DT_NUMBER, "|7");
    SetSpin(1, "0~9", nullptr, 0);
    Play("{Up}");
    EXPECT_EQ(Text(), "7");
}

}  // namespace
}  // namespace zttest
