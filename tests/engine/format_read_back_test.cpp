// Reading the window back into data: numbers, percentages, the null rules of dates and times, canonical text only for the
// texts a caller hands in.
#include <cstring>
#include <optional>

#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

struct NumberReadCase {
    const char* name;
    const RegionalSet* settings;
    const char* mask;
    const char* data;   // given as data
    const char* value;  // read back
};
void PrintTo(const NumberReadCase& row, std::ostream* out)
{
    *out << row.data << " under " << row.mask;
}

class NumberReading : public ValueTest, public OfRow<NumberReadCase> {};

ROW_TEST(NumberReading, ReadsANumber)
{
    const Regional settings(*GetParam().settings);
    Install(GetParam().mask, DT_NUMBER);
    ShownFor(GetParam().data);
    EXPECT_EQ(Read(), GetParam().value);
}

ROW_TEST(NumberReading, ReadsADecimal)
{
    const Regional settings(*GetParam().settings);
    Install(GetParam().mask, DT_DECIMAL);
    ShownFor(GetParam().data);
    EXPECT_EQ(Read(), GetParam().value);
}

const NumberReadCase kNumberReadRows[] = {
    {"WholeNumber",                                     &kUnitedStates, "#,##0",         "1234567",   "1234567"   },
    {"Fraction",                                        &kUnitedStates, "#,##0.00",      "1234.5",    "1234.50"   },
    {"Negative",                                        &kUnitedStates, "#,##0.00",      "-1234.5",   "-1234.50"  },
    {"PointFirst",                                      &kUnitedStates, "#,#.00",        "0.5",       ".50"       },
    {"TrailingPoint",                                   &kUnitedStates, "#.##",          "2",         "2."        },
    {"Currency",                                        &kUnitedStates, "[currency(8)]", "1234.5",    "1234.50"   },
    {"NegativeCurrency",                                &kUnitedStates, "$#,##0.00",     "-5",        "-5.00"     },
    {"LiteralPrefix",                                   &kUnitedStates, "Total #,##0",   "1234",      "1234"      },
    {"EmptyText",                                       &kUnitedStates, "####",          "0",         "0"         },
    {"Percent",                                         &kUnitedStates, "#,##0.00%",     "0.125",     "0.125"     },
    {"WholePercent",                                    &kUnitedStates, "##0%",          "0.5",       "0.5"       },
    {"NegativePercent",                                 &kUnitedStates, "##0.0%",        "-0.125",    "-0.125"    },
    {"HundredPercent",                                  &kUnitedStates, "##0%",          "1",         "1"         },
    {"GroupedPercent",                                  &kUnitedStates, "#,##0%",        "12.34",     "12.34"     },
    {"SevenPercentIsExact",                             &kUnitedStates, "##0%",          "0.07",      "0.07"      },
    {"SeparatorsWhereTheEscapedPointFixesThePositions", &kUnitedStates, "~.###,##0",     "12345",     "12345"     },
    {"DigitsUnderASeparatorOfTheMask",                  &kUnitedStates, "~.###,##0",     "1234",      "1234"      },
    {"GermanFraction",                                  &kGerman,       nullptr,         "1234567.5", "1234567,50"},
    {"GermanCurrency",                                  &kGerman,       "[currency(8)]", "-1234.5",   "-1234,50"  },
    {"GermanPercent",                                   &kGerman,       "##0.00%",       "0.125",     "0,125"     },
    {"FrenchFraction",                                  &kFrench,       nullptr,         "1234567.5", "1234567,50"},
    {"FrenchCurrency",                                  &kFrench,       "[currency(8)]", "1234.5",    "1234,50"   },
    {"SwissCurrency",                                   &kSwiss,        "[currency(8)]", "1234.5",    "1234.50"   },
};
TEST_ROWS(, NumberReading, kNumberReadRows);

struct UnformatCase {
    const char* name;
    const RegionalSet* settings;
    const char* mask;
    int32_t type;
    const char* text;
    const char* value;
};
void PrintTo(const UnformatCase& row, std::ostream* out)
{
    *out << '"' << row.text << "\" under " << row.mask;
}

