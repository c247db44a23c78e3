// Formatting a value into display text.
#pragma once

#include "engine/record.h"

namespace zte {

struct Display {
    Text text;
    uint32_t formatFlags = FORMAT_DONE;
    int32_t firstFieldPos = 0;
};

// The display of a value of the control's type, null for none; through the code table where the control has one.
Display FormatValue(EditInstance& edit, const void* data);

// Numbers (number_display.cpp).
void FormatNumber(const EditInstance& edit, double value, Display& display);
void FormatDecimal(const EditInstance& edit, const DecimalValue& value, Display& display);

// Masks of fields (field_display.cpp): strings, dates, times.
void FormatFields(const EditInstance& edit, const void* data, Display& display);

}  // namespace zte
