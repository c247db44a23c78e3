// The spin's child window.
#pragma once

#include <windows.h>

#include "engine/record.h"

namespace zte {

// Creates the hidden, zero-sized spin child that a control created with a spin gets; its size and paint handling places
// and shows it. Stores it in hwndSpin.
void CreateHiddenSpin(EditInstance& edit);

// Creates and shows the spin of a control that has none; destroys it.
void CreateSpin(EditInstance& edit);
void DestroySpin(EditInstance& edit);

// Paints the spin as it is now into a rectangle of a context.
void PaintSpin(const EditInstance& edit, HDC dc, const RECT& rect);

// Deletes the button faces that painting keeps.
void DropFaces(EditInstance& edit);

}  // namespace zte
