// Why a window was not configured, or not as it was asked to be.
#pragma once

#include <windows.h>

#include "engine/record.h"
#include "ztedit.h"

namespace zte {

// The ZTP_ value of a mask that was set: a mask that was given and does not fit, or a type that does not exist.
int32_t ProblemOfMask(const EditInstance& edit, const char* mask, bool asGiven);

// What keeps a window from being configured; ZTP_NONE: nothing.
int32_t ObstacleOf(HWND hwnd, const EditInitParams* params);

// The ZTP_ value of a heap that is to hold a control.
int32_t ObstacleOfHeap(SharedHeap heap);

// Keeps the ZTP_ value for ZTE_GetLastProblem: with the control where the window is one, else with the window itself. A window of the
// library's that nothing was noted of lacks its parameters.
void NoteProblem(HWND hwnd, int32_t problem);
int32_t LastProblem(HWND hwnd);

}  // namespace zte
