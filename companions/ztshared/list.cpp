// Lists of borrowed pointers with one cursor each; list and elements' array are two blocks of the list's heap.
#include <new>

#include "companions/memory/no_memory.h"
#include "engine/values/cursor_list.h"
#include "ztshared.h"

struct SharedListData {
    SharedHeap heap;
    uint32_t flags;
    zte::CursorList list;
};

namespace {

using zte::CursorList;

constexpr int32_t kLargestCapacity = INT32_MAX / static_cast<int32_t>(sizeof(void*));

void* MoveTo(SharedList list, int32_t position)
{
    return list ? list->list.MoveTo(position) : nullptr;
}

// Doubles the room.
void Grow(SharedListData& list)
{
    if (list.list.capacity > kLargestCapacity / 2)
        shared::RaiseNoMemory();
    const int32_t capacity = list.list.NextCapacity();
    const auto size = static_cast<uint32_t>(capacity) * static_cast<uint32_t>(sizeof(void*));
    list.list.elements = static_cast<void**>(SharedHeapRealloc(list.heap, list.list.elements, size, list.flags));
    list.list.capacity = capacity;
}

}  // namespace

SharedList WINAPI SharedListCreate(SharedHeap heap, uint32_t flags)
{
    void* record = SharedHeapAlloc(heap, sizeof(SharedListData), flags);
    return new (record) SharedListData{heap, flags, {}};
}

void WINAPI SharedListDestroy(SharedList list)
{
    if (!list)
        return;
    const SharedHeap heap = list->heap;
    SharedHeapFree(heap, list->list.elements);
    SharedHeapFree(heap, list);
}

void WINAPI SharedListAppend(SharedList list, void* element)
{
    if (!list)
        return;
    if (list->list.IsFull())
        Grow(*list);
    list->list.Append(element);
}

void* WINAPI SharedListFirst(SharedList list)
{
    return MoveTo(list, 0);
}

void* WINAPI SharedListLast(SharedList list)
{
    return list ? MoveTo(list, list->list.count - 1) : nullptr;
}

void* WINAPI SharedListNext(SharedList list)
{
    return list ? MoveTo(list, list->list.cursor + 1) : nullptr;
}

void* WINAPI SharedListPrev(SharedList list)
{
    return list ? MoveTo(list, list->list.cursor - 1) : nullptr;
}

void* WINAPI SharedListCurrent(SharedList list)
{
    return list ? list->list.Current() : nullptr;
}

int32_t WINAPI SharedListTell(SharedList list)
{
    return list ? list->list.cursor : CursorList::kBeforeFirst;
}

void WINAPI SharedListSeek(SharedList list, int32_t position)
{
    MoveTo(list, position);
}
