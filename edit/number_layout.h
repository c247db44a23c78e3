// Where the parts of a number stand in its display text.
#pragma once

#include <string>

#include "core/edit_instance.h"

namespace zte {

// Position of the first regional decimal character; 0 when there is none, so that a point at 0 and no point read alike
// (kept: the editing rules count on it).
int32_t DecimalCharPos(const std::string& text);

// Position of the first '.' in the mask text; -1 when there is none.
int32_t MaskPointPos(const EditInstance& edit);

// Whether a position lies among the fraction digits, the first of them included, the place behind the last not.
bool IsInFraction(const EditInstance& edit, const std::string& text, int32_t position);

// A caret position as the digits see it: how many of them lie between it and the decimal point, negative in the integer part.
int32_t DigitOffset(const std::string& text, int32_t position);

// The position directly behind the digit that has an offset; before the first digit where no digit lies that far left.
int32_t PositionBehindDigit(const std::string& text, int32_t digitOffset);

}  // namespace zte
