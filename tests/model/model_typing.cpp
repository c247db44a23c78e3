// The model's keys: characters, caret movement, deletion, paste and clicks.
// One function a key or mask character; the plain edit underneath does what is passed on to it.
#include "model_control.h"

#include <cctype>
#include <cstdlib>
#include <cstring>

namespace model {
namespace {

constexpr const char* kMonths[] = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN", "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool IsControl(char c)
{
    return static_cast<unsigned char>(c) < ' ' || c == 127;
}

char Upper(char c)
{
    return static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
}

char CharOf(const std::string& text, int position)
{
    return position >= 0 && position < static_cast<int>(text.size()) ? text[static_cast<size_t>(position)] : '\0';
}

int TwoDigits(char first, char second)
{
    const char text[] = {first, second, '\0'};
    return std::atoi(text);
}

}  // namespace

// ---- Validators ------------------------------------------------------------------------------------------------------

Control::Verdict Control::Validate(char c, int position)
{
    if (IsControl(c))
        return Verdict::Refused;
    if (IsNumeric())
        return ValidateNumber(c, position);
    const char mask = Upper(CharAt(Text(), position).c);
    const auto take = [&](bool good) {
        if (good)
            typed_ = std::string(1, c);
        return good ? Verdict::Accepted : Verdict::Refused;
    };
    switch (mask) {
    case '#':
    case '0':
    case 'F': return take(IsDigit(c));
    case 'A': return take(std::isalnum(static_cast<unsigned char>(c)) != 0);
    case 'X': return take(true);
    case '!': c = Upper(c); return take(true);
    case '^': c = static_cast<char>(std::tolower(static_cast<unsigned char>(c))); return take(true);
    case 'Y': return ValidateYear(c, position);
    case 'M': return ValidateMonth(c, position);
    case 'D': return ValidateDay(c, position);
    case 'J': return ValidateJulian(c, position);
    case 'H': return ValidateHour(c, position);
    case 'S': return ValidateMinute(c, position);
    default: return Verdict::Refused;
    }
}

Control::Verdict Control::ValidateNumber(char c, int position)
{
    const bool sign = c == '+' || c == '-';
    if ((!IsDigit(c) && !sign) || (sign && position != firstField_))
        return Verdict::Refused;
    const std::string& text = Text();
    const int point = PointPos(text);
    const int length = edit_.Length();
    if (decimalPlaces_ != 0 && position >= point + 1 && text != "-" && text != "+") {
        (typing_ ? typedFraction_ : typed_) = c;
        return Verdict::Accepted;
    }
    if (CharOf(text, position) == '-') {
        typed_ = c;
        return Verdict::Accepted;
    }
    if (decimalPlaces_ == 0 ? length >= displayLength_ : static_cast<int>(mask_.find('.')) == point)
        charwise_ = true;
    if (charwise_) {
        typed_ = c;
        return Verdict::Accepted;
    }
    typedFraction_ = c;
    if (decimalPlaces_ == 0 && length >= displayLength_ - 1)
        charwise_ = true;
    return Verdict::Accepted;
}

Control::Verdict Control::ValidateYear(char c, int position)
{
    if (!IsDigit(c))
        return Verdict::Refused;
    const int index = RunBefore(position);
    const int width = index + 1 + RunAfter(position);
    if ((width <= 2 && index == 1) || index == 3) {
        const Stamp now = ReadStamp(true);
        const std::string printed = std::to_string(static_cast<unsigned>(now.year));
        const int year = TwoDigits(printed[0], c);
        if (now.month == 1 && now.day > 28 && DaysInMonth(year, 1) == 28)
            return Verdict::Refused;
    }
    if (width > 2 && index == 0 && c > '2')
        return Verdict::Refused;
    typed_ = c;
    return Verdict::Accepted;
}

Control::Verdict Control::ValidateMonth(char c, int position)
{
    const int index = RunBefore(position);
    const int width = index + 1 + RunAfter(position);
    for (int i = CharAt(Text(), position).index - index - 1; i >= 0; --i) {
        if (Upper(mask_[static_cast<size_t>(i)]) != 'H')
            continue;
        if (i == 0 || mask_[static_cast<size_t>(i) - 1] != '~')
            return ValidateMinute(c, position);
        break;
    }
    if (width == 3)
        return ValidateMonthName(c, position);
    if (!IsDigit(c))
        return Verdict::Refused;
    const char before = CharOf(Text(), position - 1);
    const char after = CharOf(Text(), position + 1);
    typed_ = c;
    if (index == 0) {
        zeroPadded_ = c > '1' || after > '2';
        if (c > '1')
            typed_ = std::string("0") + c;
        else if (after > '2')
            typed_ += '0';
    } else if (before == '1' && c > '2') {
        typed_.clear();
        return Verdict::Refused;
    }
    const int month = typed_.size() == 2 ? TwoDigits(typed_[0], typed_[1])
                      : index == 0       ? TwoDigits(c, after)
                                         : TwoDigits(before, c);
    const Stamp now = ReadStamp(true);
    if (month != 0 && now.day > DaysInMonth(now.year, month - 1))
        typed_.clear();
    return Verdict::Accepted;
}

Control::Verdict Control::ValidateMonthName(char c, int position)
{
    const int index = RunBefore(position);
    std::string prefix = Text().substr(static_cast<size_t>(position - index), static_cast<size_t>(index)) + c;
    for (char& p : prefix)
        p = Upper(p);
    const Stamp now = ReadStamp(true);
    bool known = false;
    for (int month = 0; month < 12; ++month) {
        if (std::strncmp(kMonths[month], prefix.c_str(), prefix.size()) != 0)
            continue;
        known = true;
        if (now.day <= DaysInMonth(now.year, month)) {
            typed_ = kMonths[month] + index;
            zeroPadded_ = true;
            return Verdict::Accepted;
        }
        if (index == 2)
            break;
    }
    typed_.clear();
    return known ? Verdict::Accepted : Verdict::Refused;
}

Control::Verdict Control::ValidateDay(char c, int position)
{
    if (!IsDigit(c))
        return Verdict::Refused;
    const int month = MonthFromText();
    const int limit = month < 1 || month > 12 ? 31 : DaysInMonth(YearFromText(), month - 1);
    if (RunBefore(position) != 0) {
        if (TwoDigits(CharOf(Text(), position - 1), c) > limit)
            return Verdict::Refused;
        typed_ = c;
        return Verdict::Accepted;
    }
    typed_ = c;
    if (TwoDigits(c, CharOf(Text(), position + 1)) > limit) {
        typed_ = TwoDigits(c, '0') > limit ? std::string("0") + c : std::string(1, c) + '0';
        zeroPadded_ = true;
    }
    return Verdict::Accepted;
}

Control::Verdict Control::ValidateJulian(char c, int position)
{
    if (!IsDigit(c))
        return Verdict::Refused;
    const int index = RunBefore(position);
    const int limit = DaysInMonth(YearFromText(), 1) == 29 ? 366 : 365;
    std::string candidate = Text().substr(static_cast<size_t>(std::min(position - index, edit_.Length())), 3);
    if (static_cast<size_t>(index) < candidate.size())
        candidate[static_cast<size_t>(index)] = c;
    typed_ = c;
    if (std::atoi(candidate.c_str()) <= limit)
        return Verdict::Accepted;
    if (index >= 2) {
        typed_.clear();
        return Verdict::Refused;
    }
    typed_ = std::string("0") + c;
    return Verdict::Accepted;
}

Control::Verdict Control::ValidateHour(char c, int position)
{
    if (!IsDigit(c))
        return Verdict::Refused;
    const char before = CharOf(Text(), position - 1);
    const char after = CharOf(Text(), position + 1);
    const bool inside = position < edit_.Length();
    const char top = ampm_ ? '1' : '2';     // highest first digit
    const char second = ampm_ ? '2' : '3';  // highest second digit behind it
    if (RunBefore(position) != 0) {
        if (before == top && c > second)
            return Verdict::Refused;
        typed_ = c;
        return Verdict::Accepted;
    }
    typed_ = c;
    if (c > top) {
        typed_ = std::string("0") + c;
        zeroPadded_ = true;
    } else if (inside && after > second && (ampm_ || c > '1')) {
        typed_.clear();
        return Verdict::Refused;
    }
    return Verdict::Accepted;
}

Control::Verdict Control::ValidateMinute(char c, int position)
{
    if (!IsDigit(c))
        return Verdict::Refused;
    typed_ = c;
    if (RunBefore(position) == 0 && c > '5') {
        typed_ = std::string("0") + c;
        zeroPadded_ = true;
    }
    return Verdict::Accepted;
}

// ---- Characters ------------------------------------------------------------------------------------------------------

int Control::FindLiteralAhead(const std::string& text, int position, char c) const
{
    for (int i = position + 1; i < static_cast<int>(text.size()); ++i) {
        const MaskChar at = CharAt(text, i);
        if (text[static_cast<size_t>(i)] == c && at.c != '~' && !InsideAmPm(i) && !InTable(at.c, type_))
            return i;
    }
    return -1;
}

void Control::PadFieldDigit(int position)
{
    const char letter = Upper(CharAt(Text(), position).c);
    if (letter == '\0' || std::strchr("MDHS", letter) == nullptr || RunBefore(position) != 1 ||
        RunAfter(position) != 0 || InsideAmPm(position))
        return;
    const char digit = CharOf(Text(), position - 1);
    if (!IsDigit(digit) || digit == '0')
        return;
    std::string text = Text();
    text[static_cast<size_t>(position)] = digit;
    text[static_cast<size_t>(position) - 1] = '0';
    edit_.SetText(text);
}

// Carries the caret over literals from `position`; true when an editable position was found.
bool Control::SkipLiterals(int position, bool remember)
{
    const int point = PointPos(Text());
    for (int k = 0;; ++k) {
        const int at = position + k;
        const bool inFraction = decimalPlaces_ != 0 && point < at && point + decimalPlaces_ + 1 > at;
        if (!inFraction) {
            if (at > displayLength_ - 1 || CharAt(Text(), at).c == '\0')
                return false;
            if (!OnAmPm(at) && !Editable(Text(), at))
                continue;
        }
        for (int i = 0; i < k; ++i)
            edit_.Key(kRight, shift_);
        if (remember && k > 0 && position <= edit_.Length())
            carried_ = Text().substr(static_cast<size_t>(position), static_cast<size_t>(k));
        return true;
    }
}

void Control::EnterChar(char c)
{
    typed_.clear();
    const std::string carried = carried_;
    carried_.clear();
    int position = edit_.Start();
    int typedAt = position;
    int n = 0;
    bool placed = false;
    const bool marker = ampm_ && (type_ == kTime || type_ == kDateTime) &&
                        (c == CharOf(regional_->am, 0) || c == CharOf(regional_->pm, 0));
    if (marker) {
        typed_ = c;
        typedAt = ampmPos_;
        placed = true;
    } else {
        if (static_cast<unsigned>(position) > static_cast<unsigned>(displayLength_ - 1))
            return;
        const size_t over = carried.find(c);
        if (over != std::string::npos) {
            carried_ = carried.substr(over + 1);
            return;
        }
        if (!Editable(Text(), position)) {
            if (position >= firstField_)
                return Beep();
            position = typedAt = firstField_;
            PlaceCaret(position);
            if (Editable(Text(), position)) {
                if (Validate(c, position) == Verdict::Refused)
                    return Beep();
                placed = true;
            }
        } else if (Validate(c, position) == Verdict::Accepted)
            placed = true;
        else {
            const int literal = FindLiteralAhead(Text(), position, c);
            if (literal <= 0)
                return Beep();
            if (IsTemporal())
                PadFieldDigit(position);
            PlaceCaret(literal + 1);
        }
    }
    if (placed) {
        n = static_cast<int>(typed_.size());
        edit_.Select(typedAt, typedAt + n);
        edit_.Replace(typed_);
    }
    int caret = edit_.Start();
    if (n > 1 && zeroPadded_) {
        // A padded digit fills its field; a digit in front of a 0 and a month name leave the field open.
        const bool name = std::isalpha(static_cast<unsigned char>(typed_[0])) != 0;
        const bool filled = !name && typed_[1] == c && c != '0';
        caret = typedAt + (filled ? 2 : 1);
        PlaceCaret(caret);
        zeroPadded_ = false;
    }
    if (StepsToEditable(caret - 1, true) == 0) {
        if (autoskip_)
            MoveCaret(kRight, shift_, false);
        else
            PlaceCaret(edit_.Start());
        return;
    }
    if (SkipLiterals(caret, true))
        PlaceCaret(edit_.End());
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
    const int allDigits = DigitsBefore(before, static_cast<int>(before.size()));
    if (DigitsBefore(Text(), edit_.Length()) == 0) {
        const bool amongLetters = ThroughCodes() && caret > 0 && allDigits == DigitsBefore(before, caret);
        return PlaceCaret(amongLetters ? caret + edit_.Length() - static_cast<int>(before.size()) : 0);
    }
    if (decimalPlaces_ != 0 && caret > 0 && allDigits == 0 && ThroughCodes())
        return PlaceCaret(PointPos(Text()) + 1);
    if (caret == static_cast<int>(before.size()) && caret > 0 && !IsDigit(before.back()) && decimalPlaces_ == 0)
        return PlaceCaret(edit_.Length());
    int behind = 0;  // digits between the caret and the point or the end
    for (size_t i = static_cast<size_t>(caret); i < before.size() && i < oldPoint; ++i)
        behind += IsDigit(before[i]) ? 1 : 0;
    int at = decimalPlaces_ != 0 ? PointPos(Text()) : static_cast<int>(Text().find_last_of("0123456789") + 1);
    while (at > 0 && behind > 0)
        behind -= IsDigit(Text()[static_cast<size_t>(--at)]) ? 1 : 0;
    const char group = regional_->thousand;
    if (CharOf(before, caret) == group && CharOf(before, caret - 1) != group && CharOf(Text(), at - 1) == group)
        --at;
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
    const size_t oldPoint = decimalPlaces_ != 0 ? before.find(Point()) : std::string::npos;
    const size_t end = decimalPlaces_ != 0 ? text.find(Point()) : text.find_last_of("0123456789") + 1;
    int behind = static_cast<int>(end) + position - static_cast<int>(oldPoint);
    if (oldPoint == std::string::npos || static_cast<size_t>(position) <= oldPoint) {
        int digits = 0;
        for (size_t i = static_cast<size_t>(position); i < before.size() && i < oldPoint; ++i)
            digits += IsDigit(before[i]) ? 1 : 0;
        behind = static_cast<int>(end);
        while (behind > 0 && digits > 0)
            digits -= IsDigit(text[static_cast<size_t>(--behind)]) ? 1 : 0;
        while (behind > 0 && !IsDigit(text[static_cast<size_t>(behind) - 1]))
            --behind;
    }
    if (DigitsBefore(text, edit_.Length()) == 0)
        return position + grown;
    if (decimalPlaces_ == 0)
        return std::min(std::max(behind, position + grown), static_cast<int>(end));
    if (oldPoint == std::string::npos)
        return behind;
    if (static_cast<size_t>(position) <= oldPoint)
        grown = static_cast<int>(end - oldPoint);  // digits of the fraction do not count
    for (int i = behind; i < position + grown; ++i)
        if (IsDigit(CharOf(text, i)))
            return behind;
    return std::max(behind, position + grown);
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

// The caret for a text that has not grown. A fraction keeps its place behind the point; what was dropped before the
// caret moves it back, but for a leading zero and a plus sign just typed.
int Control::CaretAfterShrinking(const std::string& before, int position, char typed) const
{
    const size_t oldPoint = decimalPlaces_ != 0 ? before.find(Point()) : std::string::npos;
    if (oldPoint != std::string::npos && position > static_cast<int>(oldPoint))
        return position + PointPos(Text()) - static_cast<int>(oldPoint);
    const bool leadingZero = typed == '0' && before.find_first_of("123456789") >= static_cast<size_t>(position);
    if (!IsDigit(typed) || leadingZero)
        return position;
    if (decimalPlaces_ != 0)
        return before.find('+') < static_cast<size_t>(position) ? position - 1 : position;
    return std::min(position, BehindDigits(DigitsBefore(before, position), position));
}

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
                PlaceCaret(c != '0' || charwise_ ? firstField_ + 1 : std::max(1, firstField_));
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

void Control::Char(char c, bool shift)
{
    shift_ = shift;
    if (Refuses())
        return;
    const std::string before = Text();
    TakeChar(c);
    NoteChange(before);
}

void Control::TakeChar(char c)
{
    if (c == 3 || c == 4)
        return;
    if (c == '\b' && numericBackspaceDone_ && IsNumeric()) {
        numericBackspaceDone_ = false;
        return;
    }
    const bool wasSelected = DeleteSelection(true);
    if (wasSelected)
        ForgetTyping();
    const auto finish = [this] { typing_ = false; };
    if (wasSelected && c == '\b' && !backspaceDone_)
        return finish();
    if (backspaceDone_ && c == '\b') {
        backspaceDone_ = false;
        PlaceCaret(edit_.Start());
        return finish();
    }
    if (IsPlain()) {
        edit_.Char(c);
        return finish();
    }
    if (codeSpin_ && codePick_) {
        TypeAhead(c);
        return finish();
    }
    if (codeSpin_ && type_ == kString && mask_.empty()) {
        edit_.Char(c);
        return finish();
    }
    if (hasTable_ && codeSpin_ && !codePick_) {
        positioned_ = false;
        if (spun_) {
            codeSpin_ = false;
            SetData(Value::None());
            codeSpin_ = true;
            spun_ = false;
        }
    }
    if (c == '\t' || c == '\n' || c == 27)
        return finish();
    spun_ = false;
    if (IsNumeric()) {
        if (!deletePending_ || c != '\b')
            EnterNumericChar(c);
        else {
            const int position = std::max(0, edit_.Start() - 1);
            if (CharAt(Text(), position).c == '0') {
                std::string text = Text();
                text[static_cast<size_t>(position)] = '0';
                edit_.SetText(text);
            } else {
                edit_.Char(c);
                Reformat(nullptr);
            }
            PlaceCaret(position);
        }
    } else if (deletePending_ && c == '\b')
        edit_.Char(c);
    else
        EnterChar(c);
    finish();
}

// ---- Keys ------------------------------------------------------------------------------------------------------------

void Control::KeyDown(int key, bool shift)
{
    shift_ = shift;
    const bool navigation = key >= 0x21 && key <= 0x28;
    if (navigation || key == kBackspace || key == kDelete || key == kInsert) {
        ForgetTyping();
        numericBackspaceDone_ = false;
    }
    const bool deletes = key == kBackspace || key == kDelete;
    const bool refuses = readOnly_ || (!enabled_ && !mask_.empty());
    if (refuses && deletes)
        return;
    const bool steps = key == kUp || key == kDown;
    const std::string before = Text();
    if (mask_.empty() || (refuses && steps) || !HandleKeyDown(key, shift, true))
        edit_.Key(key, shift);
    NoteChange(before);
}

bool Control::HandleKeyDown(int key, bool shift, bool byUser)
{
    switch (key) {
    case kBackspace:
    case kDelete: return IsNumeric() ? NumericDeletion(key, shift) : PositionalDeletion(key, shift);
    case kLeft:
    case kRight:
        if (shift || (IsNumeric() && !charwise_))
            return false;
        MoveCaret(key, shift, byUser);
        return true;
    case kUp:
    case kDown:
        if (increment_ == 0)
            return false;
        SpinStep(key == kUp);
        return true;
    default: return false;
    }
}

bool Control::NumericDeletion(int key, bool shift)
{
    if (DeleteSelection(false)) {
        numericBackspaceDone_ = key == kBackspace;
        if (percent_)
            Reformat(nullptr);
        return true;
    }
    const int position = edit_.Start();
    if (key == kDelete) {
        if (position == edit_.Length() || !Editable(Text(), position))
            return true;
        charwise_ = false;
        edit_.Key(kDelete, shift);
        Reformat(nullptr);
        PlaceCaret(position);
        return true;
    }
    numericBackspaceDone_ = true;
    if (position == 0)
        return true;
    if (position < edit_.Length() && !Editable(Text(), position - 1)) {
        const int steps = StepsToEditable(position - 1, false);
        if (steps == 0)
            return true;
        for (int i = 0; i < steps; ++i)
            edit_.Key(kLeft, shift);
    }
    numericBackspaceDone_ = false;
    deletePending_ = true;
    charwise_ = false;
    return true;
}

bool Control::PositionalDeletion(int key, bool shift)
{
    if ((formatFlags_ & 0x4000) == 0) {
        deletePending_ = true;
        return false;
    }
    if (DeleteSelection(false)) {
        if (key == kBackspace)
            backspaceDone_ = true;
        return true;
    }
    if (key == kBackspace) {
        MoveCaret(kBackspace, shift, true);
        backspaceDone_ = true;
        return true;
    }
    const int position = edit_.Start();
    if (position == edit_.Length() || !Editable(Text(), position))
        return true;
    edit_.Select(position, position + 1);
    edit_.Replace(type_ == kString ? " " : "0");
    PlaceCaret(position);
    return true;
}

void Control::MoveCaret(int key, bool shift, bool byUser)
{
    const int step = key == kLeft ? -1 : 1;
    const int length = edit_.Length();
    int position = edit_.Start();
    int n = 0;
    bool move = false;
    for (;;) {
        position += step;
        ++n;
        if (key == kRight && position >= length) {
            const int point = PointPos(Text());
            if (decimalPlaces_ != 0 && point < position && point + decimalPlaces_ + 1 > position)
                move = true;
            else {
                if (autoskip_)
                    ++autoskips_;
                move = position == length && byUser;
            }
            break;
        }
        if (key == kLeft && position < 0) {
            move = true;
            break;
        }
        if (shift || key == kBackspace) {
            shift = true;
            key = kLeft;
            move = true;
            break;
        }
        if (CharAt(Text(), position).c == '\0')
            break;
        if (OnAmPm(position) || Editable(Text(), position)) {
            move = true;
            break;
        }
    }
    for (int i = 0; move && i < n; ++i)
        edit_.Key(key, shift);
}

int Control::StepsToEditable(int position, bool forward) const
{
    const int step = forward ? 1 : -1;
    for (int n = 1;; ++n) {
        position += step;
        if (forward ? position > displayLength_ - 1 : position < 0)
            return 0;
        if (CharAt(Text(), position).c == '\0' || OnAmPm(position) || Editable(Text(), position))
            return n;
    }
}

bool Control::DeleteSelection(bool typing)
{
    const int start = edit_.Start();
    const int end = edit_.End();
    if (start == end)
        return false;
    if (IsNumeric()) {
        DeleteNumericSelection(typing);
        return true;
    }
    std::string blank = Format(Value::None()).text;
    if (blank.empty())
        edit_.Replace("");
    else {
        // The AM/PM field changes by its letters only.
        if (ampm_ && (type_ == kTime || type_ == kDateTime))
            for (int i = ampmPos_; i < edit_.Length() && i < static_cast<int>(blank.size()) && InsideAmPm(i); ++i)
                blank[static_cast<size_t>(i)] = Text()[static_cast<size_t>(i)];
        edit_.Replace(static_cast<int>(blank.size()) <= start
                          ? std::string()
                          : blank.substr(static_cast<size_t>(start), static_cast<size_t>(end - start)));
    }
    PlaceCaret(start);
    return true;
}

void Control::DeleteNumericSelection(bool typing)
{
    const int start = std::max(edit_.Start(), firstField_);
    const int end = edit_.End();
    charwise_ = false;
    typing_ = typing_ || typing;
    const int point = PointPos(Text());
    edit_.Replace("");
    const std::string rest = Text();
    if (decimalPlaces_ != 0) {
        if (start <= point && point <= end) {
            if (!rest.empty() || !typing) {
                std::string laid = rest;
                if (decimalPlaces_ + 1 >= static_cast<int>(rest.size()) && CharOf(rest, 0) != Point())
                    laid.insert(laid.begin(), Point());
                Reformat(&laid);
            }
        } else if (!typing)
            Reformat(nullptr);
    } else if (!rest.empty() && !typing)
        Reformat(&rest);
    PlaceCaret(start);
}

void Control::SetSelection(int start, int end)
{
    if (start != end || start != edit_.Start() || start != edit_.End())
        ForgetTyping();
    edit_.Select(start, end);
}

void Control::Paste(const std::string& clipboard)
{
    if (Refuses())
        return;
    const std::string before = Text();
    PasteText(clipboard);
    NoteChange(before);
}

void Control::PasteText(const std::string& clipboard)
{
    ForgetTyping();
    const Value data = Unformat(clipboard);
    if (data.none)
        return;
    if (!IsNumeric())
        return SetData(data);
    std::string text = data.text;
    if (!IsNumber(text, Point()))
        return Beep();
    for (char& c : text)
        c = c == Point() ? '.' : c;
    if (type_ == kNumber)
        SetData(Value::OfNumber(Number::FromDouble(std::atof(text.c_str()) * (percent_ ? 0.01 : 1.0))));
    else
        SetData(Value::OfNumber(Number::FromText(text).TimesPowerOfTen(percent_ ? -2 : 0)));
}

void Control::Click(int position)
{
    shift_ = false;
    ForgetTyping();
    PlaceCaret(position);
    if (ThroughCodes() && positioned_ && !codePick_) {
        positioned_ = false;
        return;
    }
    if (mask_.empty() || (IsNumeric() && !charwise_) || Text().empty())
        return;
    const int point = PointPos(Text());
    if ((decimalPlaces_ != 0 && point < position && point + decimalPlaces_ + 1 > position) || OnAmPm(position) ||
        position == edit_.Length() || Editable(Text(), position))
        return;
    const int right = StepsToEditable(position, true);
    const int left = StepsToEditable(position, false);
    if (left != 0)
        MoveCaret(right == 0 || left < right ? kLeft : kRight, shift_, false);
}

}  // namespace model
