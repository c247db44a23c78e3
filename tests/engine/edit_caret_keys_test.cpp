// Arrow keys, Home and End, and clicks: where the caret may stand.
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

// clang-format off
const KeyCase kMoves[] = {
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
// clang-format on

class CaretKeys : public KeyTable {};

ROW_TEST(CaretKeys, LeadTo)
{
    Check(GetParam());
}

TEST_ROWS(Rows, CaretKeys, kMoves);

struct ClickCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* text;
    int clicked;
    const char* shown;
};

void PrintTo(const ClickCase& row, std::ostream* out)
{
    *out << row.name << " (click at " << row.clicked << " of " << row.text << ")";
}

// clang-format off
const ClickCase kClicks[] = {
    {"OnADigitStays",                 "MM/DD/YY",    DT_DATE,   "07/04/95",  3, "07/|04/95"},
    {"OnASlashGoesRight",             "MM/DD/YY",    DT_DATE,   "07/04/95",  2, "07/|04/95"},
    {"BehindTheEndStays",             "MM/DD/YY",    DT_DATE,   "07/04/95",  8, "07/04/95|"},
    {"OnTheNearerLeftGoesLeft",       "##---##",     DT_STRING, "12---34",   2, "1|2---34"},
    {"InTheMiddleGoesRight",          "##---##",     DT_STRING, "12---34",   3, "12---|34"},
    {"OnTheNearerRightGoesRight",     "##---##",     DT_STRING, "12---34",   4, "12---|34"},
    {"LeftOfTheFirstFieldStays",      "(###) ###",   DT_STRING, "(555) 123", 0, "|(555) 123"},
    {"RightOfTheLastFieldGoesLeft",   "## km",       DT_STRING, "12 km",     3, "1|2 km"},
    {"OnTheAmPmFieldStays",           "HH:MM AM/PM", DT_TIME,   "02:30 PM",  6, "02:30 |PM"},
    {"OnAThousandsCharacterStays",    "#,##0.00",    DT_NUMBER, "1,234.50",  1, "1|,234.50"},
    {"OnThePointOfANumberStays",      "#,##0.00",    DT_NUMBER, "1,234.50",  5, "1,234|.50"},
    {"InTheFractionOfAZeroMaskStays", "000.00",      DT_NUMBER, "123.45",    5, "123.4|5"},
    {"OnAnEscapedLiteralGoesOn",      "##~X##",      DT_STRING, "12X34",     2, "12X|34"},
};
// clang-format on

class ClickAt : public EditTest, public OfRow<ClickCase> {};

ROW_TEST(ClickAt, LeadsTo)
{
    const ClickCase& row = GetParam();
    Given(row.mask, row.type, row.text);
    control_->Click(row.clicked);
    EXPECT_EQ(Shown(), row.shown);
}

TEST_ROWS(Rows, ClickAt, kClicks);

class Mouse : public EditTest {};

TEST_F(Mouse, ASelectionMadeByDraggingStands)
{
    Given("MM/DD/YY", DT_DATE, "|07/04/95");
    control_->Drag(2, 5);
    EXPECT_EQ(Shown(), "07[/04]/95");
}

TEST_F(Mouse, AClickInAnEmptyControlDoesNothing)
{
    GivenText("MM/DD/YY", DT_DATE, "|");
    control_->Click(0);
    EXPECT_EQ(Shown(), "|");
}

}  // namespace
}  // namespace zttest
