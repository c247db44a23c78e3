// Numbers under modern editing: keys, deletion, the caret, paste, steps and states, straight over the functions that judge them.
#include <gtest/gtest.h>

#include "tests/support/modern_kind.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

using zte::modern::Eraser;

// ---- regional settings of the rows

struct Region {
    const char* name;
    char decimal;
    char thousand;
    const char* symbol;
    int32_t position;
};

constexpr Region kRegions[] = {
    {"US", '.',    ',',    "$",   0},
    {"DE", ',',    '.',    "EUR", 3},
    {"FR", ',',    ' ',    "F",   3},
    {"NB", ',',    '\xA0', "F",   3},
    {"CH", '.',    '\'',   "Fr.", 2},
    {"DK", ',',    '.',    "kr.", 2},
    {"IR", '/',    ',',    "R",   0},
    {"EQ", '.',    '.',    "$",   0},
    {"RP", '\xB7', '_',    "L",   0},
};

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

struct KeyRow {
    const char* mask;
    const char* start;
    const char* keys;
    const char* after;
    int reason;  // of the last key that was refused
    const char* region = "US";
};
void PrintTo(const KeyRow& row, std::ostream* out)
{
    *out << row.mask << ": " << row.start << " + " << row.keys;
}

// b and d are Backspace and Delete, B and D with Ctrl; h, e, < and > Home, End and the arrows, [ and ] the arrows with Ctrl; a selects
// all, k is the keypad's decimal key, l the loss of the focus. All others are typed.
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

