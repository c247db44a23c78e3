// A number's display text taken apart: where its sign, digits and point stand between the literals, and places for the caret.
#pragma once

#include "engine/record.h"
#include "engine/text/ascii.h"
#include "engine/values/typed_number.h"

namespace zte {

// Literals of a mask as they are shown.
struct MaskLiterals {
    const Char* text;
    int32_t length;
};

// A number's mask, compiled.
struct NumberMask {
    const Char* format;  // by which its digits are laid out; null: the mask of another type
    FormatShape shape;
    MaskLiterals before;  // the currency symbol and other literals before the number
    MaskLiterals behind;  // those behind it, the '%' among them
    bool isGeneral;       // "[GENERAL]": shown and read, not typed into

    // Grows from its point. A mask of '0' alone is overwritten from its first digit instead.
    bool Grows() const { return shape.optional; }
};

// A caret position as the digits see it, so that it survives the text's being laid anew.
struct DigitPlace {
    bool inFraction;
    int32_t digits;  // in the fraction those left of it, before the point those between it and the point
};

// The literals of a format before its number, and behind it.
Text LiteralsBefore(const Char* format);
Text LiteralsBehind(const Char* format);

class ShownNumber {
public:
    // The texts stay the caller's, and stay as they are.
    ShownNumber(const NumberMask& mask, const Settings& settings, const Text& text);

    const Text& Shown() const { return text_; }
    const NumberMask& Mask() const { return mask_; }
    int32_t Start() const { return start_; }  // behind the literals before the number, where they stand
    int32_t End() const { return end_; }      // before the literals behind it
    int32_t Sign() const { return sign_; }    // of the '-'; -1: none
    int32_t Point() const { return point_; }  // -1: none
    TypedNumber Digits() const;
    int32_t IntegerDigits() const { return integerDigits_; }  // how many stand before the point
    int32_t ZerosInFront() const;                             // how many of these before any other digit
    int32_t FractionDigits() const { return CountDigits(PointOrEnd(), end_); }
    bool IsZero() const;  // no digit but zeros

    bool IsInFraction(int32_t position) const { return point_ >= 0 && position > point_; }
    // Of the number, not of a literal.
    bool IsDigitAt(int32_t position) const
    {
        return position >= start_ && position < end_ && IsDigit(text_[static_cast<size_t>(position)]);
    }
    // No digit and no sign left of the position.
    bool IsAtFront(int32_t position) const;

    DigitPlace PlaceAt(int32_t position) const;
    DigitPlace Front() const { return {false, integerDigits_}; }  // before the first digit
    // Directly behind the digit left of the place where there is one, else before the first digit or the point.
    int32_t PositionOf(DigitPlace place) const;
    // The first digit at or behind a position before the point; the point, or the end of the number where there is none.
    int32_t NextDigit(int32_t position) const;

private:
    int32_t PointOrEnd() const { return point_ >= 0 ? point_ : end_; }
    int32_t CountDigits(int32_t from, int32_t to) const;
    Text CollectDigits(int32_t from, int32_t to) const;

    const NumberMask& mask_;
    const Text& text_;
    int32_t start_ = 0;
    int32_t end_;
    int32_t sign_ = -1;
    int32_t point_ = -1;
    int32_t integerDigits_ = 0;
};

}  // namespace zte
