// Stepping of dates and times: every field, its wraps, and the rules of the range.
#include <gtest/gtest.h>

#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

// Under a mask, from a text with the caret in it, steps up (+) and down (-) lead to another text with the field
// selected.
struct DateStep {
    const char* name;
    const char* mask;
    const char* range;  // null: none
    const char* from;
    const char* steps;
    const char* shown;
    uint32_t increment = 1;
};
void PrintTo(const DateStep& row, std::ostream* out)
{
    *out << row.name << " (" << row.from << " under " << row.mask << " in " << (row.range ? row.range : "no range")
         << ", " << row.steps << ")";
}

// By the fields that only one type has.
int32_t TypeOf(const std::string& mask)
{
    const bool date = mask.find("YY") != std::string::npos || mask.find("yy") != std::string::npos;
    const bool time = mask.find("HH") != std::string::npos;
    return date && time ? DT_DATETIME : date ? DT_DATE : DT_TIME;
}

class DateSteps : public SpinTest, public OfRow<DateStep> {};

ROW_TEST(DateSteps, LeadTo)
{
    const DateStep& row = GetParam();
    MakeSpin(row.mask, TypeOf(row.mask), row.range, row.increment, nullptr);
    Show(row.from);
    for (const char* step = row.steps; *step; ++step)
        Step(*step == '+' ? Arrow::Up : Arrow::Down);
    EXPECT_EQ(Shown(), row.shown);
    ASSERT_FALSE(control_->Notices().empty());
    EXPECT_EQ(control_->Notices().back(), Notice::Changed);
}

TEST_ROWS_OF(Month, DateSteps, DateStep{"Up", "MM/DD/YY", nullptr, "|07/04/95", "+", "[08]/04/95"},
             DateStep{"Down", "MM/DD/YY", nullptr, "|07/04/95", "-", "[06]/04/95"},
             DateStep{"FromTheSecondDigit", "MM/DD/YY", nullptr, "0|7/04/95", "+", "[08]/04/95"},
             DateStep{"UpWrapsWithoutCarry", "MM/DD/YY", nullptr, "|12/04/95", "+", "[01]/04/95"},
             DateStep{"DownWrapsWithoutCarry", "MM/DD/YY", nullptr, "|01/04/95", "-", "[12]/04/95"},
             DateStep{"ByName", "DD-MMM-YY", nullptr, "04-|JUL-95", "+", "04-[AUG]-95"},
             DateStep{"ByNameWraps", "DD-MMM-YY", nullptr, "04-|JAN-95", "-", "04-[DEC]-95"},
             DateStep{"FromTheEndOfAName", "DD-MMM-YY", nullptr, "04-JU|L-95", "-", "04-[JUN]-95"},
             DateStep{"SmallLetters", "mm/dd/yy", nullptr, "|07/04/95", "+", "[08]/04/95"},
             DateStep{"LeavesThe31st", "MM/DD/YY", nullptr, "|01/31/95", "+", "[02]/31/95"},
             DateStep{"TheIncrementIsForYears", "MM/DD/YY", nullptr, "|07/04/95", "+", "[08]/04/95", 5});

TEST_ROWS_OF(Day, DateSteps, DateStep{"Up", "MM/DD/YY", nullptr, "07/|04/95", "+", "07/[05]/95"},
             DateStep{"Down", "MM/DD/YY", nullptr, "07/|04/95", "-", "07/[03]/95"},
             DateStep{"UpWrapsWithoutCarry", "MM/DD/YY", nullptr, "01/|31/95", "+", "01/[01]/95"},
             DateStep{"DownWrapsToTheMonthsLength", "MM/DD/YY", nullptr, "04/|01/95", "-", "04/[30]/95"},
             DateStep{"FebruaryOfACommonYear", "MM/DD/YY", nullptr, "02/|28/95", "+", "02/[01]/95"},
             DateStep{"FebruaryOfALeapYear", "MM/DD/YY", nullptr, "02/|28/96", "++", "02/[01]/96"},
             DateStep{"FebruaryOf2000", "MM/DD/YYYY", nullptr, "02/|01/2000", "-", "02/[29]/2000"},
             DateStep{"FebruaryOf1900", "MM/DD/YYYY", nullptr, "02/|01/1900", "-", "02/[28]/1900"},
             DateStep{"FebruaryOf2000InTwoDigits", "MM/DD/YY", nullptr, "02/|01/00", "-", "02/[29]/00"},
             DateStep{"PastTheMonthsLength", "MM/DD/YY", nullptr, "02/|31/95", "+", "02/[01]/95"},
             DateStep{"NoDayUp", "MM/DD/YY", nullptr, "07/|00/95", "+", "07/[02]/95"});

