// A line of the table that soak.sh prints.
#pragma once

#include <cstdint>
#include <ctime>
#include <initializer_list>

namespace soak {

// Seconds of processor time since it was made.
class Stopwatch {
public:
    double Seconds() const { return static_cast<double>(std::clock() - start_) / CLOCKS_PER_SEC; }

private:
    std::clock_t start_ = std::clock();
};

struct BeforeAndAfter {
    const char* what;
    int64_t before;
    int64_t after;
};

// "soak| name| cycles| seconds| what before after| ..."
void PrintRow(const char* name, int64_t cycles, const Stopwatch& watch, std::initializer_list<BeforeAndAfter> counts);

}  // namespace soak