class TextGiven : public ValueTest, public OfRow<UnformatCase> {};

ROW_TEST(TextGiven, IsUnformatted)
{
    const Regional settings(*GetParam().settings);
    Install(GetParam().mask, GetParam().type);
    EXPECT_EQ(Unformat(GetParam().text), GetParam().value);
}

ROW_TEST(TextGiven, LeavesTheWindowAlone)
{
    const Regional settings(*GetParam().settings);
    Install(GetParam().mask, GetParam().type);
    const std::string before = Text();
    Unformat(GetParam().text);
    EXPECT_EQ(Text(), before);
}

const UnformatCase kUnformatRows[] = {
    {"Number",                     &kUnitedStates, "#,##0.00",       DT_NUMBER,   "1,234.50",         "1234.50"        },
    {"NegativeNumber",             &kUnitedStates, "$#,##0.00",      DT_NUMBER,   "$-5.00",           "-5.00"          },
    {"Decimal",                    &kUnitedStates, "#,##0.00",       DT_DECIMAL,  "1,234.50",         "1234.50"        },
    {"PercentIsNotDivided",        &kUnitedStates, "#,##0.00%",      DT_NUMBER,   "12.50%",           "12.50"          },
    {"GermanNumber",               &kGerman,       "##0.00",         DT_NUMBER,   "1.234,50",         "1234,50"        },
    {"CanonicalDate",              &kUnitedStates, "MM/DD/YY",       DT_DATE,     "1995-07-04",       "1995-07-04"     },
    {"DisplayedDateIsNotRead",     &kUnitedStates, "MM/DD/YY",       DT_DATE,     "07/04/95",         ""               },
    {"ImpossibleDate",             &kUnitedStates, "MM/DD/YY",       DT_DATE,     "1995-02-29",       ""               },
    {"DateUnderItsOwnLayout",      &kUnitedStates, "YYYY-MM-DD",     DT_DATE,     "1995-07-04",       "1995-07-04"     },
    {"CanonicalTime",              &kUnitedStates, "HH:MM AM/PM",    DT_TIME,     "14:07:09",         "14:07:09:000000"},
    {"MidnightIsATimeHere",        &kUnitedStates, "HH:MM",          DT_TIME,     "00:00",            "00:00:00:000000"},
    {"NoTime",                     &kUnitedStates, "HH:MM",          DT_TIME,     "noon",             ""               },
    {"CanonicalDateTime",          &kUnitedStates, "MM/DD/YY HH:MM", DT_DATETIME, "1995-07-04 14:07",
     "1995-07-04 14:07:00:000000"                                                                                      },
    {"CanonicalDateWithoutATime",  &kUnitedStates, "MM/DD/YY HH:MM", DT_DATETIME, "1995-07-04",       "1995-07-04"     },
    {"DisplayedDateTimeIsNotRead", &kUnitedStates, "MM/DD/YY HH:MM", DT_DATETIME, "07/04/95 14:07",   ""               },
    {"EmptyDateText",              &kUnitedStates, "MM/DD/YY",       DT_DATE,     "",                 kNullResult      },
    {"EmptyNumberText",            &kUnitedStates, "#,##0",          DT_NUMBER,   "",                 kNullResult      },
};
TEST_ROWS(, TextGiven, kUnformatRows);

struct WindowReadCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* text;  // of the window, put there from outside
    const char* value;
};
void PrintTo(const WindowReadCase& row, std::ostream* out)
{
    *out << '"' << row.text << "\" under " << row.mask;
}

class WindowText : public ValueTest, public OfRow<WindowReadCase> {};

ROW_TEST(WindowText, IsReadAsAValue)
{
    Install(GetParam().mask, GetParam().type);
    SetText(GetParam().text);
    EXPECT_EQ(Read(), GetParam().value);
}