TEST_ROWS_OF(DayOfTheYear, DateSteps, DateStep{"Up", "JJJ/YYYY", nullptr, "|059/1995", "+", "[060]/1995"},
             DateStep{"Down", "JJJ/YYYY", nullptr, "|060/1995", "-", "[059]/1995"},
             DateStep{"UpWrapsInACommonYear", "JJJ/YYYY", nullptr, "|365/1995", "+", "[001]/1995"},
             DateStep{"UpInALeapYear", "JJJ/YYYY", nullptr, "|365/1996", "+", "[366]/1996"},
             DateStep{"UpWrapsInALeapYear", "JJJ/YYYY", nullptr, "|366/1996", "+", "[001]/1996"},
             DateStep{"DownWrapsInACommonYear", "YYYY.JJJ", nullptr, "1995.|001", "-", "1995.[365]"},
             DateStep{"DownWrapsInALeapYear", "YYYY.JJJ", nullptr, "1996.|001", "-", "1996.[366]"});

TEST_ROWS_OF(Year, DateSteps, DateStep{"Up", "MM/DD/YY", nullptr, "07/04/|95", "+", "07/04/[96]"},
             DateStep{"Down", "MM/DD/YY", nullptr, "07/04/|95", "-", "07/04/[94]"},
             DateStep{"UpOverTheCentury", "MM/DD/YY", nullptr, "07/04/|99", "+", "07/04/[00]"},
             DateStep{"DownOverTheCentury", "MM/DD/YY", nullptr, "07/04/|00", "-", "07/04/[99]"},
             DateStep{"ByTheIncrement", "MM/DD/YYYY", nullptr, "07/04/|1995", "+", "07/04/[2005]", 10},
             DateStep{"DownByTheIncrement", "MM/DD/YYYY", nullptr, "07/04/|1995", "-", "07/04/[1985]", 10},
             DateStep{"To2999", "MM/DD/YYYY", nullptr, "07/04/|2998", "+", "07/04/[2999]"},
             DateStep{"Past2999IsRefused", "MM/DD/YYYY", nullptr, "07/04/|2999", "+", "07/04/[2999]"},
             DateStep{"To1800", "MM/DD/YYYY", nullptr, "07/04/|1801", "-", "07/04/[1800]"},
             DateStep{"Past1800IsRefused", "MM/DD/YYYY", nullptr, "07/04/|1800", "-", "07/04/[1800]"},
             DateStep{"LargestIncrementUpIsRefused", "MM/DD/YYYY", nullptr, "07/04/|1995", "+", "07/04/[1995]",
                      0xFFFFFFFF},
             DateStep{"LargestIncrementDownIsRefused", "MM/DD/YYYY", nullptr, "07/04/|1995", "-", "07/04/[1995]",
                      0xFFFFFFFF},
             DateStep{"IncrementOf65536IsRefused", "MM/DD/YYYY", nullptr, "07/04/|1995", "+", "07/04/[1995]", 65536},
             DateStep{"FromTheLeapDay", "MM/DD/YYYY", nullptr, "02/29/|1996", "+", "02/29/[1997]"});

TEST_ROWS_OF(Time, DateSteps, DateStep{"HourUp", "HH:MM:SS", nullptr, "|10:20:30", "+", "[11]:20:30"},
             DateStep{"HourUpWrapsWithoutCarry", "HH:MM:SS", nullptr, "|23:20:30", "+", "[00]:20:30"},
             DateStep{"HourDownWraps", "HH:MM:SS", nullptr, "|00:20:30", "-", "[23]:20:30"},
             DateStep{"HourDoesNotCarryIntoTheDay", "MM/DD/YY HH:MM", nullptr, "07/04/95 |23:10", "+",
                      "07/04/95 [00]:10"},
             DateStep{"MinuteUp", "HH:MM:SS", nullptr, "10:|20:30", "+", "10:[21]:30"},
             DateStep{"MinuteUpWrapsWithoutCarry", "HH:MM:SS", nullptr, "10:|59:30", "+", "10:[00]:30"},
             DateStep{"MinuteDownWraps", "HH:MM:SS", nullptr, "10:|00:30", "-", "10:[59]:30"},
             DateStep{"MinuteOfADateTime", "MM/DD/YY HH:MM", nullptr, "07/04/95 10:|59", "+", "07/04/95 10:[00]"},
             DateStep{"MonthOfADateTime", "MM/DD/YY HH:MM", nullptr, "|12/04/95 10:59", "+", "[01]/04/95 10:59"},
             DateStep{"SecondUpWraps", "HH:MM:SS", nullptr, "10:20:|59", "+", "10:20:[00]"},
             DateStep{"SecondDownWraps", "HH:MM:SS", nullptr, "10:20:|00", "-", "10:20:[59]"},
             DateStep{"SecondDown", "HH:MM:SS", nullptr, "10:20:|30", "-", "10:20:[29]"});

