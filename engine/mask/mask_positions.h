// A mask read position by position: what stands at each place of the display, counted without the "~" of escapes.
#pragma once

#include <vector>

#include "engine/mask/mask_items.h"

namespace zte {

struct MaskPosition {
    Char character;  // the letter of a field, or the literal shown
    FieldKind kind;
    bool escaped;        // a literal written with "~"
    bool exists;         // false: nothing stands there
    uint16_t runBefore;  // how many characters equal to it stand directly before it in the mask ...
    uint16_t runAfter;   // ... and directly behind it

    // Typed at by its own kind; an AM/PM letter is exchanged, not typed.
    bool IsEditable() const { return kind != FieldKind::Literal && kind != FieldKind::AmPm; }
    // Found by typing it further left, unlike literals that are written so that they are nothing else.
    bool IsPlainLiteral() const { return kind == FieldKind::Literal && !escaped; }
    int32_t FieldLength() const { return runBefore + 1 + runAfter; }
};

constexpr MaskPosition kNoPosition = {};

constexpr int32_t kAmPmLength = 5;

// Behind "~" the fields of a given mask are measured and read at their offsets in the mask, which is kept; those of a mask that
// a keyword was turned into stand where they are shown.
enum class MaskOrigin { Given, Keyword };

// True when the text begins with an AM/PM field, exactly "AM/PM" or "am/pm".
bool BeginsWithAmPm(const Char* text);

class MaskPositions {
public:
    MaskPositions(const Text& mask, int32_t dataType);

    const std::vector<MaskPosition>& All() const { return positions_; }
    int32_t Count() const { return static_cast<int32_t>(positions_.size()); }
    // In the mask, of the character of a position.
    int32_t OffsetOf(int32_t position) const { return offsets_[static_cast<size_t>(position)]; }
    // What stands past the end: nothing behind a mask with escapes; its first position behind one without (kept, readers of
    // texts that are too long rely on it).
    const MaskPosition& Beyond() const { return beyond_; }
    const MaskPosition& At(int32_t position) const;

    // The first AM/PM field becomes one; returns its position, -1 when there is none.
    int32_t MarkAmPm();

private:
    void Read(int32_t dataType);
    void CountRuns();

    Text mask_;
    std::vector<MaskPosition> positions_;
    std::vector<int32_t> offsets_;  // in the mask, of the character of each position
    MaskPosition beyond_ = kNoPosition;
};

}  // namespace zte
