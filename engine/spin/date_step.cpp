// Steps one field of a date or time and keeps the value in its range.
#include "engine/spin/date_step.h"

#include <algorithm>

#include "engine/spin/range.h"
#include "engine/values/calendar.h"
#include "engine/values/date_time.h"

namespace zte {

namespace {

constexpr int32_t kYear0 = 0 - kFirstYear;
constexpr int32_t kYear1800 = 1800 - kFirstYear;
constexpr int32_t kYear2999 = 2999 - kFirstYear;
constexpr int32_t kYear3000 = 3000 - kFirstYear;

bool IsUp(const DateStep& step)
{
    return step.direction != StepDirection::Down;
}

// Fields of the date part that have a first and a last value within the year or month.
bool IsDayOrMonth(FieldKind field)
{
    return field == FieldKind::Day || field == FieldKind::Month || field == FieldKind::DayOfYear;
}

bool IsTimePart(FieldKind field)
{
    return field == FieldKind::Hour || field == FieldKind::Minute || field == FieldKind::Second ||
           field == FieldKind::Fraction;
}

bool IsDatePart(FieldKind field)
{
    return field == FieldKind::Year || IsDayOrMonth(field);
}

bool IsSteppable(FieldKind field)
{
    return IsDatePart(field) || IsTimePart(field);
}

// A field is checked against ends that have its part only.
bool Counts(const DateStep& step, const DateTimeValue& end)
{
    return IsDatePart(step.field) ? HasDate(end) : HasTime(end);
}

bool IsAboveMaximum(const DateStep& step, const DateTimeValue& value)
{
    return Counts(step, step.maximum) && IsOutOfOrder(step.dataType, value, step.maximum);
}

bool IsBelowMinimum(const DateStep& step, const DateTimeValue& value)
{
    return Counts(step, step.minimum) && IsOutOfOrder(step.dataType, step.minimum, value);
}

void CopyDate(DateTimeValue& value, const DateTimeValue& end)
{
    if (!HasDate(end))
        return;
    value.year = static_cast<int16_t>(std::min<int32_t>(end.year, kYear3000));
    value.month = end.month;
    value.day = end.day;
}

void CopyTime(DateTimeValue& value, const DateTimeValue& end)
{
    if (!HasTime(end))
        return;
    value.hour = end.hour;
    value.minute = end.minute;
    value.second = end.second;
    value.microsecond = end.microsecond;
}

StepResult SetToMinimum(const DateStep& step, DateTimeValue& value)
{
    CopyDate(value, step.minimum);
    CopyTime(value, step.minimum);
    return StepResult::SetToEnd;
}

// The time of the maximum is taken only when the minimum has one too; kept.
StepResult SetToMaximum(const DateStep& step, DateTimeValue& value)
{
    CopyDate(value, step.maximum);
    if (HasTime(step.minimum))
        CopyTime(value, step.maximum);
    return StepResult::SetToEnd;
}

// Goes to an end; refused when the end was not given.
StepResult GoToMinimum(const DateStep& step, DateTimeValue& value)
{
    return Counts(step, step.minimum) ? SetToMinimum(step, value) : StepResult::Refused;
}

StepResult GoToMaximum(const DateStep& step, DateTimeValue& value)
{
    return Counts(step, step.maximum) ? SetToMaximum(step, value) : StepResult::Refused;
}

// The value of a field as a number, and the range in which it wraps.
struct FieldRange {
    int32_t value;
    int32_t first;
    int32_t last;
    int32_t unit;
};

FieldRange RangeOf(const DateStep& step, const DateTimeValue& value)
{
    switch (step.field) {
    case FieldKind::Month: return {value.month, 0, 11, 1};
    case FieldKind::Day: return {value.day, 1, DaysInMonth(step.yearDigits, value), 1};
    case FieldKind::DayOfYear:
        return {DayOfYear(step.yearDigits, value), 1, DaysInYear(step.yearDigits, value.year), 1};
    case FieldKind::Hour: return {value.hour, 0, 23, 1};
    case FieldKind::Minute: return {value.minute, 0, 59, 1};
    case FieldKind::Second: return {value.second, 0, 59, 1};
    case FieldKind::Fraction:
        return {static_cast<int32_t>(value.microsecond), 0, kMicroseconds - 1, FractionUnit(step.fractionDigits)};
    default: return {};
    }
}

void SetField(const DateStep& step, DateTimeValue& value, int32_t number)
{
    switch (step.field) {
    case FieldKind::Month: value.month = static_cast<int8_t>(number); break;
    case FieldKind::Day: value.day = static_cast<int8_t>(number); break;
    case FieldKind::DayOfYear: DateFromDayOfYear(step.yearDigits, number, value); break;
    case FieldKind::Hour: value.hour = static_cast<int8_t>(number); break;
    case FieldKind::Minute: value.minute = static_cast<int8_t>(number); break;
    case FieldKind::Second: value.second = static_cast<int8_t>(number); break;
    case FieldKind::Fraction: value.microsecond = static_cast<uint32_t>(number); break;
    default: break;
    }
}

// Only the field itself wraps, nothing is carried.
void StepField(const DateStep& step, DateTimeValue& value)
{
    const FieldRange range = RangeOf(step, value);
    const int32_t moved = range.value + (IsUp(step) ? range.unit : -range.unit);
    const bool wrapped = IsUp(step) ? moved > range.last : moved < range.first;
    const int32_t wrappedTo = IsUp(step) ? range.first : range.last;
    SetField(step, value, wrapped ? wrappedTo : moved);
}

// After the field has moved: up past the maximum goes to the minimum, down past the minimum to the maximum. A day or month
// first tries its own first or last value.
StepResult KeepInRange(const DateStep& step, DateTimeValue& value)
{
    const bool up = IsUp(step);
    const bool past = up ? IsAboveMaximum(step, value) : IsBelowMinimum(step, value);
    if (past && !IsDayOrMonth(step.field))
        return up ? GoToMinimum(step, value) : GoToMaximum(step, value);
    if (past) {
        const FieldRange range = RangeOf(step, value);
        SetField(step, value, up ? range.first : range.last);
    }
    return StepResult::Stepped;
}

// The year moves by the increment and never wraps: past an end that is not given it stops at 1800 or 2999, and no step
// leaves the years 0 to 3000 whatever the range.
StepResult StepYear(const DateStep& step, DateTimeValue& value)
{
    const int64_t by = IsUp(step) ? int64_t{step.increment} : -int64_t{step.increment};
    const int64_t year = value.year + by;
    if (IsUp(step) && !HasDate(step.maximum) && year > kYear2999)
        return StepResult::Refused;
    if (!IsUp(step) && !HasDate(step.minimum) && year < kYear1800)
        return StepResult::Refused;
    if (IsUp(step) && year > kYear3000)
        return GoToMinimum(step, value);
    if (year < kYear0)
        return GoToMaximum(step, value);
    value.year = static_cast<int16_t>(year);
    return KeepInRange(step, value);
}

// A last look at the other end: a field that wrapped or went to its own end may lie outside it.
StepResult CheckEnds(const DateStep& step, StepResult result, DateTimeValue& value)
{
    if (step.direction == StepDirection::Up && IsOutOfOrder(step.dataType, step.minimum, value))
        return SetToMinimum(step, value);
    if (step.direction == StepDirection::Down && IsOutOfOrder(step.dataType, value, step.maximum))
        return SetToMaximum(step, value);
    return result;
}

// What a display that has not been filled in reads as, or the end of the calendar.
bool IsBlank(const DateTimeValue& value)
{
    return value.month == 0 && value.day == 1 && (value.year == kYear0 || value.year == kYear3000);
}

StepResult FillBlank(const DateStep& step, Clock clock, DateTimeValue& value)
{
    if (step.direction == StepDirection::Up && HasDate(step.minimum))
        return SetToMinimum(step, value);
    if (step.direction == StepDirection::Down && HasDate(step.maximum))
        return SetToMaximum(step, value);
    value = clock();
    return StepResult::FromToday;
}

StepResult StepByField(const DateStep& step, DateTimeValue& value)
{
    if (step.field == FieldKind::Year)
        return StepYear(step, value);
    if (!IsSteppable(step.field) || step.direction == StepDirection::Neither)
        return StepResult::Stepped;
    StepField(step, value);
    return KeepInRange(step, value);
}

}  // namespace

StepResult StepDateTime(const DateStep& step, Clock clock, DateTimeValue& value)
{
    const DateTimeValue before = value;
    const StepResult result = IsBlank(value) ? FillBlank(step, clock, value) : StepByField(step, value);
    if (result == StepResult::Refused) {
        value = before;
        return result;
    }
    return CheckEnds(step, result, value);
}

}  // namespace zte
