// Texts and characters: copying, upper and lower case, and the number test.
#include <cctype>
#include <cstring>

#include "shared/ascii.h"
#include "shared/services/regional.h"
#include "ztshared.h"

namespace {

constexpr bool IsCharacterCode(int32_t character)
{
    return character >= 0 && character <= UINT8_MAX;
}

const char* SkipBlanks(const char* text)
{
    while (*text == ' ' || *text == '\t')
        ++text;
    return text;
}

bool IsPoint(char c)
{
    return c == '.' || c == shared::RegionalConventions().decimal;
}

// The end of the digits and the point at text; null unless there is a digit and at most one point.
const char* SkipDigitsAndPoint(const char* text)
{
    bool digit = false;
    int32_t points = 0;
    for (; zte::IsAsciiDigit(*text) || (*text != '\0' && IsPoint(*text)); ++text) {
        if (zte::IsAsciiDigit(*text))
            digit = true;
        else
            ++points;
    }
    return digit && points <= 1 ? text : nullptr;
}

}  // namespace

char* WINAPI SharedStrCopy(char* destination, const char* source)
{
    return destination ? std::strcpy(destination, source ? source : "") : nullptr;
}

int32_t WINAPI SharedCharConvertOne(int32_t character)
{
    return IsCharacterCode(character) ? static_cast<uint8_t>(std::toupper(character)) : character;
}

int32_t WINAPI SharedCharConvertTwo(int32_t character)
{
    return IsCharacterCode(character) ? static_cast<uint8_t>(std::tolower(character)) : character;
}

int32_t WINAPI SharedIsNumber(const char* text)
{
    if (!text)
        return 0;
    const char* start = SkipBlanks(text);
    if (*start == '+' || *start == '-')
        ++start;
    const char* end = SkipDigitsAndPoint(start);
    return end && *SkipBlanks(end) == '\0';
}
