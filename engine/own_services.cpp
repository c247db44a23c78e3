// The services outside of the library's own DLLs: the engine's values, heaps that count their blocks, lists.
#include <cstddef>
#include <cstdlib>
#include <new>

#include "engine/own_heap.h"
#include "engine/services.h"
#include "engine/text/writer.h"
#include "engine/values/cursor_list.h"
#include "engine/values/date_time.h"
#include "engine/values/decimal_number.h"
#include "engine/values/number_format.h"
#include "engine/values/number_text.h"

// Blocks hang together, so that a heap can be discarded as a whole.
struct alignas(std::max_align_t) OwnBlock {
    OwnBlock* previous;
    OwnBlock* next;
};

struct SharedHeapData {
    OwnBlock blocks;  // the ends of the ring
    uint32_t count;
};

struct SharedListData {
    SharedHeap heap;
    uint32_t flags;
    zte::CursorList list;
};

namespace zte {

namespace {

// Without memory there is nothing to go on with: callers never see null.
void* OrEnd(void* block)
{
    if (!block)
        std::abort();
    return block;
}

void Link(SharedHeapData& heap, OwnBlock& block)
{
    block.previous = &heap.blocks;
    block.next = heap.blocks.next;
    block.previous->next = block.next->previous = &block;
}

void Unlink(const OwnBlock& block)
{
    block.previous->next = block.next;
    block.next->previous = block.previous;
}

OwnBlock& BlockOf(void* contents)
{
    return static_cast<OwnBlock*>(contents)[-1];
}

Text Render(const services::NumberFormat& format, const DecimalDigits& number, const Settings& settings)
{
    Char buffer[services::kRenderedSize];
    Writer output(buffer, services::kRenderedSize);
    RenderNumber(output, format.compiled, number, settings);
    return {buffer, static_cast<size_t>(output.Length())};
}

}  // namespace

SharedHeap CreateHeap()
{
    auto* heap = new (OrEnd(std::malloc(sizeof(SharedHeapData)))) SharedHeapData{};
    heap->blocks.previous = heap->blocks.next = &heap->blocks;
    return heap;
}

void DestroyHeap(SharedHeap heap)
{
    while (heap->blocks.next != &heap->blocks)
        services::Free(heap, heap->blocks.next + 1);
    std::free(heap);
}

uint32_t BlockCount(SharedHeap heap)
{
    return heap->count;
}

namespace services {

void* Allocate(SharedHeap heap, uint32_t size, uint32_t /*flags*/)
{
    auto* block = new (OrEnd(std::malloc(sizeof(OwnBlock) + size))) OwnBlock;
    Link(*heap, *block);
    ++heap->count;
    return block + 1;
}

void* Reallocate(SharedHeap heap, void* blockOrNull, uint32_t size, uint32_t flags)
{
    if (!blockOrNull)
        return Allocate(heap, size, flags);
    OwnBlock& old = BlockOf(blockOrNull);
    Unlink(old);
    auto* block = static_cast<OwnBlock*>(OrEnd(std::realloc(&old, sizeof(OwnBlock) + size)));
    Link(*heap, *block);
    return block + 1;
}

void Free(SharedHeap heap, void* block)
{
    if (!block)
        return;
    OwnBlock& freed = BlockOf(block);
    Unlink(freed);
    --heap->count;
    std::free(&freed);
}

SharedList CreateList(SharedHeap heap, uint32_t flags)
{
    return new (Allocate(heap, sizeof(SharedListData), flags)) SharedListData{heap, flags, {}};
}

void DestroyList(SharedList list)
{
    Free(list->heap, list->list.elements);
    Free(list->heap, list);
}

void Append(SharedList list, void* element)
{
    CursorList& room = list->list;
    if (room.IsFull()) {
        const int32_t capacity = room.NextCapacity();
        const auto size = static_cast<uint32_t>(static_cast<size_t>(capacity) * sizeof(void*));
        room.elements = static_cast<void**>(Reallocate(list->heap, room.elements, size, list->flags));
        room.capacity = capacity;
    }
    room.Append(element);
}

void* First(SharedList list)
{
    return list->list.MoveTo(0);
}

void* Last(SharedList list)
{
    return list->list.MoveTo(list->list.count - 1);
}

void* Next(SharedList list)
{
    return list->list.MoveTo(list->list.cursor + 1);
}

void* Previous(SharedList list)
{
    return list->list.MoveTo(list->list.cursor - 1);
}

int32_t Tell(SharedList list)
{
    return list->list.cursor;
}

void Seek(SharedList list, int32_t position)
{
    list->list.MoveTo(position);
}

bool ParseDateTime(DateTimeValue& value, const Char* text, int32_t kind, const Settings& settings)
{
    return zte::ParseDateTime(value, text, kind, settings);
}

bool IsNumber(const Char* text, const Settings& settings)
{
    return IsNumberText(text, settings.decimalChar);
}

Char ToUpper(Char c, const Settings& settings)
{
    return settings.letters->upper(c);
}

Char ToLower(Char c, const Settings& settings)
{
    return settings.letters->lower(c);
}

bool CompileFormat(NumberFormat& format, const Text& text)
{
    if (!IsValidFormat(text.c_str()) || text.size() >= SHARED_FORMAT_SIZE)
        return false;
    Assign(format.compiled, text);
    return true;
}

Text FormatDouble(const NumberFormat& format, double value, const Settings& settings)
{
    return Render(format, DecimalDigits::FromDouble(value), settings);
}

Text FormatDecimal(const NumberFormat& format, const DecimalValue& value, const Settings& settings)
{
    return Render(format, DecimalDigits::FromDecimal(value), settings);
}

DecimalValue DecimalOf(const Char* text, int32_t decimalPlaces)
{
    return decimal::Read(text, decimalPlaces);
}

DecimalValue DecimalOf(uint32_t number)
{
    return decimal::FromUnsigned(number);
}

DecimalValue Add(const DecimalValue& first, const DecimalValue& second)
{
    return Pack(Sum(decimal::Unpack(&first), decimal::Unpack(&second)));
}

DecimalValue Subtract(const DecimalValue& first, const DecimalValue& second)
{
    return Pack(Difference(decimal::Unpack(&first), decimal::Unpack(&second)));
}

DecimalValue Divide(const DecimalValue& first, const DecimalValue& second)
{
    return Pack(Quotient(decimal::Unpack(&first), decimal::Unpack(&second)));
}

int32_t Compare(const DecimalValue& first, const DecimalValue& second)
{
    return decimal::Compare(decimal::Unpack(&first), decimal::Unpack(&second));
}

}  // namespace services

}  // namespace zte
