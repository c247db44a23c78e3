// Number texts with the regional decimal character, and the values they stand for.
#pragma once

#include <string>

#include "ztdecimal.h"

namespace zte {

// Canonical text, with '.' as the only point: as far as it is a number, 0 when it is none.
double NumberFromPlainText(const char* text);

// As far as the text is a number; the regional decimal character counts as the point, as '.' does.
double NumberFromText(const char* text);
DecimalValue DecimalFromText(const char* text, int32_t decimalPlaces);

// The text with the regional decimal character turned into '.'.
std::string WithPlainPoint(const char* text);

}  // namespace zte
