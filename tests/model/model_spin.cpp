// The model's spin: ranges, and the step of a number or a date field.
// A step reads the value shown, changes it and shows it again.
#include "model_control.h"
#include "model_text.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace model {
namespace {

constexpr int kLastYear = 1100;  // the year 3000, the highest that a step writes

// Both to the same scale and the same count of digits.
void Align(Number& a, Number& b)
{
    const int scale = std::max(a.scale, b.scale);
    for (Number* number : {&a, &b}) {
        number->digits.append(static_cast<size_t>(scale - number->scale), '0');
        number->scale = scale;
    }
    const size_t length = std::max(a.digits.size(), b.digits.size());
    for (Number* number : {&a, &b})
        number->digits.insert(0, length - number->digits.size(), '0');
}

// Digit by digit, of any length.
Number Sum(Number a, Number b)
{
    Align(a, b);
    if (a.digits < b.digits)
        std::swap(a, b);
    const int sign = a.negative == b.negative ? 1 : -1;
    int carry = 0;
    for (size_t i = a.digits.size(); i-- > 0;) {
        const int sum = (a.digits[i] - '0') + sign * (b.digits[i] - '0') + carry;
        carry = sum > 9 ? 1 : sum < 0 ? -1 : 0;
        a.digits[i] = static_cast<char>('0' + sum - 10 * carry);
    }
    if (carry > 0)
        a.digits.insert(0, 1, '1');
    a.digits.erase(0, std::min(a.digits.find_first_not_of('0'), a.digits.size()));
    a.negative = a.negative && !a.digits.empty();
    return a;
}

bool Less(const Number& a, Number b)
{
    b.negative = !b.negative;
    return Sum(a, b).negative;
}

int CompareDates(const Stamp& a, const Stamp& b)
{
    const int left = (a.year * 12 + a.month) * 32 + a.day;
    const int right = (b.year * 12 + b.month) * 32 + b.day;
    return left < right ? -1 : left > right ? 1 : 0;
}

int CompareTimes(const Stamp& a, const Stamp& b)
{
    const long long left = ((a.hour * 60LL + a.minute) * 60 + a.second) * 1000000 + a.microsecond;
    const long long right = ((b.hour * 60LL + b.minute) * 60 + b.second) * 1000000 + b.microsecond;
    return left < right ? -1 : left > right ? 1 : 0;
}

// The step rules of numbers, for doubles and exact decimals alike.
template <typename T, typename LessThan, typename Add>
bool StepInRange(T& value, T step, T min, const T* max, bool up, bool raiseToMin, LessThan less, Add add)
{
    if (!up) {
        if (less(value, min)) {
            if (max == nullptr)
                return false;
            value = *max;
            return true;
        }
        const T next = add(value, step);
        if (less(next, min))
            return false;
        value = max != nullptr && less(*max, next) ? *max : next;
        return true;
    }
    if (max != nullptr && less(*max, value)) {
        value = min;
        return true;
    }
    const T next = add(value, step);
    if (max != nullptr && less(*max, next))
        return false;
    value = raiseToMin && less(next, min) ? min : next;
    return true;
}

}  // namespace

void Control::SetSpin(unsigned increment, const char* range, const char* codeTable, bool pick, bool codes, Type type)
{
    type_ = type;
    range_.reset();
    if (range != nullptr) {
        range_ = range;
        if (!IsTemporal()) {
            const size_t tilde = range_->find('~');
            spinMin_ = ToDouble(range_->substr(0, tilde));
            spinMax_ = tilde == std::string::npos ? 0.0 : ToDouble(range_->substr(tilde + 1));
        }
    }
    hasTable_ = codeTable != nullptr;
    cycle_ = hasTable_ ? CycleOfCodeTable(codeTable) : std::vector<CodeEntry>();
    cursor_ = -1;
    increment_ = increment == 0 ? 1 : increment;
    codePick_ = pick;
    codeSpin_ = codes;
}

void Control::SpinStep(bool up)
{
    ForgetTyping();
    if (increment_ == 0 || (!hasTable_ && codeSpin_))
        return;
    spun_ = true;
    if (hasTable_ && codeSpin_)
        SpinCodeTable(up);
    else if (IsNumeric())
        SpinNumber(up);
    else if (IsTemporal())
        SpinDate(up);
    ++changes_;
}

