// The month abbreviations, string resources 2000 to 2011 of the library; loaded each time, so that nothing is kept.
#include "mask/month_names.h"

#include <cstring>

#include "core/base_edit.h"
#include "shared/ascii.h"

namespace zte {

namespace {

constexpr int32_t kMonths = 12;
constexpr int32_t kNameSize = 255;

std::string FindName(int32_t first, const std::string& start)
{
    for (int32_t month = first; month < kMonths; ++month) {
        std::string name = MonthName(month);
        if (name.compare(0, start.size(), start) == 0)
            return name;
    }
    return {};
}

}  // namespace

std::string MonthName(int32_t month)
{
    if (month < 0 || month >= kMonths)
        return {};
    char name[kNameSize] = "";
    LoadStringA(libraryInstance, static_cast<UINT>(kFirstMonthNameId + month), name, kNameSize);
    return name;
}

int32_t MonthFromName(const char* text)
{
    for (int32_t month = 0; month < kMonths; ++month)
        if (lstrcmpiA(MonthName(month).c_str(), text) == 0)
            return month;
    return -1;
}

std::string MonthNameByPrefix(const std::string& prefix)
{
    std::string folded = prefix;
    for (char& c : folded)
        c = ToUpper(c);
    return FindName(0, folded);
}

std::string NextMonthNameMatch(const std::string& name, int32_t n)
{
    const int32_t month = MonthFromName(name.c_str());
    return month < 0 ? std::string() : FindName(month + 1, name.substr(0, static_cast<size_t>(n) + 1));
}

}  // namespace zte