const WindowReadCase kDateReadRows[] = {
    {"ADate",                                "MM/DD/YY",    DT_DATE, "07/04/95",    "1995-07-04"},
    {"YearFortyNine",                        "MM/DD/YY",    DT_DATE, "07/04/49",    "2049-07-04"},
    {"YearFifty",                            "MM/DD/YY",    DT_DATE, "07/04/50",    "1950-07-04"},
    {"FourDigitYear",                        "MM/DD/YYYY",  DT_DATE, "07/04/2049",  "2049-07-04"},
    {"AMonthName",                           "DD-MMM-YYYY", DT_DATE, "04-JUL-1995", "1995-07-04"},
    {"ADayOfTheYear",                        "JJJ/YYYY",    DT_DATE, "185/1995",    "1995-07-04"},
    {"ADayOfALeapYear",                      "YYYY/JJJ",    DT_DATE, "1996/185",    "1996-07-03"},
    {"DayZeroOfTheYearIsNull",               "JJJ/YYYY",    DT_DATE, "000/1995",    kNullResult },
    {"DayThreeSixtySixOfACommonYearIsNull",  "JJJ/YYYY",    DT_DATE, "366/1995",    kNullResult },
    {"DayThreeSixtySixOfALeapYear",          "YYYY/JJJ",    DT_DATE, "1996/366",    "1996-12-31"},
    {"DayThreeSixtySevenOfALeapYearIsNull",  "YYYY/JJJ",    DT_DATE, "1996/367",    kNullResult },
    {"DayNineNineNineOfTheYearIsNull",       "YY.JJJ",      DT_DATE, "95.999",      kNullResult },
    {"LastDayOfACommonYear",                 "YY.JJJ",      DT_DATE, "95.365",      "1995-12-31"},
    {"BlankDateIsNull",                      "MM/DD/YY",    DT_DATE, "00/00/00",    kNullResult },
    {"BlankFourDigitDateIsNull",             "MM/DD/YYYY",  DT_DATE, "00/00/0000",  kNullResult },
    {"YearZeroIsNull",                       "MM/DD/YYYY",  DT_DATE, "07/04/0000",  kNullResult },
    {"AMonthMakesADateOfTheYearTwoThousand", "MM/DD/YY",    DT_DATE, "01/00/00",    "2000-01-01"},
    {"AYearMakesADate",                      "MM/DD/YY",    DT_DATE, "00/00/01",    "2001-01-01"},
    {"ADayMakesADate",                       "MM/DD/YY",    DT_DATE, "00/05/00",    "2000-01-05"},
    {"DayZeroReadsAsTheFirst",               "MM/DD/YY",    DT_DATE, "07/00/95",    "1995-07-01"},
    {"MonthAndYearReadsTheFirst",            "MM/YYYY",     DT_DATE, "07/1995",     "1995-07-01"},
    {"TooShortIsNull",                       "MM/DD/YY",    DT_DATE, "07/04",       kNullResult },
    {"TooLongIsNull",                        "MM/DD/YY",    DT_DATE, "07/04/1995",  kNullResult },
    {"BlankMonthNameIsNull",                 "DD-MMM-YYYY", DT_DATE, "00-   -0000", kNullResult },
    {"EmptyWindowIsTheEmptyValue",           "MM/DD/YY",    DT_DATE, "",            ""          },
};

const WindowReadCase kTimeReadRows[] = {
    {"ATime",                      "HH:MM:SS",       DT_TIME, "14:07:09",     "14:07:09:000000"},
    {"Fractions",                  "HH:MM:SS:FFF",   DT_TIME, "14:07:09:250", "14:07:09:250000"},
    {"AfternoonBeforeTheHour",     "AM/PM HH:MM",    DT_TIME, "PM 01:30",     "13:30:00:000000"},
    {"AfternoonBetweenTheFields",  "HH am/pm:MM:SS", DT_TIME, "01 PM:30:45",  "13:30:45:000000"},
    {"MidnightIsNull",             "HH:MM:SS",       DT_TIME, "00:00:00",     kNullResult      },
    {"OneSecondPastMidnight",      "HH:MM:SS",       DT_TIME, "00:00:01",     "00:00:01:000000"},
    {"OneMillisecondPastMidnight", "HH:MM:SS:FFF",   DT_TIME, "00:00:00:001", "00:00:00:001000"},
    {"TwelveAmIsMidnight",         "HH:MM AM/PM",    DT_TIME, "12:00 AM",     kNullResult      },
    {"HalfPastTwelveAm",           "HH:MM AM/PM",    DT_TIME, "12:30 AM",     "00:30:00:000000"},
    {"HalfPastTwelvePm",           "HH:MM AM/PM",    DT_TIME, "12:30 PM",     "12:30:00:000000"},
    {"OnePm",                      "HH:MM AM/PM",    DT_TIME, "01:00 PM",     "13:00:00:000000"},
    {"OneAm",                      "HH:MM AM/PM",    DT_TIME, "01:00 AM",     "01:00:00:000000"},
    {"EmptyWindowIsTheEmptyValue", "HH:MM",          DT_TIME, "",             ""               },
};

