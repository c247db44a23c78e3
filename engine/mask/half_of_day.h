// The AM/PM field as a text shows it: which half of the day, and how many positions the designator takes there.
#pragma once

#include <optional>

#include "engine/record.h"

namespace zte {

enum class HalfOfDay { Am, Pm };

// What the settings write for a half of the day.
const Char* DesignatorOf(const Settings& settings, HalfOfDay half);

// The half that a text shows at the AM/PM field of the mask; none when it shows neither designator there.
std::optional<HalfOfDay> ShownHalf(const EditInstance& edit, const Text& text);

// The half that a typed letter chooses, in either case; where both designators begin with it, the one not shown. None for other
// characters, and under masks without an AM/PM field.
std::optional<HalfOfDay> HalfTyped(const EditInstance& edit, const Text& text, Char typed);

// How many positions of a text the AM/PM field takes: fewer than the mask writes for it.
int32_t AmPmWidth(const EditInstance& edit, const Text& text);

}  // namespace zte
