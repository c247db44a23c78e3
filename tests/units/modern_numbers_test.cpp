// Numbers under modern editing: keys, deletion, the caret, paste, steps and states, straight over the functions that judge them.
#include <gtest/gtest.h>

#include "engine/services.h"
#include "tests/support/modern_kind.h"
#include "tests/support/modern_number_rows.h"
#include "tests/support/rows.h"

namespace zttest::modern_numbers {
namespace {

using zte::modern::Eraser;

// ---- regional settings of the rows

zte::Settings SettingsOf(const std::string& name)
{
    zte::Settings settings = zte::StandardSettings();
    for (const Region& region : kRegions) {
        if (name != region.name)
            continue;
        settings.decimalChar = region.decimal;
        settings.thousandChar = region.thousand;
        zte::Assign(settings.currencySymbol, region.symbol);
        settings.currencyPosition = region.position;
    }
    return settings;
}

// A mask's separators are placeholders under every settings: it is set with the point and the comma.
class Number : public ModernContent {
public:
    Number(const char* mask, const std::string& region, int32_t type = DT_NUMBER, const char* range = nullptr,
           uint32_t increment = 1)
        : ModernContent(Setup(mask, type, range, increment), WithPlainSeparators(SettingsOf(region)))
    {
        Regional() = SettingsOf(region);
        EXPECT_TRUE(IsAccepted()) << mask;
        ShowCanonical("");
    }

