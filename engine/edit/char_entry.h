// Typing into strings, dates and times: an accepted character overwrites positions, literals are passed.
#pragma once

#include "engine/record.h"

namespace zte {

// caret: where it stands.
void EnterChar(EditInstance& edit, Char typed, int32_t caret);

}  // namespace zte
