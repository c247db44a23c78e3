// Owners for blocks of a control's heap.
#pragma once

#include <new>
#include <utility>

#include "core/edit_instance.h"

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
            SharedHeapFree(heap_, block_);
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

inline char* Duplicate(const EditInstance& edit, const char* text)
{
    return SharedHeapStrDup(edit.heap, text, edit.heapFlags);
}

template <typename T>
T* NewBlock(const EditInstance& edit)
{
    return new (SharedHeapAlloc(edit.heap, sizeof(T), edit.heapFlags)) T{};
}

}  // namespace zte
