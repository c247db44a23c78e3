// Whoever types a number gets that number: as a clerk types it, over what stands there, with Home, Backspace, a minus, a point
// and a wrong key on the way.
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

// clang-format off
const KeyCase kLawRows[] = {
    // Masks of '0' alone are filled from their first position.
    {"FourDigitsOverFour",                     "0000",         DT_NUMBER,  "[1234]",         "5678",            "5678|",          0},
    {"AnAmountOverForcedZeros",                "00.00",        DT_NUMBER,  "[12.34]",        "56.78",           "56.78|",         0},
    {"FewerDigitsAndThePoint",                 "00.00",        DT_NUMBER,  "[12.34]",        "6.78",            "06.78|",         0},
    {"ThePointFirst",                          "00.00",        DT_NUMBER,  "[12.34]",        ".5",              "00.5|0",         0},
    {"AForcedPercentage",                      "000.0%",       DT_NUMBER,  "[099.9%]",       "12.5",            "012.5|%",        0},
    {"AForcedPercentageOfWholes",              "000%",         DT_NUMBER,  "[099]%",         "125",             "125|%",          0},
    {"ASignTakesNoDigitsPlace",                "000",          DT_NUMBER,  "|123",           "-",               "-|123",          0},
    {"ASignAndAllDigits",                      "000",          DT_NUMBER,  "[123]",          "-456",            "-456|",          0},
    {"EmptiedByDelete",                        "0000",         DT_NUMBER,  "[1234]",         "{Del}5678",       "5678|",          0},
    {"EmptiedByBackspaces",                    "0000",         DT_NUMBER,  "1234|",          "{Back}{Back}{Back}{Back}5678", "5678|", 0},
    {"EmptiedByDeletes",                       "00.00",        DT_NUMBER,  "|12.00",         "{Del}{Del}56.78", "56.78|",         0},
    {"OneDigitOfAForcedNumber",                "0000",         DT_NUMBER,  "1[2]34",         "7",               "17|34",          0},
    {"TheLastDigitOfForcedZeros",              "000",          DT_NUMBER,  "00[0]",          "9",               "009|",           0},

    // The point.
    {"AHalfOverANumber",                       "#,##0.00",     DT_NUMBER,  "[1,234.56]",     ".5",              "0.5|0",          0},
    {"AHalfWithItsZero",                       "#,##0.00",     DT_NUMBER,  "[1,234.56]",     "0.5",             "0.5|0",          0},
    {"WhatStoodLeftOfADeletedPointStaysThere", "#,##0.00",     DT_NUMBER,  "13[.00]",        "{Del}",           "13|.00",         0},
    {"APointInFrontOfTheFraction",             ".00",          DT_NUMBER,  "|.00",           "0.5",             ".5|0",           0},
    {"TypedZerosOfAnOpenFractionStay",         "#.##",         DT_NUMBER,  "|.",             ".05",             ".05|",           0},
    {"ARefusedKeyDropsNoTypedZero",            "#.##",         DT_NUMBER,  "|.",             ".0x5",            ".05|",           1},
    {"APointBeforeTheSignTakesItAway",         "#,##0.00",     DT_NUMBER,  "|-3.80",         ".",               "0.|80",          0},
    {"APointBehindTheSignLeavesIt",            "#,##0.00",     DT_NUMBER,  "-|3.80",         ".",               "-0.|80",         0},
    {"ASecondPointBeeps",                      "#,##0.00",     DT_NUMBER,  "[5.00]",         "1.2.3",           "1.23|",          1},

    // The minus.
    {"MinusAHalf",                             "#,##0.00",     DT_NUMBER,  "[5.00]",         "-0.5",            "-0.5|0",         0},
    {"MinusAHalfWithoutItsZero",               "#,##0.00",     DT_NUMBER,  "[5.00]",         "-.5",             "-0.5|0",         0},
    {"MinusFiveHundredths",                    "#,##0.00",     DT_NUMBER,  "|0.00",          "-0.05",           "-0.05|",         0},
    {"MinusAHalfWhereZerosAreNotShown",        "#,#.00",       DT_NUMBER,  "|.00",           "-0.5",            "-.5|0",          0},
    {"MinusOverAnAmountOfMoney",               "[currency(9)]", DT_NUMBER, "[$12.00]",       "-5",              "$-5|.00",        0},
    {"MinusOverAnAmountWithASymbol",           "$#,##0.00",    DT_NUMBER,  "[$12.00]",       "-56",             "$-56|.00",       0},
    {"MinusOverWholeMoney",                    "$###",         DT_NUMBER,  "[$12]",          "-56",             "$-56|",          0},
    {"MinusFromTheFirstDigit",                 "$#,##0.00",    DT_NUMBER,  "$[12.00]",       "-56",             "$-56|.00",       0},
    {"ASignTakesNoRoom",                       "#,##0.00",     DT_NUMBER,  "[5.00]",         "-1234.56",        "-1,234.56|",     0},
    {"ASignAsItIsRead",                        "#,##0.00",     DT_NUMBER,  "[5.00]",         "-1,234.56",       "-1,234.56|",     1},
    {"ASignBeforeAFullNumber",                 "#,###.00",     DT_NUMBER,  "|1,234.56",      "-",               "-|1,234.56",     0},
    {"ASignIsStillThereAfterAWrongKey",        "#,##0.00",     DT_NUMBER,  "[5.00]",         "-x5",             "-5|.00",         1},
    {"APlusIsNotShown",                        "#,##0.00",     DT_NUMBER,  "[5.00]",         "+12",             "12|.00",         0},
    {"APlusInTheMiddleBeeps",                  "#,##0.00",     DT_NUMBER,  "1|2.00",         "+",               "1|2.00",         1},
    {"APlusTakesAMinusAway",                   "#,##0.00",     DT_NUMBER,  "|-12.00",        "+",               "|12.00",         0},
    {"BackspaceTakesTheSignOnlyAtIt",          "##0",          DT_NUMBER,  "-6|",            "{Back}5",         "-5|",            0},
    {"BackspaceAtTheSign",                     "##0",          DT_NUMBER,  "-|6",            "{Back}",          "|6",             0},

    // Zeros.
    {"AZeroFirst",                             "#,#.00",       DT_NUMBER,  "|.00",           "05",              "5|.00",          0},
    {"AZeroBeforeThreeDigits",                 "#,###,###.00", DT_NUMBER,  "|.00",           "0123",            "123|.00",        0},
    {"BeforeAZeroThatNobodyTyped",             "#,##0.00",     DT_NUMBER,  "|0.00",          "5",               "5|.00",          0},
    {"BehindAZeroThatNobodyTyped",             "#,##0.00",     DT_NUMBER,  "0|.00",          "5",               "5|.00",          0},
    {"AmongZerosThatNobodyTyped",              "#,#00.00",     DT_NUMBER,  "0|0.00",         "57",              "57|.00",         0},
    {"AfterSixBackspaces",                     "#,##0.00",     DT_NUMBER,  "45.00|",
     "{Back}{Back}{Back}{Back}{Back}{Back}12", "12|.00", 0},
    {"AfterTwoBackspaces",                     "##0",          DT_NUMBER,  "10|",            "{Back}{Back}25",  "25|",            0},
    {"AfterDelete",                            "#,##0.00",     DT_NUMBER,  "[123.45]",       "{Del}53",         "53|.00",         0},
    {"FromTheFirstDigitToTheEnd",              "$#,##0.00",    DT_NUMBER,  "$[12.00]",       "12",              "$12|.00",        0},

    // What stands around the number.
    {"AnAmountAsItIsShown",                    "$#,##0.00",    DT_NUMBER,  "[$12.00]",       "$1234.50",        "$1,234.50|",     0},
    {"TheSymbolOverAnEmptiedAmount",           "$#,##0.00",    DT_NUMBER,  "[$12.00]",       "{Del}$5",         "$5|.00",         0},
    {"TheSymbolFromHome",                      "$#,##0.00",    DT_NUMBER,  "|$0.00",         "$5",              "$5|.00",         0},
    {"ASecondSymbolBeeps",                     "$#,##0.00",    DT_NUMBER,  "[$12.00]",       "$$5",             "$5|.00",         1},
    {"ASeparatorBeepsAndChangesNothing",       "$#,##0.00",    DT_NUMBER,  "[$12.00]",       "$1,234.50",       "$1,234.50|",     1},
    {"AnOptionalPercentage",                   "##0%",         DT_NUMBER,  "[12]%",          "125",             "125|%",          0},
    {"AnOptionalPercentageDeleted",            "##0%",         DT_NUMBER,  "[12]%",          "{Del}125",        "125|%",          0},
    {"APercentageThatShowsNoZero",             "###%",         DT_NUMBER,  "[12%]",          "125",             "125|%",          0},
    {"AZeroBeforeAPercentage",                 "###%",         DT_NUMBER,  "[12%]",          "056",             "56|%",           0},
    {"AZeroBeforeAShortPercentage",            "#%",           DT_NUMBER,  "[5%]",           "07",              "7|%",            0},
    {"ThePercentSignIsPassed",                 "##0%",         DT_NUMBER,  "[12%]",          "25%",             "25%|",           0},
    {"OverOneDigitOfAFraction",                "#,##0.00%",    DT_NUMBER,  "65.0[0]%",       "5",               "65.05|%",        0},
    {"OverTheFirstDigitOfAFraction",           "#,##0.00",     DT_NUMBER,  "12.[3]4",        "7",               "12.7|4",         0},

    // Wrong keys.
    {"AWrongKeyOverANumber",                   "#,##0.00",     DT_NUMBER,  "[1,234.50]",     "x12",             "12|.00",         1},
    {"AWrongKeyBetween",                       "#,##0.00",     DT_NUMBER,  "[1,234.50]",     "1x2",             "12|.00",         1},
    {"AWrongKeyAtASeparator",                  "#,##0.00",     DT_NUMBER,  "1|,234.00",      "x",               "1|,234.00",      1},

    // Backspace and separators.
    {"BackspaceBeforeThePoint",                "#,##0.00",     DT_NUMBER,  "1,234|.00",      "{Back}",          "123|.00",        0},
    {"BackspaceInTheFractionLeavesAZero",      "#,##0.00",     DT_NUMBER,  "12.5|6",         "{Back}",          "12.|06",         0},
    {"BackspaceInAnOpenFraction",              "#,##0.##",     DT_NUMBER,  "12.5|6",         "{Back}",          "12.|6",          0},
    {"BackspaceBehindThePercentSign",          "##0%",         DT_NUMBER,  "12%|",           "{Back}",          "1|%",            0},

    // Full.
    {"TheSeparatorIsNotOverwritten",           "#,###,###.00", DT_NUMBER,  "1|,234,567.89",  "9",               "1,9|34,567.89",  0},
    {"AFullNumberIsTypedOver",                 "#,#.00",       DT_NUMBER,  "|123.00",        "456",             "456.|00",        0},
    {"AFullNumberIsTypedOverWithAZero",        "#,#.00",       DT_NUMBER,  "|123.00",        "056",             "056.|00",        0},
    {"TwentyDigits",                           "####################", DT_NUMBER, "|",
     "12345678901234567890", "12345678901234567890|", 0},
    {"TwentyDigitsOfADecimal",                 "####################", DT_DECIMAL, "|",
     "12345678901234567890", "12345678901234567890|", 0},
    {"AFullPercentageBeeps",                   "##0%",         DT_NUMBER,  "125|%",          "6",               "125|%",          1},
};
// clang-format on

