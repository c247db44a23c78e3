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

// The last filled position before the caret; over the literals at a field's start, where the field that is left ends.
Outcome EraseBack(const EditInstance& edit, const Content& content, bool word)
{
    const Layout before(edit, content.text);
    const int32_t caret = content.Caret();
    const Place* const left = before.At(caret);
    const Place* const taken = !left || caret == left->start ? before.Before(caret) : left;
    if (!taken)
        return Accepted(content);
    const int32_t filled = std::min(caret - taken->start, Filled(content.text, *taken));
    Content after = content;
    if (left && left != taken)
        Complete(edit, after, *left);
    const Layout layout(edit, after.text);
    const Place& place = layout.Places()[static_cast<size_t>(taken - before.Places().data())];
    if (filled == 0)
        return Accepted(Without(after, place, place.start, place.start));
    const int32_t end = place.start + filled;
    return Accepted(Without(after, place, word ? place.start : end - 1, word ? place.End() : end));
}

// Nothing to take behind the caret in its field: the field ends, and the caret stands where the next one begins.
bool GoToNextField(const EditInstance& edit, Content& content)
{
    const Layout layout(edit, content.text);
    const int32_t caret = content.Caret();
    const Place* place = layout.At(caret);
    if (place && !IsBlank(Slice(content.text, caret, place->End() - caret)))
        return true;
    const Place* next = layout.Next(caret + 1);
    if (!next)
        return false;
    const auto index = next - layout.Places().data();
    if (place)
        Complete(edit, content, *place);
    const Layout after(edit, content.text);
    const int32_t start = after.Places()[static_cast<size_t>(index)].start;
    content.selection = {start, start};
    return true;
}

Outcome EraseForward(const EditInstance& edit, const Content& content, bool word)
{
    Content after = content;
    if (!GoToNextField(edit, after))
        return Accepted(content);
    const Layout layout(edit, after.text);
    const int32_t from = after.Caret();
    const Place& place = *layout.At(from);
    return Accepted(Without(after, place, word ? place.start : from, word ? place.End() : from + 1));
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
