// The spin's child window.
#pragma once

#include "core/edit_instance.h"

namespace zte {

// Creates the hidden, zero-sized spin child that a control created with a spin gets; its size and paint handling places
// and shows it. Stores it in hwndSpin.
void CreateHiddenSpin(EditInstance& edit);

}  // namespace zte