class NumberLaw : public KeyTable {};

ROW_TEST(NumberLaw, LeadsTo)
{
    Check(GetParam());
}

TEST_ROWS(UnitedStates, NumberLaw, kLawRows);

// clang-format off
const KeyCase kCzechRows[] = {
    {"TypedAfterABackspace",         "[currency(7)]", DT_NUMBER,  "[567]Kc",      "56{Back}7",  "57|Kc",       0},
    {"TypedOverTheWhole",            "[currency(5)]", DT_NUMBER,  "[123]Kc",      "456",        "456|Kc",      0},
    {"NothingIsShownAsZero",         "[currency(5)]", DT_NUMBER,  "[123]Kc",      "{Del}",      "|0Kc",        0},
    {"TheSymbolBehindIsPassed",      "[currency(5)]", DT_NUMBER,  "[123Kc]",      "456Kc",      "456Kc|",      0},
    {"AZeroFirst",                   "[currency(8)]", DT_NUMBER,  "[123Kc]",      "056",        "56|Kc",       0},
    {"FullBeforeTheSymbolBeeps",     "[currency(3)]", DT_NUMBER,  "123|Kc",       "4",          "123|Kc",      1},
};

const KeyCase kDanishRows[] = {
    {"ASymbolWithAPoint",            "[currency(9)]", DT_NUMBER,  "|kr.,00",      "1234,5",     "kr.1.234,5|0", 0},
    {"TypedAsItIsShown",             "[currency(9)]", DT_NUMBER,  "[kr.12,00]",   "kr.5,25",    "kr.5,25|",    0},
    {"TheMaskOfAForm",               "kr.#,##0",      DT_NUMBER,  "[kr.12]",      "kr.57",      "kr.57|",      0},
};