void Control::SpinNumber(bool up)
{
    const Value data = GetData();
    std::string text = data.text;
    for (char& c : text)
        c = c == Point() ? '.' : c;
    Value next;
    bool changed = false;
    if (type_ == kNumber) {
        double value = ToDouble(text);
        const double step = static_cast<double>(increment_);
        const double max = spinMax_;
        changed = StepInRange(
            value, up ? step : -step, spinMin_, spinMax_ != 0.0 ? &max : nullptr, up, true,
            [](double a, double b) { return a < b; }, [](double a, double b) { return a + b; });
        next = Value::OfNumber(Number::FromDouble(value));
    } else {
        Number value = Number::FromText(text);
        Number step = Number::FromText(std::to_string(increment_));
        step.negative = !up;
        const size_t tilde = range_ ? range_->find('~') : std::string::npos;
        const Number min = Number::FromText(range_ ? range_->substr(0, tilde) : "");
        const bool hasMax = tilde != std::string::npos && tilde + 1 < range_->size();
        const Number max = Number::FromText(hasMax ? range_->substr(tilde + 1) : "");
        changed = StepInRange(value, step, min, hasMax ? &max : nullptr, up, hasMax, Less, Sum);
        next = Value::OfNumber(value);
    }
    if (changed)
        SetData(next);
    edit_.Select(0, 32767);
}

bool Control::SpinDateRange(Stamp& stamp, const std::string& text)
{
    stamp = Stamp();
    if (DisplayToStamp(stamp, text))
        return true;
    stamp = Stamp();
    return ParseCanonical(stamp, text, type_, *regional_);
}

bool Control::OutOfOrder(const Stamp& first, const Stamp& second) const
{
    if (type_ != kTime && first.HasDate() && second.HasDate()) {
        const int order = CompareDates(second, first);
        if (order != 0 || type_ == kDate)
            return order < 0;
    }
    if (type_ != kDate && first.HasTime() && second.HasTime())
        return CompareTimes(second, first) < 0;
    return false;
}

