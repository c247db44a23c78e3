// Deleting with the literals kept.
#pragma once

#include "engine/record.h"

namespace zte {

// Clears the selection back to the blank display (a number is laid anew); false when nothing is selected.
bool DeleteSelection(EditInstance& edit, Selection selection);

}  // namespace zte
