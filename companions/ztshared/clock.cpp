// The clock.
#include "engine/values/caller_value.h"
#include "engine/values/date_time.h"
#include "ztshared.h"

void WINAPI SharedDateTimeNow(DateTimeValue* value)
{
    if (!value)
        return;
    SYSTEMTIME now;
    GetLocalTime(&now);
    DateTimeValue read = zte::kEmptyDateTime;
    read.microsecond = now.wMilliseconds * 1000u;
    read.year = static_cast<int16_t>(now.wYear - zte::kFirstYear);
    read.month = static_cast<int8_t>(now.wMonth - 1);
    read.day = static_cast<int8_t>(now.wDay);
    read.hour = static_cast<int8_t>(now.wHour);
    read.minute = static_cast<int8_t>(now.wMinute);
    read.second = static_cast<int8_t>(now.wSecond);
    zte::WriteValue(value, read);
}
