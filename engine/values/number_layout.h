// Where the parts of a number stand in its display text.
#pragma once

#include "engine/values/settings.h"

namespace zte {

// Position of the first decimal character; 0 when there is none, so that a point at 0 and no point read alike (kept: the
// editing rules count on it).
int32_t DecimalCharPos(const Text& text, Char decimalChar);

// Whether a position lies among the fraction digits, the first of them included, the place behind the last not.
bool IsInFraction(const Text& text, int32_t position, int32_t decimalPlaces, Char decimalChar);

// A caret position as the digits see it: before or behind the point (or the end of the digits where there is none), and how
// many digits lie between.
struct DigitPlace {
    bool behindPoint;
    int32_t digits;
    bool operator==(const DigitPlace& other) const
    {
        return behindPoint == other.behindPoint && digits == other.digits;
    }
};
DigitPlace DigitPlaceOf(const Text& text, int32_t position, Char decimalChar);

// The position of a place, directly behind the digit left of it where there is one.
int32_t PositionOf(const Text& text, DigitPlace place, Char decimalChar);

}  // namespace zte
