// A mask read position by position.
#include "engine/mask/mask_positions.h"

#include <algorithm>

#include "engine/text/ascii.h"

namespace zte {

namespace {

constexpr Char kEscape = '~';

uint16_t Bounded(size_t count)
{
    return static_cast<uint16_t>(std::min<size_t>(count, UINT16_MAX));
}

}  // namespace

bool BeginsWithAmPm(const Char* text)
{
    return BeginsWith(text, "AM/PM") || BeginsWith(text, "am/pm");
}

MaskPositions::MaskPositions(const Text& mask, int32_t dataType) : mask_(mask)
{
    Read(dataType);
    CountRuns();
    if (positions_.empty() || Find(mask_, kEscape) >= 0)
        return;
    beyond_ = positions_[0];
    const bool anyHour = std::any_of(positions_.begin(), positions_.end(),
                                     [](const MaskPosition& at) { return at.kind == FieldKind::Hour; });
    beyond_.kind = KindOf(beyond_.character, dataType, anyHour);
}

// A "~" at the very end is a position without a character.
void MaskPositions::Read(int32_t dataType)
{
    bool hourSeen = false;
    for (int32_t offset = 0; offset < Length(mask_); ++offset) {
        const bool escaped = zte::At(mask_, offset) == kEscape;
        offset += escaped ? 1 : 0;
        const Char character = zte::At(mask_, offset);
        const FieldKind kind = escaped ? FieldKind::Literal : KindOf(character, dataType, hourSeen);
        hourSeen = hourSeen || kind == FieldKind::Hour;
        positions_.push_back({character, kind, escaped, true, 0, 0});
        offsets_.push_back(offset);
    }
}

// Runs are counted in the mask by exact character; an escaped character is no part of the run behind it.
void MaskPositions::CountRuns()
{
    for (size_t i = 1; i < positions_.size(); ++i) {
        MaskPosition& here = positions_[i];
        const MaskPosition& before = positions_[i - 1];
        if (!before.escaped && !here.escaped && before.character == here.character)
            here.runBefore = Bounded(size_t{before.runBefore} + 1);
    }
    for (size_t i = positions_.size(); i-- > 1;) {
        MaskPosition& here = positions_[i - 1];
        const MaskPosition& behind = positions_[i];
        if (behind.runBefore > 0)
            here.runAfter = Bounded(size_t{behind.runAfter} + 1);
    }
}

const MaskPosition& MaskPositions::At(int32_t position) const
{
    if (position < 0)
        return kNoPosition;
    return position < static_cast<int32_t>(positions_.size()) ? positions_[static_cast<size_t>(position)] : beyond_;
}

int32_t MaskPositions::MarkAmPm()
{
    for (size_t i = 0; i < positions_.size(); ++i) {
        if (positions_[i].escaped || !BeginsWithAmPm(mask_.c_str() + offsets_[i]))
            continue;
        for (size_t letter = i; letter < i + kAmPmLength; ++letter)
            positions_[letter].kind = FieldKind::AmPm;
        return static_cast<int32_t>(i);
    }
    return -1;
}

}  // namespace zte
