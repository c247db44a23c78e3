// The month abbreviations of the settings, and how typing finds one.
#include "engine/values/month_names.h"

#include <algorithm>
#include <iterator>

namespace zte {

namespace {

// The first month, from one on in calendar order, that is the one looked for; -1 when none is.
template <typename Wanted>
int32_t FindMonth(const Settings& settings, int32_t first, Wanted isWanted)
{
    const auto* const end = std::end(settings.monthNames);
    const auto* const found = std::find_if(settings.monthNames + first, end, isWanted);
    return found == end ? -1 : static_cast<int32_t>(found - settings.monthNames);
}

}  // namespace

Text MonthName(const Settings& settings, int32_t month)
{
    return month < 0 || month >= kMonths ? Text() : Text(settings.monthNames[month]);
}

int32_t MonthFromName(const Settings& settings, const Text& text)
{
    const Text folded = Folded(settings, text);
    return FindMonth(settings, 0, [&](const Char* name) { return Folded(settings, name) == folded; });
}

int32_t MonthByPrefix(const Settings& settings, const Text& start, int32_t first)
{
    const Text folded = Folded(settings, start);
    return FindMonth(settings, first, [&](const Char* name) { return BeginsWith(name, folded.c_str()); });
}

}  // namespace zte
