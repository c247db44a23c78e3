// Dates, times and date-times as a kind.
#include "engine/format/date_text.h"
#include "engine/modern/date_fields.h"
#include "engine/modern/place_caret.h"
#include "engine/values/caller_value.h"
#include "engine/values/date_time.h"

namespace zte::modern {

namespace dates {

namespace {

Content AtFirst(const EditInstance& edit, Text text)
{
    Content content;
    content.text = std::move(text);
    const int32_t first = Layout(edit, content.text).First();
    content.selection = {first, first};
    return content;
}

Content Show(const EditInstance& edit, const void* data)
{
    const DateTimeValue value = data ? ReadValue<DateTimeValue>(data) : kEmptyDateTime;
    if (!HasDate(value) && !HasTime(value))
        return AtFirst(edit, BlankText(edit));
    return AtFirst(edit, Shown(edit, value));
}

std::optional<Content> ReadCanonical(const EditInstance& edit, const Text& text)
{
    DateTimeValue value;
    if (!ParseCanonical(edit, text.c_str(), value) || !ShowsSame(edit, value))
        return std::nullopt;
    return AtFirst(edit, Shown(edit, value));
}

int32_t State(const EditInstance& edit, const Content& content)
{
    const Reading reading = ReadAll(edit, content.text);
    switch (reading.whole) {
    case Whole::Empty: return ZTS_EMPTY;
    case Whole::Incomplete: return ZTS_INCOMPLETE;
    case Whole::Invalid: return ZTS_INVALID;
    default: return IsOutOfRange(edit, reading.value) ? ZTS_OUT_OF_RANGE : ZTS_COMPLETE;
    }
}

Text DateText(const DateTimeValue& value)
{
    return NumberText(static_cast<uint32_t>(value.year + kFirstYear), 4) + Char{'-'} + TwoDigits(value.month + 1) +
           Char{'-'} + TwoDigits(value.day);
}

Text TimeText(const DateTimeValue& value)
{
    const Text time = TwoDigits(value.hour) + Char{':'} + TwoDigits(value.minute) + Char{':'} + TwoDigits(value.second);
    return value.microsecond == 0 ? time : time + Char{':'} + NumberText(value.microsecond, kMicroDigits);
}

Text Canonical(const EditInstance& edit, const Content& content)
{
    const DateTimeValue value = ReadAll(edit, content.text).value;
    const Text date = HasDate(value) ? DateText(value) : Text();
    const Text time = HasTime(value) ? TimeText(value) : Text();
    return date.empty() || time.empty() ? date + time : date + Char{' '} + time;
}

// The field that the caret was in is completed, unless the caret stays in it.
Content Leave(const EditInstance& edit, const Content& content, int32_t position)
{
    const Layout layout(edit, content.text);
    const int32_t caret = content.Caret();
    const Place* place = caret == layout.End() ? layout.Before(caret) : layout.At(caret);
    if (!place || !layout.Fits() || place->Holds(position))
        return content;
    Content after = content;
    Complete(edit, after, *place);
    return after;
}

}  // namespace

}  // namespace dates

const Kind kDates = {dates::Show,    dates::ReadCanonical, dates::State, dates::Canonical, dates::Type,
                     dates::Erase,   dates::Paste,         dates::Step,  places::Move,     places::Click,
                     places::WordAt, dates::Leave,         false};

}  // namespace zte::modern
