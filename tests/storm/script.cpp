// How often which operation is played.
#include "tests/storm/script.h"

namespace storm {

namespace {

struct KindRow {
    Kind kind;
    const char* name;
    uint32_t weight;          // in a script
    uint32_t reactionWeight;  // inside a notification
};

// clang-format off
constexpr KindRow kKindRows[] = {
    {Kind::Make,            "make",              12,  0},
    {Kind::Destroy,         "destroy",            4, 30},
    {Kind::Init,            "configure anew",     6, 12},
    {Kind::Send,     "send message",     300,  0},
    {Kind::Post,     "post message",      12,  0},
    {Kind::SpinMessage,     "message to spin",   60,  0},
    {Kind::CallProcedure,   "call procedure",     8,  0},
    {Kind::Key,             "key",              150,  6},
    {Kind::Type,            "type",             150, 14},
    {Kind::Mouse,           "mouse",             30,  2},
    {Kind::SetMask,         "set mask",          25, 14},
    {Kind::SetData,         "set data",          20,  8},
    {Kind::SetDataString,   "set data string",   40, 10},
    {Kind::ReadData,        "read data",         20,  4},
    {Kind::UnformatData,    "unformat data",     15,  2},
    {Kind::SetSpin,         "set spin",          15,  6},
    {Kind::MakeSpin,        "create spin",       10,  4},
    {Kind::DropSpin,        "destroy spin",       5, 10},
    {Kind::PaintSpin,       "paint spin",         8,  1},
    {Kind::AskSpin,         "ask spin",          10,  1},
    {Kind::SetRange,        "read range",        10,  1},
    {Kind::Switch,          "switch",             8,  2},
    {Kind::TextFromOutside, "text from outside", 30, 14},
    {Kind::Resize,          "resize",            15,  3},
    {Kind::Font,            "font",               6,  2},
    {Kind::Style,           "style",             20,  4},
    {Kind::Focus,           "focus",             12,  5},
    {Kind::Clipboard,       "clipboard",         12,  1},
    {Kind::Paint,           "paint",             12,  2},
    {Kind::Settings,        "settings",           2,  1},
    {Kind::React,           "react",             30,  0},
    {Kind::Subclass,        "subclass",           3,  0},
    {Kind::Reparent,        "reparent",           2,  4},
    {Kind::Pump,            "pump",              15,  1},
};
// clang-format on
static_assert(sizeof kKindRows / sizeof *kKindRows == kKinds, "a row a kind");

using Weight = uint32_t KindRow::*;

Kind RandomKind(Random& random, Weight weight)
{
    uint32_t sum = 0;
    for (const KindRow& row : kKindRows)
        sum += row.*weight;
    uint32_t left = random.Below(sum);
    for (const KindRow& row : kKindRows) {
        if (left < row.*weight)
            return row.kind;
        left -= row.*weight;
    }
    return Kind::Pump;
}

Op RandomOp(Random& random, Kind kind, uint32_t slot)
{
    const uint32_t a = random.Next();
    const uint32_t b = random.Next();
    const uint32_t c = random.Next();
    return {kind, static_cast<uint8_t>(slot), a, b, c};
}

// The first control is played with more than the others.
uint32_t RandomSlot(Random& random)
{
    return random.OneIn(2) ? 0 : random.Below(kSlots);
}

}  // namespace

const char* NameOf(Kind kind)
{
    return kKindRows[static_cast<size_t>(kind)].name;
}

std::vector<Op> EpisodeOf(uint64_t seed, uint32_t episode)
{
    Random random(seed * 1000003 + episode);
    std::vector<Op> ops;
    ops.reserve(kEpisodeLength);
    for (uint32_t slot = 0; slot < kSlots; ++slot)
        ops.push_back(RandomOp(random, Kind::Make, slot));
    while (ops.size() < kEpisodeLength) {
        const Kind kind = RandomKind(random, &KindRow::weight);
        ops.push_back(RandomOp(random, kind, RandomSlot(random)));
    }
    return ops;
}

Op ReactionOf(uint32_t seed, int slot)
{
    Random random(seed);
    const Kind kind = RandomKind(random, &KindRow::reactionWeight);
    return RandomOp(random, kind, static_cast<uint32_t>(slot));
}

}  // namespace storm