TEST_ROWS_OF(Fraction, DateSteps, DateStep{"OneDigitUp", "HH:MM:SS:F", nullptr, "10:20:30:|8", "+", "10:20:30:[9]"},
             DateStep{"OneDigitWraps", "HH:MM:SS:F", nullptr, "10:20:30:|9", "+", "10:20:30:[0]"},
             DateStep{"OneDigitDownWraps", "HH:MM:SS:F", nullptr, "10:20:30:|0", "-", "10:20:30:[9]"},
             DateStep{"TwoDigitsUp", "HH:MM:SS:FF", nullptr, "10:20:30:|98", "+", "10:20:30:[99]"},
             DateStep{"TwoDigitsWrap", "HH:MM:SS:FF", nullptr, "10:20:30:|99", "+", "10:20:30:[00]"},
             DateStep{"ThreeDigitsUp", "HH:MM:SS:FFF", nullptr, "10:20:30:|250", "+", "10:20:30:[251]"},
             DateStep{"ThreeDigitsDown", "HH:MM:SS:FFF", nullptr, "10:20:30:|250", "-", "10:20:30:[249]"},
             DateStep{"ThreeDigitsDownWrap", "HH:MM:SS:FFF", nullptr, "10:20:30:|000", "-", "10:20:30:[999]"},
             DateStep{"ThreeDigitsWrapAround", "HH:MM:SS:FFF", nullptr, "10:20:30:|000", "-+", "10:20:30:[000]"},
             DateStep{"FourDigitsUp", "HH:MM:SS:FFFF", nullptr, "10:20:30:|0009", "+", "10:20:30:[0010]"},
             DateStep{"FiveDigitsDown", "HH:MM:SS:FFFFF", nullptr, "10:20:30:|00010", "-", "10:20:30:[00009]"},
             DateStep{"SixDigitsUp", "HH:MM:SS:FFFFFF", nullptr, "10:20:30:|000249", "+", "10:20:30:[000250]"},
             DateStep{"SixDigitsWrap", "HH:MM:SS:FFFFFF", nullptr, "10:20:30:|999999", "+", "10:20:30:[000000]"},
             DateStep{"SixDigitsDownWrap", "HH:MM:SS:FFFFFF", nullptr, "10:20:30:|000000", "-", "10:20:30:[999999]"});

TEST_ROWS_OF(AmPm, DateSteps, DateStep{"UpFlips", "HH:MM AM/PM", nullptr, "01:30 |AM", "+", "01:30 [P]M"},
             DateStep{"DownFlips", "HH:MM AM/PM", nullptr, "01:30 |AM", "-", "01:30 [P]M"},
             DateStep{"FlipsBack", "HH:MM AM/PM", nullptr, "01:30 |PM", "+", "01:30 [A]M"},
             DateStep{"SmallLettersInTheMask", "HH:MM am/pm", nullptr, "01:30 |PM", "+", "01:30 [A]M"},
             DateStep{"AnythingElseBecomesMorning", "HH:MM AM/PM", nullptr, "01:30 |XM", "+", "01:30 [A]M"},
             DateStep{"TheSecondLetterIsNoField", "HH:MM AM/PM", nullptr, "01:30 A|M", "+", "01:30 A[M]"},
             DateStep{"HourAcrossNoon", "HH:MM AM/PM", nullptr, "|11:30 AM", "+", "[12]:30 AM"},
             DateStep{"HourOfTheAfternoon", "HH:MM AM/PM", nullptr, "|01:30 PM", "+", "[02]:30 PM"},
             DateStep{"HourDownFromOne", "HH:MM AM/PM", nullptr, "|01:30 PM", "-", "[12]:30 PM"},
             DateStep{"MinuteUnderAmPm", "HH:MM AM/PM", nullptr, "01:|59 PM", "+", "01:[00] PM"});

