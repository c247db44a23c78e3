// Dates and times as texts, whole.
#pragma once

#include "engine/text/text.h"
#include "ztvalues.h"

namespace zte {

// YYYY-MM-DD, a blank, HH:MM:SS:FFFFFF, each where the value has it.
Text DateTimeText(const DateTimeValue& value);

}  // namespace zte
