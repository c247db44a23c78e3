// How much room a spin takes, and the text's room beside it.
#pragma once

#include <windows.h>

#include "engine/record.h"

namespace zte {

// The spin's width for a height, not rounded up to even: 2h/3 + 2, at least 7, at most the scroll-bar width + 2; pixels. Of a modern
// control the scroll bar's at the window's dots per inch.
int16_t SpinWidthForHeight(const EditInstance& edit, int16_t height);

// The same for a rectangle's height, rounded up to even, unlike the width that a spin created later gets; kept.
int16_t EvenSpinWidth(const EditInstance& edit, const RECT& rect);

// Keeps the text off a spin, whether the control was created with it or got it later; after the edit control underneath has laid
// its formatting rectangle anew. Edits of one line take no formatting rectangle: their right margin holds the spin's strip as well.
void KeepTextOffSpin(const EditInstance& edit);

// Brings a caret that the strip would cover into view.
void ShowCaretBesideSpin(const EditInstance& edit);

// Takes the strip out of the right margin, which is the host's own then: before the edit control underneath computes with its
// margins, and when the spin goes.
void GiveMarginBack(const EditInstance& edit);

// The right margin as the host has set it, in pixels.
uint16_t HostMargin(const EditInstance& edit);

}  // namespace zte
