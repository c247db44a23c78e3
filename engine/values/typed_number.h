// A number as its digits are typed and shown: digits and a sign, never a value, so that nothing typed is rounded or lost.
#pragma once

#include "engine/values/number_format.h"

namespace zte {

struct TypedNumber {
    bool negative = false;  // a sign is shown, before zeros too
    Text integer;           // the digits before the point
    Text fraction;          // the digits behind it
};

// Digits, groups and literals of any number that fits a text box.
constexpr int32_t kLongestLaidNumber = 1023;

// The display of a typed number under a compiled format whose shape it is: that of its value, but for the zeros that were typed and
// a sign before zero. Digits that the fraction has no place for are not shown.
Text LayOutDigits(const Char* compiled, const FormatShape& shape, const TypedNumber& number, const Settings& settings);

// Rounds the fraction half away from zero where it has more digits.
void RoundToPlaces(TypedNumber& number, int32_t places);

}  // namespace zte
