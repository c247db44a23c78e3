// Typing into numbers and decimals.
#pragma once

#include "core/edit_instance.h"

namespace zte {

void EnterNumericChar(EditInstance& edit, WPARAM typed, LPARAM keyData);

}  // namespace zte
