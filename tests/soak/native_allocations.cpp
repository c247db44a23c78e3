// The gate before the system's memory.
#include "tests/soak/native_allocations.h"

#include <malloc.h>

#include <new>

extern "C" {
void* __real_malloc(size_t size);
void* __real_realloc(void* block, size_t size);
void __real_free(void* block);
void* __wrap_malloc(size_t size);
void* __wrap_realloc(void* block, size_t size);
void __wrap_free(void* block);
}

namespace soak {

namespace {

MemoryInUse inUse{};
uint64_t requests = 0;
uint64_t failing = 0;

bool IsRefused()
{
    return ++requests == failing;
}

void* Count(void* block, int sign)
{
    if (block) {
        inUse.blocks += sign;
        inUse.bytes += sign * static_cast<int64_t>(malloc_usable_size(block));
    }
    return block;
}

}  // namespace

MemoryInUse InUse()
{
    return inUse;
}

uint64_t Requests()
{
    return requests;
}

void FailRequest(uint64_t number)
{
    failing = number;
}

}  // namespace soak

using soak::Count;

void* __wrap_malloc(size_t size)
{
    return soak::IsRefused() ? nullptr : Count(__real_malloc(size), 1);
}

void* __wrap_realloc(void* block, size_t size)
{
    if (soak::IsRefused())
        return nullptr;
    Count(block, -1);
    return Count(__real_realloc(block, size), 1);
}

void __wrap_free(void* block)
{
    __real_free(Count(block, -1));
}

// As the standard has it: the handler is asked as long as there is one.
void* operator new(size_t size)
{
    for (;;) {
        if (void* block = __wrap_malloc(size ? size : 1))
            return block;
        const std::new_handler handler = std::get_new_handler();
        if (!handler)
            throw std::bad_alloc();
        handler();
    }
}

void* operator new[](size_t size)
{
    return operator new(size);
}

void operator delete(void* block) noexcept
{
    __wrap_free(block);
}

void operator delete(void* block, size_t) noexcept
{
    __wrap_free(block);
}

void operator delete[](void* block) noexcept
{
    __wrap_free(block);
}

void operator delete[](void* block, size_t) noexcept
{
    __wrap_free(block);
}
