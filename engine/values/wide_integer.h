// An unsigned integer of 256 bits: room for any aligned pair of 96-bit decimals and for their sums and quotients.
// Every operation stays inside that width as long as the callers keep to decimals; nothing wraps silently for them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace zte::decimal {

class WideInteger {
public:
    constexpr WideInteger() = default;
    constexpr WideInteger(uint32_t high, uint64_t low)
    {
        limbs_[0] = static_cast<uint32_t>(low);
        limbs_[1] = static_cast<uint32_t>(low >> kLimbBits);
        limbs_[2] = high;
    }

    constexpr uint64_t Low64() const { return limbs_[0] | static_cast<uint64_t>(limbs_[1]) << kLimbBits; }
    constexpr uint32_t High32() const { return limbs_[2]; }

    constexpr bool FitsIn96Bits() const
    {
        for (size_t i = 3; i < kLimbs; ++i)
            if (limbs_[i] != 0)
                return false;
        return true;
    }

    constexpr bool IsZero() const { return FitsIn96Bits() && Low64() == 0 && High32() == 0; }
    constexpr bool IsOdd() const { return (limbs_[0] & 1) != 0; }

    // this = this * factor + addend
    constexpr void MultiplyAdd(uint32_t factor, uint32_t addend)
    {
        uint64_t carry = addend;
        for (uint32_t& limb : limbs_) {
            carry += static_cast<uint64_t>(limb) * factor;
            limb = static_cast<uint32_t>(carry);
            carry >>= kLimbBits;
        }
    }

    // this = this / divisor; returns the remainder.
    constexpr uint32_t Divide(uint32_t divisor)
    {
        uint64_t remainder = 0;
        for (size_t i = kLimbs; i-- > 0;) {
            remainder = remainder << kLimbBits | limbs_[i];
            limbs_[i] = static_cast<uint32_t>(remainder / divisor);
            remainder %= divisor;
        }
        return static_cast<uint32_t>(remainder);
    }

    constexpr void Add(const WideInteger& other)
    {
        uint64_t carry = 0;
        for (size_t i = 0; i < kLimbs; ++i) {
            carry += static_cast<uint64_t>(limbs_[i]) + other.limbs_[i];
            limbs_[i] = static_cast<uint32_t>(carry);
            carry >>= kLimbBits;
        }
    }

    // other must not be larger.
    constexpr void Subtract(const WideInteger& other)
    {
        int64_t borrow = 0;
        for (size_t i = 0; i < kLimbs; ++i) {
            const int64_t difference = static_cast<int64_t>(limbs_[i]) - other.limbs_[i] - borrow;
            limbs_[i] = static_cast<uint32_t>(difference);
            borrow = difference < 0;
        }
    }

    // Below 0, 0 or above 0.
    constexpr int Compare(const WideInteger& other) const
    {
        for (size_t i = kLimbs; i-- > 0;)
            if (limbs_[i] != other.limbs_[i])
                return limbs_[i] < other.limbs_[i] ? -1 : 1;
        return 0;
    }

    // this = this % divisor; returns the quotient. The divisor is not zero.
    constexpr WideInteger DivideByWide(const WideInteger& divisor)
    {
        WideInteger quotient;
        WideInteger remainder;
        for (size_t bit = kLimbs * kLimbBits; bit-- > 0;) {
            remainder.MultiplyAdd(2, limbs_[bit / kLimbBits] >> bit % kLimbBits & 1);
            quotient.MultiplyAdd(2, 0);
            if (remainder.Compare(divisor) >= 0) {
                remainder.Subtract(divisor);
                quotient.limbs_[0] |= 1;
            }
        }
        *this = remainder;
        return quotient;
    }

private:
    static constexpr size_t kLimbs = 8;
    static constexpr size_t kLimbBits = 32;

    std::array<uint32_t, kLimbs> limbs_{};  // least significant first
};

}  // namespace zte::decimal
