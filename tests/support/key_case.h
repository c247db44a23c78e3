// One row of a keystroke table: under a mask, from a text with the caret in it, the keys lead to another text and
// caret.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>

#include "tests/support/values.h"

namespace zttest {

struct KeyCase {
    const char* name;
    const char* mask;
    int32_t type;
    const char* given;  // as for Given; with "text:" in front as for GivenText
    const char* keys;   // as for Keyboard::Play
    const char* shown;
    int beeps = 0;
};

inline void PrintTo(const KeyCase& row, std::ostream* out)
{
    *out << row.name << " (mask " << row.mask << ", from " << row.given << ", keys " << row.keys << ")";
}

}  // namespace zttest
