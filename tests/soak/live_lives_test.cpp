// Windows are made, used and destroyed, over and over: what the system lends comes back.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>

#include "tests/soak/live_control.h"
#include "tests/soak/table_row.h"
#include "tests/support/live/beeps.h"
#include "tests/support/live/form.h"
#include "tests/support/live/resource_counts.h"

namespace soak {
namespace {

constexpr int kActs = 12;
constexpr int kLives = 200;
constexpr int kMeasured = 2000;  // so many lives are enough to see the process grow

struct Counts {
    int gdi = zttest::GdiObjects();
    int windows = zttest::Windows();
    int blocks = zttest::MemoryBlocks();
    int atoms = zttest::NamedAtoms();
    int handles = zttest::ProcessHandles();
    int heaps = static_cast<int>(GetProcessHeaps(0, nullptr));
    int64_t bytes = static_cast<int64_t>(zttest::PrivateBytes());
};

std::string LeadAll(HWND parent, int first, int count)
{
    Life life;
    for (int number = first; number < first + count; ++number) {
        Throw(life, static_cast<uint64_t>(number), kActs);
        const auto way = static_cast<Way>(number % static_cast<int>(Way::Count));
        const std::string complaint = LeadInWindow(parent, life, way, number % 3 != 0);
        if (!complaint.empty())
            return "life " + std::to_string(number) + ": " + complaint;
        zttest::DrainMessages();
    }
    return "";
}

TEST(LivesInWindows, GiveBackWhatTheSystemLends)
{
    const int lives = NumberOf("ZT_SOAK_LIVES", kLives);
    const int settling = std::max(lives / 10, 50);
    const zttest::BeepCounter quiet;
    zttest::Form form(true);
    const Stopwatch watch;
    std::string complaint = LeadAll(form.hwnd(), 0, settling);
    ASSERT_EQ(complaint, "");
    form.Forget();
    const Counts before;
    complaint = LeadAll(form.hwnd(), settling, lives - settling);
    form.Forget();
    const Counts after;
    ASSERT_EQ(complaint, "");

    PrintRow("windows", lives, watch,
             {
                 {"GDI objects", before.gdi,          after.gdi         },
                 {"windows",     before.windows,      after.windows     },
                 {"heap blocks", before.blocks,       after.blocks      },
                 {"atoms",       before.atoms,        after.atoms       },
                 {"handles",     before.handles,      after.handles     },
                 {"heaps",       before.heaps,        after.heaps       },
                 {"private KiB", before.bytes / 1024, after.bytes / 1024}
    });
    // The system keeps a few objects of its own; one lost a life would make many more.
    const int few = std::max(10, (lives - settling) / 100);
    EXPECT_LE(after.gdi, before.gdi + few);
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_LE(after.blocks, before.blocks + few);
    EXPECT_EQ(after.atoms, before.atoms);
    EXPECT_LE(after.handles, before.handles + few);
    EXPECT_EQ(after.heaps, before.heaps);
    if (lives >= kMeasured) {
        EXPECT_LE(after.bytes, before.bytes + 1024 * 1024);
    }
}

}  // namespace
}  // namespace soak
