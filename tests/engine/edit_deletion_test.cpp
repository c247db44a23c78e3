// Backspace and Delete: in fields with literals nothing shifts, in the others they work as in a plain edit.
#include "tests/support/classic_rows.h"
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

class Deletion : public KeyTable {};

ROW_TEST(Deletion, LeadsTo)
{
    Check(GetParam());
}

TEST_ROWS(Rows, Deletion, classic::kDeletions);

class NumberDeletion : public KeyTable {};

ROW_TEST(NumberDeletion, LeadsTo)
{
    Check(GetParam());
}

TEST_ROWS(Rows, NumberDeletion, classic::kNumberDeletions);

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
