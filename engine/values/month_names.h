// The month abbreviations of the settings, and how typing finds one.
#pragma once

#include "engine/values/settings.h"

namespace zte {

// The abbreviation of a month 0..11; empty for others.
Text MonthName(const Settings& settings, int32_t month);

// The month index 0..11 whose abbreviation equals the text without regard to case; -1 when none does.
int32_t MonthFromName(const Settings& settings, const Text& text);

// The first month, from one on in calendar order, whose abbreviation begins with the start, compared in upper case; -1 when
// none does.
int32_t MonthByPrefix(const Settings& settings, const Text& start, int32_t first);

}  // namespace zte
