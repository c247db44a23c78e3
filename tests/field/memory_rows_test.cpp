// The examples on the field in memory, and what of it no other control has.
#include <gtest/gtest.h>

#include "tests/field/memory_player.h"
#include "tests/field/rows.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

class FieldInMemory : public RowTest<FieldCase> {};

ROW_TEST(FieldInMemory, LeadsTo)
{
    MemoryPlayer player(GetParam().style);
    Check(player, GetParam());
}

TEST_ROWS(Rows, FieldInMemory, FieldCases());

TEST(FieldInMemoryForTheEngine, HoldsShiftForItsOwnKeysAndForTheReader)
{
    zte::MemoryField field;
    field.SetText(zte::FromAscii("abcd").c_str());
    field.HoldShift(true);
    field.PressArrow(zte::KEY_RIGHT, 0, 3);
    EXPECT_TRUE(field.IsHeld(zte::KEY_SHIFT));
    field.HoldShift(false);
    EXPECT_FALSE(field.IsHeld(zte::KEY_SHIFT));
    EXPECT_EQ(field.ReadSelection().start, 0);
    EXPECT_EQ(field.ReadSelection().end, 3);
}

TEST(FieldInMemoryForTheEngine, KeysPressedWithOthersLetThemGo)
{
    zte::MemoryField field;
    field.SetText(zte::FromAscii("ab cd").c_str());
    field.Press(zte::KEY_RIGHT, true, true);
    EXPECT_EQ(field.ReadSelection().end, 3);
    EXPECT_FALSE(field.IsHeld(zte::KEY_SHIFT));
    field.Press(zte::KEY_LEFT);
    EXPECT_EQ(field.Caret(), 2);
}

TEST(FieldInMemoryForTheEngine, RefusesInputWhenReadOnlyOrDisabled)
{
    zte::MemoryField field;
    EXPECT_FALSE(field.RefusesInput());
    field.SetReadOnly(true);
    EXPECT_TRUE(field.RefusesInput());
    field.SetReadOnly(false);
    field.Enable(false);
    EXPECT_TRUE(field.RefusesInput());
}

TEST(FieldInMemoryForTheEngine, TurnsRedrawingOnOnlyWhereItTurnedItOff)
{
    zte::MemoryField field;
    field.SetRedraw(true);
    EXPECT_EQ(field.Count(zte::FieldEvent::RedrawOn), 0);
    field.SetRedraw(false);
    field.SetRedraw(true);
    EXPECT_EQ(field.Count(zte::FieldEvent::RedrawOff), 1);
    EXPECT_EQ(field.Count(zte::FieldEvent::RedrawOn), 1);
}

// Answers each change by another text, as a program may that corrects what is typed.
class Corrector final : public zte::FieldListener {
public:
    explicit Corrector(zte::MemoryField& field) : field_(field) {}

    void OnFieldEvent(zte::FieldEvent event) override
    {
        if (event == zte::FieldEvent::LimitReached)
            field_.SetText(zte::FromAscii("x").c_str());
    }

private:
    zte::MemoryField& field_;
};

TEST(FieldInMemoryForTheEngine, ListenersMayChangeTheTextUnderAnInsertion)
{
    zte::MemoryField field;
    Corrector corrector(field);
    field.SetText(zte::FromAscii("abcdef").c_str());
    field.SetSelection(5, 6);
    field.SetLimit(3);
    field.SetListener(&corrector);
    field.Replace(zte::FromAscii("12345").c_str(), true);
    EXPECT_EQ(field.Shown(), zte::FromAscii("12x"));
}

TEST(FieldInMemoryForTheEngine, KeysPressedWithShiftSelect)
{
    zte::MemoryField field;
    field.SetText(zte::FromAscii("abcd").c_str());
    field.Press(zte::KEY_RIGHT, true, false);
    EXPECT_EQ(field.Anchor(), 0);
    EXPECT_EQ(field.Caret(), 1);
}

