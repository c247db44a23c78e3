// Which texts are taken as dates and times, as display text or in canonical form, and what the control then shows.
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

struct DateTextCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* data;
    const char* shown;
};
void PrintTo(const DateTextCase& row, std::ostream* out)
{
    *out << '"' << row.data << "\" under " << row.mask;
}

class DateText : public ValueTest, public OfRow<DateTextCase> {};

ROW_TEST(DateText, IsShown)
{
    Install(GetParam().mask, GetParam().type);
    EXPECT_EQ(ShownFor(GetParam().data), GetParam().shown);
}

ROW_TEST(DateText, IsShownAlikeOverAnotherValue)
{
    Install(GetParam().mask, GetParam().type);
    ShownFor(GetParam().type == DT_TIME ? "23:59:59" : "1988-02-29");
    EXPECT_EQ(ShownFor(GetParam().data), GetParam().shown);
}

const DateTextCase kDateRows[] = {
    {"Canonical",                     "MM/DD/YY",    DT_DATE, "1995-07-04",  "07/04/95"   },
    {"CanonicalAsLongAsTheDisplay",   "MM/DD/YYYY",  DT_DATE, "2024-02-29",  "02/29/2024" },
    {"CanonicalUnderItsOwnLayout",    "YYYY-MM-DD",  DT_DATE, "2024-02-29",  "2024-02-29" },
    {"CanonicalUnderAMonthName",      "DD-MMM-YYYY", DT_DATE, "1995-07-04",  "04-JUL-1995"},
    {"CanonicalUnderADayOfTheYear",   "JJJ/YY",      DT_DATE, "1995-07-04",  "185/95"     },
    {"Display",                       "MM/DD/YY",    DT_DATE, "07/04/95",    "07/04/95"   },
    {"DisplayDayFirst",               "DD.MM.YYYY",  DT_DATE, "04.07.1995",  "04.07.1995" },
    {"DisplayWithoutLiterals",        "MMDDYYYY",    DT_DATE, "07041995",    "07041995"   },
    {"DisplayWithAMonthName",         "DD-MMM-YYYY", DT_DATE, "04-JUL-1995", "04-JUL-1995"},
    {"DisplayWithASmallMonthName",    "DD-MMM-YYYY", DT_DATE, "04-jul-1995", "04-JUL-1995"},
    {"DisplayLiteralsAreNotCompared", "MM/DD/YY",    DT_DATE, "07.04.95",    "07/04/95"   },
    {"DayOfTheYear",                  "JJJ/YY",      DT_DATE, "185/95",      "185/95"     },
    {"DayOfTheYearBehindTheYear",     "YYYY.JJJ",    DT_DATE, "1995.185",    "1995.185"   },
    {"LastDayOfALeapYear",            "JJJ/YYYY",    DT_DATE, "366/1996",    "366/1996"   },
    {"LastDayOfACommonYear",          "JJJ/YYYY",    DT_DATE, "365/1995",    "365/1995"   },
    {"LeapDay",                       "MM/DD/YY",    DT_DATE, "02/29/96",    "02/29/96"   },
    {"MonthAndYear",                  "MM/YY",       DT_DATE, "07/95",       "07/95"      },
    {"MonthAndYearCanonical",         "MM/YYYY",     DT_DATE, "1995-07-31",  "07/1995"    },
    {"DayZeroIsTheFirst",             "MM/DD/YY",    DT_DATE, "07/00/95",    "07/01/95"   },
    {"MonthZeroIsJanuary",            "MM/DD/YY",    DT_DATE, "00/04/95",    "01/04/95"   },
    {"YearOne",                       "YYYY-MM-DD",  DT_DATE, "0001-01-01",  "0001-01-01" },
    {"LastYear",                      "YYYY-MM-DD",  DT_DATE, "9999-12-31",  "9999-12-31" },
    {"BehindAWord",                   "on DD.MM.YY", DT_DATE, "on 04.07.95", "on 04.07.95"},
};

