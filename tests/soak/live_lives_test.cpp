// Windows are made, used and destroyed, over and over: what the system lends comes back.
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>

#include "tests/soak/live_control.h"
#include "tests/soak/live_gate.h"
#include "tests/soak/table_row.h"
#include "tests/support/clipboard.h"
#include "tests/support/live/beeps.h"
#include "tests/support/live/form.h"
#include "tests/support/live/resource_counts.h"

namespace soak {
namespace {

constexpr int kActs = 12;
constexpr int kLives = 100;
constexpr int kMeasured = 2000;  // so many lives are enough to see the process grow

struct Counts {
    explicit Counts(const Gate& gate) : own(gate.Blocks()) {}

    int64_t own;  // blocks that the libraries have taken
    int gdi = zttest::GdiObjects();
    int windows = zttest::Windows();
    int blocks = zttest::MemoryBlocks();
    int atoms = zttest::NamedAtoms();
    int handles = zttest::ProcessHandles();
    int heaps = static_cast<int>(GetProcessHeaps(0, nullptr));
    int64_t bytes = static_cast<int64_t>(zttest::PrivateBytes());
};

struct Outcome {
    std::string complaint;
    Counts before;
    Counts after;
};

class Windows : public testing::Test {
protected:
    // Leads the lives of the numbers from first on; the first complaint.
    std::string Lead(int first, int count, bool asPlainEdits)
    {
        Life life;
        std::string complaint;
        for (int number = first; number < first + count && complaint.empty(); ++number) {
            Throw(life, static_cast<uint64_t>(number), kActs);
            const auto way = static_cast<Way>(number % static_cast<int>(Way::Count));
            complaint = LeadInWindow(form_.hwnd(), life, asPlainEdits ? Way::AsPlainEdit : way, number % 3 != 0);
            zttest::DrainMessages();
        }
        form_.Forget();
        zttest::CopyToClipboard("");  // whose text is a block of the heap
        return complaint;
    }

    // A tenth of the lives comes before the first count: the system fills its caches.
    Outcome LeadAll(const char* name, int lives, bool asPlainEdits)
    {
        const int settling = std::max(lives / 10, 50);
        const Stopwatch watch;
        std::string complaint = Lead(0, settling, asPlainEdits);
        const Counts before(gate_);
        if (complaint.empty())
            complaint = Lead(settling, lives - settling, asPlainEdits);
        const Counts after(gate_);
        PrintRow(name, lives, watch,
                 {
                     {"GDI objects",    before.gdi,          after.gdi         },
                     {"windows",        before.windows,      after.windows     },
                     {"library blocks", before.own,          after.own         },
                     {"process blocks", before.blocks,       after.blocks      },
                     {"heaps",          before.heaps,        after.heaps       },
                     {"atoms",          before.atoms,        after.atoms       },
                     {"handles",        before.handles,      after.handles     },
                     {"private KiB",    before.bytes / 1024, after.bytes / 1024}
        });
        return {complaint, before, after};
    }

    const zttest::BeepCounter quiet_;
    const Gate gate_;
    zttest::Form form_{true};
};

// The count is worth something only if it sees what is taken.
TEST(GateBeforeWindows, SeesTheBlocksTaken)
{
    const Gate gate;
    const zttest::Form form;
    const SharedHeap heap = SharedHeapCreate();
    zttest::Config config;
    config.mask = "MM/DD/YY";
    config.type = DT_DATE;
    const int64_t before = gate.Blocks();
    LiveControl control;
    control.Create(form.hwnd(), heap, config, Way::ByClass, false);
    EXPECT_EQ(gate.Blocks(), before + 1);  // what its property holds
    control.Destroy();
    EXPECT_EQ(gate.Blocks(), before);
    SharedHeapDestroy(heap);
}

// What a modern control remembers is the runtime's, not the heap's.
TEST(ModernControl, GivesBackWhatItRemembersAlsoWhereItsHeapEndsFirst)
{
    const Gate gate;
    const zttest::Form form;
    zttest::Config config;
    config.mask = "MM/DD/YY";
    config.type = DT_DATE;
    config.options = ZTEO_MODERN;
    const int64_t before = gate.Blocks();
    for (const bool heapFirst : {false, true}) {
        const SharedHeap heap = SharedHeapCreate();
        LiveControl control;
        control.Create(form.hwnd(), heap, config, Way::ByClass, false);
        EXPECT_GT(gate.Blocks(), before + 1);
        if (!heapFirst)
            control.Destroy();
        SharedHeapDestroy(heap);
        if (heapFirst)
            control.Destroy();
        EXPECT_EQ(gate.Blocks(), before) << heapFirst;
    }
}

TEST_F(Windows, GiveBackWhatTheyWereLent)
{
    const int lives = NumberOf("ZT_SOAK_LIVES", kLives);
    const auto [complaint, before, after] = LeadAll("windows", lives, false);
    ASSERT_EQ(complaint, "");
    EXPECT_EQ(after.own, before.own);
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_EQ(after.heaps, before.heaps);
    EXPECT_EQ(after.atoms, before.atoms);
    const int few = 10 + lives / 1000;  // what the system keeps for itself
    EXPECT_LE(after.gdi, before.gdi + few);
    EXPECT_LE(after.handles, before.handles + few);
    if (lives < kMeasured) {
        EXPECT_LE(after.blocks, before.blocks + lives / 4);
        return;
    }
    // The system's edit control leaves blocks and memory behind as well.
    constexpr int kOfLives = 5;
    const Outcome plain = LeadAll("plain edits, to compare", lives / kOfLives, true);
    const int plainBlocks = std::max(0, plain.after.blocks - plain.before.blocks);
    const int64_t plainBytes = std::max<int64_t>(0, plain.after.bytes - plain.before.bytes);
    EXPECT_LE(after.blocks - before.blocks, few + kOfLives * plainBlocks);
    EXPECT_LE(after.bytes - before.bytes, 1024 * 1024 + kOfLives * plainBytes);
}

}  // namespace
}  // namespace soak
