// Counts the library's beeps instead of sounding them. One at a time.
#pragma once

#include "tests/support/live/import_patch.h"

namespace zttest {

class BeepCounter {
public:
    BeepCounter();

    int Count() const;
    void Forget();

private:
    ImportPatch patch_;
};

}  // namespace zttest
