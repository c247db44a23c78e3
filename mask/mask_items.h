// The table of mask characters: which of them are input positions of a type, and their validators.
#pragma once

#include "core/edit_instance.h"

namespace zte {

constexpr int32_t DT_ANY = 7;  // in the table only: a mask character of every type

// Accepts (true) or refuses a typed character at a display position. On acceptance the text to place is in typedChar
// (typedFractionChar: to insert); an empty one swallows the keystroke.
using Validator = bool (*)(int32_t typed, EditInstance& edit, int32_t position);

struct MaskItem {
    Validator validate;
    char maskChar;  // upper case
    int32_t dataType;
};

// The first row for the character, in either case, and the type; null for a literal.
const MaskItem* FindMaskItem(char maskChar, int32_t dataType);

}  // namespace zte
