// Backspace and Delete: in fields with literals nothing shifts, in the others they work as in a plain edit.
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

// clang-format off
const KeyCase kDeletions[] = {
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
// clang-format on

class Deletion : public KeyTable {};

ROW_TEST(Deletion, LeadsTo)
{
    Check(GetParam());
}

TEST_ROWS(Rows, Deletion, kDeletions);

// clang-format off
const KeyCase kNumberDeletions[] = {
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
// clang-format on

class NumberDeletion : public KeyTable {};

ROW_TEST(NumberDeletion, LeadsTo)
{
    Check(GetParam());
}

TEST_ROWS(Rows, NumberDeletion, kNumberDeletions);

class BackspaceKey : public EditTest {};

TEST_F(BackspaceKey, LeavesNoShiftKeyDown)
{
    Given("MM/DD/YY", DT_DATE, "07/04/95|");
    Backspace();
    EXPECT_FALSE(control_->ShiftIsDown());
}

TEST_F(BackspaceKey, StillDownLetsOtherCharactersThrough)
{
    Given("####", DT_STRING, "12|34");
    control_->Keys().KeyDownOf('\b');
    control_->Keys().KeyDownOf('9');
    control_->Keys().KeyUpOf('\b');
    control_->Keys().KeyUpOf('9');
    EXPECT_EQ(Shown(), "19|4");
}

TEST_F(BackspaceKey, StillDownLetsOtherCharactersThroughInANumber)
{
    Given("#,##0.00", DT_NUMBER, "123|.00");
    control_->Keys().KeyDownOf('\b');
    control_->Keys().KeyDownOf('9');
    control_->Keys().KeyUpOf('\b');
    control_->Keys().KeyUpOf('9');
    EXPECT_EQ(Shown(), "129|.00");
}

TEST_F(BackspaceKey, HeldDownRepeats)
{
    Given("#,###,###.00", DT_NUMBER, "123,456|.00");
    control_->Keys().KeyDownOf('\b');
    control_->Keys().KeyDownOf('\b');
    control_->Keys().KeyDownOf('\b');
    control_->Keys().KeyUpOf('\b');
    EXPECT_EQ(Text(), "123.00");
}

struct UndoCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* given;
    const char* keys;
    const char* literals;  // at their positions, '.' elsewhere
};

void PrintTo(const UndoCase& row, std::ostream* out)
{
    *out << row.name;
}

// clang-format off
const UndoCase kUndoRows[] = {
    {"Typing",                "MM/DD/YY",  DT_DATE,   "|07/04/95",   "12",           "../../.."},
    {"Backspace",             "MM/DD/YY",  DT_DATE,   "07/|04/95",   "{Back}{Back}", "../../.."},
    {"Delete",                "MM/DD/YY",  DT_DATE,   "|07/04/95",   "{Del}",        "../../.."},
    {"SelectionAndTyping",    "MM/DD/YY",  DT_DATE,   "[07/04/95]",  "1",            "../../.."},
    {"SelectionAndBackspace", "(###) ###", DT_STRING, "[(555) 123]", "{Back}",       "(...) ..."},
    {"SelectionAndDelete",    "(###) ###", DT_STRING, "[(555) 123]", "{Del}",        "(...) ..."},
};
// clang-format on

class Undo : public EditTest, public OfRow<UndoCase> {};

ROW_TEST(Undo, BringsBackNoTextThatBreaksTheMask)
{
    const UndoCase& row = GetParam();
    Given(row.mask, row.type, row.given);
    Play(row.keys);
    control_->Undo();
    const std::string literals = row.literals;
    std::string found = Text();
    ASSERT_EQ(found.size(), literals.size());
    for (size_t i = 0; i < found.size(); ++i)
        if (literals[i] == '.')
            found[i] = '.';
    EXPECT_EQ(found, literals);
}

TEST_ROWS(Rows, Undo, kUndoRows);

}  // namespace
}  // namespace zttest
