// The number test: which texts are one number.
#include <gtest/gtest.h>

#include <string>

#include "tests/companions/scoped_profile.h"
#include "tests/support/rows.h"
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

class NumberTest : public zttest::RowTest<NumberCase> {
protected:
    const ScopedProfile profile_{zttest::kPointAndComma};
};

ROW_TEST(NumberTest, TellsNumbersFromOtherTexts)
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

TEST_ROWS(Texts, NumberTest, kNumberCases);

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

class NumberTestRegional : public zttest::RowTest<RegionalNumberCase> {};

ROW_TEST(NumberTestRegional, TakesTheRegionalPointAndThePlainOne)
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

TEST_ROWS(Texts, NumberTestRegional, kRegionalNumberCases);

TEST(NumberTestNull, IsNoNumber)
{
    EXPECT_EQ(SharedIsNumber(nullptr), 0);
}

}  // namespace
