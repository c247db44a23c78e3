// The user's regional conventions that the services read and write texts with.
#pragma once

#include <cstddef>

namespace shared {

constexpr size_t kDesignatorSize = 5;  // 4 characters and the terminator

struct Regional {
    char decimal = '.';
    char thousand = ',';
    char am[kDesignatorSize] = "AM";
    char pm[kDesignatorSize] = "PM";
};

// As the profile had them when they were last read. Reading costs a round trip to the system, so it is not done per call.
const Regional& RegionalConventions();

}  // namespace shared
