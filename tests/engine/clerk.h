// A clerk of our customers before a field.
#pragma once

#include "tests/support/engine_test.h"

namespace zttest {

// A clerk sees text and hears beeps; where the caret stands is of no interest as long as typing goes on.
class Clerk : public EditTest {
protected:
    void Field(const char* mask, int32_t type, const char* data = nullptr, uint32_t options = 0)
    {
        Config config;
        config.mask = mask;
        config.type = type;
        config.data = data;
        config.options = options;
        Make(config);
    }

    // As a dialog does when Tab brings the focus to a field.
    void TabInto() { SelectAll(); }
    void ClickAtTheFront() { PutCaret(0); }
};

}  // namespace zttest
