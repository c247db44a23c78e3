// Every mask character as it takes, completes and refuses what is typed on it.
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

// clang-format off
const KeyCase kStringRows[] = {
    {"HashTakesADigit",                "##", DT_STRING, "|12", "7", "7|2", 0},
    {"HashRefusesALetter",             "##", DT_STRING, "|12", "a", "|12", 1},
    {"HashRefusesABlank",              "##", DT_STRING, "|12", " ", "|12", 1},
    {"HashRefusesASign",               "##", DT_STRING, "|12", "-", "|12", 1},
    {"ZeroTakesADigit",                "00", DT_STRING, "|12", "7", "7|2", 0},
    {"ZeroRefusesALetter",             "00", DT_STRING, "|12", "a", "|12", 1},
    {"LetterATakesALetter",            "AA", DT_STRING, "|ab", "Q", "Q|b", 0},
    {"LetterATakesADigit",             "AA", DT_STRING, "|ab", "7", "7|b", 0},
    {"LetterARefusesASign",            "AA", DT_STRING, "|ab", "-", "|ab", 1},
    {"LetterARefusesABlank",           "AA", DT_STRING, "|ab", " ", "|ab", 1},
    {"LetterAInLowerCaseIsTheSame",    "aa", DT_STRING, "|ab", "7", "7|b", 0},
    {"XTakesASign",                    "XX", DT_STRING, "|ab", "?", "?|b", 0},
    {"XInLowerCaseIsTheSame",          "xx", DT_STRING, "|ab", "?", "?|b", 0},
    {"ExclamationRaisesALetter",       "!!", DT_STRING, "|ab", "q", "Q|b", 0},
    {"ExclamationKeepsACapital",       "!!", DT_STRING, "|ab", "Q", "Q|b", 0},
    {"ExclamationTakesADigit",         "!!", DT_STRING, "|ab", "7", "7|b", 0},
    {"ExclamationTakesASign",          "!!", DT_STRING, "|ab", "?", "?|b", 0},
    {"CaretLowersALetter",             "^^", DT_STRING, "|ab", "Q", "q|b", 0},
    {"CaretKeepsASmallLetter",         "^^", DT_STRING, "|ab", "q", "q|b", 0},
    {"CaretTakesASign",                "^^", DT_STRING, "|ab", "?", "?|b", 0},
    {"ADateLetterIsALiteralInAString", "M#", DT_STRING, "M|1", "7", "M7|", 0},
};
// clang-format on

// clang-format off
const KeyCase kMonthRows[] = {
    {"SevenIsPadded",                                 "MM/DD/YY", DT_DATE, "|01/04/95",      "7", "07/|04/95", 0},
    {"TwoIsPadded",                                   "MM/DD/YY", DT_DATE, "|01/04/95",      "2", "02/|04/95", 0},
    {"ThreeIsRefusedAfterOne",                        "MM/DD/YY", DT_DATE, "1|0/04/95",      "3", "1|0/04/95", 1},
    {"TwoIsTakenAfterOne",                            "MM/DD/YY", DT_DATE, "1|0/04/95",      "2", "12/|04/95", 0},
    {"NineIsTakenAfterZero",                          "MM/DD/YY", DT_DATE, "0|1/04/95",      "9", "09/|04/95", 0},
    {"ZeroBeforeFiveGivesDoubleZero",                 "MM/DD/YY", DT_DATE, "|05/04/95",      "0", "0|0/04/95", 0},
    {"OneBeforeFiveGivesTen",                         "MM/DD/YY", DT_DATE, "|05/04/95",      "1", "1|0/04/95", 0},
    {"OneBeforeTwoIsTaken",                           "MM/DD/YY", DT_DATE, "|02/04/95",      "1", "1|2/04/95", 0},
    {"ALetterIsRefused",                              "MM/DD/YY", DT_DATE, "|07/04/95",      "J", "|07/04/95", 1},
    {"TheThirtyFirstSwallowsNovember",                "DD/MM/YY", DT_DATE, "31/1|2/95",      "1", "31/1|2/95", 0},
    {"TheThirtyFirstSwallowsAPaddedMonth",            "DD/MM/YY", DT_DATE, "31/|12/95",      "6", "31/|12/95", 0},
    {"TheThirtyFirstTakesALongMonth",                 "DD/MM/YY", DT_DATE, "31/|12/95",      "7", "31/07/|95", 0},
    {"ZeroBeforeFourGivesDoubleZeroOnTheThirtyFirst", "DD/MM/YY", DT_DATE, "text:31/|04/95", "0", "31/0|0/95", 0},
};
// clang-format on

