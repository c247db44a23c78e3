// Keys that are no characters of a value: cutting, copying, selecting, and control characters, which leave a field alone.
#include "tests/support/clipboard.h"
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

struct Kind {
    const char* name;
    const char* mask;
    int32_t type;
    const char* whole;  // a value, all of it selected
    const char* part;   // the same with some of it selected
    const char* cut;    // the part
};
void PrintTo(const Kind& kind, std::ostream* out)
{
    *out << kind.mask;
}

// clang-format off
const Kind kNumbers[] = {
    {"Number",         "#,##0.00",       DT_NUMBER,   "[1,234.50]",       "[1,2]34.50",       "1,2"   },
    {"ZeroedNumber",   "0000",           DT_NUMBER,   "[1234]",           "1[23]4",           "23"    },
    {"Percentage",     "##0.0%",         DT_NUMBER,   "[12.5%]",          "[12].5%",          "12"    },
    {"Money",          "[currency(8)]",  DT_DECIMAL,  "[$1,234.50]",      "$[1,234].50",      "1,234" },
    {"Decimal",        "#,##0.00",       DT_DECIMAL,  "[1,234.50]",       "1,234.[50]",       "50"    },
};

const Kind kOthers[] = {
    {"Date",           "MM/DD/YY",       DT_DATE,     "[07/04/95]",       "[07/0]4/95",       "07/0"  },
    {"MonthName",      "DD-MMM-YYYY",    DT_DATE,     "[04-JUL-1995]",    "04-[JUL]-1995",    "JUL"   },
    {"Time",           "HH:MM AM/PM",    DT_TIME,     "[02:30 PM]",       "02:[30 P]M",       "30 P"  },
    {"DateTime",       "MM/DD/YY HH:MM", DT_DATETIME, "[07/04/95 14:30]", "07/04/[95 14]:30", "95 14" },
    {"String",         "(###) ###-####", DT_STRING,   "[(555) 123-4567]", "([555) 1]23-4567", "555) 1"},
    {"AnyCharacters",  "XXXX-XXXX",      DT_STRING,   "[abcd-efgh]",      "ab[cd-e]fgh",      "cd-e"  },
    {"WithoutLiteral", "XXXX",           DT_STRING,   "[abcd]",           "a[bc]d",           "bc"    },
};
// clang-format on

class EveryKind : public EditTest, public OfRow<Kind> {
protected:
    void GivenPart() { Given(GetParam().mask, GetParam().type, GetParam().part); }
    void GivenWhole() { Given(GetParam().mask, GetParam().type, GetParam().whole); }

    // What the field shows after keys.
    std::string After(const char* keys)
    {
        GivenPart();
        Play(keys);
        return Shown();
    }
};

ROW_TEST(EveryKind, KeepsWhatIsSelectedUnderControlCharacters)
{
    for (const char* keys : {"\x1a", "{Enter}", "{Esc}", "{Tab}", "\x05", "\n", "\x0c", "\x19", "{Ctrl+Z}"}) {
        GivenPart();
        Play(keys);
        EXPECT_EQ(Shown(), GetParam().part) << static_cast<int>(keys[0]);
        GivenWhole();
        Play(keys);
        EXPECT_EQ(Shown(), GetParam().whole) << static_cast<int>(keys[0]);
        EXPECT_FALSE(control_->IsModified());
    }
}

ROW_TEST(EveryKind, CtrlASelectsAll)
{
    GivenPart();
    Play("{Ctrl+A}");
    EXPECT_EQ(Shown(), GetParam().whole);
    EXPECT_EQ(Beeps(), 0);
}

ROW_TEST(EveryKind, CtrlAInAReadOnlyOneSelectsAllToo)
{
    GivenPart();
    control_->SetReadOnly();
    Play("{Ctrl+A}");
    EXPECT_EQ(Shown(), GetParam().whole);
}

ROW_TEST(EveryKind, CutsAsDeleteDoes)
{
    const std::string deleted = After("{Del}");
    for (const char* keys : {"{Ctrl+X}", "{Shift+Del}"}) {
        EmptyTheClipboard();
        EXPECT_EQ(After(keys), deleted) << keys;
        EXPECT_EQ(ClipboardText(), GetParam().cut) << keys;
        EXPECT_EQ(Beeps(), 0) << keys;
        EXPECT_FALSE(control_->ShiftIsDown());
    }
}

