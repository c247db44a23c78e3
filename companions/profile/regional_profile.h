// Reads the regional conventions from the profile section "intl". Compiled into each library that needs them.
#pragma once

#include "engine/values/settings.h"

namespace zte {

// All of the section but the pictures and the month names; a key that is empty counts as one that is absent, but for the currency
// symbol.
void ReadRegionalProfile(Settings& settings);

// The date picture and the time separator alone.
void ReadPictures(Settings& settings);

// Letters and cases of the process's locale.
extern const Letters kLocaleLetters;

}  // namespace zte
