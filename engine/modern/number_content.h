// What a modern number holds: the digits that were typed, told from the zeros that its mask shows by itself, and back into a content.
#pragma once

#include "engine/mask/mask_table.h"
#include "engine/modern/content.h"

namespace zte::modern::numbers {

inline const NumberMask& MaskOf(const EditInstance& edit)
{
    return edit.table->number;
}

// The blank of the keyboard, and the one at which no line is broken.
inline bool IsBlankCharacter(Char c)
{
    return c == ' ' || c == static_cast<Char>(0xA0);
}

// A content taken apart; both stay the caller's and as they are.
class HeldNumber {
public:
    HeldNumber(const EditInstance& edit, const Content& content);

    const ShownNumber& Shown() const { return shown_; }
    // Without the zeros in front, which hold no place.
    const TypedNumber& Digits() const { return digits_; }
    bool IsZero() const;

    int32_t Front() const { return shown_.Start(); }
    int32_t IntegerEnd() const { return shown_.Point() >= 0 ? shown_.Point() : shown_.End(); }
    int32_t FirstHeld() const;  // of the integer digits; the integer part's end where there is none
    int32_t FirstDigit() const { return shown_.NextDigit(Front()); }
    // The content's caret, brought in between the literals around the number.
    int32_t Caret() const { return Within(caret_); }
    int32_t Within(int32_t position) const;
    bool IsBehindSign(int32_t position) const { return shown_.Sign() >= 0 && position > shown_.Sign(); }
    bool HasIntegerBefore(int32_t position) const;

private:
    ShownNumber shown_;
    TypedNumber digits_;
    int32_t caret_;
};

bool IsZero(const TypedNumber& number);

// The point moved to the right, or to the left where places is negative; zeros are filled in, and those in front dropped.
void MovePoint(TypedNumber& number, int32_t places);

// Integer digits that typing may fill.
int32_t Room(const EditInstance& edit);
bool HasRoomFor(const EditInstance& edit, const TypedNumber& number);

// The display of a number's digits, and a content that shows it with the caret at a place. Not for "[GENERAL]".
Text Lay(const EditInstance& edit, const TypedNumber& number);
Content Laid(const EditInstance& edit, const TypedNumber& number, DigitPlace place);
// A value's display, untouched, the caret where editing starts.
Content Showing(const EditInstance& edit, Text text);
Content ShowingValue(const EditInstance& edit, const Text& plain);

// The empty number; with the sign, a lone one.
Content Blank(const EditInstance& edit);
Content Emptied(const EditInstance& edit, bool negative);

// Whether the mask shows such a text; one that was set from outside may be another.
bool IsOfMask(const EditInstance& edit, const Text& text);
bool IsEmpty(const EditInstance& edit, const Content& content);
// What typing starts from: the content, or the empty number where the mask does not show such a text.
Content InForm(const EditInstance& edit, const Content& content);

// Sign, at least one digit, '.' and the fraction where there is one.
Text PlainText(const TypedNumber& number);
// The value in plain text, '.' being the point, a percentage as its fraction.
Text PlainValue(const EditInstance& edit, const Text& text);
// Whether a value of the control's type can be as large.
bool IsValue(const EditInstance& edit, const TypedNumber& number);
// The digits of a plain text as the mask shows them, not rounded; none where it is another text.
std::optional<TypedNumber> ReadPlain(const EditInstance& edit, const Text& plain);

}  // namespace zte::modern::numbers
