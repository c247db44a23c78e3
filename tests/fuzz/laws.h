// What the targets demand of the engine. A broken law ends the process, so that a fuzzer sees it as a crash.
#pragma once

#include <cstdint>

#include "engine/text/text.h"

namespace zttest {

// Counts what was done: a key, a call, a check of one value.
void CountStep(uint64_t steps = 1);
uint64_t StepsDone();

// Ends the process, and says which law was broken and by what.
[[noreturn]] void BreakLaw(const char* law, const zte::Text& seen, const zte::Text& expected);

inline void Demand(bool holds, const char* law, const zte::Text& seen = {}, const zte::Text& expected = {})
{
    if (!holds)
        BreakLaw(law, seen, expected);
}

inline void DemandEqual(const zte::Text& seen, const zte::Text& expected, const char* law)
{
    if (seen != expected)
        BreakLaw(law, seen, expected);
}

}  // namespace zttest
