// Typing into modern numbers.
#pragma once

#include "engine/modern/content.h"

namespace zte::modern::numbers {

Outcome Type(const EditInstance& edit, const Content& content, Char typed);

}  // namespace zte::modern::numbers
