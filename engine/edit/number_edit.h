// A number under edit: its digits as they are shown, changed in memory, and shown again at once.
#pragma once

#include <optional>

#include "engine/mask/mask_table.h"
#include "engine/record.h"

namespace zte {

class NumberEdit {
public:
    // Takes what is shown apart; the caret stands at a position of it.
    NumberEdit(EditInstance& edit, int32_t caret);
    NumberEdit(const NumberEdit&) = delete;
    NumberEdit& operator=(const NumberEdit&) = delete;

    const NumberMask& Mask() const { return edit_.table->number; }
    const ShownNumber& Shown() const { return *shown_; }
    TypedNumber Digits() const { return shown_->Digits(); }
    int32_t Caret() const { return caret_; }
    Char Under() const { return At(text_, caret_); }  // the character at the caret
    bool IsBehindText() const { return caret_ >= Length(text_); }

    // The digits that hold a place: without the zeros in front that the mask forces.
    TypedNumber HeldDigits() const;
    // Whether the room before the point takes one more digit.
    bool FitsOneMore() const;
    bool IsZero() const { return shown_->IsZero(); }
    bool IsBlank() const { return IsZero() && shown_->Sign() < 0; }

    // The same digits without the zeros in front that hold no place: those of a number that grows.
    TypedNumber WithoutZerosInFront(TypedNumber digits) const;

    void MoveTo(int32_t caret) { caret_ = caret; }
    // Moves the caret over literals, any of which may be typed next.
    void CarryTo(int32_t caret);
    // Lays other digits out, with the caret at a place among them.
    void LayOut(TypedNumber&& digits, DigitPlace place);

    // Whether the text is one that the mask shows; one that was set from outside may be none.
    bool IsInForm() const;
    // Lays a text out that was set from outside and that the mask would not have shown.
    void BringIntoForm();

    // Shows the text where it has changed, and puts the caret.
    void Show();

private:
    void TakeApart();
    int32_t ZerosWithoutPlace() const;  // in front of the integer digits

    EditInstance& edit_;
    std::optional<Text> shownBefore_;  // where text_ has been laid out anew
    Text text_;
    std::optional<ShownNumber> shown_;  // of text_
    int32_t caret_;
    int32_t carriedFrom_ = 0;
    int32_t carriedTo_ = 0;
};

}  // namespace zte
