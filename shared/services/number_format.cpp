// Reads and checks number formats. A compiled format is the text of a valid one: nothing is shorter, and it needs no release.
#include "shared/services/number_format.h"

#include <cstring>

#include "ztshared.h"

namespace shared {

namespace {

constexpr TokenKind KindOf(char c)
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

// Takes the tokens of a format in their order.
class ShapeReader {
public:
    void Take(TokenKind kind)
    {
        if (IsPlaceholder(kind))
            TakePlaceholder(kind == TokenKind::Digit);
        else if (kind == TokenKind::Point)
            TakePoint();
        else if (kind == TokenKind::Group)
            TakeGroup();
        else if (kind == TokenKind::Percent)
            shape_.percent = true;
        else if (kind == TokenKind::Invalid)
            shape_.valid = false;
    }

    FormatShape Finish()
    {
        if (shape_.integerPlaces + shape_.fractionPlaces == 0)
            shape_.valid = false;
        return shape_;
    }

private:
    void TakePlaceholder(bool forced)
    {
        if (shape_.percent)
            shape_.valid = false;
        if (shape_.point) {
            ++shape_.fractionPlaces;
            if (forced)
                shape_.forcedFraction = shape_.fractionPlaces;
            return;
        }
        shape_.grouped = shape_.grouped || groupPending_;
        ++shape_.integerPlaces;
        if (forced || shape_.forcedInteger > 0)
            ++shape_.forcedInteger;
    }

    void TakePoint()
    {
        if (shape_.point)
            shape_.valid = false;
        shape_.point = true;
    }

    // It groups once a placeholder follows; elsewhere it has no meaning and shows nothing.
    void TakeGroup()
    {
        if (shape_.point)
            shape_.valid = false;
        groupPending_ = shape_.integerPlaces > 0;
    }

    FormatShape shape_;
    bool groupPending_ = false;
};

}  // namespace

Token NextToken(const char*& format)
{
    if (*format == '\0')
        return {TokenKind::End, '\0'};
    if (*format != '\\') {
        const char c = *format++;
        return {KindOf(c), c};
    }
    ++format;
    if (*format == '\0')
        return {TokenKind::Invalid, '\0'};
    return {TokenKind::Literal, *format++};
}

FormatShape ReadShape(const char* format)
{
    ShapeReader reader;
    for (Token token = NextToken(format); token.kind != TokenKind::End; token = NextToken(format))
        reader.Take(token.kind);
    return reader.Finish();
}

bool IsGeneralFormat(const char* format)
{
    return std::strcmp(format, kGeneralFormat) == 0;
}

}  // namespace shared

// A format that is refused leaves an empty one behind, so that using it all the same shows nothing.
int32_t WINAPI SharedCompileFormat(void* compiled, const char* format, int32_t size)
{
    if (!compiled || size <= 0)
        return 1;
    const auto destination = static_cast<char*>(compiled);
    const size_t length = format ? std::strlen(format) : 0;
    const bool valid = format && (shared::IsGeneralFormat(format) || shared::ReadShape(format).valid);
    if (!valid || length >= static_cast<size_t>(size)) {
        *destination = '\0';
        return 1;
    }
    std::memmove(destination, format, length + 1);
    return 0;
}
