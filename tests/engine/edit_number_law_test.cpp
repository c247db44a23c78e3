// Whoever types a number gets that number: as a clerk types it, over what stands there, with Home, Backspace, a minus, a point
// and a wrong key on the way.
#include "tests/support/classic_rows.h"
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

class NumberLaw : public KeyTable {};

ROW_TEST(NumberLaw, LeadsTo)
{
    Check(GetParam());
}

TEST_ROWS(UnitedStates, NumberLaw, classic::kNumberLaw);

RegionalSet Currency(const RegionalSet& set, const char* symbol, const char* position, const char* digits)
{
    return With(set, {
                         {"sCurrency",   symbol  },
                         {"iCurrency",   position},
                         {"iCurrDigits", digits  }
    });
}

class CzechNumberLaw : public KeyTable {
    const Regional regional_{Currency(kFrench, "Kc", "1", "0")};
};
class DanishNumberLaw : public KeyTable {
    const Regional regional_{Currency(kGerman, "kr.", "0", "2")};
};
class SwissFrancNumberLaw : public KeyTable {
    const Regional regional_{Currency(kSwiss, "Fr.", "0", "2")};
};
class MexicanNumberLaw : public KeyTable {
    const Regional regional_{Currency(kUnitedStates, "MXN", "0", "2")};
};

ROW_TEST(CzechNumberLaw, LeadsTo)
{
    Check(GetParam());
}
ROW_TEST(DanishNumberLaw, LeadsTo)
{
    Check(GetParam());
}
ROW_TEST(SwissFrancNumberLaw, LeadsTo)
{
    Check(GetParam());
}
ROW_TEST(MexicanNumberLaw, LeadsTo)
{
    Check(GetParam());
}

TEST_ROWS(Rows, CzechNumberLaw, classic::kCzechNumbers);
TEST_ROWS(Rows, DanishNumberLaw, classic::kDanishNumbers);
TEST_ROWS(Rows, SwissFrancNumberLaw, classic::kSwissFrancNumbers);
TEST_ROWS(Rows, MexicanNumberLaw, classic::kMexicanNumbers);

// What is read back while and after a number is typed.
struct ReadCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* given;
    const char* keys;
    const char* value;
};
void PrintTo(const ReadCase& row, std::ostream* out)
{
    *out << row.name;
}

// clang-format off
const ReadCase kReadRows[] = {
    {"ALoneSign",                  "####",          DT_NUMBER,  "|",        "-",            "0"                     },
    {"ASignBeforeZero",            "#,##0.00",      DT_NUMBER,  "|0.00",    "-0",           "0.00"                  },
    {"ASignWhereNoZeroIsShown",    "#,#.00",        DT_NUMBER,  "|.00",     "-",            ".00"                   },
    {"ANegativeAmount",            "#,##0.00",      DT_NUMBER,  "[5.00]",   "-0.5",         "-0.50"                 },
    {"AnAmountOfMoney",            "[currency(9)]", DT_NUMBER,  "[$5.00]",  "-1234.5",      "-1234.50"              },
    {"APercentage",                "000.0%",        DT_NUMBER,  "[099.9%]", "12.5",         "0.125"                 },
    {"ASmallPercentage",           "#,##0.00%",     DT_NUMBER,  "[5.00%]",  "-.05",         "-0.0005"               },
    {"AWholePercentage",           "##0%",          DT_NUMBER,  "[5%]",     "100",          "1"                     },
    {"AZeroPercentage",            "##0%",          DT_NUMBER,  "[5%]",     "-0",           "0"                     },
    {"EveryDigitOfAPercentage",    "#,##0.000000000000000000%", DT_DECIMAL, "[0.000000000000000000%]",
     "12.345678901234567890", "0.1234567890123456789"},
    {"AnEscapedDigit",             "Tel~5#",        DT_NUMBER,  "Tel5|",    "7",            "7"                     },
    {"ALiteralBehindASeparator",   ",~5##0",        DT_NUMBER,  "5|0",      "12",           "12"                    },
    {"AnEscapedPoint",             "~.###",         DT_NUMBER,  ".|",       "123",          "123"                   },
    {"TwentyDigits",               "####################", DT_DECIMAL, "|", "12345678901234567890", "12345678901234567890"},
};
// clang-format on

class NumberReadBack : public EditTest, public OfRow<ReadCase> {};

ROW_TEST(NumberReadBack, Is)
{
    GivenText(GetParam().mask, GetParam().type, GetParam().given);
    Play(GetParam().keys);
    EXPECT_EQ(Value(), GetParam().value) << Shown();
    EXPECT_EQ(Beeps(), 0);
}