const DateTextCase kRefusedDateRows[] = {
    {"FebruaryThirtyAsLongAsTheDisplay", "MM/DD/YYYY",  DT_DATE, "2024-02-30",       "00/00/0000" },
    {"AprilThirtyOne",                   "MM/DD/YY",    DT_DATE, "04/31/95",         "00/00/00"   },
    {"LeapDayOfACommonYear",             "MM/DD/YY",    DT_DATE, "02/29/95",         "00/00/00"   },
    {"LeapDayOfACenturyYear",            "MM/DD/YYYY",  DT_DATE, "02/29/1900",       "00/00/0000" },
    {"MonthThirteen",                    "MM/DD/YY",    DT_DATE, "13/01/95",         "00/00/00"   },
    {"CanonicalAprilThirtyOne",          "MM/DD/YY",    DT_DATE, "1995-04-31",       "00/00/00"   },
    {"CanonicalMonthZero",               "MM/DD/YY",    DT_DATE, "1995-00-04",       "00/00/00"   },
    {"YearZero",                         "MM/DD/YYYY",  DT_DATE, "07/04/0000",       "00/00/0000" },
    {"CanonicalYearZero",                "MM/DD/YY",    DT_DATE, "0000-07-04",       "00/00/00"   },
    {"SomethingLeftOver",                "MM/DD/YY",    DT_DATE, "1995-07-04x",      "00/00/00"   },
    {"ATimeLeftOver",                    "MM/DD/YY",    DT_DATE, "1995-07-04 14:07", "00/00/00"   },
    {"Words",                            "MM/DD/YY",    DT_DATE, "tomorrow",         "00/00/00"   },
    {"Empty",                            "MM/DD/YY",    DT_DATE, "",                 "00/00/00"   },
    {"DisplayTooShort",                  "MM/DD/YY",    DT_DATE, "07/04",            "00/00/00"   },
    {"DisplayTooLong",                   "MM/DD/YY",    DT_DATE, "07/04/1995",       "00/00/00"   },
    {"UnknownMonthName",                 "DD-MMM-YYYY", DT_DATE, "04-XXX-1995",      "00-   -0000"},
    {"LetterInADigitField",              "MM/DD/YY",    DT_DATE, "07/x4/95",         "00/00/00"   },
    {"DayZeroOfTheYear",                 "JJJ/YYYY",    DT_DATE, "000/1995",         "001/0000"   },
    {"DayThreeSixtySixOfACommonYear",    "JJJ/YYYY",    DT_DATE, "366/1995",         "001/0000"   },
    {"DayNineHundredOfTheYear",          "JJJ/YYYY",    DT_DATE, "999/1995",         "001/0000"   },
};

// What is shown where there is no value, handed in again.
const DateTextCase kBlankRows[] = {
    {"Date",               "MM/DD/YY",              DT_DATE,     "00/00/00",              "00/00/00"             },
    {"FourDigitYear",      "DD.MM.YYYY",            DT_DATE,     "00.00.0000",            "00.00.0000"           },
    {"MonthName",          "DD-MMM-YY",             DT_DATE,     "00-   -00",             "00-   -00"            },
    {"MonthAndYear",       "MM/YY",                 DT_DATE,     "00/00",                 "00/00"                },
    {"YearAlone",          "YY",                    DT_DATE,     "00",                    "00"                   },
    {"BehindAWord",        "on DD.MM.YY",           DT_DATE,     "on 00.00.00",           "on 00.00.00"          },
    {"Time",               "HH:MM:SS",              DT_TIME,     "00:00:00",              "00:00:00"             },
    {"TwelveHourTime",     "HH:MM AM/PM",           DT_TIME,     "00:00 AM",              "00:00 AM"             },
    {"MarkerFirst",        "AM/PM HH:MM",           DT_TIME,     "AM 00:00",              "AM 00:00"             },
    {"DateTime",           "MM/DD/YY HH:MM:SS:FFF", DT_DATETIME, "00/00/00 00:00:00:000", "00/00/00 00:00:00:000"},
    {"TwelveHourDateTime", "MM/DD/YY HH:MM AM/PM",  DT_DATETIME, "00/00/00 00:00 AM",     "00/00/00 00:00 AM"    },
    {"DateAlone",          "MM/DD/YY",              DT_DATETIME, "00/00/00",              "00/00/00"             },
    {"WithAnyCharacter",   "X MM/DD/YY",            DT_DATE,     "  00/00/00",            "  00/00/00"           },
};

const DateTextCase kTwoDigitYearRows[] = {
    {"Zero",                    "MM/DD/YY", DT_DATE, "02/29/00", "02/29/00"}, // 2000 is a leap year
    {"FortyEightIsInTheFuture", "YY.JJJ",   DT_DATE, "48.366",   "48.366"  }, // so is 2048
    {"NinetySixIsInThePast",    "YY.JJJ",   DT_DATE, "96.366",   "96.366"  },
};

