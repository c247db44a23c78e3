#include "bench/windows/clock.h"

#include <windows.h>

#include <algorithm>

namespace bench {

double Now()
{
    LARGE_INTEGER frequency;
    LARGE_INTEGER ticks;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&ticks);
    return 1e6 * static_cast<double>(ticks.QuadPart) / static_cast<double>(frequency.QuadPart);
}

double Microseconds(const std::function<void()>& work)
{
    const double begin = Now();
    work();
    return Now() - begin;
}

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

}  // namespace bench