const WindowReadCase kDateTimeReadRows[] = {
    {"Both",                         "MM/DD/YY HH:MM:SS",    DT_DATETIME, "07/04/95 14:07:09", "1995-07-04 14:07:09:000000"},
    {"MidnightIsATime",              "MM/DD/YY HH:MM",       DT_DATETIME, "07/04/95 00:00",    "1995-07-04 00:00:00:000000"},
    {"ADateMaskHasTheTimeZero",      "MM/DD/YYYY",           DT_DATETIME, "07/04/1995",        "1995-07-04 00:00:00:000000"},
    {"BlankIsTheFirstOfTwoThousand", "MM/DD/YY HH:MM",       DT_DATETIME, "00/00/00 00:00",    "2000-01-01 00:00:00:000000"},
    {"BlankWithATimeKeepsTheTime",   "MM/DD/YY HH:MM",       DT_DATETIME, "00/00/00 14:07",    "2000-01-01 14:07:00:000000"},
    {"ADateBehindTheMarker",         "AM/PM MM/DD/YY HH:MM", DT_DATETIME, "PM 07/04/95 01:30", "1995-07-04 13:30:00:000000"},
    {"NoDayOfTheYearIsNoDate",       "YYYY.JJJ HH:MM",       DT_DATETIME, "1995.366 14:07",    "2000-01-01 14:07:00:000000"},
    {"NoYearInTheMask",              "HH:MM",                DT_DATETIME, "14:07",             "2000-01-01 14:07:00:000000"},
    {"TwelveHours",                  "MM/DD/YY HH:MM AM/PM", DT_DATETIME, "07/04/95 01:00 PM", "1995-07-04 13:00:00:000000"},
    {"EmptyWindowIsTheEmptyValue",   "MM/DD/YY HH:MM",       DT_DATETIME, "",                  ""                          },
};

const WindowReadCase kNumberWindowRows[] = {
    {"EmptyNumberWindowIsZero",   "#,##0.00", DT_NUMBER,  "",         "0"     },
    {"EmptyDecimalWindowIsZero",  "#,##0.00", DT_DECIMAL, "",         "0"     },
    {"SeparatorsAreDropped",      "#,##0.00", DT_NUMBER,  "1,2,3.50", "123.50"},
    {"OtherCharactersAreDropped", "#,##0.00", DT_NUMBER,  "a1b2.50",  "12.50" },
};

TEST_ROWS(Date, WindowText, kDateReadRows);
TEST_ROWS(Time, WindowText, kTimeReadRows);
TEST_ROWS(DateTime, WindowText, kDateTimeReadRows);
TEST_ROWS(Number, WindowText, kNumberWindowRows);

// A block handed to a caller is never smaller than the record, so that a caller may look into it.
class EmptyWindow : public ValueTest, public OfRow<int32_t> {};

ROW_TEST(EmptyWindow, GivesAWholeEmptyRecord)
{
    Install(nullptr, GetParam());
    SetText("");
    const std::optional<DateTimeValue> value = control_->ReadDateTime();
    ASSERT_TRUE(value.has_value());
    const DateTimeValue empty = ValueOf("");
    EXPECT_EQ(std::memcmp(&*value, &empty, sizeof empty), 0);
}

TEST_ROWS_OF(, EmptyWindow, DT_DATE, DT_TIME, DT_DATETIME);

}  // namespace
}  // namespace zttest