// clang-format off
const KeyRow kDigits[] = {
    // mask           start            keys          after             reason
    {"0.00",          "",              "",           "|0.00",          0},
    {"#,#.00",        "",              "",           "|.00",           0},
    {"$#,##0.00",     "",              "",           "$|0.00",         0},
    {"0.00",          "",              "5",          "5|.00",          0},
    {"#,#.00",        "",              "5",          "5|.00",          0},
    {"0.00",          "",              "0",          "0|.00",          0},
    {"0.00",          "",              "05",         "5|.00",          0},
    {"000",           "",              "12",         "012|",           0},
    {"000",           "",              "1",          "001|",           0},
    {"000",           "",              "0123",       "123|",           0},
    {"000",           "",              "1234",       "123|",           ZTR_FULL},
    {"00.00",         "",              "5",          "05|.00",         0},
    {"00.00",         "",              "12",         "12|.00",         0},
    {"##0.00",        "",              "1234",       "123|.00",        ZTR_FULL},
    {"##0.00",        "",              "123.4",      "123.4|0",        0},
    {"##0.00",        "",              "123.456",    "123.45|",        ZTR_FULL},
    {"#,##0.00",      "",              "1234567",    "1,234,567|.00",  0},
    {"#,#.00",        "",              "123456789012345", "123,456,789,012,345|.00", 0},
    {"#,#.00",        "",              "1234567890123456", "123,456,789,012,345|.00", ZTR_FULL},
    {"#,###,##0",     "",              "12345678",   "1,234,567|",     ZTR_FULL},
    {"#,##0",         "",              "12345",      "12,345|",        0},
    {"####",          "",              "12345",      "1234|",          ZTR_FULL},
    {".00",           "",              "5",          "|.00",           ZTR_FULL},
    {".00",           "",              "0.5",        ".5|0",           0},
    {"#.##",          "",              "1.50",       "1.50|",          0},
    {"#.##",          "",              ".5",         ".5|",            0},
    {"##0%",          "",              "12",         "12|%",           0},
    // among digits
    {"#,##0.00",      "1|2.34",        "5",          "15|2.34",        0},
    {"#,##0.00",      "12|.34",        "5",          "125|.34",        0},
    {"#,##0.00",      "1|,234.00",     "5",          "15|,234.00",     0},
    {"#,##0.00",      "1,|234.00",     "5",          "15|,234.00",     0},
    {"#,##0.00",      "12.|34",        "5",          "12.5|4",         0},
    {"#,##0.00",      "12.3|4",        "5",          "12.35|",         0},
    {"#,##0.00",      "12.34|",        "5",          "12.34|",         ZTR_FULL},
    {"000",           "0|12",          "5",          "5|12",           0},
    {"0.00",          "0|.50",         "5",          "5|.50",          0},
    {"##0.00",        "1|23.00",       "5",          "1|23.00",        ZTR_FULL},
    {"#.##",          "1.|",           "5",          "1.5|",           0},
    // a number typed before another one takes its place
    {"#,##0.00",      "|12.34",        "5",          "5|.00",          0},
    {"#,##0.00",      "|12.34",        "56.7",       "56.7|0",         0},
    {"#,##0.00",      "|12.34",        ".5",         "0.5|0",          0},
    {"#.##",          "|12.34",        ".5",         ".5|",            0},
    {"#,#.00",        "|.34",          "5",          "5|.00",          0},
    {"#,##0.00",      "|12.34",        "0.5",        "0.5|0",          0},
    {"##0.00",        "|123.00",       "4567",       "456|.00",        ZTR_FULL},
    {"#,##0.00",      "|-12.34",       "5",          "5|.00",          0},
    {"#,##0.00",      "|-12.34",       "-5",         "-5|.00",         0},
    {"#,##0.00",      "-|12.34",       "5",          "-5|.00",         0},
    {"#,##0.00",      "-|12.34",       ".5",         "-0.5|0",         0},
    {"$#,##0.00",     "|$-12.34",      "$-5",        "$-5|.00",        0},
    {"000",           "|012",          "5",          "005|",           0},
    // what typing or deleting has left goes on
    {"#,#.00",        "12|.34",        "bb5",        "5|.34",          0},
    {"#,#.00",        "12|.34",        "bbh5",       "5|.00",          0},
    {"#,#.00",        "",              "05",         "5|.00",          0},
    {"#,#.00",        "",              "0.5",        ".5|0",           0},
    // behind a number that nobody has begun
    {"0.00",          "",              "e5",         "5|.00",          0},
    {"0.00",          "",              "e.5",        "0.5|0",          0},
    {"0.00",          "=0",            "e5",         "5|.00",          0},
    {"#.##",          "",              "e5",         "5|.",            0},
    {"0.00%",         "",              "e5",         "5|.00%",         0},
    {"0.00",          "",              "e-5",        "-5|.00",         0},
    {"0.00",          "",              "0e5",        "0.00|",          ZTR_FULL},
    {"0.00",          "=5",            "e5",         "5.00|",          ZTR_FULL},
    // over a selection
    {"#,##0.00",      "[12.34]",       "5",          "5|.00",          0},
    {"#,##0.00",      "1[2.3]4",       "5",          "15|.40",         0},
    {"#,##0.00",      "12.[3]4",       "5",          "12.5|4",         0},
    {"0.000",         "1.[23]4",       "5",          "1.5|40",         0},
    {"#,##0.00",      "12[.]34",       "5",          "125|.34",        0},
    {"#,##0.00",      "[-12.34]",      "5",          "5|.00",          0},
    {"#,##0.00",      "-[12.34]",      "5",          "-5|.00",         0},
    {"#,##0.00",      "[12.34]",       "x",          "[12.34]",        ZTR_WRONG_KIND},
    {"##0.00",        "1[2]3.00",      "5",          "15|3.00",        0},
    // a text that the mask does not show
    {"#,##0.00",      "12a|4",         "5",          "5|.00",          0},
    {"#,##0.00",      "12a|4",         "x",          "12a|4",          ZTR_WRONG_KIND},
    {"#,##0.00",      "|",             "5",          "5|.00",          0},
    {"$#,##0.00",     "12.50|",        "5",          "$5|.00",         0},
    {"#,##0.00",      "007|.50",       "5",          "5|.00",          0},
    {"#,##0.00",      "12.5|",         "b",          "|0.00",          0},
    {"[GENERAL]",     "=12",           "5",          "|12",            ZTR_WRONG_KIND},
    {"[GENERAL]",     "=12",           "d",          "|12",            ZTR_WRONG_KIND},
};
TEST_ROWS(Digits, ModernNumberKeys, kDigits);

