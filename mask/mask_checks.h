// Whether a mask is acceptable for a data type, and the masks that stand in for those that are not.
#pragma once

#include "core/edit_instance.h"

namespace zte {

// True when the mask is acceptable. The checks of dates and times write the positions of the fields into the record on the
// way, also for a mask that is then rejected; those of times and date-times set AMPM.
bool CheckMask(EditInstance& edit, const char* mask, int32_t dataType);

bool CheckStringMask(const char* mask);
bool CheckNumberMask(const char* mask);
bool CheckDateMask(EditInstance& edit, const char* mask);
bool CheckTimeMask(EditInstance& edit, const char* mask);
bool CheckDateTimeMask(EditInstance& edit, const char* mask);

// Null when the mask is acceptable for the type, otherwise a heap copy of the type's default mask. An empty mask is not
// acceptable for any type that has a default; a type that has none takes any mask.
char* CheckMaskForType(EditInstance& edit, const char* mask, int32_t dataType);

}  // namespace zte
