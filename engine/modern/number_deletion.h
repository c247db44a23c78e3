// Deleting digits of modern numbers.
#pragma once

#include "engine/modern/kind.h"

namespace zte::modern::numbers {

// The number without the digits and the sign of a selection, the caret where the first of them was.
Content Without(const EditInstance& edit, const Content& content, Selection selection);

Outcome Erase(const EditInstance& edit, const Content& content, Eraser eraser);

}  // namespace zte::modern::numbers