TEST_ROWS_OF(Caret, DateSteps,
             DateStep{"OnALiteralChangesNothing", "MM/DD/YY", nullptr, "07|/04/95", "+", "07[/]04/95"},
             DateStep{"OnALiteralOfTwo", "MM--DD--YY", nullptr, "07-|-04--95", "-", "07[--]04--95"},
             DateStep{"OnAnEscapedLiteral", "MM/DD/YY~D", nullptr, "07/04/95|D", "+", "07/04/95[D]"},
             DateStep{"AMonthBehindALiteralWithAnH", "the MM/DD/YY", nullptr, "the |07/04/95", "+", "the [08]/04/95"},
             DateStep{"OnALiteralOutOfTheRange", "MM/DD/YYYY", "2000-01-01~2000-12-31", "07|/04/1995", "+",
                      "01[/]01/2000"},
             DateStep{"PastTheEnd", "MM/DD/YY", nullptr, "07/04/95|", "+", "07/04/95|"},
             DateStep{"ASelectionCountsByItsStart", "MM/DD/YY", nullptr, "07/[04/95]", "+", "07/[05]/95"},
             DateStep{"FreeTextStays", "XX MM/DD/YY", nullptr, "|ab 07/04/95", "+", "[ab] 07/04/95"});

// Year, hour, minute, second and fraction: past one end goes to the other.
TEST_ROWS_OF(
    RangeOfWrappingFields, DateSteps,
    DateStep{"YearUpPastTheMaximum", "MM/DD/YYYY", "1995-03-10~1997-06-20", "07/04/|1996", "+", "03/10/[1995]"},
    DateStep{"YearDownPastTheMinimum", "MM/DD/YYYY", "1995-03-10~1997-06-20", "02/04/|1996", "-", "06/20/[1997]"},
    DateStep{"YearUpInside", "MM/DD/YYYY", "1995-03-10~1997-06-20", "05/04/|1996", "+", "05/04/[1997]"},
    DateStep{"YearUpToTheMaximumItself", "MM/DD/YYYY", "1995-03-10~1997-06-20", "06/20/|1996", "+", "06/20/[1997]"},
    DateStep{"YearUpWithoutAMinimumIsRefused", "MM/DD/YYYY", "~1997-06-20", "07/04/|1996", "+", "07/04/[1996]"},
    DateStep{"YearDownWithoutAMaximumIsRefused", "MM/DD/YYYY", "1995-03-10~", "02/04/|1996", "-", "02/04/[1996]"},
    DateStep{"YearDownWithAMaximumAloneStopsAt1800", "MM/DD/YYYY", "~1997-06-20", "07/04/|1800", "-", "07/04/[1800]"},
    DateStep{"YearUpWithAMinimumAloneStopsAt2999", "MM/DD/YYYY", "1995-03-10", "07/04/|2999", "+", "07/04/[2999]"},
    DateStep{"YearBefore1800WithAMinimum", "MM/DD/YYYY", "1700-01-01", "07/04/|1800", "-", "07/04/[1799]"},
    DateStep{"Year3000WithAMaximum", "MM/DD/YYYY", "~3000-12-31", "07/04/|2999", "+", "07/04/[3000]"},
    DateStep{"YearPast3000GoesToTheMinimum", "MM/DD/YYYY", "1995-03-10~9999-12-31", "07/04/|3000", "+", "03/10/[1995]"},
    DateStep{"LargestIncrementUpGoesToTheMinimum", "MM/DD/YYYY", "1995-03-10~1997-06-20", "05/04/|1996", "+",
             "03/10/[1995]", 0xFFFFFFFF},
    DateStep{"LargestIncrementDownGoesToTheMaximum", "MM/DD/YYYY", "1995-03-10~1997-06-20", "05/04/|1996", "-",
             "06/20/[1997]", 0xFFFFFFFF},
    DateStep{"AnIncrementThatWouldWrapAround16Bits", "MM/DD/YYYY", "1995-03-10~1997-06-20", "05/04/|1996", "-",
             "06/20/[1997]", 65536},
    DateStep{"HourUpPastTheMaximum", "HH:MM:SS", "08:15:00~17:45:00", "|17:00:00", "+", "[08]:15:00"},
    DateStep{"HourDownPastTheMinimum", "HH:MM:SS", "08:15:00~17:45:00", "|09:00:00", "-", "[17]:45:00"},
    DateStep{"HourUpWithoutAMinimumIsRefused", "HH:MM:SS", "~17:45:00", "|17:00:00", "+", "[17]:00:00"},
    DateStep{"HourUpWrapsBelowTheMinimum", "HH:MM:SS", "08:15:00~", "|23:00:00", "+", "[08]:15:00"},
    DateStep{"HourDownWrapsAboveTheMaximum", "HH:MM:SS", "00:00:00~17:45:00", "|00:30:00", "-", "[17]:45:00"},
    DateStep{"MinuteUpPastTheMaximum", "HH:MM:SS", "08:15:00~17:45:00", "17:|45:00", "+", "08:[15]:00"},
    DateStep{"MinuteUpWrapsBelowTheMinimum", "HH:MM:SS", "08:15:00~17:45:00", "08:|59:00", "+", "08:[15]:00"},
    DateStep{"MinuteDownPastTheMinimum", "HH:MM:SS", "08:15:00~17:45:00", "08:|15:00", "-", "17:[45]:00"},
    DateStep{"MinuteDownWrapsAboveTheMaximum", "HH:MM:SS", "08:15:00~17:45:00", "17:|00:00", "-", "17:[45]:00"},
    DateStep{"SecondUpPastTheMaximum", "HH:MM:SS", "08:15:10~17:45:50", "17:45:|50", "+", "08:15:[10]"},
    DateStep{"SecondDownPastTheMinimum", "HH:MM:SS", "08:15:10~17:45:50", "08:15:|10", "-", "17:45:[50]"},
    DateStep{"FractionUpPastTheMaximum", "HH:MM:SS:FF", "08:15:10:20~17:45:50:60", "17:45:50:|60", "+",
             "08:15:10:[20]"},
    DateStep{"FractionDownPastTheMinimum", "HH:MM:SS:FF", "08:15:10:20~17:45:50:60", "08:15:10:|20", "-",
             "17:45:50:[60]"},
    DateStep{"HourFromBelowTheMinimum", "HH:MM:SS", "08:15:00~17:45:00", "|03:00:00", "+", "[08]:15:00"},
    DateStep{"HourFromAboveTheMaximum", "HH:MM:SS", "08:15:00~17:45:00", "|20:00:00", "-", "[17]:45:00"});

