// The values of masked edits as texts, for tables: canonical dates and times, numbers as they are shown, decimals.
#pragma once

#include <cstdint>
#include <string>

#include "ztvalues.h"

namespace zttest {

constexpr const char* kNullResult = "(null)";  // stands for a null pointer in the tables

constexpr bool IsNumber(int32_t type)
{
    return type == DT_NUMBER || type == DT_DECIMAL;
}
constexpr bool IsDateOrTime(int32_t type)
{
    return type == DT_DATE || type == DT_TIME || type == DT_DATETIME;
}

// "2024-03-05 14:07:09:000250", without the part that the value does not have.
std::string Canonical(const DateTimeValue& value);

// The value of a canonical text: "2024-03-05", "14:07", "14:07:09", "14:07:09:000250", a date and a time, or "" for the
// empty value.
DateTimeValue ValueOf(const std::string& canonical);

// The value of plain digits, with a sign and a point where wanted; at most 28 digits.
DecimalValue DecimalOf(const std::string& plain);

// The text that stands for a number shown when it is handed in as data.
std::string DataOfNumberShown(const std::string& shown, char decimalChar);

}  // namespace zttest
