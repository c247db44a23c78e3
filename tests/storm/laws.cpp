// The laws: the caret inside the text, the text at most its limit, the exports answer, no block lost, no spin without a control.
#include "tests/storm/laws.h"

#include <algorithm>
#include <cstdio>

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

bool IsByUser(const Op& op)
{
    return op.kind == Kind::Key || op.kind == Kind::Type || op.kind == Kind::Mouse;
}

}  // namespace

Laws::Actor Laws::ActorIn(int slot) const
{
    const HWND hwnd = stage_.Control(slot);
    if (!IsWindow(hwnd))
        return {};
    const auto length = static_cast<int>(SendMessageA(hwnd, WM_GETTEXTLENGTH, 0, 0));
    return {hwnd, GetPropA(hwnd, "MAIN"), stage_.Spin(slot), length};
}

void Laws::Before()
{
    for (int slot = 0; slot < kSlots; ++slot)
        before_[slot] = ActorIn(slot);
    blocks_ = SharedHeapBlockCount(stage_.Heap());
    reconfigured_ = stage_.Reconfigured();
    reacted_ = stage_.Reacted();
}

bool Laws::IsSameCast() const
{
    for (int slot = 0; slot < kSlots; ++slot)
        if (!(ActorIn(slot) == before_[slot]))
            return false;
    return reconfigured_ == stage_.Reconfigured();
}

std::string Laws::CheckText(const Op& op, int slot) const
{
    const HWND hwnd = stage_.Control(slot);
    DWORD start = 0;
    DWORD end = 0;
    SendMessageA(hwnd, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    const auto length = static_cast<int>(SendMessageA(hwnd, WM_GETTEXTLENGTH, 0, 0));
    if (start > end || end > static_cast<DWORD>(length))
        return Broken("the caret is outside the text: %lu to %lu of %d", start, end, length);
    const bool isSame = before_[slot].hwnd == hwnd && reacted_ == stage_.Reacted();
    if (!isSame || !IsByUser(op))
        return {};
    const auto limit = static_cast<int>(SendMessageA(hwnd, EM_GETLIMITTEXT, 0, 0));
    const int room = GetPropA(hwnd, "MAIN") ? kRoomOfMasks : 0;
    if (length > std::max({before_[slot].length, limit, room}))
        return Broken("the user typed beyond the limit: %d of %d", length, limit);
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

std::string Laws::CheckBlocks() const
{
    const uint32_t blocks = SharedHeapBlockCount(stage_.Heap());
    return blocks == blocks_ ? std::string() : Broken("blocks of the heap were lost or freed: %u, now %u", blocks_, blocks);
}

std::string Laws::After(const Op& op)
{
    std::string broken;
    ++checks_;
    for (int slot = 0; slot < kSlots && broken.empty(); ++slot) {
        if (!IsWindow(stage_.Control(slot)))
            continue;
        broken = CheckText(op, slot);
        if (broken.empty())
            broken = CheckSpin(slot);
        if (broken.empty() && checks_ % kLongChecksEvery == 0)
            broken = CheckExports(slot);
    }
    if (broken.empty() && IsSameCast())
        broken = CheckBlocks();
    return broken;
}

}  // namespace storm
