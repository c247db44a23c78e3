// Handles of the system: as many after the work as before it.
#include <gtest/gtest.h>

#include "tests/support/edit_test.h"

namespace zttest {
namespace {

DWORD GdiObjects()
{
    return GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
}

DWORD UserObjects()
{
    return GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
}

// A form with one control of each kind, painted, resized, typed into, and destroyed.
void LiveOneLife()
{
    Form form(true);
    for (const int32_t type : {DT_STRING, DT_NUMBER, DT_DATE, DT_TIME, DT_DATETIME, DT_DECIMAL}) {
        Config config;
        config.type = type;
        config.options = ZTEO_SPIN | ZTEO_AUTOSKIP;
        config.range = "1~9";
        config.increment = 1;
        const Control control(form.hwnd(), 1, config);
        RedrawWindow(control.hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        SetWindowPos(control.hwnd(), nullptr, 0, 0, 150, 30, SWP_NOMOVE | SWP_NOZORDER);
        RedrawWindow(control.hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        Typist typist(control.hwnd());
        typist.Play("{Home}12{Back}{Del}{Up}");
    }
    DrainMessages();
}

class Handles : public testing::Test {
protected:
    // The first lives fill caches of the system.
    void SetUp() override
    {
        for (int i = 0; i < 3; ++i)
            LiveOneLife();
    }
    static constexpr int kLives = 20;
};

TEST_F(Handles, AreCounted)
{
    // Where the system does not count, the tests below would prove nothing.
    const DWORD before = UserObjects();
    const HWND window = CreateWindowExA(0, "static", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    const DWORD after = UserObjects();
    DestroyWindow(window);
    if (before == 0 && after == 0)
        GTEST_SKIP() << "the system does not count the handles of a process";
    EXPECT_GT(after, before);
}

TEST_F(Handles, OfGraphicsAreGivenBack)
{
    const DWORD before = GdiObjects();
    for (int i = 0; i < kLives; ++i)
        LiveOneLife();
    EXPECT_LE(GdiObjects(), before);
}

TEST_F(Handles, OfWindowsAreGivenBack)
{
    const DWORD before = UserObjects();
    for (int i = 0; i < kLives; ++i)
        LiveOneLife();
    EXPECT_LE(UserObjects(), before);
}

// Properties hold a block of global memory; it must go with the control.
TEST_F(Handles, OfMemoryAreGivenBack)
{
    const auto countBlocks = [] {
        HANDLE heap = GetProcessHeap();
        PROCESS_HEAP_ENTRY entry = {};
        int count = 0;
        HeapLock(heap);
        while (HeapWalk(heap, &entry))
            count += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
        HeapUnlock(heap);
        return count;
    };
    Form form;
    const auto liveHidden = [&form] {
        Config config;
        config.type = DT_DATE;
        const Control control(form.hwnd(), 1, config);
    };
    for (int i = 0; i < 20; ++i)
        liveHidden();
    const int before = countBlocks();
    for (int i = 0; i < 200; ++i)
        liveHidden();
    EXPECT_LT(countBlocks(), before + 100);  // a lost block a control would make 200
}

}  // namespace
}  // namespace zttest
