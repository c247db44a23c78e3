// Which mask a control gets, where its fields stand, and what is kept of it in the control.
#include "engine/mask/mask_choice.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>

#include "engine/mask/currency_mask.h"
#include "engine/mask/half_of_day.h"
#include "engine/mask/mask_checks.h"
#include "engine/mask/mask_table.h"
#include "engine/mask/picture.h"
#include "engine/memory_control.h"

namespace zttest {
namespace {

using namespace zte;

FieldLayout Unset()
{
    return {-7, -7, -7, -7, -7, -7, -7, -7, -7, true};
}

bool IsAccepted(const char* mask, int32_t type, FieldLayout& layout)
{
    return static_cast<bool>(CheckDateOrTimeMask(FromAscii(mask), type, layout));
}
bool IsAccepted(const char* mask, int32_t type)
{
    FieldLayout layout = Unset();
    return IsAccepted(mask, type, layout);
}

// ---- Dates and times ----

// The longest run of each letter, and one more; a day of the year and a day or month exclude each other.
TEST(DateMaskCheck, TakesTheRunsOfEachLetter)
{
    EXPECT_TRUE(IsAccepted("MMM/DD/YYYY", DT_DATE));
    EXPECT_TRUE(IsAccepted("JJJ/YY", DT_DATE));
    EXPECT_TRUE(IsAccepted("HH:MM:SS:FFFFFF", DT_TIME));
    for (const char* mask : {"M/YY", "MMMM/YY", "MM/D/YY", "MM/DDD/YY", "MM/Y", "MM/YYY", "MM/YYYYY", "JJ/YY",
                             "JJJJ/YY", "JJJ/MM/YY", "MM/JJJ/YY", "MM/DD/JJJ/YY"})
        EXPECT_FALSE(IsAccepted(mask, DT_DATE)) << mask;
    for (const char* mask : {"H", "HHH", "HH:M", "HH:MMM", "HH:MM:S", "HH:MM:SSS", "HH:MM:SS:FFFFFFF"})
        EXPECT_FALSE(IsAccepted(mask, DT_TIME)) << mask;
}

TEST(DateMaskCheck, RefusesRunsThatNoWordHasBitsFor)
{
    EXPECT_FALSE(IsAccepted(std::string(34, 'Y').c_str(), DT_DATE));
    EXPECT_FALSE(IsAccepted(std::string(36, 'Y').c_str(), DT_DATE));
}

TEST(DateMaskCheck, TakesNoMoreThanAMaskHolds)
{
    const Text longest = FromAscii("HH") + Text(kMaxMaskLength - 2, Char{':'});
    FieldLayout layout = Unset();
    EXPECT_TRUE(CheckDateOrTimeMask(longest, DT_TIME, layout));
    layout.hasAmPm = true;
    EXPECT_FALSE(CheckDateOrTimeMask(longest + Char{':'}, DT_TIME, layout));
    EXPECT_FALSE(layout.hasAmPm);
}

TEST(DateMaskCheck, HasNoAmPmFieldInAMaskRefused)
{
    FieldLayout layout = Unset();
    EXPECT_TRUE(IsAccepted("HH:MM AM/PM", DT_TIME, layout));
    EXPECT_TRUE(layout.hasAmPm);
    EXPECT_FALSE(IsAccepted("AM/PM:MM", DT_TIME, layout));
    EXPECT_FALSE(layout.hasAmPm);
}

// The run of a letter behind an escape is measured one place further on: here at the two slashes.
TEST(FieldsOfAMask, StandBehindYearsAndEscapesUnlessItIsOfDates)
{
    FieldLayout layout = Unset();
    ASSERT_TRUE(IsAccepted("YYYY~xM//", DT_DATE, layout));
    EXPECT_EQ(layout.monthPos, 0);
    EXPECT_EQ(layout.yearDigits, 4);
    ASSERT_TRUE(IsAccepted("YYYY~xM//", DT_DATETIME, layout));
    EXPECT_EQ(layout.monthPos, 5);
}

// ---- Every type ----

TEST(MaskCheck, TakesAnyMaskForATypeThatIsNotKnown)
{
    FieldLayout layout = Unset();
    EXPECT_TRUE(CheckMask(FromAscii("~"), 99, StandardSettings(), layout));
}

TEST(MaskChoice, TakesEvenNoMaskForATypeThatIsNotKnown)
{
    FieldLayout layout = Unset();
    const ChosenMask chosen = ChooseMask(Text(), 99, StandardSettings(), layout);
    EXPECT_TRUE(chosen.asGiven);
    EXPECT_EQ(chosen.text, Text());
}

TEST(MaskChoice, OfAStringHasNoAmPmField)
{
    FieldLayout layout = Unset();
    ChooseMask(FromAscii("##"), DT_STRING, StandardSettings(), layout);
    EXPECT_FALSE(layout.hasAmPm);
}

TEST(MaskChoice, OfAKeywordForDatesTellsWhereTheFieldsStand)
{
    Settings settings = StandardSettings();
    Assign(settings.shortDate, FromAscii("d/M/yyyy"));
    FieldLayout layout = Unset();
    const ChosenMask chosen = ChooseMask(FromAscii("[date]"), DT_DATE, settings, layout);
    EXPECT_EQ(chosen.text, FromAscii("dd/mm/yyyy"));
    EXPECT_EQ(layout.dayPos, 0);
    EXPECT_EQ(layout.monthPos, 3);
    EXPECT_EQ(layout.yearDigits, 4);
}

TEST(MaskChoice, OfAKeywordForStringsHasNoFields)
{
    Settings settings = StandardSettings();
    Assign(settings.shortDate, FromAscii("d AM/PM"));
    FieldLayout layout = Unset();
    ChooseMask(FromAscii("[date]"), DT_STRING, settings, layout);
    EXPECT_FALSE(layout.hasAmPm);
    EXPECT_EQ(layout.ampmPos, -7);
}

TEST(MaskChoice, ForcesTheUnitsOfMoneyWithoutFractionsOnly)
{
    Settings settings = StandardSettings();
    settings.currencyDigits = 0;
    FieldLayout layout = Unset();
    EXPECT_FALSE(ChooseMask(FromAscii("[date]"), DT_DATE, settings, layout).unitsForced);
    EXPECT_TRUE(ChooseMask(FromAscii("[currency(4)]"), DT_NUMBER, settings, layout).unitsForced);
    settings.currencyDigits = 2;
    EXPECT_FALSE(ChooseMask(FromAscii("[currency(4)]"), DT_NUMBER, settings, layout).unitsForced);
}

TEST(MaskChoice, ForgetsTheFieldsOfAMaskRefused)
{
    FieldLayout layout = Unset();
    EXPECT_FALSE(ChooseMask(FromAscii("HH AM/PM AM/PM"), DT_TIME, StandardSettings(), layout).asGiven);
    EXPECT_EQ(layout.ampmPos, -7);
}

// A separator may end the quotes that it is written between.
TEST(MaskChoice, OfATimeThatIsNoMaskIsTheDefault)
{
    Settings settings = StandardSettings();
    Assign(settings.timeSeparator, FromAscii("'a"));
    FieldLayout layout = Unset();
    for (const char* keyword : {"[time]", "[date] [time]"}) {
        const ChosenMask chosen = ChooseMask(FromAscii(keyword), DT_DATETIME, settings, layout);
        EXPECT_FALSE(chosen.asGiven) << keyword;
        EXPECT_EQ(chosen.text, FromAscii("MM/DD/YY HH:MM:SS:FFF")) << keyword;
    }
}

TEST(CurrencyKeyword, NeedsBothParentheses)
{
    FieldLayout layout = Unset();
    const auto maskOf = [&](const char* keyword) {
        return ChooseMask(FromAscii(keyword), DT_NUMBER, StandardSettings(), layout).text;
    };
    EXPECT_EQ(maskOf("[currency(5)]"), FromAscii("$###.00"));
    EXPECT_NE(maskOf("[currency(5"), FromAscii("$###.00"));
    EXPECT_NE(maskOf("[currency 5)"), FromAscii("$###.00"));
    EXPECT_NE(maskOf("[currency)5("), FromAscii("$###.00"));
}

TEST(CurrencyFraction, OfANegativeCountIsThePointAlone)
{
    Settings settings = StandardSettings();
    settings.currencyDigits = -1;
    EXPECT_EQ(BuildCurrencyMask(4, settings), FromAscii("$##,###."));
}

TEST(CurrencyFraction, SoFarBelowNoughtThatTheIntegerPartDoesNotFitGivesNoMask)
{
    Settings settings = StandardSettings();
    settings.currencyDigits = std::numeric_limits<int32_t>::min();
    EXPECT_EQ(BuildCurrencyMask(16, settings), Text());
}

TEST(PictureStatusTold, IsThatOfTheFirstErrorWithoutRoomToo)
{
    EXPECT_EQ(PictureToMask(FromAscii("yyy"), 0).status, PictureStatus::BadYear);
}

TEST(PictureOfTimes, HasMinutesAnywhereBehindTheHour)
{
    EXPECT_EQ(PictureToMask(FromAscii("h:s:mmm"), kMaxMaskLength).status, PictureStatus::LongMinute);
    EXPECT_EQ(PictureToMask(FromAscii("s:mmm"), kMaxMaskLength).status, PictureStatus::Ok);
}

// ---- Positions ----

TEST(PositionsPastTheEnd, AreTheFirstReadBehindTheWholeMask)
{
    const auto beyond = [](const char* mask, int32_t type) {
        return MaskPositions(FromAscii(mask), type).Beyond().kind;
    };
    EXPECT_EQ(beyond("MM/DD/YY HH", DT_DATETIME), FieldKind::Minute);
    EXPECT_EQ(beyond("MM/DD/YY", DT_DATETIME), FieldKind::Month);
    EXPECT_EQ(beyond("MM/DD/YY", DT_DATE), FieldKind::Month);
}

TEST(PositionsBeforeTheStart, AreNone)
{
    const MaskPositions positions(FromAscii("MM/DD/YY"), DT_DATE);
    EXPECT_FALSE(positions.At(-1).exists);
    EXPECT_EQ(positions.At(-1).kind, FieldKind::Literal);
}

TEST(RunsOfLetters, EndAtAnEscape)
{
    const MaskPositions positions(FromAscii("YY~YYY"), DT_DATE);
    EXPECT_EQ(positions.At(1).runAfter, 0);
    EXPECT_EQ(positions.At(2).runBefore, 0);
    EXPECT_EQ(positions.At(2).runAfter, 0);
    EXPECT_EQ(positions.At(3).runBefore, 0);
    EXPECT_EQ(positions.At(4).runBefore, 1);
}

TEST(AmPmPositions, AreNotFoundInAnEscape)
{
    MaskPositions escaped(FromAscii("~AM/PM HH"), DT_TIME);
    EXPECT_EQ(escaped.MarkAmPm(), -1);
    MaskPositions field(FromAscii("HH AM/PM"), DT_TIME);
    EXPECT_EQ(field.MarkAmPm(), 3);
}

class MaskInForce : public testing::Test {
protected:
    EditInstance& Make(const char* mask, int32_t dataType)
    {
        mask_ = FromAscii(mask);
        ControlSetup setup;
        setup.mask = mask_.c_str();
        setup.dataType = dataType;
        control_ = std::make_unique<MemoryControl>(setup, settings_, nullptr);
        return control_->Record();
    }

