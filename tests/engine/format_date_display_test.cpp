// How dates and times are shown, field by field, and which texts are taken as dates and times.
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

// Every field differs.
constexpr const char* kMarch = "2024-03-05 14:07:09:000250";

struct FieldCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* value;
    const char* shown;
};
void PrintTo(const FieldCase& row, std::ostream* out)
{
    *out << row.value << " under " << row.mask;
}

class FieldDisplay : public ValueTest, public OfRow<FieldCase> {};

ROW_TEST(FieldDisplay, IsFormatted)
{
    Install(GetParam().mask, GetParam().type);
    const DateTimeValue value = ValueOf(GetParam().value);
    EXPECT_EQ(Format(&value).text, GetParam().shown);
}

ROW_TEST(FieldDisplay, IsShown)
{
    Install(GetParam().mask, GetParam().type);
    const DateTimeValue value = ValueOf(GetParam().value);
    control_->SetData(&value);
    EXPECT_EQ(Text(), GetParam().shown);
}

const FieldCase kDateFieldRows[] = {
    {"TwoDigitYear",                             "MM/DD/YY",    DT_DATE, kMarch,       "03/05/24"   },
    {"FourDigitYear",                            "YYYY-MM-DD",  DT_DATE, kMarch,       "2024-03-05" },
    {"YearOfTheLastCentury",                     "DD.MM.YY",    DT_DATE, "1995-07-04", "04.07.95"   },
    {"TwoDigitYearBelowTen",                     "YY",          DT_DATE, "2005-01-01", "05"         },
    {"YearOfThreeDigits",                        "YYYY-MM-DD",  DT_DATE, "0987-01-01", "0987-01-01" },
    {"YearOne",                                  "YYYY-MM-DD",  DT_DATE, "0001-01-01", "0001-01-01" },
    {"YearNineThousand",                         "YYYY-MM-DD",  DT_DATE, "9999-12-31", "9999-12-31" },
    {"MonthName",                                "DD-MMM-YYYY", DT_DATE, kMarch,       "05-MAR-2024"},
    {"SmallLetters",                             "dd-mmm-yyyy", DT_DATE, kMarch,       "05-MAR-2024"},
    {"NoLiterals",                               "MMDDYYYY",    DT_DATE, kMarch,       "03052024"   },
    {"DayOfALeapYear",                           "JJJ/YYYY",    DT_DATE, kMarch,       "065/2024"   },
    {"DayOfACommonYear",                         "JJJ/YYYY",    DT_DATE, "2023-03-05", "064/2023"   },
    {"FirstDayOfTheYear",                        "YYYY.JJJ",    DT_DATE, "2023-01-01", "2023.001"   },
    {"LastDayOfACommonYear",                     "YYYY.JJJ",    DT_DATE, "2023-12-31", "2023.365"   },
    {"LastDayOfALeapYear",                       "YYYY.JJJ",    DT_DATE, "2024-12-31", "2024.366"   },
    {"NineteenHundredIsNoLeapYear",              "YYYY.JJJ",    DT_DATE, "1900-12-31", "1900.365"   },
    {"TwoDigitsOfNineteenHundredAreTwoThousand", "YY.JJJ",      DT_DATE, "1900-12-31", "00.366"     },
    {"MonthAndYear",                             "MM/YYYY",     DT_DATE, kMarch,       "03/2024"    },
    {"YearAlone",                                "YYYY",        DT_DATE, kMarch,       "2024"       },
    {"AWordBefore",                              "on DD.MM.YY", DT_DATE, kMarch,       "on 05.03.24"},
    {"AnEscapeBehind",                           "DD.MM.YY~X",  DT_DATE, kMarch,       "05.03.24X"  },
    {"AFreeInputPositionIsABlank",               "DD.MM.YY X",  DT_DATE, kMarch,       "05.03.24  " },
    {"AnUpperCaseInputPositionIsABlank",         "DD.MM.YY!",   DT_DATE, kMarch,       "05.03.24 "  },
    {"TimeLettersAreLiteralsInADate",            "MM/DD/YY HS", DT_DATE, kMarch,       "03/05/24 HS"},
};