TEST(FieldInMemoryForTheEngine, TellsWhichKeysAreHeld)
{
    zte::MemoryField field;
    EXPECT_FALSE(field.IsHeld(zte::KEY_RIGHT));
    field.HoldRight(true);
    EXPECT_TRUE(field.IsHeld(zte::KEY_RIGHT));
    EXPECT_FALSE(field.IsHeld(zte::KEY_DOWN));
    field.HoldRight(false);
    EXPECT_FALSE(field.IsHeld(zte::KEY_RIGHT));
}

TEST(FieldInMemoryForTheEngine, TellsOfLayoutAndPainting)
{
    zte::MemoryField field;
    field.KeepLayout();
    field.Repaint();
    field.Repaint();
    field.RepaintSpin();
    field.RepaintSpin();
    field.RepaintSpin();
    EXPECT_EQ(field.Count(zte::FieldEvent::Layout), 1);
    EXPECT_EQ(field.Count(zte::FieldEvent::Repaint), 2);
    EXPECT_EQ(field.Count(zte::FieldEvent::RepaintSpin), 3);
    field.ForgetCounts();
    EXPECT_EQ(field.Count(zte::FieldEvent::RepaintSpin), 0);
}

TEST(FieldInMemoryForTheEngine, ReplacesBehindTheLimitAndKeepsIt)
{
    zte::MemoryField field;
    field.SetText(zte::FromAscii("abcd").c_str());
    field.SetLimit(2);
    field.ReplaceSelection(zte::FromAscii("").c_str());
    EXPECT_EQ(field.Limit(), 2);
}

// As the system's control has them.
TEST(FieldInMemoryForTheEngine, HasTheLimitsOfTheSystem)
{
    zte::MemoryField field;
    EXPECT_EQ(field.Limit(), 30000);
    field.SetLimit(0);
    EXPECT_EQ(field.Limit(), 0x7FFFFFFE);
}

TEST(FieldInMemoryForTheEngine, CountsAsModifiedWhenToldSo)
{
    zte::MemoryField field;
    field.SetModifiedFlag(true);
    EXPECT_TRUE(field.IsModified());
    field.SetModifiedFlag(false);
    EXPECT_FALSE(field.IsModified());
}

TEST(FieldInMemoryForTheEngine, HasNothingToUndoAtFirst)
{
    zte::MemoryField field;
    EXPECT_FALSE(field.CanUndo());
    field.Type(zte::Char{'x'});
    EXPECT_TRUE(field.CanUndo());
}

TEST(FieldInMemoryForTheEngine, NothingUndoneAtFirstIsAtTheStart)
{
    zte::MemoryField field;
    field.SetText(zte::FromAscii("ab").c_str());
    field.SetSelection(2, 2);
    field.Undo();
    EXPECT_EQ(field.Caret(), 0);
}

// A letter becomes the next one: what is folded twice is seen.
zte::Char NextLetter(zte::Char letter, zte::LetterCase)
{
    return static_cast<zte::Char>(letter + 1);
}

TEST(FieldInMemoryForTheEngine, FoldsWhatIsPutInByTheHostsFunction)
{
    zte::FieldStyle style;
    style.letterCase = zte::LetterCase::Upper;
    style.foldCase = NextLetter;
    zte::MemoryField field(style);
    field.SetText(zte::FromAscii("ab").c_str());
    field.Type(zte::Char{'a'});
    EXPECT_EQ(field.Shown(), zte::FromAscii("bbc"));
}

TEST(FieldInMemoryForTheEngine, ClicksOutsideOfTheTextAreBroughtIntoIt)
{
    zte::MemoryField field;
    field.SetText(zte::FromAscii("ab cd").c_str());
    field.Click(-5);
    EXPECT_EQ(field.Caret(), 0);
    field.Click(99);
    EXPECT_EQ(field.Caret(), 5);
    field.DoubleClick(-5);
    EXPECT_EQ(field.Anchor(), 0);
    EXPECT_EQ(field.Caret(), 3);
    field.DoubleClick(99);
    EXPECT_EQ(field.Anchor(), 3);
    EXPECT_EQ(field.Caret(), 5);
    field.SetText(zte::FromAscii("ab cd  ").c_str());
    field.DoubleClick(99);
    EXPECT_EQ(field.Anchor(), 3);
    EXPECT_EQ(field.Caret(), 7);
}

}  // namespace
}  // namespace zttest
