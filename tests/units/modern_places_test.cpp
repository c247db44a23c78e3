// Strings, carets and lists of choices in modern controls, at their edges: literals in front and behind, fields without any, masks that
// are nothing else; and what is told.
#include <gtest/gtest.h>

#include "engine/editing.h"
#include "tests/support/rows.h"
#include "tests/units/modern_player.h"

namespace zttest::typing {
namespace {

using namespace zte;

constexpr TypingSetup kBracketed = {"(###)", DT_STRING};
constexpr TypingSetup kLoose = {"####", DT_STRING};
constexpr TypingSetup kMixed = {"!!##", DT_STRING};
constexpr TypingSetup kShare = {"##%", DT_STRING};
constexpr TypingSetup kOnlyLiterals = {"(-)", DT_STRING};
constexpr TypingSetup kStepped = {"(###)", DT_STRING, ZTEO_SPIN};
constexpr TypingSetup kSkippingBracketed = {"(###)", DT_STRING, ZTEO_AUTOSKIP};
constexpr TypingSetup kUnseparated = {"YYYYMMDD", DT_DATE};
constexpr TypingSetup kUneven = {"HH:MM AM/PM", DT_TIME, 0, nullptr, nullptr, "AM", "p.m."};
constexpr TypingSetup kUnevenMore = {"HH:MM AM/PM", DT_TIME, 0, nullptr, nullptr, "a.m.", "PM"};
constexpr TypingSetup kAlike = {"", DT_STRING, 0, "Grey\ty/Green\tg"};
constexpr TypingSetup kCrossed = {"", DT_STRING, 0, "A\tB/B\tA/b\tc"};
constexpr TypingSetup kOnlyOne = {"", DT_STRING, 0, "Only\to"};
constexpr TypingSetup kOneToChoose = {"", DT_STRING, 0, "Only\to/Never"};
constexpr TypingSetup kNoList = {"", DT_STRING, ZTEO_SPIN | ZTEO_CODE_DISPLAY};

class ModernPlaces : public RowTest<ToldRow> {};

ROW_TEST(ModernPlaces, TakeWhatBelongsThere)
{
    ExpectTold(GetParam());
}

// clang-format off
const ToldRow kStrings[] = {
    // a literal that is typed is gone to; one that only looks like it is none
    {kPhone, nullptr, "55)",                 "(55 ) |   -    ", "changed 0>1 changed"},
    {kPhone, "(|555) 123-4567", "-",         "(555) 123-|4567", ""},
    {kPhone, "(5|55) 123-4567", "(",         "(5|55) 123-4567", "wrong kind@2( beep"},
    {kPhone, "|(555) 123-4567", "(",         "(|555) 123-4567", ""},
    {kPhone, "(|555) 123-4567", "(",         "(|555) 123-4567", ""},
    {kPhone, "(555|) 123-4567", "9",         "(555) 9|23-4567", "changed"},
    {kPhone, "(555|) 123-4567", ")",         "(555) |123-4567", ""},
    {kPhone, "(555) 123-4567|", "-",         "(555) 123-4567|", "full@14- beep"},
    {kPlus, "|12+ab", "b",                   "|12+ab", "wrong kind@0b beep"},
    {kPlus, "12|+ab", "+",                   "12+|ab", ""},
    {kPlus, nullptr, "12-",                  "12+-| ", "changed 0>1 changed 1>4 changed"},
    {kPlus, nullptr, "12++",                 "12++| ", "changed 0>1 changed 1>4 changed"},
    {kPlus, nullptr, "1++",                  "1 ++| ", "changed 0>1 changed"},
    {kHalfFirst, "junk|", "0130",            "AM 01:30|", "changed 2>1 changed changed changed 1>4"},
    {kSkippingBracketed, nullptr, "5)",      "(5  )|", "changed 0>1"},
    {kSkippingBracketed, nullptr, "555",     "(555)|", "changed 0>1 changed changed 1>4 full"},
    // a separator of one's own stands for those just passed, once
    {kPhone, nullptr, "555-",                "(555) |   -    ", "changed 0>1 changed changed"},
    {kPhone, nullptr, "555--",               "(555)    -|    ", "changed 0>1 changed changed"},
    {kPhone, nullptr, "555{Pause}-",         "(555) |   -    ", "changed 0>1 changed changed"},
    {kPhone, nullptr, "555x",                "(555) |   -    ", "changed 0>1 changed changed wrong kind@6x beep"},
    {kPhone, "(|555) 123-4567", " ",         "( |55) 123-4567", "changed 4>1"},
    // digits are required where there are literals
    {kLoose, nullptr, "12",                  "12|  ", "changed 0>4 changed"},
    {kBracketed, nullptr, "12",              "(12| )", "changed 0>1 changed"},
    // deletion keeps to its place
    {kPhone, "(555)  | 1-4567", "{CtrlBs}",  "(555) |  1-4567", ""},
    {kPlate, "AB-12|3", "{CtrlBs}",          "AB-|  3", "changed 4>1"},
    {kMixed, "AB12|", "{CtrlBs}",            "|    ", "changed 4>0"},
    {kMixed, "|AB12", "{CtrlDel}",           "|    ", "changed 4>0"},
    {kPhone, "(555) |123-4567", "{CtrlDel}", "(555) |   -4567", "changed 4>1"},
    {kWord, "abcde|", "{Del}{CtrlDel}",      "abcde|", ""},
    {kWord, "|abcde", "{Bs}{CtrlBs}",        "|abcde", ""},
    {kBracketed, "(555[)]", "{Clear}",       "(555|)", ""},
    {kBracketed, "(555)|", "{Bs}",           "(55| )", "changed 4>1"},
    {kBracketed, "(555)|", "{Del}",          "(555)|", ""},
    {kBracketed, "|(555)", "{Del}",          "(| 55)", "changed 4>1"},
    {kBracketed, "|(555)", "{Bs}",           "|(555)", ""},
    // a text that does not fit, or could not have been typed, is no value, and gives way to the blank one
    {kPhone, nullptr, "{Set (555)x123-4567}", "|(555)x123-4567", "update change 0>2"},
    {kPhone, nullptr, "{Set (55x) 123-4567}", "|(55x) 123-4567", "update change 0>2"},
    {kPhone, nullptr, "{Set (555) 123-45678}", "|(555) 123-45678", "update change 0>2"},
    {kPhone, "ju|nk", "{Bs}",                "(|   )    -    ", "changed 2>0"},
    {kPhone, "ju|nk", "{Clear}",             "ju|nk", ""},
    {kPhone, "ju|nk", "x",                   "ju|nk", "wrong kind@2x beep"},
    // paste: literals and separators fall into their places
    {kShare, nullptr, "{Copied -12%}{Paste}", "12|%", "changed 0>4"},
    {kPhone, "|(555) 123-4567", "{Copied 9}{Paste}", "(9|55) 123-4567", "changed"},
    {kPhone, "(555) |123-4567", "{Copied -9}{Paste}", "(555) 9|23-4567", "changed"},
    {kPhone, "(555) |123-4567", "{Copied  9}{Paste}", "(555) 9|23-4567", "changed"},
    {kPhone, "(555|) 123-4567", "{Copied 9}{Paste}", "(555) 9|23-4567", "changed"},
    {kPhone, nullptr, "{Copied 555\t1}{Paste}", "(|   )    -    ", "wrong kind@3 beep"},
    // nothing to step
    {kStepped, "(555|)", "{Up}",             "(555|)", "end of range@4 beep"},
    // a mask of literals alone
    {kOnlyLiterals, nullptr, "{Home}{End}{Left}{Right}{CtrlLeft}{CtrlRight}{Click1}{Bs}{Del}{CtrlBs}{CtrlDel}{Clear}", "|(-)", ""},
    {kOnlyLiterals, nullptr, "{Double1}",    "[(-)]", ""},
    {kOnlyLiterals, nullptr, "1",            "|(-)", "full@01 beep"},
};
TEST_ROWS(Strings, ModernPlaces, kStrings);

const ToldRow kCarets[] = {
    {kPhone, "(555|) 123-4567", "{CtrlRight}", "(555) |123-4567", ""},
    {kPhone, "(555|) 123-4567", "{Right}",   "(555) |123-4567", ""},
    {kUs, "12/[31]/1999", "{CtrlLeft}",      "|12/31/1999", ""},
    {kUs, "12/[31]/1999", "{CtrlRight}",     "12/31/|1999", ""},
    {kUs, "12/[31]/1999", "{Left}",          "12/|31/1999", ""},
    {kUs, "[1]2/31/1999", "{Right}",         "1|2/31/1999", ""},
    {kUs, "12/[31]/1999", "{End}",           "12/31/1999|", ""},
    {kPhone, "(555) 123-4567|", "{Click4}",  "(55|5) 123-4567", ""},
    {kPhone, "(555) 123-4567|", "{Click5}",  "(555) |123-4567", ""},
    {kPhone, "(555) 123-4567|", "{Click0}",  "(|555) 123-4567", ""},
    {kPhone, "(|555) 123-4567", "{Click14}", "(555) 123-4567|", ""},
    {kFramed, "(12/31/|99)", "{Click10}",    "(12/31/99|)", ""},
    {kFramed, "(12/31/|99)", "{Click0}",     "(|12/31/99)", ""},
    {kFramed, "(12/31/|99)", "{Click9}",     "(12/31/99|)", ""},
    {kHalves, "01:30 PM|", "{Click7}",       "01:30 |PM", ""},
    {kPhone, "(|555) 123-4567", "{Double4}", "([555]) 123-4567", ""},
    {kPhone, "(|555) 123-4567", "{Double5}", "(555) [123]-4567", ""},
    {kPhone, "(|555) 123-4567", "{Double0}", "([555]) 123-4567", ""},
    {kBracketed, "(|555)", "{Double5}",      "([555])", ""},
    {kNote, "| one    ", "{Double2}",        "[ one    ]", ""},
    {kNote, "|a   b   ", "{Double2}",        "[a   b   ]", ""},
    {kNote, "|a   b   ", "{Double4}",        "a   [b]   ", ""},
    // fields that nothing separates are fields; a string's positions are one place
    {kUnseparated, nullptr, "20240704",            "20240704|", "changed 0>1 changed changed changed changed changed changed changed 1>4"},
    {kUnseparated, "2024|0704", "{CtrlDel}",       "2024|  04", "changed 4>1"},
    {kUnseparated, "|20240704", "{CtrlRight}{CtrlRight}", "202407|04", ""},
    // a blank designator is as wide as the wider one
    {kUneven, nullptr, "",                   "|  :       ", ""},
    {kUnevenMore, nullptr, "",               "|  :       ", ""},
    {kUneven, nullptr, "1130",               "11:30 |AM", "changed 0>1 changed changed changed 1>4"},
};
TEST_ROWS(Carets, ModernPlaces, kCarets);

const ToldRow kChoices[] = {
    // the first of those that begin alike, from the one shown on
    {kAlike, "[Blue]", "g",                  "[Grey]", "changed 2>4 value"},
    {kAlike, nullptr, "gg",                  "[Green]", "changed 0>4 value changed value"},
    {kAlike, nullptr, "ggr",                 "[Green]", "changed 0>4 value changed value"},
    {kAlike, nullptr, "gr",                  "[Grey]", "changed 0>4 value"},
    {kColours, nullptr, "gr",                "[Green]", "changed 0>4 value"},
    {kColours, nullptr, "gl",                "[Green]", "changed 0>4 value no such entry@0l beep"},
    {kColours, nullptr, "greyx",             "[Grey]", "changed 0>4 value changed value no such entry@0x beep"},
    // paste: what is shown, before what it stands for, before what differs in case
    {kColours, "[Red]", "{Copied g}{Paste}", "[Green]", "changed value"},
    {kColours, "[Red]", "{Copied GREEN}{Paste}", "[Green]", "changed value"},
    {kCrossed, "[B]", "{Copied A}{Paste}",   "[A]", "changed value"},
    {kCrossed, "[A]", "{Copied b}{Paste}",   "[b]", "changed value"},
    {kCrossed, "[A]", "{Copied B}{Paste}",   "[B]", "changed value"},
    {kCrossed, "[A]", "{Copied c}{Paste}",   "[b]", "changed value"},
    {kCrossed, "[B]", "{Copied a}{Paste}",   "[A]", "changed value"},
    {kCrossed, "[B]", "{Copied x}{Paste}",   "[B]", "no such entry@0 beep"},
    // steps: one goes round, more stop
    {kColours, "[Red]", "{Down}",            "[None]", "changed 4>0 value"},
    {kColours, "[None]", "{Up}",             "[Red]", "changed 0>4 value"},
    {kColours, "[Blue]", "{Down}",           "[None]", "changed 2>0 value"},
    {kColours, "[Blue]", "{Up}",             "[Red]", "changed 2>4 value"},
    {kColours, "[Blue]", "{PageUp}",         "[Red]", "changed 2>4 value"},
    {kColours, "[Blue]", "{PageDown}",       "[None]", "changed 2>0 value"},
    {kColours, "[None]", "{PageUp}",         "[None]", "end of range@0 beep"},
    {kColours, "[None]", "{End}",            "[None]", "end of range@0 beep"},
    {kColours, "[Red]", "{Home}",            "[Red]", "end of range@0 beep"},
    {kOnlyOne, "[Only]", "{Up}{Down}{PageUp}", "[Only]", ""},
    {kOneToChoose, "[Only]", "{Up}",         "[Only]", ""},
    {kOneToChoose, "[Never]", "{Up}",        "[Only]", "changed 2>4 value"},
    {kNoList, nullptr, "{Up}",               "|", "end of range@0 beep"},
    {kNoList, nullptr, "x",                  "|", "no such entry@0x beep"},
    // the caret may be moved
    {kColours, "[Green]", "{Left}",          "|Green", ""},
    {kColours, "[Green]", "{Right}",         "Green|", ""},
    {kColours, "Gr|een", "{Left}",           "G|reen", ""},
    {kColours, "Gr|een", "{Right}",          "Gre|en", ""},
    {kColours, "Gr|een", "{Double1}",        "[Green]", ""},
    {kColours, "Gr|een", "{Click3}",         "Gre|en", ""},
};
TEST_ROWS(Choices, ModernPlaces, kChoices);
// clang-format on

}  // namespace
}  // namespace zttest::typing
