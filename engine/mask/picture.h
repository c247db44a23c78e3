// Turns the short-date picture and the time separator of the regional settings into masks.
#pragma once

#include "engine/values/settings.h"

namespace zte {

enum class PictureStatus {
    Ok,
    DoesNotFit,
    Unclosed,  // ended inside a quote or behind a backslash
    LongMonth,
    LongDay,
    BadYear,
    LongHour,
    LongSecond,
    LongMinute,
    BadAmPm,
    LongFraction,
};

struct Picture {
    PictureStatus status;
    Text mask;  // what was written before the picture failed, if it did
};

// size: room for the mask and a terminator.
Picture PictureToMask(const Text& picture, int32_t size);
Picture DatePictureToMask(const Settings& settings, int32_t size);
Picture TimePictureToMask(const Settings& settings, int32_t size);

}  // namespace zte
