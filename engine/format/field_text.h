// Reads the year and the month out of the text now shown, whether or not the rest of it is a date. Under a given mask a field's
// offset in the mask serves as its offset in the text; the two differ behind "~", which is kept.
#pragma once

#include "engine/record.h"

namespace zte {

// The year value (years since 1900) under the mask's year field; 0 when the mask has none.
int32_t YearFromText(const EditInstance& edit, const Text& text);

// The month number 1 to 12 under the mask's month field; 0 when the mask has none or it is unreadable. The last character of the
// text is not seen: kept, a month at the very end reads as it always did.
int32_t MonthFromText(const EditInstance& edit, const Text& text);

}  // namespace zte
