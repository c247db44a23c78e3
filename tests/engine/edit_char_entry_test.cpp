// Typing into fields that are no numbers: what a character does to the text, the caret and the host.
#include <string>
#include <vector>

#include "tests/support/engine_test.h"

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

    {"BeforeTheFirstFieldTheCharacterGoesThere",     "(###) ###",   DT_STRING, "|(555) 123",        "7",       "(7|55) 123",   0},
    {"BeforeTheFirstFieldARefusedCharacterBeeps",    "(###) ###",   DT_STRING, "|(555) 123",        "x",       "(|555) 123",   1},

    {"ASelectionIsClearedFirst",                     "MM/DD/YY",    DT_DATE,   "[07]/04/95",        "1",       "1|0/04/95",    0},
    {"AWholeSelectionIsClearedToTheBlank",           "MM/DD/YY",    DT_DATE,   "[07/04/95]",        "1",       "1|0/00/00",    0},
    {"ASelectedLiteralStands",                       "MM/DD/YY",    DT_DATE,   "07[/0]4/95",        "1",       "07|/04/95",    1},
    {"ASelectionInAStringIsBlanked",                 "##-##",       DT_STRING, "[12-3]4",           "5",       "5| - 4",       0},

    {"PmLetterFromTheHour",                          "HH:MM AM/PM", DT_TIME,   "|02:30 AM",         "P",       "02:30 P|M",    0},
    {"AmLetterFromTheHour",                          "HH:MM AM/PM", DT_TIME,   "|02:30 PM",         "A",       "02:30 A|M",    0},
    {"PmLetterFromTheMinute",                        "HH:MM AM/PM", DT_TIME,   "02:3|0 AM",         "P",       "02:30 P|M",    0},
    {"PmLetterInADateTime", "MM/DD/YY HH:MM AM/PM", DT_DATETIME, "|07/04/95 02:30 AM", "P", "07/04/95 02:30 P|M", 0},
    {"PmLetterInLowerCaseIsRefused",                 "HH:MM AM/PM", DT_TIME,   "|02:30 AM",         "p",       "|02:30 AM",    1},
    {"ADigitOnTheAmPmFieldBeeps",                    "HH:MM AM/PM", DT_TIME,   "02:30 |AM",         "1",       "02:30 |AM",    1},
    {"ADigitInsideTheAmPmFieldBeeps",                "HH:MM AM/PM", DT_TIME,   "02:30 A|M",         "1",       "02:30 A|M",    1},
    {"TheCaretStopsAtTheAmPmField",                  "HH:MM AM/PM", DT_TIME,   "01:3|1 AM",         "0",       "01:30 |AM",    0},
    {"ATwelveHourTime",                              "HH:MM AM/PM", DT_TIME,   "|02:00 AM",         "1230P",   "12:30 P|M",    0},

    {"AStringWithoutLiteralsFillsUp",                "####",        DT_STRING, "|",                 "12",      "12|",          0},
    {"AStringWithoutLiteralsOverwrites",             "####",        DT_STRING, "1|234",             "9",       "19|34",        0},
    {"AStringWithoutAMaskInserts",                   "",            DT_STRING, "ab|c",              "xy",      "abxy|c",       0},

    {"ANewlineIsRefusedAnywhere",                    "XX",          DT_STRING, "|ab",               "{Enter}", "|ab",          1},
    {"AControlCharacterIsRefusedAnywhere",           "XX",          DT_STRING, "|ab",               "\x01",    "|ab",          1},
    {"TabIsSwallowed",                               "XX",          DT_STRING, "|ab",               "{Tab}",   "|ab",          0},
    {"EscapeIsSwallowed",                            "XX",          DT_STRING, "|ab",               "{Esc}",   "|ab",          0},
    {"ABlankIsACharacter",                           "XX",          DT_STRING, "|ab",               " ",       " |b",          0},
};
// clang-format on

class CharEntry : public KeyTable {};

TEST_P(CharEntry, LeadsTo)
{
    Check(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Rows, CharEntry, testing::ValuesIn(kSteps), RowName<KeyCase>);

class Autoskip : public EditTest {};

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

TEST_P(RedrawIsOn, AfterTheKeys)
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

INSTANTIATE_TEST_SUITE_P(Rows, RedrawIsOn, testing::ValuesIn(kRedrawRows), RowName<KeyCase>);

}  // namespace
}  // namespace zttest
