// The mask of a control, compiled once when it is set: what stands at every position of the display. It lives in the block of the
// mask's text, so that a mask is one block of the control's heap.
#pragma once

#include <optional>

#include "engine/mask/mask_positions.h"
#include "engine/mask/shown_number.h"
#include "engine/record.h"
#include "engine/services.h"

namespace zte {

// A field as the place of its text, counted as if the AM/PM field were shown as it is written; no length: the mask has no such
// field.
struct MaskSpan {
    int32_t offset;
    int32_t length;
    bool behindAmPm;
};

struct MaskTable {
    const MaskPosition* positions;
    int32_t count;
    MaskPosition beyond;

    int32_t ampmPosition;   // -1: no AM/PM field
    bool fieldsBehindAmPm;  // fields that move with the length of the designator shown
    MaskSpan year;
    MaskSpan month;

    NumberMask number;  // of numbers, which have no positions: what stands at one follows the digits shown
    const services::NumberFormat* compiled;  // null for other types
    bool hasLiterals;                        // the currency symbol alone, separators and '%' do not count

    // What stands at a position of the mask.
    const MaskPosition& At(int32_t position) const
    {
        if (position < 0)
            return kNoPosition;
        return position < count ? positions[position] : beyond;
    }
};

// How many letters of the AM/PM field the designator shown does not have.
int32_t MissingAmPmLetters(const EditInstance& edit, const Text& text);

// What stands at a position of a text, under a mask with fields behind an AM/PM field.
const MaskPosition& PositionAroundAmPm(const EditInstance& edit, const Text& text, int32_t position);

// The same under any mask whose positions do not follow digits; nothing under the others. Asked several times a key.
inline const MaskPosition& PositionOf(const EditInstance& edit, const Text& text, int32_t position)
{
    return edit.table->fieldsBehindAmPm ? PositionAroundAmPm(edit, text, position) : edit.table->At(position);
}

// What stands at a position, under the text shown. Past the end see MaskPositions::Beyond.
MaskPosition NumberPositionAt(const EditInstance& edit, const Text& text, int32_t position);
inline MaskPosition PositionAt(const EditInstance& edit, const Text& text, int32_t position)
{
    return edit.table->number.format ? NumberPositionAt(edit, text, position) : PositionOf(edit, text, position);
}

// How many positions the display has under the text shown: displayLength, less what the AM/PM field takes in the mask only.
inline int32_t ShownLength(const EditInstance& edit, const Text& text)
{
    const bool shorter = edit.table && edit.table->fieldsBehindAmPm;
    return shorter ? edit.displayLength - MissingAmPmLetters(edit, text) : edit.displayLength;
}

// Where the text shown holds a field.
int32_t FieldStart(const EditInstance& edit, const Text& text, const MaskSpan& field);

// Positions under one text, asked one after the other: a number is taken apart once for all of them. Control and text stay as they
// are meanwhile.
class PositionsUnder {
public:
    PositionsUnder(const EditInstance& edit, const Text& text);
    MaskPosition At(int32_t position) const;
    bool MayTypeAt(int32_t position) const;
    bool IsInFraction(int32_t position) const;  // of the mask's fraction digits

private:
    MaskPosition NumberAt(int32_t position) const;

    const EditInstance& edit_;
    const Text& text_;
    std::optional<ShownNumber> number_;  // none under a mask of another type
};

// True when the position may be typed at: the AM/PM position is not counted here.
inline bool IsEditable(const EditInstance& edit, const Text& text, int32_t position)
{
    return PositionAt(edit, text, position).IsEditable();
}

inline bool HasAmPmField(const EditInstance& edit)
{
    return edit.table && edit.table->ampmPosition >= 0;
}

// True when the position is the first of the AM/PM field.
inline bool IsAmPmPosition(const EditInstance& edit, int32_t position)
{
    return HasAmPmField(edit) && position == edit.table->ampmPosition;
}

// Where the caret may stop to type.
inline bool MayTypeAt(const EditInstance& edit, const Text& text, int32_t position)
{
    return IsAmPmPosition(edit, position) || IsEditable(edit, text, position);
}

// Gives the control a mask: its text, the table, and displayLength. The mask before it is freed. unitsForced: a number shows its
// units even where the mask would leave them out.
void InstallMask(EditInstance& edit, const Text& mask, MaskOrigin origin, bool unitsForced);

// Frees the mask.
void DropMask(EditInstance& edit);

}  // namespace zte
