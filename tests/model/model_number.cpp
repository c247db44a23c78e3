// The model's number formatter: shortest digits, rounding half away from zero, grouping and literals.
// Works on digit texts only, so that nothing is lost to binary arithmetic.
#include "model_number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace model {
namespace {

constexpr int kGeneralDigits = 15;

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

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

// The integer digits from the right, each literal before the placeholders behind it, the sign before the first digit.
std::string Format::IntegerText(const std::string& digits, bool negative, char group) const
{
    std::string reversed;
    auto next = inner.rbegin();
    for (size_t done = 0; done < digits.size() || done < integer.size(); ++done) {
        if (done == digits.size() && negative)
            reversed += '-';
        for (; next != inner.rend() && integer.size() - next->before <= done; ++next)
            reversed += next->literal;
        if (done >= digits.size())
            continue;
        if (grouped && done != 0 && done % 3 == 0)
            reversed += group;
        reversed += digits[digits.size() - 1 - done];
    }
    if (negative && digits.size() >= integer.size())
        reversed += '-';
    for (; next != inner.rend(); ++next)
        reversed += next->literal;
    return {reversed.rbegin(), reversed.rend()};
}

std::string Render(const Format& format, const Number& number, const Separators& separators)
{
    if (format.general)
        return General(number, separators);
    const Number shown = format.percent ? number.TimesPowerOfTen(2) : number;
    const auto places = format.fraction.size();
    std::string digits = Rounded(shown, static_cast<int>(places));
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
    const bool zero = digits.empty();
    if (digits.size() < places)
        digits.insert(0, places - digits.size(), '0');
    std::string fraction = digits.substr(digits.size() - places);
    std::string integer = digits.substr(0, digits.size() - places);

    const size_t forced = format.integer.find('0');
    const size_t least = forced == std::string::npos ? 0 : format.integer.size() - forced;
    if (integer.size() < least)
        integer.insert(0, least - integer.size(), '0');
    while (!fraction.empty() && fraction.back() == '0' &&
           format.fraction.find('0', fraction.size() - 1) == std::string::npos)
        fraction.pop_back();

    std::string text = format.prefix + format.IntegerText(integer, number.negative && !zero, separators.group);
    if (format.point)
        text += separators.point;
    return text + format.middle + fraction + format.suffix;
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
