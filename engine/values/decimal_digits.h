// A number as the decimal digits that are shown: the common form of doubles and decimals under the number formats.
#pragma once

#include <algorithm>
#include <cstdint>

#include "engine/text/text.h"
#include "ztvalues.h"

namespace zte {

// 0.d1d2d3... * 10^pointPos, d1 and the last digit not 0; zero has no digits and no sign.
class DecimalDigits {
public:
    DecimalDigits() = default;

    // The shortest digits that read back as the same double. NaN and the infinities are taken as zero.
    static DecimalDigits FromDouble(double value);

    // Every digit of the decimal.
    static DecimalDigits FromDecimal(const DecimalValue& value);

    bool IsZero() const { return count_ == 0; }
    bool IsNegative() const { return negative_; }

    int32_t Count() const { return count_; }        // significant digits
    int32_t PointPos() const { return pointPos_; }  // digits before the point; negative: zeros behind it
    int32_t FractionDigits() const { return std::max(count_ - pointPos_, 0); }

    // The digit at an index, counted from the first significant one; '0' outside the significant digits.
    Char At(int32_t index) const { return static_cast<Char>(index >= 0 && index < count_ ? digits_[index] : '0'); }

    void MultiplyByPowerOfTen(int32_t power);

    // Both round half away from zero.
    void RoundToFractionDigits(int32_t places) { RoundToCount(int64_t{pointPos_} + places); }
    void RoundToSignificantDigits(int32_t places) { RoundToCount(places); }

private:
    static constexpr int32_t kMaxDigits = 32;  // a double has up to 17, a decimal up to 29

    void Append(char digit) { digits_[count_++] = digit; }
    void RoundToCount(int64_t kept);
    void DropTrailing(char digit);
    void Increment();
    void Normalize();

    char digits_[kMaxDigits] = {};
    int32_t count_ = 0;
    int32_t pointPos_ = 0;
    bool negative_ = false;
};

}  // namespace zte
