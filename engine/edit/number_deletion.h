// Deleting digits: the point and the literals stay, and the caret stays among the same digits.
#pragma once

#include "engine/edit/number_edit.h"

namespace zte {

// What is selected goes; the digits on each side of the point close up.
void DeleteSelected(NumberEdit& number, Selection selection);

// The digit left of the caret goes, over separators and the point; a digit that the mask forces leaves a 0. A sign goes where the caret
// stands directly behind it. False when there is neither.
bool DeleteDigitBefore(NumberEdit& number);

// The digit or sign at the caret goes; false on separators, the point and literals.
bool DeleteDigitAt(NumberEdit& number);

}  // namespace zte
