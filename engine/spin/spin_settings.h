// What a spin steps: range, increment, code table.
#pragma once

#include "engine/record.h"

namespace zte {

// range and codeTable: null for none. style: SPINSTYLE_ bits.
void SetSpin(EditInstance& edit, uint32_t increment, const Char* range, const Char* codeTable, uint32_t style);

// Frees the range text and the code table, which go with the spin; the increment and the bounds stay.
void DropSpinTexts(EditInstance& edit);

// The flags and the spin style that ZTEO_ options ask for.
void ApplyOptions(EditInstance& edit, uint32_t options);
uint32_t SpinStyleOf(uint32_t options);

}  // namespace zte
