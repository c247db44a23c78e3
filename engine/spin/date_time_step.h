// The step of dates and times: the field under the caret.
#pragma once

#include "engine/record.h"

namespace zte {

// Steps in the direction of SPIN_UP or SPIN_DOWN, and leaves redrawing on.
void StepDateOrTime(EditInstance& edit);

}  // namespace zte
