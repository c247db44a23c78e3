// The examples on the field in memory, and what of it no other control has.
#include <gtest/gtest.h>

#include "tests/field/memory_player.h"
#include "tests/field/rows.h"

namespace zttest {
namespace {

class FieldInMemory : public testing::TestWithParam<FieldCase> {};

TEST_P(FieldInMemory, LeadsTo)
{
    MemoryPlayer player(GetParam().style);
    Check(player, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Rows, FieldInMemory, testing::ValuesIn(kFieldCases), NameOf);

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

}  // namespace
}  // namespace zttest
