// Decimal arithmetic of any length on digit texts, by the methods of pen and paper: what the libraries are checked
// against.
#pragma once

#include <string>

#include "ztdecimal.h"

namespace zttest {

// (-) digits / 10^scale. digits has no leading zeros and is empty for zero, which is never negative.
struct LongDecimal {
    bool negative = false;
    std::string digits;
    int scale = 0;
};

LongDecimal FromText(const std::string& text);     // sign, digits, point, exponent
LongDecimal FromValue(const DecimalValue& value);  // worked out bit by bit
LongDecimal FromDouble(double value);              // the shortest text that reads back as value
std::string ToText(LongDecimal number);            // plain, without trailing zeros behind the point

LongDecimal Sum(LongDecimal first, LongDecimal second);
LongDecimal Negated(LongDecimal number);
LongDecimal TimesPowerOfTen(LongDecimal number, int power);
int Compare(const LongDecimal& first, const LongDecimal& second);

// Cut behind 80 places; when something was cut off, one more digit says so.
LongDecimal Quotient(const LongDecimal& first, const LongDecimal& second);

LongDecimal RoundedHalfAway(const LongDecimal& number, int places);

// As a DecimalValue keeps it: at most 28 places and 2^96 - 1, half to even, the largest of its sign out of range.
LongDecimal AsDecimalValue(const LongDecimal& number);

extern const char kLargestDecimal[];  // 2^96 - 1

}  // namespace zttest
