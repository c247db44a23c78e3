// Counts of what the system has lent.
#include "tests/support/live/resource_counts.h"

#include <windows.h>

#include <cstring>
#include <vector>

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

// One entry of the list of all handles.
struct HandleEntry {
    ULONG owner;
    BYTE type;
    BYTE flags;
    USHORT value;
    void* object;
    ULONG access;
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

}  // namespace

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

int NamedAtoms()
{
    constexpr UINT kFirst = 0xC000;
    constexpr UINT kLast = 0xFFFF;
    int count = 0;
    char name[256];
    for (UINT atom = kFirst; atom <= kLast; ++atom)
        count += GetClipboardFormatNameA(atom, name, sizeof name) > 0;
    return count;
}

// GetProcessHandleCount counts nothing on some systems; the list of all handles is walked there.
int ProcessHandles()
{
    DWORD count = 0;
    if (GetProcessHandleCount(GetCurrentProcess(), &count) && count != 0)
        return static_cast<int>(count);
    using Query = LONG(WINAPI*)(int, void*, ULONG, ULONG*);
    const auto query = reinterpret_cast<Query>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("ntdll.dll"), "NtQuerySystemInformation")));
    constexpr int kAllHandles = 16;
    std::vector<HandleEntry> list(0x4000);  // the first stands for the number of entries
    if (query(kAllHandles, list.data(), static_cast<ULONG>(list.size() * sizeof(HandleEntry)), nullptr) != 0)
        return -1;
    ULONG entries = 0;
    std::memcpy(&entries, list.data(), sizeof entries);
    const auto* entry =
        reinterpret_cast<const HandleEntry*>(reinterpret_cast<const char*>(list.data()) + sizeof(void*));
    for (ULONG i = 0; i < entries; ++i)
        count += entry[i].owner == GetCurrentProcessId();
    return static_cast<int>(count);
}

// Not by the process's counters, in which some systems leave it out.
size_t PrivateBytes()
{
    size_t bytes = 0;
    MEMORY_BASIC_INFORMATION pages = {};
    const char* address = nullptr;
    while (VirtualQuery(address, &pages, sizeof pages) != 0) {
        if (pages.State == MEM_COMMIT && pages.Type == MEM_PRIVATE)
            bytes += pages.RegionSize;
        address = static_cast<const char*>(pages.BaseAddress) + pages.RegionSize;
    }
    return bytes;
}

}  // namespace zttest
