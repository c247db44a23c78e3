// What became of a message.
#pragma once

#include <cstdint>

namespace zte {

// Kept, or left to the edit control underneath.
struct Reply {
    bool kept;
    intptr_t result;
};
constexpr Reply kPassOn{false, 0};
constexpr Reply Keep(intptr_t result = 1)
{
    return {true, result};
}

}  // namespace zte
