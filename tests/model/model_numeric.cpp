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
    const bool behindTyped = typedTo_ != 0 && typedTo_ == edit_.Start();
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
        } else if (mask != '.' && mask != ',' && !(behindTyped && !typedFraction_.empty()))
            return Beep();
    }
    // The point is never overwritten: a digit goes to the first fraction position, a sign before the point.
    if (!typed_.empty() && CharOf(text, position) == Point()) {
        if (!IsDigit(c))
            typedFraction_.swap(typed_);
        else if (++position; decimalPlaces_ == 0 && !IsDigit(CharOf(text, position)))
            return Beep();
    }
    if (c == '-') {
        if (!typed_.empty()) {
            edit_.Select(position, position + 1);
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
        lastFraction = decimalPlaces_ != 0 && position == point + decimalPlaces_;
        edit_.Select(position, position + static_cast<int>(typed_.size()));
        edit_.Replace(typed_);
        position = edit_.Start();
        const std::string placed = Text();
        const int behind = position;
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
            if (under == '-')
                PlaceCaret(CaretBehindSign(placed, behind, c));
            if (text.find(Point()) == std::string::npos)
                lastFraction = position > PointPos(Text()) + decimalPlaces_;
        }
    } else if (!typedFraction_.empty()) {
        edit_.Char(typedFraction_[0]);
        position = edit_.Start();
        const std::string inserted = Text();
        // A digit alone: the literals in front of a number are not part of it.
        const std::string whole = text.empty() ? LeadingEscapes() + inserted : inserted;
        const int grown = Reformat(&whole);
        if (text.empty() && decimalPlaces_ != 0 && !IsDigit(c))
            position = firstField_;
        else
            position = CaretBehindInserted(inserted, position, grown, c, text.empty() || loneSign);
        typedTo_ = position;
        PlaceCaret(position);
        lastFraction = decimalPlaces_ != 0 && edit_.Start() > PointPos(Text()) + decimalPlaces_;
    }
    FinishNumeric(position, lastFraction);
}

void Control::FinishNumeric(int position, bool lastFraction)
{
    const int point = PointPos(Text());
    if (decimalPlaces_ != 0) {
        if (static_cast<int>(mask_.find('.')) == point)
            charwise_ = true;
        if (lastFraction) {
            TellFull();
            return;
        }
    } else if (displayLength_ == edit_.Length())
        charwise_ = true;
    if (!charwise_)
        return;
    if (SkipLiterals(position, true))
        PlaceCaret(edit_.End());
    else if (autoskip_)
        TellFull();
    else
        PlaceCaret(edit_.Start());
}

// A character that no number takes: the number is laid out again, the caret stays at its digits.
void Control::RefuseNumeric()
{
    Beep();
    const std::string before = Text();
    const Place place = PlaceOf(before, edit_.Start());
    const int along = edit_.Start() + Reformat(nullptr);
    const bool stays = !before.empty() && PlaceOf(Text(), along) == place;
    PlaceCaret(stays ? along : AtPlace(Text(), place));
}

std::string Control::LeadingEscapes() const
{
    std::string literals;
    for (size_t i = 0; (formatFlags_ & 0x4000) != 0 && i + 1 < mask_.size() && mask_[i] == '~'; i += 2)
        literals += mask_[i + 1];
    return literals;
}

// The caret behind a character inserted into `before`, which was laid out anew: along with the text as it grew, unless
// that is another place among the digits than behind the one typed.
int Control::CaretBehindInserted(const std::string& before, int position, int grown, char typed, bool emptied) const
{
    const Place place = PlaceOf(before, position);
    const int along = position + grown;
    if (emptied)
        return AtPlace(Text(), place);
    if (!IsDigit(typed) || PlaceOf(Text(), along) == place)
        return along;
    const bool zeroDropped = IntegerDigits(Text()) < IntegerDigits(before);
    const bool noDigits = DigitsBetween(Text(), 0, edit_.Length()) == 0;
    return zeroDropped && (noDigits || (grown == 0 && !place.fraction)) ? along : AtPlace(Text(), place);
}

// The caret behind a character that has taken the sign's place.
int Control::CaretBehindSign(const std::string& placed, int position, char typed) const
{
    if (!IsDigit(typed))
        return 1;
    if (typed == '0' && CharOf(Text(), firstField_) == '0')
        return firstField_ + 1;
    return std::max(1, AtPlace(Text(), PlaceOf(placed, position)));
}

// The point, or the place behind the last digit or sign where there is none.
int Control::EndOfInteger(const std::string& text) const
{
    const size_t point = text.find(Point());
    return static_cast<int>(point != std::string::npos ? point : text.find_last_of("0123456789+-") + 1);
}

int Control::DigitsBetween(const std::string& text, int from, int to)
{
    int digits = 0;
    for (int i = from; i < to; ++i)
        digits += IsDigit(CharOf(text, i)) ? 1 : 0;
    return digits;
}

Control::Place Control::PlaceOf(const std::string& text, int position) const
{
    const int end = EndOfInteger(text);
    return position > end ? Place{true, DigitsBetween(text, end, position)}
                          : Place{false, DigitsBetween(text, position, end)};
}

// In the integer part directly behind a digit, where there is one left of the place.
int Control::AtPlace(const std::string& text, const Place& place) const
{
    const int end = EndOfInteger(text);
    if (place.fraction) {
        int at = end + 1;
        while (at < static_cast<int>(text.size()) && DigitsBetween(text, end, at) < place.digits)
            ++at;
        return at;
    }
    int at = end;
    while (at > 0 && DigitsBetween(text, at, end) < place.digits)
        --at;
    const size_t digit = at > 0 ? text.find_last_of("0123456789", static_cast<size_t>(at) - 1) : std::string::npos;
    return digit != std::string::npos ? static_cast<int>(digit) + 1 : at;
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
        value = Number::FromDouble(ToDouble(number) / (percent_ ? 100.0 : 1.0));
    else
        value = Number::FromText(number).TimesPowerOfTen(percent_ ? -2 : 0);
    edit_.SetText(Format(Value::OfNumber(value)).text);
    return std::max(0, edit_.Length() - static_cast<int>(text.size()));
}

}  // namespace model
