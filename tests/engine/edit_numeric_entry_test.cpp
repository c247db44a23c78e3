// Typing into numbers and decimals: digits grow to the left of the point, and the text is laid through the mask again.
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

// clang-format off
const KeyCase kNumberRows[] = {
    {"OneDigitIntoAnEmptyNumber",                      "#,#.00",        DT_NUMBER,  "|.00",      "1",          "1|.00",         0},
    {"TwoDigitsIntoAnEmptyNumber",                     "#,#.00",        DT_NUMBER,  "|.00",      "12",         "12|.00",        0},
    {"AFilledIntegerPartLeadsBehindThePoint",          "#,#.00",        DT_NUMBER,  "|.00",      "123",        "123.|00",       0},
    {"ThePointAfterItWasPassedIsTakenAsTyped",         "#,#.00",        DT_NUMBER,  "|.00",      "123.",       "123.|00",       0},
    {"AnAmountAsItIsRead",                             "#,#.00",        DT_NUMBER,  "|.00",      "123.45",     "123.45|",       0},
    {"AnAmountWithoutItsPoint",                        "#,#.00",        DT_NUMBER,  "|.00",      "12345",      "123.45|",       0},
    {"ThePointTypedEarly",                             "#,#.00",        DT_NUMBER,  "|.00",      "1.5",        "1.5|0",         0},
    {"ThousandsAreGroupedWhileTyping",                 "#,###,###.00",  DT_NUMBER,  "|.00",      "1234",       "1,234|.00",     0},
    {"MillionsAreGroupedWhileTyping",                  "#,###,###.00",  DT_NUMBER,  "|.00",      "123456.78",  "123,456.78|",   0},
    {"TheWholeMaskFills",                              "#,###,###.00",  DT_NUMBER,  "|.00",      "1234567.89", "1,234,567.89|", 0},
    {"ADigitInTheMiddleIsInserted",                    "#,###,###.00",  DT_NUMBER,  "1|2.00",    "9",          "19|2.00",       0},
    {"ADigitInTheFractionOverwrites",                  "#,##0.00",      DT_NUMBER,  "12.|50",    "7",          "12.7|0",        0},
    {"TheLastFractionDigitOverwrites",                 "#,##0.00",      DT_NUMBER,  "12.7|0",    "5",          "12.75|",        0},
    {"BehindTheFractionADigitIsDropped",               "#,##0.00",      DT_NUMBER,  "123.00|",   "5",          "123.00|",       0},
    {"ThePointInTheIntegerPartDropsTheDigitsBehindIt", "#,##0.00",      DT_NUMBER,  "1|23.45",   ".",          "1.|45",         0},
    {"ThePointOnThePointStepsOverIt",                  "#,##0.00",      DT_NUMBER,  "123|.45",   ".",          "123.|45",       0},
    {"ThePointInTheFractionBeeps",                     "#,##0.00",      DT_NUMBER,  "123.4|5",   ".",          "123.4|5",       1},
    {"ThePointInAWholeNumberBeeps",                    "#,###",         DT_NUMBER,  "1|23",      ".",          "1|23",          1},
    {"ALetterBeeps",                                   "#,##0.00",      DT_NUMBER,  "12|3.00",   "x",          "12|3.00",       1},
    {"ALetterInTheFractionBeeps",                      "#,##0.00",      DT_NUMBER,  "123.4|5",   "x",          "123.4|5",       1},
    {"ASignAtTheFrontIsTaken",                         "#,##0.00",      DT_NUMBER,  "|123.00",   "-",          "-|123.00",      0},
    {"ASignElsewhereBeeps",                            "#,##0.00",      DT_NUMBER,  "1|23.00",   "-",          "1|23.00",       1},
    {"ASecondSignReplacesTheFirst",                    "#,##0.00",      DT_NUMBER,  "|-123.00",  "-",          "-|123.00",      0},
    {"ASignBeforeZero",                                "#,#.00",        DT_NUMBER,  "|.00",      "-5",         "-5|.00",        0},
    {"ANegativeAmount",                                "#,##0.00",      DT_NUMBER,  "[0.00]",    "-12.50",     "-12.50|",       0},

    {"TypingOverTheWholeNumber",                       "#,##0.00",      DT_NUMBER,  "[123.45]",  "53",         "53|.00",        0},
    {"TypingOverTheWholeNumberWithoutZero",            "#,#.00",        DT_NUMBER,  "[123.45]",  "53",         "53|.00",        0},
    {"TypingOverTheWholeNumberWithAFraction",          "#,##0.00",      DT_NUMBER,  "[123.45]",  "5.25",       "5.25|",         0},
    {"TypingOverOneDigit",                             "#,##0.00",      DT_NUMBER,  "1[2]3.45",  "7",          "17|3.45",       0},
    {"TypingOverTheFraction",                          "#,##0.00",      DT_NUMBER,  "12.[50]",   "75",         "12.75|",        0},
    {"TypingAfterEmptying",                            "#,##0.00",      DT_NUMBER,  "[123.45]",  "{Del}53",    "53|.00",        0},

    {"ZeroMaskOverwrites",                             "000",           DT_NUMBER,  "|000",      "5",          "5|00",          0},
    {"ZeroMaskFills",                                  "000",           DT_NUMBER,  "|000",      "123",        "123|",          0},
    {"ZeroMaskTakesASignAtTheFront",                   "000",           DT_NUMBER,  "|000",      "-",          "-|000",         0},
    {"ZeroMaskWithFraction",                           "0.00",          DT_NUMBER,  "|0.00",     "5.25",       "5.25|",         0},
    {"ThePointOfAZeroMaskIsNotOverwritten",            "00.00",         DT_NUMBER,  "12|.34",    "5",          "12.5|4",        0},

    {"WholeNumber",                                    "####",          DT_NUMBER,  "|",         "1234",       "1234|",         0},
    {"WholeNumberFullDropsSilently",                   "####",          DT_NUMBER,  "|",         "12345",      "1234|",         0},

    {"PercentFraction",                                "#,##0.00%",     DT_NUMBER,  "12.|50%",   "7",          "12.7|0%",       0},
    {"PercentIntegerPart",                             "#,##0.00%",     DT_NUMBER,  "1|.50%",    "2",          "12|.50%",       0},
    {"PercentOverTheWhole",                            "#,##0.00%",     DT_NUMBER,  "[12.50%]",  "53",         "53|.00%",       0},
    {"PercentOverTheWholeWithAFraction",               "#,##0.00%",     DT_NUMBER,  "[12.50%]",  "7.25",       "7.25|%",        0},

    {"CurrencyFromTheFront",                           "[currency(9)]", DT_NUMBER,  "|$.00",     "5",          "$5|.00",        0},
    {"CurrencyBehindTheSymbol",                        "[currency(9)]", DT_NUMBER,  "$|.00",     "1234.5",     "$1,234.5|0",    0},
    {"CurrencyOverTheWhole",                           "[currency(9)]", DT_NUMBER,  "[$123.45]", "53",         "$53|.00",       0},
    {"CurrencySign",                                   "[currency(9)]", DT_NUMBER,  "$|5.00",    "-",          "$-|5.00",       0},

    {"DecimalAmount",                                  "#,#.00",        DT_DECIMAL, "|.00",      "123.45",     "123.45|",       0},
    {"DecimalOverTheWhole",                            "#,##0.00",      DT_DECIMAL, "[123.45]",  "53",         "53|.00",        0},
    {"DecimalPercent",                                 "#,##0.00%",     DT_DECIMAL, "12.|50%",   "7",          "12.7|0%",       0},
    {"DecimalGrouping",                                "#,###,###.00",  DT_DECIMAL, "|.00",      "123456.78",  "123,456.78|",   0},
};
// clang-format on

