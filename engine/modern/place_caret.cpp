// Where the caret may stand and go under a mask of positions.
#include "engine/modern/place_caret.h"

#include <algorithm>

#include "engine/modern/layout.h"

namespace zte::modern::places {

namespace {

// Behind the last character that is filled in; the first position where none is.
int32_t EndOfFilled(const Layout& layout, const Text& text)
{
    for (auto place = layout.Places().rbegin(); place != layout.Places().rend(); ++place) {
        const Text part = TextAt(text, *place);
        if (!IsBlank(part))
            return place->start + static_cast<int32_t>(part.find_last_not_of(Char{' '})) + 1;
    }
    return layout.First();
}

int32_t End(const Layout& layout, const Text& text, int32_t caret)
{
    const int32_t filled = EndOfFilled(layout, text);
    return caret == filled ? layout.End() : filled;
}

// A designator is one place to stop at.
int32_t Right(const Layout& layout, int32_t caret, bool byWord)
{
    const Place* place = layout.At(caret);
    const bool whole = byWord || (place && place->kind == FieldKind::AmPm);
    const int32_t position = place && whole ? place->End() : caret + 1;
    if (layout.At(position))
        return position;
    const Place* next = layout.Next(position);
    return next ? next->start : layout.End();
}

int32_t Left(const Layout& layout, int32_t caret, bool byWord)
{
    const Place* place = layout.At(caret - 1);
    if (!place)
        place = layout.Before(caret);
    if (!place)
        return layout.First();
    const bool whole = byWord || place->kind == FieldKind::AmPm;
    return whole ? place->start : std::min(caret - 1, place->End() - 1);
}

// Of a place that holds several words the one at a position; else the place.
Selection WordIn(const Text& text, const Place& place, int32_t position)
{
    const auto isOfWord = [&](int32_t at) { return place.Holds(at) && zte::At(text, at) != ' '; };
    Selection word = {position, position};
    while (isOfWord(word.start - 1))
        --word.start;
    while (isOfWord(word.end))
        ++word.end;
    const Text part = TextAt(text, place);
    const size_t first = part.find_first_not_of(Char{' '});
    const bool several = part.find(Char{' '}, first) < part.find_last_not_of(Char{' '});
    return several && !word.IsEmpty() ? word : Selection{place.start, place.End()};
}

// On a literal the nearest position; the tie goes to the right, where the next field begins.
int32_t Nearest(const Layout& layout, int32_t position)
{
    if (const Place* place = layout.At(position))
        return place->kind == FieldKind::AmPm ? place->start : position;
    const Place* before = layout.Before(position);
    const Place* next = layout.Next(position);
    if (!before || !next)
        return next ? next->start : layout.End();
    return position - (before->End() - 1) < next->start - position ? before->End() - 1 : next->start;
}

}  // namespace

int32_t Move(const EditInstance& edit, const Content& content, Key key, bool control)
{
    const Layout layout(edit, content.text);
    const Selection selection = content.selection;
    const bool collapses = !selection.IsEmpty() && !control;
    switch (key) {
    case KEY_HOME: return layout.First();
    case KEY_END: return End(layout, content.text, selection.end);
    case KEY_LEFT: return collapses ? Nearest(layout, selection.start) : Left(layout, selection.start, control);
    default: return collapses ? Nearest(layout, selection.end) : Right(layout, selection.end, control);
    }
}

// Behind all positions where something is to be filled in: most clicks into an empty field are meant so.
int32_t Click(const EditInstance& edit, const Content& content, int32_t position)
{
    const Layout layout(edit, content.text);
    return Nearest(layout, position < layout.End() ? position : EndOfFilled(layout, content.text));
}

Selection WordAt(const EditInstance& edit, const Content& content, int32_t position)
{
    const Layout layout(edit, content.text);
    const Place* place = layout.Around(std::min(position, layout.End()));
    if (!place)
        place = layout.Next(position);
    return place ? WordIn(content.text, *place, position) : Selection{0, Length(content.text)};
}

}  // namespace zte::modern::places
