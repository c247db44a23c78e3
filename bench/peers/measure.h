// Rounds of an operation, timed and told in lines of
//     peer|case|operation|operations per second|what came out
// one a round, which table.mjs makes a table of. measure.mjs does the same.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdio>
#include <string>

namespace peers {

using Clock = std::chrono::steady_clock;

constexpr double kWarmUpSeconds = 0.3;
constexpr double kRoundSeconds = 0.06;
constexpr int kRounds = 7;
constexpr int kBurst = 64;  // operations between two looks at the clock

struct Timed {
    const char* peer;
    std::string name;  // of the case
    const char* operation;
    size_t count = 1;  // a call counts for so many operations: typing, one a key
};

// What a peer makes of wrong keys, in a line of the same kind.
inline void TellWrong(const char* peer, const std::string& name, const std::string& result)
{
    std::printf("%s|%s|wrong|0|%s\n", peer, name.c_str(), result.c_str());
}

template <typename Operation>
double RatePerSecond(double seconds, Operation operation)
{
    const auto start = Clock::now();
    double calls = 0;
    double elapsed = 0;
    while (elapsed < seconds) {
        for (int i = 0; i < kBurst; ++i)
            operation();
        calls += kBurst;
        elapsed = std::chrono::duration<double>(Clock::now() - start).count();
    }
    return calls / elapsed;
}

template <typename Operation>
void Measure(const Timed& timed, const std::string& result, Operation operation)
{
    RatePerSecond(kWarmUpSeconds, operation);
    for (int round = 0; round < kRounds; ++round) {
        const double rate = RatePerSecond(kRoundSeconds, operation) * static_cast<double>(timed.count);
        std::printf("%s|%s|%s|%.0f|%s\n", timed.peer, timed.name.c_str(), timed.operation, rate, result.c_str());
    }
}

}  // namespace peers