    Settings settings_ = StandardSettings();
    Text mask_;
    std::unique_ptr<MemoryControl> control_;
};

TEST_F(MaskInForce, ANumbersLiteralsArePlain)
{
    const EditInstance& record = Make("$#.00", DT_NUMBER);
    const Text text = FromAscii("$1.50");
    EXPECT_TRUE(PositionAt(record, text, 0).IsPlainLiteral());
    EXPECT_EQ(PositionAt(record, text, 1).kind, FieldKind::NumberDigit);
    EXPECT_TRUE(PositionAt(record, text, 2).IsPlainLiteral());
}

TEST_F(MaskInForce, ASignInTheSymbolBehindANumberIsNone)
{
    Assign(settings_.currencySymbol, FromAscii("-k"));
    settings_.currencyPosition = 1;
    settings_.currencyDigits = 0;
    const EditInstance& record = Make("[currency(3)]", DT_NUMBER);
    ASSERT_EQ(Text(record.mask), FromAscii("###-k"));
    EXPECT_TRUE(IsEditable(record, FromAscii("5-k"), 0));
    EXPECT_FALSE(IsEditable(record, FromAscii("5-k"), 1));
}

// The backslash is a currency's symbol where fonts show it as one.
TEST_F(MaskInForce, MoneyWithoutFractionsShowsNothingAsNoughtBehindABackslash)
{
    Assign(settings_.currencySymbol, FromAscii("\\"));
    settings_.currencyDigits = 0;
    EXPECT_EQ(Text(Make("[currency(1)]", DT_NUMBER).table->number.format), FromAscii("\\\\0"));
}

TEST_F(MaskInForce, AGeneralNumberHasNoLiterals)
{
    const EditInstance& record = Make("[GENERAL]", DT_NUMBER);
    EXPECT_TRUE(record.table->number.isGeneral);
    EXPECT_EQ(record.table->number.before.length, 0);
    EXPECT_EQ(record.table->number.behind.length, 0);
}

TEST_F(MaskInForce, TheWordsOfAPictureArePlainLiteralsFromTheFirstToTheLast)
{
    Assign(settings_.shortDate, FromAscii("'d'd.M.yyyy'd'"));
    const EditInstance& record = Make("[date]", DT_DATE);
    EXPECT_FALSE(PositionOf(record, Text(), -1).exists);
    EXPECT_TRUE(PositionOf(record, Text(), 0).IsPlainLiteral());
    EXPECT_TRUE(PositionOf(record, Text(), 11).IsPlainLiteral());
}

TEST_F(MaskInForce, AnAmPmFieldIsOfTimesOnly)
{
    EXPECT_FALSE(HasAmPmField(Make("##AM/PM", DT_STRING)));
    EXPECT_FALSE(HasAmPmField(Make("YY AM/PM", DT_DATE)));
    EXPECT_TRUE(HasAmPmField(Make("HH AM/PM", DT_TIME)));
}

TEST_F(MaskInForce, NoPositionIsAnAmPmFieldThatIsNotThere)
{
    EXPECT_FALSE(IsAmPmPosition(Make("HH:MM", DT_TIME), -1));
}

TEST_F(MaskInForce, ADroppedMaskHasNoAmPmField)
{
    EditInstance& record = Make("HH AM/PM", DT_TIME);
    DropMask(record);
    EXPECT_EQ(record.table, nullptr);
    EXPECT_FALSE(HasAmPmField(record));
}

TEST_F(MaskInForce, AFieldWithoutDesignatorsTakesNoPlace)
{
    Assign(settings_.amString, Text());
    Assign(settings_.pmString, Text());
    const EditInstance& record = Make("HH AM/PM:MM", DT_TIME);
    EXPECT_EQ(PositionOf(record, FromAscii("05 :30"), 3).character, Char{':'});
}

TEST_F(MaskInForce, FieldsMoveBehindAHalfThatBeginsTheMask)
{
    const EditInstance& record = Make("AM/PM HH:MM", DT_TIME);
    const Text text = FromAscii("AM 05:30");
    EXPECT_EQ(PositionOf(record, text, 3).kind, FieldKind::Hour);
    EXPECT_EQ(ShownLength(record, text), 8);
}

TEST(ShownLengthOf, AControlThatHasNoMaskYetIsNothing)
{
    const EditInstance record{};
    EXPECT_EQ(ShownLength(record, FromAscii("abc")), 0);
}

// ---- The half of the day ----

TEST_F(MaskInForce, NothingTypedIsNoHalf)
{
    Assign(settings_.amString, Text());
    Assign(settings_.pmString, Text());
    EXPECT_FALSE(HalfTyped(Make("HH AM/PM", DT_TIME), FromAscii("05 "), Char{}).has_value());
}

// A text without a designator tells by its length how wide another one may have been, if any could.
TEST_F(MaskInForce, TheHalfIsAsWideAsItsDesignator)
{
    const EditInstance& record = Make("HH AM/PM", DT_TIME);
    EXPECT_EQ(AmPmWidth(record, FromAscii("05 AM")), 2);
    EXPECT_EQ(AmPmWidth(record, FromAscii("05 AMx")), 2) << "shown: the rest does not count";
    EXPECT_EQ(AmPmWidth(record, FromAscii("05 x")), 1);
    EXPECT_EQ(AmPmWidth(record, FromAscii("05 xxxx")), 4);
    EXPECT_EQ(AmPmWidth(record, FromAscii("05 xxxxx")), 2) << "wider than any";
    EXPECT_EQ(AmPmWidth(record, FromAscii("05 xxxxxxxxx")), 2);
    EXPECT_EQ(AmPmWidth(record, FromAscii("05 ")), 2) << "nothing";
    EXPECT_EQ(AmPmWidth(record, FromAscii("05")), 2) << "less than nothing";
}

}  // namespace
}  // namespace zttest
