// A line of the table that soak.sh prints.
#pragma once

#include <chrono>
#include <cstdint>
#include <initializer_list>

namespace soak {

// Seconds since it was made.
class Stopwatch {
public:
    double Seconds() const { return std::chrono::duration<double>(Clock::now() - start_).count(); }

private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point start_ = Clock::now();
};

struct BeforeAndAfter {
    const char* what;
    int64_t before;
    int64_t after;
};

// "soak| name| cycles| seconds| what before after| ..."
void PrintRow(const char* name, int64_t cycles, const Stopwatch& watch, std::initializer_list<BeforeAndAfter> counts);

}  // namespace soak
