// The model's typing into numbers: whoever types a number gets that number.
// Each key changes the digits as they are shown; the text is laid out from them, and the caret is put back among them.
#include "model_control.h"
#include "model_text.h"

#include <algorithm>
#include <utility>

namespace model {
namespace {

std::string Significant(const std::string& integer)
{
    return integer.substr(std::min(integer.find_first_not_of('0'), integer.size()));
}

// The digits in front of the last `right` ones.
std::string LeftOf(const std::string& digits, size_t right)
{
    return digits.substr(0, digits.size() - right);
}

std::string RightOf(const std::string& digits, size_t right)
{
    return digits.substr(digits.size() - right);
}

}  // namespace

// Where there are more integer digits than a growing mask forces, each was typed and holds its place, zeros in front too.
std::string Control::Held(const std::string& integer) const
{
    return integer.size() > NumberFormat().ForcedInteger() ? integer : Significant(integer);
}

// The zeros in front go, as after a deletion and a refused key.
Digits Control::WithoutFront(Digits digits) const
{
    if (NumberFormat().Grows())
        digits.integer = Significant(digits.integer);
    return Settled(digits);
}

// A mask shows the zeros that it forces in front; the fraction has its forced zeros at the end.
Digits Control::Settled(Digits digits) const
{
    const model::Format& format = NumberFormat();
    const size_t least = format.Grows() ? format.ForcedInteger() : format.integer.size();
    digits.integer.insert(0, least - std::min(least, digits.integer.size()), '0');
    digits.fraction.resize(std::min(digits.fraction.size(), format.Places()));
    digits.fraction.resize(std::max(digits.fraction.size(), format.ForcedFraction()), '0');
    return digits;
}

// Among the integer digits, with so many to the right of the caret: directly behind a digit or the sign.
void Control::CaretBefore(int right)
{
    const ShownNumber shown = Shows(Text());
    const int left = static_cast<int>(shown.integerAt.size()) - right;
    if (left > 0)
        PlaceCaret(shown.integerAt[static_cast<size_t>(left) - 1] + 1);
    else
        CaretToStart();
}

void Control::CaretToStart()
{
    const ShownNumber shown = Shows(Text());
    PlaceCaret(shown.First() + (shown.sign >= 0 ? 1 : 0));
}

void Control::CaretInFraction(int place)
{
    const ShownNumber shown = Shows(Text());
    if (place > 0)
        PlaceCaret(shown.fractionAt[static_cast<size_t>(place) - 1] + 1);
    else
        PlaceCaret(!shown.fractionAt.empty() ? shown.fractionAt[0]
                                             : shown.point + 1 + static_cast<int>(NumberFormat().middle.size()));
}

// Behind a digit with so many to its right, and over what stands before the next one. Never over what is behind a number.
void Control::CarryOver(int right)
{
    const int typed = edit_.Start();
    const ShownNumber shown = Shows(Text());
    if (right > 0)
        PlaceCaret(shown.integerAt[shown.integerAt.size() - static_cast<size_t>(right)]);
    else if (decimalPlaces_ != 0)
        CaretInFraction(0);
    Carry(typed, edit_.Start());
}

void Control::Carry(int from, int to)
{
    carried_ = Text().substr(static_cast<size_t>(from), static_cast<size_t>(to - from));
}

void Control::NotifyFull()
{
    if (autoskip_)
        ++autoskips_;
}

// The literals before the number, or where there are none the symbol behind it, may be typed as they are read: into a blank
// number, from its start.
bool Control::BelongsToSymbol(char c, const ShownNumber& shown)
{
    if (!spelled_ || shown.digits.negative || !shown.digits.AreZero())
        return false;
    const int position = edit_.Start();
    if (position != shown.begin && position != static_cast<int>(spelled_->size()))
        return false;
    const model::Format& format = NumberFormat();
    const std::string& literals = !format.prefix.empty() || format.percent ? format.prefix : regional_->currency;
    const bool there = !format.prefix.empty() || mask_.find(regional_->currency) != std::string::npos;
    const bool begins = IsDigit(c) || c == '-' || c == '+' || (c == Point() && decimalPlaces_ != 0);
    const std::string& symbol = regional_->currency;
    const bool symbolEnds = !symbol.empty() && literals.size() > symbol.size() &&
                            literals.compare(literals.size() - symbol.size(), symbol.size(), symbol) == 0;
    if (symbolEnds && spelled_->empty() && !begins && literals[0] != c && symbol[0] == c && position == shown.begin) {
        spelled_ = literals.substr(0, literals.size() - symbol.size() + 1);
        return true;
    }
    const std::string next = *spelled_ + c;
    if (!there || (begins && spelled_->empty()) || literals.compare(0, next.size(), next) != 0)
        return false;
    spelled_ = next;
    return true;
}

// Behind the last place of the number nothing is taken and nothing is said.
bool Control::IsDropped(const ShownNumber& shown) const
{
    const int position = edit_.Start();
    if (shown.InFraction(position))
        return shown.FractionBefore(position) >= decimalPlaces_;
    const model::Format& format = NumberFormat();
    const bool full = format.Grows() ? format.IsFull(Held(shown.digits.integer).size(), Signs())
                                     : shown.digits.integer.size() >= format.integer.size();
    return decimalPlaces_ == 0 && position == edit_.Length() && full;
}

// A text that the mask would not have shown is laid out before anything is typed into it.
void Control::LayOutForeign()
{
    const model::Format& format = NumberFormat();
    const int position = edit_.Start();
    ShownNumber shown = Shows(Text());
    const bool isShort = !format.Grows() && shown.digits.integer.size() < format.integer.size();
    if (!isShort && shown.digits.fraction.size() <= format.Places())
        return;
    if (shown.digits.fraction.size() > format.Places()) {
        Number number = Number::FromText(shown.digits.integer + "." + shown.digits.fraction);
        model::Format plain;
        plain.integer = std::string(std::max<size_t>(1, shown.digits.integer.size()), '0');
        plain.fraction = std::string(format.Places(), '0');
        plain.point = true;
        const ShownNumber rounded = ReadShown(plain, Render(plain, number, Signs()), Signs());
        shown.digits.fraction = rounded.digits.fraction;
        shown.digits.integer =
            shown.digits.integer.empty() && rounded.digits.integer == "0" ? "" : rounded.digits.integer;
    }
    LayOut(Settled(shown.digits));
    if (isShort)
        CaretToStart();
    else if (shown.InFraction(position))
        CaretInFraction(std::min(shown.FractionBefore(position), static_cast<int>(format.Places())));
    else
        CaretBefore(shown.IntegerFrom(position));
}

void Control::EnterNumericChar(char c, bool replaces)
{
    const std::string carried = std::exchange(carried_, "");
    if (NumberFormat().general)
        return Beep();
    LayOutForeign();
    const int position = edit_.Start();
    const ShownNumber shown = Shows(Text());
    const bool symbol = BelongsToSymbol(c, shown);
    // At the very start a point begins the fraction; the sign's own key means more everywhere.
    const bool starts = c == '-' || c == '+' || (c == Point() && position == 0);
    const bool shows = CharOf(Text(), position) == c && !IsDigit(c) && (position >= shown.begin || !starts);
    if (symbol) {
        if (position < shown.begin)
            PlaceCaret(position + 1);
        return;
    }
    spelledBefore_ = spelled_;
    spelled_.reset();
    const size_t over = carried.find(c);
    if (over != std::string::npos) {
        carried_ = carried.substr(over + 1);
        return;
    }
    if (shows)
        return PlaceCaret(position + 1);
    if (IsDropped(shown))
        return;
    if (IsDigit(c))
        EnterDigit(c, shown, replaces);
    else if (c == '-' || c == '+')
        EnterSign(c, shown);
    else if (c == Point() && decimalPlaces_ != 0 && !shown.InFraction(position))
        EnterPoint(shown);
    else
        RefuseNumeric();
}

void Control::EnterDigit(char c, ShownNumber shown, bool replaces)
{
    const int position = edit_.Start();
    Digits& digits = shown.digits;
    digits.negative = digits.negative && position > shown.sign;
    if (shown.InFraction(position))
        return EnterFractionDigit(c, digits, shown.FractionBefore(position), replaces && NumberFormat().Grows());
    int right = shown.IntegerFrom(position);
    if (!NumberFormat().Grows() && digits.integer.empty())
        right = static_cast<int>(Settled(digits).integer.size());
    EnterIntegerDigit(c, digits, right, position);
}

void Control::EnterIntegerDigit(char c, Digits digits, int right, int position)
{
    const model::Format& format = NumberFormat();
    const bool grows = format.Grows();
    const std::string held = Held(digits.integer);
    const bool full = !grows || format.IsFull(held.size(), Signs());
    if (grows)
        right = std::min(right, static_cast<int>(held.size()));
    charwise_ = charwise_ || full;
    if (full && right > 0)
        return OverwriteInteger(c, digits, right);
    const std::string left = LeftOf(held, static_cast<size_t>(grows ? right : 0));
    if (c == '0' && right == 0 && format.integer.empty()) {
        // Where there is no place before the point, the zero of 0.5 shows nothing.
        const bool signGone = digits.negative != Shows(Text()).digits.negative;
        if (signGone)
            LayOut(Settled(digits));
        return PlaceCaret(signGone ? Shows(Text()).First() : std::max(position, Shows(Text()).begin));
    }
    if (grows && !full && c == '0' && left.empty()) {
        // Nobody counts on a leading zero: it changes nothing.
        LayOut(Settled(digits));
        return CaretBefore(right);
    }
    if (full && decimalPlaces_ == 0)
        return RefuseNumeric();
    if (full)
        return EnterFractionDigit(c, Settled(digits), 0, false);
    digits.integer = left + c + RightOf(held, static_cast<size_t>(right));
    LayOut(Settled(digits));
    CaretBefore(right);
    if (!format.IsFull(held.size() + 1, Signs()))
        return;
    charwise_ = true;
    CarryOver(right);
    if (right == 0 && decimalPlaces_ == 0)
        NotifyFull();
}

// A full number: the digit takes the place of the next one, and leading zeros stay as they stand.
void Control::OverwriteInteger(char c, Digits digits, int right)
{
    const std::string least = Settled(digits).integer;
    if (digits.integer.size() < least.size())
        digits.integer = least;
    const std::string integer = digits.integer;
    digits.integer = LeftOf(integer, static_cast<size_t>(right)) + c + RightOf(integer, static_cast<size_t>(right) - 1);
    LayOut(Settled(digits));
    CaretBefore(right - 1);
    CarryOver(right - 1);
    if (right == 1 && decimalPlaces_ == 0)
        NotifyFull();
}

void Control::EnterFractionDigit(char c, Digits digits, int place, bool inserts)
{
    const auto at = static_cast<size_t>(place);
    digits.fraction.replace(at, inserts || at == digits.fraction.size() ? 0 : 1, 1, c);
    digits = Settled(digits);
    LayOut(digits);
    CaretInFraction(place + 1);
    const model::Format& format = NumberFormat();
    charwise_ = charwise_ || !format.Grows() || format.IsFull(Held(digits.integer).size(), Signs());
    if (place + 1 == decimalPlaces_)
        NotifyFull();
}

// The digits between the caret and the point go.
void Control::EnterPoint(const ShownNumber& shown)
{
    Digits digits = shown.digits;
    const int position = edit_.Start();
    digits.negative = digits.negative && position > shown.sign;
    const auto dropped = static_cast<size_t>(shown.IntegerFrom(position));
    digits.integer = LeftOf(digits.integer, dropped);
    LayOut(dropped != 0 ? WithoutFront(digits) : Settled(digits));
    CaretInFraction(0);
    ChooseEditMode();
}

void Control::EnterSign(char c, const ShownNumber& shown)
{
    const int position = edit_.Start();
    const bool behindDigits =
        shown.IntegerFrom(position) != static_cast<int>(shown.integerAt.size()) || shown.InFraction(position);
    const bool behindSign = shown.sign >= 0 && position > shown.sign;
    if (behindDigits || behindSign)
        return RefuseNumeric();
    if (c == '+' && shown.sign < 0)
        return;
    Digits digits = shown.digits;
    digits.negative = c == '-';
    LayOut(Settled(digits));
    if (digits.negative)
        CaretToStart();
    else
        PlaceCaret(position);
}

// The number is laid out again, with the caret among the same digits.
void Control::RefuseNumeric()
{
    Beep();
    spelled_ = spelledBefore_;
    const int position = edit_.Start();
    const ShownNumber shown = Shows(Text());
    const std::string before = Text();
    const Digits digits = WithoutFront(shown.digits);
    LayOut(digits);
    if (Text() == before)
        PlaceCaret(position);
    else if (shown.InFraction(position))
        CaretInFraction(shown.FractionBefore(position));
    else if (!NumberFormat().Grows() && shown.digits.integer.empty())
        CaretToStart();
    else
        CaretBefore(std::min(shown.IntegerFrom(position), static_cast<int>(digits.integer.size())));
}

void Control::BackspaceInNumber()
{
    if (NumberFormat().general)
        return;
    const int position = edit_.Start();
    const ShownNumber shown = Shows(Text());
    Digits digits = shown.digits;
    const bool grows = NumberFormat().Grows();
    const auto right = static_cast<size_t>(shown.IntegerFrom(position));
    const auto place = static_cast<size_t>(shown.FractionBefore(position));
    const size_t left = digits.integer.size() - right;
    if (place == 0 && left == 0 && (shown.sign < 0 || position <= shown.sign)) {
        if (shown.InFraction(position))
            PlaceCaret(shown.point);
        return;
    }
    charwise_ = false;
    spelled_ = "";
    if (place > 0) {
        if (place - 1 < NumberFormat().ForcedFraction())
            digits.fraction[place - 1] = '0';
        else
            digits.fraction.erase(place - 1, 1);
        LayOut(Settled(digits));
        return CaretInFraction(static_cast<int>(place) - 1);
    }
    if (left == 0)
        digits.negative = false;
    else if (grows)
        digits.integer.erase(left - 1, 1);
    else
        digits.integer[left - 1] = '0';
    const bool emptied = grows && left > 0 && Significant(digits.integer).empty();
    digits = left > 0 ? WithoutFront(digits) : Settled(digits);
    LayOut(digits);
    if (emptied || left == 0)
        CaretToStart();
    else if (grows)
        CaretBefore(static_cast<int>(std::min(right, digits.integer.size())));
    else {
        const std::vector<int> at = Shows(Text()).integerAt;
        PlaceCaret(at[at.size() - right - 1]);
    }
}

void Control::DeleteInNumber()
{
    if (NumberFormat().general)
        return;
    const int position = edit_.Start();
    const ShownNumber shown = Shows(Text());
    Digits digits = shown.digits;
    const model::Format& format = NumberFormat();
    const auto stands = [&](const std::vector<int>& at) { return std::count(at.begin(), at.end(), position) != 0; };
    const bool sign = position == shown.sign;
    const bool integer = stands(shown.integerAt);
    if (!sign && !integer && !stands(shown.fractionAt))
        return;
    charwise_ = false;
    spelled_ = "";
    const auto right = static_cast<size_t>(shown.IntegerFrom(position));
    const auto place = static_cast<size_t>(shown.FractionBefore(position));
    if (sign)
        digits.negative = false;
    else if (integer)
        digits.integer.erase(digits.integer.size() - right, 1);
    else
        digits.fraction.erase(place, 1);
    const bool emptied = integer && (format.Grows() ? Significant(digits.integer) : digits.integer).empty();
    digits = integer ? WithoutFront(digits) : Settled(digits);
    const std::string before = Text();
    LayOut(digits);
    if (Text() == before)
        PlaceCaret(position);
    else if (emptied || (!format.Grows() && digits.AreZero()))
        CaretToStart();
    else if (sign || !integer)
        PlaceCaret(position);
    else
        CaretBefore(static_cast<int>(right) - 1);
}

// The selected digits and the sign go; in a mask of zeros alone each digit leaves a zero in its place.
void Control::EraseSelectedDigits(ShownNumber& shown, int start, int end) const
{
    const bool grows = NumberFormat().Grows();
    const auto erase = [&](std::string& digits, const std::vector<int>& at) {
        for (size_t i = at.size(); i-- > 0;)
            if (at[i] >= start && at[i] < end)
                digits.replace(i, 1, grows ? "" : "0");
    };
    erase(shown.digits.integer, shown.integerAt);
    erase(shown.digits.fraction, shown.fractionAt);
    if (shown.sign >= start && shown.sign < end)
        shown.digits.negative = false;
}

void Control::DeleteNumericSelection()
{
    const int start = edit_.Start();
    const int end = edit_.End();
    if (NumberFormat().general)
        return;
    const int length = edit_.Length();
    const ShownNumber before = Shows(Text());
    ShownNumber shown = before;
    charwise_ = false;
    spelled_ = "";
    EraseSelectedDigits(shown, start, end);
    const Digits digits = WithoutFront(shown.digits);
    LayOut(digits);
    const bool grows = NumberFormat().Grows();
    const bool foreign = before.integerAt.empty() && before.point < 0;
    const bool allZero = grows ? Significant(digits.integer).empty() : foreign;
    if (start >= before.end)
        PlaceCaret(start);
    else if (before.InFraction(start))
        CaretInFraction(before.FractionBefore(start));
    else if (digits.negative && start <= before.sign)
        PlaceCaret(Shows(Text()).First());
    else if (allZero)
        CaretToStart();
    else if (grows)
        CaretBefore(std::min(before.IntegerFrom(end), static_cast<int>(digits.integer.size())));
    else if (const size_t right = static_cast<size_t>(before.IntegerFrom(start)); edit_.Length() != length && right > 0)
        right == before.integerAt.size() ? CaretToStart()
                                         : PlaceCaret(Shows(Text()).integerAt[digits.integer.size() - right]);
    else
        PlaceCaret(std::max(start, Shows(Text()).First()));
}

}  // namespace model
