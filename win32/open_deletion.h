// Whether a control of this thread stands between a deleting key's way down and what belongs to it: its character, its way up. Asked
// before the record is looked up, so that the keys that type cost no look-up but that of their character.
#pragma once

#include "engine/record.h"

namespace zte {

// True also where it is not known for sure.
bool DeletionIsOpen();

// After a key message to a control; and when the control goes.
void NoteDeletion(const EditInstance& edit);
void ForgetDeletion(const EditInstance& edit);

}  // namespace zte
