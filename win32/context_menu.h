// The edit control's own context menu, over a control that has an undo of its own.
#pragma once

#include <windows.h>

#include "engine/record.h"
#include "engine/reply.h"

namespace zte {

Reply OnContextMenu(EditInstance& edit, const MSG& message);

}  // namespace zte