const KeyCase kSwissFrancRows[] = {
    {"ASymbolWithThePoint",          "[currency(9)]", DT_NUMBER,  "|Fr..00",      "1234.5",     "Fr.1'234.5|0", 0},
    {"TypedAsItIsShown",             "[currency(9)]", DT_NUMBER,  "[Fr.12.00]",   "Fr.5.25",    "Fr.5.25|",    0},
    {"APointFirstBeginsTheFraction", "[currency(9)]", DT_NUMBER,  "[Fr.12.00]",   ".25",        "Fr..25|",     0},
};

const KeyCase kMexicanRows[] = {
    {"LettersThatMasksRead",         "[currency(9)]", DT_NUMBER,  "[MXN12.00]",   "1234.5",     "MXN1,234.5|0", 0},
    {"TypedAsItIsShown",             "[currency(9)]", DT_DECIMAL, "[MXN12.00]",   "MXN5.25",    "MXN5.25|",    0},
    {"ASignBehindTheSymbol",         "[currency(9)]", DT_NUMBER,  "[MXN12.00]",   "-5",         "MXN-5|.00",   0},
};
// clang-format on

RegionalSet Currency(const RegionalSet& set, const char* symbol, const char* position, const char* digits)
{
    return With(set, {
                         {"sCurrency",   symbol  },
                         {"iCurrency",   position},
                         {"iCurrDigits", digits  }
    });
}

