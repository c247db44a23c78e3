// Number texts with the regional decimal character, and the values that they stand for; percentages.
#pragma once

#include "engine/record.h"

namespace zte {

// As far as the text is a number; the regional decimal character counts as the point, as '.' does.
double NumberFromText(const EditInstance& edit, const Text& text);
DecimalValue DecimalFromText(const EditInstance& edit, const Text& text);

// A value given as its percentage: 12.5 is an eighth.
double FromPercentage(double percentage);
DecimalValue FromPercentage(const DecimalValue& percentage);

}  // namespace zte