void Control::SpinDate(bool up)
{
    const int caret = edit_.Start();
    if (Text().empty() || caret >= ShownLength())
        return;
    if (OnAmPm(caret)) {
        const std::string& am = regional_->am;
        const bool morning = Text().compare(static_cast<size_t>(caret), am.size(), am) == 0;
        edit_.Select(caret, caret + static_cast<int>(am.size()));
        edit_.Replace(morning ? regional_->pm : am);
        edit_.Select(caret, caret + 1);
        return;
    }
    Stamp value = ReadStamp(true);
    if (!value.HasDate()) {
        value.year = value.month = value.day = 0;
    }
    if (!value.HasTime())
        value.hour = 0;
    Stamp min;
    Stamp max;
    if (range_ && !range_->empty()) {
        const size_t tilde = range_->find('~');
        const bool low = SpinDateRange(min, range_->substr(0, tilde));
        const bool high = tilde != std::string::npos && SpinDateRange(max, range_->substr(tilde + 1));
        if (low && high && OutOfOrder(min, max))
            min = max = Stamp();
    }
    const int before = RunBefore(caret);
    const int after = RunAfter(caret);
    const int n = before + 1 + after;
    const char letter = static_cast<char>(std::toupper(static_cast<unsigned char>(CharAt(Text(), caret).c)));
    const int index = CharAt(Text(), caret).index;
    const bool minutes = index >= 0 && MinuteAt(mask_, static_cast<size_t>(index), type_);
    const Stamp original = value;
    bool whole = false;
    bool refused = false;
    const auto toEnd = [&](const Stamp& end, bool withTime) {
        if (end.HasDate()) {
            value.year = std::min(end.year, kLastYear);
            value.month = end.month;
            value.day = end.day;
        }
        if (end.HasTime() && withTime) {
            value.hour = end.hour;
            value.minute = end.minute;
            value.second = end.second;
            value.microsecond = end.microsecond;
        }
        whole = true;
    };
    const auto toMin = [&] { toEnd(min, true); };
    const auto toMax = [&] { toEnd(max, min.HasTime()); };
    const bool dateField = letter == 'Y' || letter == 'D' || letter == 'J' || (letter == 'M' && !minutes);
    const auto known = [&](const Stamp& end) { return dateField ? end.HasDate() : end.HasTime(); };
    const auto above = [&] { return known(max) && OutOfOrder(value, max); };
    const auto below = [&] { return known(min) && OutOfOrder(min, value); };
    // A control whose blank value is meant starts from an end of the range, or from today.
    if ((value.year == -1900 || value.year == kLastYear) && value.month == 0 && value.day == 1) {
        if (up && min.HasDate())
            toMin();
        else if (!up && max.HasDate())
            toMax();
        else
            value = Today();
    } else {
        bool wrapped = false;
        const auto turn = [&](int current, int low, int high) {
            int next = current + (up ? 1 : -1);
            wrapped = up ? next > high : next < low;
            return !wrapped ? next : up ? low : high;
        };
        const int calendar = CalendarYear(value.year);
        bool handled = true;
        const int length = DaysOfMonth(calendar, value.month);
        switch (InsideAmPm(caret) ? '\0' : letter) {
        case 'Y': {
            const int next = value.year + (up ? 1 : -1) * static_cast<int>(increment_);
            if ((up && !max.HasDate() && next > 1099) || (!up && !min.HasDate() && next < -100))
                refused = true;
            else
                value.year = next;
            break;
        }
        case 'M':
            if (n == 1)
                refused = true;
            else if (minutes)
                value.minute = turn(value.minute, 0, 59);
            else
                value.month = turn(value.month, 0, 11);
            break;
        case 'D': value.day = turn(value.day, 1, length); break;
        case 'J': {
            const int days = DaysOfMonth(calendar, 1) == 29 ? 366 : 365;
            int day = value.day;
            for (int month = 0; month < value.month; ++month)
                day += DaysOfMonth(calendar, month);
            DateFromDayOfYear(value, turn(day, 1, days));
            break;
        }
        case 'H': value.hour = turn(value.hour, 0, 23); break;
        case 'S': value.second = turn(value.second, 0, 59); break;
        case 'F': {
            const int unit = static_cast<int>(std::lround(std::pow(10.0, 6 - n)));
            if (up) {
                wrapped = value.microsecond + unit >= 1000000;
                value.microsecond = wrapped ? 0 : value.microsecond + unit;
            } else {
                wrapped = value.microsecond < unit;
                value.microsecond = wrapped ? 999999 : value.microsecond - unit;
            }
            break;
        }
        default: handled = false;
        }
        if (handled && !refused) {
            // An end that a rule names must have been given.
            const auto go = [&](bool given, auto&& end) {
                if (given)
                    end();
                else {
                    value = original;
                    refused = true;
                }
            };
            const bool beyond = up ? above() : below();
            if (beyond && (letter == 'D' || letter == 'J' || (letter == 'M' && !minutes))) {
                if (letter == 'D')
                    value.day = up ? 1 : length;
                else if (letter == 'M')
                    value.month = up ? 0 : 11;
                else
                    DateFromDayOfYear(value, up ? 1 : DaysOfMonth(calendar, 1) == 29 ? 366 : 365);
                if (up && below())
                    toMin();
                else if (!up && above())
                    toMax();
            } else if (beyond && up)
                go(known(min), toMin);
            else if (beyond)
                go(known(max), toMax);
            else if (wrapped && up && below())
                toMin();
            else if (wrapped && !up && above())
                toMax();
        }
    }
    if (!refused) {
        if (up && OutOfOrder(min, value))
            toMin();
        else if (!up && OutOfOrder(value, max))
            toMax();
    }
    const std::string shown = Format(Value::OfStamp(value)).text;
    if (whole)
        edit_.SetText(shown);
    // A position of every type is no field: what was typed there stays. So does a marker behind its first letter.
    else if (!InsideAmPm(caret) && letter != 'X' && letter != '!' && letter != '^') {
        edit_.Select(caret - before, caret + after + 1);
        edit_.Replace(shown.substr(static_cast<size_t>(caret - before), static_cast<size_t>(n)));
    }
    edit_.Select(caret - before, caret + after + 1);
}

}  // namespace model