// Day, month and day of the year: past an end the field first goes to its own first or last value.
TEST_ROWS_OF(
    RangeOfCalendarFields, DateSteps,
    DateStep{"DayUpPastTheMaximumGoesToTheFirst", "MM/DD/YYYY", "1995-03-10~1997-06-20", "06/|20/1997", "+",
             "06/[01]/1997"},
    DateStep{"DayUpPastTheMaximumAndBelowTheMinimum", "MM/DD/YYYY", "1997-06-10~1997-06-20", "06/|20/1997", "+",
             "06/[10]/1997"},
    DateStep{"DayDownPastTheMinimumGoesToTheLast", "MM/DD/YYYY", "1995-03-10~1997-06-20", "03/|10/1995", "-",
             "03/[31]/1995"},
    DateStep{"DayDownPastTheMinimumAndAboveTheMaximum", "MM/DD/YYYY", "1997-06-10~1997-06-20", "06/|10/1997", "-",
             "06/[20]/1997"},
    DateStep{"DayUpWrapsBelowTheMinimum", "MM/DD/YYYY", "1995-03-10~1997-06-20", "03/|31/1995", "+", "03/[10]/1995"},
    DateStep{"DayDownWrapsAboveTheMaximum", "MM/DD/YYYY", "1995-03-10~1997-06-20", "06/|01/1997", "-", "06/[20]/1997"},
    DateStep{"DayUpPastTheMaximumWithoutAMinimum", "MM/DD/YYYY", "~1997-06-20", "06/|20/1997", "+", "06/[01]/1997"},
    DateStep{"MonthUpPastTheMaximumGoesToJanuary", "MM/DD/YYYY", "1995-03-10~1997-06-20", "|06/04/1997", "+",
             "[01]/04/1997"},
    DateStep{"MonthUpPastTheMaximumAndBelowTheMinimum", "MM/DD/YYYY", "1997-02-10~1997-06-20", "|06/04/1997", "+",
             "[02]/10/1997"},
    DateStep{"MonthDownPastTheMinimumGoesToDecember", "MM/DD/YYYY", "1995-03-10~1997-06-20", "|03/15/1995", "-",
             "[12]/15/1995"},
    DateStep{"MonthDownPastTheMinimumAndAboveTheMaximum", "MM/DD/YYYY", "1997-02-10~1997-06-20", "|02/15/1997", "-",
             "[06]/20/1997"},
    DateStep{"MonthUpWrapsBelowTheMinimum", "MM/DD/YYYY", "1995-03-10~1997-06-20", "|12/04/1995", "+", "[03]/10/1995"},
    DateStep{"DayOfTheYearUpPastTheMaximum", "YYYY.JJJ", "1999-02-01~2000-12-30", "2000.|365", "+", "2000.[001]"},
    DateStep{"DayOfTheYearDownPastTheMinimum", "YYYY.JJJ", "1999-02-01~2000-12-30", "1999.|032", "-", "1999.[365]"},
    DateStep{"DayOfTheYearDownPastBoth", "YYYY.JJJ", "1999-02-01~1999-11-30", "1999.|032", "-", "1999.[334]"},
    DateStep{"DayOfTheYearUpPastBoth", "YYYY.JJJ", "1999-02-01~1999-11-30", "1999.|334", "+", "1999.[032]"},
    DateStep{"MonthNamesInTheRange", "DD-MMM-YYYY", "05-FEB-2001~05-MAR-2001", "05-|MAR-2001", "+", "05-[FEB]-2001"},
    DateStep{"FromBelowTheMinimum", "MM/DD/YYYY", "1995-03-10~1997-06-20", "|07/04/1990", "+", "[03]/10/1995"},
    DateStep{"FromAboveTheMaximum", "MM/DD/YYYY", "1995-03-10~1997-06-20", "|07/04/2005", "-", "[06]/20/1997"});