    // "": empty, as it is shown at first; "=1.5": a value as it is set; anything else a text with its marks, as it was typed before.
    void Begin(const std::string& start)
    {
        if (start[0] == '=')
            ASSERT_TRUE(ShowCanonical(start.substr(1)));
        else if (!start.empty())
            ShowText(start);
    }

private:
    static zte::ControlSetup Setup(const char* mask, int32_t type, const char* range, uint32_t increment)
    {
        zte::ControlSetup setup;
        setup.mask = mask;
        setup.dataType = type;
        setup.options = range ? ZTEO_SPIN : 0;
        setup.spinRange = range;
        setup.spinIncrement = increment;
        return setup;
    }
    static zte::Settings WithPlainSeparators(zte::Settings settings)
    {
        settings.decimalChar = '.';
        settings.thousandChar = ',';
        return settings;
    }
};

// ---- keys

int Press(Number& number, char key)
{
    switch (key) {
    case 'b': return number.Erase(Eraser::Back);
    case 'd': return number.Erase(Eraser::Forward);
    case 'B': return number.Erase(Eraser::BackWord);
    case 'D': return number.Erase(Eraser::ForwardWord);
    case 'k': return number.TypeKeypadPoint('.');
    case 'h': number.Move(zte::KEY_HOME); return 0;
    case 'e': number.Move(zte::KEY_END); return 0;
    case '<': number.Move(zte::KEY_LEFT); return 0;
    case '>': number.Move(zte::KEY_RIGHT); return 0;
    case '[': number.Move(zte::KEY_LEFT, true); return 0;
    case ']': number.Move(zte::KEY_RIGHT, true); return 0;
    case 'a': number.SelectAll(); return 0;
    case 'l': number.Leave(); return 0;
    default: return number.Type(std::string(1, key));
    }
}

class ModernNumberKeys : public RowTest<KeyRow> {};

ROW_TEST(ModernNumberKeys, LeadTo)
{
    const KeyRow& row = GetParam();
    Number number(row.mask, row.region);
    number.Begin(row.start);
    int refused = 0;
    for (const char* key = row.keys; *key; ++key) {
        const std::string before = number.Marks();
        const int reason = Press(number, *key);
        if (reason == 0)
            continue;
        refused = reason;
        EXPECT_EQ(number.Marks(), before) << "a refused key changes nothing";
    }
    EXPECT_EQ(number.Marks(), row.after);
    EXPECT_EQ(refused, row.reason);
}

TEST_ROWS(Digits, ModernNumberKeys, NumberDigits());
TEST_ROWS(Signs, ModernNumberKeys, NumberSigns());
TEST_ROWS(Separators, ModernNumberKeys, NumberSeparators());
TEST_ROWS(Deletion, ModernNumberKeys, NumberDeletion());
TEST_ROWS(Caret, ModernNumberKeys, NumberCaret());

TEST(ModernNumberCaret, AClickLeavesItOffTheLiterals)
{
    Number money("$#,##0.00", "US");
    money.Begin("$12|.34");
    EXPECT_EQ(money.Kind().click(money.Record(), money.Content(), 0), 1);
    EXPECT_EQ(money.Kind().click(money.Record(), money.Content(), 3), 3);
    Number percent("##0%", "US");
    percent.Begin("1|2%");
    EXPECT_EQ(percent.Kind().click(percent.Record(), percent.Content(), 3), 2);
}

struct WordRow {
    const char* mask;
    const char* text;
    int position;
    int start;
    int end;
};
void PrintTo(const WordRow& row, std::ostream* out)
{
    *out << row.text << " at " << row.position;
}

class ModernNumberWords : public RowTest<WordRow> {};

ROW_TEST(ModernNumberWords, AreTheDigitsOnOneSideOfThePoint)
{
    const WordRow& row = GetParam();
    Number number(row.mask, "US");
    number.ShowText(std::string("|") + row.text);
    const zte::Selection word = number.Kind().wordAt(number.Record(), number.Content(), row.position);
    EXPECT_EQ(word.start, row.start);
    EXPECT_EQ(word.end, row.end);
}

const WordRow kWords[] = {
    {"$#,##0.00", "$1,234.56",  0, 1, 6},
    {"$#,##0.00", "$1,234.56",  4, 1, 6},
    {"$#,##0.00", "$1,234.56",  6, 1, 6},
    {"$#,##0.00", "$1,234.56",  7, 7, 9},
    {"$#,##0.00", "$1,234.56",  9, 7, 9},
    {"$#,##0.00", "$-1,234.56", 1, 2, 7},
    {"##0%",      "12%",        3, 0, 2},
    {"#,#.00",    ".56",        0, 0, 0},
    {"#,#.00",    ".56",        2, 1, 3},
    {"#,#.00",    "1x.56",      2, 0, 5},
};
TEST_ROWS(Rows, ModernNumberWords, kWords);

// ---- paste

struct PasteRow {
    const char* text;
    const char* mask;
    const char* region;
    const char* after;  // null: refused
    int reason;
    int position;  // in the text, of what is refused
};
void PrintTo(const PasteRow& row, std::ostream* out)
{
    *out << row.text << " into " << row.mask << " under " << row.region;
}

class ModernNumberPaste : public RowTest<PasteRow> {};

ROW_TEST(ModernNumberPaste, ReplacesTheValueOrChangesNothing)
{
    const PasteRow& row = GetParam();
    Number number(row.mask, row.region);
    ASSERT_TRUE(number.ShowCanonical("7"));
    const std::string before = number.Marks();
    EXPECT_EQ(number.Paste(row.text), row.reason);
    EXPECT_EQ(number.Marks(), row.after ? row.after : before);
    EXPECT_EQ(number.Position(), row.position);
}

constexpr const char* kRefused = nullptr;

// clang-format off
const PasteRow kNumbers[] = {
    // text              mask          region  after             reason            position
    {"5",                "#,##0.00",   "US",   "5.00|",          0,                -1},
    {"1234",             "#,##0.00",   "US",   "1,234.00|",      0,                -1},
    {"12.5",             "#,##0.00",   "US",   "12.50|",         0,                -1},
    {"0.5",              "#,##0.00",   "US",   "0.50|",          0,                -1},
    {".5",               "#,##0.00",   "US",   "0.50|",          0,                -1},
    {"5.",               "#,##0.00",   "US",   "5.00|",          0,                -1},
    {"0",                "#,##0.00",   "US",   "0.00|",          0,                -1},
    {"007",              "#,##0.00",   "US",   "7.00|",          0,                -1},
    {"12",               "000",        "US",   "012|",           0,                -1},
    {"12.5",             "#.##",       "US",   kRefused,         ZTR_DOES_NOT_FIT, 0},
    {"2.5",              "#.##",       "US",   "2.5|",           0,                -1},
    // both separators: the last is the point
    {"1,234.50",         "#,##0.00",   "US",   "1,234.50|",      0,                -1},
    {"1.234,50",         "#,##0.00",   "US",   "1,234.50|",      0,                -1},
    {"1,234.50",         "#,##0.00",   "DE",   "1.234,50|",      0,                -1},
    {"1.234,50",         "#,##0.00",   "DE",   "1.234,50|",      0,                -1},
    {"1,234,567.89",     "#,##0.00",   "DE",   "1.234.567,89|",  0,                -1},
    {"1.234.567,89",     "#,##0.00",   "US",   "1,234,567.89|",  0,                -1},
    {"1,234.567",        "#,##0.00",   "US",   "1,234.57|",      0,                -1},
    {"1.234,567",        "#,##0.00",   "US",   "1,234.57|",      0,                -1},
    {"1,234.",           "#,##0.00",   "US",   "1,234.00|",      0,                -1},
    {"1,234.50",         "##0.00",     "US",   kRefused,         ZTR_DOES_NOT_FIT, 0},
    {"1,234.50",         "###0.00",    "US",   "1234.50|",       0,                -1},
    {"1.234.567,89,1",   "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 12},
    {"1,234.56.78",      "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 8},
    {"12,34.50",         "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 5},
    {"1234,567.50",      "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 4},
    {",234.50",          "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 0},
    {"1,,234.50",        "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 2},
    // the same one twice: groups
    {"1,234,567",        "#,##0.00",   "US",   "1,234,567.00|",  0,                -1},
    {"1.234.567",        "#,##0.00",   "US",   "1,234,567.00|",  0,                -1},
    {"1,234,567",        "#,##0.00",   "DE",   "1.234.567,00|",  0,                -1},
    {"1.234.56",         "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 7},
    {"1.2.3",            "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 3},
    {"1,23,45,678",      "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 4},
    // one alone, not before exactly three digits: the point
    {"1,5",              "#,##0.00",   "US",   "1.50|",          0,                -1},
    {"1,50",             "#,##0.00",   "US",   "1.50|",          0,                -1},
    {"1.50",             "#,##0.00",   "DE",   "1,50|",          0,                -1},
    {"1,2345",           "#,##0.00",   "US",   "1.23|",          0,                -1},
    {"1234,56",          "#,##0.00",   "US",   "1,234.56|",      0,                -1},
    {"1234.5678",        "#,##0.00",   "DE",   "1.234,57|",      0,                -1},
    {"12,5",             "###",        "US",   "13|",            0,                -1},
    {"1/5",              "#,##0.00",   "IR",   "1/50|",          0,                -1},
    {"1.5",              "#,##0.00",   "IR",   "1/50|",          0,                -1},
    {"1/5",              "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 1},
    {"1/234",            "#,##0.00",   "IR",   "1/23|",          0,                -1},
    {"1/234,50",         "#,##0.00",   "IR",   kRefused,         ZTR_DOES_NOT_FIT, 5},
    {"1/234/567",        "#,##0.00",   "IR",   kRefused,         ZTR_DOES_NOT_FIT, 5},
    {"1_5",              "#,##0.00",   "RP",   kRefused,         ZTR_DOES_NOT_FIT, 2},
    // one alone before three digits
    {"1,234",            "#,##0.00",   "US",   "1,234.00|",      0,                -1},
    {"1.234",            "#,##0.00",   "US",   kRefused,         ZTR_IN_DOUBT,     1},
    {"1.234",            "#,##0.00",   "DE",   "1.234,00|",      0,                -1},
    {"1,234",            "#,##0.00",   "DE",   kRefused,         ZTR_IN_DOUBT,     1},
    {"1.234",            "0.000",      "US",   "1.234|",         0,                -1},
    {"1,234",            "0.000",      "DE",   "1,234|",         0,                -1},
    {"1,234",            "0.0000",     "DE",   "1,2340|",        0,                -1},
    {"1.234",            "#,##0.000",  "DE",   "1.234,000|",     0,                -1},
    {"1,234",            "#,##0.000",  "US",   "1,234.000|",     0,                -1},
    {"1.234",            "#,##0.00",   "FR",   kRefused,         ZTR_IN_DOUBT,     1},
    {"1,234",            "#,##0.00",   "FR",   kRefused,         ZTR_IN_DOUBT,     1},
    {"1,234",            "0.000",      "FR",   "1,234|",         0,                -1},
    {"1.234",            "0.000",      "FR",   kRefused,         ZTR_IN_DOUBT,     1},
    {"1,234",            "#,##0.00",   "CH",   kRefused,         ZTR_IN_DOUBT,     1},
    {"1.234",            "#,##0.00",   "CH",   kRefused,         ZTR_IN_DOUBT,     1},
    {"1.234",            "###0",       "US",   kRefused,         ZTR_IN_DOUBT,     1},
    {"1,234",            "###0",       "US",   "1234|",          0,                -1},
    {"0,123",            "#,##0.00",   "US",   kRefused,         ZTR_IN_DOUBT,     1},
    {"0,123",            "0,000",      "US",   "0,123|",         0,                -1},
    {"1234,567",         "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 4},
    {",234",             "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 0},
    {"1.234",            "0.000",      "EQ",   "1.234|",         0,                -1},
    {"1.234",            "#,##0.00",   "EQ",   kRefused,         ZTR_IN_DOUBT,     1},
    {"$1.234",           "$#,##0.00",  "US",   kRefused,         ZTR_IN_DOUBT,     2},
    {"-1.234",           "#,##0.00",   "US",   kRefused,         ZTR_IN_DOUBT,     2},
    {"1.234%",           "##0.00%",    "US",   kRefused,         ZTR_IN_DOUBT,     1},
    {"1_234",            "#,##0.00",   "RP",   "1_234\xB7" "00|", 0,               -1},
    // blanks and apostrophes between groups
    {"1 234 567",        "#,##0.00",   "US",   "1,234,567.00|",  0,                -1},
    {"1 234",            "#,##0.00",   "US",   "1,234.00|",      0,                -1},
    {"1 234,5",          "#,##0.00",   "FR",   "1 234,50|",      0,                -1},
    {"1 234.567",        "#,##0.00",   "US",   "1,234.57|",      0,                -1},
    {"1\xA0" "234,50",   "#,##0.00",   "FR",   "1 234,50|",      0,                -1},
    {"1\xA0" "234,50",   "#,##0.00",   "US",   "1,234.50|",      0,                -1},
    {"1'234.50",         "#,##0.00",   "CH",   "1'234.50|",      0,                -1},
    {"1'234'567",        "#,##0.00",   "DE",   "1.234.567,00|",  0,                -1},
    {"12 34",            "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 4},
    {"1 2345",           "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 5},
    {"1.234 567",        "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 5},
    {"1 234'567",        "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 5},
    {"1 234,567.50",     "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 9},
    // signs and parentheses
    {"-5",               "#,##0.00",   "US",   "-5.00|",         0,                -1},
    {"+5",               "#,##0.00",   "US",   "5.00|",          0,                -1},
    {"5-",               "#,##0.00",   "US",   "-5.00|",         0,                -1},
    {"- 5",              "#,##0.00",   "US",   "-5.00|",         0,                -1},
    {"(5)",              "#,##0.00",   "US",   "-5.00|",         0,                -1},
    {"(1,234.50)",       "#,##0.00",   "US",   "-1,234.50|",     0,                -1},
    {"-0",               "#,##0.00",   "US",   "0.00|",          0,                -1},
    {"-0.001",           "#,##0.0",    "US",   kRefused,         ZTR_IN_DOUBT,     2},
    {"-0.0001",          "#,##0.0",    "US",   "0.0|",           0,                -1},
    {"--5",              "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 1},
    {"-5-",              "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 2},
    {"(-5)",             "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 2},
    {"(5",               "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 1},
    {"5)",               "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 0},
    {"5-3",              "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 1},
    {"-",                "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 1},
    // symbols and '%'
    {"$5",               "#,##0.00",   "US",   "5.00|",          0,                -1},
    {"$ 5",              "#,##0.00",   "US",   "5.00|",          0,                -1},
    {"-$5",              "$#,##0.00",  "US",   "$-5.00|",        0,                -1},
    {"$-5",              "$#,##0.00",  "US",   "$-5.00|",        0,                -1},
    {"($5.00)",          "$#,##0.00",  "US",   "$-5.00|",        0,                -1},
    {"$1,234.50",        "$#,##0.00",  "US",   "$1,234.50|",     0,                -1},
    {"5 $",              "$#,##0.00",  "US",   "$5.00|",         0,                -1},
    {"$5$",              "$#,##0.00",  "US",   kRefused,         ZTR_DOES_NOT_FIT, 2},
    {"Fr.5.50",          "#,##0.00",   "CH",   "5.50|",          0,                -1},
    {"Fr. 1'234.50",     "#,##0.00",   "CH",   "1'234.50|",      0,                -1},
    {"5,50 EUR",         "#,##0.00",   "DE",   "5,50|",          0,                -1},
    {"1.234,50EUR",      "[currency(9)]", "DE", "1.234,50|EUR",  0,                -1},
    {"EUR 5",            "$#,##0.00",  "US",   kRefused,         ZTR_DOES_NOT_FIT, 0},
    {"5 USD",            "$#,##0.00",  "US",   kRefused,         ZTR_DOES_NOT_FIT, 2},
    {"CHF 5",            "CHF#,##0.00", "US",  "CHF5.00|",       0,                -1},
    {"5 CHF",            "CHF#,##0.00", "US",  "CHF5.00|",       0,                -1},
    {"-",                "###",        "US",   kRefused,         ZTR_DOES_NOT_FIT, 0},
    {"T $5",             "~T~ $#,##0.00", "US", "T $5.00|",      0,                -1},
    {"$5",               "~T~ $#,##0.00", "US", "T $5.00|",      0,                -1},
    {"5",                "##0.0%",     "US",   "5.0|%",          0,                -1},
    {"5%",               "##0.0%",     "US",   "5.0|%",          0,                -1},
    {"12.5 %",           "##0.0%",     "US",   "12.5|%",         0,                -1},
    {"-12.5%",           "##0.0%",     "US",   "-12.5|%",        0,                -1},
    {"5%%",              "##0.0%",     "US",   kRefused,         ZTR_DOES_NOT_FIT, 1},
    {"5%",               "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 1},
    // what the field itself shows
    {"0,005.00",         "0,000.00",   "US",   "0,005.00|",      0,                -1},
    {"12.50",            "#.##",       "US",   kRefused,         ZTR_DOES_NOT_FIT, 0},
    {"2.50",             "#.##",       "US",   "2.50|",          0,                -1},
    {"$",                "$###",       "US",   "$|",             0,                -1},
    {"-.50",             "#,#.00",     "US",   "-.50|",          0,                -1},
    {"012.00",           "~0##0.00",   "US",   "012.00|",        0,                -1},
    // rounding, and the room
    {"12.3456",          "#,##0.00",   "US",   "12.35|",         0,                -1},
    {"2.6750",           "0.00",       "US",   "2.68|",          0,                -1},
    {"-0.5000",          "##0",        "US",   "-1|",            0,                -1},
    {"99.9999",          "##.00",      "US",   kRefused,         ZTR_DOES_NOT_FIT, 0},
    {"1000",             "##0",        "US",   kRefused,         ZTR_DOES_NOT_FIT, 0},
    {"123456789012345",  "#,##0",      "US",   "123,456,789,012,345|", 0,          -1},
    {"1234567890123456", "#,##0",      "US",   kRefused,         ZTR_DOES_NOT_FIT, 0},
    {" 12.5\r\n",        "#,##0.00",   "US",   "12.50|",         0,                -1},
    // no numbers
    {"1e5",              "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 1},
    {"1E+05",            "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 1},
    {"abc",              "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 0},
    {"12a",              "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 2},
    {".",                "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 0},
    {"0x10",             "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 1},
    {"1:30",             "#,##0.00",   "US",   kRefused,         ZTR_DOES_NOT_FIT, 1},
    // "[GENERAL]"
    {"12.5",             "[GENERAL]",  "US",   "12.5|",          0,                -1},
    {"1,234.5",          "[GENERAL]",  "US",   "1234.5|",        0,                -1},
    {"1E+20",            "[GENERAL]",  "US",   "1E+20|",         0,                -1},
    {"1E+5",             "[GENERAL]",  "US",   kRefused,         ZTR_DOES_NOT_FIT, 1},
    {"1.234",            "[GENERAL]",  "US",   "1.234|",         0,                -1},
    {"1,234",            "[GENERAL]",  "DE",   "1,234|",         0,                -1},
};
// clang-format on
TEST_ROWS(Rows, ModernNumberPaste, kNumbers);

TEST(ModernNumberPaste, OfAFieldThatIsEmptyEmpties)
{
    Number number("$###", "US");
    number.Begin("=5");
    ASSERT_EQ(number.Paste("$"), 0);
    EXPECT_EQ(number.State(), ZTS_EMPTY);
}

TEST(ModernNumberPaste, OfADigitEndsEmptiness)
{
    Number number("0.00", "US");
    ASSERT_EQ(number.Paste("0.00"), 0);
    EXPECT_EQ(number.State(), ZTS_COMPLETE);
}

// ---- states and canonical texts

struct StateRow {
    const char* mask;
    const char* start;
    const char* keys;
    int state;
    const char* canonical;  // null: it has none
    const char* range = nullptr;
    const char* region = "US";
    int32_t type = DT_NUMBER;
};
void PrintTo(const StateRow& row, std::ostream* out)
{
    *out << row.mask << ": " << row.start << " + " << row.keys;
}

class ModernNumberStates : public RowTest<StateRow> {};

ROW_TEST(ModernNumberStates, AreTold)
{
    const StateRow& row = GetParam();
    Number number(row.mask, row.region, row.type, row.range);
    number.Begin(row.start);
    for (const char* key = row.keys; *key; ++key)
        EXPECT_EQ(Press(number, *key), 0);
    EXPECT_EQ(number.State(), row.state);
    if (!row.canonical)
        return;
    EXPECT_EQ(number.Canonical(), row.canonical);
    const std::string shown = number.Text();
    EXPECT_TRUE(number.ShowCanonical(row.canonical));
    EXPECT_EQ(number.Text(), shown);
}

// clang-format off
const StateRow kStates[] = {
    {"0.00",        "",          "",      ZTS_EMPTY,        nullptr},
    {"0.00",        "=0",        "",      ZTS_COMPLETE,     "0.00"},
    {"0.00",        "",          "0",     ZTS_COMPLETE,     "0.00"},
    {"0.00",        "",          "5b",    ZTS_EMPTY,        nullptr},
    {"0.00",        "",          ".",     ZTS_EMPTY,        nullptr},
    {"0.00",        "",          "-",     ZTS_INCOMPLETE,   nullptr},
    {"0.00",        "",          ".-",    ZTS_INCOMPLETE,   nullptr},
    {"0.00",        "",          "-5b",   ZTS_INCOMPLETE,   nullptr},
    {"0.00",        "",          "-5bb",  ZTS_EMPTY,        nullptr},
    {"0.00",        "",          "-5",    ZTS_COMPLETE,     "-5.00"},
    {"0.00",        "|",         "",      ZTS_EMPTY,        nullptr},
    {"0.00",        "|x",        "",      ZTS_INVALID,      nullptr},
    {"0.00",        "|5",        "",      ZTS_INVALID,      nullptr},
    {"0.00",        "|05.00",    "",      ZTS_INVALID,      nullptr},
    {"0.00",        "|5.000",    "",      ZTS_INVALID,      nullptr},
    {"0.00",        "|5.00",     "",      ZTS_COMPLETE,     "5.00"},
    {"$0.00",       "|5.00",     "",      ZTS_INVALID,      nullptr},
    {"#,##0.00",    "|1,234.50", "",      ZTS_COMPLETE,     "1234.50"},
    {"#,##0.00",    "|1234.50",  "",      ZTS_INVALID,      nullptr},
    {"#,##0.00",    "|1.234,50", "",      ZTS_COMPLETE,     "1234.50", nullptr, "DE"},
    {"#,#.00",      "=0.5",      "",      ZTS_COMPLETE,     "0.50"},
    {"#.##",        "=5",        "",      ZTS_COMPLETE,     "5"},
    {"#.##",        "",          "5.50",  ZTS_COMPLETE,     "5.50"},
    {"000",         "",          "12",    ZTS_COMPLETE,     "012"},
    {"###",         "=0",        "",      ZTS_COMPLETE,     "0"},
    {"###",         "=0",        "b",     ZTS_EMPTY,        nullptr},
    {"##0%",        "",          "12",    ZTS_COMPLETE,     "0.12"},
    {"##0.00%",     "",          "12.5",  ZTS_COMPLETE,     "0.125"},
    {"##0.##%",     "",          "12.50", ZTS_COMPLETE,     "0.1250"},
    {"##0%",        "",          "-5",    ZTS_COMPLETE,     "-0.05"},
    {"##0%",        "=1.25",     "",      ZTS_COMPLETE,     "1.25"},
    {"[GENERAL]",   "",          "",      ZTS_EMPTY,        nullptr},
    {"[GENERAL]",   "=1234.5",   "",      ZTS_COMPLETE,     "1234.5"},
    {"[GENERAL]",   "|1E+20",    "",      ZTS_COMPLETE,     "100000000000000000000"},
    {"[GENERAL]",   "|-1,5E-20", "",      ZTS_COMPLETE,     "-0.000000000000000000015", nullptr, "DE"},
    {"[GENERAL]",   "|1,5",      "",      ZTS_INVALID,      nullptr},
    {"####################",     "",      "12345678901234567890", ZTS_COMPLETE, "12345678901234567890"},
    {"0.00",        "=5",        "",      ZTS_COMPLETE,     "5.00",  "1~10"},
    {"0.00",        "=0",        "",      ZTS_OUT_OF_RANGE, "0.00",  "1~10"},
    {"##0.00",      "=10",       "",      ZTS_COMPLETE,     "10.00", "1~10"},
    {"##0.00",      "=10.01",    "",      ZTS_OUT_OF_RANGE, "10.01", "1~10"},
    {"##0.00",      "=99",       "",      ZTS_COMPLETE,     "99.00", "1~"},
    {"##0.00",      "=0.5",      "",      ZTS_OUT_OF_RANGE, "0.50",  "1"},
    {"##0.00",      "=-99",      "",      ZTS_COMPLETE,     "-99.00", "~10"},
    {"##0.00",      "=0.5",      "",      ZTS_OUT_OF_RANGE, "0.50",  "~0"},
    {"##0.00",      "=5",        "",      ZTS_COMPLETE,     "5.00",  ""},
    {"##0%",        "=0.5",      "",      ZTS_COMPLETE,     "0.50",  "0~0.5"},
    {"##0%",        "=0.51",     "",      ZTS_OUT_OF_RANGE, "0.51",  "0~0.5"},
    {"##0.00",      "=10.01",    "",      ZTS_OUT_OF_RANGE, "10.01", "1~10", "US", DT_DECIMAL},
};
// clang-format on
TEST_ROWS(Rows, ModernNumberStates, kStates);

struct ShownRow {
    const char* mask;
    const char* canonical;
    const char* shown;  // null: it is none
    int32_t type = DT_NUMBER;
};
void PrintTo(const ShownRow& row, std::ostream* out)
{
    *out << row.canonical << " under " << row.mask;
}

class ModernNumberCanonical : public RowTest<ShownRow> {};

ROW_TEST(ModernNumberCanonical, IsShown)
{
    const ShownRow& row = GetParam();
    Number number(row.mask, "DE", row.type);
    EXPECT_EQ(number.ShowCanonical(row.canonical), row.shown != nullptr);
    if (row.shown) {
        EXPECT_EQ(number.Marks(), row.shown);
    }
}

// clang-format off
const ShownRow kCanonical[] = {
    {"#,##0.00",  "",          "|0,00"},
    {"#,##0.00",  "1234.5",    "|1.234,50"},
    {"#,##0.00",  "1.234",     "|1,23"},
    {"#,##0.00",  "-.5",       "|-0,50"},
    {"#,##0.00",  "+5",        "|5,00"},
    {"#,##0.00",  "5.",        "|5,00"},
    {"#,##0.00",  "-0.001",    "|0,00"},
    {"#,##0.00",  "0012",      "|12,00"},
    {"#,##0.00",  "99.999",    "|100,00"},
    {"##0",       "12345",     "|12345"},
    {"##0.0%",    "0.125",     "|12,5%"},
    {"##0.0%",    "-1",        "|-100,0%"},
    {"[GENERAL]", "1234.5",    "|1234,5"},
    {"##0",       "123456789012345678901234567890", nullptr, DT_DECIMAL},
    {"#,##0.00",  "1,5",       nullptr},
    {"#,##0.00",  "1.2.3",     nullptr},
    {"#,##0.00",  " 5",        nullptr},
    {"#,##0.00",  "5x",        nullptr},
    {"#,##0.00",  "-",         nullptr},
    {"#,##0.00",  ".",         nullptr},
    {"#,##0.00",  "1e5",       nullptr},
    {"#,##0.00",  "1234567890123456789.5", "|1.234.567.890.123.456.789,50", DT_DECIMAL},
};
// clang-format on
TEST_ROWS(Rows, ModernNumberCanonical, kCanonical);

TEST(ModernNumberValues, AreShownUntouchedWithTheCaretAtTheFront)
{
    Number number("$#,##0.00", "US");
    const double value = -1234.5;
    const zte::modern::Content content = number.Kind().show(number.Record(), &value);
    EXPECT_EQ(Mark(content.text, content.selection.start, content.selection.end), "$|-1,234.50");
    EXPECT_TRUE(content.isUntouched);
    EXPECT_FALSE(content.isEmpty);
    EXPECT_TRUE(number.Kind().show(number.Record(), nullptr).isEmpty);
}

TEST(ModernNumberValues, OfDecimalsAreShownToTheLastDigit)
{
    Number number("#,##0.00", "US", DT_DECIMAL);
    const DecimalValue value = zte::services::DecimalOf("12345678901234567890.12", 2);
    EXPECT_EQ(number.Kind().show(number.Record(), &value).text, "12,345,678,901,234,567,890.12");
}

TEST(ModernNumberTyping, TouchesTheNumber)
{
    Number number("0.00", "US");
    number.Begin("=0");
    ASSERT_EQ(number.Type("0"), 0);
    EXPECT_FALSE(number.Content().isUntouched);
    EXPECT_FALSE(number.Content().isEmpty);
}

TEST(ModernNumberTyping, KeepsWhatAProgramSetTooLong)
{
    Number number("##0.00", "US");
    number.Begin("=12345");
    number.Move(zte::KEY_END, false);
    EXPECT_EQ(number.Type("6"), ZTR_FULL);
    number.Select(5, 5);
    EXPECT_EQ(number.Type("6"), ZTR_FULL);
    EXPECT_EQ(number.Erase(Eraser::Back), 0);
    EXPECT_EQ(number.Marks(), "1234|.00");
}

TEST(ModernNumberTyping, KeepsTheSignBeforeZerosWhileTheCaretMovesWithin)
{
    Number number("0.00", "US");
    ASSERT_EQ(number.Type("-0.0"), 0);
    number.Leave(2);
    EXPECT_EQ(number.Text(), "-0.00");
}

struct FullRow {
    const char* mask;
    const char* keys;
    bool full;
};
void PrintTo(const FullRow& row, std::ostream* out)
{
    *out << row.mask << ": " << row.keys;
}

class ModernNumberIsFull : public RowTest<FullRow> {};

ROW_TEST(ModernNumberIsFull, WithItsLastDigit)
{
    const FullRow& row = GetParam();
    Number number(row.mask, "US");
    EXPECT_EQ(number.Type(row.keys), 0);
    EXPECT_EQ(number.IsFull(), row.full);
}

// clang-format off
const FullRow kFull[] = {
    {"##0.00", "123",    false},
    {"##0.00", "123.4",  false},
    {"##0.00", "1.45",   true},
    {"##0",    "12",     false},
    {"##0",    "123",    true},
    {"000",    "012",    false},
    {"000",    "123",    true},
    {"##0%",   "123",    true},
    {"##0%",   "123%",   false},
    {"#,##0",  "12345",  false},
};
// clang-format on
TEST_ROWS(Rows, ModernNumberIsFull, kFull);

// ---- steps

struct StepRow {
    const char* mask;
    const char* range;
    const char* start;
    int steps;
    const char* after;  // null: the end of the range
    uint32_t increment = 1;
    int32_t type = DT_NUMBER;
};
void PrintTo(const StepRow& row, std::ostream* out)
{
    *out << row.mask << " in " << row.range << ": " << row.start << " " << row.steps;
}

class ModernNumberSteps : public RowTest<StepRow> {};

ROW_TEST(ModernNumberSteps, StayWithinTheRange)
{
    const StepRow& row = GetParam();
    Number number(row.mask, "US", row.type, row.range, row.increment);
    number.Begin(row.start);
    const std::string before = number.Marks();
    EXPECT_EQ(number.Step(row.steps), row.after ? 0 : ZTR_END_OF_RANGE);
    EXPECT_EQ(number.Marks(), row.after ? "[" + std::string(row.after) + "]" : before);
    if (row.after) {
        EXPECT_EQ(number.State(), ZTS_COMPLETE);
    }
}

// clang-format off
const StepRow kSteps[] = {
    {"##0.00",    "0~10",   "=5",      1,   "6.00"},
    {"##0.00",    "0~10",   "=5",      -1,  "4.00"},
    {"##0.00",    "0~10",   "=5.25",   1,   "6.25"},
    {"##0.00",    "0~10",   "=10",     1,   nullptr},
    {"##0.00",    "0~10",   "=9.5",    1,   nullptr},
    {"##0.00",    "0~10",   "=0",      -1,  nullptr},
    {"##0.00",    "0~10",   "=5",      10,  "10.00"},
    {"##0.00",    "0~10",   "=5",      -10, "0.00"},
    {"##0.00",    "0~10",   "=10",     10,  nullptr},
    {"##0.00",    "0~10",   "=9.5",    10,  nullptr},
    {"##0.00",    "0~10",   "=8.5",    10,  "10.00"},
    {"##0.00",    "0~10",   "=50",     1,   "10.00"},
    {"##0.00",    "0~10",   "=50",     -1,  "10.00"},
    {"##0.00",    "0~10",   "=-5",     -10, "0.00"},
    {"##0.00",    "5~10",   "",        1,   "5.00"},
    {"##0.00",    "0~10",   "",        1,   "1.00"},
    {"##0.00",    "0~10",   "-|0.00",  1,   "1.00"},
    {"##0.00",    "0~10",   "x|",      1,   "1.00"},
    {"##0.00",    "",       "=-5",     -1,  "-6.00"},
    {"##0.00",    "~10",    "=-50",    -10, "-60.00"},
    {"##0.00",    "5~",     "=500",    10,  "510.00"},
    {"##0.00",    "",       "=999",    1,   nullptr},
    {"##0.00",    "",       "=995",    10,  "999.00"},
    {"##0.00",    "",       "=-995",   -10, "-999.00"},
    {"##0.00",    "",       "=-1",     1,   "0.00"},
    {"##0.00",    "0~100",  "=0.10",   1,   "25.10",   25},
    {"#,##0.00",  "",       "=1234.5", 3,   "1,237.50"},
    {"0.0",       "",       "=0.1",    2,   "2.1"},
    {"##0%",      "0~5",    "=0.5",    1,   "150%"},
    {"[GENERAL]", "",       "=1.5",    1,   "2.5"},
    {"#,##0.00",  "",       "=12345678901234567890.12", 1, "12,345,678,901,234,567,891.12", 1, DT_DECIMAL},
    {"###0.00",   "0~10",   "=8.5",    10,  "10.00",   1, DT_DECIMAL},
};
// clang-format on
TEST_ROWS(Rows, ModernNumberSteps, kSteps);

TEST(ModernNumberSteps, EndEmptiness)
{
    Number number("0.00", "US", DT_NUMBER, "");
    ASSERT_EQ(number.Type("1"), 0);
    ASSERT_EQ(number.Step(-1), 0);
    EXPECT_EQ(number.Text(), "0.00");
    EXPECT_EQ(number.State(), ZTS_COMPLETE);
}

TEST(ModernNumberSteps, OfANumberThatNoDecimalHoldsAreRefused)
{
    Number number("#,##0", "US", DT_NUMBER, "");
    const double large = 1e40;
    number.Content() = number.Kind().show(number.Record(), &large);
    EXPECT_EQ(number.Step(1), ZTR_END_OF_RANGE);
}

}  // namespace
}  // namespace zttest::modern_numbers
