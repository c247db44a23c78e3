// The month abbreviations of the settings, and how typing finds one.
#include "engine/values/month_names.h"

namespace zte {

namespace {

Text Folded(const Settings& settings, Text text)
{
    for (Char& c : text)
        c = settings.letters->upper(c);
    return text;
}

}  // namespace

Text MonthName(const Settings& settings, int32_t month)
{
    return month < 0 || month >= kMonths ? Text() : Text(settings.monthNames[month]);
}

int32_t MonthFromName(const Settings& settings, const Text& text)
{
    const Text folded = Folded(settings, text);
    for (int32_t month = 0; month < kMonths; ++month)
        if (Folded(settings, settings.monthNames[month]) == folded)
            return month;
    return -1;
}

int32_t MonthByPrefix(const Settings& settings, const Text& start, int32_t first)
{
    const Text folded = Folded(settings, start);
    for (int32_t month = first; month < kMonths; ++month)
        if (BeginsWith(settings.monthNames[month], folded.c_str()))
            return month;
    return -1;
}

}  // namespace zte
