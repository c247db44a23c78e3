// Addition, subtraction, division and comparison of decimals, exact before their one rounding.
// Worked out here and not by OLE Automation, so that the last digit is the same on every system.
#include <utility>

#include "engine/values/decimal_number.h"

namespace zte::decimal {

namespace {

// Gives both numbers the larger of their scales. 96 bits and 28 more digits are 190 bits at most.
void Align(Number& first, Number& second)
{
    Number& shorter = first.scale < second.scale ? first : second;
    const Number& longer = first.scale < second.scale ? second : first;
    AddTrailingZeros(shorter, longer.scale - shorter.scale);
}

// remainder = remainder % divisor; returns the quotient, which is below 10.
uint32_t NextDigit(WideInteger& remainder, const WideInteger& divisor)
{
    uint32_t digit = 0;
    for (; remainder.Compare(divisor) >= 0; ++digit)
        remainder.Subtract(divisor);
    return digit;
}

}  // namespace

Number Sum(Number first, Number second)
{
    Align(first, second);
    if (first.negative == second.negative) {
        first.digits.Add(second.digits);
        return first;
    }
    if (first.digits.Compare(second.digits) < 0)
        std::swap(first, second);
    first.digits.Subtract(second.digits);
    return first;
}

Number Difference(const Number& first, Number second)
{
    second.negative = !second.negative;
    return Sum(first, second);
}

// Digits are brought down one by one until the division ends or more of them than a record holds are known; the rest is told by
// the inexact mark.
Number Quotient(const Number& first, const Number& second)
{
    Number quotient;
    if (second.digits.IsZero())
        return quotient;
    quotient.negative = first.negative != second.negative;
    quotient.scale = first.scale - second.scale;
    WideInteger remainder = first.digits;
    quotient.digits = remainder.DivideByWide(second.digits);
    while (!remainder.IsZero() && quotient.digits.FitsIn96Bits()) {
        remainder.MultiplyAdd(10, 0);
        quotient.digits.MultiplyAdd(10, NextDigit(remainder, second.digits));
        ++quotient.scale;
    }
    quotient.inexact = !remainder.IsZero();
    return quotient;
}

int32_t Compare(const Number& first, const Number& second)
{
    const Number difference = Difference(first, second);
    if (difference.digits.IsZero())
        return 0;
    return difference.negative ? -1 : 1;
}

}  // namespace zte::decimal
