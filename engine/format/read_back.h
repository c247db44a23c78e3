// Reads display text back into data: the control's text with the null rules of its type, a caller's text without.
#pragma once

#include "engine/record.h"

namespace zte {

// The value shown, as ZTE_FmtGetData returns it: a block of the control's heap that the caller frees, or null.
void* GetData(const EditInstance& edit);

// A caller's text read as if the control showed it; likewise.
void* UnformatData(const EditInstance& edit, const Char* text);

// The characters of a caller's text at field positions, or the data value of the code-table entry that is shown so.
Text UnformatText(const EditInstance& edit, const Text& text);

// The number or string that a text of the control shows, without the null rules: what the spin reads while the user edits. A
// number has the regional decimal character.
Text ReadShownText(const EditInstance& edit, const Text& text);

// The same for dates and times; the empty value when the text is empty or unreadable.
DateTimeValue ReadShownDateTime(const EditInstance& edit, const Text& text);

// The date or time that a pasted text stands for: canonical text, or the display text of a code-table entry.
DateTimeValue ReadPastedDateTime(const EditInstance& edit, const Text& text);

}  // namespace zte
