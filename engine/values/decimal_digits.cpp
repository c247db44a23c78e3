// The decimal digits of doubles and decimals, and their rounding.
#include "engine/values/decimal_digits.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

#include "engine/text/ascii.h"
#include "engine/values/decimal_number.h"
#include "engine/values/wide_integer.h"

namespace zte {

namespace {

constexpr int32_t kLongestDouble = 32;

// A double, not negative, as the shortest digits that stand for it alone, d.ddde+xxx; returns how many characters.
#if defined(__wasm__)

// The page can do it; tables for it would be a third of the module.
extern "C" __attribute__((import_module("env"), import_name("write"))) int32_t WriteDouble(double value, char* buffer);

#else

int32_t WriteDouble(double value, char* buffer)
{
    const auto written = std::to_chars(buffer, buffer + kLongestDouble, value, std::chars_format::scientific);
    return static_cast<int32_t>(written.ptr - buffer);
}

#endif

}  // namespace

DecimalDigits DecimalDigits::FromDouble(double value)
{
    DecimalDigits number;
    if (!std::isfinite(value))
        return number;
    char text[kLongestDouble] = "";
    const char* const end = text + WriteDouble(std::fabs(value), text);
    const char* const exponent = std::find<const char*>(text, end, 'e') + 1;
    for (const char* at = text; at < exponent; ++at)
        if (*at >= '0' && *at <= '9')
            number.Append(*at);
    int32_t power = 0;
    std::from_chars(exponent + (*exponent == '+'), end, power);
    number.pointPos_ = power + 1;
    number.negative_ = value < 0;
    number.Normalize();
    return number;
}

DecimalDigits DecimalDigits::FromDecimal(const DecimalValue& value)
{
    DecimalDigits number;
    for (decimal::WideInteger rest(value.hi32, value.lo64); !rest.IsZero();)
        number.Append(static_cast<char>('0' + rest.Divide(10)));
    std::reverse(number.digits_, number.digits_ + number.count_);
    number.pointPos_ = number.count_ - value.scale;
    number.negative_ = (value.sign & decimal::kNegative) != 0;
    number.Normalize();
    return number;
}

void DecimalDigits::MultiplyByPowerOfTen(int32_t power)
{
    if (!IsZero())
        pointPos_ += power;
}

// kept may lie before the first digit: a number that small has nothing to round up.
void DecimalDigits::RoundToCount(int64_t kept)
{
    if (kept >= count_)
        return;
    const bool up = kept >= 0 && digits_[kept] >= '5';
    count_ = static_cast<int32_t>(std::max<int64_t>(kept, 0));
    if (up)
        Increment();
    Normalize();
}

void DecimalDigits::DropTrailing(char digit)
{
    const auto kept = std::find_if(std::reverse_iterator(digits_ + count_), std::reverse_iterator(digits_ + 0),
                                   [digit](char c) { return c != digit; });
    count_ = static_cast<int32_t>(kept.base() - digits_);
}

void DecimalDigits::Increment()
{
    DropTrailing('9');
    if (!IsZero()) {
        ++digits_[count_ - 1];
        return;
    }
    Append('1');
    ++pointPos_;
}

void DecimalDigits::Normalize()
{
    DropTrailing('0');
    if (!IsZero())
        return;
    pointPos_ = 0;
    negative_ = false;
}

}  // namespace zte
