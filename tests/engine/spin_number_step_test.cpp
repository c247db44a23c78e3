// Stepping of numbers and decimals through their ranges.
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

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
    Outcome outcome;
};
void PrintTo(const NumberStep& row, std::ostream* out)
{
    *out << row.name << " (from " << row.from << " by " << row.increment << " in "
         << (row.range ? row.range : "no range") << (row.arrow == Arrow::Up ? ", up)" : ", down)");
}

class NumberSteps : public SpinTest, public OfRow<NumberStep> {
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

ROW_TEST(StepOfNumber, LeadsTo)
{
    Check("#,##0.00", DT_NUMBER);
}

constexpr Arrow kUp = Arrow::Up;
constexpr Arrow kDown = Arrow::Down;
constexpr Outcome kChanged = Outcome::Changed;
constexpr Outcome kRefused = Outcome::Refused;
constexpr uint32_t kLargest = 0xFFFFFFFF;

// The rows that numbers and decimals have in common.
constexpr NumberStep kCommonSteps[] = {
    {"UpFromZero",                    nullptr,   1,        "0",          kUp,   "1.00",             kChanged},
    {"DownFromZeroStaysAtTheMinimum", nullptr,   1,        "0",          kDown, "0.00",             kRefused},
    {"DownInsideKeepsTheFraction",    nullptr,   1,        "2.75",       kDown, "1.75",             kChanged},
    {"UpOverAThousand",               nullptr,   1,        "999.50",     kUp,   "1,000.50",         kChanged},
    {"DownUnderAThousand",            nullptr,   2,        "1001.25",    kDown, "999.25",           kChanged},
    {"DownBelowZeroIsRefused",        nullptr,   1,        "0.75",       kDown, "0.75",             kRefused},
    {"DownFromBelowWithoutMaximum",   nullptr,   1,        "-5",         kDown, "-5.00",            kRefused},
    {"UpInside",                      "1~10",    3,        "4",          kUp,   "7.00",             kChanged},
    {"UpToTheMaximum",                "1~10",    3,        "7",          kUp,   "10.00",            kChanged},
    {"UpPastTheMaximumIsRefused",     "1~10",    3,        "9",          kUp,   "9.00",             kRefused},
    {"UpAtTheMaximumIsRefused",       "1~10",    3,        "10",         kUp,   "10.00",            kRefused},
    {"UpFromAboveGoesToTheMinimum",   "1~10",    3,        "11",         kUp,   "1.00",             kChanged},
    {"UpFromFarBelowIsRaised",        "5~10",    1,        "-7",         kUp,   "5.00",             kChanged},
    {"DownInside",                    "1~10",    3,        "7",          kDown, "4.00",             kChanged},
    {"DownToTheMinimum",              "1~10",    3,        "4",          kDown, "1.00",             kChanged},
    {"DownPastTheMinimumIsRefused",   "1~10",    3,        "2",          kDown, "2.00",             kRefused},
    {"DownFromBelowGoesToTheMaximum", "1~10",    3,        "0",          kDown, "10.00",            kChanged},
    {"DownFromFarAboveIsCut",         "1~10",    3,        "20",         kDown, "10.00",            kChanged},
    {"DownFromJustAboveIsAStep",      "1~10",    3,        "12",         kDown, "9.00",             kChanged},
    {"MaximumOnlyUp",                 "~50",     10,       "40",         kUp,   "50.00",            kChanged},
    {"MaximumOnlyStopsAtZero",        "~50",     10,       "5",          kDown, "5.00",             kRefused},
    {"MinimumOnlyHasNoTop",           "10",      1,        "12345",      kUp,   "12,346.00",        kChanged},
    {"MinimumOnlyStopsAtIt",          "10",      1,        "10",         kDown, "10.00",            kRefused},
    {"EmptyMaximumIsNone",            "10~",     1,        "12345",      kUp,   "12,346.00",        kChanged},
    {"NegativeMinimum",               "-20~5",   7,        "-13",        kDown, "-20.00",           kChanged},
    {"NegativeMinimumIsAnEnd",        "-20~5",   7,        "-14",        kDown, "-14.00",           kRefused},
    {"FractionsInTheRange",           "0.5~2.5", 1,        "1.5",        kUp,   "2.50",             kChanged},
    {"FractionsInTheRangeCount",      "0.5~2.5", 1,        "1.75",       kUp,   "1.75",             kRefused},
    {"IncrementOfNothingIsOne",       nullptr,   0,        "3",          kUp,   "4.00",             kChanged},
    {"LargestIncrementUp",            nullptr,   kLargest, "0.25",       kUp,   "4,294,967,295.25", kChanged},
    {"LargestIncrementDown",          nullptr,   kLargest, "4294967296", kDown, "1.00",             kChanged},
    {"LargestIncrementRefused",       "1~10",    kLargest, "5",          kUp,   "5.00",             kRefused},
    {"RangeReadAsFarAsItIsANumber",   "5apples", 1,        "6",          kDown, "5.00",             kChanged},
    {"MaximumBelowTheMinimumUp",      "9~1",     1,        "5",          kUp,   "9.00",             kChanged},
    {"MaximumBelowTheMinimumDown",    "9~1",     1,        "5",          kDown, "1.00",             kChanged},
};
TEST_ROWS(Common, StepOfNumber, kCommonSteps);

constexpr NumberStep kNumberSteps[] = {
    {"WrittenMaximumOfZeroIsNone",          "~0",       1, "0",   kUp,   "1.00",     kChanged},
    {"MaximumOfMinusZeroIsNone",            "5~-0",     1, "100", kUp,   "101.00",   kChanged},
    {"MinimumAndMaximumOfZero",             "5~0",      1, "5",   kDown, "5.00",     kRefused},
    {"RaisedToTheMinimumWithoutMaximum",    "5",        1, "2",   kUp,   "5.00",     kChanged},
    {"NegativeIsRaisedToZeroWithoutARange", nullptr,    1, "-5",  kUp,   "0.00",     kChanged},
    {"WordsAsRangeAreNone",                 "few~many", 1, "7",   kUp,   "8.00",     kChanged},
    {"LargeRangeEnd",                       "1e3~2e3",  1, "999", kUp,   "1,000.00", kChanged},
};
TEST_ROWS(NumbersAlone, StepOfNumber, kNumberSteps);

using StepOfDecimal = NumberSteps;

ROW_TEST(StepOfDecimal, LeadsTo)
{
    Check("#,##0.00", DT_DECIMAL);
}

TEST_ROWS(Common, StepOfDecimal, kCommonSteps);

constexpr NumberStep kDecimalSteps[] = {
    {"WrittenMaximumOfZeroCounts",              "~0",       1, "0",  kUp,   "0.00",  kRefused},
    {"WrittenMaximumOfZeroFromBelow",           "-5~0",     1, "-1", kUp,   "0.00",  kChanged},
    {"WordsAsMaximumAreAZeroThatCounts",        "few~many", 1, "7",  kDown, "0.00",  kChanged},
    {"NotRaisedToTheMinimumWithoutMaximum",     "5",        1, "2",  kUp,   "3.00",  kChanged},
    {"NotRaisedToTheMinimumWithAnEmptyMaximum", "5~",       1, "2",  kUp,   "3.00",  kChanged},
    {"NegativeStaysNegativeWithoutARange",      nullptr,    1, "-5", kUp,   "-4.00", kChanged},
};
TEST_ROWS(DecimalsAlone, StepOfDecimal, kDecimalSteps);

// clang-format off
constexpr NumberStep kExactSteps[] = {
    {"ExactAt28Digits", nullptr, 1,
     "12345678901234567890123456.99", kUp,   "12,345,678,901,234,567,890,123,457.99", kChanged},
    {"ExactAt28DigitsDown", nullptr, 1,
     "10000000000000000000000000.01", kDown, "9,999,999,999,999,999,999,999,999.01",  kChanged},
    {"RangeOf28Digits", "~99999999999999999999999999.99", 1,
     "99999999999999999999999999.00", kUp,   "99,999,999,999,999,999,999,999,999.00", kRefused},
};
// clang-format on
TEST_ROWS(ManyDigits, StepOfDecimal, kExactSteps);

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

TEST_F(StepAtTheLimits, UpFromAboveAHugeMaximumGoesToTheMinimum)
{
    MakeSpin("0", DT_NUMBER, "0~1e300", 1, nullptr);
    control_->SetDataString("2e300");
    Up();
    EXPECT_EQ(Text(), "0");
}

TEST_F(StepAtTheLimits, DownFromBelowTheMinimumGoesToAHugeMaximum)
{
    MakeSpin("0", DT_NUMBER, "0~1e300", 1, "-1");
    Down();
    EXPECT_EQ(Text(), "1" + std::string(300, '0'));
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
    control_->AcceptBlocks();
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

class StepUnderSettings : public SpinTest, public OfRow<RegionalStep> {};

ROW_TEST(StepUnderSettings, KeepsFractionsAndGroups)
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

constexpr RegionalStep kRegionalSteps[] = {
    {"DecimalComma",          &kGerman,       "#,##0.00", "1234.75", "1.234,75", "1.235,75"},
    {"BlankAsThousands",      &kFrench,       "#,##0.00", "1234.75", "1 234,75", "1 235,75"},
    {"ApostropheAsThousands", &kSwiss,        "#,##0.00", "1234.75", "1'234.75", "1'235.75"},
    {"DecimalPoint",          &kUnitedStates, "#,##0.00", "1234.75", "1,234.75", "1,235.75"},
    {"PercentWithComma",      &kGerman,       "##0.0%",   "0.125",   "12,5%",    "112,5%"  },
    {"PercentWithPoint",      &kUnitedStates, "##0.0%",   "0.125",   "12.5%",    "112.5%"  },
    {"Literals",              &kGerman,       "~k##0.0",  "99.5",    "k99,5",    "k100,5"  },
};
TEST_ROWS(Settings, StepUnderSettings, kRegionalSteps);

// How a step keeps its own drawing off the screen.
struct Stepped {
    const char* name;
    const char* mask;
    int32_t type;
    const char* data;
};
void PrintTo(const Stepped& row, std::ostream* out)
{
    *out << row.name;
}

class RedrawOfAStep : public SpinTest, public OfRow<Stepped> {};

ROW_TEST(RedrawOfAStep, IsTurnedOffAndOn)
{
    const Stepped& row = GetParam();
    MakeSpin(row.mask, row.type, nullptr, 1, row.data);
    const FieldRecorder recorder;
    Up();
    EXPECT_EQ(recorder.Redraws(), (std::vector<std::string>{"redraw off", "redraw on"}));
}

constexpr Stepped kStepped[] = {
    {"Number",   "##0",            DT_NUMBER,   "7"               },
    {"Decimal",  "##0",            DT_DECIMAL,  "7"               },
    {"Date",     "MM/DD/YY",       DT_DATE,     "1995-07-04"      },
    {"Time",     "HH:MM",          DT_TIME,     "10:20"           },
    {"DateTime", "MM/DD/YY HH:MM", DT_DATETIME, "1995-07-04 10:20"},
    {"String",   "AAAA",           DT_STRING,   "abcd"            },
};
TEST_ROWS(Types, RedrawOfAStep, kStepped);

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

TEST_F(EveryStep, OfAStringChangesNothingButNotifies)
{
    MakeSpin("AAAA", DT_STRING, nullptr, 1, "abcd");
    PutCaret(2);
    Up();
    EXPECT_EQ(Shown(), "ab|cd");
    EXPECT_EQ(control_->Notices(), std::vector<Notice>{Notice::Changed});
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

TEST_F(EveryStep, OfATextWithoutAMaskMovesNothingButNotifies)
{
    MakeSpin("", DT_STRING, nullptr, 1, "abcd");
    PutCaret(2);
    Up();
    Down();
    EXPECT_EQ(Shown(), "ab|cd");
    EXPECT_EQ(control_->Notices(), std::vector<Notice>{Notice::Changed});
    EXPECT_FALSE(control_->IsModified());
    EXPECT_TRUE(Record().spun);
    Type("x");
    EXPECT_FALSE(Record().spun);
    EXPECT_EQ(Shown(), "abx|cd");
}

TEST_F(EveryStep, WithoutASpinLeavesTheArrowsToTheEdit)
{
    Config config;
    config.mask = "";
    config.type = DT_STRING;
    config.data = "abcd";
    Make(config);
    PutCaret(2);
    Up();
    EXPECT_EQ(Shown(), "a|bcd");
}

struct ModifiedCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* range;
    const char* data;
    const char* codes;
};
void PrintTo(const ModifiedCase& row, std::ostream* out)
{
    *out << row.name;
}

class StepModifies : public SpinTest, public OfRow<ModifiedCase> {};

ROW_TEST(StepModifies, WhatItChangesUntilTheProgramSetsData)
{
    const ModifiedCase& row = GetParam();
    MakeSpin(row.mask, row.type, row.range, 1, row.data);
    SetSpin(1, row.range, row.codes, row.codes ? SPINSTYLE_CODETABLE : 0);
    control_->SetDataString(row.data);
    control_->Select(0, 0);
    EXPECT_FALSE(control_->IsModified());
    const std::string before = Text();
    bool seen = false;
    control_->OnNotice([&] { seen = control_->IsModified(); });
    Up();
    control_->OnNotice(nullptr);
    EXPECT_NE(Text(), before);
    EXPECT_TRUE(control_->IsModified());
    EXPECT_TRUE(seen) << "when the parent hears of the step";
    EXPECT_FALSE(control_->CanUndo());
    control_->SetDataString(row.data);
    EXPECT_FALSE(control_->IsModified());
}

// clang-format off
const ModifiedCase kModifiedRows[] = {
    {"ANumber",    "#,##0.00",            DT_NUMBER,   "1~9",                     "5",                nullptr           },
    {"ADecimal",   "#,##0.00",            DT_DECIMAL,  "1~9",                     "5",                nullptr           },
    {"ADate",      "MM/DD/YYYY",          DT_DATE,     nullptr,                   "1995-07-04",       nullptr           },
    {"ADateAtEnd", "MM/DD/YYYY",          DT_DATE,     "1995-01-01~1995-07-31",   "1995-07-04",       nullptr           },
    {"ATime",      "HH:MM AM/PM",         DT_TIME,     nullptr,                   "13:30",            nullptr           },
    {"ADateTime",  "MM/DD/YYYY HH:MM",    DT_DATETIME, nullptr,                   "1995-07-04 13:30", nullptr           },
    {"ACode",      "XXXX",                DT_STRING,   nullptr,                   "R",                "Red\tR/Green\tG" },
    {"APlainCode", "",                    DT_STRING,   nullptr,                   "R",                "Red\tR/Green\tG" },
};
// clang-format on
TEST_ROWS(Types, StepModifies, kModifiedRows);

TEST_F(EveryStep, ThatIsRefusedModifiesNothing)
{
    MakeSpin("##0", DT_NUMBER, "1~9", 1, "9");
    Up();
    EXPECT_FALSE(control_->IsModified());
}

TEST_F(EveryStep, ThatIsRefusedLeavesWhatTheUserHasModified)
{
    MakeSpin("XXXX", DT_STRING, nullptr, 1, nullptr);
    SetSpin(1, nullptr, "Red\tR", SPINSTYLE_CODETABLE);
    Up();
    EXPECT_TRUE(control_->IsModified());
    Up();
    EXPECT_EQ(Text(), "Red");
    EXPECT_TRUE(control_->IsModified());
}

class TextPutThereByTheSpin : public SpinTest {};

TEST_F(TextPutThereByTheSpin, EndsWithTheFirstTypedCharacter)
{
    struct Row {
        const char* mask;
        int32_t type;
        const char* data;
    };
    constexpr Row kRows[] = {
        {"##0",        DT_NUMBER,  "7"         },
        {"#,##0.00",   DT_DECIMAL, "7"         },
        {"MM/DD/YYYY", DT_DATE,    "1995-07-04"},
        {"HH:MM",      DT_TIME,    "10:20"     },
        {"AAAA",       DT_STRING,  "abcd"      },
        {"",           DT_STRING,  "abcd"      }
    };
    for (const Row& row : kRows) {
        MakeSpin(row.mask, row.type, nullptr, 1, row.data);
        Up();
        EXPECT_TRUE(Record().spun) << row.mask;
        Play("{Home}");
        EXPECT_TRUE(Record().spun) << row.mask;
        Type("1");
        EXPECT_FALSE(Record().spun) << row.mask;
    }
}

TEST_F(TextPutThereByTheSpin, EndsWithANewMask)
{
    MakeSpin("##0", DT_NUMBER, nullptr, 1, "7");
    Up();
    control_->SetMask("#,##0.00", DT_NUMBER);
    EXPECT_FALSE(Record().spun);
    EXPECT_NE(Record().formatFlags, 0u);
}

TEST_F(TextPutThereByTheSpin, OfACodeTableIsNotEmptiedByControlCharacters)
{
    MakeCodeTable("XXXXXX", DT_STRING, "Red\tR/Green\tG", SPINSTYLE_CODETABLE);
    Up();
    Type("\x1b\t\r\x1a");
    EXPECT_EQ(Text(), "Red");
    EXPECT_TRUE(Record().spun);
    Type("q");
    EXPECT_EQ(Text(), "q") << "the text of the table gives way";
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
    Up();
    EXPECT_EQ(Text(), "7");
}

}  // namespace
}  // namespace zttest
