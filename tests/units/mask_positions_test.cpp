// The mask read position by position: what stands at each place of the display, runs of equal characters, and the table
// of mask characters.
#include "engine/mask/mask_positions.h"

#include <gtest/gtest.h>

#include <ctime>
#include <ostream>
#include <string>

#include "engine/mask/mask_table.h"
#include "engine/memory_control.h"
#include "tests/support/key_case.h"
#include "tests/support/native/profile_store.h"
#include "tests/support/profile.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

using namespace zte;

struct PositionCase {
    const char* name;
    const char* mask;
    int32_t type;
    int32_t position;
    char character;
    bool escaped;
};
void PrintTo(const PositionCase& row, std::ostream* out)
{
    *out << row.mask << " at " << row.position;
}

class MaskCharacter : public RowTest<PositionCase> {};

ROW_TEST(MaskCharacter, StandsAtTheDisplayPosition)
{
    const PositionCase& row = GetParam();
    const MaskPositions positions(row.mask, row.type);
    EXPECT_EQ(positions.At(row.position).character, row.character);
    EXPECT_EQ(positions.At(row.position).escaped, row.escaped);
    EXPECT_EQ(positions.At(row.position).exists, row.character != '\0');
}

const PositionCase kPositionalRows[] = {
    {"First",                              "MM/DD/YY", DT_DATE,   0,  'M',  false},
    {"ALiteral",                           "MM/DD/YY", DT_DATE,   2,  '/',  false},
    {"Last",                               "MM/DD/YY", DT_DATE,   7,  'Y',  false},
    {"PastTheEndIsTheFirst",               "MM/DD/YY", DT_DATE,   8,  'M',  false},
    {"FarPastTheEndIsTheFirst",            "MM/DD/YY", DT_DATE,   99, 'M',  false},
    {"AnEscape",                           "~A##",     DT_STRING, 0,  'A',  true },
    {"BehindAnEscape",                     "~A##",     DT_STRING, 1,  '#',  false},
    {"AnEscapeInside",                     "##~A##",   DT_STRING, 2,  'A',  true },
    {"BehindAnEscapeInside",               "##~AX#",   DT_STRING, 3,  'X',  false},
    {"PastTheEndOfAnEscapedMaskIsNothing", "~A##",     DT_STRING, 3,  '\0', false},
    {"TheEmptyMaskHasNothing",             "",         DT_STRING, 0,  '\0', false},
};

TEST_ROWS(, MaskCharacter, kPositionalRows);

// Under masks of numbers the positions follow the digits shown: an 'x' marks where a digit or a sign may be typed at.
struct NumberCase {
    const char* name;
    const RegionalSet* settings;
    const char* mask;
    const char* text;
    const char* typed;  // one longer than the text: a digit may follow at its end
};
void PrintTo(const NumberCase& row, std::ostream* out)
{
    *out << row.mask << " over " << row.text;
}

class NumberPositions : public RowTest<NumberCase> {};

ROW_TEST(NumberPositions, FollowTheDigits)
{
    const NumberCase& row = GetParam();
    const Regional settings(*row.settings);
    for (const int32_t type : {DT_NUMBER, DT_DECIMAL}) {
        ControlSetup setup;
        setup.mask = row.mask;
        setup.dataType = type;
        const MemoryControl control(setup, SettingsInForce(), nullptr);
        std::string typed;
        for (int32_t i = 0; i <= Length(row.text); ++i)
            typed += PositionAt(control.Record(), row.text, i).IsEditable() ? 'x' : '.';
        EXPECT_EQ(typed, row.typed);
    }
}

const NumberCase kNumericRows[] = {
    {"SeparatorsAreLiterals",       &kUnitedStates, "#,##0.00", "1,234.50", "x.xxx.xxx"},
    {"LongerThanTheMask",           &kUnitedStates, "#.00",     "12345.60", "xxxxx.xxx"},
    {"AnEmptyText",                 &kUnitedStates, "#.00",     "",         "x"        },
    {"AMinus",                      &kUnitedStates, "000",      "-12",      "xxxx"     },
    {"APlus",                       &kUnitedStates, "000",      "+12",      "xxxx"     },
    {"TheSymbol",                   &kUnitedStates, "$#.00",    "$1.50",    ".x.xxx"   },
    {"APercentSign",                &kUnitedStates, "#%",       "5%",       "x.x"      },
    {"AnEscapedPoint",              &kUnitedStates, "~.##0",    ".12",      ".xxx"     },
    {"AnEscapedPointAndAPoint",     &kUnitedStates, "~.##0.00", ".12.34",   ".xx.xxx"  },
    {"AnEscapedDigit",              &kUnitedStates, "~5##0",    "512",      ".xxx"     },
    {"LettersThatOtherTypesRead",   &kUnitedStates, "X##0",     "X12",      ".xxx"     },
    {"GermanSeparatorsAreLiterals", &kGerman,       "#,#.00",   "1.234,50", "x.xxx.xxx"},
    {"APointUnderADecimalComma",    &kGerman,       "##0.00",   "1234,50",  "xxxx.xxx" },
};

