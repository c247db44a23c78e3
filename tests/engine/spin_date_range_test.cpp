// The ends of date and time ranges: how their texts are read, and how two values are ordered.
#include <gtest/gtest.h>

#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

constexpr DateTimeValue kUnset = {7, 7, 7, 7, 7, 7, 7, 7};

struct RangeEnd {
    const char* name;
    const char* mask;
    int32_t type;
    const char* text;
    const char* value;  // canonical, null when the text is refused
};
void PrintTo(const RangeEnd& row, std::ostream* out)
{
    *out << row.name << " (" << row.text << " under " << row.mask << ")";
}

class DateRange : public SpinTest, public OfRow<RangeEnd> {};

ROW_TEST(DateRange, ReadsAnEnd)
{
    const RangeEnd& row = GetParam();
    MakeSpin(row.mask, row.type, nullptr, 1, nullptr);
    DateTimeValue value = kUnset;
    EXPECT_EQ(control_->ReadRangeEnd(&value, row.text), row.value != nullptr);
    EXPECT_EQ(Canonical(value), row.value ? row.value : "") << "a refused end is empty";
}

TEST_ROWS_OF(Dates, DateRange, RangeEnd{"InTheMasksLayout", "MM/DD/YY", DT_DATE, "01/02/99", "1999-01-02"},
             RangeEnd{"Canonical", "MM/DD/YY", DT_DATE, "1999-01-02", "1999-01-02"},
             RangeEnd{"CanonicalOfTheMasksLength", "MM/DD/YYYY", DT_DATE, "1999-01-02", "1999-01-02"},
             RangeEnd{"TwoDigitsOfThisCentury", "MM/DD/YY", DT_DATE, "01/02/49", "2049-01-02"},
             RangeEnd{"TwoDigitsOfTheLastCentury", "MM/DD/YY", DT_DATE, "01/02/50", "1950-01-02"},
             RangeEnd{"MonthNames", "DD-MMM-YYYY", DT_DATE, "05-MAR-2001", "2001-03-05"},
             RangeEnd{"DayOfTheYear", "JJJ/YYYY", DT_DATE, "060/2000", "2000-02-29"},
             RangeEnd{"NoDayIsTheFirst", "MM/YYYY", DT_DATE, "07/1995", "1995-07-01"},
             RangeEnd{"ImpossibleInTheLayout", "MM/DD/YY", DT_DATE, "02/30/99", nullptr},
             RangeEnd{"ImpossibleCanonical", "MM/DD/YY", DT_DATE, "1999-02-30", nullptr},
             RangeEnd{"Words", "MM/DD/YY", DT_DATE, "tomorrow", nullptr},
             RangeEnd{"Empty", "MM/DD/YY", DT_DATE, "", nullptr},
             RangeEnd{"LiteralsAreNotCompared", "MM/DD/YY", DT_DATE, "12:30:00", "2000-12-30"},
             RangeEnd{"ATimeForADate", "MM/DD/YY", DT_DATE, "12:30", nullptr},
             RangeEnd{"ADateAndATimeForADate", "MM/DD/YY", DT_DATE, "1999-01-02 12:30", nullptr},
             RangeEnd{"YearOne", "MM/DD/YYYY", DT_DATE, "01/01/0001", "0001-01-01"},
             RangeEnd{"YearNought", "MM/DD/YYYY", DT_DATE, "01/01/0000", nullptr},
             RangeEnd{"LastYear", "MM/DD/YYYY", DT_DATE, "12/31/9999", "9999-12-31"});

TEST_ROWS_OF(Times, DateRange, RangeEnd{"InTheMasksLayout", "HH:MM:SS", DT_TIME, "08:15:30", "08:15:30:000000"},
             RangeEnd{"CanonicalIsShorter", "HH:MM:SS", DT_TIME, "08:15", "08:15:00:000000"},
             RangeEnd{"CanonicalWithFraction", "HH:MM:SS", DT_TIME, "08:15:30:25", "08:15:30:250000"},
             RangeEnd{"FractionInTheLayout", "HH:MM:SS:FFF", DT_TIME, "08:15:30:250", "08:15:30:250000"},
             RangeEnd{"Impossible", "HH:MM", DT_TIME, "25:00", nullptr},
             RangeEnd{"PmInTheLayout", "HH:MM AM/PM", DT_TIME, "01:30 PM", "13:30:00:000000"},
             RangeEnd{"NoonInTheLayout", "HH:MM AM/PM", DT_TIME, "12:00 PM", "12:00:00:000000"},
             RangeEnd{"MidnightInTheLayout", "HH:MM AM/PM", DT_TIME, "12:00 AM", "00:00:00:000000"},
             RangeEnd{"CanonicalUnderAmPm", "HH:MM AM/PM", DT_TIME, "13:30", "13:30:00:000000"},
             RangeEnd{"CanonicalWithSecondsUnderAmPm", "HH:MM AM/PM", DT_TIME, "13:30:00", "13:30:00:000000"});

TEST_ROWS_OF(
    DateTimes, DateRange,
    RangeEnd{"InTheMasksLayout", "MM/DD/YYYY HH:MM", DT_DATETIME, "01/02/1999 03:04", "1999-01-02 03:04:00:000000"},
    RangeEnd{"Canonical", "MM/DD/YYYY HH:MM", DT_DATETIME, "1999-01-02 03:04:05", "1999-01-02 03:04:05:000000"},
    RangeEnd{"ADateAlone", "MM/DD/YYYY HH:MM", DT_DATETIME, "1999-01-02", "1999-01-02"},
    RangeEnd{"AmPmInTheLayout", "MM/DD/YY HH:MM AM/PM", DT_DATETIME, "01/02/99 03:04 PM", "1999-01-02 15:04:00:000000"},
    RangeEnd{"CanonicalUnderAmPm", "MM/DD/YY HH:MM AM/PM", DT_DATETIME, "1999-01-02 15:04",
             "1999-01-02 15:04:00:000000"},
    RangeEnd{"ATimeAlone", "MM/DD/YYYY HH:MM", DT_DATETIME, "03:04", nullptr});

