// Texts pasted into modern numbers: read as people write numbers, or refused where they could be read in two ways.
#pragma once

#include "engine/modern/content.h"

namespace zte::modern::numbers {

Outcome Paste(const EditInstance& edit, const Content& content, const Text& text);

}  // namespace zte::modern::numbers
