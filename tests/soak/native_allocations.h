// The program's own memory, told apart from the system's: what the engine and the tests ask of malloc, realloc and operator new
// passes through here (the linker leads it here), is counted, and can be made to fail.
#pragma once

#include <cstddef>
#include <cstdint>

namespace soak {

struct MemoryInUse {
    int64_t blocks;
    int64_t bytes;
    bool operator==(const MemoryInUse& other) const { return blocks == other.blocks && bytes == other.bytes; }
};
MemoryInUse InUse();

// Requests so far. The request of the given number (the first is 1) fails; 0: none.
uint64_t Requests();
void FailRequest(uint64_t number);

}  // namespace soak
