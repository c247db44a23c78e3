// Lists of borrowed pointers with one cursor each; list and elements' array are two blocks of the list's heap.
#include <new>

#include "shared/services/no_memory.h"
#include "ztshared.h"

struct SharedListData {
    SharedHeap heap;
    uint32_t flags;
    void** elements;
    int32_t capacity;
    int32_t count;
    int32_t cursor;  // -1: before the first; count: past the last
};

namespace {

constexpr int32_t kBeforeFirst = -1;
constexpr int32_t kFirstCapacity = 8;
constexpr int32_t kLargestCapacity = INT32_MAX / static_cast<int32_t>(sizeof(void*));

int32_t Limit(int32_t value, int32_t smallest, int32_t largest)
{
    if (value < smallest)
        return smallest;
    return value < largest ? value : largest;
}

void* MoveTo(SharedList list, int32_t position)
{
    if (!list)
        return nullptr;
    list->cursor = Limit(position, kBeforeFirst, list->count);
    return SharedListCurrent(list);
}

// Doubles the room.
void Grow(SharedListData& list)
{
    if (list.capacity > kLargestCapacity / 2)
        shared::RaiseNoMemory();
    const int32_t capacity = list.capacity ? list.capacity * 2 : kFirstCapacity;
    const auto size = static_cast<uint32_t>(capacity) * static_cast<uint32_t>(sizeof(void*));
    list.elements = static_cast<void**>(SharedHeapRealloc(list.heap, list.elements, size, list.flags));
    list.capacity = capacity;
}

}  // namespace

SharedList WINAPI SharedListCreate(SharedHeap heap, uint32_t flags)
{
    void* record = SharedHeapAlloc(heap, sizeof(SharedListData), flags);
    return new (record) SharedListData{heap, flags, nullptr, 0, 0, kBeforeFirst};
}

void WINAPI SharedListDestroy(SharedList list)
{
    if (!list)
        return;
    const SharedHeap heap = list->heap;
    SharedHeapFree(heap, list->elements);
    SharedHeapFree(heap, list);
}

// A cursor past the last element stays past it.
void WINAPI SharedListAppend(SharedList list, void* element)
{
    if (!list)
        return;
    if (list->count == list->capacity)
        Grow(*list);
    const bool pastLast = list->cursor == list->count;
    list->elements[list->count++] = element;
    if (pastLast)
        list->cursor = list->count;
}

void* WINAPI SharedListFirst(SharedList list)
{
    return MoveTo(list, 0);
}

void* WINAPI SharedListLast(SharedList list)
{
    return list ? MoveTo(list, list->count - 1) : nullptr;
}

void* WINAPI SharedListNext(SharedList list)
{
    return list ? MoveTo(list, list->cursor + 1) : nullptr;
}

void* WINAPI SharedListPrev(SharedList list)
{
    return list ? MoveTo(list, list->cursor - 1) : nullptr;
}

void* WINAPI SharedListCurrent(SharedList list)
{
    const bool onElement = list && list->cursor >= 0 && list->cursor < list->count;
    return onElement ? list->elements[list->cursor] : nullptr;
}

int32_t WINAPI SharedListTell(SharedList list)
{
    return list ? list->cursor : kBeforeFirst;
}

void WINAPI SharedListSeek(SharedList list, int32_t position)
{
    MoveTo(list, position);
}
