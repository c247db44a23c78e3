// Deleting digits.
#include "engine/edit/number_deletion.h"

#include <algorithm>

#include "engine/text/ascii.h"

namespace zte {

namespace {

bool IsZeros(const Text& digits)
{
    return digits.find_first_not_of(Char{'0'}) == Text::npos;
}

// Lays out what a deletion has left. Zeros in front that nobody typed hold no place; where nothing else is left the caret goes before
// the last zeros of them.
void ShowLeft(NumberEdit& number, TypedNumber left, DigitPlace place, int32_t zerosBehindCaret)
{
    if (number.Mask().Grows())
        left.integer.erase(0, std::min(left.integer.find_first_not_of(Char{'0'}), left.integer.size()));
    if (!place.inFraction && IsZeros(left.integer))
        place.digits = std::max(place.digits, std::min(zerosBehindCaret, number.Mask().shape.forcedInteger));
    number.LayOut(left, place);
}

// A mask of '0' alone is filled from its first position again once nothing but zeros is left.
void ShowZeroed(NumberEdit& number, const TypedNumber& left, DigitPlace place)
{
    number.LayOut(left, place);
    if (number.IsBlank())
        number.MoveTo(number.Shown().PositionOf(number.Shown().Front()));
}

Text KeptDigits(const ShownNumber& shown, int32_t from, int32_t to, Selection deleted, bool zeroed)
{
    Text kept;
    for (int32_t i = from; i < to; ++i) {
        if (!shown.IsDigitAt(i))
            continue;
        const bool goes = i >= deleted.start && i < deleted.end;
        if (!goes)
            kept += At(shown.Shown(), i);
        else if (zeroed)
            kept += Char{'0'};
    }
    return kept;
}

constexpr int32_t kAllZeros = INT32_MAX;

void DeleteInFraction(NumberEdit& number, int32_t index, bool zeroed)
{
    TypedNumber left = number.Digits();
    if (zeroed)
        left.fraction[static_cast<size_t>(index)] = '0';
    else
        left.fraction.erase(static_cast<size_t>(index), 1);
    const DigitPlace place = {true, index};
    if (number.Mask().Grows())
        number.LayOut(left, place);
    else
        ShowZeroed(number, left, place);
}

void DeleteSign(NumberEdit& number)
{
    TypedNumber left = number.Digits();
    left.negative = false;
    number.LayOut(left, number.Shown().Front());
}

// right: integer digits right of the one that goes.
void DeleteBeforePoint(NumberEdit& number, int32_t right, bool zeroed, int32_t zerosBehindCaret)
{
    TypedNumber left = number.Digits();
    const auto index = left.integer.size() - static_cast<size_t>(right) - 1;
    if (zeroed) {
        left.integer[index] = '0';
        return ShowZeroed(number, left, {false, right + 1});
    }
    left.integer.erase(index, 1);
    if (number.Mask().Grows())
        ShowLeft(number, left, {false, right}, zerosBehindCaret);
    else
        ShowZeroed(number, left, {false, right});
}

}  // namespace

void DeleteSelected(NumberEdit& number, Selection selection)
{
    const ShownNumber& shown = number.Shown();
    const bool grows = number.Mask().Grows();
    const int32_t point = shown.Point() >= 0 ? shown.Point() : shown.End();
    const int32_t start = std::clamp(selection.start, shown.Start(), shown.End());

    TypedNumber left;
    left.negative = shown.Sign() >= 0 && (shown.Sign() < selection.start || shown.Sign() >= selection.end);
    left.integer = KeptDigits(shown, shown.Start(), point, selection, !grows);
    left.fraction = KeptDigits(shown, point, shown.End(), selection, !grows);
    const DigitPlace place =
        shown.PlaceAt(!grows || shown.IsInFraction(start) ? start : std::max(start, std::min(selection.end, point)));
    if (grows)
        ShowLeft(number, left, place, kAllZeros);
    else
        ShowZeroed(number, left, place);
}

void DeleteDigitBefore(NumberEdit& number)
{
    const ShownNumber& shown = number.Shown();
    const DigitPlace place = shown.PlaceAt(std::clamp(number.Caret(), shown.Start(), shown.End()));
    const bool grows = number.Mask().Grows();
    if (place.inFraction && place.digits > 0)
        return DeleteInFraction(number, place.digits - 1, place.digits <= number.Mask().shape.forcedFraction);
    const int32_t right = place.inFraction ? 0 : place.digits;
    if (right < Length(number.Digits().integer))
        return DeleteBeforePoint(number, right, !grows, 1);
    if (shown.Sign() >= 0 && number.Caret() > shown.Sign())
        DeleteSign(number);
}

void DeleteDigitAt(NumberEdit& number)
{
    const ShownNumber& shown = number.Shown();
    if (number.Caret() == shown.Sign())
        return DeleteSign(number);
    if (!shown.IsDigitAt(number.Caret()))
        return;
    const DigitPlace place = shown.PlaceAt(number.Caret());
    if (place.inFraction)
        DeleteInFraction(number, place.digits, false);
    else
        DeleteBeforePoint(number, place.digits - 1, false, kAllZeros);
}

}  // namespace zte
