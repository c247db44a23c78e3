// The calendar of the control and the names of its months.
#include "engine/values/calendar.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "engine/values/month_names.h"
#include "tests/support/key_case.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

using namespace zte;

const Settings kSettings = StandardSettings();

DateTimeValue Day(int yearValue, int month, int day)
{
    DateTimeValue value = {};
    value.year = static_cast<int16_t>(yearValue);
    value.month = static_cast<int8_t>(month);
    value.day = static_cast<int8_t>(day);
    return value;
}

struct YearCase {
    const char* name;
    int32_t yearDigits;
    int32_t yearValue;
    int32_t calendarYear;
    bool leap;
};
void PrintTo(const YearCase& row, std::ostream* out)
{
    *out << row.yearValue << " of " << row.yearDigits << " digits";
}

class Years : public RowTest<YearCase> {};

ROW_TEST(Years, HaveACalendarYear)
{
    EXPECT_EQ(CalendarYear(GetParam().yearDigits, GetParam().yearValue), GetParam().calendarYear);
}

ROW_TEST(Years, AreLeapYearsByTheGregorianRule)
{
    EXPECT_EQ(IsLeapYear(GetParam().yearDigits, GetParam().yearValue), GetParam().leap);
}

ROW_TEST(Years, HaveTheirFebruary)
{
    const DateTimeValue february = Day(GetParam().yearValue, 1, 1);
    EXPECT_EQ(DaysInMonth(GetParam().yearDigits, february), GetParam().leap ? 29 : 28);
}

ROW_TEST(Years, HaveTheirLength)
{
    EXPECT_EQ(DaysInYear(GetParam().yearDigits, GetParam().yearValue), GetParam().leap ? 366 : 365);
}

const YearCase kYearRows[] = {
    {"NineteenNinetyFive",             4, 95,    1995, false},
    {"NineteenNinetySix",              4, 96,    1996, true },
    {"TwoThousand",                    4, 100,   2000, true },
    {"NineteenHundred",                4, 0,     1900, false},
    {"TwentyOneHundred",               4, 200,   2100, false},
    {"TwentyFourHundred",              4, 500,   2400, true },
    {"YearOne",                        4, -1899, 1,    false},
    {"YearFour",                       4, -1896, 4,    true },
    {"LastYear",                       4, 8099,  9999, false},
    {"TwoDigitsOfNineteenHundred",     2, 0,     2000, true },
    {"TwoDigitsOfNineteenFour",        2, 4,     2004, true },
    {"TwoDigitsOfNineteenFortyNine",   2, 49,    2049, false},
    {"TwoDigitsOfNineteenFifty",       2, 50,    1950, false},
    {"TwoDigitsOfNineteenNinetySix",   2, 96,    1996, true },
    {"TwoDigitsOfTwoThousand",         2, 100,   2000, true },
    {"TwoDigitsOfTwentyTwentyFour",    2, 124,   2024, true },
    {"FourDigitsOfNineteenFortyEight", 4, 48,    1948, true },
};
TEST_ROWS(, Years, kYearRows);

constexpr int32_t kCommonDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

// Both kinds of years, counted day by day.
class DayByDay : public RowTest<int> {
protected:
    bool Leap() const { return GetParam() == 96 || GetParam() == 100; }
    int32_t DaysOf(int month) const { return kCommonDays[month] + (month == 1 && Leap() ? 1 : 0); }
};

ROW_TEST(DayByDay, TheDayOfTheYearIsCounted)
{
    int32_t dayOfYear = 0;
    for (int month = 0; month < 12; ++month) {
        for (int day = 1; day <= DaysOf(month); ++day)
            EXPECT_EQ(DayOfYear(4, Day(GetParam(), month, day)), ++dayOfYear) << month + 1 << '/' << day;
    }
    EXPECT_EQ(dayOfYear, Leap() ? 366 : 365);
}

ROW_TEST(DayByDay, TheDateOfADayOfTheYearIsFound)
{
    int32_t dayOfYear = 0;
    for (int month = 0; month < 12; ++month) {
        for (int day = 1; day <= DaysOf(month); ++day) {
            DateTimeValue value = Day(GetParam(), 0, 0);
            DateFromDayOfYear(4, ++dayOfYear, value);
            EXPECT_EQ(value.month, month) << dayOfYear;
            EXPECT_EQ(value.day, day) << dayOfYear;
        }
    }
}

ROW_TEST(DayByDay, TheMonthTableIsRight)
{
    int32_t before = 0;
    for (int month = 0; month < 12; ++month) {
        const MonthRow& row = MonthRowOf(4, GetParam(), month);
        EXPECT_EQ(row.index, month);
        EXPECT_EQ(row.daysBefore, before);
        EXPECT_EQ(row.days, DaysOf(month));
        before += DaysOf(month);
    }
}

TEST_ROWS_OF(, DayByDay, 0, 95, 96, 100, 200);

