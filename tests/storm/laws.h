// What must hold after every operation, whatever it was.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "tests/storm/stage.h"

namespace storm {

// Watches one stage: called before and after each operation.
class Laws {
public:
    explicit Laws(Stage& stage) : stage_(stage) {}

    void Before();

    // The law that the operation has broken; empty when it has broken none.
    std::string After(const Op& op);

private:
    // What tells whether a control is still the one that it was.
    struct Actor {
        HWND hwnd;
        HANDLE record;
        HWND spin;
        int length;
        bool operator==(const Actor& other) const { return hwnd == other.hwnd && record == other.record && spin == other.spin; }
    };

    Actor ActorIn(int slot) const;
    bool IsSameCast() const;
    std::string CheckText(const Op& op, int slot) const;
    std::string CheckSpin(int slot) const;
    std::string CheckExports(int slot) const;
    std::string CheckBlocks() const;

    Stage& stage_;
    Actor before_[kSlots] = {};
    uint32_t blocks_ = 0;
    uint32_t reconfigured_ = 0;
    uint32_t reacted_ = 0;
    uint32_t checks_ = 0;
};

}  // namespace storm