class RangeOfTheControl : public SpinTest {};

TEST_F(RangeOfTheControl, TheCallersTextIsNotWrittenTo)
{
    MakeSpin("MM/DD/YY", DT_DATE, nullptr, 1, nullptr);
    const char text[] = "01/02/99";
    DateTimeValue value = kUnset;
    control_->ReadRangeEnd(&value, text);
    EXPECT_STREQ(text, "01/02/99");
}

TEST_F(RangeOfTheControl, OtherTypesHaveNoRangeOfDates)
{
    MakeSpin("##0", DT_NUMBER, nullptr, 1, nullptr);
    DateTimeValue value = kUnset;
    EXPECT_TRUE(control_->ReadRangeEnd(&value, "1999-01-02"));
    EXPECT_EQ(Canonical(value), "");
}

struct Pair {
    const char* name;
    int32_t type;
    const char* first;
    const char* second;
    bool outOfOrder;
};
void PrintTo(const Pair& row, std::ostream* out)
{
    *out << row.name << " (" << row.first << ", " << row.second << ")";
}

class RangeCompare : public SpinTest, public OfRow<Pair> {};

ROW_TEST(RangeCompare, Orders)
{
    const Pair& row = GetParam();
    MakeSpin(nullptr, row.type, nullptr, 1, nullptr);
    const DateTimeValue first = ValueOf(row.first);
    const DateTimeValue second = ValueOf(row.second);
    ASSERT_EQ(Canonical(first).substr(0, 5), std::string(row.first).substr(0, 5));
    EXPECT_EQ(control_->IsOutOfOrder(&first, &second), row.outOfOrder);
}

TEST_ROWS_OF(Values, RangeCompare, Pair{"DatesInOrder", DT_DATE, "1999-05-06", "1999-05-07", false},
             Pair{"EqualDates", DT_DATE, "1999-05-06", "1999-05-06", false},
             Pair{"EarlierDay", DT_DATE, "1999-05-06", "1999-05-05", true},
             Pair{"EarlierMonth", DT_DATE, "1999-05-06", "1999-04-30", true},
             Pair{"EarlierYear", DT_DATE, "1999-05-06", "1998-12-31", true},
             Pair{"TimesDoNotCountForDates", DT_DATE, "1999-05-06 10:00", "1999-05-06 09:00", false},
             Pair{"NoSecondDate", DT_DATE, "1999-05-06", "", false},
             Pair{"NoFirstDate", DT_DATE, "", "1999-05-06", false},
             Pair{"TimesInOrder", DT_TIME, "10:00:00", "10:00:01", false},
             Pair{"EqualTimes", DT_TIME, "10:00:00", "10:00:00", false},
             Pair{"EarlierHour", DT_TIME, "10:00:00", "09:59:59", true},
             Pair{"EarlierMinute", DT_TIME, "10:01:00", "10:00:59", true},
             Pair{"EarlierSecond", DT_TIME, "10:00:01", "10:00:00", true},
             Pair{"EarlierMicrosecond", DT_TIME, "10:00:00:000002", "10:00:00:000001", true},
             Pair{"NoSecondTime", DT_TIME, "10:00:00", "", false},
             Pair{"DatesDoNotCountForTimes", DT_TIME, "1999-05-06 10:00", "1998-05-06 10:00", false},
             Pair{"BothInOrder", DT_DATETIME, "1999-05-06 10:00", "1999-05-07 09:00", false},
             Pair{"EarlierDateWithLaterTime", DT_DATETIME, "1999-05-06 10:00", "1999-05-05 11:00", true},
             Pair{"EqualDatesAndEarlierTime", DT_DATETIME, "1999-05-06 10:00", "1999-05-06 09:59", true},
             Pair{"EqualDatesAndNoTime", DT_DATETIME, "1999-05-06 10:00", "1999-05-06", false},
             Pair{"TimesAlone", DT_DATETIME, "10:00:00", "09:00:00", true},
             Pair{"OtherTypesHaveNoOrder", DT_STRING, "1999-05-06", "1998-05-06", false});

struct Numbers {
    const char* name;
    double first;
    double second;
    bool outOfOrder;
};
void PrintTo(const Numbers& row, std::ostream* out)
{
    *out << row.name;
}

class RangeOfNumbers : public SpinTest, public OfRow<Numbers> {};

ROW_TEST(RangeOfNumbers, Orders)
{
    for (const int32_t type : {DT_NUMBER, DT_DECIMAL}) {
        MakeSpin("##0", type, nullptr, 1, nullptr);
        EXPECT_EQ(control_->IsOutOfOrder(&GetParam().first, &GetParam().second), GetParam().outOfOrder);
    }
}

TEST_ROWS_OF(Values, RangeOfNumbers, Numbers{"InOrder", 1, 2, false}, Numbers{"Equal", 2, 2, false},
             Numbers{"OutOfOrder", 2, 1, true}, Numbers{"OutOfOrderBelowZero", -1, -2, true},
             Numbers{"ZeroSecond", 5, 0, false}, Numbers{"ZeroFirst", 0, -5, false},
             Numbers{"MinusZeroSecond", 5, -0.0, false}, Numbers{"Huge", 1e300, -1e300, true});

}  // namespace
}  // namespace zttest
