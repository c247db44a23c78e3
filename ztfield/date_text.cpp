// Dates and times as texts, whole.
#include "ztfield/date_text.h"

#include "engine/values/date_time.h"

namespace zte {

namespace {

struct Part {
    int32_t number;
    int32_t digits;
    char before;  // NUL: nothing
};

template <size_t count>
void Append(Text& text, const Part (&parts)[count])
{
    for (const Part& part : parts) {
        if (part.before)
            text += static_cast<Char>(part.before);
        AppendNumber(text, static_cast<uint32_t>(part.number), part.digits);
    }
}

}  // namespace

Text DateTimeText(const DateTimeValue& value)
{
    const Part date[] = {
        {value.year + kFirstYear, 4, '\0'},
        {value.month + 1,         2, '-' },
        {value.day,               2, '-' }
    };
    const auto microseconds = static_cast<int32_t>(value.microsecond);
    const Part time[] = {
        {value.hour,   2,            '\0'},
        {value.minute, 2,            ':' },
        {value.second, 2,            ':' },
        {microseconds, kMicroDigits, ':' }
    };
    Text text;
    if (HasDate(value))
        Append(text, date);
    if (HasDate(value) && HasTime(value))
        text += ' ';
    if (HasTime(value))
        Append(text, time);
    return text;
}

}  // namespace zte