TEST_ROWS(, NumberPositions, kNumericRows);

struct LengthCase {
    const char* name;
    const char* mask;
    size_t length;
};
void PrintTo(const LengthCase& row, std::ostream* out)
{
    *out << row.mask;
}

class DisplayLengthOf : public RowTest<LengthCase> {};

ROW_TEST(DisplayLengthOf, AMaskLeavesTheTildesOut)
{
    EXPECT_EQ(MaskPositions(GetParam().mask, DT_STRING).All().size(), GetParam().length);
}

const LengthCase kLengthRows[] = {
    {"Empty",      "",         0},
    {"NoEscape",   "MM/DD/YY", 8},
    {"OneEscape",  "~A##",     3},
    {"TwoEscapes", "~A#~B#",   4},
};
TEST_ROWS(, DisplayLengthOf, kLengthRows);

struct RunCase {
    const char* name;
    const char* mask;
    int32_t type;
    int32_t position;
    int32_t before;
    int32_t after;
};
void PrintTo(const RunCase& row, std::ostream* out)
{
    *out << row.mask << " at " << row.position;
}

class Runs : public RowTest<RunCase> {};

ROW_TEST(Runs, AreCountedBefore)
{
    const RunCase& row = GetParam();
    EXPECT_EQ(MaskPositions(row.mask, row.type).At(row.position).runBefore, row.before);
}

ROW_TEST(Runs, AreCountedBehind)
{
    const RunCase& row = GetParam();
    EXPECT_EQ(MaskPositions(row.mask, row.type).At(row.position).runAfter, row.after);
}

const RunCase kRunRows[] = {
    {"StartOfAField",               "MM/DD/YYYY", DT_DATE,   6, 0, 3},
    {"InsideAField",                "MM/DD/YYYY", DT_DATE,   8, 2, 1},
    {"EndOfAField",                 "MM/DD/YYYY", DT_DATE,   9, 3, 0},
    {"StartOfTheMask",              "MM/DD/YYYY", DT_DATE,   0, 0, 1},
    {"ALiteralAlone",               "MM/DD/YYYY", DT_DATE,   2, 0, 0},
    {"CaseIsExact",                 "mMMm",       DT_DATE,   1, 0, 1},
    {"AnEscapedNeighbourIsNoField", "~YYYY",      DT_DATE,   1, 0, 2},
    {"BehindAnEscapedNeighbour",    "~YYYY",      DT_DATE,   2, 1, 1},
    {"BehindAnotherEscape",         "~xYYYY",     DT_DATE,   1, 0, 3},
    {"OneCharacter",                "#",          DT_STRING, 0, 0, 0},
};
TEST_ROWS(, Runs, kRunRows);

TEST(AmPmField, IsExactlyInCapitalsOrSmallLetters)
{
    EXPECT_TRUE(BeginsWithAmPm("AM/PM"));
    EXPECT_TRUE(BeginsWithAmPm("am/pm"));
    EXPECT_TRUE(BeginsWithAmPm("AM/PM:MM"));
    EXPECT_FALSE(BeginsWithAmPm("Am/Pm"));
    EXPECT_FALSE(BeginsWithAmPm("AM/pm"));
    EXPECT_FALSE(BeginsWithAmPm("A/P"));
    EXPECT_FALSE(BeginsWithAmPm("AM/P"));
    EXPECT_FALSE(BeginsWithAmPm(" AM/PM"));
    EXPECT_FALSE(BeginsWithAmPm(""));
}

// The whole table: what a mask character is in each type.
struct ItemCase {
    const char* name;
    char maskChar;
    FieldKind inString;
    FieldKind inNumber;
    FieldKind inDate;
    FieldKind inTime;
    FieldKind inDateTime;
    FieldKind behindTheHour;  // in a date-time
};
void PrintTo(const ItemCase& row, std::ostream* out)
{
    *out << row.maskChar;
}

