// Installs a mask in a control.
#pragma once

#include "core/edit_instance.h"

namespace zte {

// ZTE_FmtSetMask with the record at hand.
int32_t SetMask(EditInstance& edit, const char* mask, int32_t dataType);

// Sets CHARWISE for masks that are edited position by position: all but numbers with a '#' and no literals.
void ChooseEditMode(EditInstance& edit);

}  // namespace zte
