// Number texts, and the values that they stand for.
#pragma once

#include "engine/values/settings.h"

namespace zte {

// As far as the text is a number, with '.' as its only point; 0 when it is none.
double NumberFromPlainText(const Char* text);

// The text with the regional decimal character turned into '.'.
Text WithPlainPoint(Text text, const Settings& settings);

// Whether the text is one number and nothing else: surrounding blanks, an optional sign, digits with at most one point ('.' or
// the decimal character).
bool IsNumberText(const Char* text, Char decimalChar);

}  // namespace zte
