// Number texts, and the values that they stand for.
#include "engine/values/number_text.h"

#include <charconv>
#include <cmath>

#include "engine/text/ascii.h"

namespace zte {

namespace {

const Char* SkipDigits(const Char* text)
{
    while (IsDigit(*text))
        ++text;
    return text;
}

// The end of the number at text (behind its sign), which is text itself where there is none.
const Char* EndOfNumber(const Char* text)
{
    const Char* end = SkipDigits(text);
    int32_t digits = static_cast<int32_t>(end - text);
    if (*end == '.') {
        const Char* fraction = end + 1;
        end = SkipDigits(fraction);
        digits += static_cast<int32_t>(end - fraction);
    }
    if (digits == 0)
        return text;
    if (*end == 'e' || *end == 'E') {
        const Char* exponent = end + 1 + (end[1] == '+' || end[1] == '-');
        if (IsDigit(*exponent))
            return SkipDigits(exponent);
    }
    return end;
}

// A number out of a double's range: too large, unless it begins with 0 or its exponent is negative.
double OutOfRange(const std::string& number)
{
    const bool tiny = number[0] == '0' || number[0] == '.' || number.find('-') != std::string::npos;
    return tiny ? 0.0 : HUGE_VAL;
}

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

// Parsed without the runtime's locale, which belongs to the host.
double NumberFromPlainText(const Char* text)
{
    while (IsSpace(*text))
        ++text;
    const bool negative = *text == '-';
    if (IsSign(*text))
        ++text;
    const std::string number(text, EndOfNumber(text));
    double value = 0.0;
    const auto parsed = std::from_chars(number.data(), number.data() + number.size(), value);
    if (!number.empty() && parsed.ec == std::errc::result_out_of_range)
        value = OutOfRange(number);
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
