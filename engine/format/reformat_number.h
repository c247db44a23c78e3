// Lays an edited number through its mask again.
#pragma once

#include "engine/record.h"

namespace zte {

// Takes the number out of a text and shows it anew. Returns by how many characters the text grew, 0 when it did not.
int32_t ReformatNumber(EditInstance& edit, const Text& text);

// The same with the text now shown.
inline int32_t ReformatNumber(EditInstance& edit)
{
    return ReformatNumber(edit, edit.field->ReadText());
}

// Display characters that the escapes at the very start of the mask take; escapes further on are not matched (kept).
Text LeadingEscapes(const EditInstance& edit);

}  // namespace zte
