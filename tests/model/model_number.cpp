// The model's number formatter: shortest digits, rounding half away from zero, grouping and literals.
// Works on digit texts only, so that nothing is lost to binary arithmetic.
#include "model_number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "model_text.h"

namespace model {
namespace {

constexpr int kGeneralDigits = 15;

Number Trimmed(Number number)
{
    number.digits.erase(0, std::min(number.digits.find_first_not_of('0'), number.digits.size()));
    return number;
}

void Increment(std::string& digits)
{
    for (size_t i = digits.size(); i-- > 0;) {
        if (digits[i] != '9') {
            ++digits[i];
            return;
        }
        digits[i] = '0';
    }
    digits.insert(digits.begin(), '1');
}

// The number with exactly `places` digits behind the point, at least one digit kept in front.
std::string Rounded(const Number& number, int places)
{
    std::string digits = number.digits;
    if (number.scale <= places)
        return digits + std::string(static_cast<size_t>(places - number.scale), '0');
    const auto dropped = static_cast<size_t>(number.scale - places);
    if (digits.size() < dropped)
        return {};
    const bool up = digits[digits.size() - dropped] >= '5';
    digits.erase(digits.size() - dropped);
    if (up)
        Increment(digits);
    return digits;
}

std::string WithExponent(std::string digits, int exponent, char point)
{
    if (digits.size() > 1)
        digits.insert(1, 1, point);
    const std::string power = std::to_string(std::abs(exponent));
    return digits + (exponent < 0 ? "E-" : "E+") + (power.size() < 2 ? "0" : "") + power;
}

std::string General(const Number& number, const Separators& separators)
{
    Number shown = number;
    const int excess = static_cast<int>(shown.digits.size()) - kGeneralDigits;
    if (excess > 0) {
        shown.digits = Rounded({false, number.digits, excess}, 0);
        shown.scale -= excess;
    }
    while (!shown.digits.empty() && shown.digits.back() == '0') {
        shown.digits.pop_back();
        --shown.scale;
    }
    if (shown.digits.empty())
        return "0";
    const int exponent = static_cast<int>(shown.digits.size()) - shown.scale - 1;
    if (exponent >= kGeneralDigits || exponent < -kGeneralDigits - 1)
        return (number.negative ? "-" : "") + WithExponent(shown.digits, exponent, separators.point);
    std::string text = shown.digits;
    if (shown.scale <= 0)
        text.append(static_cast<size_t>(-shown.scale), '0');
    else {
        const auto scale = static_cast<size_t>(shown.scale);
        if (text.size() <= scale)
            text.insert(0, scale + 1 - text.size(), '0');
        text.insert(text.size() - scale, 1, separators.point);
    }
    return (number.negative ? "-" : "") + text;
}

}  // namespace

Number Number::FromDouble(double value)
{
    Number number;
    if (!std::isfinite(value) || value == 0.0)
        return number;
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, std::fabs(value), std::chars_format::scientific).ptr;
    number = FromText(std::string(text, end));
    number.negative = value < 0;
    return number;
}

Number Number::FromText(const std::string& text)
{
    Number number;
    size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t'))
        ++i;
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
        number.negative = text[i++] == '-';
    bool point = false;
    for (; i < text.size() && (IsDigit(text[i]) || (text[i] == '.' && !point)); ++i) {
        if (text[i] == '.') {
            point = true;
            continue;
        }
        number.digits += text[i];
        number.scale += point ? 1 : 0;
    }
    if (!number.digits.empty() && i < text.size() && (text[i] == 'e' || text[i] == 'E'))
        number.scale -= std::atoi(text.c_str() + i + 1);
    return Trimmed(number);
}

Number Number::TimesPowerOfTen(int power) const
{
    Number number = *this;
    number.scale -= power;
    return number;
}

std::optional<Format> Format::Compile(const std::string& text)
{
    Format format;
    if (text == "[GENERAL]") {
        format.general = true;
        return format;
    }
    bool started = false;
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const auto literal = [&](char l) {
            if (started && !format.point)
                format.inner.push_back({format.integer.size(), l});
            else
                (!started ? format.prefix : format.fraction.empty() ? format.middle : format.suffix) += l;
        };
        const bool placeholder = c == '0' || c == '#';
        if (!format.point && (c == ',' || placeholder))
            ++format.room;
        switch (c) {
        case '0':
        case '#':
            if (format.percent)
                return std::nullopt;
            (format.point ? format.fraction : format.integer) += c;
            started = true;
            break;
        case '.':
            if (format.point)
                return std::nullopt;
            format.point = started = true;
            break;
        case ',':
            if (format.point)
                return std::nullopt;
            if (!format.integer.empty() && text.find_first_of("#0.", i) != std::string::npos &&
                text[text.find_first_of("#0.", i)] != '.')
                format.grouped = true;
            break;
        case '%':
            format.percent = true;
            literal(c);
            break;
        case '\\':
            if (++i == text.size())
                return std::nullopt;
            literal(text[i]);
            break;
        default: literal(c);
        }
    }
    if (format.integer.empty() && format.fraction.empty())
        return std::nullopt;
    return format;
}

size_t Format::ForcedInteger() const
{
    const size_t forced = integer.find('0');
    return forced == std::string::npos ? 0 : integer.size() - forced;
}

size_t Format::ForcedFraction() const
{
    return fraction.find_last_of('0') + 1;
}

