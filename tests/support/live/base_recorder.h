// Records what the library hands to the standard edit procedure, in order. One at a time.
#pragma once

#include <windows.h>

#include <vector>

#include "tests/support/live/import_patch.h"

namespace zttest {

struct BaseMessage {
    UINT message;
    WPARAM wParam;
    RECT rect;  // what lParam pointed to, for EM_SETRECTNP
};

class BaseRecorder {
public:
    BaseRecorder();
    ~BaseRecorder();

    const std::vector<BaseMessage>& All() const;
    std::vector<BaseMessage> Of(UINT message) const;
    void Forget();

private:
    ImportPatch patch_;
};

}  // namespace zttest
