// Steps one field of a date or time and keeps the value in its range; no window is needed.
#pragma once

#include "core/edit_instance.h"

namespace zte {

enum class DateField { None, Year, Month, Day, DayOfYear, Hour, Minute, Second, Fraction };
enum class StepDirection { Up, Down, Neither };  // with neither only the year moves, upward

// What a step works by.
struct DateStep {
    int32_t dataType;
    int32_t yearDigits;
    DateField field;
    int32_t fractionDigits;  // of a Fraction field
    uint32_t increment;      // of the year; every other field steps by one of its units
    StepDirection direction;
    DateTimeValue minimum;  // an end that is not given has neither date nor time
    DateTimeValue maximum;
};

enum class StepResult {
    Refused,   // the value stays
    Stepped,   // the field moved
    SetToEnd,  // the value is an end of the range
    FromToday  // the value was blank and starts from the current date and time
};

// Steps the value.
StepResult StepDateTime(const DateStep& step, DateTimeValue& value);

}  // namespace zte
