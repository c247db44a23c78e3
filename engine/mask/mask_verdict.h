// Whether a mask fits its type, and where and why it does not.
#pragma once

#include <cstdint>

#include "ztvalues.h"

namespace zte {

struct MaskVerdict {
    int32_t reason = ZTM_FITS;  // a ZTM_ value
    int32_t offset = 0;         // in the mask, of what does not fit

    explicit operator bool() const { return reason == ZTM_FITS; }
};

}  // namespace zte
