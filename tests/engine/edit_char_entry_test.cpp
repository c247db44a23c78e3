// Typing into fields that are no numbers: what a character does to the text, the caret and the host.
#include <string>
#include <vector>

#include "tests/support/classic_rows.h"
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

class CharEntry : public KeyTable {};

ROW_TEST(CharEntry, LeadsTo)
{
    Check(GetParam());
}

TEST_ROWS(Rows, CharEntry, classic::kCharacters);

class BehindAmPm : public KeyTable {};

ROW_TEST(BehindAmPm, LeadsTo)
{
    Check(GetParam());
}

TEST_ROWS(Rows, BehindAmPm, classic::kBehindAmPm);

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