const FieldCase kNoDateRows[] = {
    {"Slashes",                      "MM/DD/YYYY",            DT_DATE,     "",           "00/00/0000"           },
    {"MonthName",                    "DD-MMM-YY",             DT_DATE,     "",           "00-   -00"            },
    {"DayOfYear",                    "JJJ/YY",                DT_DATE,     "",           "001/00"               },
    {"DateTime",                     "MM/DD/YY HH:MM:SS:FFF", DT_DATETIME, "",           "00/00/00 00:00:00:000"},
    {"Time",                         "HH:MM:SS:FFF",          DT_TIME,     "",           "00:00:00:000"         },
    {"TwelveHourTimeIsInTheMorning", "HH:MM AM/PM",           DT_TIME,     "",           "00:00 AM"             },
    {"DateWithoutATime",             "MM/DD/YY HH:MM",        DT_DATETIME, "1995-07-04", "07/04/95 00:00"       },
    {"TimeWithoutADate",             "MM/DD/YY HH:MM",        DT_DATETIME, "14:07:00",   "00/00/00 14:07"       },
};

const FieldCase kTimeFieldRows[] = {
    {"HoursAndMinutes",                      "HH:MM",                       DT_TIME,     kMarch,            "14:07"                      },
    {"Seconds",                              "HH:MM:SS",                    DT_TIME,     kMarch,            "14:07:09"                   },
    {"SmallLetters",                         "hh.mm.ss",                    DT_TIME,     kMarch,            "14.07.09"                   },
    {"SixFractionDigits",                    "HH:MM:SS:FFFFFF",             DT_TIME,     kMarch,            "14:07:09:000250"            },
    {"ThreeFractionDigitsAreCutNotRounded",  "HH:MM:SS:FFF",                DT_TIME,     "01:02:03:999999", "01:02:03:999"               },
    {"ThreeFractionDigitsOf250Microseconds", "HH:MM:SS:FFF",                DT_TIME,     kMarch,            "14:07:09:000"               },
    {"OneFractionDigit",                     "HH:MM:SS.F",                  DT_TIME,     "01:02:03:123456", "01:02:03.1"                 },
    {"FourFractionDigits",                   "HH:MM:SS.FFFF",               DT_TIME,     "01:02:03:123456", "01:02:03.1234"              },
    {"FractionWithALiteralBehind",           "HH:MM:SS.FF b",               DT_TIME,     "01:02:03:123456", "01:02:03.12 b"              },
    {"HourAlone",                            "HH",                          DT_TIME,     kMarch,            "14"                         },
    {"NoFieldAtAll",                         "ABC",                         DT_TIME,     kMarch,            "ABC"                        },
    {"MonthThenMinute",                      "MM/DD/YY HH:MM",              DT_DATETIME, kMarch,            "03/05/24 14:07"             },
    {"AllOfADateTime",                       "DD-MMM-YYYY HH:MM:SS.FFFFFF", DT_DATETIME, kMarch,            "05-MAR-2024 14:07:09.000250"},
    {"TwelveHourDateTime",                   "MM/DD/YYYY HH:MM AM/PM",      DT_DATETIME, kMarch,            "03/05/2024 02:07 PM"        },
    {"DayOfYearDateTime",                    "YYYY.JJJ HH:MM",              DT_DATETIME, kMarch,            "2024.065 14:07"             },
    {"TimeOnlyDateTime",                     "HH:MM",                       DT_DATETIME, kMarch,            "14:07"                      },
};

