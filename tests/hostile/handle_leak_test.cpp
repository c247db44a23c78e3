// What the system lends: as many graphics objects, windows and memory blocks after the work as before it.
#include <gtest/gtest.h>
#include <windows.h>

#include <memory>

#include "tests/support/edit_test.h"

namespace zttest {
namespace {

// One entry of the table in which the system keeps the graphics objects of all processes.
struct GdiEntry {
    ULONGLONG object;
    USHORT process;
    USHORT count;
    USHORT unique;
    BYTE type;  // 0 for a free entry
    BYTE flags;
    ULONGLONG user;
};

struct ProcessBasics {
    void* reserved;
    const char* environmentBlock;
    void* others[4];
};

// The process's environment block, in which the address of the table stands at a place that all versions share.
const char* EnvironmentBlock()
{
    using Query = LONG(WINAPI*)(HANDLE, int, void*, ULONG, ULONG*);
    const auto query = reinterpret_cast<Query>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("ntdll.dll"), "NtQueryInformationProcess")));
    ProcessBasics basics = {};
    query(GetCurrentProcess(), 0, &basics, sizeof basics, nullptr);
    return basics.environmentBlock;
}

// GetGuiResources counts nothing on some systems, so the objects are counted in the table itself.
int GdiObjects()
{
    constexpr int kEntries = 0x4000;
    constexpr size_t kTableOffset = sizeof(void*) == 8 ? 0xF8 : 0x94;
    const char* const block = EnvironmentBlock();
    const GdiEntry* table = *reinterpret_cast<const GdiEntry* const*>(block + kTableOffset);
    int count = 0;
    for (int i = 0; table && i < kEntries; ++i)
        count += table[i].type != 0;
    return count;
}

BOOL CALLBACK CountWindow(HWND, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK CountTree(HWND hwnd, LPARAM count)
{
    EnumChildWindows(hwnd, CountWindow, count);
    return CountWindow(hwnd, count);
}

// The windows of this thread, and all that is on them.
int Windows()
{
    int count = 0;
    EnumThreadWindows(GetCurrentThreadId(), CountTree, reinterpret_cast<LPARAM>(&count));
    return count;
}

int MemoryBlocks()
{
    const HANDLE heap = GetProcessHeap();
    PROCESS_HEAP_ENTRY entry = {};
    int count = 0;
    HeapLock(heap);
    while (HeapWalk(heap, &entry))
        count += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0;
    HeapUnlock(heap);
    return count;
}

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
