// Key and character messages one by one, in orders that no keyboard sends too: the reply, and what is asked of the field.
#include <gtest/gtest.h>

#include "engine/edit/deletion.h"
#include "engine/edit/key_down.h"
#include "engine/edit/keyboard.h"
#include "tests/support/rows.h"
#include "tests/units/field_spy.h"

namespace zttest {
namespace {

using namespace zte;

constexpr uint32_t kLetterA = 'A';  // a key that the engine has no use for
constexpr uint32_t kCharBackspace = 8;
constexpr KeyData kData = 5;

constexpr SpiedSetup kDate = {"MM/DD/YY", DT_DATE};
constexpr SpiedSetup kNumber = {"#,##0.00", DT_NUMBER};
constexpr SpiedSetup kString = {"XXXX", DT_STRING};
constexpr SpiedSetup kMoney = {"[currency(8)]", DT_DECIMAL};
constexpr const char* kCodes = "Red\tR/Green\tG";
constexpr SpiedSetup kCodeField = {"", DT_STRING, kCodes, ZTEO_SPIN | ZTEO_CODE_DISPLAY};
constexpr SpiedSetup kMaskedCodeField = {"XXXXX", DT_STRING, kCodes, ZTEO_SPIN | ZTEO_CODE_DISPLAY};
constexpr SpiedSetup kPickList = {"", DT_STRING, kCodes, ZTEO_SPIN | ZTEO_CODE_DISPLAY | ZTEO_CODE_PICK};
constexpr SpiedSetup kMaskedPickList = {"XXXXX", DT_STRING, kCodes, ZTEO_SPIN | ZTEO_CODE_DISPLAY | ZTEO_CODE_PICK};
constexpr SpiedSetup kPlainEditWithPick = {"XXXXX", DT_STRING, kCodes, ZTEO_SPIN | ZTEO_CODE_PICK};

// ---- which keys matter on their way down

TEST(KeyDowns, MatterWhereTheyMoveDeleteOrAreMarkedByTheHost)
{
    for (uint32_t key = 0; key < 0x100; ++key) {
        const bool moves = key >= KEY_PAGE_UP && key <= KEY_DELETE;
        EXPECT_EQ(ConcernsKeyDown(key), key == KEY_BACKSPACE || moves) << key;
    }
    EXPECT_FALSE(ConcernsKeyDown(0x8000 + kLetterA));
    EXPECT_TRUE(ConcernsKeyDown(0x10000 + kLetterA));
    EXPECT_TRUE(ConcernsKeyDown(KEY_TAB << 16));
}

// ---- replies

struct ReplyRow {
    const char* name;
    SpiedSetup setup;
    const char* before;
    bool readOnly;
    uint32_t typed;
    bool kept;
    intptr_t result;
    const char* after;
    int beeps;
};
void PrintTo(const ReplyRow& row, std::ostream* out)
{
    *out << row.name;
}

class CharReply : public RowTest<ReplyRow> {};

ROW_TEST(CharReply, Is)
{
    const ReplyRow& row = GetParam();
    Spied spied(row.setup);
    spied.Show(row.before);
    spied.Edit().SetReadOnly(row.readOnly);
    spied.Edit().SetClipboard(FromAscii("1996-07-05"));
    const Reply reply = OnChar(spied.Record(), row.typed, kData);
    EXPECT_EQ(reply.kept, row.kept);
    if (row.kept) {
        EXPECT_EQ(reply.result, row.result);
    }
    EXPECT_EQ(spied.Shown(), row.after);
    EXPECT_EQ(spied.Beeps(), row.beeps);
}

// clang-format off
const ReplyRow kReplies[] = {
    {"CopyIsTheFields",                 kDate,      "[07]/04/95", false, 3,    false, 0, "[07]/04/95", 0},
    {"CtrlDIsTheFields",                kDate,      "[07]/04/95", false, 4,    false, 0, "[07]/04/95", 0},
    {"CtrlEIsRefused",                  kDate,      "[07]/04/95", false, 5,    true,  1, "[07]/04/95", 1},
    {"TabIsLeftToTheForm",              kDate,      "[07]/04/95", false, 9,    true,  0, "[07]/04/95", 0},
    {"LineFeedIsLeftToTheForm",         kDate,      "[07]/04/95", false, 10,   true,  0, "[07]/04/95", 0},
    {"EscapeIsLeftToTheForm",           kDate,      "[07]/04/95", false, 27,   true,  0, "[07]/04/95", 0},
    {"CtrlKIsRefused",                  kDate,      "[07]/04/95", false, 11,   true,  1, "[07]/04/95", 1},
    {"CtrlVPastes",                     kDate,      "[07]/04/95", false, 22,   true,  1, "|07/05/96",  0},
    {"ADigitIsKept",                    kDate,      "|07/04/95",  false, '1',  true,  1, "1|0/04/95",  0},
    {"ReadOnlyKeepsALetter",            kDate,      "[07]/04/95", true,  'a',  true,  1, "[07]/04/95", 0},
    {"ReadOnlyKeepsCtrlE",              kDate,      "[07]/04/95", true,  5,    true,  1, "[07]/04/95", 0},
    {"ReadOnlyLeavesTabToTheForm",      kDate,      "[07]/04/95", true,  9,    true,  0, "[07]/04/95", 0},
    {"ReadOnlyLeavesLineFeed",          kDate,      "[07]/04/95", true,  10,   true,  0, "[07]/04/95", 0},
    {"ReadOnlyLeavesEscape",            kDate,      "[07]/04/95", true,  27,   true,  0, "[07]/04/95", 0},
    {"ReadOnlyCopies",                  kDate,      "[07]/04/95", true,  3,    false, 0, "[07]/04/95", 0},
    {"CodesWithoutMaskUndoNothing",     kCodeField, "[Re]d",      false, 26,   true,  1, "[Re]d",      0},
    {"CodesWithoutMaskAreSelected",     kCodeField, "[Re]d",      false, 1,    true,  1, "[Red]",      0},
    {"CodesWithoutMaskPassCtrlYOn",     kCodeField, "[Re]d",      false, 25,   false, 0, "[Re]d",      0},
    {"CodesWithoutMaskPassEscapeOn",    kCodeField, "[Re]d",      false, 27,   false, 0, "[Re]d",      0},
    {"CodesWithoutMaskPassCtrlEOn",     kCodeField, "[Re]d",      false, 5,    false, 0, "[Re]d",      0},
    {"CodesWithoutMaskPasteThemselves", kCodeField, "[Re]d",      false, 22,   false, 0, "[Re]d",      0},
    {"CodesWithoutMaskAreTypedInto",    kCodeField, "[Re]d",      false, 'x',  false, 0, "|d",         0},
    {"PickListKeepsCtrlE",              kPickList,  "[Re]d",      false, 5,    true,  1, "[Re]d",      0},
    {"PickListKeepsUndo",               kPickList,  "[Re]d",      false, 26,   true,  1, "[Re]d",      0},
    {"PickListKeepsEscape",             kPickList,  "[Re]d",      false, 27,   true,  1, "[Re]d",      0},
    {"PickListWithoutMaskIsCutByTheField", kPickList, "[Re]d",    false, 24,   false, 0, "[Re]d",      0},
    {"PickListIsNotPastedInto",   kMaskedPickList,  "[Re]d  ",    false, 22,   true,  1, "[Re]d  ",    0},
    {"PickListIsChosenFrom",            kPickList,  "[Re]d",      false, 'G',  true,  1, "|Green",     0},
};
// clang-format on
TEST_ROWS(Rows, CharReply, kReplies);

struct KeyReplyRow {
    const char* name;
    SpiedSetup setup;
    const char* before;
    uint32_t key;
    bool kept;
    intptr_t result;
    const char* after;
};
void PrintTo(const KeyReplyRow& row, std::ostream* out)
{
    *out << row.name;
}

class KeyReply : public RowTest<KeyReplyRow> {};

ROW_TEST(KeyReply, Is)
{
    const KeyReplyRow& row = GetParam();
    Spied spied(row.setup);
    spied.Show(row.before);
    const Reply reply = OnKeyDown(spied.Record(), row.key, kData);
    EXPECT_EQ(reply.kept, row.kept);
    if (row.kept) {
        EXPECT_EQ(reply.result, row.result);
    }
    EXPECT_EQ(spied.Shown(), row.after);
}

// clang-format off
const KeyReplyRow kKeyReplies[] = {
    {"BackspaceBetweenLiteralsIsKept",        kDate,   "07/04|/95", KEY_BACKSPACE,                   true,  1, "07/0[4]/95"},
    {"BackspaceInANumberIsKept",              kNumber, "1,2|34.50", KEY_BACKSPACE,                   true,  1, "1,2|34.50" },
    {"BackspaceOfASelectedNumberDeletes",     kNumber, "1,[2]34.50", KEY_BACKSPACE,                  true,  1, "1|34.50"   },
    {"BackspaceWithoutLiteralsIsTheFields",   kString, "ab|cd",     KEY_BACKSPACE,                   false, 0, "ab|cd"     },
    {"DeleteWithoutLiteralsIsTheFields",      kString, "ab|cd",     KEY_DELETE,                      false, 0, "ab|cd"     },
    {"TabIsPassedOn",                         kDate,   "07/|04/95", KEY_TAB,                         false, 0, "07/|04/95" },
    {"ATabMarkedByTheHostIsKept",             kDate,   "07/|04/95", KEY_TAB << 16 | KEY_TAB,         true,  0, "07/|04/95" },
    {"AKeyMarkedAsTabDoesNothing",            kDate,   "07/|04/95", KEY_TAB << 16 | KEY_DELETE,      true,  0, "07/|04/95" },
    {"AKeyMarkedAsAnotherIsPassedOn",         kDate,   "07/|04/95", KEY_SHIFT << 16 | KEY_DELETE,    false, 0, "07/|04/95" },
    {"AKeyMarkedAsHalfATabIsPassedOn",        kDate,   "07/|04/95", 0x00040000u | KEY_DELETE,        false, 0, "07/|04/95" },
    {"AKeyMarkedAsTwoTabsIsPassedOn",         kDate,   "07/|04/95", 0x00120000u | KEY_DELETE,        false, 0, "07/|04/95" },
};
// clang-format on
TEST_ROWS(Rows, KeyReply, kKeyReplies);

// ---- the character of a Backspace

// One step: a key down, a key up, or a character.
struct Step {
    enum Kind { Down, Up, Typed } kind;
    uint32_t number;
};
constexpr Step Down(uint32_t key)
{
    return {Step::Down, key};
}
constexpr Step Up(uint32_t key)
{
    return {Step::Up, key};
}
constexpr Step Typed(uint32_t character)
{
    return {Step::Typed, character};
}

struct BackspaceRow {
    const char* name;
    SpiedSetup setup;
    const char* before;
    std::vector<Step> steps;
    const char* after;
    int beeps;
};
void PrintTo(const BackspaceRow& row, std::ostream* out)
{
    *out << row.name;
}

class BackspaceChar : public RowTest<BackspaceRow> {};

ROW_TEST(BackspaceChar, Leaves)
{
    const BackspaceRow& row = GetParam();
    Spied spied(row.setup);
    spied.Show(row.before);
    for (const Step& step : row.steps) {
        if (step.kind == Step::Down)
            spied.Control().KeyDown(static_cast<int32_t>(step.number));
        else if (step.kind == Step::Up)
            spied.Control().KeyUp(static_cast<int32_t>(step.number));
        else
            spied.Control().Type(step.number);
    }
    EXPECT_EQ(spied.Shown(), row.after);
    EXPECT_EQ(spied.Beeps(), row.beeps);
}

constexpr Step kPressed = Down(KEY_BACKSPACE);
constexpr Step kReleased = Up(KEY_BACKSPACE);
constexpr Step kItsChar = Typed(kCharBackspace);

// clang-format off
const BackspaceRow kBackspaces[] = {
    {"DeletesADigit",                     kNumber, "12|3.00",   {kPressed, kItsChar},                         "1|3.00",   0},
    {"WithoutItsKeyDeletesNoDigit",       kNumber, "12|3.00",   {kItsChar},                                   "12|3.00",  1},
    {"WithoutItsKeyDeletesASelection",    kNumber, "1[2]3.00",  {kItsChar},                                   "1|3.00",   0},
    {"BehindItsReleaseDeletesNoDigit",    kNumber, "12|3.00",   {kPressed, kReleased, kItsChar},              "12|3.00",  1},
    {"BehindARepeatDeletesTwo",           kNumber, "12|3.00",   {kPressed, kItsChar, kPressed, kItsChar},     "|3.00",    0},
    {"BehindAnotherKeyDeletesNoDigit",    kNumber, "12|3.00",   {kPressed, Down(kLetterA), kItsChar},         "12|3.00",  1},
    {"OfASelectionIsSwallowed",           kNumber, "1[2]3.00",  {kPressed, kItsChar},                         "1|3.00",   0},
    {"IsSwallowedOnce",                   kNumber, "1[2]3.00",  {kPressed, kItsChar, kItsChar},               "1|3.00",   1},
    {"IsSwallowedBehindAnotherRelease",   kNumber, "1[2]3.00",  {kPressed, Up(kLetterA), kItsChar},           "1|3.00",   0},
    {"IsNotSwallowedBehindItsRelease",    kNumber, "1[2]3.00",  {kPressed, kReleased, kItsChar},              "1|3.00",   1},
    {"IsNotSwallowedBehindAnotherKey",    kNumber, "1[2]3.00",  {kPressed, Down(kLetterA), kItsChar},         "1|3.00",   1},
    {"LeavesOtherCharactersToBeTyped",    kNumber, "1[2]3.00",  {kPressed, Typed('7')},                       "17|3.00",  0},
    {"InAStringDeletes",                  kString, "ab|cd",     {kPressed, kItsChar},                         "a|cd",     0},
    {"WithoutItsKeyIsRefused",            kString, "ab|cd",     {kItsChar},                                   "ab|cd",    1},
    {"BehindItsReleaseIsRefused",         kString, "ab|cd",     {kPressed, kReleased, kItsChar},              "ab|cd",    1},
    {"BehindAnotherKeyIsRefused",         kString, "ab|cd",     {kPressed, Down(kLetterA), kItsChar},         "ab|cd",    1},
    {"LeavesAStringsCharactersToBeTyped", kString, "ab|cd",     {kPressed, Typed('x')},                       "abx|d",    0},
    {"BlanksADigit",                      kDate,   "07/04|/95", {kPressed, kItsChar},                         "07/0|0/95", 0},
    {"BlanksWhatCtrlAsks",                kDate,   "07/04|/95", {kPressed, Typed(127)},                       "07/0|0/95", 0},
    {"IsRefusedAtADigit",                 kDate,   "07/04|/95", {kItsChar},                                   "07/04|/95", 1},
    {"LeavesADatesDigitsToBeTyped",       kDate,   "07/04|/95", {kPressed, Typed('5')},                       "07/05/|95", 0},
};
// clang-format on
TEST_ROWS(Rows, BackspaceChar, kBackspaces);

TEST(BackspaceKey, IsMarkedInTheRecordUntilItsCharacterMayNoMoreCome)
{
    Spied spied(kNumber);
    spied.Show("12|3.00");
    spied.Control().KeyDown(KEY_BACKSPACE);
    EXPECT_EQ(spied.Record().deletePending, 1u);
    spied.Control().KeyUp(KEY_BACKSPACE);
    EXPECT_EQ(spied.Record().deletePending, 0u);
    Spied plain(kString);
    plain.Show("12|3");
    plain.Control().KeyDown(KEY_BACKSPACE);
    EXPECT_EQ(plain.Record().deletePending, 1u);
    plain.Control().KeyDown(KEY_HOME);
    EXPECT_EQ(plain.Record().deletePending, 0u);
}

TEST(BackspaceKey, OfAControlThatBecameReadOnlyIsEndedByItsCharacterAlone)
{
    Spied spied(kDate);
    spied.Show("07/04|/95");
    spied.Control().KeyDown(KEY_BACKSPACE);
    EXPECT_EQ(spied.Shown(), "07/0[4]/95");
    spied.Edit().SetReadOnly(true);
    spied.Control().Type('x');
    EXPECT_EQ(spied.Shown(), "07/0[4]/95");
    EXPECT_TRUE(spied.Edit().IsHeld(KEY_SHIFT));
    spied.Control().Type(kCharBackspace);
    EXPECT_EQ(spied.Shown(), "07/0|4/95");
    EXPECT_FALSE(spied.Edit().IsHeld(KEY_SHIFT));
    spied.Edit().SetReadOnly(false);
    spied.Control().Type(kCharBackspace);
    EXPECT_EQ(spied.Beeps(), 1) << "it has come already";
}

TEST(BackspaceKey, InAReadOnlyControlDoesNothing)
{
    Spied spied(kDate);
    spied.Show("07/[04]/95");
    spied.Edit().SetReadOnly(true);
    spied.Control().Type(kCharBackspace);
    EXPECT_EQ(spied.Shown(), "07/[04]/95");
}

TEST(HalfOfTheDay, StaysUnderADeletionThoughTheOtherHalfHasNoName)
{
    Spied spied({"HH:MM AM/PM", DT_TIME});
    Assign(spied.Regional().amString, Text());
    spied.Show("[02:30 PM]");
    spied.Control().KeyDown(KEY_DELETE);
    EXPECT_EQ(spied.Shown(), "|00:00 PM");
}

TEST(HalfOfTheDay, IsNotLookedForInTheEntryOfACodeTableForNoValue)
{
    for (const char* entry : {"none", "no time at all"}) {
        Spied spied({"HH:MM AM/PM", DT_TIME, (std::string(entry) + "\tnull!").c_str(), ZTEO_SPIN | ZTEO_CODE_DISPLAY});
        spied.Show("[02:30 PM]");
        EXPECT_TRUE(DeleteSelection(spied.Record(), {0, 8}));
        EXPECT_EQ(spied.Shown(), "|" + std::string(entry).substr(0, 8));
    }
}

// ---- cutting

TEST(Cutting, CopiesFromAReadOnlyControlByItsOwnKeyOnly)
{
    Spied spied(kDate);
    spied.Show("[07]/04/95");
    spied.Edit().SetReadOnly(true);
    spied.Type("a");
    EXPECT_EQ(spied.Spy().Count("CopySelection"), 0);
    spied.Type("\x18");
    EXPECT_EQ(spied.Spy().Count("CopySelection"), 1);
    EXPECT_EQ(spied.Shown(), "[07]/04/95");
}

TEST(Cutting, WithNothingSelectedCopiesNothing)
{
    Spied spied(kDate);
    spied.Show("07/|04/95");
    spied.Edit().HoldShift(true);
    spied.Control().KeyDown(KEY_DELETE);
    EXPECT_EQ(spied.Shown(), "07/|04/95");
    EXPECT_EQ(spied.Spy().Count("CopySelection"), 0);
}

TEST(Cutting, LeavesShiftHeldAsItWas)
{
    Spied spied(kDate);
    spied.Show("07/[04]/95");
    spied.Edit().HoldShift(true);
    spied.Control().KeyDown(KEY_DELETE);
    EXPECT_TRUE(spied.Edit().IsHeld(KEY_SHIFT));
    EXPECT_EQ(spied.Shown(), "07/|00/95");
}

TEST(Cutting, LeavesNoDeletionPending)
{
    Spied spied(kString);
    spied.Show("a[b]cd");
    spied.Edit().HoldShift(true);
    spied.Control().KeyDown(KEY_DELETE);
    EXPECT_EQ(spied.Shown(), "a|cd");
    EXPECT_EQ(spied.Record().deletePending, 0u);
    spied.Control().Type(kCharBackspace);
    EXPECT_EQ(spied.Shown(), "a|cd");
    EXPECT_EQ(spied.Beeps(), 1);
}

TEST(Cutting, OfAWholeNumberLetsItsSymbolBeTypedAgain)
{
    Spied spied(kMoney);
    spied.Show("|$.00");
    spied.Type("$\x01\x18$5");
    EXPECT_EQ(spied.Shown(), "$5|.00");
    EXPECT_EQ(spied.Beeps(), 0);
}

// ---- what typing has passed

class Forgetting : public RowTest<Key> {};

ROW_TEST(Forgetting, IsWhatAKeyDoesThatMovesOrDeletes)
{
    Spied spied(kDate);
    spied.Show("|00/00/00");
    spied.Type("07");
    ASSERT_EQ(spied.Shown(), "07/|00/00");
    ASSERT_EQ(spied.Record().carriedTo, 3);
    OnKeyDown(spied.Record(), GetParam(), kData);
    EXPECT_EQ(spied.Record().carriedTo, 0);
}

TEST_ROWS_OF(Keys, Forgetting, KEY_BACKSPACE, KEY_PAGE_UP, KEY_PAGE_DOWN, KEY_END, KEY_HOME, KEY_LEFT, KEY_UP,
             KEY_RIGHT, KEY_DOWN, KEY_INSERT, KEY_DELETE);

TEST(Forgetting, IsNotWhatOtherKeysDo)
{
    for (const uint32_t key :
         {uint32_t{KEY_SHIFT}, uint32_t{KEY_TAB}, kLetterA, uint32_t{KEY_PAGE_UP - 1}, uint32_t{KEY_DELETE + 1}}) {
        Spied spied(kDate);
        spied.Show("|00/00/00");
        spied.Type("07");
        OnKeyDown(spied.Record(), key, kData);
        EXPECT_EQ(spied.Record().carriedTo, 3) << key;
        spied.Type("/");
        EXPECT_EQ(spied.Shown(), "07/|00/00") << key;
    }
}

TEST(Forgetting, LetsASymbolBeTypedAgainBehindABackspace)
{
    Spied spied(kMoney);
    spied.Show("|$.00");
    spied.Type("$");
    spied.Control().KeyDown(KEY_BACKSPACE);
    spied.Type("\b$5");
    EXPECT_EQ(spied.Shown(), "$5|.00");
    EXPECT_EQ(spied.Beeps(), 0);
}

// ---- what the spin and the code table show

struct SpunRow {
    const char* name;
    SpiedSetup setup;
    const char* typed;
    bool spunAfter;
    const char* after;
};
void PrintTo(const SpunRow& row, std::ostream* out)
{
    *out << row.name;
}

class SpunText : public RowTest<SpunRow> {};

ROW_TEST(SpunText, LastsUntilACharacterIsTyped)
{
    const SpunRow& row = GetParam();
    Spied spied(row.setup);
    spied.Control().Step(true);
    ASSERT_TRUE(Has(spied.Record(), SPUN));
    ASSERT_EQ(spied.Shown(), "|Red");
    spied.Type(row.typed);
    EXPECT_EQ(Has(spied.Record(), SPUN), row.spunAfter);
    EXPECT_EQ(spied.Shown(), row.after);
}

// clang-format off
const SpunRow kSpun[] = {
    {"IsReplacedUnderAMask",               kMaskedCodeField, "x",    false, "x|"   },
    {"StaysUnderAControlCharacter",        kMaskedCodeField, "\x05", true,  "|Red"  },
    {"StaysUnderARefusedPaste",            kMaskedCodeField, "\x16", true,  "|Red"  },
    {"OfAPickListEndsWithALetter",         kPickList,        "G",    false, "|Green"},
    {"OfAPickListEndsWithAnyLetter",       kPickList,        "x",    false, "|Red"  },
    {"OfAPickListStaysUnderControl",       kPickList,        "\x05", true,  "|Red"  },
    {"WithoutAMaskEndsWithTheFieldsOwn",   kCodeField,       "x",    false, "x|Red" },
    {"WithoutAMaskStaysUnderControl",      kCodeField,       "\x05", true,  "|Red"  },
};
// clang-format on
TEST_ROWS(Rows, SpunText, kSpun);

TEST(CodeText, ThatIsShownForDataStandsUnderAControlCharacter)
{
    Spied spied(kMaskedCodeField);
    SetDataString(spied.Record(), FromAscii("G").c_str());
    ASSERT_EQ(spied.Shown(), "|Green");
    ASSERT_TRUE(Has(spied.Record(), CODE_POSITIONED));
    spied.Type("\x05");
    EXPECT_TRUE(Has(spied.Record(), CODE_POSITIONED)) << "it still is the entry shown";
    EXPECT_EQ(spied.Beeps(), 1);
}

TEST(CodeText, IsNotPickedFromWhereTheTableIsNotShown)
{
    Spied spied(kPlainEditWithPick);
    spied.Show("|     ");
    spied.Type("G");
    EXPECT_EQ(spied.Shown(), "G|    ");
}

TEST(CodeText, IsTypedIntoAsItStandsWhereThereIsNoTable)
{
    Spied spied({"MM/DD/YY", DT_DATE, nullptr, ZTEO_SPIN | ZTEO_CODE_DISPLAY});
    SetData(spied.Record(), nullptr);
    ASSERT_EQ(spied.Shown(), "|");
    ASSERT_TRUE(Has(spied.Record(), SPUN));
    spied.Type("1");
    EXPECT_EQ(spied.Shown(), "1|");
    EXPECT_FALSE(Has(spied.Record(), SPUN));
}

TEST(SteppedValue, IsOneUnderAControlCharacterToo)
{
    Spied spied({"MM/DD/YY", DT_DATE, nullptr, ZTEO_SPIN});
    spied.Control().Step(true);
    spied.Control().Select(0, 0);
    spied.Type("\x05");
    EXPECT_TRUE(Has(spied.Record(), SPUN));
    spied.Type("1");
    EXPECT_FALSE(Has(spied.Record(), SPUN));
}

// A step of a type that is none leaves drawing off.
TEST(SteppedValue, OfAnUnknownTypeIsDrawnAgainWithAnyCharacter)
{
    Spied spied({"XX", 9, nullptr, ZTEO_SPIN});
    spied.Control().Step(true);
    ASSERT_EQ(spied.Edit().Count(FieldEvent::RedrawOff), 1);
    ASSERT_EQ(spied.Edit().Count(FieldEvent::RedrawOn), 0);
    spied.Type("\x05");
    EXPECT_EQ(spied.Edit().Count(FieldEvent::RedrawOn), 1);
}

TEST(SpinKey, PaintsTheSpinAnew)
{
    Spied spied({"MM/DD/YY", DT_DATE, nullptr, ZTEO_SPIN});
    spied.Control().KeyDown(KEY_UP);
    EXPECT_EQ(spied.Spy().Count("RepaintSpin"), 1);
}

// ---- the program around

class CaretMover : public FieldListener {
public:
    explicit CaretMover(MemoryField& field) : field_(field) {}
    void OnFieldEvent(FieldEvent event) override
    {
        if (event == FieldEvent::Change && !std::exchange(done_, true))
            field_.SetSelection(4, 4);
    }

private:
    MemoryField& field_;
    bool done_ = false;
};

TEST(Typing, TakesThePlaceOfTheSelectionThoughTheProgramMovesTheCaretMeanwhile)
{
    Spied spied({"XX-XX", DT_STRING});
    spied.Show("[ab]-cd");
    CaretMover mover(spied.Edit());
    spied.Edit().SetListener(&mover);
    spied.Type("x");
    spied.Edit().SetListener(nullptr);
    EXPECT_EQ(spied.Shown(), "x| -cd");
}

}  // namespace
}  // namespace zttest
