// What may be typed at a position: one validator a kind of mask character, each a pure function of what is shown and typed.
#pragma once

#include "engine/edit/verdict.h"

namespace zte {

// The verdict of the kind of position that the entry stands at; refused on literals and for control characters. Numbers are typed
// digit by digit instead (numeric_entry.h).
Verdict Validate(const Entry& entry);

// Date fields (date_validators.cpp).
Verdict ValidateYear(const Entry& entry);
Verdict ValidateMonth(const Entry& entry);
Verdict ValidateDay(const Entry& entry);
Verdict ValidateDayOfYear(const Entry& entry);

// Time fields (time_validators.cpp).
Verdict ValidateHour(const Entry& entry);
Verdict ValidateMinuteOrSecond(const Entry& entry);

}  // namespace zte
