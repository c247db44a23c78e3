// Dates, times, strings and code tables edited by keys and mouse in modern controls: what is shown, where the caret stands, what is
// refused and why, and the state.
#include <gtest/gtest.h>

#include <cstring>

#include "tests/support/rows.h"
#include "tests/units/modern_player.h"

namespace zttest::typing {
namespace {

using namespace zte;

// ---- what keys leave

class ModernTyping : public RowTest<TypingRow> {};

ROW_TEST(ModernTyping, Leaves)
{
    Played played(GetParam().setup);
    played.Show(GetParam().before);
    played.Play(GetParam().keys);
    EXPECT_EQ(played.Shown(), GetParam().after);
    EXPECT_EQ(played.Heard().Reasons(), GetParam().reasons);
    const MemoryField& field = played.Control().Edit();
    EXPECT_EQ(field.Count(FieldEvent::Beep), field.Count(FieldEvent::Rejected));
    EXPECT_EQ(field.Count(FieldEvent::Update), field.Count(FieldEvent::Change));
}

// Backwards and forwards again: nothing is lost.
ROW_TEST(ModernTyping, IsUndoneAndRedone)
{
    Played played(GetParam().setup);
    played.Show(GetParam().before);
    const Text before = played.Control().Edit().Shown();
    played.Play(GetParam().keys);
    const Text after = played.Control().Edit().Shown();
    played.Control().Edit().SetReadOnly(false);
    for (int i = 0; i < 100; ++i)
        played.Control().Undo();
    EXPECT_EQ(played.Control().Edit().Shown(), before);
    if (std::strstr(GetParam().keys, "Undo") || std::strstr(GetParam().keys, "CtrlZ"))
        return;
    for (int i = 0; i < 100; ++i)
        played.Control().Redo();
    EXPECT_EQ(played.Control().Edit().Shown(), after);
}

TEST_ROWS(Dates, ModernTyping, ModernDates());
TEST_ROWS(Times, ModernTyping, ModernTimes());
TEST_ROWS(Deletions, ModernTyping, ModernDeletions());
TEST_ROWS(Undo, ModernTyping, ModernUndo());
TEST_ROWS(Carets, ModernTyping, ModernCarets());
TEST_ROWS(Spins, ModernTyping, ModernSpins());
TEST_ROWS(Strings, ModernTyping, ModernStrings());
TEST_ROWS(Choices, ModernTyping, ModernChoices());

// ---- states

struct StateRow {
    const TypingSetup& setup;
    const char* before;
    const char* keys;
    int32_t state;
    const char* told;       // of the keys: "0>1 1>4"
    const char* canonical;  // null: none
};
void PrintTo(const StateRow& row, std::ostream* out)
{
    *out << row.setup.mask << " \"" << (row.before ? row.before : "") << "\": " << row.keys;
}

class ModernState : public RowTest<StateRow> {};

ROW_TEST(ModernState, IsToldAndAsked)
{
    Played played(GetParam().setup);
    played.Show(GetParam().before);
    played.Play(GetParam().keys);
    const EditInstance& edit = played.Control().Record();
    EXPECT_EQ(StateOf(edit), GetParam().state);
    EXPECT_EQ(played.Heard().States(), GetParam().told);
    Text text;
    const bool has = CanonicalText(edit, text);
    EXPECT_EQ(has, GetParam().canonical != nullptr);
    if (has && GetParam().canonical) {
        EXPECT_EQ(text, FromAscii(GetParam().canonical));
    }
}

// What is given back, handed in again, changes nothing.
ROW_TEST(ModernState, OfTheCanonicalTextIsTheSame)
{
    Played played(GetParam().setup);
    played.Show(GetParam().before);
    played.Play(GetParam().keys);
    Text text;
    if (!CanonicalText(played.Control().Record(), text))
        return;
    const Text before = played.Control().Edit().Shown();
    const bool isTaken = TrySetDataString(played.Control().Record(), text.c_str()) == 0;
    EXPECT_EQ(isTaken, GetParam().state != ZTS_INVALID);
    EXPECT_EQ(played.Control().Edit().Shown(), before);
    EXPECT_EQ(StateOf(played.Control().Record()), GetParam().state);
}

// clang-format off
const StateRow kStates[] = {
    {kUs, nullptr, "",                   ZTS_EMPTY, "", ""},
    {kUs, nullptr, "1",                  ZTS_INCOMPLETE, "0>1", nullptr},
    {kUs, nullptr, "1{Bs}",              ZTS_EMPTY, "0>1 1>0", ""},
    {kUs, nullptr, "07042024",           ZTS_COMPLETE, "0>1 1>4", "2024-07-04"},
    {kUs, nullptr, "0704202",            ZTS_INCOMPLETE, "0>1", nullptr},
    {kUs, nullptr, "02302023",           ZTS_INVALID, "0>1 1>2", nullptr},
    {kUs, nullptr, "02302023{Undo}",     ZTS_EMPTY, "0>1 1>2 2>0", ""},
    {kUs, nullptr, "0230202x3",          ZTS_INVALID, "0>1 1>2", nullptr},
    {kUs, nullptr, "7/4/24",             ZTS_INCOMPLETE, "0>1", nullptr},
    {kUs, nullptr, "7/4/24{Blur}",       ZTS_COMPLETE, "0>1 1>4", "2024-07-04"},
    {kUs, "12/|  /2024", "",             ZTS_INCOMPLETE, "", nullptr},
    {kUs, "junk|", "",                   ZTS_INVALID, "", nullptr},
    {kUs, "13/0|1/2024", "",             ZTS_INVALID, "", nullptr},
    {kUs, "00/0|0/0000", "",             ZTS_INVALID, "", nullptr},
    {kUs, "[12/31/1999]", "{Del}",       ZTS_EMPTY, "4>0", ""},
    {kUs, "12/31/1999|", "{Bs}",         ZTS_INCOMPLETE, "4>1", nullptr},
    {kUs, "[12/31/1999]", "x",           ZTS_COMPLETE, "", "1999-12-31"},
    {kShort, nullptr, "070450",          ZTS_COMPLETE, "0>1 1>4", "1950-07-04"},
    {kShort, nullptr, "070400",          ZTS_COMPLETE, "0>1 1>4", "2000-07-04"},
    {kDayOfYear, nullptr, "3662023",     ZTS_INVALID, "0>1 1>2", nullptr},
    {kDayOfYear, nullptr, "3662024",     ZTS_COMPLETE, "0>1 1>4", "2024-12-31"},
    {kNamed, nullptr, "4jul2024",        ZTS_COMPLETE, "0>1 1>4", "2024-07-04"},
    {kNamed, nullptr, "4j",              ZTS_INCOMPLETE, "0>1", nullptr},
    {kTime, nullptr, "0000",             ZTS_COMPLETE, "0>1 1>4", "00:00:00"},
    {kTime, nullptr, "00",               ZTS_INCOMPLETE, "0>1", nullptr},
    {kTime, "99:9|9", "",                ZTS_INVALID, "", nullptr},
    {kHalves, nullptr, "1330",           ZTS_COMPLETE, "0>1 1>4", "13:30:00"},
    {kHalves, nullptr, "0030",           ZTS_COMPLETE, "0>1 1>4", "00:30:00"},
    {kHalves, nullptr, "p",              ZTS_INCOMPLETE, "0>1", nullptr},
    {kHalves, "13:30 P|M", "",           ZTS_INVALID, "", nullptr},
    {kFraction, nullptr, "1330455{Blur}", ZTS_COMPLETE, "0>1 1>4", "13:30:45:500000"},
    {kBoth, nullptr, "070420241330",     ZTS_COMPLETE, "0>1 1>4", "2024-07-04 13:30:00"},
    {kBoth, nullptr, "07042024",         ZTS_INCOMPLETE, "0>1", nullptr},
    {kRanged, nullptr, "01252024",       ZTS_OUT_OF_RANGE, "0>1 1>3", "2024-01-25"},
    {kRanged, nullptr, "01252024{Up}",   ZTS_COMPLETE, "0>1 1>3 3>4", "2024-01-20"},
    {kPhone, nullptr, "555",             ZTS_INCOMPLETE, "0>1", "555"},
    {kPhone, nullptr, "5551234567",      ZTS_COMPLETE, "0>1 1>4", "5551234567"},
    {kPhone, "junk|", "",                ZTS_INVALID, "", "unk"},
    {kPlate, nullptr, "ab",              ZTS_INCOMPLETE, "0>1", "AB"},
    {kPlate, nullptr, "a 123",           ZTS_COMPLETE, "0>1 1>4", "A 123"},
    {kWord, nullptr, "ab",               ZTS_COMPLETE, "0>4", "ab"},
    {kColours, nullptr, "g",             ZTS_COMPLETE, "0>4", "g"},
    {kColours, "[Red]", "{Del}",         ZTS_EMPTY, "4>0", ""},
    {kColours, "[Blue]", "",             ZTS_INVALID, "", nullptr},
    {kColours, "[Blue]", "g",            ZTS_COMPLETE, "2>4", "g"},
};
TEST_ROWS(States, ModernState, kStates);
// clang-format on

}  // namespace
}  // namespace zttest::typing