class MaskItems : public RowTest<ItemCase> {
protected:
    static void CheckTypes(char maskChar)
    {
        const ItemCase& row = GetParam();
        EXPECT_EQ(KindOf(maskChar, DT_STRING), row.inString);
        EXPECT_EQ(KindOf(maskChar, DT_NUMBER), row.inNumber);
        EXPECT_EQ(KindOf(maskChar, DT_DECIMAL), row.inNumber);
        EXPECT_EQ(KindOf(maskChar, DT_DATE), row.inDate);
        EXPECT_EQ(KindOf(maskChar, DT_TIME), row.inTime);
        EXPECT_EQ(KindOf(maskChar, DT_DATETIME), row.inDateTime);
        EXPECT_EQ(KindOf(maskChar, DT_DATETIME, true), row.behindTheHour);
    }
};

ROW_TEST(MaskItems, AreFoundByCharacterAndType)
{
    CheckTypes(GetParam().maskChar);
}

ROW_TEST(MaskItems, AreFoundInSmallLettersToo)
{
    const char c = GetParam().maskChar;
    CheckTypes(c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c);
}

using K = FieldKind;

const ItemCase kItemRows[] = {
    {"Hash",        '#',    K::Digit,        K::NumberDigit, K::Literal,   K::Literal,   K::Literal,   K::Literal  },
    {"Zero",        '0',    K::Digit,        K::NumberDigit, K::Literal,   K::Literal,   K::Literal,   K::Literal  },
    {"A",           'A',    K::Alphanumeric, K::Literal,     K::Literal,   K::Literal,   K::Literal,   K::Literal  },
    {"X",           'X',    K::Any,          K::Any,         K::Any,       K::Any,       K::Any,       K::Any      },
    {"Exclamation", '!',    K::UpperCase,    K::UpperCase,   K::UpperCase, K::UpperCase, K::UpperCase, K::UpperCase},
    {"Caret",       '^',    K::LowerCase,    K::LowerCase,   K::LowerCase, K::LowerCase, K::LowerCase, K::LowerCase},
    {"Y",           'Y',    K::Literal,      K::Literal,     K::Year,      K::Literal,   K::Year,      K::Year     },
    {"M",           'M',    K::Literal,      K::Literal,     K::Month,     K::Minute,    K::Month,     K::Minute   },
    {"D",           'D',    K::Literal,      K::Literal,     K::Day,       K::Literal,   K::Day,       K::Day      },
    {"J",           'J',    K::Literal,      K::Literal,     K::DayOfYear, K::Literal,   K::DayOfYear, K::DayOfYear},
    {"H",           'H',    K::Literal,      K::Literal,     K::Literal,   K::Hour,      K::Hour,      K::Hour     },
    {"S",           'S',    K::Literal,      K::Literal,     K::Literal,   K::Second,    K::Second,    K::Second   },
    {"F",           'F',    K::Literal,      K::Literal,     K::Literal,   K::Fraction,  K::Fraction,  K::Fraction },
    {"P",           'P',    K::Literal,      K::Literal,     K::Literal,   K::Literal,   K::Literal,   K::Literal  },
    {"Slash",       '/',    K::Literal,      K::Literal,     K::Literal,   K::Literal,   K::Literal,   K::Literal  },
    {"Tilde",       '~',    K::Literal,      K::Literal,     K::Literal,   K::Literal,   K::Literal,   K::Literal  },
    {"Comma",       ',',    K::Literal,      K::Literal,     K::Literal,   K::Literal,   K::Literal,   K::Literal  },
    {"Point",       '.',    K::Literal,      K::Literal,     K::Literal,   K::Literal,   K::Literal,   K::Literal  },
    {"HighByte",    '\xe4', K::Literal,      K::Literal,     K::Literal,   K::Literal,   K::Literal,   K::Literal  },
    {"End",         '\0',   K::Literal,      K::Literal,     K::Literal,   K::Literal,   K::Literal,   K::Literal  },
};
TEST_ROWS(, MaskItems, kItemRows);

TEST(MaskItemOfAnotherType, IsOneOfEveryTypeOnly)
{
    EXPECT_EQ(KindOf('X', 99), FieldKind::Any);
    EXPECT_EQ(KindOf('#', 99), FieldKind::Literal);
}

}  // namespace
}  // namespace zttest
