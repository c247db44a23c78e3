// One target as libFuzzer drives it. ZT_FUZZ_PLAY: the target's function.
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "tests/fuzz/laws.h"
#include "tests/fuzz/targets.h"

namespace {

void TellSteps()
{
    std::fprintf(stderr, "stat::steps: %" PRIu64 "\n", zttest::StepsDone());
    std::fprintf(stderr, "processor seconds: %.1f\n", static_cast<double>(std::clock()) / CLOCKS_PER_SEC);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    std::atexit(TellSteps);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    zttest::ZT_FUZZ_PLAY(data, size);
    return 0;
}
