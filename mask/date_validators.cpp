// Validators of the date fields: digits that cannot begin or end a field are padded, completed, swallowed or refused.
#include <cstdlib>
#include <cstring>

#include "format/read_back.h"
#include "mask/calendar.h"
#include "mask/field_entry.h"
#include "mask/field_text.h"
#include "mask/mask_text.h"
#include "mask/month_names.h"
#include "mask/validators.h"
#include "shared/ascii.h"

namespace zte {

namespace {

constexpr int32_t kFebruary = 1;

// The year that a last digit would make, formed from the first printed character of the year now shown and the digit;
// kept, clerks' leap days have always been checked against it.
int32_t CandidateYear(const DateTimeValue& shown, char digit)
{
    const std::string printed = std::to_string(static_cast<uint32_t>(int32_t{shown.year}));
    return TwoDigits(printed[0], digit);
}

bool CompletesYear(const FieldEntry& entry)
{
    return (entry.length <= 2 && entry.index == 1) || entry.index == 3;
}

bool LosesLeapDay(EditInstance& edit, char digit)
{
    const DateTimeValue shown = ReadCurrentDateTime(edit);
    return shown.month == kFebruary && shown.day > 28 && !IsLeapYear(edit.yearDigits, CandidateYear(shown, digit));
}

bool PlaceMonthDigit(EditInstance& edit, const FieldEntry& entry)
{
    if (entry.index == 0) {
        if (entry.typed > '1')
            return AcceptTwo(edit, '0', entry.typed);
        if (entry.After() > '2')
            return AcceptTwo(edit, entry.typed, '0');
        return Accept(edit, entry.typed);
    }
    if (entry.Before() == '1' && entry.typed > '2')
        return false;
    return Accept(edit, entry.typed);
}

// The month that the field will show once typedChar has been placed.
int32_t MonthToBe(const EditInstance& edit, const FieldEntry& entry)
{
    const char* placed = edit.typedChar;
    if (entry.index > 0)
        return TwoDigits(entry.Before(), placed[0]);
    return TwoDigits(placed[0], placed[1] ? placed[1] : entry.After());
}

bool IsDayTooLarge(const EditInstance& edit, const DateTimeValue& value, int32_t month)
{
    return value.day > MonthRowOf(edit.yearDigits, value.year, month).days;
}

bool ValidateMonthDigit(EditInstance& edit, const FieldEntry& entry)
{
    if (!IsDigit(entry.typed) || !PlaceMonthDigit(edit, entry))
        return false;
    const int32_t month = MonthToBe(edit, entry);
    if (month != 0 && IsDayTooLarge(edit, ReadCurrentDateTime(edit), month - 1))
        return Swallow(edit);
    return true;
}

bool ValidateMonthName(EditInstance& edit, const FieldEntry& entry)
{
    std::string prefix;
    for (int32_t i = entry.index; i > 0; --i)
        prefix += entry.At(entry.position - i);
    prefix += entry.typed;

    std::string name = MonthNameByPrefix(prefix);
    if (name.empty())
        return false;
    const DateTimeValue shown = ReadCurrentDateTime(edit);
    while (!name.empty() && IsDayTooLarge(edit, shown, MonthFromName(name.c_str())))
        name = entry.index >= 2 ? std::string() : NextMonthNameMatch(name, entry.index);
    if (name.empty())
        return Swallow(edit);
    lstrcpynA(edit.typedChar, name.c_str() + entry.index, sizeof edit.typedChar);
    edit.flags |= ZERO_PADDED;
    return true;
}

// Whether the M run at the entry comes after an hour field: the nearest H before it, unless that one is escaped.
bool IsMinuteField(const char* mask, const FieldEntry& entry)
{
    for (int32_t i = MaskIndex(mask, entry.position) - entry.index - 1; i >= 0; --i)
        if (AsciiUpper(mask[i]) == 'H')
            return i == 0 || mask[i - 1] != '~';
    return false;
}

// Days of the month and year in the text; any month has up to 31 while none is readable.
int32_t DayLimit(const EditInstance& edit)
{
    const int32_t month = MonthFromText(edit);
    return month < 1 ? 31 : MonthRowOf(edit.yearDigits, YearFromText(edit), month - 1).days;
}

int32_t JulianCandidate(const FieldEntry& entry)
{
    char digits[4] = "";
    for (int32_t i = 0; i < 3; ++i)
        digits[i] = i == entry.index ? entry.typed : entry.At(entry.position - entry.index + i);
    return std::atoi(digits);
}

}  // namespace

bool ValidateYearDigit(int32_t typed, EditInstance& edit, int32_t position)
{
    if (!IsDigit(typed))
        return false;
    const FieldEntry entry(edit, typed, position);
    if (CompletesYear(entry) && LosesLeapDay(edit, entry.typed))
        return false;
    if (entry.length > 2 && entry.index == 0 && entry.typed > '2')
        return false;
    return Accept(edit, entry.typed);
}

bool ValidateMonthOrMinute(int32_t typed, EditInstance& edit, int32_t position)
{
    const FieldEntry entry(edit, typed, position);
    if (IsMinuteField(edit.mask, entry))
        return ValidateMinuteSecond(typed, edit, position);
    return entry.length == 3 ? ValidateMonthName(edit, entry) : ValidateMonthDigit(edit, entry);
}

bool ValidateDay(int32_t typed, EditInstance& edit, int32_t position)
{
    if (!IsDigit(typed))
        return false;
    const FieldEntry entry(edit, typed, position);
    const int32_t limit = DayLimit(edit);
    if (entry.index > 0)
        return TwoDigits(entry.Before(), entry.typed) <= limit && Accept(edit, entry.typed);
    if (TwoDigits(entry.typed, entry.After()) <= limit)
        return Accept(edit, entry.typed);
    if (TwoDigits(entry.typed, '0') > limit)
        return AcceptTwo(edit, '0', entry.typed);
    return AcceptTwo(edit, entry.typed, '0');
}

// Puts two characters without ZERO_PADDED, unlike the other fields; kept.
bool ValidateJulianDay(int32_t typed, EditInstance& edit, int32_t position)
{
    if (!IsDigit(typed))
        return false;
    const FieldEntry entry(edit, typed, position);
    if (JulianCandidate(entry) <= DaysInYear(edit.yearDigits, YearFromText(edit)))
        return Accept(edit, entry.typed);
    if (entry.index >= 2)
        return false;
    Accept(edit, '0');
    edit.typedChar[1] = entry.typed;
    edit.typedChar[2] = '\0';
    return true;
}

}  // namespace zte
