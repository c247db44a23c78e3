// Steps of dates and times: the field at the caret, which goes round within itself where no range holds it.
#include <algorithm>

#include "engine/modern/date_fields.h"
#include "engine/spin/range.h"
#include "engine/values/calendar.h"
#include "engine/values/date_time.h"

namespace zte::modern::dates {

namespace {

constexpr int32_t kFirstOfTwoDigits = 1950;
constexpr int32_t kLastOfTwoDigits = 2049;

struct Range {
    DateTimeValue least = kEmptyDateTime;
    DateTimeValue most = kEmptyDateTime;
};

// What a step moves, and by how much.
struct Stepped {
    Place place;
    int32_t by;  // units of the field, upwards or downwards
};

int32_t Around(int32_t number, int32_t by, int32_t least, int32_t most)
{
    const int64_t count = int64_t{most} - least + 1;
    const int64_t moved = (int64_t{number} - least + by) % count;
    return static_cast<int32_t>((moved + count) % count + least);
}

void KeepDayInMonth(DateTimeValue& value)
{
    value.day = static_cast<int8_t>(std::min<int32_t>(value.day, MonthRowOf(4, value.year, value.month).days));
}

// False where the years that the mask can show end.
bool StepYear(const EditInstance& edit, const Stepped& step, DateTimeValue& value)
{
    const bool isShort = step.place.length < 4;
    const int64_t year = int64_t{value.year} + kFirstYear + int64_t{step.by} * std::min(edit.spinIncrement, 9999u);
    if (year < (isShort ? kFirstOfTwoDigits : 1) || year > (isShort ? kLastOfTwoDigits : 9999))
        return false;
    value.year = static_cast<int16_t>(year - kFirstYear);
    KeepDayInMonth(value);
    return true;
}

bool StepField(const EditInstance& edit, const Stepped& step, DateTimeValue& value)
{
    const auto around = [&](int32_t number, int32_t least, int32_t most) {
        return static_cast<int8_t>(Around(number, step.by, least, most));
    };
    switch (step.place.kind) {
    case FieldKind::Year: return StepYear(edit, step, value);
    case FieldKind::Month:
        value.month = around(value.month, 0, kMonths - 1);
        KeepDayInMonth(value);
        return true;
    case FieldKind::Day: value.day = around(value.day, 1, MonthRowOf(4, value.year, value.month).days); return true;
    case FieldKind::DayOfYear:
        DateFromDayOfYear(
            edit.yearDigits,
            Around(DayOfYear(edit.yearDigits, value), step.by, 1, DaysInYear(edit.yearDigits, value.year)), value);
        return true;
    case FieldKind::Hour: value.hour = around(value.hour, 0, 23); return true;
    case FieldKind::Minute: value.minute = around(value.minute, 0, 59); return true;
    case FieldKind::Second: value.second = around(value.second, 0, 59); return true;
    case FieldKind::AmPm: value.hour = static_cast<int8_t>((value.hour + 12) % 24); return true;
    case FieldKind::Fraction: {
        const int32_t unit = FractionUnit(step.place.length);
        const auto shown = static_cast<int32_t>(value.microsecond) / unit;
        value.microsecond = static_cast<uint32_t>(Around(shown, step.by, 0, kMicroseconds / unit - 1) * unit);
        return true;
    }
    default: return false;
    }
}

// Ends that are not given, cannot be read or are out of order do not exist.
Range RangeOf(const EditInstance& edit)
{
    Range range;
    const RangeText ends = SplitRange(edit.spinRange);
    ReadRangeEnd(edit, range.least, ends.minimum);
    ReadRangeEnd(edit, range.most, ends.maximum);
    return IsOutOfOrder(edit.dataType, range.least, range.most) ? Range{} : range;
}

bool HasPart(const EditInstance& edit, const DateTimeValue& end)
{
    return edit.dataType == DT_TIME ? HasTime(end) : HasDate(end);
}

bool IsBelow(const EditInstance& edit, const Range& range, const DateTimeValue& value)
{
    return HasPart(edit, range.least) && IsOutOfOrder(edit.dataType, range.least, value);
}

bool IsAbove(const EditInstance& edit, const Range& range, const DateTimeValue& value)
{
    return HasPart(edit, range.most) && IsOutOfOrder(edit.dataType, value, range.most);
}

// An end of a date-time may be a date alone: its first moment.
DateTimeValue EndValue(const EditInstance& edit, DateTimeValue end)
{
    if (edit.dataType != DT_DATE && !HasTime(end))
        end.hour = 0;
    return end;
}

void BringIntoRange(const EditInstance& edit, const Range& range, DateTimeValue& value)
{
    if (IsBelow(edit, range, value))
        value = EndValue(edit, range.least);
    else if (IsAbove(edit, range, value))
        value = EndValue(edit, range.most);
}

Outcome ShowStepped(const EditInstance& edit, const Content& content, const DateTimeValue& value, int32_t caret)
{
    Content after = Untyped(content);
    after.text = Shown(edit, value);
    const Layout layout(edit, after.text);
    const Place* place = layout.Around(caret);
    if (place)
        after.selection = {place->start, place->End()};
    return Accepted(after);
}

// Steps one by one, as far as the range goes.
Outcome StepValue(const EditInstance& edit, const Content& content, const Place& place, DateTimeValue value,
                  int32_t steps)
{
    const Range range = RangeOf(edit);
    if (IsBelow(edit, range, value) || IsAbove(edit, range, value)) {
        BringIntoRange(edit, range, value);
        return ShowStepped(edit, content, value, place.start);
    }
    const int32_t direction = steps > 0 ? 1 : -1;
    bool any = false;
    for (int32_t left = std::abs(steps); left > 0; --left) {
        DateTimeValue next = value;
        if (!StepField(edit, {place, direction}, next) || IsBelow(edit, range, next) || IsAbove(edit, range, next))
            break;
        value = next;
        any = true;
    }
    return any ? ShowStepped(edit, content, value, place.start) : Refused(ZTR_END_OF_RANGE);
}

// Only the field steps, within its own bounds; a blank one begins at the near one.
Outcome StepAlone(const EditInstance& edit, const Content& content, const Place& place, int32_t steps)
{
    Content after = Untyped(content);
    const FieldText field = ReadField(edit, content.text, place);
    if (place.kind == FieldKind::AmPm) {
        PutHalf(edit, after, field.fill == Fill::Full && field.number == 0 ? HalfOfDay::Pm : HalfOfDay::Am);
    } else {
        const bool ofHalf = place.kind == FieldKind::Hour && HasAmPmField(edit);
        const Bounds bounds = ofHalf ? Bounds{1, 12} : BoundsOf(place);
        const bool none = field.fill == Fill::Blank || field.fill == Fill::Bad;
        const int32_t number = none ? (steps > 0 ? bounds.least : bounds.most)
                                    : Around(std::max(field.number, bounds.least), steps, bounds.least, bounds.most);
        PutNumber(edit, after.text, place, number);
    }
    const Layout layout(edit, after.text);
    if (const Place* stepped = layout.At(place.start))
        after.selection = {stepped->start, stepped->End()};
    return Accepted(after);
}

// What is empty starts from now.
Outcome StepFromNow(const EditInstance& edit, const Content& content)
{
    DateTimeValue value = edit.clock();
    BringIntoRange(edit, RangeOf(edit), value);
    return ShowStepped(edit, content, value, content.Caret());
}

}  // namespace

bool IsOutOfRange(const EditInstance& edit, const DateTimeValue& value)
{
    const Range range = RangeOf(edit);
    return IsBelow(edit, range, value) || IsAbove(edit, range, value);
}

Outcome Step(const EditInstance& edit, const Content& content, int32_t steps)
{
    const Reading reading = ReadAll(edit, content.text);
    if (reading.whole == Whole::Empty)
        return StepFromNow(edit, content);
    const Layout layout(edit, content.text);
    const Place* place = layout.Around(content.Caret());
    if (!place)
        place = layout.Next(content.Caret());
    if (!place || !layout.Fits() || !IsPart(*place))
        return Refused(ZTR_END_OF_RANGE);
    if (reading.whole == Whole::Value)
        return StepValue(edit, content, *place, reading.value, steps);
    return StepAlone(edit, content, *place, steps);
}

}  // namespace zte::modern::dates
