// Modern controls as a parent and a keyboard meet them: what an act tells and in which order, what belongs to one step of the history,
// which keys are left to the form, and what happens when others change the text meanwhile.
#include <gtest/gtest.h>

#include <cstring>
#include <utility>

#include "engine/modern/editor.h"
#include "tests/support/rows.h"
#include "tests/units/field_spy.h"
#include "tests/units/modern_player.h"

namespace zttest::typing {
namespace {

using namespace zte;

constexpr TypingSetup kSkipping = {"HH:MM", DT_TIME, ZTEO_AUTOSKIP};
constexpr TypingSetup kSkippingYear = {"MM/DD/YYYY", DT_DATE, ZTEO_AUTOSKIP};
constexpr TypingSetup kFree = {"", DT_STRING};
constexpr TypingSetup kPrice = {"#,##0.00", DT_NUMBER, ZTEO_SPIN};
constexpr TypingSetup kSkippingPrice = {"0.00", DT_NUMBER, ZTEO_AUTOSKIP};
constexpr TypingSetup kSkippingFramed = {"(###)", DT_STRING, ZTEO_AUTOSKIP};
constexpr TypingSetup kSkippingWord = {"AAA", DT_STRING, ZTEO_AUTOSKIP};

// ---- what is told, and in which order

class ModernTells : public RowTest<ToldRow> {};

ROW_TEST(ModernTells, EachActInItsOrder)
{
    Played played(GetParam().setup);
    played.Show(GetParam().before);
    played.Play(GetParam().keys);
    EXPECT_EQ(played.Shown(), GetParam().after);
    EXPECT_EQ(played.Heard().All(), GetParam().told);
    const bool isOtherValue = std::strstr(GetParam().told, "changed") || std::strchr(GetParam().told, '>');
    EXPECT_EQ(played.Edit().IsModified(), isOtherValue);
}

// clang-format off
const ToldRow kTold[] = {
    // what is typed: one change, then the state
    {kUs, nullptr, "1",                      "1| /  /    ", "changed 0>1"},
    {kUs, nullptr, "1{Bs}",                  "|  /  /    ", "changed 0>1 changed 1>0"},
    {kUs, "01/01/202|4", "4",                "01/01/2024|", ""},
    {kUs, "12/31/|1999", "1",                "12/31/1|   ", "changed 4>1"},
    {kUs, "|12/31/1999", "{Right}{Home}{End}", "12/31/1999|", ""},
    {kUs, "12/3|1/1999", "{All}",            "[12/31/1999]", ""},
    // what is refused: nothing but why, where, and the character; then the beep, unless the parent does without
    {kUs, nullptr, "13",                     "1| /  /    ", "changed 0>1 out of bounds@13 beep"},
    {kUs, "12/[31]/1999", "x",               "12/[31]/1999", "wrong kind@3x beep"},
    {kUs, "12/[31]/1999", "\x02",            "12/[31]/1999", "wrong kind@3\x02 beep"},
    {kUs, "12/31/|1999", "{Quiet}x",         "12/31/|1999", "wrong kind@6x"},
    {kUs, "12/31/|1999", "{ReadOnly}x",      "12/31/|1999", "read-only@6x beep"},
    {kUs, "12/31/|1999", "{ReadOnly}{Bs}",   "12/31/|1999", "read-only@6 beep"},
    {kUs, "12/31/|1999", "{ReadOnly}{Paste}", "12/31/|1999", "read-only@6 beep"},
    {kUs, "12/31/|1999", "{ReadOnly}{Copied 07/04/2024}{Paste}", "12/31/|1999", "read-only@6 beep"},
    {kUs, "12/31/|1999", "{ReadOnly}{Foreign}", "12/31/|1999", "read-only@6 beep"},
    {kUs, "12/31/|1999", "{Foreign}",        "12/31/|1999", "not in code page@6 beep"},
    {kUs, "12/31/|1999", "{Copied 31.4.99x}{Paste}", "12/31/|1999", "does not fit@7 beep"},
    {kUs, "12/31/|1999", "{Copied x}{Paste}", "12/31/|1999", "does not fit@0 beep"},
    // where the caret was moved behind its back, the place is the one where it stands now
    {kUs, "12/31/|1999", "{CaretBehind3}{ReadOnly}{Bs}", "12/|31/1999", "read-only@3 beep"},
    {kUs, "12/31/|1999", "{CaretBehind3}\x02", "12/|31/1999", "wrong kind@3\x02 beep"},
    {kUs, "12/31/|1999", "{CaretBehind3}{Foreign}", "12/|31/1999", "not in code page@3 beep"},
    // nothing to do is no refusal
    {kUs, nullptr, "{Escape}{Tab}{Enter}{LineFeed}", "|  /  /    ", ""},
    {kUs, "12/31/|1999", "{CtrlC}{Cut}{CtrlX}{Clear}{ShiftDel}{Ins}", "12/31/|1999", ""},
    {kUs, "12/31/|1999", "{ReadOnly}{Cut}{CtrlX}{Clear}{ShiftDel}", "12/31/|1999", ""},
    {kUs, "12/31/|1999", "{Copied 07/04/2024}{Ins}", "12/31/|1999", ""},
    {kWord, "a[bc]de", "{Paste}{Copied }{Paste}{Copied \r\n}{Paste}", "a[bc]de", ""},
    {kUs, "12/31/|1999", "{Paste}{Copied }{Paste}{Copied \r\n}{Paste}", "12/31/|1999", ""},
    {kUs, "12/31/|1999", "{Undo}{Redo}{CtrlZ}{CtrlY}{CtrlShiftZ}", "12/31/|1999", ""},
    {kUs, "|12/31/1999", "{Bs}{Left}{Home}", "|12/31/1999", ""},
    {kUs, "12/31/1999|", "{Del}{Right}{End}", "12/31/1999|", ""},
    // what ends a line was never part of the text
    {kUs, nullptr, "{Copied 07/04/2024\r\n}{Paste}", "07/04/2024|", "changed 0>4"},
    {kWord, nullptr, "{Copied ab\r}{Paste}", "ab|   ", "changed 0>4"},
    // undo and redo
    {kUs, nullptr, "1{Undo}",                "|  /  /    ", "changed 0>1 changed 1>0 value"},
    {kUs, nullptr, "1{Undo}{Redo}",          "1| /  /    ", "changed 0>1 changed 1>0 value changed 0>1 value"},
    {kUs, nullptr, "1{CtrlZ}{CtrlShiftZ}",   "1| /  /    ", "changed 0>1 changed 1>0 value changed 0>1 value"},
    {kUs, nullptr, "1{ReadOnly}{Undo}",      "1| /  /    ", "changed 0>1 read-only@1 beep"},
    {kUs, nullptr, "1{Undo}{ReadOnly}{Redo}", "|  /  /    ", "changed 0>1 changed 1>0 value read-only@0 beep"},
    // steps and choices tell of another value; where none comes of them, of none
    {kUsSpin, "|01/31/2024", "{Up}",         "[02]/29/2024", "changed value"},
    {kUsSpin, "|01/31/2024", "{ArrowUp}{ArrowDown}", "[01]/29/2024", "changed value changed value"},
    {kUsSpin, "|01/31/2024", "{WheelUp}{WheelStill}", "[02]/29/2024", "changed value"},
    {kUsSpin, "|01/31/2024", "{WheelStill}", "|01/31/2024", ""},
    {kUs, "|01/31/2024", "{WheelUp}{PageUp}{PageDown}", "|01/31/2024", ""},
    {kUsSpin, "02/15/|9999", "{Up}",         "02/15/|9999", "end of range@6 beep"},
    {kUsSpin, "02/15/|9999", "{Up}{Up}",     "02/15/|9999", "end of range@6 beep end of range@6 beep"},
    {kUsSpin, "02/15/|9999", "{HoldUp3}",    "02/15/|9999", "end of range@6 beep"},
    {kUsSpin, "02/15/|9999", "{WheelUp}{WheelUp}", "02/15/|9999", "end of range@6 beep"},
    {kUsSpin, "02/15/|9998", "{HoldUp3}{HoldUp1}", "02/15/[9999]", "changed value end of range@6 beep end of range@6 beep"},
    {kUsSpin, "01/31/|2024", "{ReadOnly}{ArrowUp}", "01/31/|2024", "read-only@6 beep"},
    {kColours, "[Red]", "g",                 "[Green]", "changed value"},
    {kColours, "[Green]", "g{Pause}g",       "[Green]", "changed value changed value"},
    {kColours, "[Red]", "{Del}",             "[None]", "changed 4>0 value"},
    {kNoNull, "[Red]", "{Del}{Del}",         "|", "changed 4>0 value"},
    {kColours, "[Red]", "r",                 "[Red]", ""},
    // the last position is typed, or Right wants to go on: the focus may, unless what stands there is wrong
    {kSkipping, nullptr, "0704",             "07:04|", "changed 0>1 changed changed changed 1>4 full"},
    {kSkippingYear, nullptr, "0230202",      "02/30/202| ", "changed 0>1 changed changed changed changed changed changed"},
    {kSkippingYear, "02/30/202|4", "3",      "02/30/2023|", "changed"},
    {kSkippingYear, "02/28/202|4", "3",      "02/28/2023|", "changed full"},
    {kTimeSpin, "07:0|3", "4",               "07:04|", "changed"},
    {kSkipping, "07:0|4", "4",               "07:04|", "full"},
    {kSkipping, "07:0|4", "x",               "07:0|4", "wrong kind@4x beep"},
    {kSkipping, "07:04|", "{Right}",         "07:04|", "full"},
    {kSkipping, "07:0|4", "{Right}",         "07:04|", ""},
    {kSkipping, "07:04|", "{Down}",          "07:04|", ""},
    {kSkipping, "[07:04]", "{Right}",        "07:04|", ""},
    {kSkipping, "07:[04]", "{Right}",        "07:04|", ""},
    {kSkipping, "07:04|", "{ShiftRight}",    "07:04|", ""},
    {kSkipping, "99:99|", "{Right}",         "99:99|", ""},
    {kTimeSpin, "07:04|", "{Right}",         "07:04|", ""},
    {kSkippingWord, nullptr, "abc",          "abc|", "changed 0>4 changed changed full"},
    {kSkippingWord, "ab|c", "-",             "ab|c", "wrong kind@2- beep"},
    {kSkippingPrice, "0.0|0", "5",           "0.05|", "changed full"},
    {kSkippingFramed, "(555[)]", "{Right}",  "(555|)", ""},
    {kSkippingFramed, "(555|)", "{Right}",   "(555|)", "full"},
    // what shows the same may be another value: the empty number is no zero
    {kPrice, nullptr, "0",                   "0|.00", "0>4"},
    {kPrice, nullptr, "0{Undo}",             "|0.00", "0>4 4>0 value"},
    {kPrice, "1|.00", "1",                   "11|.00", "changed"},
    {kPrice, "11|.00", "{Bs}",               "1|.00", "changed"},
    // without a spin Up and Down move, as in any field
    {kUs, "12/|31/1999", "{Up}",             "1|2/31/1999", ""},
    {kUs, "12/|31/1999", "{Down}",           "12/3|1/1999", ""},
    // what a caret leaves is completed at once: one change
    {kUs, "1|", "{Set 1 /  /    }{Caret1}{CtrlRight}", "01/|  /    ", "update change 2>1 changed"},
    {kUs, nullptr, "1{ShiftLeft}",           "[1] /  /    ", "changed 0>1"},
    {kUs, nullptr, "123{ShiftLeft}{ShiftLeft}", "12[/0]3/    ", "changed 0>1 changed changed changed"},
    {kUs, nullptr, "1{Click4}",              "01/ | /    ", "changed 0>1 changed"},
    {kUs, nullptr, "1{Blur}{Blur}",          "0|1/  /    ", "changed 0>1 changed"},
    // what has been typed is typed on, but not behind a caret that was moved; a pause ends letters only
    {kTime, nullptr, "13{Pause}:30",         "13:30|", "changed 0>1 changed changed changed 1>4"},
    {kTime, nullptr, "13{CaretBehind0}{CaretBehind3}:", "13:|  ", "changed 0>1 changed"},
    {kColours, nullptr, "g{CaretBehind0}r",  "[Red]", "changed 0>4 value changed value"},
    {kHalves, nullptr, "1p{Caret3}m",        "01:|   PM", "changed 0>1 changed changed wrong kind@3m beep"},
    // a click stands where it may; a selection as it was made
    {kUs, "|12/31/1999", "{ShiftClick5}",    "[12/31]/1999", ""},
    {kUs, "12|/31/1999", "{ShiftClick5}",    "12[/31]/1999", ""},
    {kUs, "|12/31/1999", "{Click2}",         "12/|31/1999", ""},
};
TEST_ROWS(Acts, ModernTells, kTold);
// clang-format on

class ModernTellsBesides : public RowTest<ToldRow> {};

ROW_TEST(ModernTellsBesides, WhatAProgramDoes)
{
    ExpectTold(GetParam());
}

// clang-format off
const ToldRow kToldBesides[] = {
    // what a program sets is a change of its own
    {kPhone, nullptr, "{Data 555}",          "(|555)    -    ", "layout update change layout 0>1"},
    {kFree, nullptr, "{Data 555}",           "|555", "layout update change layout 0>4"},
    {kPhone, nullptr, "{Set (555)    -    }", "|(555)    -    ", "update change 0>1"},
    {kUs, nullptr, "1{Behind 07/04/2024}{Caret5}", "07/04|/2024", "changed 0>1 update change"},
    // a field that takes less than is put there has it set
    {kPrice, "1|.00", "{Limit4}1",           "11|.00", "off on limit update change update change"},
};
TEST_ROWS(Acts, ModernTellsBesides, kToldBesides);
// clang-format on

// ---- what is one step of the history

struct HistoryRow {
    const TypingSetup& setup;
    const char* before;
    const char* keys;
    const char* after;
};
void PrintTo(const HistoryRow& row, std::ostream* out)
{
    *out << row.setup.mask << " \"" << (row.before ? row.before : "") << "\": " << row.keys;
}

class ModernHistory : public RowTest<HistoryRow> {};

ROW_TEST(ModernHistory, IsOfSteps)
{
    Played played(GetParam().setup);
    played.Show(GetParam().before);
    played.Play(GetParam().keys);
    EXPECT_EQ(played.Shown(), GetParam().after);
}

// clang-format off
const HistoryRow kHistory[] = {
    // a run of typing is one step, up to a pause of a second
    {kWord, nullptr, "ab{Pause999}c{Undo}",  "|     "},
    {kWord, nullptr, "ab{Pause1000}c{Undo}", "ab|   "},
    {kWord, nullptr, "ab{Pause999}c{Pause999}d{Undo}", "|     "},
    {kWord, nullptr, "{Pause4294966796}ab{Pause600}c{Undo}", "|     "},  // the clock goes round
    {kWord, nullptr, "ab{Left}c{Undo}",      "a|b   "},
    {kWord, nullptr, "ab{Home}{End}c{Undo}", "ab|   "},
    {kWord, nullptr, "ab{Click2}c{Undo}",    "|     "},
    {kWord, nullptr, "ab{Click1}{Click2}c{Undo}", "ab|   "},
    {kWord, nullptr, "ab{Caret1}{Caret2}c{Undo}", "ab|   "},
    {kWord, nullptr, "ab{Blur}c{Undo}",      "ab|   "},
    {kWord, nullptr, "ab-c{Undo}",           "|     "},
    {kWord, nullptr, "ab{Bs}c{Undo}{Undo}{Undo}", "|     "},
    {kWord, nullptr, "ab{Bs}c{Undo}{Undo}",  "ab|   "},
    {kWord, nullptr, "ab{Undo}cd{Undo}",     "|     "},
    {kWord, nullptr, "ab{Left}{Right}c{Undo}{Redo}d{Undo}", "abc|  "},
    {kWord, nullptr, "ab{Undo}{Redo}c{Undo}", "ab|   "},
    {kWord, nullptr, "ab{Undo}c{Redo}",      "c|    "},
    {kWord, nullptr, "a{Left}b{Home}c{Undo}{Undo}d{Redo}{Redo}", "d|    "},
    // deletion is another run, in both directions; a selection taken out is a step of its own
    {kWord, "abcde|", "{Bs}{Bs}{Undo}",      "abcde|"},
    {kWord, "ab|cde", "{Bs}{Del}{Undo}",     "ab|cde"},
    {kWord, "abcde|", "{Bs}{Pause}{Bs}{Undo}", "abcd| "},
    {kWord, "a|bcde", "{Bs}x{Undo}",         "| " "bcde"},
    {kWord, "a|bcde", "x{Clear}y{Undo}",     "a|bcde"},
    {kWord, "[ab]cde", "{Clear}x{Undo}",     "|  cde"},
    {kWord, "ab[cd]e", "{Clear}{Bs}{Undo}",  "ab|  e"},
    {kPrice, "|1,234.50", "{Del}{Del}{Undo}",    "|1,234.50"},
    {kPrice, "|1,234.50", "{Del}{ShiftLeft}{Del}{Undo}", "|234.50"},
    {kWord, nullptr, "a{Copied bc}{Paste}d{Undo}", "abc|  "},
    {kWord, nullptr, "a{Copied bc}{Paste}{Undo}", "a|    "},
    {kWord, nullptr, "{Copied b}{Paste}{Paste}{Undo}", "b|    "},
    {kPhone, nullptr, "555{ReadOnly}1{Writable}2{Undo}", "(|   )    -    "},
    // what completes a field belongs to the typing, and ends it
    {kUs, nullptr, "1{CtrlRight}{Undo}",     "|  /  /    "},
    {kUs, nullptr, "1{CtrlRight}{Undo}{Redo}", "01/|  /    "},
    {kUs, nullptr, "1{Blur}{Undo}{Redo}",    "0|1/  /    "},
    {kUs, nullptr, "1{Blur}{Caret3}2{Undo}", "01/|  /    "},
    {kUs, nullptr, "1{CtrlRight}23{Undo}",   "01/|  /    "},
    {kUs, "1| /  /    ", "{CtrlRight}{Undo}", "1| /  /    "},
    {kUs, "1| /  /    ", "{CtrlRight}2{Undo}{Undo}", "1| /  /    "},
    {kUs, "1| /  /    ", "{Blur}{Undo}",     "1| /  /    "},
    {kUs, "1| /  /    ", "{Caret3}{Undo}",   "1| /  /    "},
    {kUs, nullptr, "12{Undo}1{Undo}{Redo}{CtrlRight}{Undo}", "|  /  /    "},
    {kUs, "1| /  /    ", "{Caret3}2{Undo}",  "01/|  /    "},
    {kWord, nullptr, "ab{Home}{Blur}{Undo}{Redo}", "ab|   "},
    {kWord, "|abcde", "a{Undo}",             "a|bcde"},
    {kWord, nullptr, "a{Pause}b{Undo}c{Undo}{Undo}", "|     "},
    {kUs, nullptr, "1{Left}2{Undo}{CtrlRight}{Undo}", "|1 /  /    "},
    {kUs, nullptr, "1{Undo}{Set 2 /  /    }{Caret1}{Blur}{Undo}", "2| /  /    "},
    // steps: of one held key or arrow, or of a wheel, one
    {kUsSpin, "|01/31/2024", "{Up}{Up}{Undo}", "[02]/29/2024"},
    {kUsSpin, "|01/31/2024", "{HoldUp3}{Undo}", "|01/31/2024"},
    {kUsSpin, "|01/31/2024", "{HoldUp3}",    "[05]/29/2024"},
    {kUsSpin, "|05/31/2024", "{HoldDown2}{Undo}", "|05/31/2024"},
    {kUsSpin, "01/31/|2024", "{HoldPageUp2}{Undo}", "01/31/|2024"},
    {kUsSpin, "|01/31/2024", "{HoldUp1}{HoldUp1}{Undo}", "[03]/29/2024"},
    {kUsSpin, "|01/31/2024", "{ArrowUp}{ArrowUp}{Undo}", "[02]/29/2024"},
    {kUsSpin, "|01/31/2024", "{WheelUp}{WheelDown}{WheelUp}{Undo}", "|01/31/2024"},
    {kUsSpin, "|01/31/2024", "{WheelUp}{Up}{Undo}", "[02]/29/2024"},
    {kUsSpin, "0|1/31/2024", "{Bs}{WheelUp}{Undo}", "|1 /31/2024"},
    {kColours, "[Red]", "{WheelUp}{WheelUp}{Undo}", "[Red]"},
    {kColours, "[Red]", "{Up}{End}{Undo}",   "[Green]"},
    {kColours, "[Red]", "{WheelUp}{End}{Undo}", "[Green]"},
    {kColours, "[Red]", "{Home}{Undo}",      "[Red]"},
    // what a program does empties it; other than to put in what may be undone
    {kWord, nullptr, "ab{Set cd}{Undo}",     "|cd"},
    {kWord, nullptr, "ab{Set ab   }{Caret2}{Undo}", "ab|   "},
    {kWord, nullptr, "ab{Data cd}{Undo}",    "|cd   "},
    {kWord, nullptr, "ab{Data ab}{Caret2}{Undo}", "ab|   "},
    {kWord, nullptr, "ab{NoUndo}{Undo}",     "ab|   "},
    {kWord, nullptr, "ab{Undo}{NoUndo}{Redo}", "|     "},
    {kWord, nullptr, "ab{Undo}{NoUndo}c{Undo}", "|     "},
    {kWord, nullptr, "ab{NoUndo}c{Undo}",    "ab|   "},
    {kWord, nullptr, "ab{Insert cd}{Undo}",  "ab|   "},
    {kWord, nullptr, "ab{InsertForGood cd}{Undo}", "abcd| "},
    {kWord, nullptr, "ab{InsertForGood cd}e{Undo}", "abcd| "},
    {kWord, nullptr, "ab{Behind cd   }{Undo}", "|cd   "},
    {kWord, nullptr, "ab{Undo}{Behind cd   }{Redo}", "|cd   "},
    {kWord, nullptr, "ab{Behind cd   }{Behind ab   }{Caret2}{Undo}", "|     "},  // nobody has noticed
    {kWord, nullptr, "ab{Behind cd   }x{Undo}", "|cd   "},
    // text and selection come back, and emptiness
    {kWord, "a[bcd]e", "x{Undo}",            "a[bcd]e"},
    {kWord, "a[bcd]e", "x{Home}{Undo}{Redo}", "ax|  e"},
    {kWord, "[abcde]", "{Copied xy}{Paste}{Undo}", "[abcde]"},
    {kPrice, "[12.50]", "{Del}{Undo}",       "[12.50]"},
};
TEST_ROWS(Rows, ModernHistory, kHistory);
// clang-format on

// A hundred steps, of which the oldest is forgotten first.
TEST(ModernHistory, HasAHundredSteps)
{
    Played played(kUsSpin);
    played.Show("01/15/|2000");
    for (int i = 0; i < 101; ++i)
        played.Play("{Up}");
    EXPECT_EQ(played.Record().editor->UndoSteps(), 100u);
    EXPECT_EQ(played.Shown(), "01/15/[2101]");
    for (int i = 0; i < 99; ++i)
        played.Play("{Undo}");
    EXPECT_EQ(played.Shown(), "01/15/[2002]");
    played.Play("{Undo}");
    EXPECT_EQ(played.Shown(), "01/15/[2001]");
    played.Play("{Undo}");
    EXPECT_EQ(played.Shown(), "01/15/[2001]");
    for (int i = 0; i < 101; ++i)
        played.Play("{Redo}");
    EXPECT_EQ(played.Shown(), "01/15/[2101]");
}

TEST(ModernHistory, TellsWhetherThereIsAStepToTake)
{
    Played played(kWord);
    EditInstance& edit = played.Record();
    const Editing& editing = EditingOf(edit);
    EXPECT_EQ(editing.canUndo(edit).result, 0);
    EXPECT_EQ(editing.undo(edit).result, 0);
    EXPECT_EQ(editing.redo(edit).result, 0);
    played.Play("ab");
    EXPECT_EQ(editing.canUndo(edit).result, 1);
    EXPECT_FALSE(edit.editor->CanRedo());
    EXPECT_EQ(editing.undo(edit).result, 1);
    EXPECT_TRUE(edit.editor->CanRedo());
    EXPECT_EQ(editing.redo(edit).result, 1);
    EXPECT_EQ(editing.redo(edit).result, 0);
    played.Edit().SetReadOnly(true);
    EXPECT_EQ(editing.undo(edit).result, 0);
    EXPECT_EQ(editing.canUndo(edit).result, 1);
    played.Play("{Behind cd   }");
    EXPECT_EQ(editing.canUndo(edit).result, 0);
}

// ---- keys, as the messages bring them

// What is the form's gets the answer of a key that an edit has handled.
TEST(ModernKeys, LeaveTheFormsKeysToTheForm)
{
    Played played(kUsSpin);
    EditInstance& edit = played.Record();
    const Editing& editing = EditingOf(edit);
    for (const uint32_t typed : {9u, 10u, 13u, 27u}) {
        EXPECT_TRUE(editing.character(edit, typed, 0).kept) << typed;
        EXPECT_EQ(editing.character(edit, typed, 0).result, 0) << typed;
    }
    EXPECT_EQ(editing.character(edit, 2, 0).result, 1);
    EXPECT_EQ(editing.character(edit, '1', 0).result, 1);
    EXPECT_FALSE(editing.character(edit, 3, 0).kept);
    EXPECT_TRUE(editing.keyDown(edit, KEY_TAB << 16, 0).kept);
    EXPECT_EQ(editing.keyDown(edit, KEY_TAB << 16, 0).result, 0);
    EXPECT_FALSE(editing.keyDown(edit, KEY_TAB, 0).kept);
    EXPECT_FALSE(editing.keyDown(edit, KEY_SHIFT << 16, 0).kept);
    EXPECT_FALSE(editing.keyUp(edit, KEY_TAB).kept);
}

TEST(ModernKeys, AndTheWheelAnswerAsTheSystemWantsIt)
{
    Played played(kUsSpin);
    EditInstance& edit = played.Record();
    EXPECT_TRUE(EditingOf(edit).wheel(edit, 1).kept);
    EXPECT_EQ(EditingOf(edit).wheel(edit, 0).result, 0);
    EXPECT_EQ(EditingOf(edit).doubleClick(edit, 1).result, 0);
    EXPECT_TRUE(EditingOf(edit).doubleClick(edit, 1).kept);
    EXPECT_EQ(EditingOf(edit).emptyUndo(edit).result, 0);
    EXPECT_TRUE(EditingOf(edit).emptyUndo(edit).kept);
    EXPECT_TRUE(EditingOf(edit).beforeClick(edit));
    played.Show("12|/31/1999");
    EXPECT_TRUE(EditingOf(edit).afterClick(edit));  // the caret was put right
    EXPECT_FALSE(EditingOf(edit).afterClick(edit));
    played.Show("12[/3]1/1999");
    EXPECT_FALSE(EditingOf(edit).afterClick(edit));
    Played noSpin(kUs);
    EXPECT_FALSE(EditingOf(noSpin.Record()).wheel(noSpin.Record(), 1).kept);
}

// No text at all replaces a selection by nothing.
TEST(ModernKeys, AProgramMayReplaceASelectionByNothing)
{
    Played played(kWord);
    played.Show("a[bc]de");
    EXPECT_TRUE(EditingOf(played.Record()).replaceSelection(played.Record(), nullptr, true).kept);
    EXPECT_EQ(played.Shown(), "a|  de");
    EXPECT_EQ(played.Record().editor->UndoSteps(), 1u);
}

// The keypad's decimal key is the point wherever the point is a comma; the full stop is what separates thousands there.
TEST(ModernKeys, TheKeypadsDecimalKeyIsThePoint)
{
    Played played(kPrice);
    played.Regional().decimalChar = ',';
    played.Regional().thousandChar = '.';
    TrySetDataString(played.Record(), nullptr);
    played.Play("1{Point}5");
    EXPECT_EQ(played.Shown(), "1,5|0");
    played.Play("{All}1.5");
    EXPECT_EQ(played.Shown(), "15|,00");
    played.Play("{All}1{Point}{Caret1}.5");  // once
    EXPECT_EQ(played.Shown(), "15|,00");
    for (const int32_t beside : {0x6D, 0x6F, 0}) {
        played.Play("{All}1");
        played.Control().KeyDown(beside);
        played.Play(".5");
        EXPECT_EQ(played.Shown(), "15|,00") << beside;
    }
    played.Play("{All}1");
    played.Control().KeyDown(0x6E);
    played.Control().KeyDown(KEY_SHIFT);  // another key before its character
    played.Play(".5");
    EXPECT_EQ(played.Shown(), "15|,00");
}

// A list without arrows is walked by keys and wheel as well.
TEST(ModernKeys, WalkAListThatHasNoSpin)
{
    Played played(kFree);
    EditInstance& edit = played.Record();
    EditingOf(edit).setSpin(edit, 1, nullptr, "Red\tr/Green\tg", SPINSTYLE_CODETABLE);
    ASSERT_EQ(edit.hwndSpin, nullptr);
    played.Play("{Down}");
    EXPECT_EQ(played.Shown(), "[Green]");
    played.Play("{PageDown}{WheelUp}");
    EXPECT_EQ(played.Shown(), "[Green]");
}

// ---- the field underneath

// One replacement of what differs, so that the parent hears of one change.
TEST(ModernField, IsChangedByOneReplacement)
{
    Spied spied({"MM/DD/YYYY", DT_DATE, nullptr, ZTEO_MODERN});
    spied.Show("12/31/19|99");
    spied.Type("0");
    EXPECT_EQ(spied.Spy().Calls(), (std::vector<std::string>{"Select 8-9", "ReplaceSelection", "Select 9-9"}));
    spied.Spy().Forget();
    spied.Type("9");
    EXPECT_EQ(spied.Spy().Calls(), (std::vector<std::string>{"Select 10-10"}));
    spied.Spy().Forget();
    spied.Control().KeyDown(KEY_RIGHT);
    EXPECT_EQ(spied.Spy().Calls(), (std::vector<std::string>{}));
}

TEST(ModernField, IsSetByAProgramWithTheCaretWhereEditingStarts)
{
    Spied framed({"(##", DT_STRING, nullptr, ZTEO_MODERN});
    framed.Spy().Forget();
    TrySetDataString(framed.Record(), "12");
    EXPECT_EQ(framed.Spy().Calls(), (std::vector<std::string>{"KeepLayout", "SetText", "KeepLayout", "Select 1-1"}));
    Spied free({"##", DT_STRING, nullptr, ZTEO_MODERN});
    free.Spy().Forget();
    TrySetDataString(free.Record(), "12");
    EXPECT_EQ(free.Spy().Calls(), (std::vector<std::string>{"KeepLayout", "SetText", "KeepLayout"}));
}

TEST(ModernField, OfLiteralsAloneHasNoPlaceToGoTo)
{
    Spied spied({"(-)", DT_STRING, nullptr, ZTEO_MODERN});
    spied.Spy().Forget();
    for (const int32_t key : {KEY_HOME, KEY_END, KEY_LEFT, KEY_RIGHT})
        spied.Control().KeyDown(key);
    EXPECT_EQ(spied.Spy().Calls(), (std::vector<std::string>{}));
}

TEST(ModernField, CopiesWhatIsCutAndNothingWithoutASelection)
{
    Spied spied({"MM/DD/YYYY", DT_DATE, nullptr, ZTEO_MODERN});
    spied.Show("12/31/19|99");
    spied.Control().Cut();
    EXPECT_EQ(spied.Spy().Count("CopySelection"), 0);
    spied.Show("12/31/[1999]");
    spied.Control().Cut();
    EXPECT_EQ(spied.Spy().Count("CopySelection"), 1);
    EXPECT_EQ(spied.Edit().ReadClipboard().value_or(""), "1999");
}

// ---- a parent that acts in its notifications

// Answers the first event of a kind by an act of its own.
class Answering final : public FieldListener {
public:
    Answering(const TypingSetup& setup, FieldEvent event, void (*act)(MemoryControl&))
        : played_(setup), event_(event), act_(act)
    {
        played_.Edit().SetListener(this);
    }
    void OnFieldEvent(FieldEvent event) override
    {
        if (event == event_ && std::exchange(ready_, false))
            act_(played_.Control());
    }
    Played& Control() { return played_; }

private:
    Played played_;
    FieldEvent event_;
    void (*act_)(MemoryControl&);
    bool ready_ = true;
};

TEST(ModernParent, MayPutInAnotherValueWhichIsNotTheUsers)
{
    for (const FieldEvent event : {FieldEvent::Update, FieldEvent::Change}) {
        Answering parent(kUs, event, [](MemoryControl& control) { TrySetDataString(control.Record(), "1999-12-31"); });
        parent.Control().Play("4");
        EXPECT_EQ(parent.Control().Shown(), "|12/31/1999");
        EXPECT_FALSE(parent.Control().Edit().IsModified());
        EXPECT_EQ(parent.Control().Record().editor->UndoSteps(), 0u);
        EXPECT_EQ(parent.Control().Record().editor->State(), ZTS_COMPLETE);
    }
}

TEST(ModernParent, MayPutInAnotherTextWhichIsNotTheUsers)
{
    Answering parent(kUs, FieldEvent::Change, [](MemoryControl& control) { control.SetText("01/02/2003"); });
    parent.Control().Play("4");
    EXPECT_EQ(parent.Control().Shown(), "|01/02/2003");
    EXPECT_EQ(parent.Control().Record().editor->UndoSteps(), 0u);
    parent.Control().Play("{Undo}");
    EXPECT_EQ(parent.Control().Shown(), "|01/02/2003");
}

// The typing goes on although the parent has asked meanwhile.
TEST(ModernParent, MayAskForTheStateInTheMiddle)
{
    Answering parent(kTime, FieldEvent::Change,
                     [](MemoryControl& control) { EXPECT_EQ(StateOf(control.Record()), ZTS_INCOMPLETE); });
    parent.Control().Play("13:30");
    EXPECT_EQ(parent.Control().Shown(), "13:30|");
}

TEST(ModernParent, MaySetAValueWhereAnActIsRefused)
{
    Answering parent(kUs, FieldEvent::Rejected,
                     [](MemoryControl& control) { TrySetDataString(control.Record(), "1999-12-31"); });
    parent.Control().Play("x");
    EXPECT_EQ(parent.Control().Shown(), "|12/31/1999");
}

// ---- creation

TEST(ModernCreation, TellsNoStates)
{
    const Settings settings = StandardSettings();
    ControlSetup setup;
    setup.mask = "MM/DD/YYYY";
    setup.dataType = DT_DATE;
    setup.options = ZTEO_MODERN;
    setup.data = "1995-07-04";
    MemoryControl control(setup, settings, [] { return DateTimeValue{}; });
    EXPECT_EQ(control.Edit().Count(FieldEvent::State), 0);
    EXPECT_EQ(control.Record().editor->State(), ZTS_COMPLETE);
    TrySetDataString(control.Record(), nullptr);
    EXPECT_EQ(control.Edit().Count(FieldEvent::State), 1);
}

}  // namespace
}  // namespace zttest::typing
