// Decimals out of a text and out of an unsigned number.
#include <algorithm>

#include "engine/text/ascii.h"
#include "engine/values/decimal_number.h"

namespace zte::decimal {

namespace {

constexpr int32_t kDigitsCollected = 60;             // what 256 bits surely hold; later ones only decide the rounding
constexpr int64_t kLargestExponent = 1'000'000'000;  // far outside every range, and safe to calculate with

// Reads the digits and the point of a number, which may be of any length.
class DigitReader {
public:
    explicit DigitReader(Number& number) : number_(number) {}

    // Returns the end of the digits; text itself when there is not one digit.
    const Char* Read(const Char* text)
    {
        const Char* end = text;
        bool point = false;
        for (; IsDigit(*end) || (*end == '.' && !point); ++end) {
            if (*end == '.')
                point = true;
            else
                Take(static_cast<uint32_t>(DigitValue(*end)), point);
        }
        return any_ ? end : text;
    }

private:
    void Take(uint32_t digit, bool fraction)
    {
        any_ = true;
        if (collected_ == kDigitsCollected) {
            number_.inexact = number_.inexact || digit != 0;
            number_.scale -= fraction ? 0 : 1;
            return;
        }
        number_.digits.MultiplyAdd(10, digit);
        number_.scale += fraction ? 1 : 0;
        collected_ += digit != 0 || collected_ != 0 ? 1 : 0;  // leading zeros take no room
    }

    Number& number_;
    int32_t collected_ = 0;
    bool any_ = false;
};

// The exponent at text, "e" included; 0 when there is none.
int64_t ReadExponent(const Char* text)
{
    if (*text != 'e' && *text != 'E')
        return 0;
    ++text;
    const bool negative = *text == '-';
    if (IsSign(*text))
        ++text;
    int64_t exponent = 0;
    for (; IsDigit(*text); ++text)
        if (exponent < kLargestExponent)
            exponent = exponent * 10 + DigitValue(*text);
    return negative ? -exponent : exponent;
}

Number ReadNumber(const Char* text)
{
    Number number;
    while (IsSpace(*text))
        ++text;
    number.negative = *text == '-';
    if (IsSign(*text))
        ++text;
    const Char* end = DigitReader(number).Read(text);
    if (end != text)
        number.scale -= ReadExponent(end);
    return number;
}

}  // namespace

// Zeros that there is no room for are dropped again.
DecimalValue Read(const Char* text, int32_t decimalPlaces)
{
    const DecimalValue read = Pack(ReadNumber(text));
    Number number = Unpack(&read);
    AddTrailingZeros(number, std::max<int64_t>(std::min(decimalPlaces, kLargestScale) - number.scale, 0));
    return Pack(number);
}

DecimalValue FromUnsigned(uint32_t number)
{
    Number whole;
    whole.digits = WideInteger(0, number);
    return Pack(whole);
}

}  // namespace zte::decimal
