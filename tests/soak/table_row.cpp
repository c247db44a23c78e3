// A line of the table that soak.sh prints.
#include "tests/soak/table_row.h"

#include <cstdio>

namespace soak {

void PrintRow(const char* name, int64_t cycles, const Stopwatch& watch, std::initializer_list<BeforeAndAfter> counts)
{
    std::printf("soak|%s|%lld|%.1f", name, static_cast<long long>(cycles), watch.Seconds());
    for (const BeforeAndAfter& count : counts)
        std::printf("|%s|%lld|%lld", count.what, static_cast<long long>(count.before),
                    static_cast<long long>(count.after));
    std::printf("\n");
    std::fflush(stdout);
}

}  // namespace soak
