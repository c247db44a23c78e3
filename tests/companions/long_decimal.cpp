// Pen-and-paper arithmetic on digit texts.
#include "tests/companions/long_decimal.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace zttest {

const char kLargestDecimal[] = "79228162514264337593543950335";

namespace {

constexpr int kQuotientPlaces = 80;

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

std::string Trimmed(const std::string& digits)
{
    const size_t first = digits.find_first_not_of('0');
    return first == std::string::npos ? std::string() : digits.substr(first);
}

LongDecimal Tidy(LongDecimal number)
{
    number.digits = Trimmed(number.digits);
    if (number.digits.empty())
        number.negative = false;
    return number;
}

int CompareDigits(const std::string& first, const std::string& second)
{
    if (first.size() != second.size())
        return first.size() < second.size() ? -1 : 1;
    return first.compare(second);
}

std::string AddDigits(std::string first, std::string second)
{
    if (first.size() < second.size())
        std::swap(first, second);
    second.insert(0, first.size() - second.size(), '0');
    int carry = 0;
    for (size_t i = first.size(); i-- > 0;) {
        const int sum = first[i] - '0' + second[i] - '0' + carry;
        first[i] = static_cast<char>('0' + sum % 10);
        carry = sum / 10;
    }
    return carry ? "1" + first : first;
}

std::string SubtractDigits(std::string larger, std::string smaller)
{
    smaller.insert(0, larger.size() - smaller.size(), '0');
    int borrow = 0;
    for (size_t i = larger.size(); i-- > 0;) {
        int difference = larger[i] - smaller[i] - borrow;
        borrow = difference < 0;
        difference += borrow ? 10 : 0;
        larger[i] = static_cast<char>('0' + difference);
    }
    return Trimmed(larger);
}

void Align(LongDecimal& first, LongDecimal& second)
{
    LongDecimal& shorter = first.scale < second.scale ? first : second;
    const int scale = first.scale < second.scale ? second.scale : first.scale;
    if (!shorter.digits.empty())
        shorter.digits.append(static_cast<size_t>(scale - shorter.scale), '0');
    shorter.scale = scale;
}

enum class Tie { Away, Even };

LongDecimal Rounded(const LongDecimal& number, int places, Tie tie)
{
    if (number.scale <= places)
        return number;
    const auto dropped = static_cast<size_t>(number.scale - places);
    std::string all = number.digits;
    if (all.size() <= dropped)
        all.insert(0, dropped + 1 - all.size(), '0');
    std::string kept = all.substr(0, all.size() - dropped);
    const std::string rest = all.substr(all.size() - dropped);
    const std::string half = "5" + std::string(dropped - 1, '0');
    const bool odd = (kept.back() - '0') % 2 != 0;
    const bool up = rest > half || (rest == half && (tie == Tie::Away || odd));
    if (up)
        kept = AddDigits(kept, "1");
    return Tidy({number.negative, kept, places});
}

}  // namespace

LongDecimal FromText(const std::string& text)
{
    LongDecimal number;
    size_t i = 0;
    if (text[i] == '+' || text[i] == '-')
        number.negative = text[i++] == '-';
    bool point = false;
    for (; IsDigit(text[i]) || text[i] == '.'; ++i) {
        if (text[i] == '.') {
            point = true;
            continue;
        }
        number.digits += text[i];
        number.scale += point;
    }
    if (text[i] == 'e' || text[i] == 'E')
        number.scale -= std::atoi(text.c_str() + i + 1);
    return Tidy(number);
}

LongDecimal FromValue(const DecimalValue& value)
{
    LongDecimal number;
    number.negative = (value.sign & 0x80) != 0;
    number.scale = value.scale;
    for (int bit = 95; bit >= 0; --bit) {
        const bool set = bit < 64 ? (value.lo64 >> bit & 1) != 0 : (value.hi32 >> (bit - 64) & 1) != 0;
        number.digits = AddDigits(number.digits, number.digits);
        if (set)
            number.digits = AddDigits(number.digits, "1");
    }
    return Tidy(number);
}

LongDecimal FromDouble(double value)
{
    char text[64] = "0";
    for (int digits = 0; digits < 17; ++digits) {
        std::snprintf(text, sizeof text, "%.*e", digits, value);
        if (std::strtod(text, nullptr) == value)
            break;
    }
    return FromText(text);
}

std::string ToText(LongDecimal number)
{
    if (number.scale < 0)
        number = Sum(number, LongDecimal{});
    const auto scale = static_cast<size_t>(number.scale);
    std::string text = number.digits;
    if (text.size() <= scale)
        text.insert(0, scale + 1 - text.size(), '0');
    std::string fraction = text.substr(text.size() - scale);
    while (!fraction.empty() && fraction.back() == '0')
        fraction.pop_back();
    text.erase(text.size() - scale);
    return (number.negative ? "-" : "") + text + (fraction.empty() ? "" : "." + fraction);
}

LongDecimal Sum(LongDecimal first, LongDecimal second)
{
    Align(first, second);
    if (first.negative == second.negative)
        return Tidy({first.negative, AddDigits(first.digits, second.digits), first.scale});
    if (CompareDigits(first.digits, second.digits) < 0)
        std::swap(first, second);
    return Tidy({first.negative, SubtractDigits(first.digits, second.digits), first.scale});
}

LongDecimal Negated(LongDecimal number)
{
    number.negative = !number.negative;
    return Tidy(number);
}

LongDecimal TimesPowerOfTen(LongDecimal number, int power)
{
    number.scale -= power;
    return number;
}

int Compare(const LongDecimal& first, const LongDecimal& second)
{
    const LongDecimal difference = Sum(first, Negated(second));
    if (difference.digits.empty())
        return 0;
    return difference.negative ? -1 : 1;
}

LongDecimal Quotient(const LongDecimal& first, const LongDecimal& second)
{
    const std::string dividend =
        first.digits + std::string(static_cast<size_t>(kQuotientPlaces - first.scale + second.scale), '0');
    std::string quotient;
    std::string remainder;
    for (const char digit : dividend) {
        remainder = Trimmed(remainder + digit);
        char count = '0';
        for (; CompareDigits(remainder, second.digits) >= 0; ++count)
            remainder = SubtractDigits(remainder, second.digits);
        quotient += count;
    }
    quotient += remainder.empty() ? '0' : '1';
    return Tidy({first.negative != second.negative, quotient, kQuotientPlaces + 1});
}

LongDecimal RoundedHalfAway(const LongDecimal& number, int places)
{
    return Rounded(number, places, Tie::Away);
}

LongDecimal AsDecimalValue(const LongDecimal& number)
{
    const LongDecimal whole = number.scale < 0 ? Sum(number, LongDecimal{}) : number;
    for (int places = whole.scale < 28 ? whole.scale : 28; places >= 0; --places) {
        const LongDecimal rounded = Rounded(whole, places, Tie::Even);
        if (CompareDigits(rounded.digits, kLargestDecimal) <= 0)
            return rounded;
    }
    return {number.negative, kLargestDecimal, 0};
}

}  // namespace zttest
