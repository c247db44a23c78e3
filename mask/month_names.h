// The month abbreviations, string resources 2000 to 2011 of the library.
#pragma once

#include <string>

#include "ztshared.h"

namespace zte {

constexpr int32_t kFirstMonthNameId = 2000;

// The abbreviation of a month 0..11; empty for others.
std::string MonthName(int32_t month);

// The month index 0..11 whose abbreviation equals the text without regard to case; -1 when none does.
int32_t MonthFromName(const char* text);

// The first abbreviation, in calendar order, that begins with the prefix, compared in upper case; empty when none does.
std::string MonthNameByPrefix(const std::string& prefix);

// The first later month (no wrap) whose first n + 1 characters equal those of name; empty when none does.
std::string NextMonthNameMatch(const std::string& name, int32_t n);

}  // namespace zte
