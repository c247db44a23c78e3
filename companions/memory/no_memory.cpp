// The system's no-memory exception, also for operator new. Each library has a runtime of its own linked in, so that the host's
// allocations are not touched.
#include "companions/memory/no_memory.h"

#include <windows.h>

#include <new>

namespace shared {

void RaiseNoMemory()
{
    constexpr DWORD kNoMemory = 0xC0000017;  // STATUS_NO_MEMORY
    RaiseException(kNoMemory, EXCEPTION_NONCONTINUABLE, 0, nullptr);
}

namespace {

[[maybe_unused]] const std::new_handler former = std::set_new_handler(RaiseNoMemory);

}  // namespace

}  // namespace shared
