// Owners for blocks of a control's heap.
#pragma once

#include <new>
#include <utility>

#include "engine/record.h"
#include "engine/services.h"

namespace zte {

// Frees a block of the control's heap at the end of its scope, unless released to the caller.
template <typename T>
class HeapBlock {
public:
    HeapBlock(SharedHeap heap, T* block) : heap_(heap), block_(block) {}
    HeapBlock(HeapBlock&& other) noexcept : heap_(other.heap_), block_(other.release()) {}
    HeapBlock(const HeapBlock&) = delete;
    HeapBlock& operator=(const HeapBlock&) = delete;
    HeapBlock& operator=(HeapBlock&&) = delete;
    ~HeapBlock()
    {
        if (block_)
            services::Free(heap_, block_);
    }

    T* get() const { return block_; }
    T* operator->() const { return block_; }
    T& operator*() const { return *block_; }
    explicit operator bool() const { return block_ != nullptr; }
    T* release() { return std::exchange(block_, nullptr); }

private:
    SharedHeap heap_;
    T* block_;
};

template <typename T>
HeapBlock<T> Own(const EditInstance& edit, T* block)
{
    return {edit.heap, block};
}

// Frees the block that a field of the record points to, if there is one, and clears the field.
template <typename T>
void FreeBlock(const EditInstance& edit, T*& block)
{
    if (T* old = std::exchange(block, nullptr))
        services::Free(edit.heap, old);
}

inline Char* Duplicate(const EditInstance& edit, const Text& text)
{
    const size_t count = text.size() + 1;
    auto* copy =
        static_cast<Char*>(services::Allocate(edit.heap, static_cast<uint32_t>(count * sizeof(Char)), edit.heapFlags));
    std::char_traits<Char>::copy(copy, text.c_str(), count);
    return copy;
}

template <typename T>
T* NewBlock(const EditInstance& edit)
{
    return new (services::Allocate(edit.heap, sizeof(T), edit.heapFlags)) T{};
}

}  // namespace zte
