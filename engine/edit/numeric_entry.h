// Typing into numbers and decimals: digits are inserted before the point and the number is laid anew, or, once the integer
// part has filled its room, overwritten position by position.
#pragma once

#include "engine/record.h"

namespace zte {

// caret: where it stands.
void EnterNumericChar(EditInstance& edit, Char typed, int32_t caret, KeyData keyData);

}  // namespace zte
