// The canonical texts of dates and times, and the clock.
#include "engine/values/date_time.h"

#include "companions/ztshared/conventions.h"
#include "ztshared.h"

int32_t WINAPI SharedParseDateTime(DateTimeValue* value, const char* text, int32_t kind)
{
    return value && text && zte::ParseDateTime(*value, text, kind, shared::Conventions()) ? 0 : 1;
}

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
    *value = read;
}
