// A control that is told from a plain edit by nothing, but for the keys of a spin.
#include "engine/edit/plain_edit.h"

#include "engine/edit/key_down.h"

namespace zte {

Reply OnPlainKeyDown(EditInstance& edit, uint32_t key)
{
    return HandleSpinKey(edit, static_cast<int32_t>(key)) ? Keep() : kPassOn;
}

Reply OnPlainChar(EditInstance& edit, uint32_t typed)
{
    if (IsTyped(typed))
        SetFlag(edit, SPUN, false);
    return kPassOn;
}

}  // namespace zte
