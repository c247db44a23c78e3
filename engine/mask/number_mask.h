// Masks of numbers: their check, and the format text by which the number renderer shows them.
#pragma once

#include "engine/mask/mask_verdict.h"
#include "engine/text/text.h"
#include "engine/values/settings.h"

namespace zte {

MaskVerdict CheckNumberMask(const Text& mask, const Settings& settings);

// The format text: "~x" becomes "\x", the characters of the currency symbol are escaped where they would mean something else, and the
// rest stands as it is.
Text DisplayFormatText(const Text& mask, const Settings& settings);

// The same format with its last optional digit always shown, so that 0 is seen.
Text WithUnitsForced(Text format);

// Whether the display holds literals; the currency symbol alone, separators and '%' do not count.
bool HasLiterals(const Text& mask, int32_t dataType, const Settings& settings);

}  // namespace zte
