// A range text: a minimum, "~", and a maximum.
#pragma once

#include <cstring>
#include <string>

namespace zte {

struct RangeText {
    std::string minimum;
    std::string maximum;
};

// The two sides of the first "~"; without one the whole text is the minimum. A null text is an empty one.
inline RangeText SplitRange(const char* range)
{
    if (!range)
        return {};
    const char* tilde = std::strchr(range, '~');
    if (!tilde)
        return {range, {}};
    return {std::string(range, tilde), tilde + 1};
}

}  // namespace zte
