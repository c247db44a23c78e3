// Deletion in dates and times: positions become blank, the digits of one field close up, literals stand.
#include <algorithm>

#include "engine/modern/date_fields.h"

namespace zte::modern::dates {

namespace {

Text WithoutBlanks(Text part)
{
    part.erase(std::remove(part.begin(), part.end(), Char{' '}), part.end());
    return part;
}

// What is left of a field without the positions of a range.
Text Left(const Place& place, const Text& part, int32_t from, int32_t to)
{
    if (place.kind == FieldKind::AmPm)
        return {};
    const auto first = static_cast<size_t>(std::clamp(from - place.start, 0, place.length));
    const auto last = static_cast<size_t>(std::clamp(to - place.start, 0, place.length));
    if (IsMonthName(place))
        return part.substr(0, first);
    if (!IsPart(place))
        return part.substr(0, first) + Text(last - first, ' ') + part.substr(last);
    return WithoutBlanks(part.substr(0, first) + part.substr(last));
}

void TakeOut(Text& text, const Place& place, int32_t from, int32_t to)
{
    if (from < place.End() && to > place.start)
        PutAt(text, place, Left(place, TextAt(text, place), from, to));
}

// A designator and a month's name are taken from their beginning on.
int32_t CaretIn(const Place& place, int32_t position)
{
    return place.kind == FieldKind::AmPm ? place.start : std::max(place.start, position);
}

int32_t Filled(const Text& text, const Place& place)
{
    const Text part = TextAt(text, place);
    return static_cast<int32_t>(part.find_last_not_of(Char{' '}) + 1);
}

Content Without(const Content& content, const Place& place, int32_t from, int32_t to)
{
    Content after = Untyped(content);
    TakeOut(after.text, place, from, to);
    const int32_t caret = CaretIn(place, from);
    after.selection = {caret, caret};
    return after;
}

// The last filled position before the caret; over the literals at a field's start.
Outcome EraseBack(const EditInstance& edit, const Content& content, bool word)
{
    const Layout layout(edit, content.text);
    const int32_t caret = content.Caret();
    const Place* place = layout.At(caret);
    if (!place || caret == place->start)
        place = layout.Before(caret);
    if (!place)
        return Accepted(content);
    const int32_t end = std::min(caret, place->start + Filled(content.text, *place));
    return Accepted(
        Without(content, *place, word ? place->start : std::max(end - 1, place->start), word ? place->End() : end));
}

Outcome EraseForward(const EditInstance& edit, const Content& content, bool word)
{
    const Layout layout(edit, content.text);
    const int32_t caret = content.Caret();
    const Place* place = layout.At(caret);
    if (!place || IsBlank(Slice(content.text, caret, place->End() - caret)))
        place = layout.Next(caret + 1);
    if (!place)
        return Accepted(content);
    const int32_t from = std::max(caret, place->start);
    return Accepted(Without(content, *place, word ? place->start : from, word ? place->End() : from + 1));
}

}  // namespace

Content WithoutSelection(const EditInstance& edit, const Content& content)
{
    const Layout layout(edit, content.text);
    const Selection selection = content.selection;
    Content after = Untyped(content);
    const Place* first = nullptr;
    for (const Place& place : layout.Places()) {
        if (selection.start >= place.End() || selection.end <= place.start)
            continue;
        TakeOut(after.text, place, selection.start, selection.end);
        first = first ? first : &place;
    }
    const Place* next = first ? first : layout.Next(selection.start);
    const int32_t caret = next ? CaretIn(*next, selection.start) : layout.End();
    after.selection = {caret, caret};
    return after;
}

Outcome Erase(const EditInstance& edit, const Content& content, Eraser eraser)
{
    if (!Layout(edit, content.text).Fits()) {
        Content blank;
        blank.text = BlankText(edit);
        const int32_t first = Layout(edit, blank.text).First();
        return Accepted(WithCaret(blank, first));
    }
    if (!content.selection.IsEmpty())
        return Accepted(WithoutSelection(edit, content));
    const bool back = eraser == Eraser::Back || eraser == Eraser::BackWord;
    const bool word = eraser == Eraser::BackWord || eraser == Eraser::ForwardWord;
    return back ? EraseBack(edit, content, word) : EraseForward(edit, content, word);
}

}  // namespace zte::modern::dates