// clang-format off
const KeyCase kMonthNameRows[] = {
    {"OneLetterCompletesTheName",                 "DD-MMM-YYYY", DT_DATE, "01-|MAR-1995",      "J",   "01-J|AN-1995", 0},
    {"ASmallLetterCompletesTheName",              "DD-MMM-YYYY", DT_DATE, "01-|MAR-1995",      "j",   "01-J|AN-1995", 0},
    {"ASecondLetterGoesToAnotherMonth",           "DD-MMM-YYYY", DT_DATE, "01-|MAR-1995",      "ju",  "01-JU|N-1995", 0},
    {"AThirdLetterGoesToAnotherMonth",            "DD-MMM-YYYY", DT_DATE, "01-|MAR-1995",      "jul", "01-JUL-|1995", 0},
    {"AnUnknownLetterIsRefused",                  "DD-MMM-YYYY", DT_DATE, "01-|MAR-1995",      "x",   "01-|MAR-1995", 1},
    {"ADigitIsRefused",                           "DD-MMM-YYYY", DT_DATE, "01-|MAR-1995",      "3",   "01-|MAR-1995", 1},
    {"AnUnknownSecondLetterIsRefused",            "DD-MMM-YYYY", DT_DATE, "01-J|AN-1995",      "x",   "01-J|AN-1995", 1},
    {"ABlankFieldIsCompleted",                    "DD-MMM-YYYY", DT_DATE, "text:01-|   -1995", "d",   "01-D|EC-1995", 0},
    {"TheThirtyFirstSwallowsFebruary",            "DD-MMM-YYYY", DT_DATE, "31-|JAN-1995",      "f",   "31-|JAN-1995", 0},
    {"TheThirtyFirstSwallowsSeptember",           "DD-MMM-YYYY", DT_DATE, "31-|JAN-1995",      "s",   "31-|JAN-1995", 0},
    {"TheThirtyFirstPassesAprilForAugust",        "DD-MMM-YYYY", DT_DATE, "31-|JAN-1995",      "a",   "31-A|UG-1995", 0},
    {"TheThirtyFirstPassesJuneForJuly",           "DD-MMM-YYYY", DT_DATE, "31-J|AN-1995",      "u",   "31-JU|L-1995", 0},
    {"TheThirtyFirstSwallowsJuneAtItsLastLetter", "DD-MMM-YYYY", DT_DATE, "31-JU|L-1995",      "n",   "31-JU|L-1995", 0},
};
// clang-format on

// clang-format off
const KeyCase kDayRows[] = {
    {"FourIsPadded",                             "MM/DD/YY", DT_DATE, "07/|10/95",      "4",  "07/04/|95", 0},
    {"ThreeInAShortFebruaryIsPadded",            "MM/DD/YY", DT_DATE, "02/|10/95",      "3",  "02/03/|95", 0},
    {"TwoBeforeNineGivesTwentyInAShortFebruary", "MM/DD/YY", DT_DATE, "02/|09/95",      "2",  "02/2|0/95", 0},
    {"TwoBeforeNineIsTakenInALeapYear",          "MM/DD/YY", DT_DATE, "02/|09/96",      "2",  "02/2|9/96", 0},
    {"ThreeBeforeOneGivesThirtyInApril",         "MM/DD/YY", DT_DATE, "04/|01/95",      "3",  "04/3|0/95", 0},
    {"ThreeBeforeOneIsTakenInMay",               "MM/DD/YY", DT_DATE, "05/|01/95",      "3",  "05/3|1/95", 0},
    {"NineIsRefusedAfterTwoInAShortFebruary",    "MM/DD/YY", DT_DATE, "02/2|0/95",      "9",  "02/2|0/95", 1},
    {"NineIsTakenAfterTwoInALeapYear",           "MM/DD/YY", DT_DATE, "02/2|0/96",      "9",  "02/29/|96", 0},
    {"OneIsRefusedAfterThreeInApril",            "MM/DD/YY", DT_DATE, "04/3|0/95",      "1",  "04/3|0/95", 1},
    {"ThirtyOneMayBeTypedBeforeTheMonth",        "DD/MM/YY", DT_DATE, "text:|00/00/00", "31", "31/|00/00", 0},
    {"ThirtyTwoMayNotBeTypedBeforeTheMonth",     "DD/MM/YY", DT_DATE, "text:|00/00/00", "32", "3|0/00/00", 1},
    {"FourIsPaddedBeforeTheMonth",               "DD/MM/YY", DT_DATE, "text:|00/00/00", "4",  "04/|00/00", 0},
    {"ALetterIsRefused",                         "MM/DD/YY", DT_DATE, "07/|04/95",      "d",  "07/|04/95", 1},
};
// clang-format on

