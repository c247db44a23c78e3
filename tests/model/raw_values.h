// The model's values and settings as the library takes them, for subjects of both kinds.
#ifndef TESTS_MODEL_RAW_VALUES_H
#define TESTS_MODEL_RAW_VALUES_H

#include "subject.h"
#include "ztvalues.h"

namespace model {

inline DateTimeValue Raw(const Stamp& stamp)
{
    DateTimeValue raw = {};
    raw.microsecond = static_cast<uint32_t>(stamp.microsecond);
    raw.year = static_cast<int16_t>(stamp.year);
    raw.month = static_cast<int8_t>(stamp.month);
    raw.day = static_cast<int8_t>(stamp.day);
    raw.hour = static_cast<int8_t>(stamp.hour);
    raw.minute = static_cast<int8_t>(stamp.minute);
    raw.second = static_cast<int8_t>(stamp.second);
    return raw;
}

inline Stamp StampOf(const DateTimeValue& raw)
{
    Stamp stamp;
    stamp.microsecond = static_cast<int>(raw.microsecond);
    stamp.year = raw.year;
    stamp.month = raw.month;
    stamp.day = raw.day;
    stamp.hour = static_cast<signed char>(raw.hour);
    stamp.minute = raw.minute;
    stamp.second = raw.second;
    return stamp;
}

inline uint32_t OptionsOf(const Config& config)
{
    return (config.autoskip ? ZTEO_AUTOSKIP : 0u) | (config.increment != 0 ? ZTEO_SPIN : 0u) |
           (config.codePick ? ZTEO_CODE_PICK : 0u) | (config.codeDisplay ? ZTEO_CODE_DISPLAY : 0u);
}

}  // namespace model

#endif
