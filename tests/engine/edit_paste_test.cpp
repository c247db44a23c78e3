// Paste: the clipboard text becomes the new value.
#include "tests/support/clipboard.h"
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

struct PasteCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* given;
    const char* clipboard;
    const char* text;
    int beeps = 0;
};

void PrintTo(const PasteCase& row, std::ostream* out)
{
    *out << row.name << " (clipboard " << row.clipboard << " over " << row.given << " under " << row.mask << ")";
}

class PasteTable : public EditTest, public OfRow<PasteCase> {
protected:
    void Check()
    {
        const PasteCase& row = GetParam();
        Given(row.mask, row.type, row.given);
        CopyToClipboard(row.clipboard);
        control_->Paste();
        EXPECT_EQ(Text(), row.text);
        EXPECT_EQ(Beeps(), row.beeps);
    }
};

// clang-format off
const PasteCase kRows[] = {
    {"ANumberReplacesTheWholeValue",      "#,##0.00",       DT_NUMBER,   "1[23].45",        "5.25",             "5.25",           0},
    {"ANumberIsLaidThroughTheMask",       "#,##0.00",       DT_NUMBER,   "|0.00",           "1234.5",           "1,234.50",       0},
    {"ANumberAsShown",                    "#,##0.00",       DT_NUMBER,   "|0.00",           "1,234.50",         "1,234.50",       0},
    {"ANegativeNumber",                   "#,##0.00",       DT_NUMBER,   "|0.00",           "-5.25",            "-5.25",          0},
    {"LettersBeepAndChangeNothing",       "#,##0.00",       DT_NUMBER,   "|12.00",          "abc",              "12.00",          1},
    {"NothingReadableBeeps",              "#,##0.00",       DT_NUMBER,   "|12.00",          "--",               "12.00",          1},
    {"ADecimal",                          "#,##0.00",       DT_DECIMAL,  "|0.00",           "1234.5",           "1,234.50",       0},
    {"LettersInADecimalBeep",             "#,##0.00",       DT_DECIMAL,  "|12.00",          "abc",              "12.00",          1},
    {"AnAmountAsShown",                   "[currency(9)]",  DT_NUMBER,   "|$.00",           "$1,234.50",        "$1,234.50",      0},
    {"APercentageAsShown",                "#,##0.00%",      DT_NUMBER,   "|12.50%",         "12.5%",            "12.50%",         0},
    {"ACanonicalDate",                    "MM/DD/YY",       DT_DATE,     "|01/01/00",       "1995-07-04",       "07/04/95",       0},
    {"ADisplayedDateGivesTheEmptyDate",   "MM/DD/YY",       DT_DATE,     "|01/01/00",       "07/04/95",         "00/00/00",       0},
    {"AnImpossibleDateGivesTheEmptyDate", "MM/DD/YY",       DT_DATE,     "|01/01/00",       "1995-02-30",       "00/00/00",       0},
    {"ACanonicalTime",                    "HH:MM AM/PM",    DT_TIME,     "|01:00 AM",       "14:30",            "02:30 PM",       0},
    {"ATwelveHourTime",                   "HH:MM AM/PM",    DT_TIME,     "|01:00 AM",       "02:30 PM",         "02:30 PM",       0},
    {"ACanonicalDateTime",                "MM/DD/YY HH:MM", DT_DATETIME, "|01/01/00 01:00", "1995-07-04 14:30", "07/04/95 14:30", 0},
    {"AStringAsShown",                    "(###) ###",      DT_STRING,   "|(555) 123",      "(777) 456",        "(777) 456",      0},
    {"AStringWithoutAMaskTakesItIn",      "",               DT_STRING,   "a|b",             "whole",            "awholeb",        0},
};
// clang-format on

class Paste : public PasteTable {};

ROW_TEST(Paste, Shows)
{
    Check();
}

TEST_ROWS(Rows, Paste, kRows);

// clang-format off
const PasteCase kGermanPastes[] = {
    {"ANumberAsShown",           "",              DT_NUMBER,  "|,00",    "1.234,50",    "1.234,50",    0},
    {"AFractionIsKept",          "",              DT_NUMBER,  "|,00",    "12,75",       "12,75",       0},
    {"ADecimalKeepsItsFraction", "",              DT_DECIMAL, "|,00",    "12,75",       "12,75",       0},
    {"AnAmountAsShown",          "[currency(9)]", DT_NUMBER,  "|,00EUR", "1.234,50EUR", "1.234,50EUR", 0},
};
// clang-format on

class GermanPaste : public PasteTable {
    const Regional regional_{kGerman};
};

ROW_TEST(GermanPaste, Shows)
{
    Check();
}

TEST_ROWS(Rows, GermanPaste, kGermanPastes);

enum class Way { Message, CtrlV, ShiftInsert };

class PasteWay : public EditTest, public OfRow<Way> {
protected:
    void Paste()
    {
        if (GetParam() == Way::Message)
            control_->Paste();
        else if (GetParam() == Way::CtrlV)
            Play("{Ctrl+V}");
        else
            Play("{Shift+Ins}");
    }
};

ROW_TEST(PasteWay, ReplacesADate)
{
    Given("MM/DD/YY", DT_DATE, "07/|04/95");
    CopyToClipboard("2001-12-31");
    Paste();
    EXPECT_EQ(Text(), "12/31/01");
    EXPECT_EQ(Beeps(), 0);
}

ROW_TEST(PasteWay, ReplacesANumberPartlySelected)
{
    Given("#,##0.00", DT_NUMBER, "1[2]3.45");
    CopyToClipboard("7.5");
    Paste();
    EXPECT_EQ(Text(), "7.50");
}

ROW_TEST(PasteWay, AnEmptyClipboardChangesNothing)
{
    Given("MM/DD/YY", DT_DATE, "07/|04/95");
    EmptyTheClipboard();
    Paste();
    EXPECT_EQ(Shown(), "07/|04/95");
    EXPECT_EQ(Beeps(), 0);
}

ROW_TEST(PasteWay, AnEmptyTextChangesNothing)
{
    Given("MM/DD/YY", DT_DATE, "07/|04/95");
    CopyToClipboard("");
    Paste();
    EXPECT_EQ(Shown(), "07/|04/95");
    EXPECT_EQ(Beeps(), 0);
}

ROW_TEST(PasteWay, MarksTheEditAsModified)
{
    Given("MM/DD/YY", DT_DATE, "07/|04/95");
    control_->ForgetModified();
    CopyToClipboard("2001-12-31");
    Paste();
    EXPECT_TRUE(control_->IsModified());
}

std::string WayName(const Way& way)
{
    constexpr const char* kNames[] = {"Message", "CtrlV", "ShiftInsert"};
    return kNames[static_cast<int>(way)];
}

TEST_ROWS_NAMED(Ways, PasteWay, WayName, std::vector{Way::Message, Way::CtrlV, Way::ShiftInsert});

class Copying : public EditTest {};

TEST_F(Copying, CtrlCTakesTheSelectedText)
{
    Given("MM/DD/YY", DT_DATE, "[07/04]/95");
    EmptyTheClipboard();
    Play("{Ctrl+C}");
    EXPECT_EQ(ClipboardText(), "07/04");
    EXPECT_EQ(Shown(), "[07/04]/95");
}

}  // namespace
}  // namespace zttest
