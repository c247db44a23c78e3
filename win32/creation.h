// Setting a control up from its EditInitParams, and taking it down.
#pragma once

#include <windows.h>

#include "ztedit.h"

namespace zte {

// ZTE_Init for a window and parameters that are there.
int32_t SetUpControl(HWND hwnd, const EditInitParams& params);

// WM_CREATE: builds the record around the base procedure's own creation.
LRESULT CreateControl(HWND hwnd, WPARAM wParam, LPARAM lParam);

// Destroys the spin, frees the record and detaches it; nothing for a window without a record.
void DiscardRecord(HWND hwnd);

}  // namespace zte
