// Attaching, finding and detaching the record of a control, by the window property "MAIN".
#pragma once

#include "core/edit_instance.h"

namespace zte {

// Stores the record under the window's property; a block already there is freed first.
void AttachEditInstance(HWND hwnd, EditInstance* edit);

// The record of a window, or null.
EditInstance* GetEditInstance(HWND hwnd);

// Removes the property and its block; the record itself is not freed.
void DetachEditInstance(HWND hwnd);

// As ZTE_UtilSetFormatRect, with the record at hand.
void UpdateFormatRect(const EditInstance& edit);

// Keeps the text off a spin, whether the control was created with it or got it later; after the edit control underneath
// has laid its formatting rectangle anew.
void KeepTextOffSpin(const EditInstance& edit);

// The spin's width for a height, not rounded up to even: 2h/3 + 2, at least 7, at most the scroll-bar width + 2.
int16_t SpinWidthForHeight(int16_t height);

}  // namespace zte