const DateTextCase kTimeRows[] = {
    {"HoursAndMinutes",                    "HH:MM:SS",        DT_TIME, "14:07",            "14:07:00"       },
    {"Seconds",                            "HH:MM:SS",        DT_TIME, "14:07:09",         "14:07:09"       },
    {"SixFractionDigitsBehindAColon",      "HH:MM:SS:FFFFFF", DT_TIME, "14:07:09:000250",  "14:07:09:000250"},
    {"SixFractionDigitsBehindAPoint",      "HH:MM:SS:FFFFFF", DT_TIME, "14:07:09.000250",  "14:07:09:000250"},
    {"OneFractionDigit",                   "HH:MM:SS:FFFFFF", DT_TIME, "14:07:09:5",       "14:07:09:500000"},
    {"DisplayOfThreeFractionDigits",       "HH:MM:SS:FFF",    DT_TIME, "14:07:09:250",     "14:07:09:250"   },
    {"DisplayOfOtherLiterals",             "HH.MM",           DT_TIME, "14.07",            "14.07"          },
    {"Midnight",                           "HH:MM:SS",        DT_TIME, "00:00:00",         "00:00:00"       },
    {"LastSecond",                         "HH:MM:SS",        DT_TIME, "23:59:59",         "23:59:59"       },
    {"TwelveHourFormUnderTwentyFourHours", "HH:MM:SS",        DT_TIME, "01:30 PM",         "13:30:00"       },
    {"TwelveHourFormInSmallLetters",       "HH:MM",           DT_TIME, "01:30:09 pm",      "13:30"          },
    {"HourTwentyFourIsRefused",            "HH:MM:SS",        DT_TIME, "24:00:00",         "00:00:00"       },
    {"MinuteSixtyIsRefused",               "HH:MM",           DT_TIME, "14:60",            "00:00"          },
    {"SecondSixtyIsRefused",               "HH:MM:SS",        DT_TIME, "14:07:60",         "00:00:00"       },
    {"SevenFractionDigitsAreRefused",      "HH:MM:SS",        DT_TIME, "14:07:09:1234567", "00:00:00"       },
    {"ThirteenPmIsRefused",                "HH:MM",           DT_TIME, "13:30 PM",         "00:00"          },
    {"ADateIsRefused",                     "HH:MM",           DT_TIME, "1995-07-04",       "00:00"          },
    {"WordsAreRefused",                    "HH:MM",           DT_TIME, "later",            "00:00"          },
    {"EmptyIsRefused",                     "HH:MM",           DT_TIME, "",                 "00:00"          },
};

const DateTextCase kTwelveHourRows[] = {
    {"CanonicalAfternoon",                     "HH:MM AM/PM",          DT_TIME,     "13:30",               "01:30 PM"         },
    {"CanonicalAfternoonWithSeconds",          "HH:MM AM/PM",          DT_TIME,     "13:30:00",            "01:30 PM"         },
    {"CanonicalMorning",                       "HH:MM AM/PM",          DT_TIME,     "01:30",               "01:30 AM"         },
    {"CanonicalMidnight",                      "HH:MM AM/PM",          DT_TIME,     "00:15",               "12:15 AM"         },
    {"CanonicalNoon",                          "HH:MM AM/PM",          DT_TIME,     "12:15",               "12:15 PM"         },
    {"DisplayAfternoon",                       "HH:MM AM/PM",          DT_TIME,     "01:30 PM",            "01:30 PM"         },
    {"DisplayMorning",                         "HH:MM AM/PM",          DT_TIME,     "01:30 AM",            "01:30 AM"         },
    {"DisplayNoon",                            "HH:MM AM/PM",          DT_TIME,     "12:30 PM",            "12:30 PM"         },
    {"DisplayMidnight",                        "HH:MM AM/PM",          DT_TIME,     "12:30 AM",            "12:30 AM"         },
    {"DisplayWithSeconds",                     "HH:MM:SS AM/PM",       DT_TIME,     "11:59:58 PM",         "11:59:58 PM"      },
    {"CanonicalTwelveHourFormOfAnotherLayout", "HH:MM:SS AM/PM",       DT_TIME,     "01:30 PM",            "01:30:00 PM"      },
    {"CanonicalWithAFraction",                 "HH:MM:SS AM/PM",       DT_TIME,     "13:30:00:25",         "01:30:00 PM"      },
    {"DateTimeCanonical",                      "MM/DD/YY HH:MM AM/PM", DT_DATETIME, "1995-07-04 13:30",    "07/04/95 01:30 PM"},
    {"DateTimeCanonicalWithSeconds",           "MM/DD/YY HH:MM AM/PM", DT_DATETIME, "1995-07-04 13:30:00", "07/04/95 01:30 PM"},
    {"DateTimeDisplay",                        "MM/DD/YY HH:MM AM/PM", DT_DATETIME, "07/04/95 01:30 PM",   "07/04/95 01:30 PM"},
    {"DateTimeDisplayOfNoon",                  "MM/DD/YY HH:MM AM/PM", DT_DATETIME, "07/04/95 12:30 PM",   "07/04/95 12:30 PM"},
    {"DateTimeDateOnly",                       "MM/DD/YY HH:MM AM/PM", DT_DATETIME, "1995-07-04",          "07/04/95 00:00 AM"},
};

