// A control that is told from a plain edit by nothing, but for the keys of a spin.
#pragma once

#include "engine/edit/keyboard.h"

namespace zte {

// Without a mask, and its values not shown through a code table. All that a user does to such a control (keys, characters, the
// mouse, pasting) goes to the field untouched: whoever routes messages asks here first.
inline bool IsPlainEdit(const EditInstance& edit)
{
    return !HasMask(edit) && !Has(edit, CODE_SPIN);
}

// What the library takes part in all the same: Up and Down where there is a spin, and a typed character ends what it has spun.
Reply OnPlainKeyDown(EditInstance& edit, uint32_t key);
Reply OnPlainChar(EditInstance& edit, uint32_t typed);

}  // namespace zte
