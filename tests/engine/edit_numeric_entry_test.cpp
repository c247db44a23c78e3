// Typing into numbers and decimals: digits grow to the left of the point, and the text is laid through the mask again.
#include "tests/support/classic_rows.h"
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

class NumberEntry : public KeyTable {};

ROW_TEST(NumberEntry, LeadsTo)
{
    Check(GetParam());
}

TEST_ROWS(UnitedStates, NumberEntry, classic::kNumbers);

class GermanNumberEntry : public KeyTable {
    const Regional regional_{kGerman};
};
class FrenchNumberEntry : public KeyTable {
    const Regional regional_{kFrench};
};
class SwissNumberEntry : public KeyTable {
    const Regional regional_{kSwiss};
};

ROW_TEST(GermanNumberEntry, LeadsTo)
{
    Check(GetParam());
}
ROW_TEST(FrenchNumberEntry, LeadsTo)
{
    Check(GetParam());
}
ROW_TEST(SwissNumberEntry, LeadsTo)
{
    Check(GetParam());
}

TEST_ROWS(Rows, GermanNumberEntry, classic::kGermanNumbers);
TEST_ROWS(Rows, FrenchNumberEntry, classic::kFrenchNumbers);
TEST_ROWS(Rows, SwissNumberEntry, classic::kSwissNumbers);

class NumberAutoskip : public EditTest {};

TEST_F(NumberAutoskip, TheLastFractionDigitNotifiesOnce)
{
    Given("#,##0.00", DT_NUMBER, "123.4|0", ZTEO_AUTOSKIP);
    Type("5");
    EXPECT_EQ(Shown(), "123.45|");
    EXPECT_EQ(Skips(), 1);
}

TEST_F(NumberAutoskip, AWholeAmountNotifiesOnce)
{
    Given("#,#.00", DT_NUMBER, "|.00", ZTEO_AUTOSKIP);
    Type("123.45");
    EXPECT_EQ(Skips(), 1);
}

TEST_F(NumberAutoskip, AFullWholeNumberNotifiesOnce)
{
    Given("####", DT_NUMBER, "123|", ZTEO_AUTOSKIP);
    Type("4");
    EXPECT_EQ(Skips(), 1);
}

TEST_F(NumberAutoskip, AFullZeroMaskNotifiesOnce)
{
    Given("000", DT_NUMBER, "12|0", ZTEO_AUTOSKIP);
    Type("3");
    EXPECT_EQ(Skips(), 1);
}

TEST_F(NumberAutoskip, AFractionDigitBeforeTheLastSendsNothing)
{
    Given("#,##0.00", DT_NUMBER, "123.|40", ZTEO_AUTOSKIP);
    Type("5");
    EXPECT_EQ(Skips(), 0);
}

TEST_F(NumberAutoskip, AnIntegerDigitSendsNothing)
{
    Given("#,##0.00", DT_NUMBER, "12|.00", ZTEO_AUTOSKIP);
    Type("3");
    EXPECT_EQ(Skips(), 0);
}

class CharacterWise : public EditTest {};

TEST_F(CharacterWise, EditingLastsUntilDataIsSetAgain)
{
    Given("#,#.00", DT_NUMBER, "|.00");
    Type("123");  // fills the integer part
    PutCaret(1);
    Play("{Del}");  // numeric deletion goes back to numeric editing
    PutCaret(0);
    Type("4");
    EXPECT_EQ(Text(), "413.00");
}

TEST_F(CharacterWise, DigitsOverwriteOnceTheIntegerPartIsFull)
{
    Given("#,#.00", DT_NUMBER, "|.00");
    Type("123");
    PutCaret(0);
    Type("4");
    EXPECT_EQ(Shown(), "4|23.00");
}

TEST_F(CharacterWise, SettingDataGoesBackToNumericEditing)
{
    Given("#,#.00", DT_NUMBER, "|.00");
    Type("123");
    control_->SetDataString("7");
    PutCaret(0);
    Type("4");
    EXPECT_EQ(Shown(), "4|7.00");
}

TEST_F(CharacterWise, ADigitOnThePointGoesToTheFirstFractionDigit)
{
    Given("#,#.00", DT_NUMBER, "|.00");
    Type("123");
    PutCaret(3);
    Type("4");
    EXPECT_EQ(Shown(), "123.4|0");
}

}  // namespace
}  // namespace zttest