TEST_ROWS_OF(RangeTexts, DateSteps,
             DateStep{"InTheMasksLayout", "MM/DD/YY", "03/10/95~06/20/97", "07/04/|96", "+", "03/10/[95]"},
             DateStep{"Mixed", "MM/DD/YY", "1995-03-10~06/20/97", "07/04/|96", "+", "03/10/[95]"},
             DateStep{"OutOfOrderIsNone", "MM/DD/YYYY", "2000-01-01~1999-01-01", "07/04/|2005", "+", "07/04/[2006]"},
             DateStep{"UnreadableIsNone", "MM/DD/YYYY", "soon~later", "07/04/|2005", "+", "07/04/[2006]"},
             DateStep{"AnUnreadableMaximumIsNone", "MM/DD/YYYY", "1995-03-10~later", "07/04/|2005", "+",
                      "07/04/[2006]"},
             DateStep{"AnImpossibleMinimumIsNone", "MM/DD/YYYY", "1995-02-30~1997-06-20", "07/04/|1996", "+",
                      "07/04/[1996]"},
             DateStep{"Empty", "MM/DD/YYYY", "", "07/04/|2005", "+", "07/04/[2006]"},
             DateStep{"TildeAlone", "MM/DD/YYYY", "~", "07/04/|2005", "+", "07/04/[2006]"},
             DateStep{"EqualEnds", "MM/DD/YYYY", "2000-05-05~2000-05-05", "05/|05/2000", "+", "05/[05]/2000"},
             DateStep{"AmPmInTheLayout", "HH:MM AM/PM", "09:30 AM~05:15 PM", "|05:00 PM", "+", "[09]:30 AM"},
             DateStep{"AmPmCanonical", "HH:MM AM/PM", "09:30~17:15", "|05:00 PM", "+", "[09]:30 AM"},
             DateStep{"AmPmCanonicalDown", "HH:MM AM/PM", "09:30~17:15", "|10:00 AM", "-", "[05]:15 PM"},
             DateStep{"DateTimeBothParts", "MM/DD/YYYY HH:MM", "1999-02-03 04:05~1999-04-05 06:07", "04/05/1999 |06:00",
                      "+", "02/03/1999 [04]:05"},
             DateStep{"DateTimeDownToTheMaximum", "MM/DD/YYYY HH:MM", "1999-02-03 04:05~1999-04-05 06:07",
                      "02/03/1999 |04:30", "-", "04/05/1999 [06]:07"},
             DateStep{"DatesAloneDoNotBoundHours", "MM/DD/YYYY HH:MM", "1999-02-03~1999-04-05", "04/05/1999 |23:00",
                      "+", "04/05/1999 [00]:00"},
             DateStep{"DatesAloneBoundDays", "MM/DD/YYYY HH:MM", "1999-04-03~1999-04-05", "04/|05/1999 23:00", "+",
                      "04/[03]/1999 23:00"},
             DateStep{"TheMaximumsTimeNeedsAMinimumWithATime", "MM/DD/YYYY HH:MM", "1999-02-03~1999-04-05 06:07",
                      "|05/05/1999 23:00", "-", "[04]/05/1999 23:00"},
             DateStep{"TheMinimumsTimeIsTaken", "MM/DD/YYYY HH:MM", "1999-02-03 04:05~1999-04-05", "|01/01/1999 23:00",
                      "+", "[02]/03/1999 04:05"});

