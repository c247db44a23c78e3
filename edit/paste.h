// Pasting: the clipboard text is read back as data and set as the new value.
#pragma once

#include "core/edit_instance.h"

namespace zte {

void PasteClipboard(EditInstance& edit);

}  // namespace zte
