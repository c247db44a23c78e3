// Numbers as clerks type them all day: with Tab (which selects everything), Home, Backspace, a minus, a point, a wrong key.
#include "tests/engine/clerk.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

TEST_F(Clerk, TabsIntoANumberAndTypes53)
{
    Field("#,##0.00", DT_NUMBER, "12.5");
    TabInto();
    Type("53");
    EXPECT_EQ(Text(), "53.00");
    EXPECT_EQ(Value(), "53.00");
}

TEST_F(Clerk, TabsIntoANumberThatShowsNoZeroAndTypes53)
{
    Field("#,#.00", DT_NUMBER, "12.5");
    TabInto();
    Type("53");
    EXPECT_EQ(Text(), "53.00");
}

TEST_F(Clerk, TabsIntoADecimalAndTypes53)
{
    Field("#,##0.00", DT_DECIMAL, "12.5");
    TabInto();
    Type("53");
    EXPECT_EQ(Text(), "53.00");
}

TEST_F(Clerk, TabsIntoAnAmountAndTypes53)
{
    Field("[currency(9)]", DT_NUMBER, "12.5");
    TabInto();
    Type("53");
    EXPECT_EQ(Text(), "$53.00");
}

TEST_F(Clerk, TabsIntoAPercentageAndTypes53)
{
    Field("#,##0.00%", DT_NUMBER, "0.125");
    TabInto();
    Type("53");
    EXPECT_EQ(Text(), "53.00%");
    EXPECT_EQ(Value(), "0.53");
}

TEST_F(Clerk, TabsIntoAnEmptyNumberAndTypes53)
{
    Field("#,##0.00", DT_NUMBER);
    TabInto();
    Type("53");
    EXPECT_EQ(Text(), "53.00");
}

TEST_F(Clerk, TypesAnAmountAsItIsRead)
{
    Field("#,#.00", DT_NUMBER);
    Type("123.45");
    EXPECT_EQ(Text(), "123.45");
    EXPECT_EQ(Value(), "123.45");
    EXPECT_EQ(Beeps(), 0);
}

TEST_F(Clerk, TypesAGermanAmountAsItIsRead)
{
    const Regional german(kGerman);
    Field(nullptr, DT_NUMBER);
    Type("123,45");
    EXPECT_EQ(Text(), "123,45");
    EXPECT_EQ(Value(), "123,45");
    EXPECT_EQ(Beeps(), 0);
}

TEST_F(Clerk, TypesALongAmountIntoAFrenchCurrencyField)
{
    const Regional french(kFrench);
    Field("[currency(9)]", DT_NUMBER);
    Type("12345,67");
    EXPECT_EQ(Text(), "12 345,67F");
    EXPECT_EQ(Beeps(), 0);
}

TEST_F(Clerk, TypesAnAmountOverAnotherWithItsFraction)
{
    Field("#,##0.00", DT_NUMBER, "999.99");
    TabInto();
    Type("123.45");
    EXPECT_EQ(Text(), "123.45");
}

TEST_F(Clerk, EmptiesANumberWithBackspaceAndTypesAnother)
{
    Field("#,#.00", DT_NUMBER, "12.5");
    TabInto();
    Backspace();
    Type("53");
    EXPECT_EQ(Text(), "53.00");
}

TEST_F(Clerk, EmptiesANumberWithDeleteAndTypesAnother)
{
    Field("#,#.00", DT_NUMBER, "12.5");
    TabInto();
    Delete();
    Type("53");
    EXPECT_EQ(Text(), "53.00");
}

TEST_F(Clerk, CorrectsTheLastDigit)
{
    Field("#,###,###.00", DT_NUMBER);
    Type("124");
    Backspace();
    Type("3");
    EXPECT_EQ(Text(), "123.00");
}

TEST_F(Clerk, TypesANegativeNumber)
{
    Field("#,#.00", DT_NUMBER);
    Type("-53");
    EXPECT_EQ(Text(), "-53.00");
    EXPECT_EQ(Value(), "-53.00");
}

struct HabitCase {
    const char* name;
    const char* mask;
    const char* value;  // that is there; null for none
    const char* keys;   // "{Tab}" in front: into the field by Tab, all selected
    const char* text;
    const char* reads;
    int beeps;
};
void PrintTo(const HabitCase& row, std::ostream* out)
{
    *out << row.keys << " into " << row.mask << " at " << (row.value ? row.value : "nothing");
}

