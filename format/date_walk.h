// Reads the fields of a date or time display text, position by position under the mask, into a value.
#pragma once

#include "core/edit_instance.h"

namespace zte {

constexpr DateTimeValue kEmptyDateTime = {0, DATETIME_NO_DATE, 0, 0, DATETIME_NO_TIME, 0, 0, 0};

// Starts from the empty value and reads every field of the text; false at the first unreadable field, with what was read
// up to there left in value. escapeWidth: positions
// passed at a literal written with "~".
bool WalkDateText(EditInstance& edit, const char* text, DateTimeValue& value, int32_t escapeWidth = 1);

// The canonical text of a value read from fields (a day of 0 counts as 1), checked and read back into the value. False for
// impossible dates and times.
bool CheckByCanonicalText(int32_t dataType, DateTimeValue& value);

// Whether a text handed in may be display text: it has the length of the mask's display and, under an AM/PM mask, shows the
// AM or PM string at that field.
bool LooksLikeDisplayText(const EditInstance& edit, const char* text);

// Parses canonical text of the control's type into value, which is the empty value when the text is none. Returns 0 on success.
int32_t ParseCanonical(int32_t dataType, const char* text, DateTimeValue& value);

}  // namespace zte
