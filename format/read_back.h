// Reads display text back into data, and re-lays number texts through their mask.
#pragma once

#include <string>

#include "core/edit_instance.h"

namespace zte {

// The data now shown, without the null rules of ZTE_FmtGetData: what the validators and the spin read while the user edits.
// A number as text with the regional decimal character, a string, or a DateTimeValue. A block of the control's heap that
// the caller frees, or null when the window text is empty.
void* ReadCurrentData(EditInstance& edit);

// The same for dates and times; the empty value when the window text is empty or unreadable.
DateTimeValue ReadCurrentDateTime(EditInstance& edit);

// The date or time that a pasted text stands for: canonical text, or the display text of a code-table entry.
DateTimeValue ReadPastedDateTime(const EditInstance& edit, const char* text);

// Lays a number text (null: the window text) through the mask again. Returns by how many characters the text grew, 0 when
// it did not.
int32_t ReformatNumber(EditInstance& edit, const char* text);

}  // namespace zte
