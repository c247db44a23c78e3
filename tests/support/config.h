// How a control under test is made; what is left out is null or 0.
#pragma once

#include <cstdint>

#include "tests/support/values.h"

namespace zttest {

struct Config {
    const char* mask = nullptr;
    int32_t type = DT_STRING;
    uint32_t options = 0;
    const char* data = nullptr;
    const char* range = nullptr;
    uint32_t increment = 0;
    const char* codes = nullptr;
    bool readOnly = false;
    bool visible = false;  // on a form that is shown

    // Of a window; a style of 0 is that of a visible child that scrolls sideways.
    uint32_t style = 0;
    int width = 200;
    int height = 20;
};

}  // namespace zttest
