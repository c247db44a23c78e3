// Texts and characters: copying, the number test, upper and lower case.
#include <gtest/gtest.h>

#include <cctype>
#include <climits>
#include <clocale>
#include <cstring>
#include <string>

#include "tests/companions/rows.h"
#include "tests/companions/scoped_profile.h"
#include "ztshared.h"

namespace {

using zttest::ScopedProfile;

struct NumberCase {
    const char* name;
    const char* text;
    bool number;
};

void PrintTo(const NumberCase& row, std::ostream* out)
{
    *out << '"' << row.text << '"';
}

class NumberTest : public testing::TestWithParam<NumberCase> {
protected:
    const ScopedProfile profile_{zttest::kPointAndComma};
};

TEST_P(NumberTest, TellsNumbersFromOtherTexts)
{
    EXPECT_EQ(SharedIsNumber(GetParam().text) != 0, GetParam().number);
}

constexpr NumberCase kNumberCases[] = {
    {"Digits",           "123",                                                                  true },
    {"Zero",             "0",                                                                    true },
    {"Minus",            "-5",                                                                   true },
    {"Plus",             "+5",                                                                   true },
    {"Fraction",         "1.5",                                                                  true },
    {"PointFirst",       ".5",                                                                   true },
    {"PointLast",        "5.",                                                                   true },
    {"SignAndPoint",     "-.5",                                                                  true },
    {"BlanksAround",     "  12  ",                                                               true },
    {"TabsAround",       "\t12\t",                                                               true },
    {"ManyDigits",       "00000000000000000000000000000000000000000000000000000000000000000001", true },
    {"Empty",            "",                                                                     false},
    {"BlanksOnly",       "   ",                                                                  false},
    {"SignOnly",         "-",                                                                    false},
    {"PointOnly",        ".",                                                                    false},
    {"SignAndPointOnly", "-.",                                                                   false},
    {"TwoPoints",        "1.2.3",                                                                false},
    {"PointsInARow",     "1..",                                                                  false},
    {"TwoSigns",         "--1",                                                                  false},
    {"SignBehind",       "1-",                                                                   false},
    {"BlankBehindSign",  "- 1",                                                                  false},
    {"BlankInside",      "1 2",                                                                  false},
    {"Letters",          "12a",                                                                  false},
    {"Exponent",         "1e5",                                                                  false},
    {"Hexadecimal",      "0x1",                                                                  false},
    {"Grouped",          "1,234",                                                                false},
    {"Percent",          "5%",                                                                   false},
    {"Currency",         "$5",                                                                   false},
    {"HighCharacter",    "\xB2",                                                                 false},
    {"LineEnd",          "1\n",                                                                  false},
};

INSTANTIATE_TEST_SUITE_P(Texts, NumberTest, testing::ValuesIn(kNumberCases), zttest::RowName<NumberCase>);

struct RegionalNumberCase {
    const char* name;
    const ScopedProfile::Values* profile;
    const char* text;
    bool number;
};

void PrintTo(const RegionalNumberCase& row, std::ostream* out)
{
    *out << '"' << row.text << '"';
}

class NumberTestRegional : public testing::TestWithParam<RegionalNumberCase> {};

TEST_P(NumberTestRegional, TakesTheRegionalPointAndThePlainOne)
{
    const ScopedProfile profile(*GetParam().profile);
    EXPECT_EQ(SharedIsNumber(GetParam().text) != 0, GetParam().number);
}

const RegionalNumberCase kRegionalNumberCases[] = {
    {"Comma",                &zttest::kCommaAndPoint,   "1,5",   true },
    {"PointBesideTheComma",  &zttest::kCommaAndPoint,   "1.5",   true },
    {"CommaFirst",           &zttest::kCommaAndPoint,   ",5",    true },
    {"PointAndComma",        &zttest::kCommaAndPoint,   "1.5,2", false},
    {"TwoCommas",            &zttest::kCommaAndPoint,   "1,2,3", false},
    {"CommaOnly",            &zttest::kCommaAndPoint,   ",",     false},
    {"PointWithoutASetting", &zttest::kEmptyCharacters, "1.5",   true },
    {"EmptyWithoutASetting", &zttest::kEmptyCharacters, "",      false},
    {"CommaWithoutASetting", &zttest::kEmptyCharacters, "1,5",   false},
};

INSTANTIATE_TEST_SUITE_P(Texts, NumberTestRegional, testing::ValuesIn(kRegionalNumberCases),
                         zttest::RowName<RegionalNumberCase>);

TEST(NumberTestNull, IsNoNumber)
{
    EXPECT_EQ(SharedIsNumber(nullptr), 0);
}

TEST(TextCopy, CopiesUpToTheTerminator)
{
    char destination[10];
    std::memset(destination, 0x55, sizeof destination);
    EXPECT_EQ(SharedStrCopy(destination, "abc"), destination);
    EXPECT_STREQ(destination, "abc");
    EXPECT_EQ(destination[4], 0x55);
}

TEST(TextCopy, TakesNullAsTheEmptyText)
{
    char destination[4] = "abc";
    EXPECT_EQ(SharedStrCopy(destination, nullptr), destination);
    EXPECT_STREQ(destination, "");
    EXPECT_EQ(SharedStrCopy(nullptr, "abc"), nullptr);
}

TEST(CharacterCase, OneIsUpperAndTwoIsLower)
{
    for (int32_t character = 0; character < 128; ++character) {
        const bool lower = character >= 'a' && character <= 'z';
        const bool upper = character >= 'A' && character <= 'Z';
        EXPECT_EQ(SharedCharConvertOne(character), lower ? character - 32 : character);
        EXPECT_EQ(SharedCharConvertTwo(character), upper ? character + 32 : character);
    }
}

TEST(CharacterCase, FollowsTheRuntimesCurrentLocale)
{
    EXPECT_EQ(SharedCharConvertOne(0xE4), 0xE4);  // the standard locale knows no umlauts
    ASSERT_NE(std::setlocale(LC_CTYPE, "English_United States.1252"), nullptr);
    for (int32_t character = 0; character <= 255; ++character) {
        EXPECT_EQ(SharedCharConvertOne(character), std::toupper(character));
        EXPECT_EQ(SharedCharConvertTwo(character), std::tolower(character));
    }
    EXPECT_EQ(SharedCharConvertOne(0xE4), 0xC4);
    EXPECT_EQ(SharedCharConvertTwo(0xC4), 0xE4);
    std::setlocale(LC_CTYPE, "C");
}

TEST(CharacterCase, LeavesOtherNumbersAlone)
{
    for (const int32_t number : {-1, -159, 256, 256 + 'a', 0x10000 + 'A', INT_MAX, INT_MIN}) {
        EXPECT_EQ(SharedCharConvertOne(number), number);
        EXPECT_EQ(SharedCharConvertTwo(number), number);
    }
}

}  // namespace
