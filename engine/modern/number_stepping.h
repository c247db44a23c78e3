// The range and the steps of modern numbers.
#pragma once

#include "engine/modern/content.h"

namespace zte::modern::numbers {

// Whether a value, as its plain text, lies within the range that the control has; an end that is not given does not exist.
bool IsInRange(const EditInstance& edit, const Text& plain);

Outcome Step(const EditInstance& edit, const Content& content, int32_t steps);

}  // namespace zte::modern::numbers
