// A list of borrowed pointers with one cursor, which stands on an element, before the first or past the last. The room for the
// elements is its owner's.
#pragma once

#include <algorithm>
#include <cstdint>

namespace zte {

struct CursorList {
    static constexpr int32_t kBeforeFirst = -1;
    static constexpr int32_t kFirstCapacity = 8;

    void** elements = nullptr;
    int32_t capacity = 0;
    int32_t count = 0;
    int32_t cursor = kBeforeFirst;  // count: past the last

    void* Current() const { return cursor >= 0 && cursor < count ? elements[cursor] : nullptr; }
    void* MoveTo(int32_t position)
    {
        cursor = std::clamp(position, kBeforeFirst, count);
        return Current();
    }

    bool IsFull() const { return count == capacity; }
    int32_t NextCapacity() const { return capacity > 0 ? capacity * 2 : kFirstCapacity; }

    // Into room that is there. A cursor past the last element stays past it.
    void Append(void* element)
    {
        const bool pastLast = cursor == count;
        elements[count++] = element;
        if (pastLast)
            cursor = count;
    }
};

}  // namespace zte
