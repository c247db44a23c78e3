// Pasting: the clipboard text is read back as data and set as the new value.
#pragma once

#include "engine/record.h"

namespace zte {

// True when the clipboard's text became the value.
bool PasteClipboard(EditInstance& edit);

}  // namespace zte
