// Where the parts of a number stand in its display text.
#include "engine/values/number_layout.h"

#include <algorithm>

#include "engine/text/ascii.h"

namespace zte {

namespace {

bool IsDigitAt(const Text& text, int32_t position)
{
    return IsDigit(At(text, position));
}

// The decimal point, or the place behind the last digit or sign where there is none.
int32_t PointOrEnd(const Text& text, Char decimalChar)
{
    const int32_t point = Find(text, decimalChar);
    if (point >= 0)
        return point;
    int32_t end = Length(text);
    while (end > 0 && !IsDigitAt(text, end - 1) && !IsSign(At(text, end - 1)))
        --end;
    return end;
}

int32_t CountDigits(const Text& text, int32_t from, int32_t to)
{
    int32_t count = 0;
    for (int32_t i = std::max(from, 0); i < std::min(to, Length(text)); ++i)
        count += IsDigitAt(text, i);
    return count;
}

}  // namespace

int32_t DecimalCharPos(const Text& text, Char decimalChar)
{
    return std::max(Find(text, decimalChar), 0);
}

bool IsInFraction(const Text& text, int32_t position, int32_t decimalPlaces, Char decimalChar)
{
    if (decimalPlaces == 0)
        return false;
    const int32_t point = DecimalCharPos(text, decimalChar);
    return point < position && position < point + decimalPlaces + 1;
}

DigitPlace DigitPlaceOf(const Text& text, int32_t position, Char decimalChar)
{
    const int32_t point = PointOrEnd(text, decimalChar);
    const bool behind = position > point;
    return {behind, behind ? CountDigits(text, point, position) : CountDigits(text, position, point)};
}

int32_t PositionOf(const Text& text, DigitPlace place, Char decimalChar)
{
    const int32_t point = PointOrEnd(text, decimalChar);
    if (place.behindPoint) {
        int32_t position = point + 1;
        while (position < Length(text) && CountDigits(text, point, position) < place.digits)
            ++position;
        return position;
    }
    int32_t position = point;
    while (position > 0 && CountDigits(text, position, point) < place.digits)
        --position;
    // Left over separators up to the digit before; a sign or a literal is no digit to stand behind.
    int32_t behind = position;
    while (behind > 0 && !IsDigitAt(text, behind - 1))
        --behind;
    return behind > 0 ? behind : position;
}

}  // namespace zte
