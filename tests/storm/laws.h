// What must hold after every operation, whatever it was.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <string>

#include "tests/storm/stage.h"

namespace storm {

// Watches one stage: called before and after each operation.
class Laws {
public:
    explicit Laws(Stage& stage) : stage_(stage) {}

    void Before(const Op& op);

    // The law that the operation has broken; empty when it has broken none.
    std::string After(const Op& op);

private:
    // What tells whether a control is still the one that it was.
    struct Actor {
        HWND hwnd;
        HANDLE record;
        HWND spin;
        bool operator==(const Actor& other) const
        {
            return hwnd == other.hwnd && record == other.record && spin == other.spin;
        }
    };
    struct Cast {
        Actor actors[kSlots];
        uint32_t reconfigured;
        bool operator==(const Cast& other) const
        {
            return std::equal(actors, actors + kSlots, other.actors) && reconfigured == other.reconfigured;
        }
    };

    Cast CastNow() const;
    std::string CheckText(const Op& op, int slot) const;
    std::string CheckSpin(int slot) const;
    std::string CheckExports(int slot) const;
    std::string CheckBlocks();

    Stage& stage_;
    Cast cast_ = {};  // when blocks_ were counted
    uint32_t blocks_ = 0;
    HWND playedWith_ = nullptr;
    int length_ = 0;
    uint32_t reacted_ = 0;
    uint32_t checks_ = 0;
};

}  // namespace storm