// clang-format off
const HabitCase kHabits[] = {
    {"TabsInAndTypesAPieceNumber",              "0000",          "1234",    "{Tab}5678",       "5678",       "5678",     0},
    {"TabsInAndTypesAMeasure",                  "00.00",         "12.34",   "{Tab}56.78",      "56.78",      "56.78",    0},
    {"TabsInAndTypesARate",                     "000.0%",        "0.999",   "{Tab}12.5",       "012.5%",     "0.125",    0},
    {"TabsInAndTypesAHalfFromThePoint",         "#,##0.00",      "1234.56", "{Tab}.5",         "0.50",       "0.50",     0},
    {"TabsInAndTypesMinusAHalf",                "#,##0.00",      "5",       "{Tab}-0.5",       "-0.50",      "-0.50",    0},
    {"TypesMinusFiveCents",                     "#,##0.00",      nullptr,   "-0.05",           "-0.05",      "-0.05",    0},
    {"TypesAZeroOutOfHabit",                    "#,#.00",        nullptr,   "05",              "5.00",       "5.00",     0},
    {"TypesAZeroBeforeALongNumber",             "#,###,###.00",  nullptr,   "0123",            "123.00",     "123.00",   0},
    {"TakesMoneyBack",                          "[currency(9)]", "12",      "{Tab}-5",         "$-5.00",     "-5.00",    0},
    {"TypesTheDollarSignToo",                   "$#,##0.00",     "12",      "{Tab}$1234.50",   "$1,234.50",  "1234.50",  0},
    {"TypesDollarSignAndSeparator",             "$#,##0.00",     "12",      "{Tab}$1,234.50",  "$1,234.50",  "1234.50",  1},
    {"HitsAWrongKeyFirst",                      "#,##0.00",      "1234.5",  "{Tab}x12",        "12.00",      "12.00",    1},
    {"LeansOnBackspace",                        "#,##0.00",      "45",
     "{End}{Back}{Back}{Back}{Back}{Back}{Back}{Back}{Back}12", "12.00", "12.00", 0},
    {"BacksOutOfTen",                           "##0",           nullptr,   "10{Back}{Back}25", "25",        "25",       0},
    {"PressesHomeFirst",                        "#,##0.00",      nullptr,   "{Home}5",         "5.00",       "5.00",     0},
    {"TypesAWholePercentage",                   "##0%",          "0.5",     "{Tab}125",        "125%",       "1.25",     0},
    {"CorrectsTheLastDigitOfARate",             "#,##0.00%",     "0.65",    "{End}{Left}{Back}5", "65.05%",  "0.6505",   0},
    {"CorrectsTheLastIntegerDigit",             "#,##0.00",      "1234",    "{End}{Left}{Left}{Left}{Back}5", "1,235.00", "1235.00", 0},
    {"ChangesTheSignOfAFullNumber",             "#,###.00",      "1234.56", "{Home}-",         "-1,234.56",  "-1234.56", 0},
    {"TypesANegativeNumberIntoAFullField",      "#,##0.00",      "5",       "{Tab}-1234.56",   "-1,234.56",  "-1234.56", 0},
    {"TypesAMinusWithMoney",                    "$#,##0.00",     "12",      "{Tab}-56",        "$-56.00",    "-56.00",   0},
    {"DeletesEverythingFirst",                  "#,##0.00",      "123.45",  "{Tab}{Del}53",    "53.00",      "53.00",    0},
    {"CutsEverythingFirst",                     "#,##0.00",      "123.45",  "{Tab}{Ctrl+X}53", "53.00",      "53.00",    0},
    {"MistypesTheSignAndTakesItBack",           "##0",           "7",       "{Tab}-{Back}25",  "25",         "25",       0},
    {"CorrectsADigitBehindAMinus",              "##0",           "7",       "{Tab}-6{Back}5",  "-5",         "-5",       0},
};
// clang-format on

class ClerkWithHabits : public Clerk, public OfRow<HabitCase> {};

ROW_TEST(ClerkWithHabits, GetsTheNumber)
{
    const HabitCase& row = GetParam();
    Field(row.mask, DT_NUMBER, row.value);
    std::string keys = row.keys;
    if (keys.rfind("{Tab}", 0) == 0) {
        TabInto();
        keys.erase(0, 5);
    }
    Play(keys);
    EXPECT_EQ(Text(), row.text);
    EXPECT_EQ(Value(), row.reads);
    EXPECT_EQ(Beeps(), row.beeps);
}

TEST_ROWS(Numbers, ClerkWithHabits, kHabits);

}  // namespace
}  // namespace zttest
