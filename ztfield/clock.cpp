// The local time of the system; in a browser, which has no time zones for us to read, of the page.
#include "ztfield/clock.h"

#if !defined(__wasm__)
#include <ctime>
#endif

namespace zte {

#if defined(__wasm__)

// Fills year, month (from 0), day, hour, minute, second.
extern "C" __attribute__((import_module("env"), import_name("now"))) void ReadPageClock(int32_t parts[6]);

DateTimeValue LocalNow()
{
    int32_t parts[6] = {};
    ReadPageClock(parts);
    DateTimeValue now{};
    now.year = static_cast<int16_t>(parts[0] - 1900);
    now.month = static_cast<int8_t>(parts[1]);
    now.day = static_cast<int8_t>(parts[2]);
    now.hour = static_cast<int8_t>(parts[3]);
    now.minute = static_cast<int8_t>(parts[4]);
    now.second = static_cast<int8_t>(parts[5]);
    return now;
}

#else

DateTimeValue LocalNow()
{
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    localtime_r(&seconds, &local);
    DateTimeValue now{};
    now.year = static_cast<int16_t>(local.tm_year);
    now.month = static_cast<int8_t>(local.tm_mon);
    now.day = static_cast<int8_t>(local.tm_mday);
    now.hour = static_cast<int8_t>(local.tm_hour);
    now.minute = static_cast<int8_t>(local.tm_min);
    now.second = static_cast<int8_t>(local.tm_sec);
    return now;
}

#endif

}  // namespace zte