class NumberEntry : public KeyTable {};

ROW_TEST(NumberEntry, LeadsTo)
{
    Check(GetParam());
}

TEST_ROWS(UnitedStates, NumberEntry, kNumberRows);

// The same under other settings. The mask "" stands for the default "#,#.00".
// clang-format off
const KeyCase kGermanRows[] = {
    {"AnAmountAsItIsRead",            "",              DT_NUMBER,  "|,00",          "123,45",    "123,45|",        0},
    {"APointBeeps",                   "",              DT_NUMBER,  "|,00",          "1.",        "1|,00",          1},
    {"TypingOverTheWhole",            "",              DT_NUMBER,  "[123,45]",      "53",        "53|,00",         0},
    {"ADigitInTheFractionOverwrites", "",              DT_NUMBER,  "12,|50",        "7",         "12,7|0",         0},
    {"TheCommaInTheIntegerPart",      "",              DT_NUMBER,  "1|2,45",        ",",         "1,|45",          0},
    {"TheCommaOnTheComma",            "",              DT_NUMBER,  "12|,45",        ",",         "12,|45",         0},
    {"BackspaceInTheIntegerPart",     "",              DT_NUMBER,  "12|,45",        "{Back}",    "1|,45",          0},
    {"DeleteOnTheComma",              "",              DT_NUMBER,  "12|,45",        "{Del}",     "12|,45",         0},
    {"DeleteKeepsTheFraction",        "",              DT_NUMBER,  "|12,45",        "{Del}",     "|2,45",          0},
    {"CurrencyWithTheSymbolBehind",   "[currency(9)]", DT_NUMBER,  "|,00EUR",       "1234,5",    "1.234,5|0EUR",   0},
    {"CurrencyOverTheWhole",          "[currency(9)]", DT_NUMBER,  "[1.234,50EUR]", "53",        "53|,00EUR",      0},
    {"DeleteOnTheSymbol",             "[currency(9)]", DT_NUMBER,  "5,00|EUR",      "{Del}",     "5,00|EUR",       0},
    {"DecimalAmount",                 "",              DT_DECIMAL, "|,00",          "123,45",    "123,45|",        0},
    {"DecimalGroups",                 "[currency(9)]", DT_DECIMAL, "|,00EUR",       "123456,78", "123.456,78|EUR", 0},
};
// clang-format on

