// The language of number formats, read token by token, and what a whole format asks for.
#pragma once

#include <cstdint>

#include "engine/text/text.h"
#include "engine/text/writer.h"
#include "engine/values/decimal_digits.h"
#include "engine/values/settings.h"

namespace zte {

enum class TokenKind { End, Digit, SignificantDigit, Point, Group, Percent, Literal, Invalid };

struct Token {
    TokenKind kind;
    Char text;  // of a Literal or a Percent
};

constexpr bool IsPlaceholder(TokenKind kind)
{
    return kind == TokenKind::Digit || kind == TokenKind::SignificantDigit;
}

constexpr TokenKind TokenKindOf(Char c)
{
    switch (c) {
    case '0': return TokenKind::Digit;
    case '#': return TokenKind::SignificantDigit;
    case '.': return TokenKind::Point;
    case ',': return TokenKind::Group;
    case '%': return TokenKind::Percent;
    default: return TokenKind::Literal;
    }
}

// Takes the token at format and moves format behind it; at the end it stays.
inline Token NextToken(const Char*& format)
{
    if (*format == Char{})
        return {TokenKind::End, Char{}};
    if (*format != '\\') {
        const Char c = *format++;
        return {TokenKindOf(c), c};
    }
    ++format;
    if (*format == Char{})
        return {TokenKind::Invalid, Char{}};
    return {TokenKind::Literal, *format++};
}

// What the placeholders of a format say together.
struct FormatShape {
    int32_t integerPlaces = 0;   // placeholders before the point
    int32_t forcedInteger = 0;   // integer digits that are always shown
    int32_t fractionPlaces = 0;  // placeholders behind the point
    int32_t forcedFraction = 0;  // fraction digits that are always shown
    int32_t room = 0;            // characters that the format has before the point, without literals before the number
    int32_t literalsInside = 0;  // of these, literals
    bool point = false;
    bool grouped = false;
    bool percent = false;
    bool optional = false;  // some placeholder shows significant digits only
    bool valid = true;
};

FormatShape ReadShape(const Char* format);

bool IsGeneralFormat(const Char* format);

// Whether a text is a format that can be rendered. A compiled format is the text of a valid one: nothing is shorter, and it
// needs no release.
bool IsValidFormat(const Char* format);

// Lays a number through a compiled format, with the settings' separators. Where the two are equal there is no grouping.
void RenderNumber(Writer& output, const Char* compiled, const DecimalDigits& number, const Settings& settings);

inline bool IsGrouped(const FormatShape& shape, const Settings& settings)
{
    return shape.grouped && settings.thousandChar != settings.decimalChar;
}

}  // namespace zte
