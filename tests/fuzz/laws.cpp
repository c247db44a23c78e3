// What the targets demand of the engine.
#include "tests/fuzz/laws.h"

#include <cstdio>
#include <cstdlib>

namespace zttest {
namespace {

uint64_t stepsDone = 0;

}  // namespace

void CountStep(uint64_t steps)
{
    stepsDone += steps;
}

uint64_t StepsDone()
{
    return stepsDone;
}

void BreakLaw(const char* law, const zte::Text& seen, const zte::Text& expected)
{
    std::fprintf(stderr, "BROKEN: %s\n    seen     \"%s\"\n    expected \"%s\"\n", law, seen.c_str(), expected.c_str());
    std::abort();
}

}  // namespace zttest
