// Tests of ASCII characters that never depend on a host's locale. Letters beyond ASCII and their cases are the settings' business.
#pragma once

#include <type_traits>

#include "engine/text/text.h"

namespace zte {

constexpr Char AsciiUpper(Char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<Char>(c - 'a' + 'A') : c;
}

constexpr bool IsDigit(Char c)
{
    return c >= '0' && c <= '9';
}

constexpr bool IsSign(Char c)
{
    return c == '-' || c == '+';
}

constexpr int32_t DigitValue(Char digit)
{
    return static_cast<int32_t>(digit - '0');
}

constexpr Char DigitChar(int32_t value)
{
    return static_cast<Char>('0' + value);
}

// White space in front of a number.
constexpr bool IsSpace(Char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

// Characters that no mask position takes.
constexpr bool IsControl(Char c)
{
    const auto code = static_cast<std::make_unsigned_t<Char>>(c);
    return code < 0x20 || code == 0x7F;
}

}  // namespace zte
