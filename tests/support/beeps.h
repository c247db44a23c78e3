// Counts the library's beeps: its import of MessageBeep leads to a counter while one of these lives.
#pragma once

#include <windows.h>

namespace zttest {

class BeepCounter {
public:
    BeepCounter();
    BeepCounter(const BeepCounter&) = delete;
    BeepCounter& operator=(const BeepCounter&) = delete;
    ~BeepCounter();

    int Count() const;
    void Forget();

private:
    void** slot_ = nullptr;  // the entry in the import table
    void* original_ = nullptr;
};

}  // namespace zttest
