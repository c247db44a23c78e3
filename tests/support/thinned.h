// Samples of the laws of modern editing that are smaller than usual: for tools that play them very often.
#pragma once

#include <cstdint>
#include <cstdlib>

namespace zttest {

// So many times fewer rows, masks under settings and acts are played; ZT_MODERN_THIN.
inline uint32_t Thinned()
{
    const char* wanted = std::getenv("ZT_MODERN_THIN");
    const uint32_t times = wanted ? static_cast<uint32_t>(std::strtoul(wanted, nullptr, 10)) : 1;
    return times > 0 ? times : 1;
}

}  // namespace zttest
