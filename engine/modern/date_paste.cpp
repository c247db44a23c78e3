// What is pasted into dates and times: read first, then shown, and refused where the mask would show another value.
#include "engine/modern/date_fields.h"
#include "engine/modern/date_reader.h"
#include "engine/modern/date_tokens.h"
#include "engine/values/date_time.h"

namespace zte::modern::dates {

namespace {

// The parts of a field's own display that are filled in.
struct OwnParts {
    bool date = true;  // all of it
    bool time = true;
    bool anyDate = false;
    bool anyTime = false;
};

OwnParts PartsOf(const EditInstance& edit, const Text& text)
{
    OwnParts parts;
    const Layout layout(edit, text);
    for (const Place& place : layout.Places()) {
        if (!IsPart(place))
            continue;
        const Fill fill = ReadField(edit, text, place).fill;
        const bool ofDate = IsOfTheDate(place.kind);
        bool& whole = ofDate ? parts.date : parts.time;
        bool& any = ofDate ? parts.anyDate : parts.anyTime;
        whole = whole && fill == Fill::Full;
        any = any || fill != Fill::Blank;
    }
    return parts;
}

// The text with another text's date. A field of a date has the same length in both, wherever the designators move it.
Text WithDateOf(const EditInstance& edit, Text text, const Text& other)
{
    const Layout layout(edit, text);
    const Layout otherLayout(edit, other);
    for (size_t i = 0; i < layout.Places().size(); ++i)
        if (const Place& place = layout.Places()[i]; IsPart(place) && IsOfTheDate(place.kind))
            PutAt(text, place, TextAt(other, otherLayout.Places()[i]));
    return text;
}

Outcome Pasted(const EditInstance& edit, const Content& content, const Text& shown, bool hasDate, bool hasTime)
{
    const bool isShown = Layout(edit, content.text).Fits();
    const Text before = isShown ? content.text : BlankText(edit);
    Content after;
    after.text = shown;
    if (edit.dataType == DT_DATETIME && !hasTime)
        after.text = WithDateOf(edit, before, shown);
    else if (edit.dataType == DT_DATETIME && !hasDate)
        after.text = WithDateOf(edit, shown, before);
    const int32_t end = Layout(edit, after.text).End();
    return Accepted(WithCaret(std::move(after), end));
}

// What the field would read of a value that lacks a part: the first of January, midnight.
DateTimeValue Completed(DateTimeValue value)
{
    if (!HasDate(value)) {
        value.year = 100;
        value.day = 1;
    }
    if (!HasTime(value))
        value.hour = 0;
    return value;
}

// The field of the text that the mask would show as another one: a century, a day or minutes that it does not have. Seconds do not count.
const FoundField* FindLost(const DateReading& reading, const DateTimeValue& shown)
{
    const DateTimeValue& value = reading.value;
    if (HasDate(value) && value.year != shown.year)
        return &reading.Of(FieldKind::Year);
    if (HasDate(value) && (value.month != shown.month || value.day != shown.day))
        return &reading.Of(value.month != shown.month ? FieldKind::Month : FieldKind::Day);
    if (HasTime(value) && (value.hour != shown.hour || value.minute != shown.minute))
        return &reading.Of(value.hour != shown.hour ? FieldKind::Hour : FieldKind::Minute);
    return nullptr;
}

Outcome ShowRead(const EditInstance& edit, const Content& content, const DateReading& reading)
{
    const Text shown = Shown(edit, Completed(reading.value));
    const Reading back = ReadAll(edit, shown);
    if (back.whole != Whole::Value)
        return Refused(ZTR_DOES_NOT_FIT, 0);
    if (const FoundField* lost = FindLost(reading, Completed(back.value)))
        return Refused(ZTR_DOES_NOT_FIT, lost->start);
    return Pasted(edit, content, shown, HasDate(reading.value), HasTime(reading.value));
}

// Of the display's own form: as a field that is filled in shows it, its names of months in any case.
Text Normalized(const EditInstance& edit, Text text)
{
    const Layout layout(edit, text);
    for (const Place& place : layout.Places())
        if (IsMonthName(place))
            PutNumber(edit, text, place, ReadField(edit, text, place).number);
    return text;
}

// Whether a display's date, at any time of the day, is one.
bool ShowsDate(const EditInstance& edit, const Text& text)
{
    return ReadAll(edit, WithDateOf(edit, Shown(edit, Completed(kEmptyDateTime)), text)).whole == Whole::Value;
}

// A display with blank fields: nothing at all, a date alone, a time alone; else it lacks fields.
std::optional<Outcome> ShowOwn(const EditInstance& edit, const Content& content, const Text& text)
{
    if (!Layout(edit, text).Fits())
        return std::nullopt;
    if (ReadAll(edit, text).whole == Whole::Value)
        return Pasted(edit, content, Normalized(edit, text), true, true);
    const OwnParts parts = PartsOf(edit, text);
    if (!parts.anyDate && !parts.anyTime)
        return Pasted(edit, content, BlankText(edit), true, true);
    const bool oneAlone = (parts.date && !parts.anyTime) || (parts.time && !parts.anyDate);
    if (edit.dataType != DT_DATETIME || !oneAlone)
        return std::nullopt;
    if (parts.date && !ShowsDate(edit, text))
        return Refused(ZTR_DOES_NOT_EXIST, Layout(edit, text).First());
    return Pasted(edit, content, Normalized(edit, text), parts.date, parts.time);
}

}  // namespace

bool ShowsSame(const EditInstance& edit, const DateTimeValue& value)
{
    const Reading back = ReadAll(edit, Shown(edit, Completed(value)));
    if (back.whole != Whole::Value)
        return false;
    const DateTimeValue shown = Completed(back.value);
    const bool sameDate = value.year == shown.year && value.month == shown.month && value.day == shown.day;
    const bool sameTime = value.hour == shown.hour && value.minute == shown.minute;
    return (sameDate || !HasDate(value)) && (sameTime || !HasTime(value));
}

Outcome Paste(const EditInstance& edit, const Content& content, const Text& text)
{
    if (text.empty())  // of a program that takes the selection out
        return content.selection.IsEmpty() ? Accepted(content) : Erase(edit, content, Eraser::Forward);
    // What the field itself shows comes first: a day before a month, copied and pasted back, stays one.
    if (std::optional<Outcome> own = ShowOwn(edit, content, text))
        return std::move(*own);
    const DateReading reading = ReadDateText(edit, text);
    return reading.reason == 0 ? ShowRead(edit, content, reading) : Refused(reading.reason, reading.position);
}

}  // namespace zte::modern::dates
