// How much room a spin takes, and the text's room beside it.
#pragma once

#include <windows.h>

#include "engine/record.h"

namespace zte {

// The spin's width for a height, not rounded up to even: 2h/3 + 2, at least 7, at most the scroll-bar width + 2; pixels.
int16_t SpinWidthForHeight(int16_t height);

// The same for a rectangle's height, rounded up to even, unlike the width that a spin created later gets; kept.
int16_t EvenSpinWidth(const RECT& rect);

// Narrows the formatting rectangle by the width of a spin as high as the control.
void NarrowFormatRect(HWND hwnd);

// Keeps the text off a spin, whether the control was created with it or got it later; after the edit control underneath
// has laid its formatting rectangle anew.
void KeepTextOffSpin(const EditInstance& edit);

}  // namespace zte
