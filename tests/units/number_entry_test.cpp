// Characters typed into numbers, on texts that no typing leaves there and under masks with literals of all kinds, and what is asked
// of the field for them.
#include <gtest/gtest.h>

#include "engine/edit/numeric_entry.h"
#include "engine/edit/paste.h"
#include "engine/format/mask_setting.h"
#include "engine/mask/mask_table.h"
#include "tests/support/rows.h"
#include "tests/units/field_spy.h"

namespace zttest {
namespace {

using namespace zte;

using Calls = std::vector<std::string>;

struct EntryRow {
    const char* name;
    const char* mask;
    const char* before;
    const char* typed;
    const char* after;
    int beeps;
};
void PrintTo(const EntryRow& row, std::ostream* out)
{
    *out << row.name << " (" << row.mask << ")";
}

class NumberKeys : public RowTest<EntryRow> {};

ROW_TEST(NumberKeys, LeadTo)
{
    const EntryRow& row = GetParam();
    Spied spied({row.mask, DT_NUMBER});
    spied.Show(row.before);
    spied.Type(row.typed);
    EXPECT_EQ(spied.Shown(), row.after);
    EXPECT_EQ(spied.Beeps(), row.beeps);
}

constexpr const char* kTotal = "~T~ $#,#.00";

// clang-format off
const EntryRow kKeys[] = {
    // the literals before a number may be typed first, or the symbol that ends them
    {"TheSymbolBegins",                     kTotal,          "T $|.00",  "$5",     "T $5|.00",  0},
    {"AllLiteralsBegin",                    kTotal,          "T $|.00",  "T $5",   "T $5|.00",  0},
    {"FromTheFrontTheyArePassed",           kTotal,          "|T $.00",  "T",      "T| $.00",   0},
    {"FromTheFrontTheSymbolIsNotPassed",    kTotal,          "|T $.00",  "$",      "|T $.00",   1},
    {"TheSymbolDoesNotGoOn",                kTotal,          "T $|.00",  "T$",     "T $|.00",   1},
    {"AnotherCharacterIsNone",              kTotal,          "T $|.00",  "x",      "T $|.00",   1},
    {"OneRefusedChangesNothing",            kTotal,          "T $|.00",  "x$5",    "T $5|.00",  1},
    {"OneRefusedBetweenChangesNothing",     kTotal,          "T $|.00",  "Tx $5",  "T $5|.00",  1},
    {"AZeroHasBegunTheNumber",              kTotal,          "T $|.00",  "0 ",     "T $|.00",   1},
    {"ANegativeNumberHasBegun",             kTotal,          "T $|-.00", "$",      "T $|-.00",  1},
    {"AShortLiteralBeforeTheSymbol",        "~T$#,#.00",     "T$|.00",   "$5",     "T$5|.00",   0},
    {"ALiteralThatIsNoSymbol",              "~T~ ~x#,#.00",  "T x|.00",  "x",      "T x|.00",   1},
    {"ADashBeginsTheNumber",                "~-~x#,#.00",    "-x|.00",   "-",      "-x-|.00",   0},
    {"ADashFromTheFrontBeginsIt",           "~-~x#,#.00",    "|-x.00",   "-",      "-x-|.00",   0},
    {"APointBeginsTheNumber",               "~.~x#,#.00",    ".x|.00",   ".",      ".x.|00",    0},
    {"APointFromTheFrontBeginsIt",          "~.~x#,#.00",    "|.x.00",   ".",      ".x.|00",    0},
    {"ALiteralDigitIsSpelledBehindAnother", "~A~1#,#.00",    "|A1.00",   "A1",     "A1|.00",    0},
    {"ThenADigitBegins",                    "~A~1#,#.00",    "|A1.00",   "A15",    "A15|.00",   0},
    // what stands at the caret is passed
    {"NothingAtTheEndIsNotPassed",          "####",          "|",        "\x1e",   "|",         1},
    {"ThePointIsPassedAsItStands",          "#,##0.00",      "007|.50",  ".",      "007.|50",   0},
    {"ThePointOfAShortFractionIsPassed",    "#,##0.00",      "12|.5",    ".",      "12.|5",     0},
    {"ASecondPointIsNone",                  "#,##0.00",      "1.2|.3",   ".",      "1.2|3",     1},
    // digits
    {"AZeroWhereNoneIsShownGoesToThePoint", "~x.00",         "|x.00",    "0",      "x|.00",     0},
    {"AZeroBehindTheLiteralsGoesToTheNumber", ".00%",        "5%|",      "0",      "5|%",       0},
    {"TypedOverALiteralTheLastDigitFallsOff", "#,##0.00",    "12.[x]56", "7",      "12.7|5",    0},
    {"ASeparatorTakesRoom",                 "#,##.00",       "|.00",     "1234",   "123.4|0",   0},
    {"BehindAFullNumberDigitsAreDropped",   "#,##0.00",      "1.23|",    "4",      "1.23|",     0},
    // the point
    {"ThePointKeepsZerosFromOutside",       "#,##0.00",      "007|",     ".",      "007.|00",   0},
    {"ThePointDropsWhatStandsBehind",       "#,##0.00",      "0|07.00",  ".",      "0.|00",     0},
    {"ThePointAmongForcedZeros",            "#,#00.00",      "0|5.25",   ".",      "00.|25",    0},
    {"ThePointBeforeThemAll",               "#,#00.00",      "|05.25",   ".",      "00.|25",    0},
    // a text from outside is laid out before it is typed into
    {"AShortNumberIsFilledUpInFront",       "000",           "|5",       "7",      "7|05",      0},
    {"ALongFractionIsRounded",              "#,##0.00",      "1.|2369",  "7",      "1.7|4",     0},
    {"ALongNumberKeepsItsDigits",           "000",           "1|2345",   "7",      "17|345",    0},
};
// clang-format on
TEST_ROWS(Rows, NumberKeys, kKeys);

TEST(NumberKeys, ASymbolThatBeginsWithThePointIsThePoint)
{
    Spied spied({"~T~.~-#,#.00", DT_NUMBER});
    Assign(spied.Regional().currencySymbol, FromAscii(".-"));
    spied.Show("T.-|.00");
    spied.Type(".");
    EXPECT_EQ(spied.Shown(), "T.-.|00");
}

TEST(NumberKeys, APointThatBeginsTheSymbolBehindTheNumberIsPassed)
{
    Spied spied({"0", DT_NUMBER});
    Assign(spied.Regional().currencySymbol, FromAscii(".-"));
    spied.Regional().currencyPosition = 1;
    ASSERT_EQ(SetMask(spied.Record(), FromAscii("[currency(5)]").c_str(), DT_NUMBER), 1);
    spied.Show("12.50|.-");
    spied.Type(".");
    EXPECT_EQ(spied.Shown(), "12.50.|-");
}

TEST(NumberKeys, ANulIsNoCharacterOfTheEnd)
{
    Spied spied({"####", DT_NUMBER});
    spied.Show("|");
    spied.Control().Type(0);
    EXPECT_EQ(spied.Beeps(), 1);
}

TEST(NumberKeys, WhatTheFieldItselfSelectsIsTypedOverFromTheStart)
{
    Spied spied({kTotal, DT_NUMBER});
    spied.Show("T $|.00");
    spied.Type("T");
    spied.Edit().SetSelection(0, -1);
    spied.Type("T $5");
    EXPECT_EQ(spied.Shown(), "T $5|.00");
    EXPECT_EQ(spied.Beeps(), 0);
}

// The longest number that is one, and one digit more.
TEST(NumberKeys, ChangeNumbersOfUpTo254Digits)
{
    for (const size_t digits : {254, 255}) {
        Spied spied({"###0.00", DT_NUMBER});
        const Text integer(digits - 2, '1');
        spied.Edit().SetText((integer + FromAscii(".23")).c_str());
        spied.Control().Select(static_cast<int32_t>(digits) - 1, static_cast<int32_t>(digits) - 1);
        spied.Type("7");
        EXPECT_EQ(spied.Edit().ReadText(), integer + FromAscii(digits == 254 ? ".73" : ".23"));
    }
}

// ---- deletion

struct DeletionRow {
    const char* name;
    const char* mask;
    const char* before;
    const char* after;
};
void PrintTo(const DeletionRow& row, std::ostream* out)
{
    *out << row.name << " (" << row.mask << ")";
}

class NumberDelete : public RowTest<DeletionRow> {};

ROW_TEST(NumberDelete, Leaves)
{
    const DeletionRow& row = GetParam();
    Spied spied({row.mask, DT_NUMBER});
    spied.Show(row.before);
    DeleteInNumber(spied.Record(), spied.Edit().ReadSelection());
    EXPECT_EQ(spied.Shown(), row.after);
}

// clang-format off
const DeletionRow kDeletions[] = {
    {"AForeignTextsCaretAmongItsDigits",    "0000",      "12x[34]",    "12|00"    },
    {"AForeignTextsCaretAtItsFront",        "0000",      "[12]x34",    "|0034"    },
    {"AForeignFractionsCaretInTheFraction", "0.00",      "2.[5]",      "2.|00"    },
    {"ASeparatorsCaretWhereItBegan",        "0,000",     "1[,2]34",    "1|,034"   },
    {"ALiteralBehindAZero",                 "#,##0%",    "0[%]",       "0|%"      },
    {"ALiteralBehindAFraction",             "0.00%",     "1.25[%]",    "1.25|%"   },
    {"ALiteralInFront",                     "~x#,##0.00", "[x]12.50",  "x|12.50"  },
    {"FromTheLiteralsIntoTheNumber",        "~x#,##0.00", "[x1]2.50",  "x|2.50"   },
    {"FromTheLiteralsIntoZeros",            "~x000",     "[x1]23",     "x|023"    },
    {"FromTheFractionIntoTheLiterals",      "#,##0.00%", "12.5[6%]",   "12.5|0%"  },
    {"ALiteralBeforeTheSign",               "~x#,##0.00", "[x]-12.50", "x|-12.50" },
    {"TheSign",                             "#,##0.00",  "[-]12.50",   "|12.50"   },
    {"BeyondTheFraction",                   "#,##0.00",  "12.[50]",    "12.|00"   },
    {"OverThePoint",                        "#,##0.00",  "1[2.5]0",    "1|.00"    },
};
// clang-format on
TEST_ROWS(Rows, NumberDelete, kDeletions);

class NumberBackspace : public RowTest<DeletionRow> {};

ROW_TEST(NumberBackspace, Leaves)
{
    const DeletionRow& row = GetParam();
    Spied spied({row.mask, DT_NUMBER});
    spied.Show(row.before);
    BackspaceInNumber(spied.Record(), spied.Edit().ReadSelection());
    EXPECT_EQ(spied.Shown(), row.after);
}

// clang-format off
const DeletionRow kNumberBackspaces[] = {
    {"BehindTheLiterals",         "#,##0.00%",  "12.56%|",  "12.5|0%" },
    {"BehindLiteralsOfNoPoint",   "#,##0%",     "12%|",     "1|%"     },
    {"BehindThePoint",            "#,##0.00",   "12.|56",   "1|.56"   },
    {"BehindThePointOfZeros",     "000.00",     "123.|45",  "12|0.45" },
    {"BehindThePointAlone",       "#,#.00",     ".|56",     "|.56"    },
    {"InFrontOfTheLiterals",      "~x#,##0.00", "|x12.50",  "|x12.50" },
    {"BehindTheSign",             "#,##0.00",   "-|12.50",  "|12.50"  },
};
// clang-format on
TEST_ROWS(Rows, NumberBackspace, kNumberBackspaces);

// ---- what is asked of the field

TEST(NumberEntryCalls, ShowAChangeAndBringTheCaretIntoView)
{
    Spied spied({"#,##0.00", DT_NUMBER});
    spied.Show("1|.00");
    EnterNumericChar(spied.Record(), '2', {1, 1});
    EXPECT_EQ(spied.Spy().Calls(), (Calls{"KeepLayout", "SetText", "KeepLayout", "Select 2-2", "ScrollToCaret"}));
    EXPECT_EQ(spied.Record().carriedTo, 0) << "nothing was passed";
}

TEST(NumberEntryCalls, LeaveATextThatStaysAlone)
{
    Spied spied({"#,##0.00", DT_NUMBER});
    spied.Show("1|.00");
    EnterNumericChar(spied.Record(), '.', {1, 1});
    EXPECT_EQ(spied.Spy().Calls(), (Calls{"KeepLayout", "Select 2-2"}));
    EXPECT_FALSE(spied.Edit().IsModified());
}

TEST(NumberCompletion, LeavesAllButAMinusBeforeNothingAlone)
{
    for (const char* shown : {"0|.00", "-1|.00", "|.00", "12x|"}) {
        Spied spied({"#,##0.00", DT_NUMBER});
        spied.Show(shown);
        spied.Control().LoseFocus();
        EXPECT_EQ(spied.Spy().Calls(), Calls{}) << shown;
    }
    for (const char* shown : {"-|0", "-|", "|-", "-0|."}) {
        Spied general({"[GENERAL]", DT_NUMBER});
        general.Show(shown);
        general.Control().LoseFocus();
        EXPECT_EQ(general.Shown(), shown) << "nobody has typed it";
    }
    Spied text({"-##", DT_STRING});
    text.Show("-|  ");
    text.Control().LoseFocus();
    EXPECT_EQ(text.Shown(), "-|  ");
    Spied maskless({"#,##0.00", DT_NUMBER});
    DropMask(maskless.Record());
    maskless.Show("-0|.00");
    maskless.Control().LoseFocus();
    EXPECT_EQ(maskless.Shown(), "-0|.00");
    Spied negative({"#,##0.00", DT_NUMBER});
    negative.Show("-0|.00");
    negative.Control().LoseFocus();
    EXPECT_EQ(negative.Shown(), "0|.00");
}

TEST(PasteResult, TellsWhetherTheTextWasTaken)
{
    Spied spied({"#,##0.00", DT_NUMBER});
    EXPECT_FALSE(PasteClipboard(spied.Record())) << "nothing there";
    spied.Edit().SetClipboard(Text());
    EXPECT_FALSE(PasteClipboard(spied.Record()));
    spied.Edit().SetClipboard(FromAscii("12"));
    EXPECT_TRUE(PasteClipboard(spied.Record()));
    spied.Edit().SetClipboard(FromAscii("x"));
    EXPECT_FALSE(PasteClipboard(spied.Record()));
    spied.Edit().SetClipboard(FromAscii("13"));
    spied.Edit().SetReadOnly(true);
    EXPECT_FALSE(PasteClipboard(spied.Record()));
    EXPECT_EQ(spied.Edit().ReadText(), FromAscii("12.00"));
}

TEST(PasteResult, IsNothingWhereNoMaskEverWas)
{
    Spied spied({"", DT_STRING});
    DropMask(spied.Record());
    spied.Edit().SetClipboard(FromAscii("12"));
    EXPECT_FALSE(PasteClipboard(spied.Record()));
    EXPECT_FALSE(spied.Edit().IsModified());
}

TEST(PlainEditWithASpin, IsNoMoreSpunOnceACharacterIsTyped)
{
    Spied spied({"", DT_STRING, nullptr, ZTEO_SPIN});
    spied.Control().Step(true);
    ASSERT_TRUE(Has(spied.Record(), SPUN));
    spied.Type("\x05");
    EXPECT_TRUE(Has(spied.Record(), SPUN));
    spied.Type("x");
    EXPECT_FALSE(Has(spied.Record(), SPUN));
}

}  // namespace
}  // namespace zttest
