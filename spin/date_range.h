// The ends of a date or time range, and the order of two values.
#pragma once

#include "core/edit_instance.h"

namespace zte {

inline bool HasDate(const DateTimeValue& value)
{
    return value.year != DATETIME_NO_DATE;
}
inline bool HasTime(const DateTimeValue& value)
{
    return value.hour != DATETIME_NO_TIME;
}

// Reads an end in the mask's layout or in canonical form; 0 on success, otherwise the empty value.
int32_t ReadRangeEnd(EditInstance& edit, DateTimeValue& value, const char* text);

// Whether second is earlier than first, as far as both have the parts that the type compares.
bool IsOutOfOrder(int32_t dataType, const DateTimeValue& first, const DateTimeValue& second);

}  // namespace zte
