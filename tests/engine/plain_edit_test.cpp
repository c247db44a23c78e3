// A string without a mask, not shown through a code table: a plain edit.
#include "tests/support/clipboard.h"
#include "tests/support/engine_test.h"

namespace zttest {
namespace {

class PlainEdit : public EditTest {
protected:
    void SetUp() override { Given("", DT_STRING, "one two|"); }
};

TEST_F(PlainEdit, ControlCharactersLeaveASelection)
{
    for (const char* character : {"\x1b", "\t", "\r", "\n", "\x01", "\x03"}) {
        control_->Select(0, 3);
        Type(character);
        EXPECT_EQ(Shown(), "[one] two") << static_cast<int>(*character);
    }
}

TEST_F(PlainEdit, ACharacterTakesThePlaceOfASelectionAndCanBeUndone)
{
    control_->Select(0, 3);
    Type("x");
    EXPECT_EQ(Shown(), "x| two");
    EXPECT_TRUE(control_->IsModified());
    ASSERT_TRUE(control_->CanUndo());
    control_->Undo();
    EXPECT_EQ(Text(), "one two");
}

TEST_F(PlainEdit, CutsByItsKeys)
{
    EmptyTheClipboard();
    control_->Select(0, 4);
    Type("\x18");
    EXPECT_EQ(Shown(), "|two");
    EXPECT_EQ(ClipboardText(), "one ");
    Type("\x1a");
    EXPECT_EQ(Text(), "one two");
}

TEST_F(PlainEdit, PastesWhereTheCaretStands)
{
    CopyToClipboard("and\r\nmore");
    PutCaret(4);
    Type("\x16");
    EXPECT_EQ(Text(), "one andtwo");
    control_->Paste();
    EXPECT_EQ(Text(), "one andandtwo");
    Play("{Shift+Ins}");
    EXPECT_EQ(Text(), "one andandandtwo");
    control_->Undo();
    EXPECT_EQ(Text(), "one two") << "pasted side by side, undone together";
}

TEST_F(PlainEdit, TellsItsParentOnceAKey)
{
    Type("x");
    EXPECT_EQ(control_->Notices(), std::vector<Notice>{Notice::Changed});
    control_->Forget();
    control_->Select(0, 3);
    Type("y");
    EXPECT_EQ(control_->Notices(), std::vector<Notice>{Notice::Changed});
}

TEST_F(PlainEdit, ACaretPutByAClickStays)
{
    control_->Click(3);
    EXPECT_EQ(Shown(), "one| two");
}

TEST_F(PlainEdit, ShowsAndReturnsAnyText)
{
    const std::string text(1000, 'x');
    control_->SetDataString(text);
    EXPECT_EQ(Text(), text);
    EXPECT_EQ(Value(), text);
    control_->SetDataString("~#/\\ 0");
    EXPECT_EQ(Value(), "~#/\\ 0");
}

TEST_F(PlainEdit, IsOneAgainAfterTheEmptyMask)
{
    control_->SetMask("(###)", DT_STRING);
    Type("1");
    control_->SetMask("", DT_STRING);
    EXPECT_EQ(Text(), "");
    EXPECT_FALSE(control_->IsModified());
    EXPECT_FALSE(control_->CanUndo());
    Type("a)b");
    EXPECT_EQ(Shown(), "a)b|");
    control_->Undo();
    EXPECT_EQ(Text(), "");
}

TEST_F(PlainEdit, ThatIsReadOnlyTakesNothing)
{
    control_->SetReadOnly();
    CopyToClipboard("x");
    control_->Select(0, 3);
    Type("x\b\x18\x16");
    Play("{Del}");
    control_->Paste();
    EXPECT_EQ(Shown(), "[one] two");
}

TEST_F(PlainEdit, NoLongerWithACodeTable)
{
    Config config;
    config.mask = "";
    config.options = ZTEO_SPIN | ZTEO_CODE_DISPLAY | ZTEO_CODE_PICK;
    config.codes = "Red\tR/Green\tG";
    Make(config);
    Type("G");
    EXPECT_EQ(Text(), "Green");
}

}  // namespace
}  // namespace zttest