std::string Format::Tail() const
{
    if (point)
        return fraction.empty() ? middle : suffix;
    std::string tail;
    for (const Inner& literal : inner)
        if (literal.before == integer.size())
            tail += literal.literal;
    return tail;
}

bool Format::IsFull(size_t significant, const Separators& separators) const
{
    const size_t shown = significant + 1 + (Groups(separators) ? significant / 3 : 0);
    return shown > static_cast<size_t>(room);
}

// The integer digits from the right, each literal before the placeholders behind it, the sign before the first digit.
std::string Format::Lay(const Digits& digits, const Separators& separators) const
{
    const size_t count = digits.integer.size();
    std::string reversed;
    auto next = inner.rbegin();
    const auto literals = [&](size_t done) {
        for (; next != inner.rend() && integer.size() - next->before <= done; ++next)
            reversed += next->literal;
    };
    literals(0);
    for (size_t done = 0; done < count || done < integer.size(); ++done) {
        if (done == count && digits.negative)
            reversed += '-';
        literals(done);
        if (done >= count)
            continue;
        if (Groups(separators) && done != 0 && done % 3 == 0)
            reversed += separators.group;
        reversed += digits.integer[count - 1 - done];
    }
    if (digits.negative && count >= integer.size())
        reversed += '-';
    literals(integer.size());
    std::string text = prefix + std::string(reversed.rbegin(), reversed.rend());
    if (point)
        text += separators.point;
    return text + middle + digits.fraction + suffix;
}

int ShownNumber::IntegerFrom(int position) const
{
    return static_cast<int>(std::count_if(integerAt.begin(), integerAt.end(), [=](int at) { return at >= position; }));
}

int ShownNumber::FractionBefore(int position) const
{
    return static_cast<int>(std::count_if(fractionAt.begin(), fractionAt.end(), [=](int at) { return at < position; }));
}

int ShownNumber::First() const
{
    return sign >= 0 ? sign : !integerAt.empty() ? integerAt[0] : point >= 0 ? point : end;
}

ShownNumber ReadShown(const Format& format, const std::string& text, const Separators& separators)
{
    ShownNumber shown;
    const std::string tail = format.Tail();
    size_t begin = text.compare(0, format.prefix.size(), format.prefix) == 0 ? format.prefix.size() : 0;
    size_t end = text.size();
    if (end >= begin + tail.size() && text.compare(end - tail.size(), tail.size(), tail) == 0)
        end -= tail.size();
    shown.begin = static_cast<int>(begin);
    shown.end = static_cast<int>(end);
    for (size_t i = begin; i < end; ++i) {
        const char c = text[i];
        const int at = static_cast<int>(i);
        if (IsDigit(c)) {
            const bool fraction = shown.point >= 0;
            (fraction ? shown.digits.fraction : shown.digits.integer) += c;
            (fraction ? shown.fractionAt : shown.integerAt).push_back(at);
        } else if (format.point && c == separators.point && shown.point < 0) {
            shown.point = at;
            if (text.compare(i + 1, format.middle.size(), format.middle) == 0)
                i += format.middle.size();
        } else if (c == '-' && shown.integerAt.empty() && shown.point < 0) {
            shown.sign = at;
            shown.digits.negative = true;
        }
    }
    return shown;
}

std::string Render(const Format& format, const Number& number, const Separators& separators)
{
    if (format.general)
        return General(number, separators);
    const Number scaled = format.percent ? number.TimesPowerOfTen(2) : number;
    const auto places = format.Places();
    std::string digits = Rounded(scaled, static_cast<int>(places));
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
    Digits shown;
    shown.negative = number.negative && !digits.empty();
    if (digits.size() < places)
        digits.insert(0, places - digits.size(), '0');
    shown.fraction = digits.substr(digits.size() - places);
    shown.integer = digits.substr(0, digits.size() - places);
    if (shown.integer.size() < format.ForcedInteger())
        shown.integer.insert(0, format.ForcedInteger() - shown.integer.size(), '0');
    while (shown.fraction.size() > format.ForcedFraction() && shown.fraction.back() == '0')
        shown.fraction.pop_back();
    return format.Lay(shown, separators);
}

std::string PlainText(const Number& number, char point)
{
    if (number.digits.empty())
        return "0";
    std::string text = number.digits;
    if (number.scale < 0)
        text.append(static_cast<size_t>(-number.scale), '0');
    const auto scale = static_cast<size_t>(std::max(0, number.scale));
    if (text.size() <= scale)
        text.insert(0, scale + 1 - text.size(), '0');
    if (scale > 0) {
        text.insert(text.size() - scale, 1, point);
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == point)
            text.pop_back();
    }
    return (number.negative && text.find_first_not_of("0") != std::string::npos ? "-" : "") + text;
}

double ToDouble(const std::string& text)
{
    const size_t start = text.find_first_not_of(" \t");
    const size_t end = start == std::string::npos ? start : text.find_first_not_of("+-.0123456789eE", start);
    return std::atof(text.substr(0, end).c_str());
}

bool IsNumber(const std::string& text, char point)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos)
        return false;
    std::string core = text.substr(first, text.find_last_not_of(' ') - first + 1);
    if (core[0] == '+' || core[0] == '-')
        core.erase(0, 1);
    const auto digits = std::count_if(core.begin(), core.end(), IsDigit);
    const auto points = std::count_if(core.begin(), core.end(), [=](char c) { return c == '.' || c == point; });
    return digits > 0 && points <= 1 && static_cast<size_t>(digits + points) == core.size();
}

}  // namespace model
