// Memory before an inaccessible page, without windows.
#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>

#include "tests/texts/guarded.h"

namespace zttest {

Guarded::Guarded(const void* bytes, size_t size, Access access, size_t behind)
{
    const auto page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
    const size_t room = (size + behind + page - 1) / page * page;
    size_ = room + page;
    void* pages = mmap(nullptr, size_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (pages == MAP_FAILED)
        std::abort();
    pages_ = static_cast<char*>(pages);
    start_ = pages_ + room - behind - size;
    if (size > 0)
        std::memcpy(start_, bytes, size);
    const bool guarded = mprotect(pages_ + room, page, PROT_NONE) == 0;
    if (!guarded || (access == Access::ReadOnly && room > 0 && mprotect(pages_, room, PROT_READ) != 0))
        std::abort();
}

Guarded::~Guarded()
{
    munmap(pages_, size_);
}

}  // namespace zttest
