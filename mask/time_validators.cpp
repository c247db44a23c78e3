// Validators of the time fields.
#include "mask/field_entry.h"
#include "mask/validators.h"
#include "shared/ascii.h"

namespace zte {

namespace {

// What the clock makes of the hour's digits.
struct HourRule {
    char lastFirst;        // highest digit that may stand first; above it the digit is padded
    char lastSecondAfter;  // highest second digit behind that first digit
    char freeFirst;        // up to this first digit, whatever follows is fine
};

// The 12-hour clock refuses any first digit before a second one above 2, 0 included; kept.
constexpr HourRule kTwelveHours = {'1', '2', '\0'};
constexpr HourRule kTwentyFourHours = {'2', '3', '1'};

bool ValidateFirstDigit(EditInstance& edit, const FieldEntry& entry, const HourRule& rule)
{
    if (entry.typed > rule.lastFirst)
        return AcceptTwo(edit, '0', entry.typed);
    if (entry.After() > rule.lastSecondAfter && entry.typed > rule.freeFirst)
        return false;
    return Accept(edit, entry.typed);
}

}  // namespace

bool ValidateHour(int32_t typed, EditInstance& edit, int32_t position)
{
    if (!IsDigit(typed))
        return false;
    const FieldEntry entry(edit, typed, position);
    const HourRule& rule = Has(edit, AMPM) ? kTwelveHours : kTwentyFourHours;
    if (entry.index == 0)
        return ValidateFirstDigit(edit, entry, rule);
    if (entry.Before() == rule.lastFirst && entry.typed > rule.lastSecondAfter)
        return false;
    return Accept(edit, entry.typed);
}

bool ValidateMinuteSecond(int32_t typed, EditInstance& edit, int32_t position)
{
    if (!IsDigit(typed))
        return false;
    const FieldEntry entry(edit, typed, position);
    if (entry.index == 0 && entry.typed > '5')
        return AcceptTwo(edit, '0', entry.typed);
    return Accept(edit, entry.typed);
}

}  // namespace zte
