// Number texts with the regional decimal character, and the values they stand for.
#include "format/number_text.h"

#include <charconv>
#include <cmath>
#include <cstring>

#include "intl/regional_settings.h"
#include "shared/ascii.h"

namespace zte {

namespace {

bool IsBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

const char* SkipDigits(const char* text)
{
    while (IsAsciiDigit(*text))
        ++text;
    return text;
}

// The end of the number at text (behind its sign), which is text itself where there is none.
const char* EndOfNumber(const char* text)
{
    const char* end = SkipDigits(text);
    int32_t digits = static_cast<int32_t>(end - text);
    if (*end == '.') {
        const char* fraction = end + 1;
        end = SkipDigits(fraction);
        digits += static_cast<int32_t>(end - fraction);
    }
    if (digits == 0)
        return text;
    if (*end == 'e' || *end == 'E') {
        const char* exponent = end + 1 + (end[1] == '+' || end[1] == '-');
        if (IsAsciiDigit(*exponent))
            return SkipDigits(exponent);
    }
    return end;
}

// A number out of a double's range: too large, unless it begins with 0 or its exponent is negative.
double OutOfRange(const char* first, const char* last)
{
    const auto length = static_cast<size_t>(last - first);
    const bool tiny = *first == '0' || *first == '.' || std::memchr(first, '-', length);
    return tiny ? 0.0 : HUGE_VAL;
}

}  // namespace

// Parsed without the runtime's locale, which belongs to the host.
double NumberFromPlainText(const char* text)
{
    while (IsBlank(*text))
        ++text;
    const bool negative = *text == '-';
    if (*text == '-' || *text == '+')
        ++text;
    const char* end = EndOfNumber(text);
    double value = 0.0;
    if (end != text && std::from_chars(text, end, value).ec == std::errc::result_out_of_range)
        value = OutOfRange(text, end);
    return negative ? -value : value;
}

double NumberFromText(const char* text)
{
    return NumberFromPlainText(WithPlainPoint(text).c_str());
}

DecimalValue DecimalFromText(const char* text, int32_t decimalPlaces)
{
    DecimalValue value;
    DecFromString(&value, WithPlainPoint(text).c_str(), decimalPlaces);
    return value;
}

std::string WithPlainPoint(const char* text)
{
    std::string plain(text);
    const char point = DecimalChar();
    for (char& c : plain)
        if (c == point)
            c = '.';
    return plain;
}

}  // namespace zte
