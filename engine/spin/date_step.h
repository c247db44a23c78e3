// Steps one field of a date or time and keeps the value in its range.
#pragma once

#include "engine/host.h"
#include "engine/mask/mask_items.h"

namespace zte {

enum class StepDirection { Up, Down, Neither };  // with neither only the year moves, upward

// What a step works by.
struct DateStep {
    int32_t dataType;
    int32_t yearDigits;
    FieldKind field;         // a field of dates or times; any other kind moves nothing
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

// Steps the value. clock: for a blank value, which starts from now.
StepResult StepDateTime(const DateStep& step, Clock clock, DateTimeValue& value);

}  // namespace zte
