// Typing into fields that are no numbers: what a character does to the text, the caret and the host.
#include <string>
#include <vector>

#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

// clang-format off
const KeyCase kSteps[] = {
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
// clang-format on

class CharEntry : public KeyTable {};

ROW_TEST(CharEntry, LeadsTo)
{
    Check(GetParam());
}

TEST_ROWS(Rows, CharEntry, kSteps);

// Fields behind the AM/PM field stand further left than the mask writes them.
// clang-format off
const KeyCase kBehindAmPm[] = {
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
// clang-format on

class BehindAmPm : public KeyTable {};

ROW_TEST(BehindAmPm, LeadsTo)
{
    Check(GetParam());
}

TEST_ROWS(Rows, BehindAmPm, kBehindAmPm);

// Other designators than AM and PM: given and shown are times under them.
struct DesignatorCase {
    const char* name;
    const char* am;
    const char* pm;
    const char* mask;
    const char* given;
    const char* keys;
    const char* shown;
    const char* value;
};
void PrintTo(const DesignatorCase& row, std::ostream* out)
{
    *out << row.keys << " over " << row.given << " under " << row.mask;
}

class Designators : public EditTest, public OfRow<DesignatorCase> {};

ROW_TEST(Designators, ArePlacedWhole)
{
    const DesignatorCase& row = GetParam();
    const Regional settings(With(kUnitedStates, {
                                                    {"s1159", row.am},
                                                    {"s2359", row.pm}
    }));
    Given(row.mask, DT_TIME, row.given);
    Play(row.keys);
    EXPECT_EQ(Shown(), row.shown);
    EXPECT_EQ(Value(), row.value);
    EXPECT_EQ(Beeps(), 0);
}

// clang-format off
const DesignatorCase kDesignators[] = {
    {"Vorm",                    "vorm.", "nachm.", "HH:MM AM/PM", "|09:30 vorm",  "n",      "09:30 nach|",  "21:30:00:000000"},
    {"Nachm",                   "vorm.", "nachm.", "HH:MM AM/PM", "09:3|0 nach",  "V",      "09:30 vorm|",  "09:30:00:000000"},
    {"NachmBeforeTheHour",      "vorm.", "nachm.", "AM/PM HH:MM", "vorm |09:30",  "N",      "nach |09:30",  "21:30:00:000000"},
    {"TypedBehindNachm",        "vorm.", "nachm.", "AM/PM HH:MM", "nach |11:30",  "1245",   "nach 12:45|",  "12:45:00:000000"},
    {"WithPoints",              "a.m.",  "p.m.",   "HH:MM AM/PM", "|09:30 a.m.",  "9:45p",  "09:45 p.m.|",  "21:45:00:000000"},
    {"PointsInTheMiddle",       "a.m.",  "p.m.",   "HH AM/PM:MM", "|09 a.m.:30",  "p",      "09 p.m.:|30",  "21:30:00:000000"},
    {"AlikeIsExchanged",        "de.",   "du.",    "HH:MM AM/PM", "|09:30 de.",   "d",      "09:30 du.|",   "21:30:00:000000"},
    {"AlikeIsExchangedBack",    "de.",   "du.",    "HH:MM AM/PM", "|09:30 du.",   "D",      "09:30 de.|",   "09:30:00:000000"},
    {"AlikeTwiceIsAsBefore",    "de.",   "du.",    "HH:MM AM/PM", "|09:30 de.",   "dd",     "09:30 de.|",   "09:30:00:000000"},
    {"LongerBehind",            "AM",    "EVE",    "HH:MM AM/PM", "|09:30 AM",    "e",      "09:30 EVE|",   "21:30:00:000000"},
    {"LongerInTheMiddle",       "AM",    "EVE",    "HH AM/PM:MM", "|09 AM:30",    "e45",    "09 EVE:45|",   "21:45:00:000000"},
    {"ShorterInTheMiddle",      "AM",    "EVE",    "HH AM/PM:MM", "|09 EVE:30",   "a45",    "09 AM:45|",    "09:45:00:000000"},
    {"OneBeginsWithTheOther",   "A",     "AB",     "HH AM/PM:MM", "|09 AB:30",    "a15",    "09 A:15|",     "09:15:00:000000"},
    {"TheOtherBeginsWithOne",   "AB",    "A",      "HH AM/PM:MM", "10 AB:|30",    "15",     "10 AB:15|",    "10:15:00:000000"},
    {"DeletedAroundTheLonger",  "AM",    "EVE",    "HH AM/PM:MM", "[09 EVE:30]",  "{Del}",  "|00 EVE:00",   "12:00:00:000000"},
};
// clang-format on

TEST_ROWS(Rows, Designators, kDesignators);

// A display that was laid out under other settings keeps its fields where they are.
TEST_F(EditTest, FieldsStayWhenTheDesignatorsChange)
{
    Given("HH AM/PM:MM", DT_TIME, "09 AM:|30");
    const Regional settings(With(kUnitedStates, {
                                                    {"s1159", "vorm"},
                                                    {"s2359", "nach"}
    }));
    Type("45");
    EXPECT_EQ(Shown(), "09 AM:45|");
    Type("n");
    EXPECT_EQ(Shown(), "09 nach:|45");
}

// Whoever has carried the caret over a literal may type it, until the program puts a text or the caret there.
class CarriedOver : public EditTest {
protected:
    void SetUp() override
    {
        Given("HH:MM:SS", DT_TIME, "|00:00:00");
        Type("07");
        ASSERT_EQ(Shown(), "07:|00:00");
    }
};

TEST_F(CarriedOver, TheLiteralIsTakenAsTyped)
{
    Type(":");
    EXPECT_EQ(Shown(), "07:|00:00");
}

TEST_F(CarriedOver, AnotherLiteralSkipsAheadOnceTheProgramHasPutTheCaretThere)
{
    control_->Select(3, 3);
    Type(":");
    EXPECT_EQ(Shown(), "07:00:|00");
}

TEST_F(CarriedOver, SoItDoesWhenTheCaretWasElsewhereMeanwhile)
{
    control_->Select(0, 0);
    control_->Select(3, 3);
    Type(":");
    EXPECT_EQ(Shown(), "07:00:|00");
}

TEST_F(CarriedOver, SoItDoesOnceTheProgramHasSetTheText)
{
    control_->SetText("08:30:00");
    control_->Select(3, 3);
    Type(":");
    EXPECT_EQ(Shown(), "08:30:|00");
}

TEST_F(CarriedOver, SoItDoesOnceTheProgramHasReplacedText)
{
    control_->Replace("");
    Type(":");
    EXPECT_EQ(Shown(), "07:00:|00");
}

TEST_F(CarriedOver, SoItDoesOnceAllIsSelectedByCtrlA)
{
    Play("{Ctrl+A}{Home}{Right}{Right}");
    EXPECT_EQ(Shown(), "07:|00:00");
    Type(":");
    EXPECT_EQ(Shown(), "07:00:|00");
}

TEST_F(CarriedOver, LosingTheFocusChangesNothingShown)
{
    control_->LoseFocus();
    EXPECT_EQ(Shown(), "07:|00:00");
    EXPECT_EQ(Beeps(), 0);
}

class Autoskip : public EditTest {};

// Capitals, typed with Shift held, end the field as small letters do.
TEST_F(Autoskip, ACapitalInTheLastPositionNotifiesOnce)
{
    for (const char* mask : {"AAA", "(AAA)", "!!!", "~AAAA--"}) {
        Make({mask, DT_STRING, ZTEO_AUTOSKIP});
        Type("ABC");
        EXPECT_EQ(Skips(), 1) << mask;
        EXPECT_EQ(Beeps(), 0) << mask;
        EXPECT_NE(Text().find("ABC"), std::string::npos) << Text();
    }
}

TEST_F(Autoskip, ACapitalIsCarriedOverLiterals)
{
    Given("AA)-(AA)", DT_STRING, "|ab)-(cd)", ZTEO_AUTOSKIP);
    Type("XY");
    EXPECT_EQ(Shown(), "XY)-(|cd)");
    Type("Z");
    EXPECT_EQ(Shown(), "XY)-(Z|d)");
    EXPECT_EQ(Skips(), 0);
    Type("W");
    EXPECT_EQ(Shown(), "XY)-(ZW|)");
    EXPECT_EQ(Skips(), 1);
}

TEST_F(Autoskip, ADesignatorAtTheEndNotifiesOnce)
{
    Given("HH:MM AM/PM", DT_TIME, "|09:30 AM", ZTEO_AUTOSKIP);
    Type("P");
    EXPECT_EQ(Skips(), 1);
}

TEST_F(Autoskip, LastPositionOfADateNotifiesOnce)
{
    Given("MM/DD/YY", DT_DATE, "07/04/9|0", ZTEO_AUTOSKIP);
    Type("5");
    EXPECT_EQ(Shown(), "07/04/95|");
    EXPECT_EQ(Skips(), 1);
}

TEST_F(Autoskip, AllPositionsTypedNotifyOnce)
{
    Given("MM/DD/YY", DT_DATE, "|01/01/00", ZTEO_AUTOSKIP);
    Type("070495");
    EXPECT_EQ(Skips(), 1);
}

TEST_F(Autoskip, APaddedLastFieldNotifiesOnce)
{
    Given("HH:MM", DT_TIME, "00:|00", ZTEO_AUTOSKIP);
    Type("7");
    EXPECT_EQ(Shown(), "00:07|");
    EXPECT_EQ(Skips(), 1);
}

TEST_F(Autoskip, OffSendsNothing)
{
    Given("MM/DD/YY", DT_DATE, "07/04/9|0");
    Type("5");
    EXPECT_EQ(Skips(), 0);
}

TEST_F(Autoskip, ACharacterBeforeTheLastSendsNothing)
{
    Given("MM/DD/YY", DT_DATE, "07/04/|90", ZTEO_AUTOSKIP);
    Type("9");
    EXPECT_EQ(Skips(), 0);
}

TEST_F(Autoskip, ARefusedCharacterSendsNothing)
{
    Given("MM/DD/YY", DT_DATE, "07/04/9|0", ZTEO_AUTOSKIP);
    Type("x");
    EXPECT_EQ(Skips(), 0);
}

TEST_F(Autoskip, ACharacterBehindTheEndSendsNothing)
{
    Given("MM/DD/YY", DT_DATE, "07/04/95|", ZTEO_AUTOSKIP);
    Type("1");
    EXPECT_EQ(Skips(), 0);
}

TEST_F(Autoskip, TwoTurnsItOff)
{
    Given("##", DT_STRING, "1|2", ZTEO_AUTOSKIP);
    control_->SetAutoskip(2);
    Type("3");
    EXPECT_EQ(Skips(), 0);
}

TEST_F(Autoskip, ThreeTurnsItOn)
{
    Given("##", DT_STRING, "1|2");
    control_->SetAutoskip(3);
    Type("3");
    EXPECT_EQ(Skips(), 1);
}

TEST_F(Autoskip, RightBehindTheLastCharacterNotifiesAndMovesToTheEnd)
{
    Given("MM/DD/YY", DT_DATE, "07/04/9|5", ZTEO_AUTOSKIP);
    Play("{Right}");
    EXPECT_EQ(Shown(), "07/04/95|");
    EXPECT_EQ(Skips(), 1);
}

TEST_F(Autoskip, RightAtTheEndNotifiesAndStays)
{
    Given("MM/DD/YY", DT_DATE, "07/04/95|", ZTEO_AUTOSKIP);
    Play("{Right}");
    EXPECT_EQ(Shown(), "07/04/95|");
    EXPECT_EQ(Skips(), 1);
}

TEST_F(Autoskip, ShiftAndRightSendNothing)
{
    Given("MM/DD/YY", DT_DATE, "07/04/9|5", ZTEO_AUTOSKIP);
    Play("{Shift+Right}");
    EXPECT_EQ(Shown(), "07/04/9[5]");
    EXPECT_EQ(Skips(), 0);
}

// One row for each way through character entry.
// clang-format off
const KeyCase kRedrawRows[] = {
    {"ADateDigit",                 "MM/DD/YY", DT_DATE,   "07/04/9|0", "5",      "", 0},
    {"ARefusedCharacter",          "MM/DD/YY", DT_DATE,   "07/04/9|0", "x",      "", 0},
    {"AnInsertedNumberDigit",      "#,##0.00", DT_NUMBER, "1|.00",     "5",      "", 0},
    {"AFractionDigit",             "#,##0.00", DT_NUMBER, "1.|00",     "5",      "", 0},
    {"ANumberTypedOverASelection", "#,##0.00", DT_NUMBER, "[1.00]",    "5",      "", 0},
    {"ADeletedNumberDigit",        "#,##0.00", DT_NUMBER, "|12.00",    "{Del}",  "", 0},
    {"ABackspacedNumberDigit",     "#,##0.00", DT_NUMBER, "12|.00",    "{Back}", "", 0},
    {"ASignInANumber",             "#,##0.00", DT_NUMBER, "|12.00",    "-",      "", 0},
};
// clang-format on

// Fields may ignore the redraw switch, so what they are told is looked at.
class RedrawIsOn : public KeyTable {
protected:
    FieldRecorder recorder_;
};

ROW_TEST(RedrawIsOn, AfterTheKeys)
{
    const KeyCase& row = GetParam();
    Given(row.mask, row.type, row.given);
    recorder_.Forget();
    Play(row.keys);
    const std::vector<std::string> redraws = recorder_.Redraws();
    EXPECT_TRUE(redraws.empty() || redraws.back() == "redraw on");
}

class Redraw : public EditTest {
protected:
    FieldRecorder recorder_;
};

TEST_F(Redraw, IsOffWhileTheCharacterIsSelectedAndOnBeforeItIsReplaced)
{
    Given("MM/DD/YY", DT_DATE, "07/04/9|0");
    recorder_.Forget();
    Type("5");
    EXPECT_EQ(recorder_.Told(), (std::vector<std::string>{"redraw off", "redraw on", "text"}));
}

TEST_ROWS(Rows, RedrawIsOn, kRedrawRows);

}  // namespace
}  // namespace zttest
