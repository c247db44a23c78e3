// Typing into strings, dates and times: an accepted character overwrites positions, literals are passed.
#pragma once

#include "core/edit_instance.h"

namespace zte {

void EnterChar(EditInstance& edit, WPARAM typed);

}  // namespace zte
