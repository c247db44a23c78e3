// Decimals made of nothing, of an unsigned number, of another decimal and of a text.
#include "shared/ascii.h"
#include "shared/decimal/decimal_number.h"

using decimal::Number;
using decimal::Pack;
using decimal::WideInteger;
using zte::IsAsciiDigit;

namespace {

constexpr int32_t kDigitsCollected = 60;             // what 256 bits surely hold; later ones only decide the rounding
constexpr int64_t kLargestExponent = 1'000'000'000;  // far outside every range, and safe to calculate with

bool IsBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

// Reads the digits and the point of a number, which may be of any length.
class DigitReader {
public:
    explicit DigitReader(Number& number) : number_(number) {}

    // Returns the end of the digits; text itself when there is not one digit.
    const char* Read(const char* text)
    {
        const char* end = text;
        bool point = false;
        for (; IsAsciiDigit(*end) || (*end == '.' && !point); ++end) {
            if (*end == '.')
                point = true;
            else
                Take(static_cast<uint32_t>(*end - '0'), point);
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
int64_t ReadExponent(const char* text)
{
    if (*text != 'e' && *text != 'E')
        return 0;
    ++text;
    const bool negative = *text == '-';
    if (*text == '-' || *text == '+')
        ++text;
    int64_t exponent = 0;
    for (; IsAsciiDigit(*text); ++text)
        if (exponent < kLargestExponent)
            exponent = exponent * 10 + (*text - '0');
    return negative ? -exponent : exponent;
}

Number ReadNumber(const char* text)
{
    Number number;
    while (IsBlank(*text))
        ++text;
    number.negative = *text == '-';
    if (*text == '-' || *text == '+')
        ++text;
    const char* end = DigitReader(number).Read(text);
    if (end != text)
        number.scale -= ReadExponent(end);
    return number;
}

// Trailing zeros up to the scale wanted, as far as there is room for them.
void Widen(Number& number, int32_t decimalPlaces)
{
    const int64_t wanted = decimalPlaces < decimal::kLargestScale ? decimalPlaces : decimal::kLargestScale;
    while (number.scale < wanted) {
        Number wider = number;
        AddTrailingZeros(wider, 1);
        if (!wider.digits.FitsIn96Bits())
            return;
        number = wider;
    }
}

}  // namespace

DecimalValue* WINAPI DecFromString(DecimalValue* destination, const char* text, int32_t decimalPlaces)
{
    DecimalValue read{};
    if (text)
        Pack(&read, ReadNumber(text));
    Number number = decimal::Unpack(&read);
    Widen(number, decimalPlaces);
    return Pack(destination, number);
}

DecimalValue* WINAPI DecFromUnsigned(DecimalValue* destination, uint32_t number)
{
    return Pack(destination, {WideInteger(0, number), 0, false, false});
}

DecimalValue* WINAPI DecSetZero(DecimalValue* destination)
{
    return Pack(destination, Number());
}

DecimalValue* WINAPI DecCopy(DecimalValue* destination, const DecimalValue* source)
{
    return Pack(destination, decimal::Unpack(source));
}
