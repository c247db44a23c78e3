// Deleting with the literals kept.
#pragma once

#include "engine/record.h"

namespace zte {

// Clears a selection, which is not empty, back to the blank display; a number is laid anew.
void ClearSelected(EditInstance& edit, Selection selection);

// The same where anything is selected; false where nothing is.
inline bool DeleteSelection(EditInstance& edit, Selection selection)
{
    if (selection.IsEmpty())
        return false;
    ClearSelected(edit, selection);
    return true;
}

}  // namespace zte
