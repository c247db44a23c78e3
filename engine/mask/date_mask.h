// Checks of date, time and date-time masks.
#pragma once

#include "engine/mask/mask_positions.h"
#include "engine/mask/mask_verdict.h"
#include "engine/text/text.h"

namespace zte {

// Where the fields of a mask stand in the display, as far as the check of the mask counts it.
struct FieldLayout {
    int16_t yearDigits;
    int16_t ampmPos;
    int16_t monthPos;
    int16_t dayPos;
    int16_t minutePos;
    int16_t secondPos;
    int16_t hourPos;
    int16_t fractionPos;
    int16_t fractionLen;
    bool hasAmPm;
};

// Whether a mask is acceptable for DT_DATE, DT_TIME or DT_DATETIME. What is seen of its fields is written into layout, also
// when the mask is then rejected.
MaskVerdict CheckDateOrTimeMask(const Text& mask, int32_t dataType, FieldLayout& layout,
                                MaskOrigin origin = MaskOrigin::Given);

}  // namespace zte
