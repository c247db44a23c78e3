// Deleting digits.
#include "engine/edit/number_deletion.h"

#include <algorithm>
#include <utility>

#include "engine/text/ascii.h"

namespace zte {

namespace {

void MoveToFront(NumberEdit& number)
{
    number.MoveTo(number.Shown().PositionOf(number.Shown().Front()));
}

// Lays out what a deletion has left. Zeros in front that nobody typed hold no place; where nothing else is left the caret goes before
// them. A mask of '0' alone fills up with zeros in front.
void ShowLeft(NumberEdit& number, TypedNumber&& left, DigitPlace place)
{
    TypedNumber shown = number.WithoutZerosInFront(std::move(left));
    const bool isEmpty = shown.integer.empty();
    number.LayOut(std::move(shown), place);
    if (!place.inFraction && isEmpty)
        MoveToFront(number);
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

void DeleteInFraction(NumberEdit& number, int32_t index, bool zeroed)
{
    TypedNumber left = number.Digits();
    if (zeroed)
        left.fraction[static_cast<size_t>(index)] = '0';
    else
        left.fraction.erase(static_cast<size_t>(index), 1);
    number.LayOut(std::move(left), {true, index});
}

void DeleteSign(NumberEdit& number)
{
    TypedNumber left = number.Digits();
    left.negative = false;
    number.LayOut(std::move(left), number.Shown().Front());
}

// right: integer digits right of the one that goes.
void ZeroBeforePoint(NumberEdit& number, int32_t right)
{
    TypedNumber left = number.Digits();
    left.integer[left.integer.size() - static_cast<size_t>(right) - 1] = '0';
    number.LayOut(std::move(left), {false, right + 1});
    number.MoveTo(number.Shown().NextDigit(number.Caret()));
}

void DeleteBeforePoint(NumberEdit& number, int32_t right)
{
    TypedNumber left = number.Digits();
    left.integer.erase(left.integer.size() - static_cast<size_t>(right) - 1, 1);
    ShowLeft(number, std::move(left), {false, right});
}

// Over the point, where no digit stands before it: what is typed next begins the number.
bool MoveBeforePoint(NumberEdit& number, DigitPlace place)
{
    if (place.inFraction)
        number.MoveTo(number.Shown().Point());
    return false;
}

// What is left of a number without what is selected. In a mask of '0' alone digits leave zeros where they stood.
TypedNumber Without(const ShownNumber& shown, Selection selection, bool zeroed)
{
    const int32_t point = shown.Point() >= 0 ? shown.Point() : shown.End();
    TypedNumber left;
    left.negative = shown.Sign() >= 0 && (shown.Sign() < selection.start || shown.Sign() >= selection.end);
    left.integer = KeptDigits(shown, shown.Start(), point, selection, zeroed);
    left.fraction = KeptDigits(shown, point, shown.End(), selection, zeroed);
    return left;
}

void DeleteFromGrowing(NumberEdit& number, Selection selection)
{
    const ShownNumber& shown = number.Shown();
    const int32_t point = shown.Point() >= 0 ? shown.Point() : shown.End();
    const DigitPlace place = shown.PlaceAt(std::max(selection.start, std::min(selection.end, point)));
    ShowLeft(number, Without(shown, selection, false), place);
}

// The caret stays where the selection began. A text from outside, which is laid anew, is none of the mask's: there it goes among the same
// digits.
void DeleteFromZeros(NumberEdit& number, Selection selection)
{
    const ShownNumber& shown = number.Shown();
    const bool isForeign = !number.IsInForm();
    DigitPlace place = shown.PlaceAt(selection.start);
    if (shown.IsAtFront(selection.start))
        place.digits = std::max(place.digits, number.Mask().shape.forcedInteger);
    number.LayOut(Without(shown, selection, true), place);
    if (place.inFraction)
        return;
    const ShownNumber& left = number.Shown();
    number.MoveTo(isForeign ? left.NextDigit(number.Caret())
                            : std::max(selection.start, left.PositionOf(left.Front())));
}

}  // namespace

void DeleteSelected(NumberEdit& number, Selection selection)
{
    const bool isBehind = selection.start >= number.Shown().End();
    const bool isBeforeSign = selection.end <= number.Shown().Sign();
    if (number.Mask().Grows())
        DeleteFromGrowing(number, selection);
    else
        DeleteFromZeros(number, selection);
    if (isBehind)
        number.MoveTo(selection.start);
    else if (isBeforeSign)
        number.MoveTo(number.Shown().Sign());
}

bool DeleteDigitBefore(NumberEdit& number)
{
    const ShownNumber& shown = number.Shown();
    const DigitPlace place = shown.PlaceAt(number.Caret());
    const bool grows = number.Mask().Grows();
    if (place.inFraction && place.digits > 0)
        DeleteInFraction(number, place.digits - 1, place.digits <= number.Mask().shape.forcedFraction);
    else if (place.digits < number.Shown().IntegerDigits())
        grows ? DeleteBeforePoint(number, place.digits) : ZeroBeforePoint(number, place.digits);
    else if (shown.Sign() >= 0 && number.Caret() > shown.Sign())
        DeleteSign(number);
    else
        return MoveBeforePoint(number, place);
    return true;
}

bool DeleteDigitAt(NumberEdit& number)
{
    const ShownNumber& shown = number.Shown();
    const int32_t caret = number.Caret();
    if (caret == shown.Sign()) {
        DeleteSign(number);
        return true;
    }
    if (!shown.IsDigitAt(caret))
        return false;
    const Text before = shown.Shown();
    const DigitPlace place = shown.PlaceAt(caret);
    if (place.inFraction)
        DeleteInFraction(number, place.digits, false);
    else
        DeleteBeforePoint(number, place.digits - 1);
    if (number.Shown().Shown() == before)
        number.MoveTo(caret);  // a zero that the mask forces: nothing has gone
    else if (!number.Mask().Grows() && number.IsZero())
        MoveToFront(number);
    return true;
}

}  // namespace zte