// A display that was not filled in, and the last year of the calendar.
TEST_ROWS_OF(Blank, DateSteps,
             DateStep{"UpGoesToTheMinimum", "MM/DD/YYYY", "1995-03-10~1997-06-20", "|00/00/0000", "+", "[03]/10/1995"},
             DateStep{"DownGoesToTheMaximum", "MM/DD/YYYY", "1995-03-10~1997-06-20", "00/|00/0000", "-",
                      "06/[20]/1997"},
             DateStep{"FromYear3000UpGoesToTheMinimum", "MM/DD/YYYY", "1995-03-10~9997-06-20", "01/01/|3000", "+",
                      "03/10/[1995]"},
             DateStep{"AMaximumBeyond3000IsCapped", "MM/DD/YYYY", "1995-03-10~9997-06-20", "00/00/|0000", "-",
                      "06/20/[3000]"},
             DateStep{"TwoDigitYearsAreNeverBlank", "MM/DD/YY", nullptr, "00/00/|00", "+", "00/00/[01]"},
             DateStep{"TwoDigitYearsStepTheMonth", "MM/DD/YY", nullptr, "|00/00/00", "+", "[02]/00/00"},
             DateStep{"TimesStartAtMidnight", "HH:MM:SS", nullptr, "|00:00:00", "+", "[01]:00:00"});

class DateStepping : public SpinTest {
protected:
    void MakeDate(const char* range = nullptr, uint32_t increment = 1)
    {
        MakeSpin("MM/DD/YYYY", DT_DATE, range, increment, nullptr);
    }
    // Today's date before and after something was done; they differ at midnight only.
    template <class Work>
    std::vector<DateTimeValue> TodayAround(Work work)
    {
        const DateTimeValue before = Now();
        work();
        return {before, Now()};
    }
    static std::string Digits(int number, int width)
    {
        const std::string digits = std::to_string(number);
        return std::string(static_cast<size_t>(width) - digits.size(), '0') + digits;
    }
};

TEST_F(DateStepping, ABlankDateStartsFromToday)
{
    MakeDate();
    const std::vector<DateTimeValue> days = TodayAround([this] {
        Show("00/00/|0000");
        Up();
        PutCaret(0);
        Show("|" + Text());
    });
    std::vector<std::string> years;
    for (const DateTimeValue& day : days)
        years.push_back("00/00/" + Digits(day.year + 1900, 4));
    EXPECT_TRUE(Text() == years[0] || Text() == years[1]) << Text();
}

TEST_F(DateStepping, EachFieldOfABlankDateStartsFromToday)
{
    MakeDate();
    std::string month;
    std::string day;
    const std::vector<DateTimeValue> days = TodayAround([&] {
        Show("|00/00/0000");
        Down();
        month = Text();
        Show("00/|00/0000");
        Up();
        day = Text();
    });
    const bool same = days[0].day == days[1].day;
    EXPECT_TRUE(!same || month == Digits(days[0].month + 1, 2) + "/00/0000") << month;
    EXPECT_TRUE(!same || day == "00/" + Digits(days[0].day, 2) + "/0000") << day;
}

TEST_F(DateStepping, ABlankDateBelowTheMinimumOfALaterDayGoesThere)
{
    MakeDate("2999-01-02");
    Show("00/|00/0000");
    Up();
    EXPECT_EQ(Shown(), "01/[02]/2999");
}

TEST_F(DateStepping, ABlankDateGoesDownToAMaximumInThePast)
{
    MakeDate("~1990-05-06");
    Show("00/00/|0000");
    Down();
    EXPECT_EQ(Shown(), "05/06/[1990]");
}

