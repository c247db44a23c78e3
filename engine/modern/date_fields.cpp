// The fields of dates and times.
#include "engine/modern/date_fields.h"

#include <algorithm>

#include "engine/format/display.h"
#include "engine/text/ascii.h"
#include "engine/values/calendar.h"
#include "engine/values/date_time.h"
#include "engine/values/month_names.h"

namespace zte::modern {

namespace dates {

namespace {

constexpr int32_t kFourDigits = 4;
constexpr int32_t kPivot = 50;  // two digits below it are of the 2000s

struct BoundsRow {
    FieldKind kind;
    Bounds bounds;
};

constexpr BoundsRow kBounds[] = {
    {FieldKind::Month,     {1, 12}    },
    {FieldKind::Day,       {1, 31}    },
    {FieldKind::DayOfYear, {1, 366}   },
    {FieldKind::Hour,      {0, 23}    },
    {FieldKind::Minute,    {0, 59}    },
    {FieldKind::Second,    {0, 59}    },
    {FieldKind::Year,      {1, 9999}  },
    {FieldKind::Fraction,  {0, 999999}},
};

int32_t PowerOfTen(int32_t exponent)
{
    int32_t power = 1;
    for (; exponent > 0 && power < 1000000; --exponent)
        power *= 10;
    return power;
}

}  // namespace

bool IsPart(const Place& place)
{
    return place.kind >= FieldKind::Year && place.length > 0;
}

bool IsMonthName(const Place& place)
{
    return place.kind == FieldKind::Month && place.length > 2;
}

// Years of two digits have all of them; a field of fewer digits than its greatest number has those that it can show.
Bounds BoundsOf(const Place& place)
{
    const int32_t shown = PowerOfTen(place.length) - 1;
    for (const BoundsRow& row : kBounds)
        if (row.kind == place.kind)
            return {place.kind == FieldKind::Year && place.length < kFourDigits ? 0 : row.bounds.least,
                    std::min(row.bounds.most, shown)};
    return {0, shown};
}

namespace {

int32_t LeadingDigits(const Text& text)
{
    return static_cast<int32_t>(std::find_if_not(text.begin(), text.end(), IsDigit) - text.begin());
}

}  // namespace

Text MonthShown(const EditInstance& edit, const Place& place, int32_t month)
{
    return Slice(MonthName(*edit.settings, month - 1), 0, place.length);
}

MonthsFound FindMonths(const EditInstance& edit, const Place& place, const Text& letters)
{
    const Text folded = Folded(*edit.settings, letters);
    MonthsFound found{};
    for (int32_t month = 1; month <= kMonths; ++month) {
        const Text name = Folded(*edit.settings, MonthShown(edit, place, month));
        if (name.empty() || name.compare(0, folded.size(), folded) != 0)
            continue;
        if (found.count++ == 0)
            found.first = month;
    }
    return found;
}

namespace {

FieldText ReadDigits(const Text& part, const Bounds& bounds)
{
    const int32_t filled = LeadingDigits(part);
    if (!IsBlank(part.substr(static_cast<size_t>(filled))))
        return {Fill::Bad, 0, 0};
    if (filled == 0)
        return {Fill::Blank, 0, 0};
    const int32_t number = IntegerOf(part);
    if (filled < Length(part))
        return {Fill::Partial, number, filled};
    return {number >= bounds.least && number <= bounds.most ? Fill::Full : Fill::Bad, number, filled};
}

FieldText ReadMonthName(const EditInstance& edit, const Place& place, const Text& part)
{
    const Text letters = WithoutBlanksBehind(part);
    if (letters.empty())
        return {Fill::Blank, 0, 0};
    if (LeadingDigits(letters) == Length(letters))
        return {Fill::Partial, IntegerOf(letters), Length(letters)};
    const MonthsFound found = FindMonths(edit, place, letters);
    if (found.count == 0)
        return {Fill::Bad, 0, 0};
    const bool whole = Folded(*edit.settings, MonthShown(edit, place, found.first)) == Folded(*edit.settings, letters);
    return {whole ? Fill::Full : Fill::Partial, found.first, Length(letters)};
}

FieldText ReadHalf(const EditInstance& edit, const Text& text, const Place& place)
{
    if (const std::optional<HalfOfDay> half = ShownHalf(edit, text))
        return {Fill::Full, static_cast<int32_t>(*half), place.length};
    return {IsBlank(TextAt(text, place)) ? Fill::Blank : Fill::Bad, 0, 0};
}

// The hour as it is shown: of the half day where there is a designator.
Bounds ShownBounds(const EditInstance& edit, const Place& place)
{
    return place.kind == FieldKind::Hour && HasAmPmField(edit) ? Bounds{1, 12} : BoundsOf(place);
}

}  // namespace

FieldText ReadField(const EditInstance& edit, const Text& text, const Place& place)
{
    if (place.kind == FieldKind::AmPm)
        return ReadHalf(edit, text, place);
    const Text part = TextAt(text, place);
    if (IsMonthName(place))
        return ReadMonthName(edit, place, part);
    if (IsPart(place))
        return ReadDigits(part, ShownBounds(edit, place));
    return {IsBlank(part) ? Fill::Blank : Fill::Full, 0, place.length};
}

namespace {

// ---- writing

}  // namespace

void PutNumber(const EditInstance& edit, Text& text, const Place& place, int32_t number)
{
    if (IsMonthName(place))
        PutAt(text, place, MonthShown(edit, place, number));
    else
        PutAt(text, place, NumberText(static_cast<uint32_t>(number), place.length));
}

void PutHalf(const EditInstance& edit, Content& content, HalfOfDay half)
{
    const Layout layout(edit, content.text);
    const Place* place = layout.Of(FieldKind::AmPm);
    if (!place)
        return;
    const Text designator = DesignatorOf(*edit.settings, half);
    content.text.replace(static_cast<size_t>(place->start), static_cast<size_t>(place->length), designator);
    const int32_t moved = Length(designator) - place->length;
    if (content.selection.start >= place->End()) {
        content.selection.start += moved;
        content.selection.end += moved;
    }
}

void SettleHour(const EditInstance& edit, Content& content)
{
    const Layout layout(edit, content.text);
    const Place* hour = layout.Of(FieldKind::Hour);
    if (!HasAmPmField(edit) || !hour)
        return;
    const int32_t number = DigitsAt(content.text, hour->start, hour->length);
    if (number < 0 || number > 23)
        return;
    const bool isPm = number >= 12;
    const bool ofTheDay = number == 0 || number > 12;
    const int32_t shown = number % 12 == 0 ? 12 : number % 12;
    PutNumber(edit, content.text, *hour, shown);
    if (ofTheDay || !ShownHalf(edit, content.text))
        PutHalf(edit, content, isPm ? HalfOfDay::Pm : HalfOfDay::Am);
}

namespace {

// Two digits of a year are completed by the pivot, one stands for 200x; three may be any.
int32_t CompletedYear(const FieldText& field, const Place& place)
{
    if (place.length < kFourDigits)
        return field.number;
    if (field.filled > 2)
        return -1;
    return field.number + (field.number < kPivot ? 2000 : 1900);
}

// The number that the digits typed so far make; -1: none.
int32_t CompletedNumber(const FieldText& field, const Place& place)
{
    if (place.kind == FieldKind::Year)
        return CompletedYear(field, place);
    if (place.kind == FieldKind::Fraction)
        return field.number * PowerOfTen(place.length - field.filled);
    const Bounds bounds = BoundsOf(place);
    return field.number >= bounds.least && field.number <= bounds.most ? field.number : -1;
}

}  // namespace

void Complete(const EditInstance& edit, Content& content, const Place& place)
{
    if (!IsPart(place) || place.kind == FieldKind::AmPm)
        return;
    // An hour that is typed is one of the day until it is settled.
    const FieldText field = IsMonthName(place) ? ReadField(edit, content.text, place)
                                               : ReadDigits(TextAt(content.text, place), BoundsOf(place));
    if (field.fill != Fill::Partial)
        return;
    const int32_t number = CompletedNumber(field, place);
    if (number < 0)
        return;
    PutNumber(edit, content.text, place, number);
    if (place.kind == FieldKind::Hour)
        SettleHour(edit, content);
}

namespace {

// ---- all fields

struct Collected {
    bool any = false;      // something is filled
    bool missing = false;  // a part is not, or not wholly
    bool bad = false;
    DateTimeValue value = kEmptyDateTime;
    int32_t dayOfYear = 0;
    int32_t hour = -1;
    bool hasDay = false;
};

void TakeDate(Collected& all, FieldKind kind, int32_t number, int32_t digits)
{
    switch (kind) {
    case FieldKind::Year: all.value.year = static_cast<int16_t>(YearValue(number, digits)); break;
    case FieldKind::Month: all.value.month = static_cast<int8_t>(number - 1); break;
    case FieldKind::Day:
        all.value.day = static_cast<int8_t>(number);
        all.hasDay = true;
        break;
    case FieldKind::DayOfYear: all.dayOfYear = number; break;
    default: break;
    }
}

void TakeTime(Collected& all, FieldKind kind, int32_t number, int32_t digits)
{
    switch (kind) {
    case FieldKind::Hour: all.hour = number; break;
    case FieldKind::Minute: all.value.minute = static_cast<int8_t>(number); break;
    case FieldKind::Second: all.value.second = static_cast<int8_t>(number); break;
    case FieldKind::Fraction: all.value.microsecond = static_cast<uint32_t>(number * FractionUnit(digits)); break;
    default: break;
    }
}

void Take(Collected& all, const Place& place, const FieldText& field)
{
    all.any = all.any || field.fill != Fill::Blank;
    if (!IsPart(place))
        return;
    all.bad = all.bad || field.fill == Fill::Bad;
    all.missing = all.missing || field.fill != Fill::Full;
    TakeDate(all, place.kind, field.number, place.length);
    TakeTime(all, place.kind, field.number, place.length);
}

}  // namespace

bool Exists(const DateTimeValue& value)
{
    const int32_t year = value.year + kFirstYear;
    return year >= 1 && year <= 9999 && value.month >= 0 && value.month < kMonths && value.day >= 1 &&
           value.day <= MonthRowOf(kFourDigits, value.year, value.month).days;
}

namespace {

// A mask without days means the first of the month; one with days of the year has no others. False: there is no such date.
bool FinishDate(const EditInstance& edit, Collected& all)
{
    if (!HasDate(all.value))
        return false;
    if (all.dayOfYear > 0) {
        if (all.dayOfYear > DaysInYear(edit.yearDigits, all.value.year))
            return false;
        DateFromDayOfYear(edit.yearDigits, all.dayOfYear, all.value);
    } else if (!all.hasDay) {
        all.value.day = 1;
    }
    return Exists(all.value);
}

// A mask without hours means the first of the day.
void FinishTime(const EditInstance& edit, const Text& text, Collected& all)
{
    int32_t hour = std::max(all.hour, 0);
    if (HasAmPmField(edit) && all.hour >= 0)
        hour = hour % 12 + (ShownHalf(edit, text) == HalfOfDay::Pm ? 12 : 0);
    all.value.hour = static_cast<int8_t>(hour);
}

}  // namespace

Reading ReadAll(const EditInstance& edit, const Text& text)
{
    const Layout layout(edit, text);
    Collected all;
    for (const Place& place : layout.Places())
        Take(all, place, ReadField(edit, text, place));
    if (text.empty() || (layout.Fits() && !all.any))
        return {Whole::Empty, kEmptyDateTime};
    if (!layout.Fits() || all.bad)
        return {Whole::Invalid, kEmptyDateTime};
    if (all.missing)
        return {Whole::Incomplete, kEmptyDateTime};
    if (edit.dataType != DT_TIME && !FinishDate(edit, all))
        return {Whole::Invalid, kEmptyDateTime};
    if (edit.dataType != DT_DATE)
        FinishTime(edit, text, all);
    return {Whole::Value, all.value};
}

bool IsOfTheDate(FieldKind kind)
{
    return kind >= FieldKind::Year && kind <= FieldKind::DayOfYear;
}

Text Shown(const EditInstance& edit, const DateTimeValue& value)
{
    Display display;
    FormatFields(edit, &value, display);
    Text text = std::move(display.text);
    const Layout layout(edit, text);
    for (const Place& place : layout.Places())
        if (IsPart(place) && !(IsOfTheDate(place.kind) ? HasDate(value) : HasTime(value)))
            PutAt(text, place, {});
    return text;
}

}  // namespace dates

}  // namespace zte::modern
