// Values into a modern control and out of it, its state, and the way from classic editing and back.
#pragma once

#include "engine/format/display.h"
#include "engine/mask/mask_verdict.h"
#include "engine/record.h"

namespace zte::modern {

int32_t SetMask(EditInstance& edit, const Char* mask, int32_t dataType);
// What SetMask would say of a mask, without a control.
MaskVerdict JudgeMask(const Char* mask, int32_t dataType, const Settings& settings);
int32_t SetData(EditInstance& edit, const void* data);
int32_t SetDataString(EditInstance& edit, const Char* text);
void* GetData(const EditInstance& edit);
Display Format(EditInstance& edit, const void* data);
void SetSpin(EditInstance& edit, uint32_t increment, const Char* range, const Char* codeTable, uint32_t style);

// See engine/editing.h. Of controls of both kinds.
int32_t TrySetDataString(EditInstance& edit, const Char* text);
int32_t StateOf(const EditInstance& edit);
bool CanonicalText(const EditInstance& edit, Text& text);

// Takes a control over from classic editing with what it shows; gives it back.
void TakeOver(EditInstance& edit);
void GiveBack(EditInstance& edit);

// Ends the editor with its control, wherever it stands.
void DropEditor(EditInstance& edit);

}  // namespace zte::modern
