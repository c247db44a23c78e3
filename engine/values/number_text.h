// Number texts, and the values that they stand for.
#pragma once

#include "engine/values/settings.h"

namespace zte {

// As far as the text is a number, with '.' as its only point; 0 when it is none.
double NumberFromPlainText(const Char* text);

// The text with the regional decimal character turned into '.'.
Text WithPlainPoint(Text text, const Settings& settings);

// Whether the text is one number and nothing else: surrounding blanks, an optional sign, digits with at most one point ('.' or
// the regional one).
bool IsNumberText(const Char* text, const Settings& settings);

}  // namespace zte
