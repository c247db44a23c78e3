// The mask as text: which mask character stands at a display position, and runs of equal ones.
#pragma once

#include <cstdint>
#include <string>

#include "core/edit_instance.h"

namespace zte {

constexpr int32_t kMaxMaskLength = 255;

// What stands at a display position of a mask. value is NUL past the end of an escaped mask; missing when there is no
// answer (numeric form without a text). An escaped literal is '~', which no mask item matches.
struct MaskChar {
    char value;
    bool missing;
    bool IsNone() const { return missing || value == '\0'; }
};

// The mask character at a display position. text null: none; it matters for number masks only, where the positions follow
// the digits of the text.
MaskChar MaskCharAt(const char* mask, const std::string* text, int32_t dataType, int32_t position);

// The same for a control and its text; the letters of an AM/PM field count as escaped literals.
MaskChar MaskCharAt(const EditInstance& edit, const std::string& text, int32_t position);

inline bool HasMask(const EditInstance& edit)
{
    return edit.mask && edit.mask[0] != '\0';
}

// True when the position may be typed at: the AM/PM position is not counted here.
bool IsEditable(const EditInstance& edit, const std::string& text, int32_t position);

// True when the position is the first of the AM/PM field.
inline bool IsAmPmPosition(const EditInstance& edit, int32_t position)
{
    return HasAmPmField(edit) && position == edit.ampmPos;
}

// True for every position that the letters of the mask's AM/PM field take.
bool IsInsideAmPmField(const EditInstance& edit, int32_t position);

// Count of display positions: of characters other than '~'.
int32_t MaskDisplayLength(const char* mask);

// How many characters directly behind (before) the one at a display position equal it.
int32_t MaskRunAfter(const char* mask, int32_t position, int32_t dataType);
int32_t MaskRunBefore(const char* mask, int32_t position, int32_t dataType);

// The mask text from the character of a display position on; the text "~" where that is escaped, the empty text past the end
// of a mask with escapes, and the whole mask past the end of one without. For masks whose positions do not follow digits.
const char* MaskTextAt(const char* mask, int32_t position);

// Index in the mask text of the character shown at a display position; the mask's length when past the end.
int32_t MaskIndex(const char* mask, int32_t position);

// Count of characters equal to *text from there on.
int32_t RunLength(const char* text);

// True when the text begins with an AM/PM field, exactly "AM/PM" or "am/pm".
bool BeginsWithAmPm(const char* text);

}  // namespace zte
