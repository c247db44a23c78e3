// The step of each type of value; each leaves redrawing on.
#pragma once

#include "core/edit_instance.h"

namespace zte {

void SpinStepNumber(EditInstance& edit);
void SpinStepDecimal(EditInstance& edit);
void SpinStepDateTime(EditInstance& edit);

}  // namespace zte
