// The model's validators: which characters a mask takes where, and what each of them places.
// One function a mask character.
#include "model_control.h"
#include "model_text.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <cstring>

namespace model {
namespace {

int TwoDigits(char first, char second)
{
    const char text[] = {first, second, '\0'};
    return std::atoi(text);
}

}  // namespace

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
    if (MinuteAt(mask_, static_cast<size_t>(CharAt(Text(), position).index), type_))
        return ValidateMinute(c, position);
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
    candidate.resize(std::max(candidate.size(), static_cast<size_t>(index) + 1));
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

}  // namespace model
