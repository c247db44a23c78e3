// Canonical texts of dates and times: what is read, and that everything else is refused.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <random>
#include <regex>
#include <string>

#include "tests/companions/scoped_profile.h"
#include "tests/support/rows.h"
#include "ztshared.h"

namespace {

using zttest::ScopedProfile;

const ScopedProfile::Values kPlainHalves = {
    {"s1159", "AM"},
    {"s2359", "PM"}
};

std::string Describe(const DateTimeValue& value)
{
    char text[100];
    std::snprintf(text, sizeof text, "%d/%d/%d %d:%d:%d.%06u (%d)", value.year, value.month, value.day, value.hour,
                  value.minute, value.second, value.microsecond, value.spare);
    return text;
}

// What a text is read as; "refused" also checks that the record was left alone.
std::string Read(const std::string& text, int32_t kind)
{
    DateTimeValue value;
    DateTimeValue before;
    std::memset(&value, 0x5A, sizeof value);
    std::memset(&before, 0x5A, sizeof before);
    if (SharedParseDateTime(&value, text.c_str(), kind) == 0)
        return Describe(value);
    return std::memcmp(&value, &before, sizeof value) == 0 ? "refused" : "refused but changed";
}

constexpr char kRefused[] = "refused";

struct TextCase {
    const char* name;
    int32_t kind;
    const char* text;
    const char* read;
};

void PrintTo(const TextCase& row, std::ostream* out)
{
    *out << '"' << row.text << "\" of kind " << row.kind;
}

class CanonicalText : public zttest::RowTest<TextCase> {
protected:
    const ScopedProfile profile_{kPlainHalves};
};

ROW_TEST(CanonicalText, IsReadOrRefused)
{
    EXPECT_EQ(Read(GetParam().text, GetParam().kind), GetParam().read);
}

constexpr TextCase kTextCases[] = {
    {"Date",                    2,  "2024-03-05",                 "124/2/5 -1:0:0.000000 (0)"     },
    {"LeapDay",                 2,  "2024-02-29",                 "124/1/29 -1:0:0.000000 (0)"    },
    {"LeapDayOfACentury",       2,  "2000-02-29",                 "100/1/29 -1:0:0.000000 (0)"    },
    {"FirstDay",                2,  "0001-01-01",                 "-1899/0/1 -1:0:0.000000 (0)"   },
    {"LastDay",                 2,  "9999-12-31",                 "8099/11/31 -1:0:0.000000 (0)"  },
    {"NoLeapDay",               2,  "2023-02-29",                 kRefused                        },
    {"NoLeapDayOfACentury",     2,  "1900-02-29",                 kRefused                        },
    {"ThirtiethOfFebruary",     2,  "2024-02-30",                 kRefused                        },
    {"ThirtyFirstOfApril",      2,  "2024-04-31",                 kRefused                        },
    {"YearZero",                2,  "0000-01-01",                 kRefused                        },
    {"MonthZero",               2,  "2024-00-01",                 kRefused                        },
    {"MonthThirteen",           2,  "2024-13-01",                 kRefused                        },
    {"DayZero",                 2,  "2024-01-00",                 kRefused                        },
    {"ShortYear",               2,  "24-03-05",                   kRefused                        },
    {"LongYear",                2,  "12024-03-05",                kRefused                        },
    {"ShortMonth",              2,  "2024-3-05",                  kRefused                        },
    {"ShortDay",                2,  "2024-03-5",                  kRefused                        },
    {"LongDay",                 2,  "2024-03-050",                kRefused                        },
    {"Slashes",                 2,  "2024/03/05",                 kRefused                        },
    {"NoDashes",                2,  "20240305",                   kRefused                        },
    {"SignedYear",              2,  "-024-03-05",                 kRefused                        },
    {"BlankForADigit",          2,  "2024- 3-05",                 kRefused                        },
    {"LeadingBlank",            2,  " 2024-03-05",                kRefused                        },
    {"TrailingBlank",           2,  "2024-03-05 ",                kRefused                        },
    {"DateWithTimeAsDate",      2,  "2024-03-05 12:00",           kRefused                        },
    {"TimeAsDate",              2,  "12:00",                      kRefused                        },
    {"EmptyDate",               2,  "",                           kRefused                        },
    {"CutDate",                 2,  "2024-03",                    kRefused                        },
    {"DigitsOfOtherScripts",    2,  "2024-03-0\xB2",              kRefused                        },
    {"HourAndMinute",           3,  "14:07",                      "-32767/0/0 14:7:0.000000 (0)"  },
    {"HourMinuteSecond",        3,  "14:07:09",                   "-32767/0/0 14:7:9.000000 (0)"  },
    {"Microseconds",            3,  "14:07:09:000250",            "-32767/0/0 14:7:9.000250 (0)"  },
    {"PointBeforeFraction",     3,  "14:07:09.000250",            "-32767/0/0 14:7:9.000250 (0)"  },
    {"OneFractionDigit",        3,  "14:07:09:5",                 "-32767/0/0 14:7:9.500000 (0)"  },
    {"ThreeFractionDigits",     3,  "14:07:09.025",               "-32767/0/0 14:7:9.025000 (0)"  },
    {"Midnight",                3,  "00:00:00:000000",            "-32767/0/0 0:0:0.000000 (0)"   },
    {"LastMicrosecond",         3,  "23:59:59:999999",            "-32767/0/0 23:59:59.999999 (0)"},
    {"HourTwentyFour",          3,  "24:00",                      kRefused                        },
    {"MinuteSixty",             3,  "12:60",                      kRefused                        },
    {"SecondSixty",             3,  "12:00:60",                   kRefused                        },
    {"SevenFractionDigits",     3,  "12:00:00:0000000",           kRefused                        },
    {"NoFractionDigits",        3,  "12:00:00:",                  kRefused                        },
    {"NoFractionBehindPoint",   3,  "12:00:00.",                  kRefused                        },
    {"FractionOfMinutes",       3,  "12:00.5",                    kRefused                        },
    {"HourAlone",               3,  "12",                         kRefused                        },
    {"HourAndColon",            3,  "12:",                        kRefused                        },
    {"MinuteAndColon",          3,  "12:00:",                     kRefused                        },
    {"ShortHour",               3,  "9:00",                       kRefused                        },
    {"ShortMinute",             3,  "09:0",                       kRefused                        },
    {"ShortSecond",             3,  "09:00:0",                    kRefused                        },
    {"LongHour",                3,  "009:00",                     kRefused                        },
    {"SignInFraction",          3,  "12:00:00:-1",                kRefused                        },
    {"DateAsTime",              3,  "2024-03-05",                 kRefused                        },
    {"DateAndTimeAsTime",       3,  "2024-03-05 12:00",           kRefused                        },
    {"TimeWithBlank",           3,  "12:00 ",                     kRefused                        },
    {"TimeWithLeadingBlank",    3,  " 12:00",                     kRefused                        },
    {"EmptyTime",               3,  "",                           kRefused                        },
    {"Both",                    1,  "2024-03-05 14:07:09:000250", "124/2/5 14:7:9.000250 (0)"     },
    {"BothWithoutSeconds",      1,  "2024-03-05 14:07",           "124/2/5 14:7:0.000000 (0)"     },
    {"BothWithoutTime",         1,  "2024-03-05",                 "124/2/5 -1:0:0.000000 (0)"     },
    {"BothTwelveHours",         1,  "2024-03-05 01:30 PM",        "124/2/5 13:30:0.000000 (0)"    },
    {"BothWithTwoBlanks",       1,  "2024-03-05  14:07",          kRefused                        },
    {"BothWithTrailingBlank",   1,  "2024-03-05 ",                kRefused                        },
    {"BothWithoutBlank",        1,  "2024-03-0514:07",            kRefused                        },
    {"BothWithLetter",          1,  "2024-03-05T14:07",           kRefused                        },
    {"BothWithBadDate",         1,  "2024-02-30 14:07",           kRefused                        },
    {"BothWithBadTime",         1,  "2024-02-29 24:07",           kRefused                        },
    {"BothWithoutDate",         1,  "14:07",                      kRefused                        },
    {"BothWithBlankFirst",      1,  " 14:07",                     kRefused                        },
    {"EmptyBoth",               1,  "",                           kRefused                        },
    {"MorningTwelve",           3,  "12:00 AM",                   "-32767/0/0 0:0:0.000000 (0)"   },
    {"MorningOne",              3,  "01:00 AM",                   "-32767/0/0 1:0:0.000000 (0)"   },
    {"MorningEleven",           3,  "11:59 AM",                   "-32767/0/0 11:59:0.000000 (0)" },
    {"EveningTwelve",           3,  "12:00 PM",                   "-32767/0/0 12:0:0.000000 (0)"  },
    {"EveningOne",              3,  "01:30 PM",                   "-32767/0/0 13:30:0.000000 (0)" },
    {"EveningEleven",           3,  "11:59:59:999999 PM",         "-32767/0/0 23:59:59.999999 (0)"},
    {"LowerCase",               3,  "01:30 pm",                   "-32767/0/0 13:30:0.000000 (0)" },
    {"MixedCase",               3,  "01:30 pM",                   "-32767/0/0 13:30:0.000000 (0)" },
    {"TwelveHourZero",          3,  "00:30 AM",                   kRefused                        },
    {"TwelveHourThirteen",      3,  "13:30 PM",                   kRefused                        },
    {"TwelveHourMinuteSixty",   3,  "01:60 PM",                   kRefused                        },
    {"TwelveHourWithoutBlank",  3,  "01:30PM",                    kRefused                        },
    {"TwelveHourWithTwoBlanks", 3,  "01:30  PM",                  kRefused                        },
    {"TwelveHourWithRest",      3,  "01:30 PMx",                  kRefused                        },
    {"TwelveHourWithBlankLast", 3,  "01:30 PM ",                  kRefused                        },
    {"TwelveHourCutWord",       3,  "01:30 P",                    kRefused                        },
    {"TwelveHourOtherWord",     3,  "01:30 XM",                   kRefused                        },
    {"DateWithHalf",            2,  "2024-03-05 PM",              kRefused                        },
    {"BothWithHalfOnly",        1,  "2024-03-05 PM",              kRefused                        },
    {"ThirteenAndABlank",       3,  "13:00 ",                     kRefused                        },
    {"KindZeroOfNothing",       0,  "",                           kRefused                        },
    {"KindZero",                0,  "2024-03-05",                 kRefused                        },
    {"KindFour",                4,  "12:00",                      kRefused                        },
    {"KindNegative",            -1, "12:00",                      kRefused                        },
};

TEST_ROWS(Texts, CanonicalText, kTextCases);

TEST(DateTimeParsing, RefusesNull)
{
    DateTimeValue value{};
    EXPECT_NE(SharedParseDateTime(&value, nullptr, DATETIME_KIND_DATE), 0);
    EXPECT_NE(SharedParseDateTime(nullptr, "2024-03-05", DATETIME_KIND_DATE), 0);
}

// The words of the profile for the halves of the day.
struct HalfCase {
    const char* name;
    const char* morning;
    const char* evening;
    int32_t kind;
    const char* text;
    const char* read;
};

void PrintTo(const HalfCase& row, std::ostream* out)
{
    *out << '"' << row.text << "\" with " << row.morning << " and " << row.evening;
}

class RegionalHalves : public zttest::RowTest<HalfCase> {};

ROW_TEST(RegionalHalves, AreReadInAnyCase)
{
    const ScopedProfile::Values halves = {
        {"s1159", GetParam().morning},
        {"s2359", GetParam().evening}
    };
    const ScopedProfile profile(halves);
    EXPECT_EQ(Read(GetParam().text, GetParam().kind), GetParam().read);
}

// clang-format off
constexpr HalfCase kHalves[] = {
    {"Morning",                   "vorm",    "n.m.",    3, "09:00 vorm",            "-32767/0/0 9:0:0.000000 (0)"},
    {"MorningInCapitals",         "vorm",    "n.m.",    3, "09:00 VORM",            "-32767/0/0 9:0:0.000000 (0)"},
    {"Evening",                   "vorm",    "n.m.",    3, "09:00 n.m.",            "-32767/0/0 21:0:0.000000 (0)"},
    {"EveningInCapitals",         "vorm",    "n.m.",    1, "2024-03-05 12:00 N.M.", "124/2/5 12:0:0.000000 (0)"},
    {"PlainPm",                   "vorm",    "n.m.",    3, "09:00 pm",              "-32767/0/0 21:0:0.000000 (0)"},
    {"PlainAm",                   "vorm",    "n.m.",    3, "12:00 am",              "-32767/0/0 0:0:0.000000 (0)"},
    {"WordThatBeginsTheOther",    "m",       "m.n.",    3, "09:00 m.n.",            "-32767/0/0 21:0:0.000000 (0)"},
    {"CutWord",                   "vorm",    "n.m.",    3, "09:00 vor",             kRefused},
    {"WordWithARest",             "vorm",    "n.m.",    3, "09:00 vormx",           kRefused},
    {"FourCharactersOfALongWord", "morning", "evening", 3, "09:00 even",            "-32767/0/0 21:0:0.000000 (0)"},
    {"AllOfALongWord",            "morning", "evening", 3, "09:00 evening",         kRefused},
};
// clang-format on
TEST_ROWS(Words, RegionalHalves, kHalves);

TEST(DateTimeParsing, FallsBackToThePlainHalves)
{
    for (const char* absentOrEmpty : {static_cast<const char*>(nullptr), ""}) {
        const ScopedProfile profile({
            {"s1159", absentOrEmpty},
            {"s2359", absentOrEmpty}
        });
        EXPECT_EQ(Read("09:00 PM", 3), "-32767/0/0 21:0:0.000000 (0)");
        EXPECT_EQ(Read("09:00 AM", 3), "-32767/0/0 9:0:0.000000 (0)");
        EXPECT_EQ(Read("09:00 ", 3), kRefused);
    }
}

bool Exists(int year, int month, int day)
{
    const bool leap = year % 400 == 0 || (year % 4 == 0 && year % 100 != 0);
    const int lengths[] = {31, leap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return year >= 1 && month >= 1 && month <= 12 && day >= 1 && day <= lengths[month - 1];
}

TEST(DateTimeParsing, TakesEveryDayThatExistsAndNoOther)
{
    for (const int year : {0, 1, 4, 100, 400, 1582, 1899, 1900, 1901, 1999, 2000, 2023, 2024, 2100, 9999})
        for (int month = 0; month <= 13; ++month)
            for (int day = 0; day <= 32; ++day) {
                char text[40];
                std::snprintf(text, sizeof text, "%4.4d-%2.2d-%2.2d", year, month, day);
                char expected[60];
                std::snprintf(expected, sizeof expected, "%d/%d/%d -1:0:0.000000 (0)", year - 1900, month - 1, day);
                ASSERT_EQ(Read(text, 2), Exists(year, month, day) ? expected : kRefused) << text;
            }
}

TEST(DateTimeParsing, TakesEveryMinuteOfBothClocks)
{
    const ScopedProfile profile(kPlainHalves);
    for (int minute = 0; minute < 24 * 60; ++minute) {
        const int hour = minute / 60;
        const int twelve = hour % 12 == 0 ? 12 : hour % 12;
        char expected[60];
        std::snprintf(expected, sizeof expected, "-32767/0/0 %d:%d:0.000000 (0)", hour, minute % 60);
        char text[40];
        std::snprintf(text, sizeof text, "%02d:%02d", hour, minute % 60);
        ASSERT_EQ(Read(text, 3), expected) << text;
        std::snprintf(text, sizeof text, "%02d:%02d %s", twelve, minute % 60, hour < 12 ? "AM" : "PM");
        ASSERT_EQ(Read(text, 3), expected) << text;
    }
}

// A second description of the language, by a regular expression.
std::string ReadByExpression(const std::string& text)
{
    static const std::regex expression(
        "(\\d{4})-(\\d\\d)-(\\d\\d)(?: (\\d\\d):(\\d\\d)(?::(\\d\\d)(?:[:.](\\d{1,6}))?)?(?: (AM|PM))?)?",
        std::regex::ECMAScript | std::regex::icase);
    std::smatch match;
    if (!std::regex_match(text, match, expression))
        return kRefused;
    const auto number = [&](size_t group) { return match[group].matched ? std::stoi(match[group].str()) : 0; };
    const int year = number(1);
    if (!Exists(year, number(2), number(3)))
        return kRefused;
    int hour = match[4].matched ? number(4) : -1;
    if (match[8].matched) {
        if (hour < 1 || hour > 12)
            return kRefused;
        hour = hour % 12 + (std::toupper(match[8].str()[0]) == 'P' ? 12 : 0);
    }
    if (hour > 23 || number(5) > 59 || number(6) > 59)
        return kRefused;
    const std::string fraction = match[7].matched ? (match[7].str() + "000000").substr(0, 6) : "000000";
    char read[100];
    std::snprintf(read, sizeof read, "%d/%d/%d %d:%d:%d.%s (0)", year - 1900, number(2) - 1, number(3), hour, number(5),
                  number(6), fraction.c_str());
    return read;
}

TEST(DateTimeParsing, AgreesWithARegularExpressionOnDamagedTexts)
{
    const ScopedProfile profile(kPlainHalves);
    const std::string texts[] = {"2024-02-29 23:59:59:999999", "1999-12-31 12:34:56.5 PM", "0001-01-01 01:00 am",
                                 "2000-10-30"};
    constexpr char kCharacters[] = "0123456789-: .APMapm";
    std::mt19937 random(365);
    int accepted = 0;
    for (int i = 0; i < 20000; ++i) {
        std::string text = texts[random() % 4];
        for (auto damage = random() % 3; damage > 0; --damage) {
            const size_t at = random() % text.size();
            const char c = kCharacters[random() % (sizeof kCharacters - 1)];
            switch (random() % 3) {
            case 0: text[at] = c; break;
            case 1: text.insert(at, 1, c); break;
            default: text.erase(at, 1);
            }
        }
        const std::string expected = ReadByExpression(text);
        accepted += expected != kRefused;
        ASSERT_EQ(Read(text, 1), expected) << text;
    }
    EXPECT_GT(accepted, 1000);
}

TEST(DateTimeParsing, ReadsTheCanonicalTextsOfRandomValues)
{
    std::mt19937 random(12);
    for (int i = 0; i < 5000; ++i) {
        const int year = static_cast<int>(random() % 9999u) + 1;
        const int month = static_cast<int>(random() % 12u);
        const int day = static_cast<int>(random() % 28u) + 1;
        const int hour = static_cast<int>(random() % 24u);
        const int minute = static_cast<int>(random() % 60u);
        const int second = static_cast<int>(random() % 60u);
        const auto microsecond = static_cast<unsigned>(random() % 1000000u);
        char text[80];
        std::snprintf(text, sizeof text, "%4.4d-%2.2d-%2.2d %2.2d:%2.2d:%2.2d:%6.6u", year, month + 1, day, hour,
                      minute, second, microsecond);
        DateTimeValue value;
        ASSERT_EQ(SharedParseDateTime(&value, text, DATETIME_KIND_BOTH), 0) << text;
        char expected[80];
        std::snprintf(expected, sizeof expected, "%d/%d/%d %d:%d:%d.%06u (0)", year - 1900, month, day, hour, minute,
                      second, microsecond);
        ASSERT_EQ(Describe(value), expected);
    }
}

}  // namespace