// clang-format off
const KeyCase kFrenchRows[] = {
    {"AnAmountAsItIsRead",          "",              DT_NUMBER,  "|,00",        "123,45",    "123,45|",      0},
    {"TypingOverTheWhole",          "",              DT_NUMBER,  "[123,45]",    "53",        "53|,00",       0},
    {"CurrencyWithTheSymbolBehind", "[currency(9)]", DT_NUMBER,  "|,00F",       "1234,5",    "1 234,5|0F",   0},
    {"CurrencyOverTheWhole",        "[currency(9)]", DT_NUMBER,  "[1 234,50F]", "53",        "53|,00F",      0},
    {"DeleteOnTheThousandsBlank",   "[currency(9)]", DT_NUMBER,  "1| 234,50F",  "{Del}",     "1| 234,50F",   0},
    {"DeleteTheFirstDigit",         "[currency(9)]", DT_NUMBER,  "|1 234,50F",  "{Del}",     "|234,50F",     0},
    {"DecimalGroups",               "[currency(9)]", DT_DECIMAL, "|,00F",       "123456,78", "123 456,78|F", 0},
};
// clang-format on

// clang-format off
const KeyCase kSwissRows[] = {
    {"CurrencyWithThreeLettersBefore", "[currency(9)]", DT_NUMBER,  "CHF|.00",     "1234.5",    "CHF1'234.5|0",   0},
    {"CurrencyFromTheFront",           "[currency(9)]", DT_NUMBER,  "|CHF.00",     "5",         "CHF5|.00",       0},
    {"CurrencyOverTheWhole",           "[currency(9)]", DT_NUMBER,  "[CHF123.45]", "53",        "CHF53|.00",      0},
    {"BackspaceKeepsTheSymbol",        "[currency(9)]", DT_NUMBER,  "CHF|123.45",  "{Back}",    "CHF|123.45",     0},
    {"DecimalGroups",                  "[currency(9)]", DT_DECIMAL, "CHF|.00",     "123456.78", "CHF123'456.78|", 0},
};
// clang-format on

