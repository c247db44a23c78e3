// Values into the control.
#pragma once

#include "engine/record.h"

namespace zte {

// Shows a value of the control's type, null for none. 1, or 0 for a control without a mask.
int32_t SetData(EditInstance& edit, const void* data);

// Shows a value given as text; null for none.
int32_t SetDataString(EditInstance& edit, const Char* text);

// Sets CHARWISE for masks that are edited position by position: all but numbers with a '#' and no literals.
void ChooseEditMode(EditInstance& edit);

}  // namespace zte
