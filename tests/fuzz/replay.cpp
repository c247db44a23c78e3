// Plays the corpus once, without a fuzzer. Usage: test_fuzz CORPUS_FOLDER [TARGET]
#include <cinttypes>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "tests/fuzz/laws.h"
#include "tests/fuzz/targets.h"

namespace {

namespace files = std::filesystem;

std::vector<uint8_t> ReadFile(const files::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

int PlayFolder(const zttest::FuzzTarget& target, const files::path& folder)
{
    int played = 0;
    for (const files::directory_entry& entry : files::directory_iterator(folder)) {
        const std::vector<uint8_t> bytes = ReadFile(entry.path());
        std::printf("%s\n", entry.path().c_str());  // before: a broken law ends the process
        std::fflush(stdout);
        target.play(bytes.data(), bytes.size());
        ++played;
    }
    return played;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: test_fuzz CORPUS_FOLDER [TARGET]\n");
        return 2;
    }
    for (const zttest::FuzzTarget& target : zttest::kFuzzTargets) {
        if (argc > 2 && std::strcmp(argv[2], target.name) != 0)
            continue;
        const int played = PlayFolder(target, files::path(argv[1]) / target.name);
        std::printf("%s: %d inputs\n", target.name, played);
        if (played == 0) {
            std::fprintf(stderr, "FAILED: no corpus for %s\n", target.name);
            return 1;
        }
    }
    std::printf("%" PRIu64 " steps\n", zttest::StepsDone());
    return 0;
}