class CzechNumberLaw : public KeyTable {
    const Regional regional_{Currency(kFrench, "Kc", "1", "0")};
};
class DanishNumberLaw : public KeyTable {
    const Regional regional_{Currency(kGerman, "kr.", "0", "2")};
};
class SwissFrancNumberLaw : public KeyTable {
    const Regional regional_{Currency(kSwiss, "Fr.", "0", "2")};
};
class MexicanNumberLaw : public KeyTable {
    const Regional regional_{Currency(kUnitedStates, "MXN", "0", "2")};
};

ROW_TEST(CzechNumberLaw, LeadsTo)
{
    Check(GetParam());
}
ROW_TEST(DanishNumberLaw, LeadsTo)
{
    Check(GetParam());
}
ROW_TEST(SwissFrancNumberLaw, LeadsTo)
{
    Check(GetParam());
}
ROW_TEST(MexicanNumberLaw, LeadsTo)
{
    Check(GetParam());
}

TEST_ROWS(Rows, CzechNumberLaw, kCzechRows);
TEST_ROWS(Rows, DanishNumberLaw, kDanishRows);
TEST_ROWS(Rows, SwissFrancNumberLaw, kSwissFrancRows);
TEST_ROWS(Rows, MexicanNumberLaw, kMexicanRows);

// What is read back while and after a number is typed.
struct ReadCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* given;
    const char* keys;
    const char* value;
};
void PrintTo(const ReadCase& row, std::ostream* out)
{
    *out << row.name;
}

// clang-format off
const ReadCase kReadRows[] = {
    {"ALoneSign",                  "####",          DT_NUMBER,  "|",        "-",            "0"                     },
    {"ASignBeforeZero",            "#,##0.00",      DT_NUMBER,  "|0.00",    "-0",           "0.00"                  },
    {"ASignWhereNoZeroIsShown",    "#,#.00",        DT_NUMBER,  "|.00",     "-",            ".00"                   },
    {"ANegativeAmount",            "#,##0.00",      DT_NUMBER,  "[5.00]",   "-0.5",         "-0.50"                 },
    {"AnAmountOfMoney",            "[currency(9)]", DT_NUMBER,  "[$5.00]",  "-1234.5",      "-1234.50"              },
    {"APercentage",                "000.0%",        DT_NUMBER,  "[099.9%]", "12.5",         "0.125"                 },
    {"ASmallPercentage",           "#,##0.00%",     DT_NUMBER,  "[5.00%]",  "-.05",         "-0.0005"               },
    {"AWholePercentage",           "##0%",          DT_NUMBER,  "[5%]",     "100",          "1"                     },
    {"AZeroPercentage",            "##0%",          DT_NUMBER,  "[5%]",     "-0",           "0"                     },
    {"EveryDigitOfAPercentage",    "#,##0.000000000000000000%", DT_DECIMAL, "[0.000000000000000000%]",
     "12.345678901234567890", "0.1234567890123456789"},
    {"AnEscapedDigit",             "Tel~5#",        DT_NUMBER,  "Tel5|",    "7",            "7"                     },
    {"ALiteralBehindASeparator",   ",~5##0",        DT_NUMBER,  "5|0",      "12",           "12"                    },
    {"AnEscapedPoint",             "~.###",         DT_NUMBER,  ".|",       "123",          "123"                   },
    {"TwentyDigits",               "####################", DT_DECIMAL, "|", "12345678901234567890", "12345678901234567890"},
};
// clang-format on

class NumberReadBack : public EditTest, public OfRow<ReadCase> {};

ROW_TEST(NumberReadBack, Is)
{
    GivenText(GetParam().mask, GetParam().type, GetParam().given);
    Play(GetParam().keys);
    EXPECT_EQ(Value(), GetParam().value) << Shown();
    EXPECT_EQ(Beeps(), 0);
}

