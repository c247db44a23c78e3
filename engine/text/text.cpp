// The engine's text.
#include "engine/text/text.h"

#include <algorithm>
#include <cstring>

#include "engine/text/ascii.h"

namespace zte {

Text Slice(const Text& text, int32_t position, int32_t count)
{
    return position < Length(text) ? text.substr(static_cast<size_t>(position), static_cast<size_t>(count)) : Text();
}

int32_t Find(const Text& text, Char character)
{
    const size_t position = text.find(character);
    return position == Text::npos ? -1 : static_cast<int32_t>(position);
}

int32_t Find(const Char* text, Char character)
{
    const Char* found = std::char_traits<Char>::find(text, TextLength(text), character);
    return found ? static_cast<int32_t>(found - text) : -1;
}

Text FromAscii(const char* ascii)
{
    return {ascii, ascii + std::strlen(ascii)};
}

bool Equals(const Text& text, const char* ascii)
{
    return BeginsWith(text.c_str(), ascii) && text.size() == std::strlen(ascii);
}

int32_t IntegerOf(const Char* text)
{
    while (IsSpace(*text))
        ++text;
    const bool negative = *text == '-';
    if (IsSign(*text))
        ++text;
    int64_t number = 0;
    for (; IsDigit(*text); ++text)
        number = std::min<int64_t>(number * 10 + DigitValue(*text), INT32_MAX);
    return static_cast<int32_t>(negative ? -number : number);
}

int32_t DigitsAt(const Text& text, int32_t position, int32_t count)
{
    constexpr int32_t kMost = 9;
    if (position < 0 || count <= 0 || count > kMost || position > Length(text) - count)
        return -1;
    int32_t number = 0;
    for (const Char* digit = text.c_str() + position; count > 0; --count, ++digit) {
        if (!IsDigit(*digit))
            return -1;
        number = number * 10 + DigitValue(*digit);
    }
    return number;
}

// Fields hold digits but for what was set from outside.
int32_t IntegerAt(const Text& text, int32_t position, int32_t count)
{
    const int32_t number = DigitsAt(text, position, count);
    return number >= 0 ? number : IntegerOf(Slice(text, position, count));
}

Text WithoutBlanksBehind(const Text& text)
{
    return text.substr(0, text.find_last_not_of(Char{' '}) + 1);
}

void AppendNumber(Text& text, uint32_t number, int32_t digits)
{
    int32_t length = 0;
    for (uint32_t rest = number; rest != 0; rest /= 10)
        ++length;
    text.append(static_cast<size_t>(std::max(length, digits)), Char{'0'});
    for (auto digit = text.rbegin(); number != 0; number /= 10, ++digit)
        *digit = DigitChar(static_cast<int32_t>(number % 10));
}

Text NumberText(uint32_t number, int32_t digits)
{
    Text text;
    AppendNumber(text, number, digits);
    return text;
}

}  // namespace zte
