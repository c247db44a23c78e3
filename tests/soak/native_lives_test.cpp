// Controls in memory are made, used and destroyed, over and over: what one of them took comes back.
#include <gtest/gtest.h>
#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <memory>

#include "tests/soak/native_allocations.h"
#include "tests/soak/native_player.h"
#include "tests/soak/table_row.h"

namespace soak {
namespace {

constexpr int kActs = 24;
constexpr int kLivesASetting = 400;
constexpr int kSettings = 5;
constexpr int kLives = 6000;
constexpr int kMeasured = 200'000;  // so many lives are enough to see the process grow
constexpr int kCaches = 64 * 1024;  // free blocks that the system's heap keeps at hand and counts as in use

int64_t ResidentBytes()
{
    int64_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages >> pages;
    return pages * sysconf(_SC_PAGESIZE);
}

struct Measures {
    MemoryInUse own;
    int64_t ofSystem;
    int64_t resident;
};

Measures Measure()
{
    return {InUse(), static_cast<int64_t>(mallinfo2().uordblks), ResidentBytes()};
}

// Leads the lives of the numbers from first on; the first complaint.
std::string LeadAll(int first, int count)
{
    Life life;
    std::unique_ptr<zttest::Regional> setting;
    for (int number = first; number < first + count; ++number) {
        if (!setting || number % kLivesASetting == 0) {
            setting.reset();
            setting = std::make_unique<zttest::Regional>(RegionalSetOf(number / kLivesASetting));
        }
        Throw(life, static_cast<uint64_t>(number), kActs);
        const std::string complaint = Lead(life);
        if (!complaint.empty())
            return "life " + std::to_string(number) + ": " + complaint;
    }
    return "";
}

TEST(Lives, GiveBackAllMemory)
{
    const int lives = NumberOf("ZT_SOAK_LIVES", kLives);
    const int settling = std::max(lives / 10, kLivesASetting * kSettings);  // the system's caches, each setting once
    const Stopwatch watch;
    std::string complaint = LeadAll(0, settling);
    ASSERT_EQ(complaint, "");
    const Measures before = Measure();
    complaint = LeadAll(settling, lives - settling);
    const Measures after = Measure();
    ASSERT_EQ(complaint, "");

    PrintRow("engine in memory", lives, watch,
             {
                 {"blocks",       before.own.blocks,      after.own.blocks     },
                 {"bytes in use", before.ofSystem,        after.ofSystem       },
                 {"resident KiB", before.resident / 1024, after.resident / 1024}
    });
    EXPECT_EQ(after.own.blocks, before.own.blocks);
    EXPECT_EQ(after.own.bytes, before.own.bytes);
    if (lives >= kMeasured) {
        EXPECT_LE(after.ofSystem, before.ofSystem + kCaches);
        EXPECT_LE(after.resident, before.resident + 4 * kCaches);
    }
}

// The counts above are worth something only if they see what is lost.
TEST(Lives, AreSeenToLoseMemory)
{
    const Measures before = Measure();
    void* const lost = operator new(100);
    const Measures after = Measure();
    operator delete(lost);
    EXPECT_EQ(after.own.blocks, before.own.blocks + 1);
    EXPECT_GE(after.own.bytes, before.own.bytes + 100);
}

}  // namespace
}  // namespace soak
