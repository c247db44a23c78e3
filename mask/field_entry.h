// What the field validators share: the typed digit among its neighbours, and the ways to accept it.
#pragma once

#include <string>

#include "core/edit_instance.h"

namespace zte {

// One keystroke into a field of the mask.
struct FieldEntry {
    FieldEntry(const EditInstance& edit, int32_t typed, int32_t position);

    std::string text;  // of the control
    int32_t position;
    char typed;
    int32_t index;   // of the position within its field, from 0
    int32_t length;  // of the field

    // The characters of the text beside the position; NUL outside the text.
    char Before() const { return At(position - 1); }
    char After() const { return At(position + 1); }
    char At(int32_t at) const;
};

bool Accept(EditInstance& edit, char placed);
bool AcceptTwo(EditInstance& edit, char first, char second);  // with ZERO_PADDED
bool Swallow(EditInstance& edit);                             // accepted, but nothing is placed

// The number of two digit characters, as far as they are digits.
int32_t TwoDigits(char first, char second);

}  // namespace zte
