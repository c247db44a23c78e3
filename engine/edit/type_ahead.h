// Choosing entries of a pick list by their first letter.
#pragma once

#include "engine/record.h"

namespace zte {

// Shows the next entry that begins with the typed character.
void TypeAhead(EditInstance& edit, Char typed);

}  // namespace zte
