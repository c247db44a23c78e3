// Moving the caret over literals: counting the way, and going it.
#include "engine/edit/caret.h"

#include "engine/mask/mask_table.h"

namespace zte {

namespace {

// Right at the end of the text: the focus may move on; the caret goes to the very end for a key, not after typing. In a
// fraction, whose last digit may stand behind the end of the mask's display, it just moves.
void MoveAtEnd(EditInstance& edit, const Text& text, int32_t position, int32_t steps, KeyData keyData, bool shift)
{
    bool move = IsInFraction(edit, text, position);
    if (!move) {
        if (Has(edit, AUTOSKIP) && !(shift && edit.field->IsHeld(KEY_RIGHT)))
            edit.field->NotifyFull();
        move = position == Length(text) && keyData != 0;
    }
    if (move)
        edit.field->PressArrow(KEY_RIGHT, keyData, steps);
}

}  // namespace

bool IsInFraction(const EditInstance& edit, const Text& text, int32_t position)
{
    return edit.decimalPlaces != 0 && PositionsUnder(edit, text).IsInFraction(position);
}

int32_t StepsToEditable(const EditInstance& edit, const Text& text, int32_t position, Direction direction)
{
    const PositionsUnder positions(edit, text);
    const int32_t step = direction == Direction::Forward ? 1 : -1;
    const int32_t last = ShownLength(edit, text) - 1;
    for (int32_t steps = 1;; ++steps) {
        position += step;
        if (position < 0 || (step > 0 && position > last))
            return 0;
        if (!positions.At(position).exists || positions.MayTypeAt(position))
            return steps;
    }
}

// No mask has more literals side by side than it has positions: a longer way, by as many keys, leads over a text set from outside.
void MoveCaret(EditInstance& edit, Key key, KeyData keyData, bool shift)
{
    const int32_t step = key == KEY_LEFT ? -1 : 1;
    const Text text = edit.field->ReadText();
    const PositionsUnder positions(edit, text);
    int32_t position = Caret(edit);
    for (int32_t steps = 1;; ++steps) {
        position += step;
        if (key == KEY_RIGHT && position >= Length(text))
            return MoveAtEnd(edit, text, position, steps, keyData, shift);
        if (key == KEY_LEFT && position < 0)
            return edit.field->PressArrow(KEY_LEFT, keyData, steps);
        if (shift)  // one Left, whatever key was asked for: kept, Backspace counts on it
            return edit.field->PressArrow(KEY_LEFT, keyData, steps);
        if (key == KEY_BACKSPACE) {
            edit.field->HoldShift(true);  // so that the field selects the character that it passes
            return edit.field->PressArrow(KEY_LEFT, keyData, steps);
        }
        if (positions.MayTypeAt(position) || steps == kMaxMaskLength)
            return edit.field->PressArrow(key, keyData, steps);
        if (!positions.At(position).exists)
            return;
    }
}

void MoveOnWhenFull(EditInstance& edit)
{
    if (Has(edit, AUTOSKIP) && !(edit.field->IsHeld(KEY_SHIFT) && edit.field->IsHeld(KEY_RIGHT)))
        edit.field->NotifyFull();
}

bool SkipLiterals(EditInstance& edit, const Text& text, int32_t position)
{
    const auto mayTypeAt = [&](int32_t at) {
        return PositionOf(edit, text, at).IsEditable() || IsAmPmPosition(edit, at);
    };
    const int32_t end = ShownLength(edit, text);
    int32_t next = position;
    while (next < end && !mayTypeAt(next))
        ++next;
    if (next >= end)
        return false;
    if (next == position)
        return true;
    edit.carriedFrom = position;
    edit.carriedTo = next;
    PlaceCaret(edit, next);
    return true;
}

CarriedOver TakeCarriedOver(EditInstance& edit)
{
    const CarriedOver carried = {edit.carriedFrom, edit.carriedTo};
    edit.carriedTo = 0;
    return carried;
}

bool IsCarriedLiteral(EditInstance& edit, const Text& text, CarriedOver carried, int32_t caret, Char typed)
{
    if (carried.to != caret || caret > Length(text))
        return false;
    for (int32_t i = carried.from; i < carried.to; ++i) {
        if (At(text, i) != typed)
            continue;
        edit.carriedFrom = i + 1;
        edit.carriedTo = i + 1 < carried.to ? carried.to : 0;
        return true;
    }
    return false;
}

}  // namespace zte