class GermanNumberEntry : public KeyTable {
    const Regional regional_{kGerman};
};
class FrenchNumberEntry : public KeyTable {
    const Regional regional_{kFrench};
};
class SwissNumberEntry : public KeyTable {
    const Regional regional_{kSwiss};
};

ROW_TEST(GermanNumberEntry, LeadsTo)
{
    Check(GetParam());
}
ROW_TEST(FrenchNumberEntry, LeadsTo)
{
    Check(GetParam());
}
ROW_TEST(SwissNumberEntry, LeadsTo)
{
    Check(GetParam());
}

TEST_ROWS(Rows, GermanNumberEntry, kGermanRows);
TEST_ROWS(Rows, FrenchNumberEntry, kFrenchRows);
TEST_ROWS(Rows, SwissNumberEntry, kSwissRows);

class NumberAutoskip : public EditTest {};

TEST_F(NumberAutoskip, TheLastFractionDigitNotifiesOnce)
{
    Given("#,##0.00", DT_NUMBER, "123.4|0", ZTEO_AUTOSKIP);
    Type("5");
    EXPECT_EQ(Shown(), "123.45|");
    EXPECT_EQ(Skips(), 1);
}

TEST_F(NumberAutoskip, AWholeAmountNotifiesOnce)
{
    Given("#,#.00", DT_NUMBER, "|.00", ZTEO_AUTOSKIP);
    Type("123.45");
    EXPECT_EQ(Skips(), 1);
}

TEST_F(NumberAutoskip, AFullWholeNumberNotifiesOnce)
{
    Given("####", DT_NUMBER, "123|", ZTEO_AUTOSKIP);
    Type("4");
    EXPECT_EQ(Skips(), 1);
}

TEST_F(NumberAutoskip, AFullZeroMaskNotifiesOnce)
{
    Given("000", DT_NUMBER, "12|0", ZTEO_AUTOSKIP);
    Type("3");
    EXPECT_EQ(Skips(), 1);
}

TEST_F(NumberAutoskip, AFractionDigitBeforeTheLastSendsNothing)
{
    Given("#,##0.00", DT_NUMBER, "123.|40", ZTEO_AUTOSKIP);
    Type("5");
    EXPECT_EQ(Skips(), 0);
}

TEST_F(NumberAutoskip, AnIntegerDigitSendsNothing)
{
    Given("#,##0.00", DT_NUMBER, "12|.00", ZTEO_AUTOSKIP);
    Type("3");
    EXPECT_EQ(Skips(), 0);
}

class CharacterWise : public EditTest {};

TEST_F(CharacterWise, EditingLastsUntilDataIsSetAgain)
{
    Given("#,#.00", DT_NUMBER, "|.00");
    Type("123");  // fills the integer part
    PutCaret(1);
    Play("{Del}");  // numeric deletion goes back to numeric editing
    PutCaret(0);
    Type("4");
    EXPECT_EQ(Text(), "413.00");
}

TEST_F(CharacterWise, DigitsOverwriteOnceTheIntegerPartIsFull)
{
    Given("#,#.00", DT_NUMBER, "|.00");
    Type("123");
    PutCaret(0);
    Type("4");
    EXPECT_EQ(Shown(), "4|23.00");
}

TEST_F(CharacterWise, SettingDataGoesBackToNumericEditing)
{
    Given("#,#.00", DT_NUMBER, "|.00");
    Type("123");
    control_->SetDataString("7");
    PutCaret(0);
    Type("4");
    EXPECT_EQ(Shown(), "4|7.00");
}

TEST_F(CharacterWise, ADigitOnThePointGoesToTheFirstFractionDigit)
{
    Given("#,#.00", DT_NUMBER, "|.00");
    Type("123");
    PutCaret(3);
    Type("4");
    EXPECT_EQ(Shown(), "123.4|0");
}

}  // namespace
}  // namespace zttest
