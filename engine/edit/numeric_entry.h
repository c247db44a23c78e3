// Typing into numbers and decimals: digits are laid through the mask as they are typed, never a value.
#pragma once

#include "engine/record.h"

namespace zte {

// One character typed into a control of numbers, over the selection where there is one.
void EnterNumericChar(EditInstance& edit, Char typed, Selection selection);

// The character of a Backspace whose key-down has left it to do.
void BackspaceInNumber(EditInstance& edit, Selection selection);

// The Delete key, and the deletion of what is selected.
void DeleteInNumber(EditInstance& edit, Selection selection);

// A sign that stands before nothing but zeros goes: the number is complete.
void CompleteNumber(EditInstance& edit);

}  // namespace zte