const KeyRow kSigns[] = {
    {"0.00",          "",              "-",          "-|0.00",         0},
    {"0.00",          "",              "--",         "|0.00",          0},
    {"0.00",          "",              "-5",         "-5|.00",         0},
    {"0.00",          "",              "-0.5",       "-0.5|0",         0},
    {"#,#.00",        "",              "-.05",       "-.05|",          0},
    {"0.00",          "",              "0-5",        "-5|.00",         0},
    {"0.00",          "",              ".-5",        "-0.5|0",         0},
    {"0.00",          "",              "+5",         "5|.00",          0},
    {"0.00",          "",              "+",          "|0.00",          0},
    {"#,##0.00",      "12|.34",        "-",          "-12|.34",        0},
    {"#,##0.00",      "1|2.34",        "-",          "-1|2.34",        0},
    {"#,##0.00",      "12.3|4",        "-",          "-12.3|4",        0},
    {"#,##0.00",      "12.34|",        "-",          "-12.34|",        0},
    {"#,##0.00",      "-12|.34",       "-",          "12|.34",         0},
    {"#,##0.00",      "|12.34",        "-",          "-|12.34",        0},
    {"#,##0.00",      "|-12.34",       "-",          "-|12.34",        0},
    {"#,##0.00",      "|-12.34",       "--",         "|12.34",         0},
    {"#,##0.00",      "1,23|4.00",     "-",          "-1,23|4.00",     0},
    {"#,##0.00",      "1[2.3]4",       "-",          "-1[2.3]4",       0},
    {"#,##0.00",      "-1[2.3]4",      "-",          "1[2.3]4",        0},
    {"#,##0.00",      "[12].34",       "-",          "-[12].34",       0},
    {"#,##0.00",      "[12.34]",       "-",          "-|0.00",         0},
    {"#,##0.00",      "[-12.34]",      "-5",         "-5|.00",         0},
    {"#,##0.00",      "-[12.34]",      "-",          "-|0.00",         0},
    {"#,##0.00",      "-12|.34",       "+",          "12|.34",         0},
    {"#,##0.00",      "12|.34",        "+",          "12|.34",         ZTR_WRONG_KIND},
    {"#,##0.00",      "|12.34",        "+",          "|12.34",         0},
    {"#,##0.00",      "[12.34]",       "+5",         "5|.00",          0},
    {"#,##0.00",      "[-12.34]",      "+",          "[12.34]",        0},
    {"$#,##0.00",     "$12|.34",       "-",          "$-12|.34",       0},
    {"##0%",          "12%|",          "-",          "-12|%",          0},
    {"000",           "012|",          "-",          "-012|",          0},
    {"000",           "",              "-7",         "-007|",          0},
    // the number is left
    {"0.00",          "",              "-0.00l",     "0.00|",          0},
    {"0.00",          "",              "-0l",        "0|.00",          0},
    {"0.00",          "",              "-l",         "-|0.00",         0},
    {"0.00",          "",              "-5l",        "-5|.00",         0},
};
TEST_ROWS(Signs, ModernNumberKeys, kSigns);

