// Deleting with the literals kept.
#pragma once

#include "core/edit_instance.h"

namespace zte {

// Clears the selection back to the blank display (a number is laid anew); false when nothing is selected. typing: on
// behalf of a typed character, which then takes the place.
bool DeleteSelection(EditInstance& edit, bool typing);

}  // namespace zte
