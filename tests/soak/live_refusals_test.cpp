// The system refuses what a control is tied to its window with: the window is a plain edit then, and nothing is lost.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "tests/soak/live_control.h"
#include "tests/support/live/form.h"
#include "tests/support/live/import_patch.h"

namespace soak {
namespace {

BOOL WINAPI RefuseProperty(HWND, const char*, HANDLE)
{
    return FALSE;
}

HGLOBAL WINAPI RefuseBlock(UINT, SIZE_T)
{
    return nullptr;
}

int propertiesToCome = 0;

BOOL WINAPI RefuseLaterProperty(HWND hwnd, const char* name, HANDLE value)
{
    return propertiesToCome-- > 0 ? SetPropA(hwnd, name, value) : FALSE;
}

struct RefusalRow {
    const char* dll;
    const char* function;
    void* refusing;
};
const RefusalRow kRefusals[] = {
    {"user32.dll",   "SetPropA",    reinterpret_cast<void*>(RefuseProperty)},
    {"kernel32.dll", "GlobalAlloc", reinterpret_cast<void*>(RefuseBlock)   },
};

zttest::Config DateWithSpin()
{
    zttest::Config config;
    config.mask = "MM/DD/YY";
    config.type = DT_DATE;
    config.data = "1995-07-04";
    config.options = ZTEO_SPIN;
    config.range = "1990-01-01~2010-12-31";
    config.codes = "Christmas\t1999-12-25";
    return config;
}

TEST(UntiedWindow, IsAPlainEdit)
{
    const zttest::Form form;
    for (const RefusalRow& row : kRefusals) {
        for (const Way way : {Way::ByClass, Way::ByInit, Way::BySubclassing, Way::ByInitTwice}) {
            SCOPED_TRACE(std::string(row.function) + " way " + std::to_string(static_cast<int>(way)));
            const zttest::ImportPatch refusal(row.dll, row.function, row.refusing);
            const SharedHeap heap = SharedHeapCreate();
            LiveControl control;
            control.Create(form.hwnd(), heap, DateWithSpin(), way, false);
            ASSERT_TRUE(IsWindow(control.hwnd()));
            EXPECT_EQ(zttest::TextOf(control.hwnd()), "");
            EXPECT_EQ(GetWindow(control.hwnd(), GW_CHILD), nullptr) << "it has a spin";
            Act typing;
            typing.deed = Deed::Type;
            typing.text = "ab";
            control.Perform(typing);
            EXPECT_EQ(zttest::TextOf(control.hwnd()), "ab");
            EXPECT_EQ(SharedHeapBlockCount(heap), 0u);
            control.Destroy();
            SharedHeapDestroy(heap);
        }
    }
}

// The control's own property is granted, its spin's is not.
TEST(UntiedSpin, IsNone)
{
    const zttest::Form form;
    const zttest::ImportPatch refusal("user32.dll", "SetPropA", reinterpret_cast<void*>(RefuseLaterProperty));
    propertiesToCome = 1;
    const SharedHeap heap = SharedHeapCreate();
    LiveControl control;
    control.Create(form.hwnd(), heap, DateWithSpin(), Way::ByClass, false);
    EXPECT_EQ(zttest::TextOf(control.hwnd()), "07/04/95");
    EXPECT_EQ(GetWindow(control.hwnd(), GW_CHILD), nullptr) << "it has a spin that knows no control";
    propertiesToCome = 1;
    ZTE_CreateSpin(control.hwnd());
    EXPECT_NE(GetWindow(control.hwnd(), GW_CHILD), nullptr);
    control.Destroy();
    SharedHeapDestroy(heap);
}

}  // namespace
}  // namespace soak
