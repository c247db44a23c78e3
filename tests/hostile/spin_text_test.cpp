// The texts of a spin set again and again. (Bad ones: tests/texts.)
#include <gtest/gtest.h>

#include "tests/support/live/window_test.h"

namespace zttest {
namespace {

TEST_F(WindowTest, SettingTheSpinAgainAndAgainGivesTheRangeBack)
{
    Config config;
    config.mask = "####";
    config.type = DT_NUMBER;
    Make(config);
    ZTE_SetSpin(Window(), 1, "1~2", nullptr, 0);
    const uint32_t once = SharedHeapBlockCount(control_->heap());
    for (int i = 0; i < 20; ++i)
        ZTE_SetSpin(Window(), 1, "1~2", nullptr, 0);
    EXPECT_EQ(SharedHeapBlockCount(control_->heap()), once);
    control_->AcceptHeap();
}

}  // namespace
}  // namespace zttest