const KeyRow kSeparators[] = {
    {"0.00",          "",              ".",          "0.|00",          0},
    {"0.00",          "",              ".5",         "0.5|0",          0},
    {"0.00",          "",              "..5",        "0.5|0",          0},
    {"0.00",          "",              ".5.",        "0.5|0",          ZTR_WRONG_KIND},
    {"#,##0.00",      "1|2.34",        ".",          "12.|34",         0},
    {"#,##0.00",      "12|.34",        ".",          "12.|34",         0},
    {"#,##0.00",      "[12.34]",       ".5",         "0.5|0",          0},
    {"###",           "12|",           ".",          "12|",            ZTR_WRONG_KIND},
    {"#,##0.00",      "",              "1,234.5",    "1,234.5|0",      0},
    {"#,##0.00",      "",              ",",          "|0.00",          ZTR_WRONG_KIND},
    {"#,##0.00",      "12.|34",        ",",          "12.|34",         ZTR_WRONG_KIND},
    {"#,##0.00",      "1|,234.00",     ",",          "1,|234.00",      0},
    {"##0.00",        "",              "1,5",        "1.5|0",          0},
    {"#,##0.00",      "",              "1.234,5",    "1.234,5|0",      0, "DE"},
    {"#,##0.00",      "",              "1,5",        "1,5|0",          0, "DE"},
    {"##0.00",        "",              "1.5",        "1,5|0",          0, "DE"},
    {"#,##0.00",      "",              "1.5",        "15|,00",         0, "DE"},
    {"#,##0.00",      "",              "1k5",        "1,5|0",          0, "DE"},
    {"#,##0.00",      "",              "1.5",        "1,5|0",          0, "FR"},
    {"#,##0.00",      "",              "1 234,5",    "1 234,5|0",      0, "FR"},
    {"#,##0.00",      "",              "1 234,5",    "1\xA0" "234,5|0", 0, "NB"},
    {"#,##0.00",      "",              "1,5",        "1.5|0",          0, "CH"},
    {"#,##0.00",      "",              "1'234.5",    "1'234.5|0",      0, "CH"},
    {"#,##0.00",      "",              "1/5",        "1/5|0",          0, "IR"},
    {"#,##0.00",      "",              "1.5",        "1/5|0",          0, "IR"},
    {"#,##0.00",      "",              "1234.5",     "1234.5|0",       0, "EQ"},
    {"#,##0.00",      "",              "1_234,5",    "1_234\xB7" "5|0", 0, "RP"},
    {"###",           "",              "1k",         "1|",             ZTR_WRONG_KIND},
    // literals
    {"$#,##0.00",     "",              "$5",         "$5|.00",         0},
    {"$#,##0.00",     "",              "$$",         "$|0.00",         ZTR_WRONG_KIND},
    {"$#,##0.00",     "",              "5$",         "$5|.00",         ZTR_WRONG_KIND},
    {"$#,##0.00",     "$[12.34]",      "$5",         "$5|.00",         0},
    {"$#,##0.00",     "[$12.34]",      "$5",         "$5|.00",         0},
    {"$#,##0.00",     "|$12.34",       "$",          "$|12.34",        0},
    {"$#,##0.00",     "$|12.34",       "$5",         "$5|.00",         0},
    {"$#,##0.00",     "$1|2.34",       "$",          "$1|2.34",        ZTR_WRONG_KIND},
    {"~T~ $#,##0.00", "",              "T $5",       "T $5|.00",       0},
    {"~T~ $#,##0.00", "",              "$5",         "T $5|.00",       0},
    {"~T~ $#,##0.00", "",              "T5",         "T $5|.00",       0},
    {"~T~ $#,##0.00", "|T $1.00",      "T $5",       "T $5|.00",       0},
    {"##0%",          "",              "12%",        "12%|",           0},
    {"##0%",          "",              "12%3",       "123|%",          0},
    {"##0%",          "12|%",          "x",          "12|%",           ZTR_WRONG_KIND},
    {"[currency(9)]", "",              "kr.1,5",     "kr.1,5|0",       0, "DK"},
    {"[currency(9)]", "",              "1,50EUR",    "1,50EUR|",       0, "DE"},
};
TEST_ROWS(Separators, ModernNumberKeys, kSeparators);

