// Builds the currency mask of the regional settings.
#pragma once

#include "engine/values/settings.h"

namespace zte {

// A mask of totalDigits digits, fraction included, with the currency symbol; empty when it would not fit a mask. The
// separators are written as ',' and '.' whatever the regional ones are.
Text BuildCurrencyMask(int16_t totalDigits, const Settings& settings);

}  // namespace zte