// clang-format off
const KeyCase kDayOfYearRows[] = {
    {"ThreeAboveTheLimitIsPadded",             "JJJ/YY", DT_DATE, "|185/95", "3", "03|5/95", 0},
    {"ThreeBelowTheLimitIsTaken",              "JJJ/YY", DT_DATE, "|165/95", "3", "3|65/95", 0},
    {"SevenAfterThreeIsPadded",                "JJJ/YY", DT_DATE, "3|05/95", "7", "307/|95", 0},
    {"SixAfterThreeIsTaken",                   "JJJ/YY", DT_DATE, "3|05/95", "6", "36|5/95", 0},
    {"ThreeHundredSixtySixIsRefused",          "JJJ/YY", DT_DATE, "36|0/95", "6", "36|0/95", 1},
    {"ThreeHundredSixtySixIsTakenInALeapYear", "JJJ/YY", DT_DATE, "36|0/96", "6", "366/|96", 0},
    {"ALetterIsRefused",                       "JJJ/YY", DT_DATE, "|185/95", "j", "|185/95", 1},
    {"ADayThatTheYearLosesStaysShown",         "JJJ/YY", DT_DATE, "366/9|6", "5", "366/95|", 0},
    {"DayZeroStaysShown",                      "JJJ/YY", DT_DATE, "|001/96", "000", "000/|96", 0},
};
// clang-format on

// clang-format off
const KeyCase kYearRows[] = {
    {"TwoDigitsAreTaken",                      "MM/DD/YY",   DT_DATE, "07/04/|00",   "95", "07/04/95|",   0},
    {"ThreeIsRefusedAsTheFirstOfFour",         "MM/DD/YYYY", DT_DATE, "07/04/|1995", "3",  "07/04/|1995", 1},
    {"ZeroIsTakenAsTheFirstOfFour",            "MM/DD/YYYY", DT_DATE, "07/04/|1995", "0",  "07/04/0|995", 0},
    {"TwoIsTakenAsTheFirstOfFour",             "MM/DD/YYYY", DT_DATE, "07/04/|1995", "2",  "07/04/2|995", 0},
    {"NineIsTakenAsTheSecondOfFour",           "MM/DD/YYYY", DT_DATE, "07/04/1|995", "8",  "07/04/18|95", 0},
    {"AYearWithoutALeapDayIsRefused",          "MM/DD/YY",   DT_DATE, "02/29/9|6",   "5",  "02/29/9|6",   1},
    {"ALeapYearIsTaken",                       "MM/DD/YY",   DT_DATE, "02/29/9|6",   "2",  "02/29/92|",   0},
    {"AFourDigitYearWithoutALeapDayIsRefused", "MM/DD/YYYY", DT_DATE, "02/29/199|6", "7",  "02/29/199|6", 1},
    {"AFourDigitLeapYearIsTaken",              "MM/DD/YYYY", DT_DATE, "02/29/199|6", "2",  "02/29/1992|", 0},
    {"ALetterIsRefused",                       "MM/DD/YY",   DT_DATE, "07/04/|95",   "y",  "07/04/|95",   1},
};
// clang-format on