const FieldCase kTwelveHourRows[] = {
    {"MidnightIsTwelveAm",    "HH:MM AM/PM",    DT_TIME, "00:00:00", "12:00 AM"   },
    {"HalfPastMidnight",      "HH:MM AM/PM",    DT_TIME, "00:30:00", "12:30 AM"   },
    {"One",                   "HH:MM AM/PM",    DT_TIME, "01:00:00", "01:00 AM"   },
    {"Eleven",                "HH:MM AM/PM",    DT_TIME, "11:59:00", "11:59 AM"   },
    {"NoonIsTwelvePm",        "HH:MM AM/PM",    DT_TIME, "12:00:00", "12:00 PM"   },
    {"Thirteen",              "HH:MM AM/PM",    DT_TIME, "13:00:00", "01:00 PM"   },
    {"TwentyThree",           "HH:MM AM/PM",    DT_TIME, "23:59:00", "11:59 PM"   },
    {"SmallMarker",           "hh:mm:ss am/pm", DT_TIME, "13:05:09", "01:05:09 PM"},
    {"MarkerInTheMiddle",     "HH AM/PM:MM",    DT_TIME, "13:05:00", "01 PM:05"   },
    {"MixedCaseMarkerIsNone", "HH:MM A/P",      DT_TIME, "13:05:00", "13:05 A/P"  },
};
TEST_ROWS(Date, FieldDisplay, kDateFieldRows);
TEST_ROWS(Missing, FieldDisplay, kNoDateRows);
TEST_ROWS(Time, FieldDisplay, kTimeFieldRows);
TEST_ROWS(TwelveHours, FieldDisplay, kTwelveHourRows);

class MonthNames : public ValueTest, public OfRow<int> {};

ROW_TEST(MonthNames, ShowTheMonth)
{
    static const char* const names[] = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                        "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};
    Install("DD-MMM-YYYY", DT_DATE);
    DateTimeValue value = ValueOf("1995-01-04");
    value.month = static_cast<int8_t>(GetParam() - 1);
    EXPECT_EQ(Format(&value).text, std::string("04-") + names[GetParam() - 1] + "-1995");
}

TEST_ROWS(, MonthNames, Integers(1, 13));

class NullDates : public ValueTest {};

TEST_F(NullDates, NullIsTheEmptyDate)
{
    Install("MM/DD/YYYY", DT_DATE);
    ShownFor("1995-07-04");
    control_->SetData(nullptr);
    EXPECT_EQ(Text(), "00/00/0000");
}

TEST_F(NullDates, NullIsTheEmptyTime)
{
    Install("HH:MM", DT_TIME);
    ShownFor("14:07");
    control_->SetData(nullptr);
    EXPECT_EQ(Text(), "00:00");
}

// The AM and PM strings of the settings.
class DesignatorsShown : public ValueTest {};

TEST_F(DesignatorsShown, OfFourCharactersAreShown)
{
    const Regional settings(With(kUnitedStates, {
                                                    {"s1159", "a.m."},
                                                    {"s2359", "p.m."}
    }));
    Install("HH:MM AM/PM", DT_TIME);
    EXPECT_EQ(ShownFor("13:05"), "01:05 p.m.");
}

TEST_F(DesignatorsShown, OfOneCharacterAreShown)
{
    const Regional settings(With(kUnitedStates, {
                                                    {"s1159", "a"},
                                                    {"s2359", "p"}
    }));
    Install("HH:MM AM/PM", DT_TIME);
    EXPECT_EQ(ShownFor("13:05"), "01:05 p");
}

TEST_F(DesignatorsShown, KeepWhatFollowsThem)
{
    const Regional settings(With(kUnitedStates, {
                                                    {"s1159", "a.m."},
                                                    {"s2359", "p.m."}
    }));
    Install("HH AM/PM:MM", DT_TIME);
    EXPECT_EQ(ShownFor("01:05"), "01 a.m.:05");
}

TEST_F(DesignatorsShown, AreReadBackFromTheWindow)
{
    const Regional settings(With(kUnitedStates, {
                                                    {"s1159", "vorm"},
                                                    {"s2359", "nach"}
    }));
    Install("HH:MM AM/PM", DT_TIME);
    ShownFor("13:05");
    EXPECT_EQ(Text(), "01:05 nach");
    EXPECT_EQ(Read(), "13:05:00:000000");
}

}  // namespace
}  // namespace zttest
