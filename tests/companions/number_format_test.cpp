// Number formats: what compiles, what is shown, and that reading it back gives the rounded value.
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <random>
#include <string>

#include "tests/companions/long_decimal.h"
#include "tests/companions/scoped_profile.h"
#include "tests/support/rows.h"
#include "ztshared.h"

namespace {

using zttest::LongDecimal;
using zttest::ScopedProfile;

constexpr int32_t kRoom = 2048;  // more than any text of these tests

class Format {
public:
    explicit Format(const std::string& text)
    {
        EXPECT_EQ(SharedCompileFormat(compiled_, text.c_str(), sizeof compiled_), 0) << text;
    }

    std::string Show(double value) const
    {
        char text[kRoom];
        const int32_t length = SharedFormatDouble(text, sizeof text, compiled_, value, 0);
        EXPECT_EQ(static_cast<size_t>(length), std::strlen(text));
        return text;
    }

    std::string Show(const DecimalValue& value) const
    {
        char text[kRoom];
        const int32_t length = SharedFormatDecimal(text, sizeof text, compiled_, &value, 0);
        EXPECT_EQ(static_cast<size_t>(length), std::strlen(text));
        return text;
    }

private:
    char compiled_[SHARED_FORMAT_SIZE];
};

std::string Show(const std::string& format, double value)
{
    return Format(format).Show(value);
}

std::string ShowDecimal(const std::string& format, const std::string& text)
{
    DecimalValue value;
    DecFromString(&value, text.c_str(), 0);
    return Format(format).Show(value);
}

bool Compiles(const std::string& format, int32_t size = SHARED_FORMAT_SIZE)
{
    const auto compiled = std::make_unique<char[]>(static_cast<size_t>(size));
    return SharedCompileFormat(compiled.get(), format.c_str(), size) == 0;
}

// Every test here works with a point and a comma unless it says otherwise.
class NumberFormat : public testing::Test {
protected:
    const ScopedProfile profile_{zttest::kPointAndComma};
};

// ---- What is shown --------------------------------------------------------------------------------------------------

struct ShowCase {
    const char* name;
    const char* format;
    const char* value;  // as text: the double next to it, and the decimal
    const char* shown;
};

void PrintTo(const ShowCase& row, std::ostream* out)
{
    *out << row.value << " under \"" << row.format << '"';
}

class ShownNumber : public zttest::RowTest<ShowCase> {
protected:
    const ScopedProfile profile_{zttest::kPointAndComma};
};

ROW_TEST(ShownNumber, OfADouble)
{
    EXPECT_EQ(Show(GetParam().format, std::atof(GetParam().value)), GetParam().shown);
}

ROW_TEST(ShownNumber, OfADecimal)
{
    EXPECT_EQ(ShowDecimal(GetParam().format, GetParam().value), GetParam().shown);
}

constexpr ShowCase kShowCases[] = {
    {"StandardZero",                  "#,#.00",           "0",                    ".00"                 },
    {"StandardHalf",                  "#,#.00",           "0.5",                  ".50"                 },
    {"StandardThousands",             "#,#.00",           "1234.5",               "1,234.50"            },
    {"StandardNegative",              "#,#.00",           "-1234.5",              "-1,234.50"           },
    {"StandardNegativeFraction",      "#,#.00",           "-0.5",                 "-.50"                },
    {"StandardMillions",              "#,#.00",           "1234567.891",          "1,234,567.89"        },
    {"StandardHundreds",              "#,#.00",           "999",                  "999.00"              },
    {"StandardRoundsIntoThousands",   "#,#.00",           "999.995",              "1,000.00"            },
    {"OptionalFraction",              "#.##",             "1.5",                  "1.5"                 },
    {"OptionalFractionGone",          "#.##",             "2",                    "2."                  },
    {"OptionalFractionFull",          "#.##",             "1.25",                 "1.25"                },
    {"OptionalFractionInnerZero",     "#.##",             "1.05",                 "1.05"                },
    {"OptionalFractionZero",          "#.##",             "0",                    "."                   },
    {"OptionalFractionNegative",      "#.##",             "-0.5",                 "-.5"                 },
    {"NoDigitsForZero",               "####",             "0",                    ""                    },
    {"NoDigitsBelowHalf",             "####",             "0.4",                  ""                    },
    {"NoDigitsBelowMinusHalf",        "####",             "-0.4",                 ""                    },
    {"MoreDigitsThanPlaces",          "#",                "123456",               "123456"              },
    {"MoreDigitsThanZeros",           "00",               "12345",                "12345"               },
    {"MoreDigitsGrouped",             "#,#",              "12345678",             "12,345,678"          },
    {"ForcedZero",                    "0",                "0",                    "0"                   },
    {"ForcedZeros",                   "000",              "5",                    "005"                 },
    {"ForcedZerosNegative",           "000",              "-5",                   "-005"                },
    {"ForcedZerosGrouped",            "000,000",          "5",                    "000,005"             },
    {"ForcedZerosGroupedNegative",    "000,000",          "-5",                   "-000,005"            },
    {"ForcedZeroBeforeOptional",      "0#",               "5",                    "05"                  },
    {"ForcedZeroAmongOptional",       "#0#",              "5",                    "05"                  },
    {"ForcedZeroAmongOptionalFull",   "#0#",              "123",                  "123"                 },
    {"ForcedLast",                    "##0",              "0",                    "0"                   },
    {"ForcedFraction",                "0.00",             "0.5",                  "0.50"                },
    {"ForcedBehindOptionalFraction",  "0.#0",             "1",                    "1.00"                },
    {"OptionalBehindForcedFraction",  "0.0#",             "1",                    "1.0"                 },
    {"OptionalBehindForcedShown",     "0.0#",             "1.25",                 "1.25"                },
    {"MixedFraction",                 "0.0#0#",           "1",                    "1.000"               },
    {"MixedFractionShown",            "0.0#0#",           "1.0001",               "1.0001"              },
    {"PointAlone",                    "#.",               "7",                    "7."                  },
    {"PointAloneZero",                "#.",               "0",                    "."                   },
    {"PointAloneRounds",              "0.",               "1.5",                  "2."                  },
    {"NoIntegerPlaces",               ".00",              "12.5",                 "12.50"               },
    {"NoIntegerPlacesBelowOne",       ".00",              "0.125",                ".13"                 },
    {"NoIntegerPlacesNegative",       ".00",              "-12.5",                "-12.50"              },
    {"HalfAwayFromZero",              "0.00",             "2.675",                "2.68"                },
    {"HalfAwayFromZeroNegative",      "0.00",             "-2.675",               "-2.68"               },
    {"HalfOfAnEvenDigit",             "0",                "2.5",                  "3"                   },
    {"HalfOfAnEvenDigitNegative",     "0",                "-2.5",                 "-3"                  },
    {"BelowHalf",                     "0.00",             "1.0049",               "1.00"                },
    {"RoundsUpToOne",                 "0",                "0.5",                  "1"                   },
    {"RoundsUpToOneHundredth",        "0.00",             "0.005",                "0.01"                },
    {"TooSmallToRound",               "0.00",             "0.0005",               "0.00"                },
    {"NinesCarry",                    "0.00",             "9.999",                "10.00"               },
    {"NinesCarryBelowOne",            "#.##",             "0.999",                "1."                  },
    {"RoundsToZeroWithoutSign",       "0.00",             "-0.004",               "0.00"                },
    {"RoundsToSmallestWithSign",      "0.00",             "-0.005",               "-0.01"               },
    {"NegativeZero",                  "0.00",             "-0",                   "0.00"                },
    {"Percent",                       "#%",               "0.5",                  "50%"                 },
    {"PercentFraction",               "#.0%",             "0.125",                "12.5%"               },
    {"PercentZero",                   "#%",               "0",                    "%"                   },
    {"PercentExact",                  "#.00%",            "0.07",                 "7.00%"               },
    {"PercentOfADecimalTrap",         "0.0000000000000%", "0.57",                 "57.0000000000000%"   },
    {"PercentRounds",                 "0%",               "0.125",                "13%"                 },
    {"PercentNegative",               "0.0%",             "-0.125",               "-12.5%"              },
    {"PercentGrouped",                "#,#%",             "12.5",                 "1,250%"              },
    {"PercentCountsOnce",             "0%%",              "0.5",                  "50%%"                },
    {"EscapedPercentIsText",          "0\\%",             "5",                    "5%"                  },
    {"Currency",                      "$#,##0.00",        "1234.5",               "$1,234.50"           },
    {"SignBehindCurrency",            "$#,##0.00",        "-5",                   "$-5.00"              },
    {"SignBeforePointBehindText",     "$#.00",            "-0.25",                "$-.25"               },
    {"SignBehindEscapes",             "\\#\\-0",          "-5",                   "#--5"                },
    {"SignBehindEmptyPlaces",         "##x##",            "-5",                   "x-5"                 },
    {"SignBehindTextBeforeThePoint",  "#x.0",             "-0.5",                 "x-.5"                },
    {"SignBehindLongPrefix",          "EUR #,#.00",       "-1234.5",              "EUR -1,234.50"       },
    {"TextBehind",                    "#,##0.00 DM",      "1234.5",               "1,234.50 DM"         },
    {"TextBehindZero",                "#,#.00F",          "0",                    ".00F"                },
    {"EscapedPlaceholder",            "\\##0",            "5",                    "#5"                  },
    {"EscapedBackslash",              "\\\\0",            "5",                    "\\5"                 },
    {"EscapedOrdinary",               "\\a0\\b",          "5",                    "a5b"                 },
    {"TextBetweenDigits",             "00-00",            "1234",                 "12-34"               },
    {"TextBetweenForcedDigits",       "00-00",            "7",                    "00-07"               },
    {"TextBetweenDigitsOverflow",     "00-00",            "12345",                "123-45"              },
    {"TextBetweenOptionalDigits",     "(###) ###-####",   "5551234567",           "(555) 123-4567"      },
    {"TextBetweenGroupedDigits",      "#,###x000",        "1234567",              "1,234,x567"          },
    {"TextBetweenFractionDigits",     "0.00x00",          "1.2345",               "1.23x45"             },
    {"TextBehindHiddenFraction",      "0.0#x",            "1.5",                  "1.5x"                },
    {"TextBeforePoint",               "0x.0",             "1.5",                  "1x.5"                },
    {"CommaBeforePlacesMeansNothing", ",#",               "1234",                 "1234"                },
    {"CommaBehindPlacesMeansNothing", "#,.0",             "1234",                 "1234.0"              },
    {"CommaInTextMeansNothing",       "a,b0",             "1234",                 "ab1234"              },
    {"CommaAnywhereBetweenGroups",    "#,####",           "1234567",              "1,234,567"           },
    {"ManyCommas",                    "#,,#",             "1234",                 "1,234"               },
    {"LettersAreText",                "X0A",              "5",                    "X5A"                 },
    {"GeneralAsTextWithPlaces",       "[GENERAL]0",       "5",                    "[GENERAL]5"          },
    {"General",                       "[GENERAL]",        "1234.5",               "1234.5"              },
    {"GeneralZero",                   "[GENERAL]",        "0",                    "0"                   },
    {"GeneralNegative",               "[GENERAL]",        "-0.125",               "-0.125"              },
    {"GeneralInteger",                "[GENERAL]",        "100",                  "100"                 },
    {"GeneralTrailingZeros",          "[GENERAL]",        "1.500",                "1.5"                 },
    {"GeneralFifteenDigits",          "[GENERAL]",        "0.123456789012345",    "0.123456789012345"   },
    {"GeneralRounds",                 "[GENERAL]",        "1.2345678901234565",   "1.23456789012346"    },
    {"GeneralLargestPlain",           "[GENERAL]",        "999999999999999",      "999999999999999"     },
    {"GeneralSixteenDigits",          "[GENERAL]",        "1234567890123456",     "1.23456789012346E+15"},
    {"GeneralRoundsToSixteenDigits",  "[GENERAL]",        "999999999999999.9",    "1E+15"               },
    {"GeneralSmallestPlain",          "[GENERAL]",        "0.0000000000000001",   "0.0000000000000001"  },
    {"GeneralTooSmallForPlain",       "[GENERAL]",        "-0.00000000000000001", "-1E-17"              },
    {"GeneralLargeNegative",          "[GENERAL]",        "-1e20",                "-1E+20"              },
};

TEST_ROWS(Values, ShownNumber, kShowCases);

TEST_F(NumberFormat, ShowsInfinitiesAndNoNumberAsZero)
{
    for (const double value : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                               -std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(Show("$#,##0.00", value), "$0.00");
        EXPECT_EQ(Show("[GENERAL]", value), "0");
        EXPECT_EQ(Show("#,#.00", value), ".00");
    }
    EXPECT_EQ(Show("0.0", -0.0), "0.0");
}

TEST_F(NumberFormat, ShowsADoubleByItsShortestDigits)
{
    EXPECT_EQ(Show("0.####################", 0.1), "0.1");
    EXPECT_EQ(Show("0.####################", 1.0 / 3), "0.3333333333333333");
    EXPECT_EQ(Show("0.####################", 0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(Show("0", 9007199254740993.0), "9007199254740992");
    EXPECT_EQ(Show("0", 123456789012345680000.0), "123456789012345680000");
}

TEST_F(NumberFormat, ShowsEveryDigitOfTheLargestNumbers)
{
    EXPECT_EQ(Show("0", 1e300), "1" + std::string(300, '0'));
    EXPECT_EQ(Show("0", DBL_MAX), "17976931348623157" + std::string(292, '0'));
    EXPECT_EQ(Show("0%", DBL_MAX), "17976931348623157" + std::string(294, '0') + "%");
    EXPECT_EQ(Show("0.0", 5e-324), "0.0");
    EXPECT_EQ(Show("[GENERAL]", DBL_MAX), "1.79769313486232E+308");
    EXPECT_EQ(Show("[GENERAL]", -5e-324), "-5E-324");
    EXPECT_EQ(Show("[GENERAL]", 1e99), "1E+99");
    EXPECT_EQ(Show("[GENERAL]", 1e100), "1E+100");
    EXPECT_EQ(Show("[GENERAL]", 1e199), "1E+199");
    EXPECT_EQ(Show("[GENERAL]", 1e-99), "1E-99");
    std::string grouped = "1";
    for (int group = 0; group < 100; ++group)
        grouped += ",000";
    EXPECT_EQ(Show("#,#", 1e300), grouped);
}

TEST_F(NumberFormat, ShowsEveryDigitOfADecimal)
{
    EXPECT_EQ(ShowDecimal("#,#.00", "79228162514264337593543950335"), "79,228,162,514,264,337,593,543,950,335.00");
    EXPECT_EQ(ShowDecimal("0." + std::string(28, '#'), "-1.2345678901234567890123456789"),
              "-1.2345678901234567890123456789");
    EXPECT_EQ(ShowDecimal("0.00", "1234567890123456789012345.675"), "1234567890123456789012345.68");
    EXPECT_EQ(ShowDecimal("[GENERAL]", "12345678901234.5678"), "12345678901234.6");
}

TEST_F(NumberFormat, TakesARecordThatIsNoDecimalWithoutHarm)
{
    DecimalValue odd{};
    odd.scale = 255;
    odd.sign = 0xFF;
    odd.lo64 = 5;
    EXPECT_EQ(Format("0.00").Show(odd), "0.00");
}

TEST_F(NumberFormat, ShowsDecimalsWhoseSmallestDigitOutlastsTheFormat)
{
    DecimalValue value;
    DecFromString(&value, "0.0000000000000000000000000001", 0);
    EXPECT_EQ(Format("0." + std::string(28, '0')).Show(value), "0.0000000000000000000000000001");
    EXPECT_EQ(Format("0." + std::string(27, '0')).Show(value), "0." + std::string(27, '0'));
}

// ---- Regional characters --------------------------------------------------------------------------------------------

struct RegionalCase {
    const char* name;
    ScopedProfile::Values profile;
    const char* shown;    // 1234567.5 under #,##0.00
    const char* general;  // -0.5 under [GENERAL]
};

class RegionalNumber : public zttest::RowTest<RegionalCase> {};

ROW_TEST(RegionalNumber, HasTheCharactersOfTheProfile)
{
    const ScopedProfile profile(GetParam().profile);
    EXPECT_EQ(Show("#,##0.00", 1234567.5), GetParam().shown);
    EXPECT_EQ(ShowDecimal("#,##0.00", "1234567.5"), GetParam().shown);
    EXPECT_EQ(Show("[GENERAL]", -0.5), GetParam().general);
}

const RegionalCase kRegionalCases[] = {
    {"PointAndComma", zttest::kPointAndComma,    "1,234,567.50", "-0.5"},
    {"CommaAndPoint", zttest::kCommaAndPoint,    "1.234.567,50", "-0,5"},
    {"CommaAndBlank", zttest::kCommaAndBlank,    "1 234 567,50", "-0,5"},
    {"Empty",         zttest::kEmptyCharacters,  "1,234,567.50", "-0.5"},
    {"Absent",        zttest::kAbsentCharacters, "1,234,567.50", "-0.5"},
};

TEST_ROWS(Profiles, RegionalNumber, kRegionalCases);

TEST_F(NumberFormat, TakesTheFirstCharacterOfALongerSetting)
{
    const ScopedProfile profile({
        {"sDecimal",  ";:"},
        {"sThousand", "'`"}
    });
    EXPECT_EQ(Show("#,#.0", 1234.5), "1'234;5");
}

TEST_F(NumberFormat, FollowsTheProfileOnlyWhenToldTo)
{
    ScopedProfile::Write("sDecimal", ";");
    EXPECT_EQ(Show("0.0", 1.5), "1.5");
    SharedReadRegionalSettings();
    EXPECT_EQ(Show("0.0", 1.5), "1;5");
}

TEST_F(NumberFormat, HasPointAndCommaAsPlaceholdersUnderAnyProfile)
{
    const ScopedProfile profile(zttest::kCommaAndPoint);
    EXPECT_FALSE(Compiles("#.##0,00"));
    EXPECT_TRUE(Compiles("#,##0.00"));
}

// ---- What compiles --------------------------------------------------------------------------------------------------

struct ValidityCase {
    const char* name;
    const char* format;
    bool valid;
};

void PrintTo(const ValidityCase& row, std::ostream* out)
{
    *out << '"' << row.format << '"';
}

class FormatValidity : public zttest::RowTest<ValidityCase> {};

ROW_TEST(FormatValidity, IsToldByTheResult)
{
    EXPECT_EQ(Compiles(GetParam().format), GetParam().valid);
}

constexpr ValidityCase kValidityCases[] = {
    {"Standard",                "#,#.00",     true },
    {"OneZero",                 "0",          true },
    {"OneSharp",                "#",          true },
    {"FractionOnly",            ".0",         true },
    {"PointLast",               "0.",         true },
    {"Percent",                 "0%",         true },
    {"TextBehindPercent",       "0% off",     true },
    {"PointBehindPercent",      "0%.",        true },
    {"EscapeBehindPercent",     "0%\\0",      true },
    {"EscapedSecondPoint",      "0.0\\.",     true },
    {"EscapedCommaInFraction",  "0.0\\,0",    true },
    {"EscapedBackslashLast",    "0\\\\",      true },
    {"General",                 "[GENERAL]",  true },
    {"Empty",                   "",           false},
    {"TextOnly",                "abc",        false},
    {"PointOnly",               ".",          false},
    {"PercentOnly",             "%",          false},
    {"CommaOnly",               ",",          false},
    {"EscapedPlaceholderOnly",  "\\0",        false},
    {"SecondPoint",             "0.0.0",      false},
    {"SecondPointInText",       "0.0 o.k.",   false},
    {"PointsInPrefix",          "Fr. 0.00",   false},
    {"CommaBehindPoint",        "0.0,0",      false},
    {"CommaDirectlyBehind",     "0.,",        false},
    {"CommaInTextBehindPoint",  "0.0 a,b",    false},
    {"PlaceholderAfterPercent", "0%0",        false},
    {"PercentFirst",            "%0",         false},
    {"FractionAfterPercent",    "0%.0",       false},
    {"LoneBackslash",           "0\\",        false},
    {"OnlyBackslash",           "\\",         false},
    {"BackslashAfterEscaped",   "0\\\\\\",    false},
    {"GeneralInLowerCase",      "[general]",  false},
    {"GeneralWithBlank",        " [GENERAL]", false},
    {"GeneralUnclosed",         "[GENERAL",   false},
};

TEST_ROWS(Formats, FormatValidity, kValidityCases);

TEST_F(NumberFormat, Of255CharactersFitsInto256Bytes)
{
    EXPECT_TRUE(Compiles(std::string(255, '0')));
    EXPECT_TRUE(Compiles(std::string(254, 'x') + "0"));
    EXPECT_TRUE(Compiles("0." + std::string(253, '#')));
    EXPECT_EQ(Show(std::string(255, '0'), 5), std::string(254, '0') + "5");
    EXPECT_EQ(Show("0." + std::string(253, '0'), 0.5), "0.5" + std::string(252, '0'));
    std::string escapes = "0";
    for (int i = 0; i < 127; ++i)
        escapes += "\\x";
    EXPECT_EQ(Show(escapes, 5), "5" + std::string(127, 'x'));
}

TEST_F(NumberFormat, ThatDoesNotFitIsRefusedAndNothingIsWrittenBeyondTheSize)
{
    EXPECT_FALSE(Compiles(std::string(256, '0')));
    const std::string formats[] = {"#,##0.00", "[GENERAL]", std::string(300, '0')};
    for (const std::string& format : formats)
        for (int32_t size = -1; size <= 320; ++size) {
            char compiled[400];
            std::memset(compiled, 0x55, sizeof compiled);
            const bool fits = SharedCompileFormat(compiled, format.c_str(), size) == 0;
            EXPECT_EQ(fits, size > static_cast<int32_t>(format.size())) << format << ' ' << size;
            const size_t guard = size > 0 ? static_cast<size_t>(size) : 0;
            for (size_t i = guard; i < sizeof compiled; ++i)
                ASSERT_EQ(compiled[i], 0x55) << format << " in " << size << " at " << i;
        }
}

TEST_F(NumberFormat, ThatIsRefusedShowsNothing)
{
    for (const char* format : {"abc", "0.0.0", "0\\", ""}) {
        char compiled[SHARED_FORMAT_SIZE];
        std::memset(compiled, 'x', sizeof compiled);
        EXPECT_NE(SharedCompileFormat(compiled, format, sizeof compiled), 0);
        char text[10] = "before";
        EXPECT_EQ(SharedFormatDouble(text, sizeof text, compiled, 5, 0), 0);
        EXPECT_STREQ(text, "");
    }
}

TEST_F(NumberFormat, MayBeCopiedAndUsedOften)
{
    char compiled[SHARED_FORMAT_SIZE];
    ASSERT_EQ(SharedCompileFormat(compiled, "#,#.00", sizeof compiled), 0);
    char copy[SHARED_FORMAT_SIZE];
    std::memcpy(copy, compiled, sizeof copy);
    std::memset(compiled, 0, sizeof compiled);
    for (int i = 0; i < 3; ++i) {
        char text[20];
        SharedFormatDouble(text, sizeof text, copy, 1234, 0);
        EXPECT_STREQ(text, "1,234.00");
    }
}

// ---- The output's size ----------------------------------------------------------------------------------------------

TEST_F(NumberFormat, CutsTheTextToTheOutput)
{
    const struct {
        const char* format;
        double value;
    } cases[] = {
        {"$#,##0.00 DM", -1234567.891},
        {"[GENERAL]",    -1.25e-20   },
        {"(###)-##.##%", -12345.6789 },
    };
    for (const auto& row : cases) {
        const std::string whole = Show(row.format, row.value);
        char compiled[SHARED_FORMAT_SIZE];
        ASSERT_EQ(SharedCompileFormat(compiled, row.format, sizeof compiled), 0);
        for (int32_t size = -2; size < 40; ++size) {
            char text[64];
            std::memset(text, 0x55, sizeof text);
            const int32_t length = SharedFormatDouble(text, size, compiled, row.value, 0);
            const size_t room = size > 0 ? static_cast<size_t>(size) - 1 : 0;
            const std::string expected = whole.substr(0, room);
            EXPECT_EQ(static_cast<size_t>(length), expected.size()) << row.format << ' ' << size;
            if (size > 0) {
                EXPECT_EQ(text, expected) << row.format << ' ' << size;
            }
            const size_t guard = size > 0 ? expected.size() + 1 : 0;
            for (size_t i = guard; i < sizeof text; ++i)
                ASSERT_EQ(text[i], 0x55) << row.format << " in " << size << " at " << i;
        }
    }
}

TEST_F(NumberFormat, SurvivesNullArguments)
{
    char compiled[SHARED_FORMAT_SIZE];
    EXPECT_NE(SharedCompileFormat(nullptr, "0", SHARED_FORMAT_SIZE), 0);
    EXPECT_NE(SharedCompileFormat(compiled, nullptr, sizeof compiled), 0);
    ASSERT_EQ(SharedCompileFormat(compiled, "0", sizeof compiled), 0);
    char text[10] = "before";
    DecimalValue value;
    DecFromUnsigned(&value, 5);
    EXPECT_EQ(SharedFormatDouble(nullptr, 10, compiled, 5, 0), 0);
    EXPECT_EQ(SharedFormatDecimal(nullptr, 10, compiled, &value, 0), 0);
    EXPECT_EQ(SharedFormatDouble(text, sizeof text, nullptr, 5, 0), 0);
    EXPECT_STREQ(text, "");
    std::strcpy(text, "before");
    EXPECT_EQ(SharedFormatDecimal(text, sizeof text, compiled, nullptr, 0), 0);
    EXPECT_STREQ(text, "");
}

// ---- Random values and formats --------------------------------------------------------------------------------------

// A format of digit placeholders alone, without or with grouping, and how many digits it has behind the point.
struct RandomFormat {
    std::string text;
    int places = 0;
    int forcedInteger = 0;
    int forcedFraction = 0;
    bool grouped = false;
    bool point = false;
};

RandomFormat MakeFormat(std::mt19937& random)
{
    RandomFormat format;
    const int integerPlaces = static_cast<int>(random() % 8u) + 1;
    for (int place = integerPlaces; place > 0; --place) {
        const bool forced = random() % 4 == 0;
        if (forced && format.forcedInteger == 0)
            format.forcedInteger = place;
        format.text += forced ? '0' : '#';
        if (place > 1 && random() % 4 == 0) {
            format.text += ',';
            format.grouped = true;
        }
    }
    format.point = random() % 4 != 0;
    if (!format.point)
        return format;
    format.text += '.';
    format.places = static_cast<int>(random() % 13u);
    for (int place = 1; place <= format.places; ++place) {
        const bool forced = random() % 2 == 0;
        if (forced)
            format.forcedFraction = place;
        format.text += forced ? '0' : '#';
    }
    return format;
}

double RandomDouble(std::mt19937& random)
{
    const double mantissa = static_cast<double>(random()) * 4294967296.0 + static_cast<double>(random());
    const int digits = static_cast<int>(random() % 18u);
    char text[40];
    std::snprintf(text, sizeof text, "%.*g", digits + 1, mantissa);
    const double exact = std::atof(text) * std::pow(10.0, static_cast<int>(random() % 40u) - 32);
    std::snprintf(text, sizeof text, "%.*g", digits + 1, exact);
    const double value = std::atof(text);
    return random() % 2 ? -value : value;
}

// The number that a shown text stands for, its separators and its missing digits checked on the way.
LongDecimal ReadShown(const std::string& shown, const RandomFormat& format)
{
    const size_t start = shown[0] == '-' ? 1 : 0;
    const size_t point = shown.find('.');
    EXPECT_EQ(point != std::string::npos, format.point) << shown;
    const std::string integer = shown.substr(start, (format.point ? point : shown.size()) - start);
    const std::string fraction = format.point ? shown.substr(point + 1) : "";
    std::string digits;
    for (size_t i = 0; i < integer.size(); ++i) {
        const bool separator = format.grouped && (integer.size() - i) % 4 == 0;
        EXPECT_EQ(integer[i] == ',', separator) << shown;
        if (!separator)
            digits += integer[i];
    }
    EXPECT_GE(static_cast<int>(digits.size()), format.forcedInteger) << shown;
    if (static_cast<int>(digits.size()) > format.forcedInteger) {
        EXPECT_NE(digits[0], '0') << shown;
    }
    EXPECT_GE(static_cast<int>(fraction.size()), format.forcedFraction) << shown;
    EXPECT_LE(static_cast<int>(fraction.size()), format.places) << shown;
    if (static_cast<int>(fraction.size()) > format.forcedFraction) {
        EXPECT_NE(fraction.back(), '0') << shown;
    }
    const std::string plain = digits + "." + fraction;
    LongDecimal number = zttest::FromText((start ? "-" : "") + plain);
    EXPECT_EQ(start == 1, number.negative) << "a zero has no sign: " << shown;
    return number;
}

TEST_F(NumberFormat, ReadBackGivesTheRoundedDouble)
{
    std::mt19937 random(1995);
    for (int i = 0; i < 5000; ++i) {
        const RandomFormat format = MakeFormat(random);
        const double value = RandomDouble(random);
        const std::string shown = Show(format.text, value);
        const LongDecimal expected = zttest::RoundedHalfAway(zttest::FromDouble(value), format.places);
        ASSERT_EQ(zttest::ToText(ReadShown(shown, format)), zttest::ToText(expected))
            << value << " under " << format.text << " is shown as " << shown;
        ASSERT_FALSE(HasFailure()) << value << " under " << format.text;
    }
}

TEST_F(NumberFormat, ReadBackGivesTheRoundedDecimal)
{
    std::mt19937 random(2024);
    for (int i = 0; i < 5000; ++i) {
        const RandomFormat format = MakeFormat(random);
        DecimalValue value{};
        value.lo64 = static_cast<uint64_t>(random()) << 32 | random();
        value.hi32 = random() % 2 ? static_cast<uint32_t>(random()) : 0;
        value.lo64 >>= random() % 64;
        value.scale = static_cast<uint8_t>(random() % 29);
        value.sign = random() % 2 ? 0x80 : 0;
        const std::string shown = Format(format.text).Show(value);
        const LongDecimal expected = zttest::RoundedHalfAway(zttest::FromValue(value), format.places);
        ASSERT_EQ(zttest::ToText(ReadShown(shown, format)), zttest::ToText(expected))
            << zttest::ToText(zttest::FromValue(value)) << " under " << format.text << " is shown as " << shown;
        ASSERT_FALSE(HasFailure()) << format.text;
    }
}

TEST_F(NumberFormat, PercentOfRandomNumbersIsExact)
{
    std::mt19937 random(100);
    for (int i = 0; i < 2000; ++i) {
        const double value = RandomDouble(random);
        const LongDecimal hundredfold = zttest::TimesPowerOfTen(zttest::FromDouble(value), 2);
        const std::string shown = Show("0.000%", value);
        ASSERT_EQ(zttest::ToText(zttest::FromText(shown)), zttest::ToText(zttest::RoundedHalfAway(hundredfold, 3)));
    }
}

TEST_F(NumberFormat, GeneralFormReadsBackTo15Digits)
{
    std::mt19937 random(15);
    for (int i = 0; i < 5000; ++i) {
        const double value = RandomDouble(random);
        const std::string shown = Show("[GENERAL]", value);
        ASSERT_LT(shown.size(), 35u) << shown;
        const LongDecimal exact = zttest::FromDouble(value);
        const int excess = static_cast<int>(exact.digits.size()) - 15;
        const LongDecimal expected = excess > 0 ? zttest::RoundedHalfAway(exact, exact.scale - excess) : exact;
        ASSERT_EQ(zttest::Compare(zttest::FromText(shown), expected), 0) << value << " is shown as " << shown;
    }
}

// Whatever the text, compiling and rendering stay inside their buffers; what compiles shows some text of its own.
TEST_F(NumberFormat, RandomTextsDoNoHarm)
{
    constexpr char kCharacters[] = "0#0#0#.,%\\-$x ";
    std::mt19937 random(99);
    for (int i = 0; i < 20000; ++i) {
        std::string text(random() % 20u, ' ');
        for (char& c : text)
            c = kCharacters[random() % (sizeof kCharacters - 1)];
        char compiled[SHARED_FORMAT_SIZE];
        const bool valid = SharedCompileFormat(compiled, text.c_str(), sizeof compiled) == 0;
        char shown[24];
        std::memset(shown, 0x55, sizeof shown);
        const int32_t length = SharedFormatDouble(shown, 20, compiled, RandomDouble(random), 0);
        ASSERT_GE(length, 0);
        ASSERT_LT(length, 20);
        ASSERT_EQ(shown[length], '\0');
        ASSERT_EQ(shown[20], 0x55) << text;
        if (!valid) {
            ASSERT_EQ(length, 0) << text;
        }
    }
}

}  // namespace
