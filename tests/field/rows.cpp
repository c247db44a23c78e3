// The table of examples.
#include "tests/field/rows.h"

namespace zttest {

namespace {

// clang-format off
const FieldCase kFieldCases[] = {
    // typing
    {"CharactersGoInAtTheCaret",          kPlain,    "ab|cd",       "xy",                            "abxy|cd",       "UCUC",       true },
    {"ACharacterReplacesTheSelection",    kPlain,    "a[bc|]d",     "x",                             "ax|d",          "UC",         true },
    {"ControlCharactersAreNotTyped",      kPlain,    "a|b",         "\t\r\n\x1b\x01\x7f",            "a|b",           "",           false},
    {"BackspaceErasesInFrontOfTheCaret",  kPlain,    "ab|c",        "\b",                            "a|c",           "UC",         true },
    {"BackspaceErasesTheSelection",       kPlain,    "a[bc|]d",     "\b",                            "a|d",           "UC",         true },
    {"BackspaceAtTheStartDoesNothing",    kPlain,    "|abc",        "\b",                            "|abc",          "",           false},
    {"BackspaceWithControlDoesNothing",   kPlain,    "ab|c",        "{Ctrl+\b}",                     "ab|c",          "",           false},
    {"TheKeyOfBackspaceAloneDoesNothing", kPlain,    "ab|c",        "{Back}",                        "ab|c",          "",           false},
    {"CapitalsAreMadeOfWhatIsTyped",      kUpper,    "|",           "aB1",                           "AB1|",          "UCUCUC",     true },
    {"CapitalsAreMadeOfWhatIsSet",        kUpper,    "|",           "{text:abc}",                    "|ABC",          "UC",         false},
    {"SmallLettersAreMadeOfWhatIsPut",    kLower,    "[AB|]C",      "{replaceU:XyZ}",                "xyz|c",         "UC",         true },
    {"SmallLettersAreMadeOfWhatIsTyped",  kLower,    "|",           "AbZ1",                          "abz1|",         "UCUCUCUC",   true },
    {"OnlyDigitsAreTyped",                kDigits,   "|",           "1a-2 ",                         "12|",           "UCUC",       true },
    {"OtherTextsArePastedAmongDigits",    kDigits,   "a|b",         "{clip:x1}{paste}",              "ax1|b",         "UC",         true },

    // the caret
    {"LeftAndRightStepByOne",             kPlain,    "ab|cd",       "{Left}{Left}{Right}",           "a|bcd",         "",           false},
    {"UpAndDownDoTheSame",                kPlain,    "ab|cd",       "{Up}{Down}{Down}",              "abc|d",         "",           false},
    {"LeftGoesOnFromASelectionsCaret",    kPlain,    "a[bc|]d",     "{Left}",                        "ab|cd",         "",           false},
    {"RightGoesOnFromASelectionsCaret",   kPlain,    "a[|bc]d",     "{Right}",                       "ab|cd",         "",           false},
    {"TheEndsHoldTheCaret",               kPlain,    "|ab",         "{Left}{End}{Right}",            "ab|",           "",           false},
    {"ShiftMovesTheCaretAlone",           kPlain,    "ab|cd",       "{Shift+Right}",                 "ab[c|]d",       "",           false},
    {"ShiftMovesTheCaretAcross",          kPlain,    "ab[c|]d",     "{Shift+Left}{Shift+Left}",      "a[|b]cd",       "",           false},
    {"ShiftHomeSelectsToTheStart",        kPlain,    "ab[c|]d",     "{Shift+Home}",                  "[|ab]cd",       "",           false},
    {"ShiftEndSelectsToTheEnd",           kPlain,    "ab[|c]d",     "{Shift+End}",                   "abc[d|]",       "",           false},
    {"CtrlRightGoesToTheNextWord",        kPlain,    "o|ne  two",   "{Ctrl+Right}",                  "one  |two",     "",           false},
    {"CtrlLeftGoesToTheStartOfAWord",     kPlain,    "one  two|",   "{Ctrl+Left}{Ctrl+Left}",        "|one  two",     "",           false},
    {"CtrlShiftLeftSelectsAWord",         kPlain,    "one  two|",   "{Ctrl+Shift+Left}",             "one  [|two]",   "",           false},
    {"CtrlRightInTheLastWordEndsThere",   kPlain,    "one t|wo",    "{Ctrl+Right}",                  "one two|",      "",           false},
    {"CtrlLeftOverBlanksStopsAtTheStart", kPlain,    "  |one",      "{Ctrl+Left}",                   "|  one",        "",           false},
    {"CtrlRightOverBlanksStopsAtTheEnd",  kPlain,    "one|  ",      "{Ctrl+Right}",                  "one  |",        "",           false},
    {"PagesDoNotMoveTheCaret",            kPlain,    "a[b|]c",      "{PgUp}{PgDn}{Tab}{Enter}{Esc}", "a[b|]c",        "",           false},

    // selections by message
    {"MinusOneAtTheEndSelectsTheRest",    kPlain,    "|abcd",       "{sel:1,-1}",                    "a[bcd|]",       "",           false},
    {"MinusOneAtTheStartStaysAtTheCaret", kPlain,    "a[|bc]d",     "{sel:-1,3}",                    "a|bcd",         "",           false},
    {"ReversedEndsPutTheCaretInFront",    kPlain,    "|abcd",       "{sel:3,1}",                     "a[|bc]d",       "",           false},
    {"EndsBehindTheTextAreBroughtIn",     kPlain,    "|abcd",       "{sel:2,100}",                   "ab[cd|]",       "",           false},
    {"OtherNegativeEndsAreBehindTheText", kPlain,    "|abcd",       "{sel:-2,1}",                    "a[|bcd]",       "",           false},

    // deletion
    {"DeleteErasesBehindTheCaret",        kPlain,    "a|bc",        "{Del}",                         "a|c",           "UC",         true },
    {"DeleteErasesTheSelection",          kPlain,    "[ab|]c",      "{Del}",                         "|c",            "UC",         true },
    {"DeleteAtTheEndDoesNothing",         kPlain,    "abc|",        "{Del}",                         "abc|",          "",           false},
    {"ShiftDeleteErasesInFront",          kPlain,    "ab|c",        "{Shift+Del}",                   "a|c",           "UC",         true },
    {"ShiftDeleteCutsTheSelection",       kPlain,    "a[b|]c",      "{Shift+Del}{End}{paste}",       "acb|",          "UCUC",       true },
    {"CtrlDeleteErasesToTheEnd",          kPlain,    "a|bc",        "{Ctrl+Del}",                    "a|",            "UC",         true },
    {"CtrlDeleteErasesTheSelectionOnly",  kPlain,    "a[b|]c",      "{Ctrl+Del}",                    "a|c",           "UC",         true },
    {"CtrlShiftDeleteDoesNothing",        kPlain,    "a[b|]c",      "{Ctrl+Shift+Del}",              "a[b|]c",        "",           false},
    {"ClearErasesTheSelectionOnly",       kPlain,    "a[b|]c",      "{clear}{clear}",                "a|c",           "UC",         true },

    // whole texts and replacements
    {"ASetTextHasTheCaretInFront",        kPlain,    "ab|c",        "x{text:xyz}",                   "|xyz",          "UCUC",       false},
    {"TheSameTextSetAgainIsToldAgain",    kPlain,    "ab|c",        "{text:abc}",                    "|abc",          "UC",         false},
    {"AReplacementHasTheCaretBehindIt",   kPlain,    "a[bc|]d",     "{replace:xyz}",                 "axyz|d",        "UC",         false},
    {"NothingForNothingIsNoChange",       kPlain,    "a|b",         "{replaceU:}{replace:}",         "a|b",           "",           false},
    {"LineBreaksMayBePutIn",              kPlain,    "a|b",         "{replaceU:\r\n}",               "a\r\n|b",       "UC",         true },

    // the text limit
    {"TypingStopsAtTheLimit",             kPlain,    "ab|c",        "{limit:4}xy",                   "abx|c",         "UCMUC",      true },
    {"AReplacementIsCutAtTheLimit",       kPlain,    "a[b|]c",      "{limit:4}{replaceU:xyz}",       "axy|c",         "MUC",        true },
    {"ASetTextMayPassTheLimit",           kPlain,    "|",           "{limit:2}{text:abcd}",          "|abcd",         "UC",         false},
    {"BehindTheLimitTypingOnlyErases",    kPlain,    "[ab|]cdef",   "{limit:2}x",                    "|cdef",         "MUC",        true },
    {"BehindTheLimitErasingIsToldAsWell", kPlain,    "|abcdef",     "{limit:2}{Del}",                "|bcdef",        "MUC",        true },
    {"TheEngineReplacesBehindTheLimit",   kPlain,    "a[bc|]d",     "{limit:2}{put:xy}z",            "axy|d",         "UCMUC",      false},
    {"APasteIsCutAtTheLimit",             kPlain,    "ab|",         "{limit:4}{clip:xyz}{paste}",    "abxy|",         "MUC",        true },
    {"ALimitOfZeroIsNone",                kPlain,    "ab|",         "{limit:1}{limit:0}x",           "abx|",          "UC",         true },
    {"NothingThatFitsLeavesTheStep",      kPlain,    "a|",          "b{limit:2}{replace:c}",         "ab|",           "UCMUC",      true },
    {"NothingThatFitsElsewhereLeavesIt",  kPlain,    "ab|",         "x{limit:3}{Home}{replaceU:c}",  "|abx",          "UCMUC",      true },

    // undo
    {"UndoTakesBackAllThatWasTyped",      kPlain,    "a|b",         "xyz{undo}",                     "a|b",           "UCUCUCUCC",  true },
    {"UndoTwiceIsRedo",                   kPlain,    "a|b",         "xy{undo}{undo}",                "a[xy|]b",       "UCUCUCCUCC", true },
    {"UndoBringsBackWhatTypingReplaced",  kPlain,    "a[bc|]d",     "xy{undoW}",                     "a[bc|]d",       "UCUCUCC",    true },
    {"TypingInFrontOfTypedTextGoesOn",    kPlain,    "a|b",         "x{Left}y{undo}",                "a|b",           "UCUCUCC",    true },
    {"TypingElsewhereIsAStepOfItsOwn",    kPlain,    "a|bc",        "x{End}y{undo}",                 "axbc|",         "UCUCUCC",    true },
    {"DeletionsSideBySideAreOneStep",     kPlain,    "abc|def",     "{Del}\b{Del}{undo}",            "ab[cde|]f",     "UCUCUCUCC",  true },
    {"ADeletionAfterTypingIsAStep",       kPlain,    "|",           "ab\b{undo}",                    "a[b|]",         "UCUCUCUCC",  true },
    {"UndoIsTypedAsCtrlZ",                kPlain,    "a|b",         "x\x1a",                         "a|b",           "UCUCC",      true },
    {"NothingToUndoStillTellsAChange",    kPlain,    "|ab",         "{undo}",                        "|ab",           "C",          false},
    {"AForgottenStepIsNotUndone",         kPlain,    "a|b",         "xy{forget}{undo}",              "a|xyb",         "UCUCC",      false},
    {"AForgottenDeletionIsNoStep",        kPlain,    "a|b",         "{Del}{forget}",                 "a|",            "UC",         false},
    {"ATextPutInWithoutUndoEndsTheStep",  kPlain,    "a|",          "b{replace:c}",                  "abc|",          "UCUC",       false},
    {"ADeletionWithoutUndoEndsTheStep",   kPlain,    "a|b",         "x{sel:0,1}{replace:}",          "|xb",           "UCUC",       false},
    {"NothingPutByTheEngineEndsTheStep",  kPlain,    "a|b",         "x{put:}",                       "ax|b",          "UC",         false},
    {"NoTextSetWhereNoneIsLeavesTheStep", kPlain,    "|",           "x\b{text:}",                    "|",             "UCUCUC",     true },
    {"NoTextSetWhereOneIsEndsTheStep",    kPlain,    "a|",          "x{text:}",                      "|",             "UCUC",       false},
    {"ATextSetWhereNoneIsEndsTheStep",    kPlain,    "|",           "x\b{text:ab}",                  "|ab",           "UCUCUC",     false},
    {"ADeletionOfWhatReplacedIsAStep",    kPlain,    "a[b|]c",      "x{Left}{Del}{undo}",            "a[x|]c",        "UCUCUCC",    true },
    {"ADeletionElsewhereIsAStep",         kPlain,    "ab|cd",       "{Del}{Home}{Del}{undo}",        "[a|]bd",        "UCUCUCC",    true },
    {"ADeletionInFrontOfTypedTextIsAStep",kPlain,    "a|b",         "x{Home}{Del}{undo}",            "[a|]xb",        "UCUCUCC",    true },
    {"TypingElsewhereForgetsTheReplaced", kPlain,    "a[b|]cd",     "x{End}y{undo}",                 "axcd|",         "UCUCUCC",    true },
    {"TypingElsewhereCountsAnew",         kPlain,    "ab|cd",       "x{Home}y{undo}",                "|abxcd",        "UCUCUCC",    true },
    {"AStepKnowsNothingOfTheOneBefore",   kPlain,    "a|bc",        "{Del}\x1a{End}\b\x1a\x1a",     "ab|",           "UCUCCUCUCCUCC",true },
    {"UndoIsCutAtTheLimit",               kPlain,    "ab[cd|]",     "\b{limit:3}{undo}",             "ab[c|]",        "UCMUCC",     true },

    // the clipboard
    {"CopyAndPaste",                      kPlain,    "a[bc|]d",     "{copy}{End}{paste}",            "abcdbc|",       "UC",         true },
    {"CopyAndPasteByKeys",                kPlain,    "a[bc|]d",     "{Ctrl+Ins}{End}{Shift+Ins}",    "abcdbc|",       "UC",         true },
    {"CopyAndPasteByCharacters",          kPlain,    "a[bc|]d",     "\x03{End}\x16",                 "abcdbc|",       "UC",         true },
    {"CutByCharacter",                    kPlain,    "a[bc|]d",     "\x18{End}{paste}",              "adbc|",         "UCUC",       true },
    {"NothingCopiedLeavesTheClipboard",   kPlain,    "a|b",         "{clip:x}{copy}{cut}{paste}",    "ax|b",          "UC",         true },
    {"APasteEndsAtTheFirstLineBreak",     kPlain,    "a|b",         "{clip:x\r\ny}{paste}",          "ax|b",          "UC",         true },
    {"CtrlShiftInsertPastesAsWell",       kPlain,    "a|b",         "{clip:x}{Ctrl+Shift+Ins}",      "ax|b",          "UC",         true },
    {"APasteEndsAtALineFeedAlone",        kPlain,    "a|b",         "{clip:x\ny}{paste}",            "ax|b",          "UC",         true },
    {"APasteWithoutALineFeedIsWhole",     kPlain,    "a|b",         "{clip:x\r}{paste}",             "ax\r|b",        "UC",         true },
    {"NothingInFrontOfALineFeedIsPasted", kPlain,    "a[b|]c",      "{clip:\nx}{paste}",             "a|c",           "UC",         true },
    {"AnEmptyClipboardPastesNothing",     kPlain,    "a[b|]c",      "{noclip}{paste}",               "a[b|]c",        "",           false},

    // read-only
    {"ReadOnlyTakesNoKeys",               kReadOnly, "a[b|]c",      "x\b\x18\x1a{Del}{Shift+Ins}",   "a[b|]c",        "",           false},
    {"ReadOnlyMovesTheCaret",             kReadOnly, "a|bc",        "{Right}{Shift+End}",            "ab[c|]",        "",           false},
    {"ReadOnlyTakesWhatAProgramPutsIn",   kReadOnly, "a|c",         "{replaceU:b}{undo}",            "ab|c",          "UC",         true },
    {"ReadOnlyIsCopiedByTheMessageToCut", kReadOnly, "a[b|]c",      "{cut}{readonly:0}{End}{paste}", "abcb|",         "UC",         true },
    {"ReadOnlyIsNotCopiedByTheKeysToCut", kReadOnly, "[b|]c",       "{clip:z}{Shift+Del}{readonly:0}{paste}", "z|c",  "UC",       true },

    // the mouse
    {"AClickPutsTheCaret",                kPlain,    "a[bc|]d",     "{click:3}",                     "abc|d",         "",           false},
    {"AClickBehindTheTextPutsItAtTheEnd", kPlain,    "|abcd",       "{click:9}",                     "abcd|",         "",           false},
    {"AClickWithShiftKeepsTheAnchor",     kPlain,    "abc|d",       "{shiftclick:1}",                "a[|bc]d",       "",           false},
    {"ADragSelects",                      kPlain,    "|abcd",       "{drag:3,1}",                    "a[|bc]d",       "",           false},
    {"ADoubleClickTakesAWordAndBlanks",   kPlain,    "|one  two x", "{dblclick:6}",                  "one  [two |]x", "",           false},
    {"ADoubleClickAtAWordTakesTheLast",   kPlain,    "|one  two x", "{dblclick:5}",                  "[one  |]two x", "",           false},
};
// clang-format on

}  // namespace

const std::vector<FieldCase>& FieldCases()
{
    static const std::vector<FieldCase> rows(std::begin(kFieldCases), std::end(kFieldCases));
    return rows;
}

void Check(Player& player, const FieldCase& row)
{
    Given(player, row.given);
    EXPECT_EQ(PlayScript(player, ParseScript(row.script)), row.told);
    EXPECT_EQ(PrintText(player.Look()), row.shown);
    EXPECT_EQ(player.Look().canUndo, row.canUndo);
}

void PrintTo(const FieldCase& row, std::ostream* stream)
{
    *stream << row.given << " " << Quoted(row.script);
}

}  // namespace zttest
