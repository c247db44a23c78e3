// A decimal under calculation, wider than a DecimalValue, and the way back into one.
#pragma once

#include <cstdint>

#include "engine/text/text.h"
#include "engine/values/wide_integer.h"
#include "ztvalues.h"

namespace zte::decimal {

constexpr int32_t kLargestScale = 28;
constexpr uint8_t kNegative = 0x80;

// digits / 10^scale. The scale may lie outside a DecimalValue's range while a result is being worked out.
struct Number {
    WideInteger digits;
    int64_t scale = 0;
    bool negative = false;
    bool inexact = false;  // the true magnitude lies above digits, by less than one unit of them
};

// A null record reads as zero, and so does one with a scale no DecimalValue has.
Number Unpack(const DecimalValue* value);

// The number rounded, half to even, in the last digit that a record can keep; a number out of range becomes the largest value
// of its sign, and zero has no sign.
DecimalValue Pack(const Number& number);

// Multiplies the digits and the scale alike; count is at most 57.
void AddTrailingZeros(Number& number, int64_t count);

// Exact before the one rounding of Pack.
Number Sum(Number first, Number second);
Number Difference(const Number& first, Number second);
Number Quotient(const Number& first, const Number& second);  // zero when second is
int32_t Compare(const Number& first, const Number& second);  // -1, 0 or 1

// Reads blanks, an optional sign, digits with at most one '.', an optional exponent, as far as they go; zero when there is no
// digit. decimalPlaces: the scale wanted, given by zeros at the end as far as there is room for them.
DecimalValue Read(const Char* text, int32_t decimalPlaces);

DecimalValue FromUnsigned(uint32_t number);

}  // namespace zte::decimal