TEST_ROWS(Rows, NumberReadBack, kReadRows);

class NumberFocus : public EditTest {};

TEST_F(NumberFocus, MovesOnOnlyAfterTheLastFractionDigit)
{
    const Regional settings(kFrench);
    Given("[currency(5)]", DT_NUMBER, "123,[4]5F", ZTEO_AUTOSKIP);
    Type("8");
    EXPECT_EQ(Shown(), "123,8|5F");
    EXPECT_EQ(Skips(), 0);
    Type("9");
    EXPECT_EQ(Skips(), 1);
}

TEST_F(NumberFocus, TakesTheSignOfZeroAway)
{
    Given("$#,##0.00", DT_NUMBER, "[$5.00]");
    Type("-");
    EXPECT_EQ(Shown(), "$-|0.00");
    control_->LoseFocus();
    EXPECT_EQ(Text(), "$0.00");
    EXPECT_TRUE(control_->IsModified());
}

TEST_F(NumberFocus, LeavesTheSignOfANumber)
{
    Given("#,##0.00", DT_NUMBER, "[5.00]");
    Type("-0.05");
    control_->LoseFocus();
    EXPECT_EQ(Text(), "-0.05");
}

TEST_F(NumberFocus, LeavesTextsThatAreNoNumberAlone)
{
    GivenText("#,##0.00", DT_NUMBER, "-none-|");
    control_->LoseFocus();
    EXPECT_EQ(Text(), "-none-");
}

TEST_F(NumberFocus, LeavesAControlThatTakesNoInputAlone)
{
    GivenText("#,##0.00", DT_NUMBER, "-0.00|");
    control_->SetReadOnly();
    control_->LoseFocus();
    EXPECT_EQ(Text(), "-0.00");
}

class SignOfZero : public SpinTest {};

TEST_F(SignOfZero, EndsWithAStep)
{
    MakeSpin("##0", DT_NUMBER, "-9~9", 1, "5");
    SelectAll();
    Type("-");
    EXPECT_EQ(Text(), "-0");
    Up();
    EXPECT_EQ(Text(), "1");
}

class NumberModified : public EditTest {};

TEST_F(NumberModified, IsSetByTypingAndByDeletion)
{
    Given("#,##0.00", DT_NUMBER, "|0.00");
    control_->ForgetModified();
    Type("5");
    EXPECT_TRUE(control_->IsModified());
    control_->ForgetModified();
    Backspace();
    EXPECT_TRUE(control_->IsModified());
}

TEST_F(NumberModified, IsNotSetByAKeyThatIsRefused)
{
    Given("#,##0.00", DT_NUMBER, "5|.00");
    control_->ForgetModified();
    Type("x");
    EXPECT_FALSE(control_->IsModified());
}

TEST_F(NumberModified, IsClearedByTheProgram)
{
    Given("#,##0.00", DT_NUMBER, "|0.00");
    Type("5");
    control_->SetDataString("7");
    EXPECT_FALSE(control_->IsModified());
}

class BackspaceWithoutItsCharacter : public EditTest {};

TEST_F(BackspaceWithoutItsCharacter, IsForgottenAtTheNextKey)
{
    Given("##0", DT_NUMBER, "|0");
    control_->Keys().KeyDownAlone('\b');
    Play("8{Back}");
    EXPECT_EQ(Shown(), "|0");
}

class EqualSeparators : public ValueTest {
    const Regional regional_{
        With(kUnitedStates, {{"sThousand", "."}}
         )
    };
};

TEST_F(EqualSeparators, GroupNothing)
{
    Install("[currency(9)]", DT_NUMBER);
    control_->SetDataString("1234.5");
    EXPECT_EQ(Text(), "$1234.50");
    EXPECT_EQ(Value(), "1234.50");
}

class General : public ValueTest {};

TEST_F(General, ReadsTheExponentsThatItShows)
{
    for (const char* value : {"1E+300", "1E-17", "-2.5E+20", "0.5", "1E+16"}) {
        Install("[GENERAL]", DT_NUMBER);
        control_->SetDataString(value);
        EXPECT_EQ(Text(), value);
        EXPECT_EQ(Value(), value);
    }
}

TEST_F(General, IsNotTypedInto)
{
    Install("[GENERAL]", DT_NUMBER);
    control_->SetDataString("12.5");
    Play("{Home}7{Del}x");
    EXPECT_EQ(Text(), "12.5");
    EXPECT_EQ(Beeps(), 2);
}

}  // namespace
}  // namespace zttest
