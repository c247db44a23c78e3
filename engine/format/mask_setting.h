// Installs a mask in a control and shows the type's empty value under it.
#pragma once

#include "engine/mask/mask_verdict.h"
#include "engine/record.h"

namespace zte {

// Installs a mask, or the type's default in the place of one that does not fit it, and shows nothing yet: the text is still that of
// the mask before. True when the mask is the one given. settings: under which it is checked, and keywords expand.
bool ChangeMask(EditInstance& edit, const Char* mask, int32_t dataType, const Settings& settings);

// What ChangeMask would say of a mask, without a control; that there is none is no fault in strings. The offset of a mask that fits
// is -1.
MaskVerdict JudgeMask(const Char* mask, int32_t dataType, const Settings& settings);

// mask: null counts as empty. 1 when it was installed, 0 when the type's default stands in.
int32_t SetMask(EditInstance& edit, const Char* mask, int32_t dataType);

}  // namespace zte
