// Deleting with the literals kept.
#pragma once

#include "engine/record.h"

namespace zte {

// Clears the selection back to the blank display (a number is laid anew); false when nothing is selected. typing: on
// behalf of a typed character, which then takes the place.
bool DeleteSelection(EditInstance& edit, Selection selection, bool typing);

}  // namespace zte
