// Setting a control up from its EditInitParams, and taking it down.
#pragma once

#include "core/edit_instance.h"

namespace zte {

// Allocates the record, attaches it and copies heap, type and options.
EditInstance& NewRecord(HWND hwnd, const EditInitParams& params);

// The spin parameters, for a control created with a spin.
void SetUpSpin(EditInstance& edit, const EditInitParams& params);

// Mask, initial data, and the spin child when asked for.
void SetUpContents(EditInstance& edit, const EditInitParams& params);

// Destroys the spin, frees the record and detaches it; nothing for a window without a record.
void DiscardRecord(HWND hwnd);

// WM_CREATE: builds the record around the base procedure's own creation.
LRESULT CreateControl(HWND hwnd, WPARAM wParam, LPARAM lParam);

}  // namespace zte
