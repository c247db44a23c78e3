// What keys leave in classic editing.
#include "tests/support/classic_rows.h"

namespace zttest::classic {
namespace {

template <size_t size>
constexpr Rows All(const KeyCase (&rows)[size])
{
    return {rows, size};
}

// clang-format off
constexpr KeyCase kMovesRows[] = {
    {"LeftPassesALiteral",                    "MM/DD/YY",    DT_DATE,   "07/|04/95",  "{Left}",                     "0|7/04/95",  0},
    {"RightPassesALiteral",                   "MM/DD/YY",    DT_DATE,   "0|7/04/95",  "{Right}",                    "07/|04/95",  0},
    {"LeftGoesOneDigit",                      "MM/DD/YY",    DT_DATE,   "07/0|4/95",  "{Left}",                     "07/|04/95",  0},
    {"RightGoesOneDigit",                     "MM/DD/YY",    DT_DATE,   "|07/04/95",  "{Right}",                    "0|7/04/95",  0},
    {"LeftAtTheStartStays",                   "MM/DD/YY",    DT_DATE,   "|07/04/95",  "{Left}",                     "|07/04/95",  0},
    {"RightOnTheLastGoesToTheEnd",            "MM/DD/YY",    DT_DATE,   "07/04/9|5",  "{Right}",                    "07/04/95|",  0},
    {"RightAtTheEndStays",                    "MM/DD/YY",    DT_DATE,   "07/04/95|",  "{Right}",                    "07/04/95|",  0},
    {"LeftFromTheEnd",                        "MM/DD/YY",    DT_DATE,   "07/04/95|",  "{Left}",                     "07/04/9|5",  0},
    {"RightPassesSeveralLiterals",            "(###) ###",   DT_STRING, "(55|5) 123", "{Right}",                    "(555) |123", 0},
    {"LeftPassesSeveralLiterals",             "(###) ###",   DT_STRING, "(555) |123", "{Left}",                     "(55|5) 123", 0},
    {"RightFromALiteral",                     "(###) ###",   DT_STRING, "(555|) 123", "{Right}",                    "(555) |123", 0},
    {"LeftBeforeTheFirstFieldGoesToTheStart", "(###) ###",   DT_STRING, "(|555) 123", "{Left}",                     "|(555) 123", 0},
    {"RightPassesAnEscapedLiteral",           "##~X##",      DT_STRING, "1|2X34",     "{Right}",                    "12X|34",     0},
    {"RightStopsAtTheAmPmField",              "HH:MM AM/PM", DT_TIME,   "02:3|0 PM",  "{Right}",                    "02:30 |PM",  0},
    {"LeftStopsAtTheAmPmField",               "HH:MM AM/PM", DT_TIME,   "02:30 P|M",  "{Left}",                     "02:30 |PM",  0},
    {"ShiftAndRightExtendTheSelection",       "MM/DD/YY",    DT_DATE,   "0|7/04/95",  "{Shift+Right}{Shift+Right}", "0[7/]04/95", 0},
    {"ShiftAndLeftExtendTheSelection",        "MM/DD/YY",    DT_DATE,   "07/|04/95",  "{Shift+Left}",               "07[/]04/95", 0},
    {"HomeGoesToTheStart",                    "MM/DD/YY",    DT_DATE,   "07/|04/95",  "{Home}",                     "|07/04/95",  0},
    {"HomeMayStandOnALiteral",                "(###) ###",   DT_STRING, "(555) |123", "{Home}",                     "|(555) 123", 0},
    {"EndGoesToTheEnd",                       "MM/DD/YY",    DT_DATE,   "07/|04/95",  "{End}",                      "07/04/95|",  0},
    {"ShiftAndEndSelectTheRest",              "MM/DD/YY",    DT_DATE,   "07/|04/95",  "{Shift+End}",                "07/[04/95]", 0},
    {"InsertDoesNothing",                     "MM/DD/YY",    DT_DATE,   "07/|04/95",  "{Ins}",                      "07/|04/95",  0},
    {"NumbersAreWalkedFreelyRight",           "#,##0.00",    DT_NUMBER, "1|,234.50",  "{Right}",                    "1,|234.50",  0},
    {"NumbersAreWalkedFreelyLeft",            "#,##0.00",    DT_NUMBER, "1,234.|50",  "{Left}",                     "1,234|.50",  0},
    {"NumbersOfZeroesAreWalkedByPosition",    "000.00",      DT_NUMBER, "12|3.45",    "{Right}",                    "123.|45",    0},
    {"RightOnTheLastOfANumber",               "#,##0.00",    DT_NUMBER, "123.4|5",    "{Right}",                    "123.45|",    0},
};

constexpr KeyCase kCharactersRows[] = {
    {"ADigitOverwritesItsPosition",                  "MM/DD/YY",    DT_DATE,   "text:|00/00/00",    "1",       "1|0/00/00",    0},
    {"TheCaretPassesALiteral",                       "MM/DD/YY",    DT_DATE,   "text:|00/00/00",    "07",      "07/|00/00",    0},
    {"APaddedDigitFillsItsField",                    "MM/DD/YY",    DT_DATE,   "text:|00/00/00",    "7",       "07/|00/00",    0},
    {"TheLastPositionLeavesTheCaretAtTheEnd",        "MM/DD/YY",    DT_DATE,   "07/04/9|0",         "5",       "07/04/95|",    0},
    {"AWholeDateFillsTheField",                      "MM/DD/YY",    DT_DATE,   "text:|00/00/00",    "070495",  "07/04/95|",    0},
    {"BehindTheEndACharacterIsDroppedSilently",      "MM/DD/YY",    DT_DATE,   "07/04/95|",         "1",       "07/04/95|",    0},
    {"ARefusedLetterBeeps",                          "MM/DD/YY",    DT_DATE,   "|07/04/95",         "x",       "|07/04/95",    1},
    {"OnALiteralADigitBeeps",                        "MM/DD/YY",    DT_DATE,   "07|/04/95",         "1",       "07|/04/95",    1},
    {"OnALiteralTheLiteralBeeps",                    "MM/DD/YY",    DT_DATE,   "07|/04/95",         "/",       "07|/04/95",    1},

    {"ASeparatorPadsASingleDigit",                   "MM/DD/YY",    DT_DATE,   "text:|00/00/00",    "1/",      "01/|00/00",    0},
    {"ASeparatorPadsASingleDayDigit",                "MM/DD/YY",    DT_DATE,   "text:01/|00/00",    "2/",      "01/02/|00",    0},
    {"ASeparatorPadsInAYearFirstMask",               "YYYY-MM-DD",  DT_DATE,   "text:1995-|00-00",  "1-",      "1995-01-|00",  0},
    {"ASeparatorPadsUnderAnotherSeparator",          "DD.MM.YY",    DT_DATE,   "text:|00.00.00",    "2.",      "02.|00.00",    0},
    {"ASeparatorPadsUnderAKeyword",                  "[date]",      DT_DATE,   "text:|00/00/0000",  "2/",      "02/|00/0000",  0},
    {"ASeparatorPadsBehindALiteral",                 "on MM/DD/YY", DT_DATE,   "text:on |00/00/00", "1/",      "on 01/|00/00", 0},
    {"ASeparatorPadsAnHour",                         "HH:MM",       DT_TIME,   "|00:00",            "1:",      "01:|00",       0},
    {"ASeparatorPadsAMinute",                        "HH:MM:SS",    DT_TIME,   "00:|00:00",         "5:",      "00:05:|00",    0},
    {"ASeparatorAtTheStartOfAFieldGoesToTheNextOne", "MM/DD/YY",    DT_DATE,   "|07/04/95",         "/",       "07/|04/95",    0},
    {"ASeparatorAfterItWasPassedIsTakenAsTyped",     "MM/DD/YY",    DT_DATE,   "text:|00/00/00",    "7/4/95",  "07/04/95|",    0},
    {"ASeparatorTypedTwiceGoesOnToTheNextOne",       "MM/DD/YY",    DT_DATE,   "07/|04/95",         "/",       "07/04/|95",    0},
    {"ASeparatorAfterAPaddedFieldTypedTwiceGoesOn",  "MM/DD/YY",    DT_DATE,   "text:|00/00/00",    "7//",     "07/00/|00",    0},
    {"ADigitThatRecursInALaterFieldIsNoSeparator",   "MM/DD/YY",    DT_DATE,   "1|0/03/95",         "3",       "1|0/03/95",    1},
    {"ASeparatorOfAnotherKindBeeps",                 "MM/DD/YY",    DT_DATE,   "|07/04/95",         "-",       "|07/04/95",    1},
    {"AnEscapedLiteralIsNotSkippedTo",               "##~-##",      DT_STRING, "text:|  -  ",       "1-",      "1| -  ",       1},
    {"AnUnescapedLiteralIsSkippedTo",                "##-##",       DT_STRING, "text:|  -  ",       "1-",      "1 -|  ",       0},
    {"ALiteralOfSeveralIsSkippedWithTheRest",        "(###) ###",   DT_STRING, "text:(|   )    ",   "5)",      "(5  ) |   ",   0},

    {"AMonthBehindALetterHIsAMonth",                 "OHIO MM/DD/YY", DT_DATE, "text:OHIO |00/00/00", "45",     "OHIO 04/05/|00", 0},
    {"MonthThirteenBehindALetterHIsRefused",         "OHIO MM/DD/YY", DT_DATE, "text:OHIO |00/00/00", "13",     "OHIO 1|0/00/00", 1},
    {"MonthFortyFiveBehindALetterHIsRefused",        "OHIO MM/DD/YY", DT_DATE, "text:OHIO 1|0/00/00", "5",      "OHIO 1|0/00/00", 1},

    {"BeforeTheFirstFieldTheCharacterGoesThere",     "(###) ###",   DT_STRING, "|(555) 123",        "7",       "(7|55) 123",   0},
    {"BeforeTheFirstFieldARefusedCharacterBeeps",    "(###) ###",   DT_STRING, "|(555) 123",        "x",       "(|555) 123",   1},

    {"ASelectionIsClearedFirst",                     "MM/DD/YY",    DT_DATE,   "[07]/04/95",        "1",       "1|0/04/95",    0},
    {"AWholeSelectionIsClearedToTheBlank",           "MM/DD/YY",    DT_DATE,   "[07/04/95]",        "1",       "1|0/00/00",    0},
    {"ASelectedLiteralStands",                       "MM/DD/YY",    DT_DATE,   "07[/0]4/95",        "1",       "07|/04/95",    1},
    {"ASelectionInAStringIsBlanked",                 "##-##",       DT_STRING, "[12-3]4",           "5",       "5| - 4",       0},

    {"PmLetterFromTheHour",                          "HH:MM AM/PM", DT_TIME,   "|02:30 AM",         "P",       "02:30 PM|",    0},
    {"AmLetterFromTheHour",                          "HH:MM AM/PM", DT_TIME,   "|02:30 PM",         "A",       "02:30 AM|",    0},
    {"PmLetterFromTheMinute",                        "HH:MM AM/PM", DT_TIME,   "02:3|0 AM",         "P",       "02:30 PM|",    0},
    {"PmLetterInADateTime", "MM/DD/YY HH:MM AM/PM", DT_DATETIME, "|07/04/95 02:30 AM", "P", "07/04/95 02:30 PM|", 0},
    {"PmLetterInLowerCase",                          "HH:MM AM/PM", DT_TIME,   "|02:30 AM",         "p",       "02:30 PM|",    0},
    {"AmLetterInLowerCase",                          "HH:MM AM/PM", DT_TIME,   "|02:30 PM",         "a",       "02:30 AM|",    0},
    {"PmLetterOverASelection",                       "HH:MM AM/PM", DT_TIME,   "02:[30] AM",        "p",       "02:00 PM|",    0},
    {"PmLetterBehindTheEnd",                         "HH:MM AM/PM", DT_TIME,   "02:30 AM|",         "p",       "02:30 PM|",    0},
    {"PmLetterInAFieldBeforeTheHour",                "AM/PM HH:MM", DT_TIME,   "AM 02:3|0",         "p",       "PM |02:30",    0},
    {"ATimeInTheEvening",                            "HH:MM AM/PM", DT_TIME,   "|00:00 AM",         "9:30p",   "09:30 PM|",    0},
    {"AMonthNameTakesItsLetters",     "DD-MMM-YY HH:MM AM/PM", DT_DATETIME, "04-|JUL-95 02:30 PM", "a", "04-A|PR-95 02:30 PM", 0},
    {"AMonthNameTakesALetterInside",  "DD-MMM-YY HH:MM AM/PM", DT_DATETIME, "04-J|UL-95 02:30 PM", "a", "04-JA|N-95 02:30 PM", 0},
    {"AMonthNameLeavesOtherLetters",  "DD-MMM-YY HH:MM AM/PM", DT_DATETIME, "04-|JUL-95 02:30 AM", "p", "04-JUL-95 02:30 PM|", 0},
    {"BeforeTheFirstFieldTheMonthNameTakesALetter", "(MMM/YY HH:MM AM/PM", DT_DATETIME, "|(JUL/95 02:30 PM", "a", "(A|PR/95 02:30 PM", 0},
    {"AnyCharacterTakesALetter",                     "XHH:MM AM/PM", DT_TIME,  "| 02:30 AM",        "p",       "p|02:30 AM",   0},
    {"ACapitalPositionTakesALetter",                 "!HH:MM AM/PM", DT_TIME,  "| 02:30 AM",        "p",       "P|02:30 AM",   0},
    {"ASmallPositionTakesALetter",                   "^HH:MM AM/PM", DT_TIME,  "| 02:30 AM",        "P",       "p|02:30 AM",   0},
    {"ADigitOnTheAmPmFieldBeeps",                    "HH:MM AM/PM", DT_TIME,   "02:30 |AM",         "1",       "02:30 |AM",    1},
    {"ADigitInsideTheAmPmFieldBeeps",                "HH:MM AM/PM", DT_TIME,   "02:30 A|M",         "1",       "02:30 A|M",    1},
    {"TheCaretStopsAtTheAmPmField",                  "HH:MM AM/PM", DT_TIME,   "01:3|1 AM",         "0",       "01:30 |AM",    0},
    {"ATwelveHourTime",                              "HH:MM AM/PM", DT_TIME,   "|02:00 AM",         "1230P",   "12:30 PM|",    0},

    {"AStringWithoutLiteralsFillsUp",                "####",        DT_STRING, "|",                 "12",      "12|",          0},
    {"AStringWithoutLiteralsOverwrites",             "####",        DT_STRING, "1|234",             "9",       "19|34",        0},
    {"AStringWithoutAMaskInserts",                   "",            DT_STRING, "ab|c",              "xy",      "abxy|c",       0},

    {"ANewlineIsRefusedAnywhere",                    "XX",          DT_STRING, "|ab",               "{Enter}", "|ab",          1},
    {"AControlCharacterIsRefusedAnywhere",           "XX",          DT_STRING, "|ab",               "\x05",    "|ab",          1},
    {"TabIsSwallowed",                               "XX",          DT_STRING, "|ab",               "{Tab}",   "|ab",          0},
    {"EscapeIsSwallowed",                            "XX",          DT_STRING, "|ab",               "{Esc}",   "|ab",          0},
    {"ABlankIsACharacter",                           "XX",          DT_STRING, "|ab",               " ",       " |b",          0},
};

// Fields behind the AM/PM field stand further left than the mask writes them.
constexpr KeyCase kBehindAmPmRows[] = {
    {"TheHourIsTypedWhereItStands",      "AM/PM HH:MM",        DT_TIME,     "PM |02:30",           "1123",   "PM 11:23|",           0},
    {"AnHourIsPadded",                   "AM/PM HH:MM",        DT_TIME,     "PM |02:30",           "9",      "PM 09:|30",           0},
    {"ASeparatorPads",                   "AM/PM HH:MM",        DT_TIME,     "PM |02:30",           "1:",     "PM 01:|30",           0},
    {"AMinuteIsRefused",                 "AM/PM HH:MM",        DT_TIME,     "PM 1|2:30",           "3",      "PM 1|2:30",           1},
    {"TheMinuteBehindIsTyped",           "HH AM/PM:MM",        DT_TIME,     "0|2 PM:30",           "345",    "03 |PM:30",           2},
    {"TheLetterGoesOnToTheFieldBehind",  "HH AM/PM:MM",        DT_TIME,     "|02 AM:30",           "p45",    "02 PM:45|",           0},
    {"BackspaceBlanksADigitBehind",      "HH AM/PM:MM",        DT_TIME,     "02 PM:3|0",           "{Back}", "02 PM:|00",           0},
    {"DeleteBlanksADigitBehind",         "HH AM/PM:MM",        DT_TIME,     "02 PM:|30",           "{Del}",  "02 PM:|00",           0},
    {"ASelectionKeepsTheDesignator",     "HH AM/PM:MM",        DT_TIME,     "[02 PM:30]",          "{Del}",  "|00 PM:00",           0},
    {"RightGoesOnBehindIt",              "HH AM/PM:MM",        DT_TIME,     "02 |PM:30",           "{Right}", "02 PM:|30",          0},
    {"LeftComesBackToIt",                "HH AM/PM:MM",        DT_TIME,     "02 PM:|30",           "{Left}", "02 |PM:30",           0},
    {"BehindTheEndNothingIsTaken",       "HH AM/PM:MM",        DT_TIME,     "02 PM:30|",           "1",      "02 PM:30|",           0},
    {"TheMonthBehindLimitsTheDay",       "AM/PM MM/DD/YY HH:MM", DT_DATETIME, "PM 02/|04/95 02:30", "3",     "PM 02/03/|95 02:30",  0},
    {"TheYearBehindIsTyped",             "AM/PM MM/DD/YY HH:MM", DT_DATETIME, "PM 02/04/|95 02:30", "96",    "PM 02/04/96 |02:30",  0},
};

constexpr KeyCase kStringPositionsRows[] = {
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

constexpr KeyCase kMonthsRows[] = {
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

constexpr KeyCase kMonthNamesRows[] = {
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

constexpr KeyCase kDaysRows[] = {
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

constexpr KeyCase kDaysOfTheYearRows[] = {
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

constexpr KeyCase kYearsRows[] = {
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

constexpr KeyCase kTimesRows[] = {
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

constexpr KeyCase kSharedPositionsRows[] = {
    {"XInADateTakesAnything",           "X MM/DD/YY", DT_DATE, "text:|  07/04/95", "?", "? |07/04/95", 0},
    {"ExclamationInADateRaisesALetter", "! MM/DD/YY", DT_DATE, "text:|  07/04/95", "q", "Q |07/04/95", 0},
    {"CaretInATimeLowersALetter",       "^ HH:MM",    DT_TIME, "text:|  12:30",    "Q", "q |12:30",    0},
    {"LetterAInADateIsALiteral",        "A MM/DD/YY", DT_DATE, "|A 01/04/95",      "1", "A 1|1/04/95", 0},
    {"FractionLetterInADateIsALiteral", "MM/DD/YY F", DT_DATE, "07/04/9|5 F",      "6", "07/04/96| F", 0},
};

// A digit completed with a 0 behind it leaves the caret on that 0, so that the second digit can be typed.
constexpr KeyCase kCompletedFieldsRows[] = {
    {"AMonthOverAnotherOne",          "MM/DD/YY", DT_DATE, "|05/04/95", "12", "12/|04/95", 0},
    {"AMonthWithAZeroOverAnotherOne", "MM/DD/YY", DT_DATE, "|05/04/95", "03", "03/|04/95", 0},
    {"ADayOverAnotherOne",            "MM/DD/YY", DT_DATE, "02/|09/95", "28", "02/28/|95", 0},
};

constexpr KeyCase kDeletionsRows[] = {
    {"BackspaceOnALiteralStepsOntoIt",            "MM/DD/YY",    DT_DATE,   "07/|04/95",    "{Back}",       "07|/04/95",    0},
    {"BackspaceRestoresTheBlank",                 "MM/DD/YY",    DT_DATE,   "07|/04/95",    "{Back}",       "0|0/04/95",    0},
    {"BackspaceAtTheEnd",                         "MM/DD/YY",    DT_DATE,   "07/04/95|",    "{Back}",       "07/04/9|0",    0},
    {"BackspaceAtTheStartDoesNothing",            "MM/DD/YY",    DT_DATE,   "|07/04/95",    "{Back}",       "|07/04/95",    0},
    {"BackspaceThroughTheWholeDate", "MM/DD/YY", DT_DATE, "07/04/95|", "{Back}{Back}{Back}{Back}{Back}{Back}{Back}{Back}", "|00/00/00", 0},
    {"BackspaceOnASelectionBlanksIt",             "MM/DD/YY",    DT_DATE,   "[07/0]4/95",   "{Back}",       "|00/04/95",    0},
    {"BackspaceOnTheWholeText",                   "MM/DD/YY",    DT_DATE,   "[07/04/95]",   "{Back}",       "|00/00/00",    0},
    {"BackspaceOnAStringDigit",                   "##-##",       DT_STRING, "12-3|4",       "{Back}",       "12-| 4",       0},
    {"BackspaceOnAMonthName",                     "DD-MMM-YYYY", DT_DATE,   "04-J|UL-1995", "{Back}",       "04-| UL-1995", 0},
    {"BackspaceOnAnAmPmLetterLeavesIt",           "HH:MM AM/PM", DT_TIME,   "02:30 P|M",    "{Back}",       "02:30 |PM",    0},
    {"BackspaceTwiceOnTheAmPmFieldLeavesIt",      "HH:MM AM/PM", DT_TIME,   "02:30 PM|",    "{Back}{Back}", "02:30 |PM",    0},
    {"DeleteWritesAZeroInADate",                  "MM/DD/YY",    DT_DATE,   "0|7/04/95",    "{Del}",        "0|0/04/95",    0},
    {"DeleteWritesABlankInAString",               "##-##",       DT_STRING, "|12-34",       "{Del}",        "| 2-34",       0},
    {"DeleteLeavesTheCaret",                      "MM/DD/YY",    DT_DATE,   "07/04/|95",    "{Del}{Del}",   "07/04/|05",    0},
    {"DeleteOnALiteralDoesNothing",               "MM/DD/YY",    DT_DATE,   "07|/04/95",    "{Del}",        "07|/04/95",    0},
    {"DeleteAtTheEndDoesNothing",                 "MM/DD/YY",    DT_DATE,   "07/04/95|",    "{Del}",        "07/04/95|",    0},
    {"DeleteOnASelectionBlanksIt",                "MM/DD/YY",    DT_DATE,   "07/[04/9]5",   "{Del}",        "07/|00/05",    0},
    {"DeleteOnTheAmPmFieldDoesNothing",           "HH:MM AM/PM", DT_TIME,   "02:30 |PM",    "{Del}",        "02:30 |PM",    0},
    {"DeleteInsideTheAmPmFieldDoesNothing",       "HH:MM AM/PM", DT_TIME,   "02:30 P|M",    "{Del}",        "02:30 P|M",    0},
    {"DeleteOnAnEscapedLiteralDoesNothing",       "##~X##",      DT_STRING, "12|X34",       "{Del}",        "12|X34",       0},
    {"BackspaceOverAnEscapedLiteralKeepsIt",      "##~X##",      DT_STRING, "12X|34",       "{Back}",       "12|X34",       0},
    {"TypingAfterABackspaceGoesOn",               "MM/DD/YY",    DT_DATE,   "07/04/95|",    "{Back}6",      "07/04/96|",    0},

    {"BackspaceShiftsAStringWithoutLiterals",     "####",        DT_STRING, "12|34",        "{Back}",       "1|34",         0},
    {"DeleteShiftsAStringWithoutLiterals",        "####",        DT_STRING, "12|34",        "{Del}",        "12|4",         0},
    {"BackspaceRemovesASelectionWithoutLiterals", "####",        DT_STRING, "1[23]4",       "{Back}",       "1|4",          0},
    {"DeleteRemovesASelectionWithoutLiterals",    "####",        DT_STRING, "1[23]4",       "{Del}",        "1|4",          0},
    {"BackspaceInAStringWithoutAMask",            "",            DT_STRING, "ab|c",         "{Back}",       "a|c",          0},
    {"DeleteInAStringWithoutAMask",               "",            DT_STRING, "ab|c",         "{Del}",        "ab|",          0},
};

constexpr KeyCase kNumberDeletionsRows[] = {
    {"BackspaceRemovesADigit",                         "#,##0.00",      DT_NUMBER,  "123|.00",   "{Back}",       "12|.00",    0},
    {"BackspaceBeforeThePointRemovesTheDigit",         "#,##0.00",      DT_NUMBER,  "1,234|.00", "{Back}",       "123|.00",   0},
    {"BackspaceOnTheLastFractionDigit",                "#,##0.00",      DT_NUMBER,  "1,234.56|", "{Back}",       "1,234.5|0", 0},
    {"BackspaceOnBothFractionDigits",                  "#,##0.00",      DT_NUMBER,  "1,234.56|", "{Back}{Back}", "1,234.|00", 0},
    {"BackspaceBehindThePointRemovesTheDigitBeforeIt", "#,#.00",        DT_NUMBER,  "12.|50",    "{Back}",       "1|.50",     0},
    {"BackspaceAtTheStartDoesNothing",                 "#,##0.00",      DT_NUMBER,  "|123.00",   "{Back}",       "|123.00",   0},
    {"BackspaceBehindAThousandsCharacter",             "#,###.00",      DT_NUMBER,  "1,|234.00", "{Back}",       "|234.00",   0},
    {"BackspaceOnASelection",                          "#,##0.00",      DT_NUMBER,  "1[2]3.00",  "{Back}",       "1|3.00",    0},
    {"BackspaceOnTheWholeNumber",                      "#,##0.00",      DT_NUMBER,  "[123.45]",  "{Back}",       "|0.00",     0},
    {"BackspaceOnTheWholeNumberWithoutZero",           "#,#.00",        DT_NUMBER,  "[123.45]",  "{Back}",       "|.00",      0},
    {"DeleteRemovesADigit",                            "#,##0.00",      DT_NUMBER,  "|123.00",   "{Del}",        "|23.00",    0},
    {"DeleteRelaysTheThousands",                       "#,##0.00",      DT_NUMBER,  "|1,234.00", "{Del}",        "|234.00",   0},
    {"DeleteOnThePointDoesNothing",                    "#,##0.00",      DT_NUMBER,  "123|.45",   "{Del}",        "123|.45",   0},
    {"DeleteOnAThousandsCharacterDoesNothing",         "#,##0.00",      DT_NUMBER,  "1|,234.00", "{Del}",        "1|,234.00", 0},
    {"DeleteInTheFraction",                            "#,##0.00",      DT_NUMBER,  "12.|50",    "{Del}",        "12.|00",    0},
    {"DeleteAtTheEndDoesNothing",                      "#,##0.00",      DT_NUMBER,  "12.50|",    "{Del}",        "12.50|",    0},
    {"DeleteOnASelection",                             "#,##0.00",      DT_NUMBER,  "1[2]3.00",  "{Del}",        "1|3.00",    0},
    {"DeleteOnTheWholeNumber",                         "#,##0.00",      DT_NUMBER,  "[123.45]",  "{Del}",        "|0.00",     0},
    {"DeleteTheSign",                                  "#,##0.00",      DT_NUMBER,  "|-123.45",  "{Del}",        "|123.45",   0},
    {"DeleteOnTheCurrencySymbolDoesNothing",           "[currency(9)]", DT_NUMBER,  "|$123.45",  "{Del}",        "|$123.45",  0},
    {"DeleteOnThePercentSignDoesNothing",              "#,##0.00%",     DT_NUMBER,  "12.50|%",   "{Del}",        "12.50|%",   0},
    {"BackspaceInAPercentage",                         "#,##0.00%",     DT_NUMBER,  "12|.50%",   "{Back}",       "1|.50%",    0},
    {"DeleteInAPercentage",                            "#,##0.00%",     DT_NUMBER,  "|12.50%",   "{Del}",        "|2.50%",    0},
    {"BackspaceInADecimal",                            "#,##0.00",      DT_DECIMAL, "123|.00",   "{Back}",       "12|.00",    0},
    {"DeleteInADecimal",                               "#,##0.00",      DT_DECIMAL, "|123.00",   "{Del}",        "|23.00",    0},
    {"TypingAfterABackspaceGoesOn",                    "#,##0.00",      DT_NUMBER,  "123|.00",   "{Back}9",      "129|.00",   0},
};

constexpr KeyCase kNumbersRows[] = {
    {"OneDigitIntoAnEmptyNumber",                      "#,#.00",        DT_NUMBER,  "|.00",      "1",          "1|.00",         0},
    {"TwoDigitsIntoAnEmptyNumber",                     "#,#.00",        DT_NUMBER,  "|.00",      "12",         "12|.00",        0},
    {"AFilledIntegerPartLeadsBehindThePoint",          "#,#.00",        DT_NUMBER,  "|.00",      "123",        "123.|00",       0},
    {"ThePointAfterItWasPassedIsTakenAsTyped",         "#,#.00",        DT_NUMBER,  "|.00",      "123.",       "123.|00",       0},
    {"AnAmountAsItIsRead",                             "#,#.00",        DT_NUMBER,  "|.00",      "123.45",     "123.45|",       0},
    {"AnAmountWithoutItsPoint",                        "#,#.00",        DT_NUMBER,  "|.00",      "12345",      "123.45|",       0},
    {"ThePointTypedEarly",                             "#,#.00",        DT_NUMBER,  "|.00",      "1.5",        "1.5|0",         0},
    {"ThousandsAreGroupedWhileTyping",                 "#,###,###.00",  DT_NUMBER,  "|.00",      "1234",       "1,234|.00",     0},
    {"MillionsAreGroupedWhileTyping",                  "#,###,###.00",  DT_NUMBER,  "|.00",      "123456.78",  "123,456.78|",   0},
    {"TheWholeMaskFills",                              "#,###,###.00",  DT_NUMBER,  "|.00",      "1234567.89", "1,234,567.89|", 0},
    {"ADigitInTheMiddleIsInserted",                    "#,###,###.00",  DT_NUMBER,  "1|2.00",    "9",          "19|2.00",       0},
    {"ADigitInTheFractionOverwrites",                  "#,##0.00",      DT_NUMBER,  "12.|50",    "7",          "12.7|0",        0},
    {"TheLastFractionDigitOverwrites",                 "#,##0.00",      DT_NUMBER,  "12.7|0",    "5",          "12.75|",        0},
    {"BehindTheFractionADigitIsDropped",               "#,##0.00",      DT_NUMBER,  "123.00|",   "5",          "123.00|",       0},
    {"ThePointInTheIntegerPartDropsTheDigitsBehindIt", "#,##0.00",      DT_NUMBER,  "1|23.45",   ".",          "1.|45",         0},
    {"ThePointOnThePointStepsOverIt",                  "#,##0.00",      DT_NUMBER,  "123|.45",   ".",          "123.|45",       0},
    {"ThePointInTheFractionBeeps",                     "#,##0.00",      DT_NUMBER,  "123.4|5",   ".",          "123.4|5",       1},
    {"ThePointInAWholeNumberBeeps",                    "#,###",         DT_NUMBER,  "1|23",      ".",          "1|23",          1},
    {"ALetterBeeps",                                   "#,##0.00",      DT_NUMBER,  "12|3.00",   "x",          "12|3.00",       1},
    {"ALetterInTheFractionBeeps",                      "#,##0.00",      DT_NUMBER,  "123.4|5",   "x",          "123.4|5",       1},
    {"ASignAtTheFrontIsTaken",                         "#,##0.00",      DT_NUMBER,  "|123.00",   "-",          "-|123.00",      0},
    {"ASignElsewhereBeeps",                            "#,##0.00",      DT_NUMBER,  "1|23.00",   "-",          "1|23.00",       1},
    {"ASecondSignReplacesTheFirst",                    "#,##0.00",      DT_NUMBER,  "|-123.00",  "-",          "-|123.00",      0},
    {"ASignBeforeZero",                                "#,#.00",        DT_NUMBER,  "|.00",      "-5",         "-5|.00",        0},
    {"ANegativeAmount",                                "#,##0.00",      DT_NUMBER,  "[0.00]",    "-12.50",     "-12.50|",       0},

    {"TypingOverTheWholeNumber",                       "#,##0.00",      DT_NUMBER,  "[123.45]",  "53",         "53|.00",        0},
    {"TypingOverTheWholeNumberWithoutZero",            "#,#.00",        DT_NUMBER,  "[123.45]",  "53",         "53|.00",        0},
    {"TypingOverTheWholeNumberWithAFraction",          "#,##0.00",      DT_NUMBER,  "[123.45]",  "5.25",       "5.25|",         0},
    {"TypingOverOneDigit",                             "#,##0.00",      DT_NUMBER,  "1[2]3.45",  "7",          "17|3.45",       0},
    {"TypingOverTheFraction",                          "#,##0.00",      DT_NUMBER,  "12.[50]",   "75",         "12.75|",        0},
    {"TypingAfterEmptying",                            "#,##0.00",      DT_NUMBER,  "[123.45]",  "{Del}53",    "53|.00",        0},

    {"ZeroMaskOverwrites",                             "000",           DT_NUMBER,  "|000",      "5",          "5|00",          0},
    {"ZeroMaskFills",                                  "000",           DT_NUMBER,  "|000",      "123",        "123|",          0},
    {"ZeroMaskTakesASignAtTheFront",                   "000",           DT_NUMBER,  "|000",      "-",          "-|000",         0},
    {"ZeroMaskWithFraction",                           "0.00",          DT_NUMBER,  "|0.00",     "5.25",       "5.25|",         0},
    {"ThePointOfAZeroMaskIsNotOverwritten",            "00.00",         DT_NUMBER,  "12|.34",    "5",          "12.5|4",        0},

    {"WholeNumber",                                    "####",          DT_NUMBER,  "|",         "1234",       "1234|",         0},
    {"WholeNumberFullDropsSilently",                   "####",          DT_NUMBER,  "|",         "12345",      "1234|",         0},

    {"PercentFraction",                                "#,##0.00%",     DT_NUMBER,  "12.|50%",   "7",          "12.7|0%",       0},
    {"PercentIntegerPart",                             "#,##0.00%",     DT_NUMBER,  "1|.50%",    "2",          "12|.50%",       0},
    {"PercentOverTheWhole",                            "#,##0.00%",     DT_NUMBER,  "[12.50%]",  "53",         "53|.00%",       0},
    {"PercentOverTheWholeWithAFraction",               "#,##0.00%",     DT_NUMBER,  "[12.50%]",  "7.25",       "7.25|%",        0},

    {"CurrencyFromTheFront",                           "[currency(9)]", DT_NUMBER,  "|$.00",     "5",          "$5|.00",        0},
    {"CurrencyBehindTheSymbol",                        "[currency(9)]", DT_NUMBER,  "$|.00",     "1234.5",     "$1,234.5|0",    0},
    {"CurrencyOverTheWhole",                           "[currency(9)]", DT_NUMBER,  "[$123.45]", "53",         "$53|.00",       0},
    {"CurrencySign",                                   "[currency(9)]", DT_NUMBER,  "$|5.00",    "-",          "$-|5.00",       0},

    {"DecimalAmount",                                  "#,#.00",        DT_DECIMAL, "|.00",      "123.45",     "123.45|",       0},
    {"DecimalOverTheWhole",                            "#,##0.00",      DT_DECIMAL, "[123.45]",  "53",         "53|.00",        0},
    {"DecimalPercent",                                 "#,##0.00%",     DT_DECIMAL, "12.|50%",   "7",          "12.7|0%",       0},
    {"DecimalGrouping",                                "#,###,###.00",  DT_DECIMAL, "|.00",      "123456.78",  "123,456.78|",   0},
};

// The same under other settings. The mask "" stands for the default "#,#.00".
constexpr KeyCase kGermanNumbersRows[] = {
    {"AnAmountAsItIsRead",            "",              DT_NUMBER,  "|,00",          "123,45",    "123,45|",        0},
    {"APointBeeps",                   "",              DT_NUMBER,  "|,00",          "1.",        "1|,00",          1},
    {"TypingOverTheWhole",            "",              DT_NUMBER,  "[123,45]",      "53",        "53|,00",         0},
    {"ADigitInTheFractionOverwrites", "",              DT_NUMBER,  "12,|50",        "7",         "12,7|0",         0},
    {"TheCommaInTheIntegerPart",      "",              DT_NUMBER,  "1|2,45",        ",",         "1,|45",          0},
    {"TheCommaOnTheComma",            "",              DT_NUMBER,  "12|,45",        ",",         "12,|45",         0},
    {"BackspaceInTheIntegerPart",     "",              DT_NUMBER,  "12|,45",        "{Back}",    "1|,45",          0},
    {"DeleteOnTheComma",              "",              DT_NUMBER,  "12|,45",        "{Del}",     "12|,45",         0},
    {"DeleteKeepsTheFraction",        "",              DT_NUMBER,  "|12,45",        "{Del}",     "|2,45",          0},
    {"CurrencyWithTheSymbolBehind",   "[currency(9)]", DT_NUMBER,  "|,00EUR",       "1234,5",    "1.234,5|0EUR",   0},
    {"CurrencyOverTheWhole",          "[currency(9)]", DT_NUMBER,  "[1.234,50EUR]", "53",        "53|,00EUR",      0},
    {"DeleteOnTheSymbol",             "[currency(9)]", DT_NUMBER,  "5,00|EUR",      "{Del}",     "5,00|EUR",       0},
    {"DecimalAmount",                 "",              DT_DECIMAL, "|,00",          "123,45",    "123,45|",        0},
    {"DecimalGroups",                 "[currency(9)]", DT_DECIMAL, "|,00EUR",       "123456,78", "123.456,78|EUR", 0},
};

constexpr KeyCase kFrenchNumbersRows[] = {
    {"AnAmountAsItIsRead",          "",              DT_NUMBER,  "|,00",        "123,45",    "123,45|",      0},
    {"TypingOverTheWhole",          "",              DT_NUMBER,  "[123,45]",    "53",        "53|,00",       0},
    {"CurrencyWithTheSymbolBehind", "[currency(9)]", DT_NUMBER,  "|,00F",       "1234,5",    "1 234,5|0F",   0},
    {"CurrencyOverTheWhole",        "[currency(9)]", DT_NUMBER,  "[1 234,50F]", "53",        "53|,00F",      0},
    {"DeleteOnTheThousandsBlank",   "[currency(9)]", DT_NUMBER,  "1| 234,50F",  "{Del}",     "1| 234,50F",   0},
    {"DeleteTheFirstDigit",         "[currency(9)]", DT_NUMBER,  "|1 234,50F",  "{Del}",     "|234,50F",     0},
    {"DecimalGroups",               "[currency(9)]", DT_DECIMAL, "|,00F",       "123456,78", "123 456,78|F", 0},
};

constexpr KeyCase kSwissNumbersRows[] = {
    {"CurrencyWithThreeLettersBefore", "[currency(9)]", DT_NUMBER,  "CHF|.00",     "1234.5",    "CHF1'234.5|0",   0},
    {"CurrencyFromTheFront",           "[currency(9)]", DT_NUMBER,  "|CHF.00",     "5",         "CHF5|.00",       0},
    {"CurrencyOverTheWhole",           "[currency(9)]", DT_NUMBER,  "[CHF123.45]", "53",        "CHF53|.00",      0},
    {"BackspaceKeepsTheSymbol",        "[currency(9)]", DT_NUMBER,  "CHF|123.45",  "{Back}",    "CHF|123.45",     0},
    {"DecimalGroups",                  "[currency(9)]", DT_DECIMAL, "CHF|.00",     "123456.78", "CHF123'456.78|", 0},
};

constexpr KeyCase kNumberLawRows[] = {
    // Masks of '0' alone are filled from their first position.
    {"FourDigitsOverFour",                     "0000",         DT_NUMBER,  "[1234]",         "5678",            "5678|",          0},
    {"AnAmountOverForcedZeros",                "00.00",        DT_NUMBER,  "[12.34]",        "56.78",           "56.78|",         0},
    {"FewerDigitsAndThePoint",                 "00.00",        DT_NUMBER,  "[12.34]",        "6.78",            "06.78|",         0},
    {"ThePointFirst",                          "00.00",        DT_NUMBER,  "[12.34]",        ".5",              "00.5|0",         0},
    {"AForcedPercentage",                      "000.0%",       DT_NUMBER,  "[099.9%]",       "12.5",            "012.5|%",        0},
    {"AForcedPercentageOfWholes",              "000%",         DT_NUMBER,  "[099]%",         "125",             "125|%",          0},
    {"ASignTakesNoDigitsPlace",                "000",          DT_NUMBER,  "|123",           "-",               "-|123",          0},
    {"ASignAndAllDigits",                      "000",          DT_NUMBER,  "[123]",          "-456",            "-456|",          0},
    {"EmptiedByDelete",                        "0000",         DT_NUMBER,  "[1234]",         "{Del}5678",       "5678|",          0},
    {"EmptiedByBackspaces",                    "0000",         DT_NUMBER,  "1234|",          "{Back}{Back}{Back}{Back}5678", "5678|", 0},
    {"EmptiedByDeletes",                       "00.00",        DT_NUMBER,  "|12.00",         "{Del}{Del}56.78", "56.78|",         0},
    {"OneDigitOfAForcedNumber",                "0000",         DT_NUMBER,  "1[2]34",         "7",               "17|34",          0},
    {"TheLastDigitOfForcedZeros",              "000",          DT_NUMBER,  "00[0]",          "9",               "009|",           0},

    // The point.
    {"AHalfOverANumber",                       "#,##0.00",     DT_NUMBER,  "[1,234.56]",     ".5",              "0.5|0",          0},
    {"AHalfWithItsZero",                       "#,##0.00",     DT_NUMBER,  "[1,234.56]",     "0.5",             "0.5|0",          0},
    {"WhatStoodLeftOfADeletedPointStaysThere", "#,##0.00",     DT_NUMBER,  "13[.00]",        "{Del}",           "13|.00",         0},
    {"APointInFrontOfTheFraction",             ".00",          DT_NUMBER,  "|.00",           "0.5",             ".5|0",           0},
    {"TypedZerosOfAnOpenFractionStay",         "#.##",         DT_NUMBER,  "|.",             ".05",             ".05|",           0},
    {"ARefusedKeyDropsNoTypedZero",            "#.##",         DT_NUMBER,  "|.",             ".0x5",            ".05|",           1},
    {"APointBeforeTheSignTakesItAway",         "#,##0.00",     DT_NUMBER,  "|-3.80",         ".",               "0.|80",          0},
    {"APointBehindTheSignLeavesIt",            "#,##0.00",     DT_NUMBER,  "-|3.80",         ".",               "-0.|80",         0},
    {"ASecondPointBeeps",                      "#,##0.00",     DT_NUMBER,  "[5.00]",         "1.2.3",           "1.23|",          1},

    // The minus.
    {"MinusAHalf",                             "#,##0.00",     DT_NUMBER,  "[5.00]",         "-0.5",            "-0.5|0",         0},
    {"MinusAHalfWithoutItsZero",               "#,##0.00",     DT_NUMBER,  "[5.00]",         "-.5",             "-0.5|0",         0},
    {"MinusFiveHundredths",                    "#,##0.00",     DT_NUMBER,  "|0.00",          "-0.05",           "-0.05|",         0},
    {"MinusAHalfWhereZerosAreNotShown",        "#,#.00",       DT_NUMBER,  "|.00",           "-0.5",            "-.5|0",          0},
    {"MinusOverAnAmountOfMoney",               "[currency(9)]", DT_NUMBER, "[$12.00]",       "-5",              "$-5|.00",        0},
    {"MinusOverAnAmountWithASymbol",           "$#,##0.00",    DT_NUMBER,  "[$12.00]",       "-56",             "$-56|.00",       0},
    {"MinusOverWholeMoney",                    "$###",         DT_NUMBER,  "[$12]",          "-56",             "$-56|",          0},
    {"MinusFromTheFirstDigit",                 "$#,##0.00",    DT_NUMBER,  "$[12.00]",       "-56",             "$-56|.00",       0},
    {"ASignTakesNoRoom",                       "#,##0.00",     DT_NUMBER,  "[5.00]",         "-1234.56",        "-1,234.56|",     0},
    {"ASignAsItIsRead",                        "#,##0.00",     DT_NUMBER,  "[5.00]",         "-1,234.56",       "-1,234.56|",     1},
    {"ASignBeforeAFullNumber",                 "#,###.00",     DT_NUMBER,  "|1,234.56",      "-",               "-|1,234.56",     0},
    {"ASignIsStillThereAfterAWrongKey",        "#,##0.00",     DT_NUMBER,  "[5.00]",         "-x5",             "-5|.00",         1},
    {"APlusIsNotShown",                        "#,##0.00",     DT_NUMBER,  "[5.00]",         "+12",             "12|.00",         0},
    {"APlusInTheMiddleBeeps",                  "#,##0.00",     DT_NUMBER,  "1|2.00",         "+",               "1|2.00",         1},
    {"APlusTakesAMinusAway",                   "#,##0.00",     DT_NUMBER,  "|-12.00",        "+",               "|12.00",         0},
    {"BackspaceTakesTheSignOnlyAtIt",          "##0",          DT_NUMBER,  "-6|",            "{Back}5",         "-5|",            0},
    {"BackspaceAtTheSign",                     "##0",          DT_NUMBER,  "-|6",            "{Back}",          "|6",             0},

    // Zeros.
    {"AZeroFirst",                             "#,#.00",       DT_NUMBER,  "|.00",           "05",              "5|.00",          0},
    {"AZeroBeforeThreeDigits",                 "#,###,###.00", DT_NUMBER,  "|.00",           "0123",            "123|.00",        0},
    {"BeforeAZeroThatNobodyTyped",             "#,##0.00",     DT_NUMBER,  "|0.00",          "5",               "5|.00",          0},
    {"BehindAZeroThatNobodyTyped",             "#,##0.00",     DT_NUMBER,  "0|.00",          "5",               "5|.00",          0},
    {"AmongZerosThatNobodyTyped",              "#,#00.00",     DT_NUMBER,  "0|0.00",         "57",              "57|.00",         0},
    {"AfterSixBackspaces",                     "#,##0.00",     DT_NUMBER,  "45.00|",
     "{Back}{Back}{Back}{Back}{Back}{Back}12", "12|.00", 0},
    {"AfterTwoBackspaces",                     "##0",          DT_NUMBER,  "10|",            "{Back}{Back}25",  "25|",            0},
    {"AfterDelete",                            "#,##0.00",     DT_NUMBER,  "[123.45]",       "{Del}53",         "53|.00",         0},
    {"FromTheFirstDigitToTheEnd",              "$#,##0.00",    DT_NUMBER,  "$[12.00]",       "12",              "$12|.00",        0},

    // What stands around the number.
    {"AnAmountAsItIsShown",                    "$#,##0.00",    DT_NUMBER,  "[$12.00]",       "$1234.50",        "$1,234.50|",     0},
    {"TheSymbolOverAnEmptiedAmount",           "$#,##0.00",    DT_NUMBER,  "[$12.00]",       "{Del}$5",         "$5|.00",         0},
    {"TheSymbolFromHome",                      "$#,##0.00",    DT_NUMBER,  "|$0.00",         "$5",              "$5|.00",         0},
    {"ASecondSymbolBeeps",                     "$#,##0.00",    DT_NUMBER,  "[$12.00]",       "$$5",             "$5|.00",         1},
    {"ASeparatorBeepsAndChangesNothing",       "$#,##0.00",    DT_NUMBER,  "[$12.00]",       "$1,234.50",       "$1,234.50|",     1},
    {"AnOptionalPercentage",                   "##0%",         DT_NUMBER,  "[12]%",          "125",             "125|%",          0},
    {"AnOptionalPercentageDeleted",            "##0%",         DT_NUMBER,  "[12]%",          "{Del}125",        "125|%",          0},
    {"APercentageThatShowsNoZero",             "###%",         DT_NUMBER,  "[12%]",          "125",             "125|%",          0},
    {"AZeroBeforeAPercentage",                 "###%",         DT_NUMBER,  "[12%]",          "056",             "56|%",           0},
    {"AZeroBeforeAShortPercentage",            "#%",           DT_NUMBER,  "[5%]",           "07",              "7|%",            0},
    {"ThePercentSignIsPassed",                 "##0%",         DT_NUMBER,  "[12%]",          "25%",             "25%|",           0},
    {"OverOneDigitOfAFraction",                "#,##0.00%",    DT_NUMBER,  "65.0[0]%",       "5",               "65.05|%",        0},
    {"OverTheFirstDigitOfAFraction",           "#,##0.00",     DT_NUMBER,  "12.[3]4",        "7",               "12.7|4",         0},

    // Wrong keys.
    {"AWrongKeyOverANumber",                   "#,##0.00",     DT_NUMBER,  "[1,234.50]",     "x12",             "12|.00",         1},
    {"AWrongKeyBetween",                       "#,##0.00",     DT_NUMBER,  "[1,234.50]",     "1x2",             "12|.00",         1},
    {"AWrongKeyAtASeparator",                  "#,##0.00",     DT_NUMBER,  "1|,234.00",      "x",               "1|,234.00",      1},

    // Backspace and separators.
    {"BackspaceBeforeThePoint",                "#,##0.00",     DT_NUMBER,  "1,234|.00",      "{Back}",          "123|.00",        0},
    {"BackspaceInTheFractionLeavesAZero",      "#,##0.00",     DT_NUMBER,  "12.5|6",         "{Back}",          "12.|06",         0},
    {"BackspaceInAnOpenFraction",              "#,##0.##",     DT_NUMBER,  "12.5|6",         "{Back}",          "12.|6",          0},
    {"BackspaceBehindThePercentSign",          "##0%",         DT_NUMBER,  "12%|",           "{Back}",          "1|%",            0},

    // Full.
    {"TheSeparatorIsNotOverwritten",           "#,###,###.00", DT_NUMBER,  "1|,234,567.89",  "9",               "1,9|34,567.89",  0},
    {"AFullNumberIsTypedOver",                 "#,#.00",       DT_NUMBER,  "|123.00",        "456",             "456.|00",        0},
    {"AFullNumberIsTypedOverWithAZero",        "#,#.00",       DT_NUMBER,  "|123.00",        "056",             "056.|00",        0},
    {"TwentyDigits",                           "####################", DT_NUMBER, "|",
     "12345678901234567890", "12345678901234567890|", 0},
    {"TwentyDigitsOfADecimal",                 "####################", DT_DECIMAL, "|",
     "12345678901234567890", "12345678901234567890|", 0},
    {"AFullPercentageBeeps",                   "##0%",         DT_NUMBER,  "125|%",          "6",               "125|%",          1},
};

constexpr KeyCase kCzechNumbersRows[] = {
    {"TypedAfterABackspace",         "[currency(7)]", DT_NUMBER,  "[567]Kc",      "56{Back}7",  "57|Kc",       0},
    {"TypedOverTheWhole",            "[currency(5)]", DT_NUMBER,  "[123]Kc",      "456",        "456|Kc",      0},
    {"NothingIsShownAsZero",         "[currency(5)]", DT_NUMBER,  "[123]Kc",      "{Del}",      "|0Kc",        0},
    {"TheSymbolBehindIsPassed",      "[currency(5)]", DT_NUMBER,  "[123Kc]",      "456Kc",      "456Kc|",      0},
    {"AZeroFirst",                   "[currency(8)]", DT_NUMBER,  "[123Kc]",      "056",        "56|Kc",       0},
    {"FullBeforeTheSymbolBeeps",     "[currency(3)]", DT_NUMBER,  "123|Kc",       "4",          "123|Kc",      1},
};

constexpr KeyCase kDanishNumbersRows[] = {
    {"ASymbolWithAPoint",            "[currency(9)]", DT_NUMBER,  "|kr.,00",      "1234,5",     "kr.1.234,5|0", 0},
    {"TypedAsItIsShown",             "[currency(9)]", DT_NUMBER,  "[kr.12,00]",   "kr.5,25",    "kr.5,25|",    0},
    {"TheMaskOfAForm",               "kr.#,##0",      DT_NUMBER,  "[kr.12]",      "kr.57",      "kr.57|",      0},
};

constexpr KeyCase kSwissFrancNumbersRows[] = {
    {"ASymbolWithThePoint",          "[currency(9)]", DT_NUMBER,  "|Fr..00",      "1234.5",     "Fr.1'234.5|0", 0},
    {"TypedAsItIsShown",             "[currency(9)]", DT_NUMBER,  "[Fr.12.00]",   "Fr.5.25",    "Fr.5.25|",    0},
    {"APointFirstBeginsTheFraction", "[currency(9)]", DT_NUMBER,  "[Fr.12.00]",   ".25",        "Fr..25|",     0},
};

constexpr KeyCase kMexicanNumbersRows[] = {
    {"LettersThatMasksRead",         "[currency(9)]", DT_NUMBER,  "[MXN12.00]",   "1234.5",     "MXN1,234.5|0", 0},
    {"TypedAsItIsShown",             "[currency(9)]", DT_DECIMAL, "[MXN12.00]",   "MXN5.25",    "MXN5.25|",    0},
    {"ASignBehindTheSymbol",         "[currency(9)]", DT_NUMBER,  "[MXN12.00]",   "-5",         "MXN-5|.00",   0},
};
// clang-format on

}  // namespace

const Rows kMoves = All(kMovesRows);
const Rows kCharacters = All(kCharactersRows);
const Rows kBehindAmPm = All(kBehindAmPmRows);
const Rows kStringPositions = All(kStringPositionsRows);
const Rows kMonths = All(kMonthsRows);
const Rows kMonthNames = All(kMonthNamesRows);
const Rows kDays = All(kDaysRows);
const Rows kDaysOfTheYear = All(kDaysOfTheYearRows);
const Rows kYears = All(kYearsRows);
const Rows kTimes = All(kTimesRows);
const Rows kSharedPositions = All(kSharedPositionsRows);
const Rows kCompletedFields = All(kCompletedFieldsRows);
const Rows kDeletions = All(kDeletionsRows);
const Rows kNumberDeletions = All(kNumberDeletionsRows);
const Rows kNumbers = All(kNumbersRows);
const Rows kGermanNumbers = All(kGermanNumbersRows);
const Rows kFrenchNumbers = All(kFrenchNumbersRows);
const Rows kSwissNumbers = All(kSwissNumbersRows);
const Rows kNumberLaw = All(kNumberLawRows);
const Rows kCzechNumbers = All(kCzechNumbersRows);
const Rows kDanishNumbers = All(kDanishNumbersRows);
const Rows kSwissFrancNumbers = All(kSwissFrancNumbersRows);
const Rows kMexicanNumbers = All(kMexicanNumbersRows);

}  // namespace zttest::classic
