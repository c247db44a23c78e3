// Strings as a kind: characters at positions, each of its own kind, between literals that stand.
#include <algorithm>

#include "engine/modern/kind.h"
#include "engine/modern/layout.h"
#include "engine/modern/place_caret.h"
#include "engine/services.h"
#include "engine/text/ascii.h"

namespace zte::modern {

namespace strings {

namespace {

constexpr Char kBlank = ' ';
constexpr char kSeparators[] = " -./()";

bool IsSeparator(Char c)
{
    return std::find(std::begin(kSeparators), std::end(kSeparators) - 1, c) != std::end(kSeparators) - 1;
}

// The character that a position shows for one that is typed; NUL: it takes none such.
Char Taken(const EditInstance& edit, FieldKind kind, Char typed)
{
    switch (kind) {
    case FieldKind::Digit: return IsDigit(typed) ? typed : Char{};
    case FieldKind::Alphanumeric: return IsDigit(typed) || edit.settings->letters->isLetter(typed) ? typed : Char{};
    case FieldKind::Any: return typed;
    case FieldKind::UpperCase: return services::ToUpper(typed, *edit.settings);
    case FieldKind::LowerCase: return services::ToLower(typed, *edit.settings);
    default: return Char{};
    }
}

FieldKind KindAt(const EditInstance& edit, const Text& text, int32_t position)
{
    return PositionOf(edit, text, position).kind;
}

Content Blank(const EditInstance& edit)
{
    Content content;
    content.text = BlankText(edit);
    const int32_t first = Layout(edit, content.text).First();
    content.selection = {first, first};
    return content;
}

// ---- values

// Characters laid into the positions, as many as there are.
Content Laid(const EditInstance& edit, const Text& characters)
{
    if (!HasMask(edit)) {
        Content content;
        content.text = characters;
        return content;
    }
    Content content = Blank(edit);
    size_t next = 0;
    const Layout layout(edit, content.text);
    for (const Place& place : layout.Places())
        for (int32_t i = place.start; i < place.End() && next < characters.size(); ++i)
            content.text[static_cast<size_t>(i)] = characters[next++];
    return content;
}

Content Show(const EditInstance& edit, const void* data)
{
    return Laid(edit, data ? Text(static_cast<const Char*>(data)) : Text());
}

Text Canonical(const EditInstance& edit, const Content& content)
{
    if (!HasMask(edit))
        return content.text;
    Text characters;
    const Layout layout(edit, content.text);
    for (const Place& place : layout.Places())
        characters += TextAt(content.text, place);
    return WithoutBlanksBehind(characters);
}

// Whether what stands at the positions could have been typed there.
bool IsTyped(const EditInstance& edit, const Layout& layout, const Text& text)
{
    for (const Place& place : layout.Places())
        for (int32_t i = place.start; i < place.End(); ++i)
            if (At(text, i) != kBlank && Taken(edit, KindAt(edit, text, i), At(text, i)) == Char{})
                return false;
    return true;
}

std::optional<Content> ReadCanonical(const EditInstance& edit, const Text& text)
{
    Content content = Laid(edit, text);
    const Layout layout(edit, content.text);
    if (HasMask(edit) &&
        (Canonical(edit, content) != WithoutBlanksBehind(text) || !IsTyped(edit, layout, content.text)))
        return std::nullopt;
    return content;
}

int32_t CountPositions(const Layout& layout)
{
    int32_t count = 0;
    for (const Place& place : layout.Places())
        count += place.length;
    return count;
}

// Digits are required where there are literals to go with them.
bool LacksDigit(const EditInstance& edit, const Layout& layout, const Text& text)
{
    if (CountPositions(layout) == layout.TextLength())
        return false;
    for (const Place& place : layout.Places())
        for (int32_t i = place.start; i < place.End(); ++i)
            if (At(text, i) == kBlank && KindAt(edit, text, i) == FieldKind::Digit)
                return true;
    return false;
}

int32_t State(const EditInstance& edit, const Content& content)
{
    if (IsBlank(content.text))
        return ZTS_EMPTY;
    if (!HasMask(edit))
        return ZTS_COMPLETE;
    const Layout layout(edit, content.text);
    if (!layout.Fits() || !IsTyped(edit, layout, content.text))
        return ZTS_INVALID;
    if (Canonical(edit, content).empty())
        return ZTS_EMPTY;
    return LacksDigit(edit, layout, content.text) ? ZTS_INCOMPLETE : ZTS_COMPLETE;
}

// ---- deletion

// Positions of a range become blank.
Text Blanked(const Layout& layout, Text text, int32_t from, int32_t to)
{
    for (const Place& place : layout.Places())
        for (int32_t i = std::max(place.start, from); i < std::min(place.End(), to); ++i)
            text[static_cast<size_t>(i)] = kBlank;
    return text;
}

Content Without(const EditInstance& edit, const Content& content, int32_t from, int32_t to)
{
    const Layout layout(edit, content.text);
    Content after = Untyped(content);
    after.text = Blanked(layout, after.text, from, to);
    const Place* next = layout.Next(from);
    const int32_t caret = layout.At(from) ? from : next ? next->start : layout.End();
    after.selection = {caret, caret};
    return after;
}

// The beginning of the word before a position, within its place.
int32_t WordStart(const Text& text, const Place& place, int32_t position)
{
    while (position > place.start && At(text, position - 1) == kBlank)
        --position;
    while (position > place.start && At(text, position - 1) != kBlank)
        --position;
    return position;
}

int32_t WordEnd(const Text& text, const Place& place, int32_t position)
{
    while (position < place.End() && At(text, position) != kBlank)
        ++position;
    return position;  // the blanks behind are blank already
}

Outcome EraseBack(const EditInstance& edit, const Content& content, bool word)
{
    const Layout layout(edit, content.text);
    const int32_t caret = content.Caret();
    const Place* place = layout.At(caret);
    if (!place || caret == place->start)
        place = layout.Before(caret);
    if (!place)
        return Accepted(content);
    const int32_t end = std::min(caret, place->End());
    return Accepted(Without(edit, content, word ? WordStart(content.text, *place, end) : end - 1, end));
}

Outcome EraseForward(const EditInstance& edit, const Content& content, bool word)
{
    const Layout layout(edit, content.text);
    const Place* place = layout.At(content.Caret());
    if (!place)
        place = layout.Next(content.Caret());
    if (!place)
        return Accepted(content);
    const int32_t from = std::max(content.Caret(), place->start);
    return Accepted(Without(edit, content, from, word ? WordEnd(content.text, *place, from) : from + 1));
}

Content WithoutSelection(const EditInstance& edit, const Content& content)
{
    if (content.selection.IsEmpty())
        return content;
    return Without(edit, content, content.selection.start, content.selection.end);
}

// A text that the mask does not show gives way to the blank one.
Content Start(const EditInstance& edit, const Content& content)
{
    return Layout(edit, content.text).Fits() ? WithoutSelection(edit, content) : Blank(edit);
}

Outcome Erase(const EditInstance& edit, const Content& content, Eraser eraser)
{
    if (!Layout(edit, content.text).Fits())
        return Accepted(Blank(edit));
    if (!content.selection.IsEmpty())
        return Accepted(WithoutSelection(edit, content));
    const bool word = eraser == Eraser::BackWord || eraser == Eraser::ForwardWord;
    const bool back = eraser == Eraser::Back || eraser == Eraser::BackWord;
    return back ? EraseBack(edit, content, word) : EraseForward(edit, content, word);
}

// ---- typing

// The caret behind a position, over the literals that follow it, any of which may be typed next.
Outcome GoneOn(const Layout& layout, Content content, int32_t caret)
{
    const Place* next = layout.At(caret) ? layout.At(caret) : layout.Next(caret);
    const int32_t to = layout.At(caret) ? caret : next ? next->start : Length(content.text);
    content.typing = {caret, to, {}, {}};
    content.selection = {to, to};
    Outcome outcome = Accepted(std::move(content));
    outcome.isFull = !next;
    return outcome;
}

// The next literal of the mask that is the character typed; -1: none.
int32_t FindLiteral(const EditInstance& edit, const Text& text, int32_t from, Char typed)
{
    for (int32_t i = from; i < Length(text); ++i)
        if (At(text, i) == typed && KindAt(edit, text, i) == FieldKind::Literal)
            return i;
    return -1;
}

bool StandsBefore(const Content& content, const Layout& layout, Char typed)
{
    return content.Caret() == layout.First() &&
           Find(content.text.substr(0, static_cast<size_t>(layout.First())), typed) >= 0;
}

// On to the literal, as if all before it had been typed.
Outcome TypeLiteral(const EditInstance& edit, const Layout& layout, const Content& content, Char typed)
{
    const int32_t literal = FindLiteral(edit, content.text, content.Caret(), typed);
    if (literal >= 0) {
        Outcome outcome = GoneOn(layout, content, literal + 1);
        outcome.isFull = false;
        return outcome;
    }
    if (StandsBefore(content, layout, typed))
        return Accepted(content);
    return Refused(content.Caret() >= layout.End() ? ZTR_FULL : ZTR_WRONG_KIND);
}

Outcome TypeAt(const EditInstance& edit, const Layout& layout, Content content, int32_t position, Char typed)
{
    const Char shown = typed == kBlank ? kBlank : Taken(edit, KindAt(edit, content.text, position), typed);
    if (shown == Char{})
        return TypeLiteral(edit, layout, content, typed);
    content.text[static_cast<size_t>(position)] = shown;
    return GoneOn(layout, std::move(content), position + 1);
}

// A separator of the writer's own stands for the literals just passed: 555-123-4567 is typed as it is written under any mask.
bool IsPassedFor(const EditInstance& edit, const Text& text, int32_t position, Char typed)
{
    return IsSeparator(typed) && Taken(edit, KindAt(edit, text, position), typed) == Char{};
}

Outcome Type(const EditInstance& edit, const Content& before, Char typed)
{
    Content content = Start(edit, before);
    Typing& typing = content.typing;
    if (typing.carriedFrom < typing.carriedTo && At(content.text, typing.carriedFrom) == typed) {
        ++typing.carriedFrom;
        return Accepted(content);
    }
    const Layout layout(edit, content.text);
    const int32_t caret = content.Caret();
    if (typing.carriedFrom < typing.carriedTo && layout.At(caret) && IsPassedFor(edit, content.text, caret, typed)) {
        typing = {};
        return Accepted(content);
    }
    if (layout.At(caret))
        return TypeAt(edit, layout, content, caret, typed);
    const Place* next = layout.Next(caret);
    if (At(content.text, caret) == typed || !next)
        return TypeLiteral(edit, layout, content, typed);
    return TypeAt(edit, layout, content, next->start, typed);
}

// ---- paste

// A text of the display's own form, position by position.
bool IsOfTheForm(const EditInstance& edit, const Text& text)
{
    const Layout layout(edit, text);
    return layout.Fits() && IsTyped(edit, layout, text) && std::none_of(text.begin(), text.end(), IsControl);
}

Outcome Fill(const EditInstance& edit, const Text& text)
{
    Content content;
    content.text = text;
    const Layout layout(edit, text);
    for (const Place& place : layout.Places())
        for (int32_t i = place.start; i < place.End(); ++i)
            if (At(text, i) != kBlank)
                content.text[static_cast<size_t>(i)] = Taken(edit, KindAt(edit, text, i), At(text, i));
    return Accepted(WithCaret(std::move(content), layout.End()));
}

// Lays characters into positions from one on, literals and separators falling into their places.
class Walk {
public:
    Walk(const EditInstance& edit, Content content, int32_t from)
        : edit_(edit), content_(std::move(content)), layout_(edit, content_.text), at_(from)
    {
    }

