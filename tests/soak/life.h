// The lives of controls, thrown by dice: how one is made, and all that is done to it before it goes. The same on fields in memory
// and in windows.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "tests/support/config.h"
#include "tests/support/profile.h"

namespace soak {

class Dice {
public:
    explicit Dice(uint64_t seed) : engine_(static_cast<uint32_t>(seed ^ seed >> 32)) {}
    int Below(int limit) { return static_cast<int>(engine_() % static_cast<uint32_t>(limit)); }
    bool Chance(int percent) { return Below(100) < percent; }
    uint64_t Number() { return engine_(); }
    template <class Row, size_t count>
    const Row& Of(const Row (&rows)[count])
    {
        return rows[Below(static_cast<int>(count))];
    }

private:
    std::mt19937 engine_;
};

enum class Deed : uint8_t {
    // The user.
    Type,   // the characters of text
    Press,  // the key first under the modifiers second
    Paste,  // text
    Click,  // before the character first
    Drag,   // from first to second
    // The program.
    Select,  // from first to second
    SetText,
    Replace,
    SetMask,  // text, of type first
    SetData,  // text
    SetNothing,
    Read,
    Format,
    Unformat,   // text
    ReadRange,  // text
    SetSpin,    // the row first of SpinRows
    CreateSpin,
    DestroySpin,
    Autoskip,  // first: on or off
    ReadOnly,
    Enable,
    LoseFocus,
    Undo,
    // What only a window can be told.
    Resize,  // to the width first and the height second
    Show,    // first: shown or hidden
    Paint,
};

struct Act {
    Deed deed = Deed::Read;
    int first = 0;
    int second = 0;
    std::string text;
};

struct SpinRow {
    uint32_t increment;
    const char* range;
    const char* codes;
    uint32_t style;  // SPINSTYLE_ bits
};
const SpinRow& SpinRowOf(int index);

struct Life {
    zttest::Config config;
    std::string data;  // what config.data points to
    std::vector<Act> acts;

    Life() = default;
    Life(const Life&) = delete;
    Life& operator=(const Life&) = delete;
};

// Throws the dice for a life of so many acts.
void Throw(Life& life, uint64_t seed, int acts);

// The regional settings under which the lives are led, in turn.
const zttest::RegionalSet& RegionalSetOf(int turn);

// Deeds that are meant to change what the control owns.
bool ChangesBlocks(Deed deed);

// The acts up to and with the last one given, for messages.
std::string Describe(const Life& life, size_t last);

// A number that the environment may set.
int NumberOf(const char* variable, int otherwise);

}  // namespace soak
