// The step of one field of a date or time, and the order of two values.
#include "engine/spin/date_step.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "engine/spin/range.h"
#include "engine/values/date_time.h"
#include "tests/support/key_case.h"
#include "tests/support/rows.h"
#include "tests/support/values.h"

namespace zttest {
namespace {

using namespace zte;

DateTimeValue Today()
{
    return ValueOf("2001-09-10 11:12:13:000014");
}

struct StepRow {
    const char* name;
    int32_t type;
    FieldKind field;
    StepDirection direction;
    const char* minimum;
    const char* maximum;
    const char* value;
    const char* stepped;
    StepResult result;
};
void PrintTo(const StepRow& row, std::ostream* out)
{
    *out << row.value;
}

class DateTimeStep : public RowTest<StepRow> {};

// Fields that are not shown while another one is stepped are seen here only.
ROW_TEST(DateTimeStep, MovesOneFieldOrGoesToAnEnd)
{
    const StepRow& row = GetParam();
    const DateStep step = {row.type, 4, row.field, 2, 1, row.direction, ValueOf(row.minimum), ValueOf(row.maximum)};
    DateTimeValue value = ValueOf(row.value);
    EXPECT_EQ(StepDateTime(step, Today, value), row.result);
    EXPECT_EQ(Canonical(value), row.stepped);
}

using F = FieldKind;
constexpr StepDirection kUp = StepDirection::Up;
constexpr StepDirection kDown = StepDirection::Down;
constexpr StepDirection kNeither = StepDirection::Neither;
constexpr StepResult kRefused = StepResult::Refused;
constexpr StepResult kStepped = StepResult::Stepped;
constexpr StepResult kToEnd = StepResult::SetToEnd;
constexpr StepResult kFromToday = StepResult::FromToday;
constexpr char kNow[] = "1995-07-04 13:14:15:160000";

// clang-format off
const StepRow kFieldSteps[] = {
    {"AMonthAlone",       DT_DATETIME, F::Month,     kUp, "", "", kNow, "1995-08-04 13:14:15:160000", kStepped},
    {"ADayAlone",         DT_DATETIME, F::Day,       kUp, "", "", kNow, "1995-07-05 13:14:15:160000", kStepped},
    {"ADayOfTheYearAlone", DT_DATETIME, F::DayOfYear, kUp, "", "", kNow, "1995-07-05 13:14:15:160000", kStepped},
    {"AnHourAlone",       DT_DATETIME, F::Hour,      kUp, "", "", kNow, "1995-07-04 14:14:15:160000", kStepped},
    {"AMinuteAlone",      DT_DATETIME, F::Minute,    kUp, "", "", kNow, "1995-07-04 13:15:15:160000", kStepped},
    {"AMinuteAloneDown",  DT_DATETIME, F::Minute,    kDown, "", "", kNow, "1995-07-04 13:13:15:160000", kStepped},
    {"ASecondAlone",      DT_DATETIME, F::Second,    kUp, "", "", kNow, "1995-07-04 13:14:16:160000", kStepped},
    {"AFractionAlone",    DT_DATETIME, F::Fraction,  kUp, "", "", kNow, "1995-07-04 13:14:15:170000", kStepped},
    {"AYearAlone",        DT_DATETIME, F::Year,      kDown, "", "", kNow, "1994-07-04 13:14:15:160000", kStepped},
    {"OfNothing",         DT_DATETIME, F::Any,       kUp, "", "", kNow, kNow, kStepped},
    {"ADayBesideAMaximumOfTimes", DT_DATETIME, F::Day, kUp, "", "12:00", "1995-07-04 13:00", "1995-07-05 13:00:00:000000", kStepped},
    {"ADayBesideAMinimumOfTimes", DT_DATETIME, F::Day, kDown, "14:00", "", "1995-07-04 13:00", "1995-07-03 13:00:00:000000", kStepped},
    {"AnHourGoesToAMinimumOfTimes", DT_DATETIME, F::Hour, kUp, "08:00", "12:00", "1995-07-04 12:00", "1995-07-04 08:00:00:000000", kToEnd},
    {"AnHourThatWrapsIsRaised", DT_TIME, F::Hour, kUp, "08:00", "", "23:30", "08:00:00:000000", kToEnd},
    {"AnHourThatWrapsStaysWithoutAMinimum", DT_TIME, F::Hour, kDown, "", "20:00", "00:30", "23:30:00:000000", kToEnd},
    {"AnHourPastTheMinimumIsTheMaximum", DT_TIME, F::Hour, kDown, "08:00", "20:00", "08:30", "20:00:00:000000", kToEnd},
    {"ADayThatWrapsIsRaised", DT_DATE, F::Day, kUp, "1995-07-03", "", "1995-07-31", "1995-07-03", kToEnd},
    {"ADayPastTheMaximumIsTheFirst", DT_DATE, F::Day, kUp, "1995-06-03", "1995-07-04", "1995-07-04", "1995-07-01", kStepped},
    {"ADayPastTheMaximumIsTheMinimum", DT_DATE, F::Day, kUp, "1995-07-03", "1995-07-04", "1995-07-04", "1995-07-03", kToEnd},
    {"ADayPastTheMinimumIsTheLast", DT_DATE, F::Day, kDown, "1995-07-03", "1995-08-04", "1995-07-03", "1995-07-31", kStepped},
    {"ADayPastTheMinimumIsTheMaximum", DT_DATE, F::Day, kDown, "1995-07-03", "1995-07-04", "1995-07-03", "1995-07-04", kToEnd},
    {"AYearPastTheMaximumWithoutAMinimum", DT_DATE, F::Year, kUp, "", "1995-12-31", "1995-07-04", "1995-07-04", kRefused},
    {"AYearPastTheMinimumWithoutAMaximum", DT_DATE, F::Year, kDown, "1995-01-01", "", "1995-07-04", "1995-07-04", kRefused},
    {"UpStopsAt2999",     DT_DATE, F::Year, kUp, "", "", "2999-07-04", "2999-07-04", kRefused},
    {"DownFromFarAbove",  DT_DATE, F::Year, kDown, "", "", "9999-07-04", "9998-07-04", kStepped},
    {"DownStopsAt1800",   DT_DATE, F::Year, kDown, "", "", "1800-07-04", "1800-07-04", kRefused},
    {"UpFromFarBelow",    DT_DATE, F::Year, kUp, "", "", "1000-07-04", "1001-07-04", kStepped},
    {"ABlankOfTheLastYear", DT_DATE, F::Month, kUp, "", "", "3000-01-01", "2001-09-10 11:12:13:000014", kFromToday},
    {"JanuaryOfTheLastYear", DT_DATE, F::Day, kUp, "", "", "3000-01-02", "3000-01-03", kStepped},
    {"ABlankUpIsTheMinimum", DT_DATE, F::Day, kUp, "1995-07-03", "", "3000-01-01", "1995-07-03", kToEnd},
    {"ABlankDownIsTheMaximum", DT_DATE, F::Day, kDown, "", "1995-07-04", "3000-01-01", "1995-07-04", kToEnd},
    {"ABlankUpWithoutAMinimum", DT_DATE, F::Day, kUp, "", "2002-01-01", "3000-01-01", "2001-09-10 11:12:13:000014", kFromToday},
    {"ABlankDownWithoutAMaximum", DT_DATE, F::Day, kDown, "2000-01-01", "", "3000-01-01", "2001-09-10 11:12:13:000014", kFromToday},
    {"ABlankInNoDirection", DT_DATE, F::Day, kNeither, "2000-01-01", "2002-01-01", "3000-01-01", "2001-09-10 11:12:13:000014", kFromToday},
    {"AMonthInNoDirection", DT_DATE, F::Month, kNeither, "", "", "1995-07-04", "1995-07-04", kStepped},
    {"AYearInNoDirection", DT_DATE, F::Year, kNeither, "", "", "1995-07-04", "1996-07-04", kStepped},
};
// clang-format on
TEST_ROWS(, DateTimeStep, kFieldSteps);

DateStep StepOf(FieldKind field, StepDirection direction)
{
    return {DT_DATE, 4, field, 2, 1, direction, kEmptyDateTime, kEmptyDateTime};
}

TEST(DateTimeStepOfYearNought, IsBlankOnItsFirstDayOnly)
{
    const DateStep step = StepOf(F::Day, kUp);
    DateTimeValue first = {0, -kFirstYear, 0, 1, DATETIME_NO_TIME, 0, 0, 0};
    EXPECT_EQ(StepDateTime(step, Today, first), kFromToday);
    DateTimeValue fifteenth = {0, -kFirstYear, 0, 15, DATETIME_NO_TIME, 0, 0, 0};
    EXPECT_EQ(StepDateTime(step, Today, fifteenth), kStepped);
    EXPECT_EQ(fifteenth.day, 16);
}

TEST(DateTimeStepOfYearNought, IsReachedWhereTheRangeHasIt)
{
    DateStep step = StepOf(F::Year, kDown);
    step.minimum = {0, -kFirstYear, 1, 1, DATETIME_NO_TIME, 0, 0, 0};
    step.maximum = ValueOf("1995-07-04");
    DateTimeValue value = {0, 1 - kFirstYear, 2, 1, DATETIME_NO_TIME, 0, 0, 0};
    EXPECT_EQ(StepDateTime(step, Today, value), kStepped);
    EXPECT_EQ(value.year, -kFirstYear);
}

// The mask of a keyword may have more letters than there are microseconds.
TEST(DateTimeStepOfAFraction, IsAMicrosecondAtLeast)
{
    for (const int32_t digits : {6, 7, 9}) {
        DateStep step = StepOf(F::Fraction, kUp);
        step.dataType = DT_TIME;
        step.fractionDigits = digits;
        DateTimeValue value = ValueOf("08:15");
        EXPECT_EQ(StepDateTime(step, Today, value), kStepped);
        EXPECT_EQ(value.microsecond, 1u) << digits;
    }
}

struct OrderRow {
    const char* name;
    int32_t type;
    const char* first;
    const char* second;
    bool outOfOrder;
};
void PrintTo(const OrderRow& row, std::ostream* out)
{
    *out << row.first << " and " << row.second;
}

class Order : public RowTest<OrderRow> {};

ROW_TEST(Order, ComparesThePartsThatBothHave)
{
    const OrderRow& row = GetParam();
    EXPECT_EQ(IsOutOfOrder(row.type, ValueOf(row.first), ValueOf(row.second)), row.outOfOrder);
}

// clang-format off
const OrderRow kOrders[] = {
    {"Dates",                DT_DATE, "1995-07-05", "1995-07-04", true},
    {"DatesAlike",           DT_DATE, "1995-07-04", "1995-07-04", false},
    {"NoFirstDate",          DT_DATE, "", "1995-07-04", false},
    {"NoSecondDate",         DT_DATE, "1995-07-04", "", false},
    {"NoDates",              DT_DATE, "", "", false},
    {"TimesOfDates",         DT_DATE, "1995-07-04 12:00", "1995-07-04 08:00", false},
    {"Times",                DT_TIME, "12:00", "08:00", true},
    {"NoFirstTime",          DT_TIME, "", "08:00", false},
    {"NoSecondTime",         DT_TIME, "12:00", "", false},
    {"DatesOfTimes",         DT_TIME, "1995-07-05 08:00", "1995-07-04 12:00", false},
    {"TheDateDecides",       DT_DATETIME, "1995-07-05 08:00", "1995-07-04 12:00", true},
    {"TheDateDecidesAgain",  DT_DATETIME, "1995-07-04 12:00", "1995-07-05 08:00", false},
    {"TheTimeOfOneDay",      DT_DATETIME, "1995-07-04 12:00", "1995-07-04 08:00", true},
    {"ATimeAndADateWithOne", DT_DATETIME, "12:00", "1995-07-04 08:00", true},
    {"ADateWithATimeAndOne", DT_DATETIME, "1995-07-04 12:00", "08:00", true},
    {"ADateAndATime",        DT_DATETIME, "1995-07-04", "08:00", false},
};
// clang-format on
TEST_ROWS(, Order, kOrders);

}  // namespace
}  // namespace zttest
