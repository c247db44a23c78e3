// Masks of numbers: their check, and the format text by which the number renderer shows them.
#pragma once

#include "engine/text/text.h"
#include "engine/values/settings.h"

namespace zte {

bool CheckNumberMask(const Text& mask, const Settings& settings);

// The format text: "~x" becomes "\x", the rest stands as it is. A run of literals reaches to the next placeholder, separators
// and escapes inside it included; kept, the checks and the display agree on it.
Text DisplayFormatText(const Text& mask, int32_t dataType);

// Whether the display holds literals; the currency symbol alone, separators and '%' do not count.
bool HasLiterals(const Text& mask, int32_t dataType, const Settings& settings);

// Display position of the mask's first digit placeholder.
int32_t FirstPlaceholderPos(const Text& mask, int32_t dataType);

// How many digits the mask gives the fraction: counted behind the plain '.', whatever the regional decimal character is; kept.
int32_t CountDecimalPlaces(const Text& mask);

}  // namespace zte