TEST(Calendar, TheFirstOfMarchOfACommonYearIsTheSixtiethDay)
{
    EXPECT_EQ(DayOfYear(4, Day(95, 2, 1)), 60);
}

TEST(Calendar, TheFirstOfMarchOfALeapYearIsTheSixtyFirstDay)
{
    EXPECT_EQ(DayOfYear(4, Day(96, 2, 1)), 61);
}

TEST(Calendar, ADayBeyondTheYearStaysInDecember)
{
    DateTimeValue value = Day(95, 0, 0);
    DateFromDayOfYear(4, 366, value);
    EXPECT_EQ(value.month, 11);
    EXPECT_EQ(value.day, 32);
}

TEST(Calendar, DayZeroIsInTheTable)
{
    DateTimeValue value = Day(95, 5, 5);
    DateFromDayOfYear(4, 0, value);
    EXPECT_GE(value.month, 0);
    EXPECT_LE(value.month, 11);
}

TEST(Calendar, AMonthOutOfRangeIsBroughtIntoIt)
{
    EXPECT_GE(MonthRowOf(4, 95, -1).days, 28);
    EXPECT_GE(MonthRowOf(4, 95, 12).days, 28);
    EXPECT_GE(DaysInMonth(4, Day(95, 99, 1)), 28);
}

TEST(MonthNames, AreTheTwelveAbbreviations)
{
    static const char* const names[] = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                        "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};
    for (int32_t month = 0; month < 12; ++month)
        EXPECT_EQ(MonthName(kSettings, month), names[month]);
}

TEST(MonthNames, OfNoMonthAreEmpty)
{
    EXPECT_EQ(MonthName(kSettings, -1), "");
    EXPECT_EQ(MonthName(kSettings, 12), "");
}

struct NameCase {
    const char* name;
    const char* text;
    int32_t month;
};
void PrintTo(const NameCase& row, std::ostream* out)
{
    *out << '"' << row.text << '"';
}

class MonthOfName : public RowTest<NameCase> {};

ROW_TEST(MonthOfName, IsFound)
{
    EXPECT_EQ(MonthFromName(kSettings, GetParam().text), GetParam().month);
}

const NameCase kNameRows[] = {
    {"Capitals",     "JAN",  0 },
    {"SmallLetters", "sep",  8 },
    {"MixedCase",    "dEc",  11},
    {"FourLetters",  "Sept", -1},
    {"TwoLetters",   "JA",   -1},
    {"Unknown",      "XXX",  -1},
    {"Blanks",       "   ",  -1},
    {"Empty",        "",     -1},
};
TEST_ROWS(, MonthOfName, kNameRows);

// The month, from one on in calendar order, whose abbreviation begins with the start.
struct PrefixCase {
    const char* name;
    const char* start;
    int32_t first;
    const char* month;  // empty: none
};
void PrintTo(const PrefixCase& row, std::ostream* out)
{
    *out << '"' << row.start << "\" from " << row.first;
}

class MonthOfPrefix : public RowTest<PrefixCase> {};

ROW_TEST(MonthOfPrefix, IsFound)
{
    EXPECT_EQ(MonthName(kSettings, MonthByPrefix(kSettings, GetParam().start, GetParam().first)), GetParam().month);
}

const PrefixCase kPrefixRows[] = {
    {"J",                         "J",    0,  "JAN"},
    {"Ju",                        "ju",   0,  "JUN"},
    {"Jul",                       "Jul",  0,  "JUL"},
    {"A",                         "a",    0,  "APR"},
    {"Au",                        "Au",   0,  "AUG"},
    {"M",                         "M",    0,  "MAR"},
    {"May",                       "may",  0,  "MAY"},
    {"D",                         "d",    0,  "DEC"},
    {"Unknown",                   "X",    0,  ""   },
    {"ADigit",                    "1",    0,  ""   },
    {"ABlank",                    " ",    0,  ""   },
    {"TooLong",                   "JUNE", 0,  ""   },
    {"OtherTail",                 "JUX",  0,  ""   },
    {"JulyBehindJune",            "JU",   6,  "JUL"},
    {"NoOtherWithJuBehindJuly",   "JU",   7,  ""   },
    {"JuneBehindJanuary",         "J",    1,  "JUN"},
    {"JulyBehindJuneByOneLetter", "J",    6,  "JUL"},
    {"NoOtherWithJBehindJuly",    "J",    7,  ""   },
    {"MayBehindMarch",            "MA",   3,  "MAY"},
    {"NoOtherWithMaBehindMay",    "MA",   5,  ""   },
    {"AugustBehindApril",         "A",    4,  "AUG"},
    {"NoOtherWithAuBehindAugust", "AU",   8,  ""   },
    {"NoWrapToTheNextYear",       "D",    12, ""   },
    {"AWholeNameHasNoOther",      "JUN",  6,  ""   },
};
TEST_ROWS(, MonthOfPrefix, kPrefixRows);

}  // namespace
}  // namespace zttest
