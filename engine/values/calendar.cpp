// The calendar that the control works with.
#include "engine/values/calendar.h"

#include <algorithm>

#include "engine/values/date_time.h"

namespace zte {

namespace {

// Common years, then leap years.
// clang-format off
constexpr MonthRow kMonthTable[2][kMonths] = {
    {{0, 0, 31}, {1, 31, 28}, {2, 59, 31}, {3, 90, 30}, {4, 120, 31}, {5, 151, 30},
     {6, 181, 31}, {7, 212, 31}, {8, 243, 30}, {9, 273, 31}, {10, 304, 30}, {11, 334, 31}},
    {{0, 0, 31}, {1, 31, 29}, {2, 60, 31}, {3, 91, 30}, {4, 121, 31}, {5, 152, 30},
     {6, 182, 31}, {7, 213, 31}, {8, 244, 30}, {9, 274, 31}, {10, 305, 30}, {11, 335, 31}},
};
// clang-format on

const MonthRow* TableFor(int32_t yearDigits, int32_t yearValue)
{
    return kMonthTable[IsLeapYear(yearDigits, yearValue) ? 1 : 0];
}

}  // namespace

// A value below 50 under two digits can only come from 1900 to 1949, which is read as 2000 to 2049 on purpose.
int32_t CalendarYear(int32_t yearDigits, int32_t yearValue)
{
    return yearValue + (yearDigits == 2 && yearValue < 50 ? kFirstYear + 100 : kFirstYear);
}

bool IsLeapYear(int32_t yearDigits, int32_t yearValue)
{
    const int32_t year = CalendarYear(yearDigits, yearValue);
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

const MonthRow& MonthRowOf(int32_t yearDigits, int32_t yearValue, int32_t month)
{
    return TableFor(yearDigits, yearValue)[std::clamp(month, 0, kMonths - 1)];
}

int32_t DaysInMonth(int32_t yearDigits, const DateTimeValue& value)
{
    return MonthRowOf(yearDigits, value.year, value.month).days;
}

int32_t DaysInYear(int32_t yearDigits, int32_t yearValue)
{
    return IsLeapYear(yearDigits, yearValue) ? 366 : 365;
}

int32_t DayOfYear(int32_t yearDigits, const DateTimeValue& value)
{
    return value.day + MonthRowOf(yearDigits, value.year, value.month).daysBefore;
}

// Days out of the year land outside December (or before January 1) and are refused where the date is checked.
void DateFromDayOfYear(int32_t yearDigits, int32_t dayOfYear, DateTimeValue& value)
{
    const MonthRow* table = TableFor(yearDigits, value.year);
    const MonthRow* behind =
        std::find_if(table, table + kMonths, [dayOfYear](const MonthRow& row) { return row.daysBefore >= dayOfYear; });
    const MonthRow& row = behind == table ? table[0] : behind[-1];
    value.month = static_cast<int8_t>(row.index);
    value.day = static_cast<int8_t>(std::clamp(dayOfYear - row.daysBefore, -1, 127));
}

}  // namespace zte
