// Dates and times as values: the empty one, which parts are there, and the canonical texts.
#pragma once

#include "engine/text/text.h"
#include "engine/values/settings.h"
#include "ztvalues.h"

namespace zte {

constexpr DateTimeValue kEmptyDateTime = {0, DATETIME_NO_DATE, 0, 0, DATETIME_NO_TIME, 0, 0, 0};
constexpr int32_t kFirstYear = 1900;  // years are counted from it
constexpr int32_t kMicroDigits = 6;

constexpr int32_t kMicroseconds = 1000000;  // of a second

// The microseconds that one unit of the last of so many fraction digits stands for.
int32_t FractionUnit(int32_t digits);

inline bool HasDate(const DateTimeValue& value)
{
    return value.year != DATETIME_NO_DATE;
}
inline bool HasTime(const DateTimeValue& value)
{
    return value.hour != DATETIME_NO_TIME;
}

// Reads the canonical text of a DATETIME_KIND_; false leaves value as it was. A time may also be a 12-hour form: the time, a
// blank and the AM or PM string, the settings' or plain AM and PM, in any case.
bool ParseDateTime(DateTimeValue& value, const Char* text, int32_t kind, const Settings& settings);

// The year value of a number written with two or more digits: two digits of 00 to 49 mean 2000 to 2049.
int32_t YearValue(int32_t number, int32_t digits);

}  // namespace zte
