// Keeping account of whose change a change of the text is.
#pragma once

#include "engine/record.h"

namespace zte {

// Does something on the user's behalf. Setting a text marks it as the program's own; what the user has changed, now or before,
// stays marked as modified.
template <typename Work>
void AsUserChange(const EditInstance& edit, Work&& work)
{
    const Text before = edit.field->ReadText();
    const bool wasModified = edit.field->IsModified();
    work();
    if (wasModified || edit.field->ReadText() != before)
        edit.field->SetModified();
}

}  // namespace zte
