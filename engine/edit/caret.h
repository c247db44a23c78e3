// Moving the caret over literals: counting the way, and going it.
#pragma once

#include "engine/record.h"

namespace zte {

enum class Direction { Forward, Backward };

// Steps from a position to the next editable one (or the AM/PM field) in a direction; 0 when there is none.
int32_t StepsToEditable(const EditInstance& edit, const Text& text, int32_t position, Direction direction);

// Moves the caret for a Left, Right or Backspace key to the next editable position by keys of the field; Backspace selects the
// one character left of the caret. Right at the end of the text tells that the field is full. shift: the Shift key is held.
void MoveCaret(EditInstance& edit, Key key, KeyData keyData, bool shift);

// Behind the last position that was typed at, with autoskip on: tells that the field is full. Shift alone has no part in it:
// capitals are typed with it.
void MoveOnWhenFull(EditInstance& edit);

// Puts the caret, which stands at position under a mask that is no number's, behind the literals there, and remembers them as passed by
// typing. False where no position that may be typed at follows: it stays.
bool SkipLiterals(EditInstance& edit, const Text& text, int32_t position);

// The literals that typing has just carried the caret over (from equals to: none, the caret stands behind a digit just
// inserted); forgotten by the call.
struct CarriedOver {
    int32_t from;
    int32_t to;  // where the caret was carried; 0: nowhere
};
CarriedOver TakeCarriedOver(EditInstance& edit);

// A literal typed right after the caret was carried over it is taken as typed, once: true, with the ones behind it still
// to come. False when the character is none of them.
bool IsCarriedLiteral(EditInstance& edit, const Text& text, CarriedOver carried, int32_t caret, Char typed);

// Whether a position lies among the fraction digits of a number.
bool IsInFraction(const EditInstance& edit, const Text& text, int32_t position);

}  // namespace zte
