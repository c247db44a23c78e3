// The validators of the mask-character table, one a mask character; see Validator in mask_items.h.
#pragma once

#include "core/edit_instance.h"

namespace zte {

// Characters of any type of mask (char_validators.cpp).
bool ValidateDigit(int32_t typed, EditInstance& edit, int32_t position);
bool ValidateAlphanumeric(int32_t typed, EditInstance& edit, int32_t position);
bool ValidateAny(int32_t typed, EditInstance& edit, int32_t position);
bool ValidateCaseOne(int32_t typed, EditInstance& edit, int32_t position);  // to upper case
bool ValidateCaseTwo(int32_t typed, EditInstance& edit, int32_t position);  // to lower case

// Numbers and decimals (number_validator.cpp).
bool ValidateNumberDigit(int32_t typed, EditInstance& edit, int32_t position);

// Date fields (date_validators.cpp).
bool ValidateYearDigit(int32_t typed, EditInstance& edit, int32_t position);
bool ValidateMonthOrMinute(int32_t typed, EditInstance& edit, int32_t position);
bool ValidateDay(int32_t typed, EditInstance& edit, int32_t position);
bool ValidateJulianDay(int32_t typed, EditInstance& edit, int32_t position);

// Time fields (time_validators.cpp).
bool ValidateHour(int32_t typed, EditInstance& edit, int32_t position);
bool ValidateMinuteSecond(int32_t typed, EditInstance& edit, int32_t position);

}  // namespace zte