    // 0, or why the character has no place.
    Reason Take(Char c)
    {
        const Place* next = layout_.At(at_) ? nullptr : layout_.Next(at_);
        const int32_t position = next ? next->start : at_;
        if (PassLiteral(c))
            return 0;
        if (!layout_.At(position))
            return IsSeparator(c) ? 0 : ZTR_DOES_NOT_FIT;
        const Char shown = Taken(edit_, KindAt(edit_, content_.text, position), c);
        if (shown == Char{})
            return IsSeparator(c) ? 0 : ZTR_WRONG_KIND;
        content_.text[static_cast<size_t>(position)] = shown;
        at_ = position + 1;
        return 0;
    }

    Outcome Result() const
    {
        const Place* next = layout_.At(at_) ? nullptr : layout_.Next(at_);
        return Accepted(WithCaret(content_, next ? next->start : std::min(at_, layout_.End())));
    }

private:
    // The literal that comes next; a separator may stand for those before it in its run.
    bool PassLiteral(Char c)
    {
        for (int32_t i = at_; i < Length(content_.text) && !layout_.At(i); ++i) {
            if (At(content_.text, i) == c) {
                at_ = i + 1;
                return true;
            }
            if (!IsSeparator(c))
                return false;
        }
        return false;
    }

    const EditInstance& edit_;
    Content content_;
    const Layout layout_;
    int32_t at_;
};

// Where a text begins: at the caret, or at the literal directly before it that the text begins with and its position does not take. The
// first position has all the literals before it.
int32_t WalkStart(const EditInstance& edit, const Content& content, Char first)
{
    const Layout layout(edit, content.text);
    const int32_t caret = content.Caret();
    if (caret == layout.First())
        return 0;
    const Place* place = layout.At(caret);
    const bool mayBegin = !place || (caret == place->start && Taken(edit, place->kind, first) == Char{});
    const Place* before = layout.Before(caret);
    if (!mayBegin || !before)
        return caret;
    const int32_t literal = Find(Slice(content.text, before->End(), caret - before->End()), first);
    return literal < 0 ? caret : before->End() + literal;
}

Outcome Paste(const EditInstance& edit, const Content& before, const Text& text)
{
    if (IsOfTheForm(edit, text))
        return Fill(edit, text);
    const Content content = Untyped(Start(edit, before));
    Walk walk(edit, content, WalkStart(edit, content, At(text, 0)));
    for (int32_t i = 0; i < Length(text); ++i)
        if (const Reason reason = IsControl(At(text, i)) ? ZTR_WRONG_KIND : walk.Take(At(text, i)))
            return Refused(reason, i);
    return walk.Result();
}

// A string has nothing to step.
Outcome Step(const EditInstance&, const Content&, int32_t)
{
    return Refused(ZTR_END_OF_RANGE);
}

Content Leave(const EditInstance&, const Content& content, int32_t)
{
    return content;
}

}  // namespace

}  // namespace strings

const Kind kStrings = {strings::Show,  strings::ReadCanonical, strings::State, strings::Canonical, strings::Type,
                       strings::Erase, strings::Paste,         strings::Step,  places::Move,       places::Click,
                       places::WordAt, strings::Leave,         false};

}  // namespace zte::modern
