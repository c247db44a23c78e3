// Reads the fields of a date or time display text, position by position under the mask, into a value.
#pragma once

#include "engine/record.h"
#include "engine/values/date_time.h"

namespace zte {

// Starts from the empty value and reads every field of the text; false at the first unreadable field, with what was read
// up to there left in value. escapeWidth: positions passed at a literal written with "~".
bool ReadFields(const EditInstance& edit, const Text& text, DateTimeValue& value, int32_t escapeWidth = 1);

// Whether a value read from fields is a possible date or time of the type; a day of 0 counts as 1. The parts that the type does
// not have are emptied, and so is the whole value when it is impossible.
bool CheckFields(int32_t dataType, DateTimeValue& value);

// Reads a text that is the display of a possible value; false leaves the empty value or what was read.
bool ReadDisplayText(const EditInstance& edit, const Text& text, DateTimeValue& value, int32_t escapeWidth = 1);

// Parses canonical text of the control's type; the empty value when the text is none. True when it is one.
bool ParseCanonical(const EditInstance& edit, const Char* text, DateTimeValue& value);

}  // namespace zte