TEST_ROWS(Rows, NumberReadBack, kReadRows);

class NumberFocus : public EditTest {};

TEST_F(NumberFocus, MovesOnOnlyAfterTheLastFractionDigit)
{
    const Regional settings(kFrench);
    Given("[currency(5)]", DT_NUMBER, "123,[4]5F", ZTEO_AUTOSKIP);
    Type("8");
    EXPECT_EQ(Shown(), "123,8|5F");
    EXPECT_EQ(Skips(), 0);
    Type("9");
    EXPECT_EQ(Skips(), 1);
}

TEST_F(NumberFocus, TakesTheSignOfZeroAway)
{
    Given("$#,##0.00", DT_NUMBER, "[$5.00]");
    Type("-");
    EXPECT_EQ(Shown(), "$-|0.00");
    control_->LoseFocus();
    EXPECT_EQ(Text(), "$0.00");
    EXPECT_TRUE(control_->IsModified());
}

TEST_F(NumberFocus, LeavesTheSignOfANumber)
{
    Given("#,##0.00", DT_NUMBER, "[5.00]");
    Type("-0.05");
    control_->LoseFocus();
    EXPECT_EQ(Text(), "-0.05");
}

TEST_F(NumberFocus, LeavesTextsThatAreNoNumberAlone)
{
    GivenText("#,##0.00", DT_NUMBER, "-none-|");
    control_->LoseFocus();
    EXPECT_EQ(Text(), "-none-");
}

TEST_F(NumberFocus, LeavesAControlThatTakesNoInputAlone)
{
    GivenText("#,##0.00", DT_NUMBER, "-0.00|");
    control_->SetReadOnly();
    control_->LoseFocus();
    EXPECT_EQ(Text(), "-0.00");
}

class SignOfZero : public SpinTest {};

TEST_F(SignOfZero, EndsWithAStep)
{
    MakeSpin("##0", DT_NUMBER, "-9~9", 1, "5");
    SelectAll();
    Type("-");
    EXPECT_EQ(Text(), "-0");
    Up();
    EXPECT_EQ(Text(), "1");
}

class NumberModified : public EditTest {};

TEST_F(NumberModified, IsSetByTypingAndByDeletion)
{
    Given("#,##0.00", DT_NUMBER, "|0.00");
    control_->ForgetModified();
    Type("5");
    EXPECT_TRUE(control_->IsModified());
    control_->ForgetModified();
    Backspace();
    EXPECT_TRUE(control_->IsModified());
}

TEST_F(NumberModified, IsNotSetByAKeyThatIsRefused)
{
    Given("#,##0.00", DT_NUMBER, "5|.00");
    control_->ForgetModified();
    Type("x");
    EXPECT_FALSE(control_->IsModified());
}

TEST_F(NumberModified, IsClearedByTheProgram)
{
    Given("#,##0.00", DT_NUMBER, "|0.00");
    Type("5");
    control_->SetDataString("7");
    EXPECT_FALSE(control_->IsModified());
}

class BackspaceWithoutItsCharacter : public EditTest {};

TEST_F(BackspaceWithoutItsCharacter, IsForgottenAtTheNextKey)
{
    Given("##0", DT_NUMBER, "|0");
    control_->Keys().KeyDownAlone('\b');
    Play("8{Back}");
    EXPECT_EQ(Shown(), "|0");
}

class EqualSeparators : public ValueTest {
    const Regional regional_{
        With(kUnitedStates, {{"sThousand", "."}}
         )
    };
};

TEST_F(EqualSeparators, GroupNothing)
{
    Install("[currency(9)]", DT_NUMBER);
    control_->SetDataString("1234.5");
    EXPECT_EQ(Text(), "$1234.50");
    EXPECT_EQ(Value(), "1234.50");
}

class General : public ValueTest {};

TEST_F(General, ReadsTheExponentsThatItShows)
{
    for (const char* value : {"1E+300", "1E-17", "-2.5E+20", "0.5", "1E+16"}) {
        Install("[GENERAL]", DT_NUMBER);
        control_->SetDataString(value);
        EXPECT_EQ(Text(), value);
        EXPECT_EQ(Value(), value);
    }
}

TEST_F(General, IsNotTypedInto)
{
    Install("[GENERAL]", DT_NUMBER);
    control_->SetDataString("12.5");
    Play("{Home}7{Del}x");
    EXPECT_EQ(Text(), "12.5");
    EXPECT_EQ(Beeps(), 2);
}

}  // namespace
}  // namespace zttest
