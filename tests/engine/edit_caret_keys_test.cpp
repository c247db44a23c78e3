// Arrow keys, Home and End, and clicks: where the caret may stand.
#include "tests/support/classic_rows.h"
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

class CaretKeys : public KeyTable {};

ROW_TEST(CaretKeys, LeadTo)
{
    Check(GetParam());
}

TEST_ROWS(Rows, CaretKeys, classic::kMoves);

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
