// Where the caret may stand and go under a mask of positions: never on a literal.
#pragma once

#include "engine/modern/kind.h"

namespace zte::modern::places {

int32_t Move(const EditInstance& edit, const Content& content, Key key, bool control);
int32_t Click(const EditInstance& edit, const Content& content, int32_t position);
Selection WordAt(const EditInstance& edit, const Content& content, int32_t position);

}  // namespace zte::modern::places
