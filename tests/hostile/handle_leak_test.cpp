// What the system lends: as many graphics objects, windows and memory blocks after the work as before it.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>
#include <memory>

#include "tests/support/live/window_test.h"

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

struct ThreadBasics {
    LONG exitStatus;
    const char* environmentBlock;
    void* others[3];
    LONG priorities[2];
};

// The environment block of this thread.
const char* ThreadBlock()
{
    using Query = LONG(WINAPI*)(HANDLE, int, void*, ULONG, ULONG*);
    const auto query = reinterpret_cast<Query>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("ntdll.dll"), "NtQueryInformationThread")));
    ThreadBasics basics = {};
    query(GetCurrentThread(), 0, &basics, sizeof(ThreadBasics), nullptr);
    return basics.environmentBlock;
}

template <class Value>
Value At(const char* block, size_t offset)
{
    Value value;
    std::memcpy(&value, block + offset, sizeof value);
    return value;
}

const GdiEntry* TableOf64BitThread(const char* thread)
{
    const auto* process = reinterpret_cast<const char*>(static_cast<UINT_PTR>(At<ULONGLONG>(thread, 0x60)));
    return reinterpret_cast<const GdiEntry*>(static_cast<UINT_PTR>(At<ULONGLONG>(process, 0xF8)));
}

// The address of the table stands in the environment block of the process, at a place that has been the same in all
// versions. A 32-bit program on a 64-bit system has a 64-bit block beside its own, and the table stands in that one.
const GdiEntry* GdiTable()
{
    const char* const thread = ThreadBlock();
    if (sizeof(void*) == 8)
        return TableOf64BitThread(thread);
    if (const ULONG thread64 = At<ULONG>(thread, 0xF70))
        return TableOf64BitThread(reinterpret_cast<const char*>(static_cast<UINT_PTR>(thread64)));
    const auto* process = reinterpret_cast<const char*>(static_cast<UINT_PTR>(At<ULONG>(thread, 0x30)));
    return reinterpret_cast<const GdiEntry*>(static_cast<UINT_PTR>(At<ULONG>(process, 0x94)));
}

// GetGuiResources counts nothing on some systems, so the objects are counted in the table itself.
int GdiObjects()
{
    constexpr int kEntries = 0x4000;
    const GdiEntry* table = GdiTable();
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
