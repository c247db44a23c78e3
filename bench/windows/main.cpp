// Measures what operations cost on live windows, beside plain edits and the system's own controls in the same process.
//
//   window_costs          the median time of each side of each operation, and its ratio to the library's, as a table
//   window_costs --count  plays each side a known number of times between marks that show in Wine's trace of its window server: what lies
//                         between two marks are the round trips (bench.sh counts them)
#include <windows.h>

#include <commctrl.h>

#include <cstdio>
#include <cstring>

#include "bench/windows/clock.h"
#include "bench/windows/form.h"
#include "bench/windows/operations.h"
#include "bench/windows/scale.h"

namespace bench {
namespace {

constexpr int kRounds = 61;
constexpr int kCounted = 5;  // bursts between two marks

void PlayBurst(const Side& side, int burst)
{
    for (int i = 0; i < burst; ++i)
        side.play(i);
}

// Microseconds of one play.
double TimeBurst(const Side& side, int burst)
{
    side.prepare();
    const double begin = Now();
    PlayBurst(side, burst);
    return (Now() - begin) / burst;
}

// The sides take turns, so that what slows the machine down for a while slows all of them.
void Time(const Operation& operation)
{
    std::vector<std::vector<double>> times(operation.sides.size());
    for (int round = 0; round <= kRounds; ++round)
        for (size_t i = 0; i < operation.sides.size(); ++i) {
            const double microseconds = TimeBurst(operation.sides[i], operation.burst);
            if (round > 0)  // the first loads what is loaded on first use
                times[i].push_back(microseconds);
        }
    const double own = Median(times[0]);
    for (size_t i = 0; i < times.size(); ++i) {
        const double median = Median(times[i]);
        std::printf("time|%s|%s|%.2f|%.2f\n", operation.name.c_str(), operation.sides[i].name.c_str(), median,
                    own / median);
    }
    std::fflush(stdout);
}

// Opening a mutex that does not exist is one request, with the name readable in it.
void Mark(const std::string& what)
{
    OpenMutexA(SYNCHRONIZE, FALSE, ("round-trips " + what).c_str());
}

void Count(const Operation& operation)
{
    for (const Side& side : operation.sides) {
        side.prepare();
        PlayBurst(side, operation.burst);
        for (int i = 0; i < kCounted; ++i) {
            side.prepare();
            Mark("begin|" + operation.name + '|' + side.name + '|' + std::to_string(operation.burst) + '|');
            PlayBurst(side, operation.burst);
            Mark("end");
        }
        if (!side.window)
            continue;
        char shown[64] = "";
        GetWindowTextA(static_cast<HWND>(side.window), shown, sizeof shown);
        std::printf("%s, %s: %s\n", operation.name.c_str(), side.name.c_str(), shown);
    }
}

int Run(bool counts)
{
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_DATE_CLASSES | ICC_UPDOWN_CLASS};
    InitCommonControlsEx(&classes);
    Form form;
    for (const Operation& operation : MakeOperations(form))
        counts ? Count(operation) : Time(operation);
    if (!counts) {
        MeasureForms();
        MeasureMixedForm();
        const HeapBytes bytes = MeasureHeap(form);
        std::printf("heap|%.0f|%.0f|%.2f\n", bytes.control, bytes.edit, bytes.control / bytes.edit);
    }
    return 0;
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv)
{
    return bench::Run(argc > 1 && std::strcmp(argv[1], "--count") == 0);
}
