// Memory before an inaccessible page, on Windows.
#include <windows.h>

#include <cstdlib>
#include <cstring>

#include "tests/texts/guarded.h"

namespace zttest {

Guarded::Guarded(const void* bytes, size_t size, Access access, size_t behind)
{
    constexpr size_t kPage = 4096;
    const size_t room = (size + behind + kPage - 1) / kPage * kPage;
    size_ = room + kPage;
    pages_ = static_cast<char*>(VirtualAlloc(nullptr, size_, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
    if (!pages_)
        std::abort();
    start_ = pages_ + room - behind - size;
    if (size > 0)
        std::memcpy(start_, bytes, size);
    DWORD previous = 0;
    const bool guarded = VirtualProtect(pages_ + room, kPage, PAGE_NOACCESS, &previous) != FALSE;
    if (!guarded || (access == Access::ReadOnly && room > 0 && !VirtualProtect(pages_, room, PAGE_READONLY, &previous)))
        std::abort();
}

Guarded::~Guarded()
{
    VirtualFree(pages_, 0, MEM_RELEASE);
}

}  // namespace zttest
