// Numbers and decimals: their states, their canonical texts, and where the caret goes.
#include <algorithm>

#include "engine/format/display.h"
#include "engine/modern/kind.h"
#include "engine/modern/number_content.h"
#include "engine/modern/number_deletion.h"
#include "engine/modern/number_paste.h"
#include "engine/modern/number_stepping.h"
#include "engine/modern/number_typing.h"
#include "engine/text/ascii.h"
#include "engine/values/caller_value.h"

namespace zte::modern {

namespace numbers {

// ---- values

Content Show(const EditInstance& edit, const void* data)
{
    if (!data)
        return Blank(edit);
    Display display;
    if (edit.dataType == DT_NUMBER)
        FormatNumber(edit, ReadValue<double>(data), display);
    else
        FormatDecimal(edit, ReadValue<DecimalValue>(data), display);
    return Showing(edit, std::move(display.text));
}

std::optional<Content> ReadCanonical(const EditInstance& edit, const Text& text)
{
    if (text.empty())
        return Blank(edit);
    const std::optional<TypedNumber> number = ReadPlain(edit, text);
    if (!number || !IsValue(edit, *number))
        return std::nullopt;
    return ShowingValue(edit, text);
}

bool IsLoneSign(const EditInstance& edit, const Content& content)
{
    return content.isEmpty && !MaskOf(edit).isGeneral && HeldNumber(edit, content).Shown().Sign() >= 0;
}

int32_t State(const EditInstance& edit, const Content& content)
{
    if (IsLoneSign(edit, content))
        return ZTS_INCOMPLETE;
    if (IsEmpty(edit, content))
        return ZTS_EMPTY;
    if (!IsOfMask(edit, content.text))
        return ZTS_INVALID;
    return IsInRange(edit, PlainValue(edit, content.text)) ? ZTS_COMPLETE : ZTS_OUT_OF_RANGE;
}

Text Canonical(const EditInstance& edit, const Content& content)
{
    return PlainValue(edit, content.text);
}

// ---- the caret

// The text of a number between its literals; all of it where it is none of the mask's.
struct Bounds {
    int32_t start;
    int32_t end;
    int32_t point;  // -1: none
};

Bounds BoundsOf(const EditInstance& edit, const Content& content)
{
    if (MaskOf(edit).isGeneral || !IsOfMask(edit, content.text))
        return {0, Length(content.text), -1};
    const HeldNumber number(edit, content);
    return {number.Front(), number.Shown().End(), number.Shown().Point()};
}

// Behind a separator the caret stands only as before it: directly behind the digit on its left.
bool IsStop(const EditInstance& edit, const Content& content, const Bounds& bounds, int32_t position)
{
    const bool inInteger = position > bounds.start && position < bounds.end && position <= bounds.point;
    const bool inWhole = bounds.point < 0 && position > bounds.start && position < bounds.end;
    return !((inInteger || inWhole) && At(content.text, position - 1) == edit.settings->thousandChar &&
             IsGrouped(MaskOf(edit).shape, *edit.settings));
}

int32_t Beside(const EditInstance& edit, const Content& content, const Bounds& bounds, int32_t direction)
{
    int32_t position = content.Caret() + direction;
    while (!IsStop(edit, content, bounds, position))
        position += direction;
    return position;
}

// A selection ends at the side that the key goes to.
int32_t EdgeOf(const EditInstance& edit, const Content& content, const Bounds& bounds, bool left)
{
    int32_t position = left ? content.selection.start : content.selection.end;
    while (!IsStop(edit, content, bounds, position))
        --position;
    return position;
}

int32_t WordBeside(const Content& content, const Bounds& bounds, bool left)
{
    const int32_t fraction = bounds.point + 1;
    if (left)
        return bounds.point >= 0 && content.selection.start > fraction ? fraction : bounds.start;
    return bounds.point >= 0 && content.selection.end < fraction ? fraction : bounds.end;
}

int32_t Move(const EditInstance& edit, const Content& content, Key key, bool control)
{
    const Bounds bounds = BoundsOf(edit, content);
    if (key == KEY_HOME)
        return bounds.start;
    if (key == KEY_END)
        return bounds.end;
    const bool left = key == KEY_LEFT;
    if (!content.selection.IsEmpty() && !control)
        return std::clamp(EdgeOf(edit, content, bounds, left), bounds.start, bounds.end);
    const int32_t position = control ? WordBeside(content, bounds, left) : Beside(edit, content, bounds, left ? -1 : 1);
    return std::clamp(position, bounds.start, bounds.end);
}

int32_t Click(const EditInstance& edit, const Content& content, int32_t position)
{
    const Bounds bounds = BoundsOf(edit, content);
    return std::clamp(position, bounds.start, bounds.end);
}

Selection WordAt(const EditInstance& edit, const Content& content, int32_t position)
{
    const Bounds bounds = BoundsOf(edit, content);
    if (bounds.point >= 0 && position > bounds.point)
        return {bounds.point + 1, bounds.end};
    const int32_t sign = At(content.text, bounds.start) == '-' ? 1 : 0;
    return {bounds.start + sign, bounds.point >= 0 ? bounds.point : bounds.end};
}

// A sign before zeros goes when the number is left for good.
Content Leave(const EditInstance& edit, const Content& content, int32_t position)
{
    if (position >= 0 || IsEmpty(edit, content) || MaskOf(edit).isGeneral || !IsOfMask(edit, content.text))
        return content;
    const HeldNumber number(edit, content);
    if (!number.IsZero() || number.Shown().Sign() < 0)
        return content;
    Content left = content;
    left.text.erase(static_cast<size_t>(number.Shown().Sign()), 1);
    for (int32_t* end : {&left.selection.start, &left.selection.end})
        *end -= *end > number.Shown().Sign() ? 1 : 0;
    return left;
}

}  // namespace numbers

const Kind kNumbers = {numbers::Show,   numbers::ReadCanonical, numbers::State, numbers::Canonical, numbers::Type,
                       numbers::Erase,  numbers::Paste,         numbers::Step,  numbers::Move,      numbers::Click,
                       numbers::WordAt, numbers::Leave,         false};

}  // namespace zte::modern
