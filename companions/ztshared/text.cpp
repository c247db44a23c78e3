// Texts and characters: copying, upper and lower case, and the number test.
#include <cctype>
#include <cstring>

#include "companions/ztshared/conventions.h"
#include "engine/values/number_text.h"
#include "ztshared.h"

namespace {

constexpr bool IsCharacterCode(int32_t character)
{
    return character >= 0 && character <= UINT8_MAX;
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
    return text && zte::IsNumberText(text, shared::Conventions().decimalChar);
}
