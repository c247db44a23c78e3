// Pasting: the clipboard text is read back as data and set as the new value.
#pragma once

#include "engine/record.h"

namespace zte {

void PasteClipboard(EditInstance& edit);

}  // namespace zte
