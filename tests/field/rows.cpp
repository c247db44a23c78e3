// The table of examples.
#include "tests/field/rows.h"

namespace zttest {

// clang-format off
const std::vector<FieldCase> kFieldCases = {
    // typing
    {"CharactersGoInAtTheCaret",                 kPlainStyle,    "ab|cd",       "xy",                               "abxy|cd",       "UCUC",   true },
    {"ACharacterReplacesTheSelection",           kPlainStyle,    "a[bc|]d",     "x",                                "ax|d",          "UC",     true },
    {"ControlCharactersAreNotTyped",             kPlainStyle,    "a|b",         "\t\r\n\x1b\x01\x7f",               "a|b",           "",       false},
    {"BackspaceErasesInFrontOfTheCaret",         kPlainStyle,    "ab|c",        "\b",                               "a|c",           "UC",     true },
    {"BackspaceErasesTheSelection",              kPlainStyle,    "a[bc|]d",     "\b",                               "a|d",           "UC",     true },
    {"BackspaceAtTheStartDoesNothing",           kPlainStyle,    "|abc",        "\b",                               "|abc",          "",       false},
    {"BackspaceWithControlDoesNothing",          kPlainStyle,    "ab|c",        "{Ctrl+\b}",                        "ab|c",          "",       false},
    {"TheKeyOfBackspaceAloneDoesNothing",        kPlainStyle,    "ab|c",        "{Back}",                           "ab|c",          "",       false},
    {"CapitalsAreMadeOfWhatIsTyped",             kUpperStyle,    "|",           "aB1",                              "AB1|",          "UCUCUC", true },
    {"CapitalsAreMadeOfWhatIsSet",               kUpperStyle,    "|",           "{text:abc}",                       "|ABC",          "UC",     false},
    {"SmallLettersAreMadeOfWhatIsReplaced",      kLowerStyle,    "[AB|]C",      "{replaceU:XyZ}",                   "xyz|c",         "UC",     true },
    {"OnlyDigitsAreTyped",                       kDigitsStyle,   "|",           "1a-2 ",                            "12|",           "UCUC",   true },
    {"OtherTextsAreSetAndPastedAmongDigits",     kDigitsStyle,   "a|b",         "{clip:x1}{paste}",                 "ax1|b",         "UC",     true },

    // the caret
    {"LeftAndRightStepByOne",                    kPlainStyle,    "ab|cd",       "{Left}{Left}{Right}",              "a|bcd",         "",       false},
    {"UpAndDownDoTheSame",                       kPlainStyle,    "ab|cd",       "{Up}{Down}{Down}",                 "abc|d",         "",       false},
    {"LeftGoesOnFromTheCaretOfASelection",       kPlainStyle,    "a[bc|]d",     "{Left}",                           "ab|cd",         "",       false},
    {"RightGoesOnFromTheCaretOfASelection",      kPlainStyle,    "a[|bc]d",     "{Right}",                          "ab|cd",         "",       false},
    {"TheEndsHoldTheCaret",                      kPlainStyle,    "|ab",         "{Left}{End}{Right}",               "ab|",           "",       false},
    {"ShiftMovesTheCaretAwayFromTheAnchor",      kPlainStyle,    "ab|cd",       "{Shift+Right}",                    "ab[c|]d",       "",       false},
    {"ShiftMovesTheCaretAcrossTheAnchor",        kPlainStyle,    "ab[c|]d",     "{Shift+Left}{Shift+Left}",         "a[|b]cd",       "",       false},
    {"ShiftHomeSelectsToTheStart",               kPlainStyle,    "ab[c|]d",     "{Shift+Home}",                     "[|ab]cd",       "",       false},
    {"ShiftEndSelectsToTheEnd",                  kPlainStyle,    "ab[|c]d",     "{Shift+End}",                      "abc[d|]",       "",       false},
    {"CtrlRightGoesToTheNextWord",               kPlainStyle,    "o|ne  two",   "{Ctrl+Right}",                     "one  |two",     "",       false},
    {"CtrlLeftGoesToTheStartOfAWord",            kPlainStyle,    "one  two|",   "{Ctrl+Left}{Ctrl+Left}",           "|one  two",     "",       false},
    {"CtrlShiftLeftSelectsAWord",                kPlainStyle,    "one  two|",   "{Ctrl+Shift+Left}",                "one  [|two]",   "",       false},
    {"PagesDoNotMoveTheCaret",                   kPlainStyle,    "a[b|]c",      "{PgUp}{PgDn}{Tab}{Enter}{Esc}",    "a[b|]c",        "",       false},

    // selections by message
    {"MinusOneAtTheEndSelectsTheRest",           kPlainStyle,    "|abcd",       "{sel:1,-1}",                       "a[bcd|]",       "",       false},
    {"MinusOneAtTheStartCollapsesToTheCaret",    kPlainStyle,    "a[|bc]d",     "{sel:-1,3}",                       "a|bcd",         "",       false},
    {"ReversedEndsPutTheCaretInFront",           kPlainStyle,    "|abcd",       "{sel:3,1}",                        "a[|bc]d",       "",       false},
    {"EndsBehindTheTextAreBroughtIntoIt",        kPlainStyle,    "|abcd",       "{sel:2,100}",                      "ab[cd|]",       "",       false},
    {"OtherNegativeEndsAreBehindTheText",        kPlainStyle,    "|abcd",       "{sel:-2,1}",                       "a[|bcd]",       "",       false},

    // deletion
    {"DeleteErasesBehindTheCaret",               kPlainStyle,    "a|bc",        "{Del}",                            "a|c",           "UC",     true },
    {"DeleteErasesTheSelection",                 kPlainStyle,    "[ab|]c",      "{Del}",                            "|c",            "UC",     true },
    {"DeleteAtTheEndDoesNothing",                kPlainStyle,    "abc|",        "{Del}",                            "abc|",          "",       false},
    {"ShiftDeleteErasesInFrontOfTheCaret",       kPlainStyle,    "ab|c",        "{Shift+Del}",                      "a|c",           "UC",     true },
    {"ShiftDeleteCutsTheSelection",              kPlainStyle,    "a[b|]c",      "{Shift+Del}{End}{paste}",          "acb|",          "UCUC",   true },
    {"CtrlDeleteErasesToTheEnd",                 kPlainStyle,    "a|bc",        "{Ctrl+Del}",                       "a|",            "UC",     true },
    {"CtrlDeleteErasesTheSelectionOnly",         kPlainStyle,    "a[b|]c",      "{Ctrl+Del}",                       "a|c",           "UC",     true },
    {"CtrlShiftDeleteDoesNothing",               kPlainStyle,    "a[b|]c",      "{Ctrl+Shift+Del}",                 "a[b|]c",        "",       false},
    {"ClearErasesTheSelectionOnly",              kPlainStyle,    "a[b|]c",      "{clear}{clear}",                   "a|c",           "UC",     true },

    // whole texts and replacements
    {"ASetTextHasTheCaretInFront",               kPlainStyle,    "ab|c",        "x{text:xyz}",                      "|xyz",          "UCUC",   false},
    {"TheSameTextSetAgainIsToldAgain",           kPlainStyle,    "ab|c",        "{text:abc}",                       "|abc",          "UC",     false},
    {"AReplacementHasTheCaretBehindIt",          kPlainStyle,    "a[bc|]d",     "{replace:xyz}",                    "axyz|d",        "UC",     false},
    {"NothingInThePlaceOfNothingIsNoChange",     kPlainStyle,    "a|b",         "{replaceU:}{replace:}",            "a|b",           "",       false},
    {"ReplacementsMayHoldLineBreaks",            kPlainStyle,    "a|b",         "{replaceU:\r\n}",                  "a\r\n|b",       "UC",     true },

    // the text limit
    {"TypingStopsAtTheLimit",                    kPlainStyle,    "ab|c",        "{limit:4}xy",                      "abx|c",         "UCMUC",  true },
    {"AReplacementIsCutAtTheLimit",              kPlainStyle,    "a[b|]c",      "{limit:4}{replaceU:xyz}",          "axy|c",         "MUC",    true },
    {"ASetTextMayPassTheLimit",                  kPlainStyle,    "|",           "{limit:2}{text:abcd}",             "|abcd",         "UC",     false},
    {"BehindTheLimitTypingOnlyErases",           kPlainStyle,    "[ab|]cdef",   "{limit:2}x",                       "|cdef",         "MUC",    true },
    {"BehindTheLimitErasingIsToldAsWell",        kPlainStyle,    "|abcdef",     "{limit:2}{Del}",                   "|bcdef",        "MUC",    true },
    {"TheEngineReplacesInTextsBehindTheLimit",   kPlainStyle,    "a[bc|]d",     "{limit:2}{put:xy}z",               "axy|d",         "UCMUC",  false},
    {"APasteIsCutAtTheLimit",                    kPlainStyle,    "ab|",         "{limit:4}{clip:xyz}{paste}",       "abxy|",         "MUC",    true },
    {"ALimitOfZeroIsNone",                       kPlainStyle,    "ab|",         "{limit:1}{limit:0}x",              "abx|",          "UC",     true },

    // undo
    {"UndoTakesBackAllThatWasTyped",             kPlainStyle,    "a|b",         "xyz{undo}",                        "a|b",           "UCUCUCUCC", true },
    {"UndoTwiceIsRedo",                          kPlainStyle,    "a|b",         "xy{undo}{undo}",                   "a[xy|]b",       "UCUCUCCUCC", true },
    {"UndoBringsBackWhatTypingReplaced",         kPlainStyle,    "a[bc|]d",     "xy{undoW}",                        "a[bc|]d",       "UCUCUCC", true },
    {"TypingInFrontOfTypedTextGoesOn",           kPlainStyle,    "a|b",         "x{Left}y{undo}",                   "a|b",           "UCUCUCC", true },
    {"TypingElsewhereIsAStepOfItsOwn",           kPlainStyle,    "a|bc",        "x{End}y{undo}",                    "axbc|",         "UCUCUCC", true },
    {"DeletionsSideBySideAreOneStep",            kPlainStyle,    "abc|def",     "{Del}\b{Del}{undo}",               "ab[cde|]f",     "UCUCUCUCC", true },
    {"ADeletionAfterTypingIsAStepOfItsOwn",      kPlainStyle,    "|",           "ab\b{undo}",                       "a[b|]",         "UCUCUCUCC", true },
    {"UndoIsTypedAsCtrlZ",                       kPlainStyle,    "a|b",         "x\x1a",                            "a|b",           "UCUCC",  true },
    {"NothingToUndoStillTellsAChange",           kPlainStyle,    "|ab",         "{undo}",                           "|ab",           "C",      false},
    {"AForgottenStepIsNotUndone",                kPlainStyle,    "a|b",         "xy{forget}{undo}",                 "a|xyb",         "UCUCC",  false},
    {"UndoIsCutAtTheLimit",                      kPlainStyle,    "ab[cd|]",     "\b{limit:3}{undo}",                "ab[c|]",        "UCMUCC", true },

    // the clipboard
    {"CopyAndPaste",                             kPlainStyle,    "a[bc|]d",     "{copy}{End}{paste}",               "abcdbc|",       "UC",     true },
    {"CopyAndPasteByKeys",                       kPlainStyle,    "a[bc|]d",     "{Ctrl+Ins}{End}{Shift+Ins}",       "abcdbc|",       "UC",     true },
    {"CopyAndPasteByCharacters",                 kPlainStyle,    "a[bc|]d",     "\x03{End}\x16",                    "abcdbc|",       "UC",     true },
    {"CutByCharacter",                           kPlainStyle,    "a[bc|]d",     "\x18{End}{paste}",                 "adbc|",         "UCUC",   true },
    {"NothingCopiedLeavesTheClipboard",          kPlainStyle,    "a|b",         "{clip:x}{copy}{cut}{paste}",       "ax|b",          "UC",     true },
    {"APasteEndsAtTheFirstLineBreak",            kPlainStyle,    "a|b",         "{clip:x\r\ny}{paste}",             "ax|b",          "UC",     true },
    {"AnEmptyClipboardPastesNothing",            kPlainStyle,    "a[b|]c",      "{noclip}{paste}",                  "a[b|]c",        "",       false},

    // read-only
    {"ReadOnlyTakesNoKeys",                      kReadOnlyStyle, "a[b|]c",      "x\b\x18\x1a{Del}{Shift+Del}{Shift+Ins}", "a[b|]c",  "",       false},
    {"ReadOnlyMovesTheCaret",                    kReadOnlyStyle, "a|bc",        "{Right}{Shift+End}",               "ab[c|]",        "",       false},
    {"ReadOnlyTakesWhatAProgramPutsIn",          kReadOnlyStyle, "a|c",         "{replaceU:b}{undo}",               "ab|c",          "UC",     true },
    {"ReadOnlyIsCopiedByTheMessageToCut",        kReadOnlyStyle, "a[b|]c",      "{cut}{readonly:0}{End}{paste}",    "abcb|",         "UC",     true },

    // the mouse
    {"AClickPutsTheCaret",                       kPlainStyle,    "a[bc|]d",     "{click:3}",                        "abc|d",         "",       false},
    {"AClickBehindTheTextPutsItAtTheEnd",        kPlainStyle,    "|abcd",       "{click:9}",                        "abcd|",         "",       false},
    {"AClickWithShiftKeepsTheAnchor",            kPlainStyle,    "abc|d",       "{shiftclick:1}",                   "a[|bc]d",       "",       false},
    {"ADragSelects",                             kPlainStyle,    "|abcd",       "{drag:3,1}",                       "a[|bc]d",       "",       false},
    {"ADoubleClickSelectsAWordAndItsBlanks",     kPlainStyle,    "|one  two x", "{dblclick:6}",                     "one  [two |]x", "",       false},
    {"ADoubleClickAtAWordTakesTheOneBeforeIt",   kPlainStyle,    "|one  two x", "{dblclick:5}",                     "[one  |]two x", "",       false},
};
// clang-format on

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

std::string NameOf(const testing::TestParamInfo<FieldCase>& info)
{
    return info.param.name;
}

}  // namespace zttest
