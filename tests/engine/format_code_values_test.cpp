// Values shown through a code table, and read back from its entries.
#include "tests/support/engine_test.h"

namespace zttest {
namespace {

constexpr uint32_t kThroughCodes = ZTEO_SPIN | ZTEO_CODE_DISPLAY;
constexpr const char* kColours = "Red\tR/Green\tG/None\tnull!/Red too\tR";

class CodeValues : public ValueTest {
protected:
    bool Positioned() const { return Record().codePositioned; }
};

TEST_F(CodeValues, AValueIsShownAsItsEntry)
{
    Install("XXXXXXXX", DT_STRING, kThroughCodes, kColours);
    EXPECT_EQ(ShownFor("G"), "Green");
    EXPECT_TRUE(Positioned());
}

TEST_F(CodeValues, TheFirstOfTwoEntriesIsTaken)
{
    Install("XXXXXXXX", DT_STRING, kThroughCodes, kColours);
    EXPECT_EQ(ShownFor("R"), "Red");
}

TEST_F(CodeValues, AnEntryIsReadBackAsItsValue)
{
    Install("XXXXXXXX", DT_STRING, kThroughCodes, kColours);
    ShownFor("G");
    EXPECT_EQ(Read(), "G");
}

TEST_F(CodeValues, AnyEntryOfAValueIsReadBackAsIt)
{
    Install("XXXXXXXX", DT_STRING, kThroughCodes, kColours);
    SetText("Red too");
    EXPECT_EQ(Read(), "R");
}

TEST_F(CodeValues, ValuesAreComparedExactly)
{
    Install("XXXXXXXX", DT_STRING, kThroughCodes, kColours);
    EXPECT_EQ(ShownFor("g"), "g");
    EXPECT_FALSE(Positioned());
}

TEST_F(CodeValues, NullIsTheNullEntry)
{
    Install("XXXXXXXX", DT_STRING, kThroughCodes, kColours);
    control_->SetData(nullptr);
    EXPECT_EQ(Text(), "None");
    EXPECT_TRUE(Positioned());
}

TEST_F(CodeValues, NullOfANumberIsTheNullEntry)
{
    Install("#,##0", DT_NUMBER, kThroughCodes, "Few\t3/None\tnull!");
    control_->SetData(nullptr);
    EXPECT_EQ(Text(), "None");
}

TEST_F(CodeValues, NullOfADateIsTheNullEntry)
{
    Install("MM/DD/YY", DT_DATE, kThroughCodes, "Open\tnull!");
    control_->SetData(nullptr);
    EXPECT_EQ(Text(), "Open");
}

TEST_F(CodeValues, AnUnknownValueIsShownThroughTheMask)
{
    Install("(XX)", DT_STRING, kThroughCodes, kColours);
    EXPECT_EQ(ShownFor("ab"), "(ab)");
    EXPECT_FALSE(Positioned());
}

TEST_F(CodeValues, AnUnknownValueUnderAPickListCountsAsNotTyped)
{
    Install("(XX)", DT_STRING, kThroughCodes | ZTEO_CODE_PICK, kColours);
    ShownFor("ab");
    EXPECT_TRUE(Record().spun);
}

TEST_F(CodeValues, AValueThatCountsAsNotTypedLeavesTheFormatOfTheTextBefore)
{
    Install("(XX)", DT_STRING, kThroughCodes | ZTEO_CODE_PICK, kColours);
    const uint32_t before = Record().formatFlags;
    ShownFor("ab");
    EXPECT_EQ(Record().formatFlags, before);
}

TEST_F(CodeValues, AnUnknownValueBringsItsFormatAlong)
{
    Install("(XX)", DT_STRING, kThroughCodes, kColours);
    ShownFor("ab");
    EXPECT_EQ(Record().formatFlags, static_cast<uint32_t>(FORMAT_DONE | FORMAT_HAS_LITERALS | FORMAT_LITERAL_AFTER));
    EXPECT_EQ(Record().firstFieldPos, 1);
}

TEST_F(CodeValues, AnUnknownTextIsReadThroughTheMask)
{
    Install("(XX)", DT_STRING, kThroughCodes, kColours);
    ShownFor("ab");
    EXPECT_EQ(Read(), "ab");
}

TEST_F(CodeValues, NumbersAreLookedUpAsTheMaskShowsThem)
{
    Install("#,##0.00", DT_NUMBER, kThroughCodes, "Dozen\t12.00/Gross\t144.00");
    EXPECT_EQ(ShownFor("144"), "Gross");
    EXPECT_TRUE(Positioned());
}

TEST_F(CodeValues, DecimalsAreLookedUpAsTheMaskShowsThem)
{
    Install("#,##0.00", DT_DECIMAL, kThroughCodes, "Dozen\t12.00/Gross\t144.00");
    EXPECT_EQ(ShownFor("144"), "Gross");
}

TEST_F(CodeValues, ANumberInAnotherFormIsNotFound)
{
    Install("#,##0.00", DT_NUMBER, kThroughCodes, "Dozen\t12");
    EXPECT_EQ(ShownFor("12"), "12.00");
}

TEST_F(CodeValues, ANumberEntryIsReadBackAsItsValue)
{
    Install("#,##0.00", DT_NUMBER, kThroughCodes, "Dozen\t12.00");
    ShownFor("12");
    EXPECT_EQ(Read(), "12.00");
}

TEST_F(CodeValues, ADateEntryIsReadBackAsItsCanonicalValue)
{
    Install("MM/DD/YY", DT_DATE, kThroughCodes, "Independence\t1776-07-04");
    SetText("Independence");
    EXPECT_EQ(Read(), "1776-07-04");
}

TEST_F(CodeValues, ATimeEntryIsReadBackAsItsCanonicalValue)
{
    Install("HH:MM AM/PM", DT_TIME, kThroughCodes, "Tea\t17:00");
    SetText("Tea");
    EXPECT_EQ(Read(), "17:00:00:000000");
}

TEST_F(CodeValues, ADateEntryWithAnImpossibleValueReadsAsNull)
{
    Install("MM/DD/YY", DT_DATE, kThroughCodes, "Never\t1995-02-30");
    SetText("Never");
    EXPECT_EQ(Read(), kNullResult);
}

TEST_F(CodeValues, ATextGivenIsLookedUpToo)
{
    Install("XXXXXXXX", DT_STRING, kThroughCodes, kColours);
    EXPECT_EQ(Unformat("Green"), "G");
}

TEST_F(CodeValues, FormattingLooksUpToo)
{
    Install("XXXXXXXX", DT_STRING, kThroughCodes, kColours);
    EXPECT_EQ(Format("G").text, "Green");
}

TEST_F(CodeValues, AnEntryWithoutAValueIsNeverFound)
{
    Install("XXXXXXXX", DT_STRING, kThroughCodes, "Red/Green\tG");
    EXPECT_EQ(ShownFor("Red"), "Red");
    EXPECT_FALSE(Positioned());
}

TEST_F(CodeValues, WithoutCodeDisplayTheTableIsNotUsed)
{
    Install("XXXXXXXX", DT_STRING, ZTEO_SPIN, kColours);
    EXPECT_EQ(ShownFor("G"), "G");
}

TEST_F(CodeValues, CodeDisplayWithoutATableShowsNothing)
{
    Install("XXXXXXXX", DT_STRING, ZTEO_CODE_DISPLAY);
    SetText("before");
    EXPECT_EQ(ShownFor("G"), "");
    EXPECT_TRUE(Record().spun);
}

TEST_F(CodeValues, ANewMaskLeavesTheTextUnderCodeDisplay)
{
    Install("XXXXXXXX", DT_STRING, kThroughCodes, kColours);
    ShownFor("G");
    control_->SetMask("####", DT_STRING);
    EXPECT_EQ(Text(), "Green");
}

TEST_F(CodeValues, SettingAnotherValueForgetsThePosition)
{
    Install("XXXXXXXX", DT_STRING, kThroughCodes, kColours);
    ShownFor("G");
    ShownFor("unknown");
    EXPECT_FALSE(Positioned());
}

}  // namespace
}  // namespace zttest
