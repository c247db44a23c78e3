// The spin of a modern control: as the platform draws its own.
#pragma once

#include <windows.h>

#include "engine/record.h"

namespace zte {

void PaintNativeSpin(const EditInstance& edit, HDC dc, const RECT& rect);

// The place of an arrow in the spin's window: of SPIN_UP or SPIN_DOWN.
RECT ArrowPlace(HWND spin, uint32_t arrow);

// SPIN_UP or SPIN_DOWN: the arrow over which a point of the spin lies; 0 for none.
uint32_t ArrowAt(HWND spin, POINT point);

}  // namespace zte
