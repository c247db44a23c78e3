// Whether a mask is acceptable for a data type, and the masks that stand in for those that are not.
#pragma once

#include "engine/mask/date_mask.h"
#include "engine/text/text.h"
#include "engine/values/settings.h"

namespace zte {

// "~" must be followed by a character to escape, which is not "~" itself.
inline bool IsBadEscape(const Char* at)
{
    return at[1] == Char{} || at[1] == '~';
}

MaskVerdict CheckStringMask(const Text& mask);

// A type that has no default takes any mask. layout: see CheckDateOrTimeMask; left alone by the other types.
MaskVerdict CheckMask(const Text& mask, int32_t dataType, const Settings& settings, FieldLayout& layout);

// The mask that stands in for one that is refused; null for types without one. The default of strings is no mask.
const char* DefaultMask(int32_t dataType);

}  // namespace zte
