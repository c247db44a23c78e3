// Values in a caller's memory, where they stand at any address: hosts pack them into records of their own.
#pragma once

#include <cstring>
#include <type_traits>

namespace zte {

template <typename T>
T ReadValue(const void* address)
{
    static_assert(std::is_trivially_copyable_v<T>);
    T value;
    std::memcpy(&value, address, sizeof value);
    return value;
}

template <typename T>
void WriteValue(void* address, const T& value)
{
    static_assert(std::is_trivially_copyable_v<T>);
    std::memcpy(address, &value, sizeof value);
}

}  // namespace zte
