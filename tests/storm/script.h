// What is played on the windows: operations as numbers, so that a script is told by its seed and any part of it can be played alone.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tests/storm/random.h"

namespace storm {

enum class Kind : uint8_t {
    Make,
    Destroy,
    Init,
    Send,
    Post,
    SpinMessage,
    CallProcedure,
    Key,
    Type,
    Mouse,
    SetMask,
    SetData,
    SetDataString,
    ReadData,
    UnformatData,
    SetSpin,
    MakeSpin,
    DropSpin,
    PaintSpin,
    AskSpin,
    SetRange,
    Switch,
    TextFromOutside,
    Resize,
    Font,
    Style,
    Focus,
    Clipboard,
    Paint,
    Settings,
    React,
    Subclass,
    Reparent,
    Pump,
    Count,
};

// slot says which control; what a, b and c mean is the kind's affair.
struct Op {
    Kind kind;
    uint8_t slot;
    uint32_t a;
    uint32_t b;
    uint32_t c;
};

constexpr int kSlots = 3;
constexpr int kKinds = static_cast<int>(Kind::Count);

const char* NameOf(Kind kind);

// The operations of one episode: it begins with a control in each slot.
constexpr int kEpisodeLength = 250;
std::vector<Op> EpisodeOf(uint64_t seed, uint32_t episode);

// What a host does inside a notification.
Op ReactionOf(uint32_t seed, int slot);

}  // namespace storm
