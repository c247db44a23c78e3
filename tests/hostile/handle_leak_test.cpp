// What the system lends: as many graphics objects, windows and memory blocks after the work as before it.
#include <gtest/gtest.h>
#include <windows.h>

#include <memory>

#include "tests/support/live/resource_counts.h"
#include "tests/support/live/window_test.h"

namespace zttest {
namespace {

class Handles : public testing::Test {
protected:
    // One visible form for all lives: showing and hiding a window takes the desktop seconds.
    static void SetUpTestSuite()
    {
        form_ = std::make_unique<Form>(true);
        for (int life = 0; life < 3; ++life)  // the first lives fill caches of the system
            LiveOneLife();
    }
    static void TearDownTestSuite() { form_.reset(); }

    // A control of each kind, painted, resized, typed into, and destroyed.
    static void LiveOneLife()
    {
        for (const int32_t type : {DT_STRING, DT_NUMBER, DT_DATE, DT_TIME, DT_DATETIME, DT_DECIMAL}) {
            Config config;
            config.type = type;
            config.options = ZTEO_SPIN | ZTEO_AUTOSKIP;
            config.range = "1~9";
            config.increment = 1;
            const Control control(form_->hwnd(), 1, config);
            Paint(control.hwnd());
            SetWindowPos(control.hwnd(), nullptr, 0, 0, 150, 30, SWP_NOMOVE | SWP_NOZORDER);
            Paint(control.hwnd());
            Typist typist(control.hwnd());
            typist.Play("{Home}12{Back}{Del}{Up}");
        }
        DrainMessages();
    }
    static void Paint(HWND hwnd)
    {
        RedrawWindow(hwnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    }

    static constexpr int kLives = 50;
    static std::unique_ptr<Form> form_;
};

std::unique_ptr<Form> Handles::form_;

TEST_F(Handles, OfGraphicsAreSeenByTheCount)
{
    const int before = GdiObjects();
    const HPEN pen = CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    EXPECT_EQ(GdiObjects(), before + 1);
    DeleteObject(pen);
    EXPECT_EQ(GdiObjects(), before);
}

TEST_F(Handles, OfGraphicsAreGivenBack)
{
    const int before = GdiObjects();
    for (int life = 0; life < kLives; ++life)
        LiveOneLife();
    EXPECT_LE(GdiObjects(), before + kLives / 2);  // the system keeps a few of its own
}

TEST_F(Handles, OfWindowsAreGivenBack)
{
    const int before = Windows();
    for (int life = 0; life < kLives; ++life)
        LiveOneLife();
    EXPECT_EQ(Windows(), before);
}

TEST_F(Handles, OfMemoryAreGivenBack)
{
    const int before = MemoryBlocks();
    for (int life = 0; life < kLives; ++life)
        LiveOneLife();
    EXPECT_LT(MemoryBlocks(), before + kLives);  // a lost block a control would make six a life
}

TEST_F(Handles, OfMemoryAreSeenByTheCount)
{
    const int before = MemoryBlocks();
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, 100);
    EXPECT_GT(MemoryBlocks(), before);
    GlobalFree(block);
    EXPECT_EQ(MemoryBlocks(), before);
}

TEST_F(Handles, OfPropertiesAreGivenBack)
{
    Config config;
    config.type = DT_DATE;
    HWND hwnd = nullptr;
    {
        const Control control(form_->hwnd(), 1, config);
        hwnd = control.hwnd();
        ASSERT_NE(GetPropA(hwnd, "MAIN"), nullptr);
    }
    EXPECT_EQ(GetPropA(hwnd, "MAIN"), nullptr);
}

}  // namespace
}  // namespace zttest
