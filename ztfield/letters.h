// The letters of all scripts, and their cases.
#pragma once

#include "engine/values/settings.h"

namespace zte {

extern const Letters kUnicodeLetters;

}  // namespace zte
