// The model's reading of numbers: from the text shown, and from a text that is handed in or pasted.
// The literals around a number are taken off first, as they may hold digits, signs and points of their own.
#include "model_control.h"
#include "model_text.h"

#include <algorithm>

namespace model {
namespace {

size_t SkipDigits(const std::string& text, size_t from)
{
    while (from < text.size() && IsDigit(text[from]))
        ++from;
    return from;
}

size_t SkipSign(const std::string& text, size_t from)
{
    return from < text.size() && (text[from] == '-' || text[from] == '+') ? from + 1 : from;
}

// A sign, digits with one point among them, and an exponent; blanks around.
bool IsCanonical(const std::string& given, char point)
{
    const size_t first = given.find_first_not_of(' ');
    if (first == std::string::npos)
        return false;
    const std::string text = given.substr(first, given.find_last_not_of(' ') - first + 1);
    const size_t start = SkipSign(text, 0);
    size_t at = SkipDigits(text, start);
    size_t digits = at - start;
    if (at < text.size() && text[at] == point) {
        const size_t fraction = at + 1;
        at = SkipDigits(text, fraction);
        digits += at - fraction;
    }
    if (digits > 0 && at < text.size() && Upper(text[at]) == 'E') {
        const size_t power = SkipSign(text, at + 1);
        at = SkipDigits(text, power);
        digits = at - power;
    }
    return digits > 0 && at == text.size();
}

// A sign, digits in groups of three or in none, the point, digits; without its separators then.
bool TakeShown(std::string& text, const Separators& separators)
{
    const size_t start = SkipSign(text, 0);
    const size_t point = std::min(text.find(separators.point), text.size());
    std::string integer = text.substr(start, point - start);
    const std::string fraction = point < text.size() ? text.substr(point + 1) : "";
    const bool grouped = integer.find(separators.group) != std::string::npos;
    for (size_t behind = 0; grouped && behind < integer.size(); ++behind)
        if ((integer[integer.size() - 1 - behind] == separators.group) != (behind % 4 == 3))
            return false;
    if (grouped && integer[0] == separators.group)
        return false;
    integer.erase(std::remove(integer.begin(), integer.end(), separators.group), integer.end());
    const std::string digits = integer + fraction;
    if (digits.empty() || SkipDigits(digits, 0) != digits.size())
        return false;
    text = text.substr(0, start) + integer + "." + fraction;
    return true;
}

bool DropFront(std::string& text, const std::string& literals)
{
    const bool there = !literals.empty() && text.compare(0, literals.size(), literals) == 0;
    if (there)
        text.erase(0, literals.size());
    return there;
}

bool DropBack(std::string& text, const std::string& literals)
{
    const bool there = !literals.empty() && text.size() >= literals.size() &&
                       text.compare(text.size() - literals.size(), literals.size(), literals) == 0;
    if (there)
        text.erase(text.size() - literals.size());
    return there;
}

}  // namespace

// The literals of the mask go from both ends, and the regional symbol wherever it stands, whether the mask has it or not.
std::string Control::WithoutLiterals(std::string text) const
{
    const model::Format& format = NumberFormat();
    const std::string& symbol = regional_->currency;
    DropFront(text, format.prefix);
    DropBack(text, format.Tail());
    if (!symbol.empty() && text.find(symbol) != std::string::npos)
        text.erase(text.find(symbol), symbol.size());
    if (format.percent)
        DropBack(text, "%");
    return text;
}

// The number that a text handed in as data means.
Number Control::NumberOf(const std::string& text) const
{
    std::string number = text;
    bool percent = false;
    if (!IsCanonical(text, '.')) {
        number = WithoutLiterals(text);
        percent = NumberFormat().percent && !text.empty() && text.back() == '%';
        if (NumberFormat().general && IsCanonical(text, Point()))
            std::replace(number.begin(), number.end(), Point(), '.');
        else if (!TakeShown(number, Signs())) {
            number = text;
            percent = false;
        }
    }
    if (type_ == kDecimal)
        return Number::FromText(number).TimesPowerOfTen(percent ? -2 : 0);
    return Number::FromDouble(percent ? ToDouble(PlainText(Number::FromText(number).TimesPowerOfTen(-2), '.'))
                                      : ToDouble(number));
}

// What a text holds of a number.
std::string Control::NumberIn(std::string text) const
{
    if (NumberFormat().general && IsCanonical(text, Point()))
        return text;
    text = WithoutLiterals(text);
    std::string number;
    for (const char c : text)
        if (IsDigit(c) || c == '+' || c == '-' || c == Point() || (c == '.' && c != regional_->thousand))
            number += c;
    return number;
}

// The number shown, without a sign where it is zero.
std::string Control::ReadNumber() const
{
    const model::Format& format = NumberFormat();
    if (format.general) {
        std::string read = Text();
        const auto foreign = [&](char c) {
            return !IsDigit(c) && c != '-' && c != '+' && c != 'E' && c != Point() &&
                   (c != '.' || c == regional_->thousand);
        };
        read.erase(std::remove_if(read.begin(), read.end(), foreign), read.end());
        return read;
    }
    ShownNumber shown = Shows(Text());
    if (shown.digits.negative && shown.digits.AreZero()) {
        shown.digits.negative = false;
        if (format.Lay(shown.digits, Signs()).empty())
            return "0";
    }
    std::string text = shown.digits.negative ? "-" : "";
    if (shown.point >= 0)
        text += shown.digits.integer + Point() + shown.digits.fraction;
    else {
        // A text from outside may have a point where the mask has none.
        for (int i = shown.begin; i < shown.end; ++i) {
            const char c = CharOf(Text(), i);
            const bool sign = (c == '-' || c == '+') && i != shown.sign;
            if (IsDigit(c) || sign || c == Point() || (c == '.' && c != regional_->thousand))
                text += c;
        }
    }
    if (!percent_)
        return text;
    std::replace(text.begin(), text.end(), Point(), '.');
    if (type_ == kDecimal)
        return PlainText(Number::FromText(text).TimesPowerOfTen(-2), Point());
    model::Format general;
    general.general = true;
    return Render(general, Number::FromDouble(ToDouble(text) / 100.0), Signs());
}

}  // namespace model
