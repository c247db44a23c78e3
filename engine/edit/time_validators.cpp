// Validators of the time fields.
#include "engine/edit/validators.h"
#include "engine/text/ascii.h"

namespace zte {

namespace {

// What the clock makes of the hour's digits.
struct HourRule {
    Char lastFirst;        // highest digit that may stand first; above it the digit is padded
    Char lastSecondAfter;  // highest second digit behind that first digit
    Char freeFirst;        // up to this first digit, whatever follows is fine
};

// The 12-hour clock refuses any first digit before a second one above 2, 0 included; kept.
constexpr HourRule kTwelveHours = {'1', '2', '\0'};
constexpr HourRule kTwentyFourHours = {'2', '3', '1'};

Verdict Padded(Char digit)
{
    return Verdict::Padding({Char{'0'}, digit});
}

Verdict ValidateFirstDigit(const Entry& entry, const HourRule& rule)
{
    if (entry.typed > rule.lastFirst)
        return Padded(entry.typed);
    if (entry.After() > rule.lastSecondAfter && entry.typed > rule.freeFirst)
        return Verdict::Refused();
    return Verdict::Placing(entry.typed);
}

}  // namespace

Verdict ValidateHour(const Entry& entry)
{
    if (!IsDigit(entry.typed))
        return Verdict::Refused();
    const HourRule& rule = HasAmPmField(entry.edit) ? kTwelveHours : kTwentyFourHours;
    if (entry.Index() == 0)
        return ValidateFirstDigit(entry, rule);
    if (entry.Before() == rule.lastFirst && entry.typed > rule.lastSecondAfter)
        return Verdict::Refused();
    return Verdict::Placing(entry.typed);
}

Verdict ValidateMinuteOrSecond(const Entry& entry)
{
    if (!IsDigit(entry.typed))
        return Verdict::Refused();
    if (entry.Index() == 0 && entry.typed > '5')
        return Padded(entry.typed);
    return Verdict::Placing(entry.typed);
}

}  // namespace zte
