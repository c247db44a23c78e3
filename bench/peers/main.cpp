// The engine and ICU beside others of their kind; run by ./bench.sh --peers.
//     peers CASES       one line a round (measure.h)
//     peers --version   of the compiler and of ICU
#include <unicode/uversion.h>

#include <cstdio>
#include <cstring>

#include "bench/peers/peers.h"

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    if (std::strcmp(argv[1], "--version") == 0) {
        std::printf("g++ %s, ICU %s\n", __VERSION__, U_ICU_VERSION);
        return 0;
    }
    for (const peers::Case& row : peers::ReadCases(argv[1])) {
        peers::MeasureEngine(row);
        peers::MeasureIcu(row);
    }
    return 0;
}
