// The model's typing into numbers: digits, signs and the point, and where the caret stands in a number laid anew.
// The number is laid out after each key until its integer part is full.
#include "model_control.h"
#include "model_text.h"

#include <algorithm>
#include <cstdlib>

namespace model {

void Control::EnterNumericChar(char c)
{
    typed_.clear();
    typedFraction_.clear();
    const std::string carried = carried_;
    const bool behindTyped = behindTyped_ && IsDigit(CharOf(Text(), edit_.Start() - 1));
    ForgetTyping();
    int position = edit_.Start();
    if (static_cast<unsigned>(position) > static_cast<unsigned>(displayLength_ - 1))
        return;
    const size_t over = carried.find(c);
    if (over != std::string::npos) {
        carried_ = carried.substr(over + 1);
        return;
    }
    const std::string text = Text();
    const char under = CharOf(text, position);
    const int point = PointPos(text);
    const bool loneSign = text == "-" || text == "+";
    if (decimalPlaces_ != 0 && !loneSign && position >= point + decimalPlaces_ + 1)
        return;
    const bool onField = Editable(text, position);
    if (Validate(c, position) == Verdict::Refused) {
        if (c != Point() || decimalPlaces_ == 0) {
            RefuseNumeric();
            return;
        }
        if (position < point) {
            const std::string cut =
                text.substr(0, static_cast<size_t>(position)) + text.substr(static_cast<size_t>(point));
            Reformat(&cut);
            PlaceCaret(PointPos(Text()) + 1);
            ChooseEditMode();
            return;
        }
        if (position > point) {
            RefuseNumeric();
            return;
        }
        position = point + 1;
        PlaceCaret(position);
    } else if (!onField) {
        const char mask = CharAt(text, position).c;
        if (position < firstField_) {
            position = firstField_;
            PlaceCaret(position);
        } else if (mask != '.' && mask != ',' && !(behindTyped && IsDigit(c) && !typedFraction_.empty()))
            return Beep();
    }
    if (c == '-') {
        if (!typed_.empty()) {
            const bool onPoint = CharOf(text, position) == Point();
            edit_.Select(position, position + (onPoint ? 0 : 1));
            edit_.Replace(typed_);
            return;
        }
        if (typedFraction_.empty())
            return;
        edit_.Char(c);
        PlaceCaret(position + 1);
        return;
    }
    bool lastFraction = false;
    if (!typed_.empty()) {
        // The point is never overwritten: its digit goes to the first fraction position.
        if (CharOf(text, position) == Point()) {
            ++position;
            if (c == '+')
                return PlaceCaret(position);
        }
        lastFraction = decimalPlaces_ != 0 && position == point + decimalPlaces_;
        edit_.Select(position, position + static_cast<int>(typed_.size()));
        edit_.Replace(typed_);
        position = edit_.Start();
        if (decimalPlaces_ != 0) {
            if (!charwise_ && position < point) {
                if (Reformat(nullptr) != 0)
                    position = PointPos(Text()) + 1;
                PlaceCaret(position);
            } else if (!charwise_) {
                if (percent_)
                    Reformat(nullptr);
                edit_.SetText(std::string(Text()));
                PlaceCaret(position);
            }
            if (under == '-' && c == '+')
                PlaceCaret(1);
            else if (under == '-')
                PlaceCaret(c != '0' || charwise_ || CharOf(Text(), firstField_) == '0' ? firstField_ + 1
                                                                                       : std::max(1, firstField_));
        }
    } else if (!typedFraction_.empty()) {
        edit_.Char(typedFraction_[0]);
        position = edit_.Start();
        const std::string inserted = Text();
        if (text.empty()) {
            // The digit stands alone: the literals in front of a number are not part of it.
            const std::string whole = LeadingEscapes() + inserted;
            Reformat(&whole);
        } else if (const int grown = Reformat(nullptr); grown != 0)
            position = CaretAfterGrowth(inserted, position, grown);
        else if (inserted != Text())
            position = CaretAfterShrinking(inserted, position, c);
        if (text.empty()) {
            // The only digit stands last before the point, behind the zeros that the mask forces.
            const size_t pointAt = decimalPlaces_ != 0 ? Text().find(Point()) : std::string::npos;
            const size_t digit = Text().find_last_of("0123456789", pointAt);
            if (decimalPlaces_ != 0 && (digit == std::string::npos || !IsDigit(c)))
                position = firstField_;
            else
                position = static_cast<int>(digit + 1);
        }
        PlaceCaret(position);
        lastFraction = decimalPlaces_ != 0 && edit_.Start() > PointPos(Text()) + decimalPlaces_;
    }
    behindTyped_ = true;
    FinishNumeric(position, lastFraction);
}

void Control::FinishNumeric(int position, bool lastFraction)
{
    const int point = PointPos(Text());
    if (decimalPlaces_ != 0) {
        if (static_cast<int>(mask_.find('.')) == point)
            charwise_ = true;
        if (lastFraction) {
            if (autoskip_)
                MoveCaret(kRight, shift_, false);
            return;
        }
    } else if (displayLength_ == edit_.Length())
        charwise_ = true;
    if (!charwise_)
        return;
    if (SkipLiterals(position, true))
        PlaceCaret(edit_.End());
    else if (autoskip_)
        MoveCaret(kRight, shift_, false);
    else
        PlaceCaret(edit_.Start());
}

// A character that no number takes: the number is laid out again, the caret stays at its digits.
void Control::RefuseNumeric()
{
    Beep();
    const std::string before = Text();
    const int caret = edit_.Start();
    Reformat(nullptr);
    if (before == Text())
        return PlaceCaret(caret);
    const size_t oldPoint = decimalPlaces_ != 0 ? before.find(Point()) : std::string::npos;
    if (oldPoint != std::string::npos && caret > static_cast<int>(oldPoint))
        return PlaceCaret(PointPos(Text()) + caret - static_cast<int>(oldPoint));
    const bool letters = ThroughCodes() && before != "-" && before != "+";
    const int allDigits = DigitsBefore(before, static_cast<int>(before.size()));
    if (DigitsBefore(Text(), edit_.Length()) == 0) {
        const bool amongLetters = letters && caret > 0 && allDigits == DigitsBefore(before, caret);
        return PlaceCaret(amongLetters ? caret + edit_.Length() - static_cast<int>(before.size()) : 0);
    }
    if (decimalPlaces_ != 0 && caret > 0 && allDigits == 0 && letters)
        return PlaceCaret(PointPos(Text()) + 1);
    if (caret == static_cast<int>(before.size()) && caret > 0 && before.back() == '%' && decimalPlaces_ == 0)
        return PlaceCaret(edit_.Length());
    int behind = 0;  // digits between the caret and the point or the end
    for (size_t i = static_cast<size_t>(caret); i < before.size() && i < oldPoint; ++i)
        behind += IsDigit(before[i]) ? 1 : 0;
    int at = decimalPlaces_ != 0 ? PointPos(Text()) : static_cast<int>(Text().find_last_of("0123456789") + 1);
    while (at > 0 && behind > 0)
        behind -= IsDigit(Text()[static_cast<size_t>(--at)]) ? 1 : 0;
    // Beside a separator: as far on as the text has grown.
    const int grown = std::max(0, edit_.Length() - static_cast<int>(before.size()));
    const int moved = std::min(caret + grown, EndOfInteger());
    if (behind == 0 && DigitsBefore(Text(), moved) == DigitsBefore(Text(), at))
        at = moved;
    PlaceCaret(at);
}

std::string Control::LeadingEscapes() const
{
    std::string literals;
    for (size_t i = 0; (formatFlags_ & 0x4000) != 0 && i + 1 < mask_.size() && mask_[i] == '~'; i += 2)
        literals += mask_[i + 1];
    return literals;
}

// The caret for a text that has grown: as far as it grew, unless that carries it over digits that stood behind it.
int Control::CaretAfterGrowth(const std::string& before, int position, int grown) const
{
    const std::string& text = Text();
    if (DigitsBefore(text, edit_.Length()) == 0)
        return position + grown;
    const size_t oldPoint = decimalPlaces_ != 0 ? before.find(Point()) : std::string::npos;
    const bool inFraction = oldPoint != std::string::npos && static_cast<size_t>(position) > oldPoint;
    const int end = EndOfInteger();
    int behind = end;  // the place behind the digit typed
    if (inFraction)
        behind += position - static_cast<int>(oldPoint);
    else {
        int digits = 0;
        for (size_t i = static_cast<size_t>(position); i < before.size() && i < oldPoint; ++i)
            digits += IsDigit(before[i]) ? 1 : 0;
        while (behind > 0 && digits > 0)
            digits -= IsDigit(text[static_cast<size_t>(--behind)]) ? 1 : 0;
        while (behind > 0 && !IsDigit(text[static_cast<size_t>(behind) - 1]))
            --behind;
    }
    if (decimalPlaces_ != 0 && oldPoint == std::string::npos)
        return behind;
    int moved = position + grown;
    if (!inFraction)
        moved = std::min(moved, end);
    for (int i = behind; i < moved; ++i)
        if (IsDigit(CharOf(text, i)))
            return behind;
    return std::max(behind, moved);
}

// The caret for a text that has not grown: behind the same digits, unless a leading zero was dropped. A fraction keeps its
// place behind the point.
int Control::CaretAfterShrinking(const std::string& before, int position, char typed) const
{
    if (!IsDigit(typed))
        return position;
    const size_t oldPoint = decimalPlaces_ != 0 ? before.find(Point()) : std::string::npos;
    if (oldPoint != std::string::npos && position > static_cast<int>(oldPoint))
        return std::min(position + std::max(0, PointPos(Text()) - static_cast<int>(oldPoint)), edit_.Length());
    const int all = DigitsBefore(before, static_cast<int>(before.size()));
    if (all > DigitsBefore(Text(), edit_.Length()))
        return position;  // a leading zero was dropped
    const int digits = DigitsBefore(before, position);
    const int kept = std::min(position, EndOfInteger());
    return DigitsBefore(Text(), kept) == digits ? kept : BehindDigits(digits, position);
}

// The point, or behind the last digit of a number without fraction.
int Control::EndOfInteger() const
{
    const size_t point = decimalPlaces_ != 0 ? Text().find(Point()) : std::string::npos;
    return static_cast<int>(point != std::string::npos ? point : Text().find_last_of("0123456789") + 1);
}

int Control::DigitsBefore(const std::string& text, int position)
{
    return static_cast<int>(std::count_if(text.begin(), text.begin() + position, IsDigit));
}

// The place behind the nth digit, or another one when the text has fewer.
int Control::BehindDigits(int digits, int otherwise) const
{
    int at = 0;
    for (; at < edit_.Length() && digits > 0; ++at)
        digits -= IsDigit(Text()[static_cast<size_t>(at)]) ? 1 : 0;
    return digits > 0 ? otherwise : at;
}

// Lays the number text through the mask again; characters by which the text grew.
int Control::Reformat(const std::string* given)
{
    const std::string text = given != nullptr ? *given : Text();
    if (text.size() > 254)
        return 0;
    size_t i = 0;
    if ((formatFlags_ & 0x4000) != 0)
        for (size_t m = 0; m < mask_.size() && mask_[m] == '~'; m += 2)
            ++i;
    std::string number;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        if (c == Point())
            number += '.';
        else if (IsDigit(c) || c == '+' || c == '-')
            number += c;
    }
    Number value;
    if (type_ == kNumber)
        value = Number::FromDouble(std::atof(number.c_str()) * (percent_ ? 0.01 : 1.0));
    else
        value = Number::FromText(number).TimesPowerOfTen(percent_ ? -2 : 0);
    edit_.SetText(Format(Value::OfNumber(value)).text);
    return std::max(0, edit_.Length() - static_cast<int>(text.size()));
}

}  // namespace model