ROW_TEST(EveryKind, WithNothingSelectedCtrlXDoesNothing)
{
    GivenPart();
    control_->Select(1, 1);
    const std::string before = Shown();
    CopyToClipboard("kept");
    Play("{Ctrl+X}");
    EXPECT_EQ(Shown(), before);
    EXPECT_EQ(ClipboardText(), "kept");
    EXPECT_EQ(Beeps(), 0);
    EXPECT_FALSE(control_->IsModified());
}

ROW_TEST(EveryKind, WithNothingSelectedShiftDeleteIsDelete)
{
    GivenPart();
    control_->Select(1, 1);
    Play("{Del}");
    const std::string deleted = Shown();
    GivenPart();
    control_->Select(1, 1);
    CopyToClipboard("kept");
    Play("{Shift+Del}");
    EXPECT_EQ(Shown(), deleted);
    EXPECT_EQ(ClipboardText(), "kept");
}

ROW_TEST(EveryKind, CtrlInsertCopies)
{
    EmptyTheClipboard();
    EXPECT_EQ(After("{Ctrl+Ins}"), GetParam().part);
    EXPECT_EQ(ClipboardText(), GetParam().cut);
}

ROW_TEST(EveryKind, AReadOnlyOneIsCopiedFromAndKeepsItsText)
{
    for (const char* keys : {"{Ctrl+X}", "{Shift+Del}", "{Ctrl+Ins}", "{Ctrl+C}"}) {
        EmptyTheClipboard();
        GivenPart();
        control_->SetReadOnly();
        Play(keys);
        EXPECT_EQ(Shown(), GetParam().part) << keys;
        EXPECT_EQ(ClipboardText(), GetParam().cut) << keys;
    }
}

ROW_TEST(EveryKind, ADisabledOneIsCopiedFromAndKeepsItsText)
{
    for (const char* keys : {"{Ctrl+X}", "{Shift+Del}"}) {
        EmptyTheClipboard();
        GivenPart();
        control_->Disable();
        Play(keys);
        EXPECT_EQ(Shown(), GetParam().part) << keys;
        EXPECT_EQ(ClipboardText(), GetParam().cut) << keys;
    }
}

TEST_ROWS(Numbers, EveryKind, kNumbers);
TEST_ROWS(Others, EveryKind, kOthers);

class DeletedText : public EveryKind {};

ROW_TEST(DeletedText, CountsAsModified)
{
    for (const char* keys : {"{Del}", "{Back}", "{Ctrl+X}", "{Shift+Del}", "{Shift+Back}"}) {
        GivenPart();
        EXPECT_FALSE(control_->IsModified());
        Play(keys);
        EXPECT_TRUE(control_->IsModified()) << keys;
    }
}

ROW_TEST(DeletedText, CountsNoMoreOnceCodeHasSetAValue)
{
    GivenPart();
    Play("{Del}");
    control_->SetData(nullptr);
    EXPECT_FALSE(control_->IsModified());
}

TEST_ROWS(Others, DeletedText, kOthers);

class Backspace : public EditTest {};

// How far a word reaches is the field's business.
TEST_F(Backspace, WithCtrlIsDoneWithItsCharacterAndLetsShiftGo)
{
    Given("MM/DD/YY", DT_DATE, "07/1|4/95");
    Play("{Ctrl+Back}");
    EXPECT_EQ(Text()[3], '0');
    EXPECT_EQ(Text().substr(4), "4/95");
    EXPECT_EQ(control_->CaretStart(), control_->CaretEnd());
    EXPECT_FALSE(control_->ShiftIsDown());
    EXPECT_EQ(Beeps(), 0);
}

class ARefusedPaste : public EditTest {};

TEST_F(ARefusedPaste, LeavesTheSelectionAndTheText)
{
    for (const int32_t type : {DT_NUMBER, DT_DECIMAL}) {
        Given("#,##0.00", type, "1[2.3]4");
        CopyToClipboard("abc");
        Play("{Ctrl+V}");
        EXPECT_EQ(Shown(), "1[2.3]4");
        EXPECT_EQ(Beeps(), 1);
        EXPECT_FALSE(control_->IsModified());
    }
}

TEST_F(ARefusedPaste, OfNothingLeavesThemToo)
{
    Given("MM/DD/YY", DT_DATE, "[07/04]/95");
    EmptyTheClipboard();
    Play("{Ctrl+V}");
    EXPECT_EQ(Shown(), "[07/04]/95");
    EXPECT_EQ(Beeps(), 0);
}

