// Regional settings by number: what a byte of a script chooses.
#pragma once

#include <cstdint>

#include "engine/values/settings.h"

namespace zttest {

// The same number always means the same settings: hand-picked ones first, then the money of the world's countries.
const zte::Settings& RegionalSettings(uint8_t choice);

// How many there are.
uint32_t RegionalCount();

}  // namespace zttest
