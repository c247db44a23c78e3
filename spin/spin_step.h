// One step of the spin, whoever asks for it: an arrow pressed, the repeat timer, or an arrow key.
#pragma once

#include "core/edit_instance.h"

namespace zte {

// Steps in the direction of SPIN_UP or SPIN_DOWN and notifies the parent, last: the control may be gone afterwards.
void SpinStep(EditInstance& edit, HWND spin);

}  // namespace zte
