// Number texts, and the values that they stand for.
#include "engine/values/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "engine/text/ascii.h"

namespace zte {

namespace {

const Char* SkipDigits(const Char* text)
{
    while (IsDigit(*text))
        ++text;
    return text;
}

// The end of the number at text (behind its sign), where there is one; an exponent may be without its digits.
const Char* EndOfNumber(const Char* text)
{
    const Char* end = SkipDigits(text);
    if (*end == '.')
        end = SkipDigits(end + 1);
    if (*end == 'e' || *end == 'E')
        return SkipDigits(end + 1 + (IsSign(end[1]) ? 1 : 0));
    return end;
}

#if defined(__wasm__)

// Its from_chars knows no double; and there is no host whose locale would speak into this.
double ValueOf(const std::string& number)
{
    return std::strtod(number.c_str(), nullptr);
}

#else

// A number out of a double's range: too large or too small, as the power of ten of its first digit tells.
double OutOfRange(const std::string& number)
{
    const size_t end = std::min(number.find_first_of("eE"), number.size());
    const size_t point = std::min(number.find('.'), end);
    const auto power = static_cast<int64_t>(point) - static_cast<int64_t>(number.find_first_of("123456789"));
    const int64_t exponent = end < number.size() ? IntegerOf(FromAscii(number.c_str() + end + 1)) : 0;
    return power + exponent > 0 ? HUGE_VAL : 0.0;
}

// Parsed without the runtime's locale, which belongs to the host.
double ValueOf(const std::string& number)
{
    double value = 0.0;
    const auto parsed = std::from_chars(number.data(), number.data() + number.size(), value);
    return parsed.ec == std::errc::result_out_of_range ? OutOfRange(number) : value;
}

#endif

const Char* SkipBlanks(const Char* text)
{
    while (*text == ' ' || *text == '\t')
        ++text;
    return text;
}

// The end of the digits and the point at text; null unless there is a digit and at most one point.
const Char* SkipDigitsAndPoint(const Char* text, Char decimalChar)
{
    bool digit = false;
    int32_t points = 0;
    for (; *text; ++text) {
        if (IsDigit(*text))
            digit = true;
        else if (*text == '.' || *text == decimalChar)
            ++points;
        else
            break;
    }
    return digit && points <= 1 ? text : nullptr;
}

}  // namespace

double NumberFromPlainText(const Char* text)
{
    while (IsSpace(*text))
        ++text;
    const bool negative = *text == '-';
    if (IsSign(*text))
        ++text;
    const double value = ValueOf(std::string(text, EndOfNumber(text)));
    return negative ? -value : value;
}

Text WithPlainPoint(Text text, const Settings& settings)
{
    for (Char& c : text)
        if (c == settings.decimalChar)
            c = '.';
    return text;
}

bool IsNumberText(const Char* text, Char decimalChar)
{
    const Char* start = SkipBlanks(text);
    if (IsSign(*start))
        ++start;
    const Char* end = SkipDigitsAndPoint(start, decimalChar);
    return end && *SkipBlanks(end) == Char{};
}

}  // namespace zte
