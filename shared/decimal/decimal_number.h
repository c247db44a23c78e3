// A decimal under calculation, wider than a DecimalValue, and the way back into one.
#pragma once

#include <cstdint>

#include "shared/decimal/wide_integer.h"
#include "ztdecimal.h"

namespace decimal {

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

// Stores number rounded, half to even, in the last digit that the record can keep; a number out of range becomes the
// largest value of its sign, and zero has no sign. Returns destination, which may be null.
DecimalValue* Pack(DecimalValue* destination, const Number& number);

// Multiplies the digits and the scale alike; count is at most 57.
void AddTrailingZeros(Number& number, int64_t count);

}  // namespace decimal
