// Deleting digits of modern numbers: they close up on their own side of the point, which stands.
#include "engine/modern/number_deletion.h"

#include <algorithm>

#include "engine/modern/number_content.h"
#include "engine/text/ascii.h"

namespace zte::modern::numbers {

namespace {

constexpr Selection kNothing = {0, 0};

bool Holds(Selection selection, int32_t position)
{
    return position >= selection.start && position < selection.end;
}

Text KeptDigits(const ShownNumber& shown, int32_t from, int32_t to, Selection selection)
{
    Text kept;
    for (int32_t i = from; i < to; ++i)
        if (shown.IsDigitAt(i) && !Holds(selection, i))
            kept += At(shown.Shown(), i);
    return kept;
}

DigitPlace PlaceOf(const HeldNumber& number, Selection selection)
{
    const int32_t start = number.Within(selection.start);
    if (number.Shown().IsInFraction(start))
        return number.Shown().PlaceAt(start);
    return number.Shown().PlaceAt(std::clamp(number.Within(selection.end), start, number.IntegerEnd()));
}

bool HoldsDigitOrSign(const HeldNumber& number, Selection selection)
{
    bool holds = false;
    for (int32_t i = selection.start; i < selection.end; ++i)
        holds = holds || i == number.Shown().Sign() || number.Shown().IsDigitAt(i);
    return holds;
}

// ---- what a key takes

// Zeros in front count where there is nothing else.
int32_t HeldFrom(const HeldNumber& number)
{
    return number.IsZero() ? number.FirstDigit() : number.FirstHeld();
}

// The nearest digit before the caret, over separators and the point; zeros in front hold no place. The sign only directly behind it.
Selection DigitBefore(const HeldNumber& number)
{
    const int32_t sign = number.Shown().Sign();
    int32_t at = number.Caret() - 1;
    if (at >= 0 && at == sign)
        return {sign, sign + 1};
    while (at > number.Front() && !number.Shown().IsDigitAt(at))
        --at;
    const bool isHeld = number.Shown().IsInFraction(at) || at >= HeldFrom(number);
    return number.Shown().IsDigitAt(at) && isHeld ? Selection{at, at + 1} : kNothing;
}

Selection DigitBehind(const HeldNumber& number)
{
    int32_t at = number.Caret();
    if (at == number.Shown().Sign())
        return {at, at + 1};
    if (at < number.IntegerEnd())
        at = std::max(at, HeldFrom(number));
    while (at < number.Shown().End() && !number.Shown().IsDigitAt(at))
        ++at;
    return number.Shown().IsDigitAt(at) ? Selection{at, at + 1} : kNothing;
}

Selection WordBefore(const HeldNumber& number)
{
    const int32_t caret = number.Caret();
    if (number.Shown().IsInFraction(caret) && caret > number.Shown().Point() + 1)
        return {number.Shown().Point() + 1, caret};
    const Selection integer = {HeldFrom(number), std::min(caret, number.IntegerEnd())};
    return integer.start < integer.end ? integer : DigitBefore(number);
}

// From the front the sign goes with the digits.
Selection WordBehind(const HeldNumber& number)
{
    const bool takesSign = number.Caret() <= number.Shown().Sign();
    const int32_t from = takesSign ? number.Shown().Sign() : std::max(number.Caret(), HeldFrom(number));
    if (from < number.IntegerEnd())
        return {from, number.IntegerEnd()};
    return {std::max(from, std::min(number.IntegerEnd() + 1, number.Shown().End())), number.Shown().End()};
}

struct EraserRow {
    Eraser eraser;
    Selection (*takes)(const HeldNumber& number);
};

constexpr EraserRow kErasers[] = {
    {Eraser::Back,        DigitBefore},
    {Eraser::Forward,     DigitBehind},
    {Eraser::BackWord,    WordBefore },
    {Eraser::ForwardWord, WordBehind },
};

Selection TakenBy(Eraser eraser, const HeldNumber& number)
{
    for (const EraserRow& row : kErasers)
        if (row.eraser == eraser)
            return row.takes(number);
    return kNothing;
}

// Nothing is left to take before the caret: over zeros and the point, so that the sign can be taken next.
int32_t CaretWithNothingBefore(const HeldNumber& number)
{
    return std::min(number.Caret(), number.FirstDigit());
}

Content Unchanged(const Content& content, int32_t caret)
{
    return WithCaret(content.isEmpty ? Untyped(content) : content, caret);
}

// A zero that was typed or set, under a mask that shows none.
bool ShowsNoDigit(const HeldNumber& number)
{
    const TypedNumber shown = number.Shown().Digits();
    return shown.integer.empty() && shown.fraction.empty();
}

bool GoesBack(Eraser eraser)
{
    return eraser == Eraser::Back || eraser == Eraser::BackWord;
}

}  // namespace

Content Without(const EditInstance& edit, const Content& content, Selection selection)
{
    const HeldNumber number(edit, content);
    if (!HoldsDigitOrSign(number, selection))
        return Unchanged(content, number.Within(selection.start));
    const ShownNumber& shown = number.Shown();
    TypedNumber left;
    left.negative = shown.Sign() >= 0 && !Holds(selection, shown.Sign());
    left.integer = KeptDigits(shown, std::max(shown.Start(), number.FirstHeld()), number.IntegerEnd(), selection);
    left.integer.erase(0, std::min(left.integer.find_first_not_of(Char{'0'}), left.integer.size()));
    left.fraction = KeptDigits(shown, number.IntegerEnd(), shown.End(), selection);
    Content laid = IsZero(left) ? Emptied(edit, left.negative) : Laid(edit, left, PlaceOf(number, selection));
    laid.typing.goesOn = !laid.isEmpty;
    return laid;
}

Outcome Erase(const EditInstance& edit, const Content& content, Eraser eraser)
{
    if (MaskOf(edit).isGeneral)
        return Refused(ZTR_WRONG_KIND);
    const Content shown = InForm(edit, content);
    const HeldNumber number(edit, shown);
    if (!shown.isEmpty && ShowsNoDigit(number))
        return Accepted(Emptied(edit, number.Shown().Sign() >= 0));
    if (!shown.selection.IsEmpty())
        return Accepted(Without(edit, shown, shown.selection));
    const Selection taken = TakenBy(eraser, number);
    if (taken.IsEmpty())
        return Accepted(Unchanged(shown, GoesBack(eraser) ? CaretWithNothingBefore(number) : number.Caret()));
    Content left = Without(edit, shown, taken);
    if (left.text == shown.text && left.isEmpty == shown.isEmpty && !GoesBack(eraser))
        return Accepted(Unchanged(shown, number.Caret()));
    return Accepted(std::move(left));
}

}  // namespace zte::modern::numbers
