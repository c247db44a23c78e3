// What a classic control shows, as a modern one would hold it, and back.
#include "engine/modern/classic_content.h"

#include <algorithm>

#include "engine/format/display.h"
#include "engine/modern/date_fields.h"
#include "engine/text/ascii.h"

namespace zte::modern {

namespace {

bool IsClassicBlank(const EditInstance& edit, const Text& text)
{
    Display blank;
    FormatFields(edit, nullptr, blank);
    return text == blank.text;
}

// Neither a month nor a day nor a year of four digits is ever zero.
bool IsNoNumber(const Text& text, const Place& place)
{
    const Text part = TextAt(text, place);
    return dates::BoundsOf(place).least > 0 && std::all_of(part.begin(), part.end(), [](Char c) { return c == '0'; });
}

Text WithBlanks(const EditInstance& edit, Text text)
{
    const Layout layout(edit, text);
    for (const Place& place : layout.Places())
        if (layout.Fits() && IsNoNumber(text, place))
            PutAt(text, place, {});
    return text;
}

Text Padded(const EditInstance& edit, const Text& text)
{
    const Text blank = BlankText(edit);
    return Length(text) < Length(blank) ? text + blank.substr(text.size()) : text;
}

bool ShowsZero(const EditInstance& edit, const Content& content)
{
    return content.text == KindOf(edit).show(edit, nullptr).text;
}

}  // namespace

Content ClassicContent(const EditInstance& edit)
{
    Content content = FromClassic(edit, edit.field->ReadText());
    if (&KindOf(edit) == &kDates)
        content.text = WithBlanks(edit, content.text);
    return content;
}

Content FromClassic(const EditInstance& edit, const Text& text)
{
    Content content;
    content.text = text;
    const Kind& kind = KindOf(edit);
    if (&kind == &kDates && IsClassicBlank(edit, text))
        content.text = BlankText(edit);
    else if (&kind == &kStrings)
        content.text = Padded(edit, text);
    else if (&kind == &kNumbers)
        content.isEmpty = ShowsZero(edit, content);
    return content;
}

Text ToClassic(const EditInstance& edit, const Content& content)
{
    if (&KindOf(edit) != &kDates || KindOf(edit).state(edit, content) == ZTS_INVALID)
        return content.text;
    Content after = content;
    const Layout layout(edit, after.text);
    for (const Place& place : layout.Places())
        if (dates::IsPart(place) && !dates::IsMonthName(place))
            std::replace(after.text.begin() + place.start, after.text.begin() + place.End(), Char{' '}, Char{'0'});
    if (layout.Of(FieldKind::AmPm) && !ShownHalf(edit, after.text))
        dates::PutHalf(edit, after, HalfOfDay::Am);
    return after.text;
}

}  // namespace zte::modern
