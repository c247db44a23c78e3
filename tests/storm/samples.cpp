// The tables of what is handed in.
#include "tests/storm/samples.h"

#include <cstring>
#include <vector>

#include "include/ztvalues.h"
#include "tests/storm/random.h"

namespace storm {

namespace {

std::string AllHighBytes()
{
    std::string bytes;
    for (int byte = 0x80; byte <= 0xFF; ++byte)
        bytes += static_cast<char>(byte);
    return bytes;
}

std::string Repeated(const std::string& text, size_t times)
{
    std::string repeated;
    for (size_t i = 0; i < times; ++i)
        repeated += text;
    return repeated;
}

// clang-format off
const std::vector<std::string> kMasks = {
    "", "##", "(###) XXX-!!!", "XXXX", "AA-99", "^^^!!!", "##/##/####", "~#~##", "#,##0.00", "#,#.00", "####", "0000",
    "#,##0.00%", "[GENERAL]",
    "[currency(2)]", "[currency(16)]", "[currency(0)]", "$#,##0.00 x", ".00", "MM/DD/YY", "MM/DD/YYYY", "DD-MMM-YYYY",
    "JJJ/YYYY", "YYYY-MM-DD",
    "[date]", "[time]", "[date] [time]", "HH:MM:SS:FFFFFF", "HH:MM AM/PM", "AM/PM HH:MM", "HH:MM",
    "MM/DD/YYYY HH:MM:SS AM/PM", "MM/DD/YY HH:MM",
    "[currency(99999)]", "[currency(-5)]", "[currency", "~", "~~", "##~", "%s%n%d#", "\"'\"'#", "..,,", "%%#",
    "   #   ",
    std::string(255, '#'), std::string(256, '#'), std::string(3000, 'X'), std::string(254, '-') + "#",
    Repeated("~#", 127), AllHighBytes(),
    Repeated("MM/DD/YY ", 40), "HH:MM:SS:" + std::string(240, 'F'), "HH" + Repeated(" AM/PM", 40),
    "#" + std::string(250, ',') + "#",
    std::string(255, '0'), std::string(255, '.'),
};
const std::vector<std::string> kTexts = {
    "", "1", "12", "-5", "0", "1234.5", "-1,234.50", "1.234,50", "12.5%", "$5.00", "1e308", "-1e99999", "1e-308",
    "99999999999999999999999999999",
    "abc", "any text", "1995-07-04", "07/04/95", "12/31/1999", "14:07", "14:07:09:000250", "02:07 PM",
    "1995-07-04 14:07", "2024-02-29", "0000-00-00",
    "JUL", "null!", "One", "Two", "T", "x\ty", "%s%n", "\xFF\xFE\x80", "  ", "-", ".", "+", "--..,,",
    "line\r\nline\r\n", "\r\n", "\t\t",
    std::string(254, '9'), std::string(255, 'x'), std::string(256, ' '), std::string(300, '9'),
    std::string(2000, '-'), AllHighBytes(),
    Repeated("1995-07-04 ", 30), "0." + std::string(400, '7'),
};
// Laid out by some systems in a time that grows with the square of their length.
const std::vector<std::string> kLongTexts = {
    std::string(2500, 'x'), std::string(2500, '.'), Repeated("line\r\n", 300),
};
const std::vector<std::string> kKeys = {
    "1", "5", "12", "123", "7/4/95", "070495", "1234.5", "-5", ".5", "-.05", "50%", "12a", "a", "p", "jul", "2:07p",
    "x", "T", "One", "two",
    "00000", "99999999", "99/99/99", "$", "$5", ",", ".", "-", "+", "--", "%", " ", "/", ":", "\b", "\b\b\b",
    "\x01" "5", "\x16", "\x18", "\x1A", "\x03",
    "\r", "\n", "\t", "\x1B", "\x7F", "\xE4\xF6\xFC", "\xFF", "1\b2\b3", "abcdefghijklmnopqrstuvwxyz",
    "0123456789012345678901234567890123456789",
};
const std::vector<std::string> kRanges = {
    "", "~", "1~9", "0~0", "9~1", "-5~5", "1~", "~9", "1995-01-01~1999-12-31", "01/01/95~12/31/99", "08:00~17:00",
    "1995-01-01 08:00~1996-01-01",
    "x~y", "1~2~3", "1e308~1e309", "0000-00-00~9999-99-99", std::string(3000, '9') + "~" + std::string(3000, '9'),
    "\xFF~\xFE",
};
const std::vector<std::string> kCodes = {
    "", "/", "//", "One\t1/Two\t2/Three\t3", "Yes\tY/No\tN", "None\tnull!/Some\t1", "a", "a/b/c", "a\t/b\t",
    "\t1/\t2", "One\t1/One\t2/Two\t2",
    "a//b\t1/c//\t2", "x\ty\tz/q", Repeated("Entry\t1/", 200), std::string(3000, 'x'),
    std::string(300, 'x') + "\t" + std::string(300, 'y'),
    std::string(2000, '/'), std::string(2000, '\t'), "\xFF\t\xFE/\x80\t\x81",
};
// clang-format on

// Room for any record behind each text.
std::vector<std::string> Values()
{
    constexpr size_t kRoom = 64;
    std::vector<std::string> values = kTexts;
    const DateTimeValue dates[] = {
        {0,      95,               6,    4,    DATETIME_NO_TIME, 0,    0,    0 },
        {250,    95,               6,    4,    14,               7,    9,    0 },
        {0,      DATETIME_NO_DATE, 0,    0,    DATETIME_NO_TIME, 0,    0,    0 },
        {0,      124,              1,    29,   23,               59,   59,   0 },
        {~0u,    INT16_MAX,        127,  127,  127,              127,  127,  -1},
        {999999, INT16_MIN,        -128, -128, -128,             -128, -128, 0 },
    };
    for (const DateTimeValue& date : dates)
        values.emplace_back(reinterpret_cast<const char*>(&date), sizeof date);
    const double numbers[] = {0, 1, -1, 1234.5, 0.125, 1e308, -1e308, 1e-308, 2.675};
    for (const double number : numbers)
        values.emplace_back(reinterpret_cast<const char*>(&number), sizeof number);
    values.emplace_back(kRoom, '\xFF');  // not a number; a scale beyond all
    for (std::string& value : values)
        value.append(kRoom, '\0');
    return values;
}

const char* Pick(const std::vector<std::string>& items, uint32_t number)
{
    Random random(number);
    return items[random.Below(static_cast<uint32_t>(items.size()))].c_str();
}

bool IsNull(uint32_t number)
{
    return Random(~uint64_t{number}).OneIn(40);
}

bool IsLong(uint32_t number)
{
    return Random(uint64_t{number} << 32).OneIn(2000);
}

}  // namespace

const char* MaskOf(uint32_t number)
{
    return IsNull(number) ? nullptr : Pick(kMasks, number);
}

const char* TextOf(uint32_t number)
{
    if (IsNull(number))
        return nullptr;
    return Pick(IsLong(number) ? kLongTexts : kTexts, number);
}

const char* KeysOf(uint32_t number)
{
    return Pick(kKeys, number);
}

const char* RangeOf(uint32_t number)
{
    return IsNull(number) ? nullptr : Pick(kRanges, number);
}

const char* CodesOf(uint32_t number)
{
    return (number & 3) == 0 ? Pick(kCodes, number) : nullptr;
}

const void* ValueOf(uint32_t number)
{
    static const std::vector<std::string> values = Values();
    return IsNull(number) ? nullptr : Pick(values, number);
}

int32_t TypeOf(uint32_t number)
{
    constexpr int32_t kOthers[] = {0, 7, -1, 255, INT32_MAX, INT32_MIN};
    Random random(number);
    return random.OneIn(20) ? random.Of(kOthers) : DT_STRING + static_cast<int32_t>(random.Below(6));
}

}  // namespace storm
