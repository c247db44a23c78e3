// Private heaps that count their live blocks. A host makes one per form and discards it whole.
#include <cstring>

#include "companions/memory/no_memory.h"
#include "ztshared.h"

// Lives in the heap it describes, so that destroying the heap leaves nothing behind.
struct SharedHeapData {
    HANDLE handle;
    uint32_t blocks;
};

using shared::RaiseNoMemory;

SharedHeap WINAPI SharedHeapCreate(void)
{
    const HANDLE handle = HeapCreate(0, 0, 0);
    void* record = handle ? HeapAlloc(handle, HEAP_ZERO_MEMORY, sizeof(SharedHeapData)) : nullptr;
    if (!record)
        RaiseNoMemory();
    const auto heap = static_cast<SharedHeap>(record);
    heap->handle = handle;
    return heap;
}

void WINAPI SharedHeapDestroy(SharedHeap heap)
{
    if (heap)
        HeapDestroy(heap->handle);
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
