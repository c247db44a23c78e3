// The acts of a modern control's user and of its program, as the messages bring them.
#pragma once

#include "engine/record.h"
#include "engine/reply.h"

namespace zte::modern {

Reply OnKeyDown(EditInstance& edit, uint32_t key, KeyData keyData);
Reply OnKeyUp(EditInstance& edit, uint32_t key);
Reply OnChar(EditInstance& edit, uint32_t typed, KeyData keyData);
Reply OnForeignChar(EditInstance& edit);

Reply Paste(EditInstance& edit);
Reply Cut(EditInstance& edit);
Reply Clear(EditInstance& edit);
Reply Undo(EditInstance& edit);
Reply Redo(EditInstance& edit);
Reply CanUndo(EditInstance& edit);
Reply EmptyUndo(EditInstance& edit);
Reply ReplaceSelection(EditInstance& edit, const Char* text, bool canUndo);

// steps: upwards, downwards where it is negative. repeated: the key or the button is still held.
void Step(EditInstance& edit, int32_t steps, bool repeated);
void StepOnce(EditInstance& edit, bool up, bool repeated);
Reply OnWheel(EditInstance& edit, int32_t notches);

bool AfterClick(EditInstance& edit);
Reply OnDoubleClick(EditInstance& edit, int32_t position);
void OnFocusLost(EditInstance& edit);

}  // namespace zte::modern
