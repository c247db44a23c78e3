// Where the parts of a number stand in its display text.
#include "edit/number_layout.h"

#include <algorithm>
#include <cstring>

#include "intl/regional_settings.h"
#include "shared/ascii.h"

namespace zte {

namespace {

int32_t Length(const std::string& text)
{
    return static_cast<int32_t>(text.size());
}

bool IsDigitAt(const std::string& text, int32_t position)
{
    return IsDigit(text[static_cast<size_t>(position)]);
}

bool IsSignAt(const std::string& text, int32_t position)
{
    const char c = text[static_cast<size_t>(position)];
    return c == '-' || c == '+';
}

// The decimal point, or the place behind the last digit or sign where there is none.
int32_t PointOrEnd(const std::string& text)
{
    const size_t point = text.find(DecimalChar());
    if (point != std::string::npos)
        return static_cast<int32_t>(point);
    int32_t end = Length(text);
    while (end > 0 && !IsDigitAt(text, end - 1) && !IsSignAt(text, end - 1))
        --end;
    return end;
}

int32_t CountDigits(const std::string& text, int32_t from, int32_t to)
{
    int32_t count = 0;
    for (int32_t i = std::max(from, 0); i < std::min(to, Length(text)); ++i)
        count += IsDigitAt(text, i);
    return count;
}

}  // namespace

int32_t DecimalCharPos(const std::string& text)
{
    const size_t position = text.find(DecimalChar());
    return position == std::string::npos ? 0 : static_cast<int32_t>(position);
}

int32_t MaskPointPos(const EditInstance& edit)
{
    const char* point = std::strchr(edit.mask, '.');
    return point ? static_cast<int32_t>(point - edit.mask) : -1;
}

bool IsInFraction(const EditInstance& edit, const std::string& text, int32_t position)
{
    if (edit.decimalPlaces == 0)
        return false;
    const int32_t point = DecimalCharPos(text);
    return point < position && position < point + edit.decimalPlaces + 1;
}

DigitPlace DigitPlaceOf(const std::string& text, int32_t position)
{
    const int32_t point = PointOrEnd(text);
    const bool behind = position > point;
    return {behind, behind ? CountDigits(text, point, position) : CountDigits(text, position, point)};
}

int32_t PositionOf(const std::string& text, DigitPlace place)
{
    const int32_t point = PointOrEnd(text);
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
