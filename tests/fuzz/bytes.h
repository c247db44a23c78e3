// The bytes that a fuzzer hands over, taken from the front. At the end every number is 0 and every text empty, so that any input is
// a script.
#pragma once

#include <cstddef>
#include <cstdint>

#include "engine/text/text.h"

namespace zttest {

class Bytes {
public:
    Bytes(const uint8_t* data, size_t size) : at_(data), end_(data + size) {}

    bool IsEmpty() const { return at_ == end_; }
    uint8_t Take() { return IsEmpty() ? uint8_t{0} : *at_++; }
    bool TakeBool() { return (Take() & 1) != 0; }

    // Below count, which is not 0.
    uint32_t TakeBelow(uint32_t count) { return Take() % count; }

    uint32_t Take32()
    {
        uint32_t number = 0;
        for (int byte = 0; byte < 4; ++byte)
            number = number << 8 | Take();
        return number;
    }
    uint64_t Take64()
    {
        const uint64_t high = Take32();
        return high << 32 | Take32();
    }

    // Up to a line break, which is taken too, or a NUL, which ends every text.
    zte::Text TakeLine()
    {
        zte::Text line;
        while (!IsEmpty()) {
            const uint8_t byte = Take();
            if (byte == '\n' || byte == 0)
                break;
            line += static_cast<zte::Char>(byte);
        }
        return line;
    }

    // All that is left, up to a NUL.
    zte::Text TakeRest()
    {
        zte::Text rest;
        while (!IsEmpty()) {
            const uint8_t byte = Take();
            if (byte == 0)
                break;
            rest += static_cast<zte::Char>(byte);
        }
        return rest;
    }

private:
    const uint8_t* at_;
    const uint8_t* end_;
};

}  // namespace zttest
