// The canonical texts of dates and times.
#include "engine/values/date_time.h"

#include "companions/ztshared/conventions.h"
#include "engine/values/caller_value.h"
#include "ztshared.h"

int32_t WINAPI SharedParseDateTime(DateTimeValue* value, const char* text, int32_t kind)
{
    DateTimeValue read;
    if (!value || !text || !zte::ParseDateTime(read, text, kind, shared::Conventions()))
        return 1;
    zte::WriteValue(value, read);
    return 0;
}
