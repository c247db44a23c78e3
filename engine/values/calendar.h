// The calendar that the control works with: months, leap years and the century of two-digit years.
#pragma once

#include <cstdint>

#include "engine/values/settings.h"
#include "ztvalues.h"

namespace zte {

struct MonthRow {
    int32_t index;  // 0..11
    int32_t daysBefore;
    int32_t days;
};

// The calendar year of a year value (years since 1900). With two year digits 0..49 mean 2000 to 2049.
int32_t CalendarYear(int32_t yearDigits, int32_t yearValue);

bool IsLeapYear(int32_t yearDigits, int32_t yearValue);

// Row of a month 0..11 in the value's year; a month out of range is brought into it.
const MonthRow& MonthRowOf(int32_t yearDigits, int32_t yearValue, int32_t month);

int32_t DaysInMonth(int32_t yearDigits, const DateTimeValue& value);
int32_t DaysInYear(int32_t yearDigits, int32_t yearValue);

// 1-based.
int32_t DayOfYear(int32_t yearDigits, const DateTimeValue& value);

// Sets month and day of the value from a day of the year.
void DateFromDayOfYear(int32_t yearDigits, int32_t dayOfYear, DateTimeValue& value);

}  // namespace zte
