// One step of the spin, whoever asks for it: an arrow pressed, the repeat timer, or an arrow key.
#pragma once

#include "engine/record.h"

namespace zte {

// Steps in the direction of SPIN_UP or SPIN_DOWN and notifies the parent, last.
void SpinStep(EditInstance& edit);

}  // namespace zte