const DateTextCase kDateTimeRows[] = {
    {"DateAlone",                 "MM/DD/YY HH:MM",        DT_DATETIME, "1995-07-04",                 "07/04/95 00:00"       },
    {"Minutes",                   "MM/DD/YY HH:MM:SS",     DT_DATETIME, "1995-07-04 14:07",           "07/04/95 14:07:00"    },
    {"Seconds",                   "MM/DD/YY HH:MM:SS",     DT_DATETIME, "1995-07-04 14:07:09",        "07/04/95 14:07:09"    },
    {"FractionBehindAColon",      "MM/DD/YY HH:MM:SS:FFF", DT_DATETIME, "1995-07-04 14:07:09:250000",
     "07/04/95 14:07:09:250"                                                                                                 },
    {"FractionBehindAPoint",      "MM/DD/YY HH:MM:SS:FFF", DT_DATETIME, "1995-07-04 14:07:09.25",     "07/04/95 14:07:09:250"},
    {"TwelveHourForm",            "MM/DD/YY HH:MM:SS",     DT_DATETIME, "1995-07-04 01:30 PM",        "07/04/95 13:30:00"    },
    {"Display",                   "MM/DD/YY HH:MM",        DT_DATETIME, "07/04/95 14:07",             "07/04/95 14:07"       },
    {"DisplayWithAMonthName",     "DD-MMM-YYYY HH:MM",     DT_DATETIME, "04-JUL-1995 14:07",          "04-JUL-1995 14:07"    },
    {"DisplayOfADayOfTheYear",    "YYYY.JJJ HH:MM",        DT_DATETIME, "1995.185 14:07",             "1995.185 14:07"       },
    {"ATimeAloneIsRefused",       "MM/DD/YY HH:MM",        DT_DATETIME, "14:07",                      "00/00/00 00:00"       },
    {"AnImpossibleDateIsRefused", "MM/DD/YY HH:MM",        DT_DATETIME, "02/30/95 14:07",             "00/00/00 00:00"       },
    {"AnImpossibleTimeIsRefused", "MM/DD/YY HH:MM",        DT_DATETIME, "07/04/95 25:07",             "00/00/00 00:00"       },
    {"WordsAreRefused",           "MM/DD/YY HH:MM",        DT_DATETIME, "tomorrow noon.",             "00/00/00 00:00"       },
};

TEST_ROWS(Blanks, DateText, kBlankRows);
TEST_ROWS(Dates, DateText, kDateRows);
TEST_ROWS(RefusedDates, DateText, kRefusedDateRows);
TEST_ROWS(TwoDigitYears, DateText, kTwoDigitYearRows);
TEST_ROWS(Times, DateText, kTimeRows);
TEST_ROWS(TwelveHours, DateText, kTwelveHourRows);
TEST_ROWS(DateTimes, DateText, kDateTimeRows);

// "[date]" under the pictures of three countries.
struct PictureCase {
    const char* name;
    const RegionalSet* settings;
    const char* shown;
};
void PrintTo(const PictureCase& row, std::ostream* out)
{
    *out << row.shown;
}

class PictureDates : public ValueTest, public OfRow<PictureCase> {};

ROW_TEST(PictureDates, ShowACanonicalDate)
{
    const Regional settings(*GetParam().settings);
    Install("[date]", DT_DATE);
    EXPECT_EQ(ShownFor("1995-07-04"), GetParam().shown);
}

ROW_TEST(PictureDates, TakeTheirOwnDisplay)
{
    const Regional settings(*GetParam().settings);
    Install("[date]", DT_DATE);
    EXPECT_EQ(ShownFor(GetParam().shown), GetParam().shown);
}

ROW_TEST(PictureDates, ReadTheDateBack)
{
    const Regional settings(*GetParam().settings);
    Install("[date]", DT_DATE);
    ShownFor("1995-07-04");
    EXPECT_EQ(Read(), "1995-07-04");
}

