// The caret after a click.
#pragma once

#include "engine/record.h"

namespace zte {

// What the release of the left button does before the field handles it: false when the caret is left where the click puts it.
bool IsClickCorrected(EditInstance& edit);

// After the field has handled the release: a caret that the click left on a literal goes to the nearest editable position. True
// when it did; a selection made by dragging is left alone.
bool CorrectClick(EditInstance& edit);

}  // namespace zte
