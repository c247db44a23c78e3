// Number texts with the regional decimal character, and the values that they stand for; percentages.
#pragma once

#include "engine/record.h"

namespace zte {

// The values of a text, as far as it is a number.
double NumberFromText(const EditInstance& edit, const Text& text);
DecimalValue DecimalFromText(const EditInstance& edit, const Text& text);

// The number that a display text shows, as its value: digits, a sign before any digit but 0, the regional decimal character, and where the
// mask is "[GENERAL]" an exponent. A percentage is the hundredth of what it shows, to the last digit. "0" for a lone sign.
Text NumberShown(const EditInstance& edit, const Text& text);

// The number in a text of a caller, without what masks and settings put around digits; a percentage as it is written.
Text NumberIn(const EditInstance& edit, const Text& text);

// The value text of a number as it is written: a percentage is the hundredth, to the last digit.
Text ValueOfWritten(const EditInstance& edit, const Text& number);

// Whether a text is a number and nothing else, under "[GENERAL]" with an exponent too.
bool IsNumberOf(const EditInstance& edit, const Text& text);

// The plain text ('.' as the point) of a number handed in as text. Canonical text is taken as it is; what the control itself shows or
// returns under the settings is the number shown; of anything else what follows a number is no matter.
Text PlainNumberOf(const EditInstance& edit, const Text& text);

}  // namespace zte
