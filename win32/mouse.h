// The mouse over the text.
#pragma once

#include <windows.h>

#include "engine/record.h"
#include "engine/reply.h"

namespace zte {

Reply OnButtonDown(EditInstance& edit);
Reply OnButtonUp(EditInstance& edit, WPARAM wParam, LPARAM lParam);
Reply OnDoubleClick(EditInstance& edit, LPARAM lParam);
Reply OnWheel(EditInstance& edit, WPARAM wParam, LPARAM lParam);

}  // namespace zte
