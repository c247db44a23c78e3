// A number under edit.
#include "engine/edit/number_edit.h"

#include <algorithm>
#include <utility>

#include "engine/text/ascii.h"

namespace zte {

namespace {

constexpr int32_t kGroupSize = 3;
constexpr int32_t kMostDigits = 254;

// How many characters the digits take before the point, as the number shows them.
int32_t ShownLength(const FormatShape& shape, const Settings& settings, int32_t digits)
{
    const int32_t shown = std::max(digits, shape.forcedInteger);
    const int32_t separators = IsGrouped(shape, settings) ? (shown - 1) / kGroupSize : 0;
    return shown + separators + shape.literalsInside;
}

}  // namespace

NumberEdit::NumberEdit(EditInstance& edit, int32_t caret) : edit_(edit), text_(edit.field->ReadText()), caret_(caret)
{
    TakeApart();
}

void NumberEdit::BringIntoForm()
{
    const FormatShape& shape = Mask().shape;
    const bool isShort = !Mask().Grows() && shown_->IntegerDigits() < shape.forcedInteger;
    if (isShort)
        LayOut(Digits(), {false, shape.forcedInteger});
    else if (shown_->FractionDigits() > shape.fractionPlaces)
        LayOut(Digits(), shown_->PlaceAt(caret_));
}

bool NumberEdit::IsInForm() const
{
    return LayOutDigits(Mask().format, Mask().shape, Digits(), *edit_.settings) == text_;
}

void NumberEdit::TakeApart()
{
    shown_.emplace(Mask(), *edit_.settings, text_);
}

// More digits than the mask forces were typed, zeros in front too: typed over a full number.
int32_t NumberEdit::ZerosWithoutPlace() const
{
    return shown_->IntegerDigits() > Mask().shape.forcedInteger ? 0 : shown_->ZerosInFront();
}

TypedNumber NumberEdit::HeldDigits() const
{
    TypedNumber held = Digits();
    held.integer.erase(0, static_cast<size_t>(ZerosWithoutPlace()));
    return held;
}

TypedNumber NumberEdit::WithoutZerosInFront(TypedNumber digits) const
{
    if (Mask().Grows())
        digits.integer.erase(0, std::min(digits.integer.find_first_not_of(Char{'0'}), digits.integer.size()));
    return digits;
}

bool NumberEdit::FitsOneMore() const
{
    const FormatShape& shape = Mask().shape;
    return ShownLength(shape, *edit_.settings, shown_->IntegerDigits() - ZerosWithoutPlace() + 1) <= shape.room;
}

void NumberEdit::CarryTo(int32_t caret)
{
    carriedFrom_ = caret_;
    carriedTo_ = caret_ = caret;
}

// A text from outside that is too long to be a number stays as it is, until enough of it is deleted.
void NumberEdit::LayOut(TypedNumber&& digits, DigitPlace place)
{
    RoundToPlaces(digits, Mask().shape.fractionPlaces);
    if (Length(digits.integer) + Length(digits.fraction) > kMostDigits)
        return;
    if (!shownBefore_)
        shownBefore_ = std::move(text_);
    text_ = LayOutDigits(Mask().format, Mask().shape, digits, *edit_.settings);
    TakeApart();
    caret_ = shown_->PositionOf(place);
}

void NumberEdit::Show()
{
    const bool changed = shownBefore_ && text_ != *shownBefore_;
    if (changed) {
        edit_.field->SetText(text_.c_str());
        edit_.field->KeepLayout();
        edit_.field->SetModified();
    }
    PlaceCaret(edit_, caret_);
    if (changed)
        edit_.field->ScrollToCaret();
    edit_.carriedFrom = carriedFrom_;
    edit_.carriedTo = carriedTo_;
}

}  // namespace zte