TEST_F(DateStepping, AnEmptyTextStaysEmpty)
{
    MakeDate();
    Show("|");
    Up();
    EXPECT_EQ(Text(), "");
    EXPECT_EQ(control_->Notices(), std::vector<Notice>{Notice::Changed});
}

TEST_F(DateStepping, ARefusedStepStillNotifies)
{
    MakeDate();
    Show("07/04/|2999");
    Up();
    EXPECT_EQ(control_->Notices(), std::vector<Notice>{Notice::Changed});
}

TEST_F(DateStepping, AnUnreadableTextIsHarmless)
{
    MakeDate("1995-03-10~1997-06-20");
    for (const char* text : {"|ab/cd/efgh", "|-1/-1/-999", "|99/99/9999", "|+9/+9/+999", "|1", "|//////////"})
        for (const Arrow arrow : {Arrow::Up, Arrow::Down})
            for (const int caret : {0, 3, 6, 9}) {
                Show(text);
                PutCaret(caret);
                Step(arrow);
                EXPECT_LE(Text().size(), 12u) << text;
            }
}

// The day is not brought into the shorter month: what stands there is read as it stands, and any day step brings it in.
TEST_F(DateStepping, The31stOfAShortMonthIsReadAsShown)
{
    MakeDate();
    control_->SetDataString("1995-01-31");
    PutCaret(0);
    Up();
    EXPECT_EQ(Shown(), "[02]/31/1995");
    EXPECT_EQ(Value(), "1995-02-31");
    PutCaret(3);
    Up();
    EXPECT_EQ(Value(), "1995-02-01");
}

TEST_F(DateStepping, TheLeapDayOfACommonYearIsReadAsShown)
{
    MakeDate();
    control_->SetDataString("1996-02-29");
    PutCaret(6);
    Up();
    EXPECT_EQ(Value(), "1997-02-29");
    Down();
    EXPECT_EQ(Value(), "1996-02-29");
}

TEST_F(DateStepping, AValueIsReadBackAfterEveryStep)
{
    MakeDate();
    control_->SetDataString("1999-12-31");
    PutCaret(6);
    Up();
    PutCaret(0);
    Up();
    PutCaret(3);
    Down();
    EXPECT_EQ(Value(), "2000-01-30");
}

TEST_F(DateStepping, AmPmUsesTheRegionalStrings)
{
    const Regional settings({
        {"s1159", "vorm"},
        {"s2359", "nach"}
    });
    MakeSpin("HH:MM AM/PM", DT_TIME, nullptr, 1, nullptr);
    control_->SetDataString("09:30");
    ASSERT_EQ(Text(), "09:30 vorm");
    PutCaret(6);
    Up();
    EXPECT_EQ(Text(), "09:30 nach");
    Down();
    EXPECT_EQ(Text(), "09:30 vorm");
}

TEST_F(DateStepping, FieldsBehindAmPmAreSteppedWhereTheyAreShown)
{
    const Regional settings({
        {"s1159", "AM" },
        {"s2359", "EVE"}
    });
    MakeSpin("HH AM/PM:MM", DT_TIME, nullptr, 1, nullptr);
    control_->SetDataString("21:30");
    ASSERT_EQ(Text(), "09 EVE:30");
    PutCaret(7);
    Up();
    EXPECT_EQ(Shown(), "09 EVE:[31]");
    PutCaret(3);
    Up();
    EXPECT_EQ(Shown(), "09 [A]M:31");
    PutCaret(6);
    Down();
    EXPECT_EQ(Shown(), "09 AM:[30]");
}

TEST_F(DateStepping, FlippingAmPmFlipsTheValue)
{
    MakeSpin("HH:MM AM/PM", DT_TIME, nullptr, 1, nullptr);
    control_->SetDataString("12:15");
    PutCaret(6);
    Up();
    EXPECT_EQ(Value(), "00:15:00:000000");
    Down();
    EXPECT_EQ(Value(), "12:15:00:000000");
}

TEST_F(DateStepping, LeavesNothingToUndo)
{
    MakeDate();
    Show("07/|04/1995");
    Up();
    EXPECT_FALSE(control_->CanUndo());
}

TEST_F(DateStepping, ARangeTextOfAHundredThousandCharactersIsHarmless)
{
    const std::string range = std::string(50000, '1') + "~" + std::string(50000, '9');
    MakeDate(range.c_str());
    Show("07/04/|1995");
    Up();
    EXPECT_EQ(Text(), "07/04/1996");
}

}  // namespace
}  // namespace zttest
