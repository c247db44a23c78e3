// The laws: the caret inside the text, the text at most its limit, the exports answer, no block lost, no spin without a control.
#include "tests/storm/laws.h"

#include <cstdio>
#include <utility>

namespace storm {

namespace {

constexpr uint32_t kLongChecksEvery = 8;
constexpr int kRoomOfMasks = 600;  // the longest number or date that a mask shows

template <typename... Values>
std::string Broken(const char* format, Values... values)
{
    char text[200];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

int LengthOf(HWND hwnd)
{
    return static_cast<int>(SendMessageA(hwnd, WM_GETTEXTLENGTH, 0, 0));
}

bool IsByUser(const Op& op)
{
    return op.kind == Kind::Key || op.kind == Kind::Type || op.kind == Kind::Mouse;
}

}  // namespace

Laws::Cast Laws::CastNow() const
{
    Cast cast = {};
    for (int slot = 0; slot < kSlots; ++slot) {
        const HWND hwnd = stage_.Control(slot);
        if (IsWindow(hwnd))
            cast.actors[slot] = {hwnd, GetPropA(hwnd, "MAIN"), stage_.Spin(slot)};
    }
    cast.reconfigured = stage_.Reconfigured();
    return cast;
}

void Laws::Before(const Op& op)
{
    playedWith_ = stage_.Control(op.slot);
    length_ = LengthOf(playedWith_);
    reacted_ = stage_.Reacted();
}

std::string Laws::CheckText(const Op& op, int slot) const
{
    const HWND hwnd = stage_.Control(slot);
    DWORD start = 0;
    DWORD end = 0;
    SendMessageA(hwnd, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    const int length = LengthOf(hwnd);
    if (start > end || end > static_cast<DWORD>(length))
        return Broken("the caret is outside the text: %lu to %lu of %d", start, end, length);
    const bool isSame = playedWith_ == hwnd && reacted_ == stage_.Reacted();
    if (!isSame || !IsByUser(op) || length <= length_)
        return {};
    const auto limit = static_cast<uint32_t>(SendMessageA(hwnd, EM_GETLIMITTEXT, 0, 0));
    if (static_cast<uint32_t>(length) > limit && (length > kRoomOfMasks || !GetPropA(hwnd, "MAIN")))
        return Broken("the user typed beyond the limit: %d of %u", length, limit);
    return {};
}

std::string Laws::CheckSpin(int slot) const
{
    const HWND spin = stage_.Spin(slot);
    if (spin && GetAncestor(spin, GA_PARENT) != stage_.Control(slot))
        return "the control has a spin that is none of its windows";
    return {};
}

// The caller hands back what it gets; nothing else stays.
std::string Laws::CheckExports(int slot) const
{
    const HWND hwnd = stage_.Control(slot);
    const uint32_t before = SharedHeapBlockCount(stage_.Heap());
    SharedHeapFree(stage_.Heap(), ZTE_FmtGetData(hwnd));
    const bool isControl = stage_.IsMasked() && GetPropA(hwnd, "MAIN");
    FormatResult* result = ZTE_FmtFormatData(hwnd, nullptr);
    if (isControl != (result != nullptr))
        return isControl ? "a control formats nothing" : "what is no control formats";
    if (result) {
        SharedHeapFree(stage_.Heap(), result->text);
        SharedHeapFree(stage_.Heap(), result);
    }
    const uint32_t after = SharedHeapBlockCount(stage_.Heap());
    return before == after ? std::string() : Broken("reading has left blocks behind: %u, now %u", before, after);
}

// Where the controls are those that they were, and nobody has configured them, they own as much as before.
std::string Laws::CheckBlocks()
{
    const uint32_t blocks = SharedHeapBlockCount(stage_.Heap());
    if (blocks == blocks_)
        return {};
    const Cast cast = CastNow();
    const bool isSame = cast == cast_;
    const uint32_t before = std::exchange(blocks_, blocks);
    cast_ = cast;
    return isSame ? Broken("blocks of the heap were lost or freed: %u, now %u", before, blocks) : std::string();
}

std::string Laws::After(const Op& op)
{
    const bool isLong = ++checks_ % kLongChecksEvery == 0;
    std::string broken;
    for (int slot = 0; slot < kSlots && broken.empty(); ++slot) {
        if (!IsWindow(stage_.Control(slot)))
            continue;
        broken = CheckText(op, slot);
        if (broken.empty() && isLong)
            broken = CheckSpin(slot);
        if (broken.empty() && isLong)
            broken = CheckExports(slot);
    }
    return broken.empty() ? CheckBlocks() : broken;
}

}  // namespace storm
