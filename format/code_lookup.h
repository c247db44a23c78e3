// Looks values up in a control's code table.
#pragma once

#include "core/edit_instance.h"

namespace zte {

// The data value that stands for no data.
constexpr char kNullValue[] = "null!";

// The display text of the first entry whose data value equals value (null: the "null!" entry); null when none does. The
// cursor stands on the entry found.
const char* DisplayTextForValue(const EditInstance& edit, const char* value);

// The data value of the first entry that is shown as display; null when none is.
const char* ValueForDisplayText(const EditInstance& edit, const char* display);

}  // namespace zte
