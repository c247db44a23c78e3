// The mask as text: what stands at a display position, runs of equal characters, and the table of mask characters.
#include "mask/mask_text.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "mask/mask_items.h"
#include "mask/validators.h"
#include "tests/support/edit_test.h"
#include "tests/support/profile.h"

namespace zttest {
namespace {

using namespace zte;

struct CharCase {
    const char* name;
    const char* mask;
    const char* text;  // null: none
    int32_t type;
    int32_t position;
    char maskChar;
};
void PrintTo(const CharCase& row, std::ostream* out)
{
    *out << row.mask << " at " << row.position;
}

class MaskCharacter : public testing::TestWithParam<CharCase> {};

TEST_P(MaskCharacter, StandsAtTheDisplayPosition)
{
    const std::string text = GetParam().text ? GetParam().text : "";
    const MaskChar found =
        MaskCharAt(GetParam().mask, GetParam().text ? &text : nullptr, GetParam().type, GetParam().position);
    EXPECT_FALSE(found.missing);
    EXPECT_EQ(found.value, GetParam().maskChar);
}

const CharCase kPositionalRows[] = {
    {"First",                              "MM/DD/YY", nullptr, DT_DATE,   0,  'M' },
    {"ALiteral",                           "MM/DD/YY", nullptr, DT_DATE,   2,  '/' },
    {"Last",                               "MM/DD/YY", nullptr, DT_DATE,   7,  'Y' },
    {"PastTheEndIsTheFirst",               "MM/DD/YY", nullptr, DT_DATE,   8,  'M' },
    {"FarPastTheEndIsTheFirst",            "MM/DD/YY", nullptr, DT_DATE,   99, 'M' },
    {"AnEscapeIsATilde",                   "~A##",     nullptr, DT_STRING, 0,  '~' },
    {"BehindAnEscape",                     "~A##",     nullptr, DT_STRING, 1,  '#' },
    {"AnEscapeInside",                     "##~A##",   nullptr, DT_STRING, 2,  '~' },
    {"BehindAnEscapeInside",               "##~AX#",   nullptr, DT_STRING, 3,  'X' },
    {"PastTheEndOfAnEscapedMaskIsNothing", "~A##",     nullptr, DT_STRING, 3,  '\0'},
    {"TheEmptyMaskHasNothing",             "",         nullptr, DT_STRING, 0,  '\0'},
    {"TheTextDoesNotMatterToAString",      "A#",       "99",    DT_STRING, 0,  'A' },
};

const CharCase kNumericRows[] = {
    {"ADigitIsAHash",                   "#,##0.00", "1,234.50", DT_NUMBER,  0, '#'},
    {"TheSeparatorIsAComma",            "#,##0.00", "1,234.50", DT_NUMBER,  1, ','},
    {"ADigitOverAZeroOfTheMask",        "#,##0.00", "1,234.50", DT_NUMBER,  4, '0'},
    {"ThePointIsAPoint",                "#,##0.00", "1,234.50", DT_NUMBER,  5, '.'},
    {"OnlyTheIndexInTheMaskCounts",     "#,##0.00", "123.45",   DT_NUMBER,  4, '0'},
    {"BeyondTheMaskADigitIsAHash",      "#.00",     "12345.60", DT_NUMBER,  7, '#'},
    {"PastTheTextIsAHash",              "#.00",     "1.50",     DT_NUMBER,  4, '#'},
    {"AnEmptyTextIsAHash",              "#.00",     "",         DT_NUMBER,  0, '#'},
    {"AMinusIsAHash",                   "000",      "-12",      DT_NUMBER,  0, '#'},
    {"APlusIsAHash",                    "000",      "+12",      DT_NUMBER,  0, '#'},
    {"AnotherCharacterIsItself",        "$#.00",    "$1.50",    DT_NUMBER,  0, '$'},
    {"APercentSignIsItself",            "#%",       "5%",       DT_NUMBER,  1, '%'},
    {"DecimalsAreTheSame",              "#,##0.00", "1,234.50", DT_DECIMAL, 1, ','},
    {"AnEscapedPointMakesItPositional", "~.##0",    ".12",      DT_NUMBER,  0, '~'},
    {"ASecondPointDoesNotCount",        "~.##0.00", ".12.34",   DT_NUMBER,  1, '#'},
};

INSTANTIATE_TEST_SUITE_P(Positional, MaskCharacter, testing::ValuesIn(kPositionalRows), RowName<CharCase>);
INSTANTIATE_TEST_SUITE_P(Numeric, MaskCharacter, testing::ValuesIn(kNumericRows), RowName<CharCase>);

TEST(MaskCharacterOfANumber, IsMissingWithoutAText)
{
    EXPECT_TRUE(MaskCharAt("#,##0.00", nullptr, DT_NUMBER, 0).missing);
}

TEST(MaskCharacterOfANumber, FollowsTheRegionalCharacters)
{
    const Regional settings(kGerman);
    const std::string text = "1.234,50";
    EXPECT_EQ(MaskCharAt("#,##0.00", &text, DT_NUMBER, 1).value, ',');
    EXPECT_EQ(MaskCharAt("#,##0.00", &text, DT_NUMBER, 5).value, '.');
}

struct LengthCase {
    const char* name;
    const char* mask;
    int32_t length;
};
void PrintTo(const LengthCase& row, std::ostream* out)
{
    *out << row.mask;
}

class DisplayLengthOf : public testing::TestWithParam<LengthCase> {};

TEST_P(DisplayLengthOf, AMaskLeavesTheTildesOut)
{
    EXPECT_EQ(MaskDisplayLength(GetParam().mask), GetParam().length);
}

const LengthCase kLengthRows[] = {
    {"Empty",      "",         0},
    {"NoEscape",   "MM/DD/YY", 8},
    {"OneEscape",  "~A##",     3},
    {"TwoEscapes", "~A#~B#",   4},
    {"TildeAlone", "~",        0},
};
INSTANTIATE_TEST_SUITE_P(, DisplayLengthOf, testing::ValuesIn(kLengthRows), RowName<LengthCase>);

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

class Runs : public testing::TestWithParam<RunCase> {};

TEST_P(Runs, AreCountedBefore)
{
    EXPECT_EQ(MaskRunBefore(GetParam().mask, GetParam().position, GetParam().type), GetParam().before);
}

TEST_P(Runs, AreCountedBehind)
{
    EXPECT_EQ(MaskRunAfter(GetParam().mask, GetParam().position, GetParam().type), GetParam().after);
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
INSTANTIATE_TEST_SUITE_P(, Runs, testing::ValuesIn(kRunRows), RowName<RunCase>);

struct IndexCase {
    const char* name;
    const char* mask;
    int32_t position;
    int32_t index;
    const char* text;
};
void PrintTo(const IndexCase& row, std::ostream* out)
{
    *out << row.mask << " at " << row.position;
}

class Indexes : public testing::TestWithParam<IndexCase> {};

TEST_P(Indexes, AreThoseOfTheMaskText)
{
    EXPECT_EQ(MaskIndex(GetParam().mask, GetParam().position), GetParam().index);
}

TEST_P(Indexes, AreWhereTheMaskTextGoesOn)
{
    EXPECT_STREQ(MaskTextAt(GetParam().mask, GetParam().position), GetParam().text);
}

const IndexCase kIndexRows[] = {
    {"First",                              "MM/DD", 0, 0, "MM/DD"},
    {"Inside",                             "MM/DD", 3, 3, "DD"   },
    {"PastTheEndIsTheWholeMask",           "MM/DD", 5, 5, "MM/DD"},
    {"Escaped",                            "~A##",  0, 1, "~"    },
    {"BehindAnEscape",                     "~A##",  1, 2, "##"   },
    {"PastTheEndOfAnEscapedMaskIsNothing", "~A##",  3, 4, ""     },
};
INSTANTIATE_TEST_SUITE_P(, Indexes, testing::ValuesIn(kIndexRows), RowName<IndexCase>);

TEST(RunLengthOf, ATextIsItsEqualStart)
{
    EXPECT_EQ(RunLength("YYYY-MM"), 4);
    EXPECT_EQ(RunLength("-MM"), 1);
    EXPECT_EQ(RunLength("Mm"), 1);
}

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

// The whole table: which validator serves a mask character in each type, null where it is a literal.
struct ItemCase {
    const char* name;
    char maskChar;
    Validator inString;
    Validator inNumber;
    Validator inDate;
    Validator inTime;
    Validator inDateTime;
};
void PrintTo(const ItemCase& row, std::ostream* out)
{
    *out << row.maskChar;
}

class MaskItems : public testing::TestWithParam<ItemCase> {
protected:
    static Validator Found(char maskChar, int32_t type)
    {
        const MaskItem* item = FindMaskItem(maskChar, type);
        return item ? item->validate : nullptr;
    }

    static void CheckTypes(char maskChar)
    {
        const ItemCase& row = GetParam();
        EXPECT_EQ(Found(maskChar, DT_STRING), row.inString);
        EXPECT_EQ(Found(maskChar, DT_NUMBER), row.inNumber);
        EXPECT_EQ(Found(maskChar, DT_DECIMAL), row.inNumber);
        EXPECT_EQ(Found(maskChar, DT_DATE), row.inDate);
        EXPECT_EQ(Found(maskChar, DT_TIME), row.inTime);
        EXPECT_EQ(Found(maskChar, DT_DATETIME), row.inDateTime);
    }
};

TEST_P(MaskItems, AreFoundByCharacterAndType)
{
    CheckTypes(GetParam().maskChar);
}

TEST_P(MaskItems, AreFoundInSmallLettersToo)
{
    const char c = GetParam().maskChar;
    CheckTypes(c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c);
}

constexpr Validator kLiteral = nullptr;

const ItemCase kItemRows[] = {
    {"Hash",        '#',    ValidateDigit,        ValidateNumberDigit, kLiteral,              kLiteral,              kLiteral             },
    {"Zero",        '0',    ValidateDigit,        ValidateNumberDigit, kLiteral,              kLiteral,              kLiteral             },
    {"A",           'A',    ValidateAlphanumeric, kLiteral,            kLiteral,              kLiteral,              kLiteral             },
    {"X",           'X',    ValidateAny,          ValidateAny,         ValidateAny,           ValidateAny,           ValidateAny          },
    {"Exclamation", '!',    ValidateCaseOne,      ValidateCaseOne,     ValidateCaseOne,       ValidateCaseOne,       ValidateCaseOne      },
    {"Caret",       '^',    ValidateCaseTwo,      ValidateCaseTwo,     ValidateCaseTwo,       ValidateCaseTwo,       ValidateCaseTwo      },
    {"Y",           'Y',    kLiteral,             kLiteral,            ValidateYearDigit,     kLiteral,              ValidateYearDigit    },
    {"M",           'M',    kLiteral,             kLiteral,            ValidateMonthOrMinute, ValidateMonthOrMinute, ValidateMonthOrMinute},
    {"D",           'D',    kLiteral,             kLiteral,            ValidateDay,           kLiteral,              ValidateDay          },
    {"J",           'J',    kLiteral,             kLiteral,            ValidateJulianDay,     kLiteral,              ValidateJulianDay    },
    {"H",           'H',    kLiteral,             kLiteral,            kLiteral,              ValidateHour,          ValidateHour         },
    {"S",           'S',    kLiteral,             kLiteral,            kLiteral,              ValidateMinuteSecond,  ValidateMinuteSecond },
    {"F",           'F',    kLiteral,             kLiteral,            kLiteral,              ValidateDigit,         ValidateDigit        },
    {"P",           'P',    kLiteral,             kLiteral,            kLiteral,              kLiteral,              kLiteral             },
    {"Slash",       '/',    kLiteral,             kLiteral,            kLiteral,              kLiteral,              kLiteral             },
    {"Tilde",       '~',    kLiteral,             kLiteral,            kLiteral,              kLiteral,              kLiteral             },
    {"Comma",       ',',    kLiteral,             kLiteral,            kLiteral,              kLiteral,              kLiteral             },
    {"Point",       '.',    kLiteral,             kLiteral,            kLiteral,              kLiteral,              kLiteral             },
    {"HighByte",    '\xe4', kLiteral,             kLiteral,            kLiteral,              kLiteral,              kLiteral             },
};
INSTANTIATE_TEST_SUITE_P(, MaskItems, testing::ValuesIn(kItemRows), RowName<ItemCase>);

TEST(MaskItemOfNothing, IsNone)
{
    for (const int32_t type : {DT_STRING, DT_NUMBER, DT_DATE, DT_TIME, DT_DATETIME, DT_DECIMAL})
        EXPECT_EQ(FindMaskItem('\0', type), nullptr);
}

TEST(MaskItemOfAnotherType, IsOneOfEveryTypeOnly)
{
    EXPECT_NE(FindMaskItem('X', 99), nullptr);
    EXPECT_EQ(FindMaskItem('#', 99), nullptr);
}

}  // namespace
}  // namespace zttest