// clang-format off
const KeyCase kTimeRows[] = {
    {"FourIsPaddedInTwentyFourHours",         "HH:MM",          DT_TIME,     "|12:30",          "4",   "04:|30",          0},
    {"TwoIsTakenInTwentyFourHours",           "HH:MM",          DT_TIME,     "|12:30",          "2",   "2|2:30",          0},
    {"FiveIsRefusedAfterTwo",                 "HH:MM",          DT_TIME,     "2|0:30",          "5",   "2|0:30",          1},
    {"FourIsRefusedAfterTwo",                 "HH:MM",          DT_TIME,     "2|0:30",          "4",   "2|0:30",          1},
    {"ThreeIsTakenAfterTwo",                  "HH:MM",          DT_TIME,     "2|0:30",          "3",   "23:|30",          0},
    {"TwoBeforeFiveIsRefused",                "HH:MM",          DT_TIME,     "|05:30",          "2",   "|05:30",          1},
    {"OneBeforeFiveIsTaken",                  "HH:MM",          DT_TIME,     "|05:30",          "1",   "1|5:30",          0},
    {"ZeroBeforeNineIsTaken",                 "HH:MM",          DT_TIME,     "|19:30",          "0",   "0|9:30",          0},
    {"TwoIsPaddedInTwelveHours",              "HH:MM AM/PM",    DT_TIME,     "|12:30 AM",       "2",   "02:|30 AM",       0},
    {"OneIsTakenInTwelveHours",               "HH:MM AM/PM",    DT_TIME,     "|02:30 AM",       "1",   "1|2:30 AM",       0},
    {"ZeroBeforeFiveIsRefusedInTwelveHours",  "HH:MM AM/PM",    DT_TIME,     "|05:30 AM",       "0",   "|05:30 AM",       1},
    {"OneBeforeFiveIsRefusedInTwelveHours",   "HH:MM AM/PM",    DT_TIME,     "|05:30 AM",       "1",   "|05:30 AM",       1},
    {"ThreeIsRefusedAfterOneInTwelveHours",   "HH:MM AM/PM",    DT_TIME,     "1|2:30 AM",       "3",   "1|2:30 AM",       1},
    {"TwoIsTakenAfterOneInTwelveHours",       "HH:MM AM/PM",    DT_TIME,     "1|1:30 AM",       "2",   "12:|30 AM",       0},
    {"NineIsTakenAfterZeroInTwelveHours",     "HH:MM AM/PM",    DT_TIME,     "0|1:30 AM",       "9",   "09:|30 AM",       0},
    {"SixIsPaddedInMinutes",                  "HH:MM:SS",       DT_TIME,     "12:|30:00",       "6",   "12:06:|00",       0},
    {"FiveIsTakenInMinutes",                  "HH:MM:SS",       DT_TIME,     "12:|30:00",       "5",   "12:5|0:00",       0},
    {"NineIsTakenAsTheSecondMinuteDigit",     "HH:MM:SS",       DT_TIME,     "12:3|0:00",       "9",   "12:39:|00",       0},
    {"SevenIsPaddedInSeconds",                "HH:MM:SS",       DT_TIME,     "12:30:|00",       "7",   "12:30:07|",       0},
    {"FractionTakesEveryDigit",               "HH:MM:SS:FFF",   DT_TIME,     "12:30:00:|000",   "987", "12:30:00:987|",   0},
    {"FractionRefusesALetter",                "HH:MM:SS:FFF",   DT_TIME,     "12:30:00:|000",   "f",   "12:30:00:|000",   1},
    {"AnHourRefusesALetter",                  "HH:MM",          DT_TIME,     "|12:30",          "h",   "|12:30",          1},
    {"MonthAndMinuteOfADateTimeAreToldApart", "MM/DD/YY HH:MM", DT_DATETIME, "07/04/95 12:|30", "6",   "07/04/95 12:06|", 0},
    {"TheMonthOfADateTimeIsPadded",           "MM/DD/YY HH:MM", DT_DATETIME, "|07/04/95 12:30", "6",   "06/|04/95 12:30", 0},
};
// clang-format on

// clang-format off
const KeyCase kSharedRows[] = {
    {"XInADateTakesAnything",           "X MM/DD/YY", DT_DATE, "text:|  07/04/95", "?", "? |07/04/95", 0},
    {"ExclamationInADateRaisesALetter", "! MM/DD/YY", DT_DATE, "text:|  07/04/95", "q", "Q |07/04/95", 0},
    {"CaretInATimeLowersALetter",       "^ HH:MM",    DT_TIME, "text:|  12:30",    "Q", "q |12:30",    0},
    {"LetterAInADateIsALiteral",        "A MM/DD/YY", DT_DATE, "|A 01/04/95",      "1", "A 1|1/04/95", 0},
    {"FractionLetterInADateIsALiteral", "MM/DD/YY F", DT_DATE, "07/04/9|5 F",      "6", "07/04/96| F", 0},
};
// clang-format on

// A digit completed with a 0 behind it leaves the caret on that 0, so that the second digit can be typed.
// clang-format off
const KeyCase kCompletedRows[] = {
    {"AMonthOverAnotherOne",          "MM/DD/YY", DT_DATE, "|05/04/95", "12", "12/|04/95", 0},
    {"AMonthWithAZeroOverAnotherOne", "MM/DD/YY", DT_DATE, "|05/04/95", "03", "03/|04/95", 0},
    {"ADayOverAnotherOne",            "MM/DD/YY", DT_DATE, "02/|09/95", "28", "02/28/|95", 0},
};
// clang-format on

class MaskCharacter : public KeyTable {};

ROW_TEST(MaskCharacter, LeadsTo)
{
    Check(GetParam());
}

TEST_ROWS(String, MaskCharacter, kStringRows);
TEST_ROWS(Month, MaskCharacter, kMonthRows);
TEST_ROWS(MonthName, MaskCharacter, kMonthNameRows);
TEST_ROWS(Day, MaskCharacter, kDayRows);
TEST_ROWS(DayOfYear, MaskCharacter, kDayOfYearRows);
TEST_ROWS(Year, MaskCharacter, kYearRows);
TEST_ROWS(Time, MaskCharacter, kTimeRows);
TEST_ROWS(Completed, MaskCharacter, kCompletedRows);
TEST_ROWS(Shared, MaskCharacter, kSharedRows);

}  // namespace
}  // namespace zttest
