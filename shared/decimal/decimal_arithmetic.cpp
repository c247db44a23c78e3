// Addition, subtraction, division and comparison of decimals, exact before their one rounding.
// Worked out here and not by OLE Automation, so that the last digit is the same on every system.
#include <utility>

#include "shared/decimal/decimal_number.h"

using decimal::AddTrailingZeros;
using decimal::Number;
using decimal::Pack;
using decimal::Unpack;
using decimal::WideInteger;

namespace {

// Gives both numbers the larger of their scales. 96 bits and 28 more digits are 190 bits at most.
void Align(Number& first, Number& second)
{
    Number& shorter = first.scale < second.scale ? first : second;
    const Number& longer = first.scale < second.scale ? second : first;
    AddTrailingZeros(shorter, longer.scale - shorter.scale);
}

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

// remainder = remainder % divisor; returns the quotient, which is below 10.
uint32_t NextDigit(WideInteger& remainder, const WideInteger& divisor)
{
    uint32_t digit = 0;
    for (; remainder.Compare(divisor) >= 0; ++digit)
        remainder.Subtract(divisor);
    return digit;
}

// Digits are brought down one by one until the division ends or one more than a record holds is known; the rest is told by
// the inexact mark.
Number Quotient(const Number& first, const Number& second)
{
    Number quotient;
    quotient.negative = first.negative != second.negative;
    quotient.scale = first.scale - second.scale;
    WideInteger remainder = first.digits;
    quotient.digits = remainder.DivideByWide(second.digits);
    while ((!remainder.IsZero() || quotient.scale < 0) && quotient.digits.FitsIn96Bits() &&
           quotient.scale <= decimal::kLargestScale) {
        remainder.MultiplyAdd(10, 0);
        quotient.digits.MultiplyAdd(10, NextDigit(remainder, second.digits));
        ++quotient.scale;
    }
    quotient.inexact = !remainder.IsZero();
    return quotient;
}

}  // namespace

DecimalValue* WINAPI DecAdd(DecimalValue* destination, const DecimalValue* first, const DecimalValue* second)
{
    return Pack(destination, Sum(Unpack(first), Unpack(second)));
}

DecimalValue* WINAPI DecSubtract(DecimalValue* destination, const DecimalValue* first, const DecimalValue* second)
{
    Number negated = Unpack(second);
    negated.negative = !negated.negative;
    return Pack(destination, Sum(Unpack(first), negated));
}

DecimalValue* WINAPI DecDivide(DecimalValue* destination, const DecimalValue* first, const DecimalValue* second)
{
    const Number divisor = Unpack(second);
    if (divisor.digits.IsZero())
        return DecSetZero(destination);
    return Pack(destination, Quotient(Unpack(first), divisor));
}

int16_t WINAPI DecCompare(const DecimalValue* first, const DecimalValue* second)
{
    Number left = Unpack(first);
    Number right = Unpack(second);
    right.negative = !right.negative;
    const Number difference = Sum(left, right);
    if (difference.digits.IsZero())
        return 0;
    return difference.negative ? int16_t{-1} : int16_t{1};
}
