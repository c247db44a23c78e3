// Reads the year and the month out of the text now shown, whether or not the rest of it is a date.
#pragma once

#include "core/edit_instance.h"

namespace zte {

// The year value (years since 1900) under the mask's year field; 0 when the mask has none.
int32_t YearFromText(const EditInstance& edit);

// The month number 1 to 12 under the mask's month field; 0 when the mask has none or it is unreadable.
int32_t MonthFromText(const EditInstance& edit);

}  // namespace zte
