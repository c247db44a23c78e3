// The range of a spin: its text, the ends of date and time ranges, and the order of two values.
#pragma once

#include "engine/record.h"

namespace zte {

// A minimum, "~", and a maximum.
struct RangeText {
    Text minimum;
    Text maximum;
};

// The two sides of the first "~"; without one the whole text is the minimum. A null text is an empty one.
RangeText SplitRange(const Char* range);

// Reads an end of a date or time range in the mask's layout or in canonical form; 0 on success, otherwise the empty value.
int32_t ReadRangeEnd(const EditInstance& edit, DateTimeValue& value, const Text& text);

// Whether second is earlier than first, as far as both have the parts that the type compares.
bool IsOutOfOrder(int32_t dataType, const DateTimeValue& first, const DateTimeValue& second);

// The same for the values of a control's type, doubles for numbers and decimals alike; a zero on either side is no bound.
bool IsOutOfOrder(int32_t dataType, const void* first, const void* second);

}  // namespace zte
