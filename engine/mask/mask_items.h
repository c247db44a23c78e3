// The table of mask characters: which of them are input positions of a type, and what may be typed there.
#pragma once

#include <cstdint>

#include "engine/text/text.h"

namespace zte {

enum class FieldKind : uint8_t {
    Literal,
    NumberDigit,
    Digit,
    Alphanumeric,
    Any,
    UpperCase,
    LowerCase,
    Year,
    Month,
    Day,
    DayOfYear,
    Hour,
    Minute,
    Second,
    Fraction,
    AmPm,  // a letter of the AM/PM field; not in the table, since five characters make one
};

// What a mask character is in masks of a type, in either case. hourBefore: an hour field stands before it. This is the one
// place that tells an "M" of minutes from one of months.
FieldKind KindOf(Char maskChar, int32_t dataType, bool hourBefore = false);

inline bool IsMaskItem(Char maskChar, int32_t dataType)
{
    return KindOf(maskChar, dataType) != FieldKind::Literal;
}

}  // namespace zte