ROW_TEST(PictureDates, ReadADateWithItsTimeBack)
{
    const Regional settings(*GetParam().settings);
    Install("[date] [time]", DT_DATETIME);
    EXPECT_EQ(ShownFor("1995-07-04 14:07:09"), std::string(GetParam().shown) + " 14:07:09");
    EXPECT_EQ(Read(), "1995-07-04 14:07:09:000000");
}

const PictureCase kPictureRows[] = {
    {"UnitedStates", &kUnitedStates, "07/04/1995"},
    {"German",       &kGerman,       "04.07.1995"},
    {"Iso",          &kIso,          "1995-07-04"},
};
TEST_ROWS(, PictureDates, kPictureRows);

// Every mask shows every date such that it can be read back and given again.
struct RoundTripCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* precision;  // the canonical form with '0' where the mask keeps nothing
};
void PrintTo(const RoundTripCase& row, std::ostream* out)
{
    *out << row.mask;
}

class DateRoundTrip : public ValueTest, public OfRow<RoundTripCase> {
protected:
    // The canonical text with what the mask does not keep set to 0.
    std::string Kept(std::string canonical) const
    {
        const std::string precision = GetParam().precision;
        for (size_t i = 0; i < canonical.size() && i < precision.size(); ++i)
            canonical[i] = precision[i] == '0' ? '0' : canonical[i];
        return canonical.substr(0, precision.size());
    }
};

ROW_TEST(DateRoundTrip, ReadsBackWhatWasGiven)
{
    static const char* const dates[] = {"1950-01-01", "1995-07-04", "1996-02-29", "1999-12-31",
                                        "2000-02-29", "2024-10-10", "2049-11-30"};
    static const char* const times[] = {"00:00:01:000000", "01:02:03:456789", "11:59:59:999999",
                                        "12:00:00:000001", "12:34:56:100000", "23:59:59:000000"};
    Install(GetParam().mask, GetParam().type);
    for (const std::string date : dates) {
        for (const std::string time : times) {
            const int32_t type = GetParam().type;
            const std::string data = type == DT_DATE ? date : type == DT_TIME ? time : date + " " + time;
            const std::string shown = ShownFor(data);
            SCOPED_TRACE(data + " shown as " + shown);
            EXPECT_EQ(Read(), Kept(data));
            EXPECT_EQ(ShownFor(shown), shown);
        }
    }
}

const RoundTripCase kRoundTripRows[] = {
    {"MonthDayYear",             "MM/DD/YY",                   DT_DATE,     "dddddddddd"                },
    {"MonthDayFourDigits",       "MM/DD/YYYY",                 DT_DATE,     "dddddddddd"                },
    {"DayMonthYear",             "DD.MM.YYYY",                 DT_DATE,     "dddddddddd"                },
    {"YearMonthDay",             "YYYY-MM-DD",                 DT_DATE,     "dddddddddd"                },
    {"TwoDigitYearFirst",        "YY/MM/DD",                   DT_DATE,     "dddddddddd"                },
    {"MonthNames",               "DD-MMM-YYYY",                DT_DATE,     "dddddddddd"                },
    {"MonthNameFirst",           "MMM DD, YYYY",               DT_DATE,     "dddddddddd"                },
    {"DayOfYear",                "JJJ/YY",                     DT_DATE,     "dddddddddd"                },
    {"DayOfYearBehind",          "YYYY-JJJ",                   DT_DATE,     "dddddddddd"                },
    {"NoLiterals",               "YYYYMMDD",                   DT_DATE,     "dddddddddd"                },
    {"Seconds",                  "HH:MM:SS",                   DT_TIME,     "dddddddd:000000"           },
    {"Milliseconds",             "HH:MM:SS:FFF",               DT_TIME,     "dddddddd:ddd000"           },
    {"Microseconds",             "HH.MM.SS.FFFFFF",            DT_TIME,     "dddddddd:dddddd"           },
    {"TwelveHours",              "HH:MM:SS AM/PM",             DT_TIME,     "dddddddd:000000"           },
    {"TwelveHoursWithFractions", "HH:MM:SS:FF am/pm",          DT_TIME,     "dddddddd:dd0000"           },
    {"DateAndTime",              "MM/DD/YY HH:MM:SS:FFF",      DT_DATETIME, "dddddddddd dddddddd:ddd000"},
    {"DateAndTwelveHours",       "DD-MMM-YYYY HH:MM:SS AM/PM", DT_DATETIME, "dddddddddd dddddddd:000000"},
    {"DayOfYearAndTime",         "YY.JJJ HH:MM:SS",            DT_DATETIME, "dddddddddd dddddddd:000000"},
};
TEST_ROWS(, DateRoundTrip, kRoundTripRows);

}  // namespace
}  // namespace zttest
