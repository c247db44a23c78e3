// A control in a window, brought to life in one of the ways of hosts, under the hands of its user and its program.
#pragma once

#include <windows.h>

#include "tests/soak/life.h"
#include "tests/support/live/typist.h"
#include "ztedit.h"

namespace soak {

enum class Way : uint8_t {
    ByClass,        // with the record as creation parameter
    ByInit,         // without, then ZTE_Init
    BySubclassing,  // a standard edit control, subclassed, then ZTE_Init
    ByInitTwice,    // with the record, then ZTE_Init with another one
    FromDialog,     // from a template of a dialog, then ZTE_Init
    Count,
    AsPlainEdit  // a standard edit control, which knows nothing of the library: what the system itself does
};

// Lives on a parent and in a heap that outlive it.
class LiveControl {
public:
    LiveControl() = default;
    LiveControl(const LiveControl&) = delete;
    LiveControl& operator=(const LiveControl&) = delete;

    void Create(HWND parent, SharedHeap heap, const zttest::Config& config, Way way, bool shown);
    void Destroy();
    void Perform(const Act& act);

    HWND hwnd() const { return hwnd_; }

private:
    void CreateInDialog(HWND parent);
    void PressSpin(bool up) const;
    void Paint() const;

    SharedHeap heap_ = nullptr;
    HWND hwnd_ = nullptr;
    HWND dialog_ = nullptr;
    zttest::Typist typist_;
};

// Leads a whole life in a heap of its own, counting the heap's blocks. Empty when each came back where it must; else what was lost.
std::string LeadInWindow(HWND parent, const Life& life, Way way, bool shown);

}  // namespace soak