// A text that is no date still gives the empty date: it is read as a value, and is none.
TEST_F(ARefusedPaste, IsNoneForADate)
{
    Given("MM/DD/YY", DT_DATE, "[07/04]/95");
    CopyToClipboard("abc");
    Play("{Ctrl+V}");
    EXPECT_EQ(Text(), "00/00/00");
}

// What the spin has put there gives way to a character only.
class SpunText : public SpinTest {
protected:
    void SetUp() override
    {
        MakeCodeTable("##0", DT_NUMBER, "One\t1/Two\t2/Ten\t10", SPINSTYLE_CODETABLE);
        Up();
        spun_ = Text();
        ASSERT_FALSE(spun_.empty());
        control_->Forget();
    }
    std::string spun_;
};

TEST_F(SpunText, StaysUnderControlCharacters)
{
    for (const char* keys : {"{Esc}", "{Tab}", "\n", "{Enter}", "\x1a", "\x05"}) {
        Play(keys);
        EXPECT_EQ(Text(), spun_) << static_cast<int>(keys[0]);
    }
}

TEST_F(SpunText, StaysUnderARefusedPaste)
{
    CopyToClipboard("abc");
    Play("{Ctrl+V}");
    EXPECT_EQ(Text(), spun_);
    EXPECT_EQ(Beeps(), 1);
}

TEST_F(SpunText, GivesWayToACharacterAndCountsAsModified)
{
    MakeCodeTable("DD-MMM-YY", DT_DATE, "Moon\t1969-07-20/Now\tnull!", SPINSTYLE_CODETABLE);
    Up();
    control_->ForgetModified();
    Type("x");
    EXPECT_EQ(Text(), "00-   -00");
    EXPECT_TRUE(control_->IsModified());
}

TEST_F(SpunText, IsNoMoreBehindAPaste)
{
    CopyToClipboard("35");
    Play("{Ctrl+V}");
    EXPECT_EQ(Text(), "35");
    EXPECT_FALSE(control_->Record().spun);
    EXPECT_TRUE(control_->IsModified());
}

struct TypedCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* given;
    const char* keys;
    const char* text;
};
void PrintTo(const TypedCase& row, std::ostream* out)
{
    *out << row.keys << " under " << row.mask;
}

class Typed : public EditTest, public OfRow<TypedCase> {};

ROW_TEST(Typed, CountsAsModified)
{
    const TypedCase& row = GetParam();
    Given(row.mask, row.type, row.given);
    ASSERT_FALSE(control_->IsModified());
    Play(row.keys);
    EXPECT_EQ(Text(), row.text);
    EXPECT_TRUE(control_->IsModified());
}

// clang-format off
const TypedCase kTyped[] = {
    {"ADigitOfADate",      "MM/DD/YY",       DT_DATE,     "07/0|4/95",          "5",      "07/05/95"         },
    {"APaddedDigit",       "MM/DD/YY",       DT_DATE,     "|07/04/95",          "9",      "09/04/95"         },
    {"ASeparator",         "MM/DD/YY",       DT_DATE,     "1|0/04/95",          "/",      "01/04/95"         },
    {"AMonthName",         "DD-MMM-YY",      DT_DATE,     "04-|JUL-95",         "d",      "04-DEC-95"        },
    {"ADigitOfATime",      "HH:MM:SS",       DT_TIME,     "10:1|0:10",          "5",      "10:15:10"         },
    {"AHalfOfTheDay",      "HH:MM AM/PM",    DT_TIME,     "|02:30 AM",          "p",      "02:30 PM"         },
    {"ADigitOfADateTime",  "MM/DD/YY HH:MM", DT_DATETIME, "07/04/95 14:3|0",    "5",      "07/04/95 14:35"   },
    {"ADayOfTheYear",      "JJJ/YY",         DT_DATE,     "18|5/95",            "6",      "186/95"           },
    {"AStringCharacter",   "AA-AA",          DT_STRING,   "a|b-cd",             "x",      "ax-cd"            },
    {"ACharacterAtTheEnd", "AAAA",           DT_STRING,   "ab|",                "x",      "abx"              },
    {"OverASelection",     "MM/DD/YY",       DT_DATE,     "[07/04/95]",         "1",      "10/00/00"         },
};
// clang-format on

TEST_ROWS(Rows, Typed, kTyped);

}  // namespace
}  // namespace zttest
