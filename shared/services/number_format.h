// The language of number formats, read token by token, and what a whole format asks for.
#pragma once

#include <cstdint>

namespace shared {

constexpr char kGeneralFormat[] = "[GENERAL]";

enum class TokenKind { End, Digit, SignificantDigit, Point, Group, Percent, Literal, Invalid };

struct Token {
    TokenKind kind;
    char text;  // of a Literal or a Percent
};

constexpr bool IsPlaceholder(TokenKind kind)
{
    return kind == TokenKind::Digit || kind == TokenKind::SignificantDigit;
}

// Takes the token at format and moves format behind it; at the end it stays.
Token NextToken(const char*& format);

// What the placeholders of a format say together.
struct FormatShape {
    int32_t integerPlaces = 0;   // placeholders before the point
    int32_t forcedInteger = 0;   // integer digits that are always shown
    int32_t fractionPlaces = 0;  // placeholders behind the point
    int32_t forcedFraction = 0;  // fraction digits that are always shown
    bool point = false;
    bool grouped = false;
    bool percent = false;
    bool valid = true;
};

FormatShape ReadShape(const char* format);

bool IsGeneralFormat(const char* format);

}  // namespace shared
