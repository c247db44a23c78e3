// Typing into strings, dates and times: an accepted character overwrites positions, literals are passed.
#pragma once

#include "engine/record.h"

namespace zte {

void EnterChar(EditInstance& edit, Char typed);

}  // namespace zte
