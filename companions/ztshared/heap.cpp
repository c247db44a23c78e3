// Private heaps that count their live blocks, know who watches them, and are known as long as they live. A host makes one per form
// and discards it whole.
#include <cstring>

#include "companions/memory/no_memory.h"
#include "ztshared.h"

// Lives in the heap it describes, so that destroying the heap leaves nothing behind.
struct SharedHeapData {
    HANDLE handle;
    uint32_t blocks;
    SharedHeapWatcher* watchers;
    SharedHeapData* nextAlive;
};

using shared::RaiseNoMemory;

namespace {

// All heaps that live: few, one a form. Threads have heaps of their own but share this list.
SRWLOCK aliveLock = SRWLOCK_INIT;
SharedHeapData* firstAlive = nullptr;

class AliveLock {
public:
    AliveLock() { AcquireSRWLockExclusive(&aliveLock); }
    AliveLock(const AliveLock&) = delete;
    AliveLock& operator=(const AliveLock&) = delete;
    ~AliveLock() { ReleaseSRWLockExclusive(&aliveLock); }
};

// Where the list refers to a heap; to its end when it does not.
SharedHeapData** FindAlive(SharedHeap heap)
{
    SharedHeapData** at = &firstAlive;
    while (*at && *at != heap)
        at = &(*at)->nextAlive;
    return at;
}

void EnterAlive(SharedHeap heap)
{
    const AliveLock lock;
    heap->nextAlive = firstAlive;
    firstAlive = heap;
}

// False for a heap that is not alive, or whose end has begun already.
bool LeaveAlive(SharedHeap heap)
{
    const AliveLock lock;
    SharedHeapData** at = FindAlive(heap);
    if (!*at)
        return false;
    *at = heap->nextAlive;
    return true;
}

// Each is out of the list before it hears of it: what it does may come back here.
void TellWatchers(SharedHeap heap)
{
    while (SharedHeapWatcher* watcher = heap->watchers) {
        SharedHeapUnwatch(heap, watcher);
        watcher->ending(watcher);
    }
}

}  // namespace

SharedHeap WINAPI SharedHeapCreate(void)
{
    const HANDLE handle = HeapCreate(0, 0, 0);
    void* record = handle ? HeapAlloc(handle, HEAP_ZERO_MEMORY, sizeof(SharedHeapData)) : nullptr;
    if (!record)
        RaiseNoMemory();
    const auto heap = static_cast<SharedHeap>(record);
    heap->handle = handle;
    EnterAlive(heap);
    return heap;
}

void WINAPI SharedHeapDestroy(SharedHeap heap)
{
    if (!LeaveAlive(heap))
        return;
    TellWatchers(heap);
    HeapDestroy(heap->handle);
}

int32_t WINAPI SharedHeapIsAlive(SharedHeap heap)
{
    const AliveLock lock;
    return heap && *FindAlive(heap) ? 1 : 0;
}

void WINAPI SharedHeapWatch(SharedHeap heap, SharedHeapWatcher* watcher)
{
    watcher->previous = nullptr;
    watcher->next = heap->watchers;
    if (watcher->next)
        watcher->next->previous = watcher;
    heap->watchers = watcher;
}

void WINAPI SharedHeapUnwatch(SharedHeap heap, SharedHeapWatcher* watcher)
{
    if (!watcher->previous && heap->watchers != watcher)
        return;  // watches no longer
    if (watcher->next)
        watcher->next->previous = watcher->previous;
    (watcher->previous ? watcher->previous->next : heap->watchers) = watcher->next;
    watcher->previous = watcher->next = nullptr;
}

uint32_t WINAPI SharedHeapBlockCount(SharedHeap heap)
{
    return heap ? heap->blocks : 0;
}

void* WINAPI SharedHeapAlloc(SharedHeap heap, uint32_t size, uint32_t /*flags*/)
{
    void* block = heap ? HeapAlloc(heap->handle, 0, size) : nullptr;
    if (!block)
        RaiseNoMemory();
    ++heap->blocks;
    return block;
}

void* WINAPI SharedHeapRealloc(SharedHeap heap, void* blockOrNull, uint32_t size, uint32_t flags)
{
    if (!blockOrNull)
        return SharedHeapAlloc(heap, size, flags);
    void* block = heap ? HeapReAlloc(heap->handle, 0, blockOrNull, size) : nullptr;
    if (!block)
        RaiseNoMemory();
    return block;
}

void WINAPI SharedHeapFree(SharedHeap heap, void* block)
{
    if (!heap || !block)
        return;
    if (HeapFree(heap->handle, 0, block))
        --heap->blocks;
}

char* WINAPI SharedHeapStrDup(SharedHeap heap, const char* text, uint32_t flags)
{
    const char* source = text ? text : "";
    const size_t size = std::strlen(source) + 1;
    if (size > UINT32_MAX)
        RaiseNoMemory();
    void* copy = SharedHeapAlloc(heap, static_cast<uint32_t>(size), flags);
    return static_cast<char*>(std::memcpy(copy, source, size));
}