const KeyRow kDeletion[] = {
    // Backspace
    {"#,##0.00",      "12|.34",        "b",          "1|.34",          0},
    {"#,##0.00",      "1|2.34",        "b",          "|2.34",          0},
    {"#,##0.00",      "|12.34",        "b",          "|12.34",         0},
    {"#,##0.00",      "12.|34",        "b",          "1|.34",          0},
    {"#,##0.00",      "12.34|",        "b",          "12.3|0",         0},
    {"#,##0.00",      "12.3|4",        "b",          "12.|40",         0},
    {"#.##",          "1.25|",         "b",          "1.2|",           0},
    {"#,##0.00",      "1,|234.00",     "b",          "|234.00",        0},
    {"#,##0.00",      "1,2|34.00",     "b",          "1|34.00",        0},
    {"#,##0.00",      "1,234|.00",     "b",          "123|.00",        0},
    {"#,##0.00",      "5|.00",         "b",          "|0.00",          0},
    {"#,##0.00",      "5|.50",         "b",          "0|.50",          0},
    {"#,##0.00",      "0|.50",         "b",          "|0.50",          0},
    {"#,##0.00",      "0.5|0",         "b",          "|0.00",          0},
    {"000",           "012|",          "b",          "001|",           0},
    {"000",           "012|",          "bb",         "|000",           0},
    {"000",           "012|",          "b5",         "015|",           0},
    {"#,##0.00",      "-6|.00",        "b5",         "-5|.00",         0},
    {"#,##0.00",      "-6|.00",        "bb",         "|0.00",          0},
    {"#,##0.00",      "-|12.00",       "b",          "|12.00",         0},
    {"#,#.00",        "-.|50",         "bb",         "|.50",           0},
    {"##0%",          "12%|",          "b",          "1|%",            0},
    {"0.00",          "",              "0b",         "|0.00",          0},
    {"0.00",          "",              ".b",         "|0.00",          0},
    // Delete
    {"#,##0.00",      "|12.34",        "d",          "|2.34",          0},
    {"#,##0.00",      "1|2.34",        "d",          "1|.34",          0},
    {"#,##0.00",      "12|.34",        "d",          "12.|40",         0},
    {"#,##0.00",      "12.|34",        "d",          "12.|40",         0},
    {"#,##0.00",      "12.34|",        "d",          "12.34|",         0},
    {"#,##0.00",      "12.|00",        "d",          "12.|00",         0},
    {"#,##0.00",      "1|,234.00",     "d",          "1|34.00",        0},
    {"#,##0.00",      "|-12.34",       "d",          "|12.34",         0},
    {"#,##0.00",      "|0.50",         "d",          "|0.00",          0},
    {"#,##0.00",      "|0.05",         "d",          "0.|50",          0},
    {"$#,##0.00",     "$|5.00",        "d",          "$|0.00",         0},
    {"000",           "0|12",          "d",          "00|2",           0},
    {"##0%",          "12|%",          "d",          "12|%",           0},
    {"0.00",          "=0",            "d",          "|0.00",          0},
    // words
    {"#,##0.00",      "1,23|4.56",     "B",          "|4.56",          0},
    {"#,##0.00",      "1,234.5|6",     "B",          "1,234.|60",      0},
    {"#,##0.00",      "1,234.|56",     "B",          "0|.56",          0},
    {"#,##0.00",      "1,2|34.56",     "D",          "12|.56",         0},
    {"#,##0.00",      "1,234|.56",     "D",          "1,234.|00",      0},
    {"#,##0.00",      "1,234.5|6",     "D",          "1,234.5|0",      0},
    {"#,##0.00",      "-1|2.56",       "B",          "-|2.56",         0},
    {"#,##0.00",      "-12|.56",       "D",          "-12.|00",        0},
    {"#,##0.00",      "|-12.56",       "D",          "0|.56",          0},
    // a selection
    {"#,##0.00",      "[12.34]",       "d",          "|0.00",          0},
    {"#,##0.00",      "[12.34]",       "B",          "|0.00",          0},
    {"#,##0.00",      "1[2.3]4",       "b",          "1|.40",          0},
    {"#,##0.00",      "12[.3]4",       "d",          "12|.40",         0},
    {"#,##0.00",      "12.[34]",       "d",          "12.|00",         0},
    {"#,##0.00",      "[1,]234.00",    "d",          "|234.00",        0},
    {"#,##0.00",      "-[12.34]",      "d",          "-|0.00",         0},
    {"#,##0.00",      "[-12.34]",      "d",          "|0.00",          0},
    {"#,##0.00",      "[-1]2.34",      "d",          "|2.34",          0},
    {"$#,##0.00",     "[$1]2.34",      "d",          "$|2.34",         0},
    {"$#,##0.00",     "[$]12.34",      "d",          "$|12.34",        0},
    {"##0%",          "1[2%]",         "d",          "1|%",            0},
    {"###",           "=0",            "d",          "|",              0},
};
TEST_ROWS(Deletion, ModernNumberKeys, kDeletion);

const KeyRow kCaret[] = {
    {"$#,##0.00",     "$12|.34",       "h",          "$|12.34",        0},
    {"##0%",          "|12%",          "e",          "12|%",           0},
    {"#,##0.00",      "|1,234.00",     ">",          "1|,234.00",      0},
    {"#,##0.00",      "|1,234.00",     ">>",         "1,2|34.00",      0},
    {"#,##0.00",      "1,2|34.00",     "<",          "1|,234.00",      0},
    {"#,##0.00",      "1,234|.00",     ">",          "1,234.|00",      0},
    {"#,##0.00",      "12.34|",        ">",          "12.34|",         0},
    {"$#,##0.00",     "$|12.34",       "<",          "$|12.34",        0},
    {"##0.000",       "1|2.345",       "]",          "12.|345",        0},
    {"##0.000",       "1|2.345",       "]]",         "12.345|",        0},
    {"##0.000",       "12.34|5",       "[",          "12.|345",        0},
    {"##0.000",       "12.34|5",       "[[",         "|12.345",        0},
    {"0.000",         "1.2|34",        "<",          "1.|234",         0, "EQ"},
    {"#,##0.00",      "x|1y",          "e",          "x1y|",           0},
    {"#,##0.00",      "x1|y",          "h",          "|x1y",           0},
};
TEST_ROWS(Caret, ModernNumberKeys, kCaret);
// clang-format on

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

}  // namespace
}  // namespace zttest
