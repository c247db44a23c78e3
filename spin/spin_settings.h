// The parameters of a spin: range, increment, code table.
#pragma once

#include "core/edit_instance.h"

namespace zte {

// ZTE_SetSpin with the record at hand.
void SetSpin(EditInstance& edit, uint32_t increment, const char* range, const char* codeTable, uint32_t style);

}  // namespace zte
