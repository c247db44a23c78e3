// Decimals in and out of their 16-byte record, with the one rounding that every operation shares.
#include "engine/values/decimal_number.h"

#include <algorithm>

#include "engine/values/caller_value.h"

namespace zte::decimal {

namespace {

constexpr WideInteger kLargestDigits(UINT32_MAX, UINT64_MAX);
constexpr int64_t kNothingLeft = 80;  // more digits dropped than 256 bits hold: the number rounds to zero

// The digits divided by 10^count, rounded half to even.
WideInteger DropDigits(const Number& number, int64_t count)
{
    WideInteger kept = number.digits;
    uint32_t dropped = 0;
    bool below = number.inexact;  // anything but zeros behind the first dropped digit
    for (int64_t i = 0; i < count; ++i) {
        below = below || dropped != 0;
        dropped = kept.Divide(10);
    }
    const bool up = dropped == 5 && !below ? kept.IsOdd() : dropped >= 5;
    if (up)
        kept.MultiplyAdd(1, 1);
    return kept;
}

DecimalValue Record(const WideInteger& digits, int64_t scale, bool negative)
{
    DecimalValue stored{};
    stored.scale = static_cast<uint8_t>(scale);
    stored.sign = negative && !digits.IsZero() ? kNegative : uint8_t{0};
    stored.hi32 = digits.High32();
    stored.lo64 = digits.Low64();
    return stored;
}

}  // namespace

Number Unpack(const DecimalValue* value)
{
    Number number;
    const auto record = value ? ReadValue<DecimalValue>(value) : DecimalValue{};
    if (record.scale > kLargestScale)
        return number;
    number.digits = WideInteger(record.hi32, record.lo64);
    number.scale = record.scale;
    number.negative = (record.sign & kNegative) != 0;
    return number;
}

void AddTrailingZeros(Number& number, int64_t count)
{
    for (int64_t i = 0; i < count; ++i)
        number.digits.MultiplyAdd(10, 0);
    number.scale += count;
}

// Each try rounds the whole number anew: rounding an already rounded one could go the wrong way. More zeros at the end than a
// record has places bring any number out of range.
DecimalValue Pack(const Number& number)
{
    int64_t drop = std::max<int64_t>(number.scale - kLargestScale, 0);
    if (drop > kNothingLeft)
        return Record(WideInteger(), kLargestScale, number.negative);
    Number whole = number;
    if (whole.scale < 0 && whole.scale >= -kLargestScale && whole.digits.FitsIn96Bits())
        AddTrailingZeros(whole, -whole.scale);
    for (; drop <= whole.scale; ++drop) {
        const WideInteger kept = DropDigits(whole, drop);
        if (kept.FitsIn96Bits())
            return Record(kept, whole.scale - drop, whole.negative);
    }
    if (whole.digits.IsZero())
        return Record(whole.digits, 0, whole.negative);
    return Record(kLargestDigits, 0, number.negative);
}

}  // namespace zte::decimal
