// Moving the caret over literals: counting the way, and going it.
#pragma once

#include <string>

#include "core/edit_instance.h"
#include "edit/number_layout.h"

namespace zte {

enum class Direction { Forward, Backward };

// Steps from a position to the next editable one (or the AM/PM field) in a direction; 0 when there is none.
int32_t StepsToEditable(const EditInstance& edit, const std::string& text, int32_t position, Direction direction);

// Moves the caret for a Left, Right or Backspace key to the next editable position by keys sent to the base; Backspace
// selects the one character left of the caret. Right at the end of the text sends the autoskip notification.
void MoveCaret(EditInstance& edit, WPARAM key, LPARAM keyData);

// The literals between a position and the next one that may be typed at.
struct LiteralRun {
    bool found;      // false: the end of the display comes first
    int32_t length;  // literals to pass
};
LiteralRun LiteralsAt(const EditInstance& edit, const std::string& text, int32_t position);

// Puts the caret, which stands at position, behind the literals there, and remembers them as passed by typing. True when a
// position that may be typed at was reached.
bool SkipLiterals(EditInstance& edit, const std::string& text, int32_t position);

// The literals that typing has just carried the caret over (from equals to: none, the caret stands behind a digit just
// inserted); forgotten by the call.
struct CarriedOver {
    int32_t from;
    int32_t to;  // where the caret was carried; 0: nowhere
};
CarriedOver TakeCarriedOver(EditInstance& edit);

// A literal typed right after the caret was carried over it is taken as typed, once: true, with the ones behind it still
// to come. False when the character is none of them.
bool IsCarriedLiteral(EditInstance& edit, const std::string& text, CarriedOver carried, int32_t caret, char typed);

}  // namespace zte
