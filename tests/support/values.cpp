// The values of masked edits as texts.
#include "tests/support/values.h"

#include <cstdio>

namespace zttest {
namespace {

// Moves the point of a plain number two digits to the left.
std::string HundredthOf(const std::string& number)
{
    const size_t sign = number.compare(0, 1, "-") == 0 ? 1 : 0;
    const size_t point = number.find('.');
    std::string whole = number.substr(sign, point == std::string::npos ? point : point - sign);
    const std::string fraction = point == std::string::npos ? "" : number.substr(point + 1);
    while (whole.size() < 3)
        whole.insert(0, "0");
    return number.substr(0, sign) + whole.substr(0, whole.size() - 2) + "." + whole.substr(whole.size() - 2) + fraction;
}

// One more digit behind those of a 96-bit number.
void AppendDigit(DecimalValue& value, uint32_t digit)
{
    const uint64_t low = (value.lo64 & 0xFFFFFFFF) * 10 + digit;
    const uint64_t middle = (value.lo64 >> 32) * 10 + (low >> 32);
    value.lo64 = middle << 32 | (low & 0xFFFFFFFF);
    value.hi32 = static_cast<uint32_t>(value.hi32 * 10ULL + (middle >> 32));
}

}  // namespace

std::string Canonical(const DateTimeValue& value)
{
    char date[40] = "";
    char time[40] = "";
    if (value.year != DATETIME_NO_DATE)
        std::snprintf(date, sizeof date, "%4.4d-%2.2d-%2.2d", value.year + 1900, value.month + 1, value.day);
    if (value.hour != DATETIME_NO_TIME)
        std::snprintf(time, sizeof time, "%2.2d:%2.2d:%2.2d:%6.6lu", value.hour, value.minute, value.second,
                      static_cast<unsigned long>(value.microsecond));
    return std::string(date) + (*date && *time ? " " : "") + time;
}

DateTimeValue ValueOf(const std::string& canonical)
{
    DateTimeValue value = {};
    value.year = DATETIME_NO_DATE;
    value.hour = DATETIME_NO_TIME;
    int year, month, day, hour, minute;
    int second = 0;
    unsigned long microsecond = 0;
    const char* time = canonical.c_str();
    if (std::sscanf(time, "%4d-%2d-%2d", &year, &month, &day) == 3) {
        value.year = static_cast<int16_t>(year - 1900);
        value.month = static_cast<int8_t>(month - 1);
        value.day = static_cast<int8_t>(day);
        time += canonical.size() > 10 ? 11 : 10;
    }
    if (std::sscanf(time, "%2d:%2d:%2d:%6lu", &hour, &minute, &second, &microsecond) >= 2) {
        value.hour = static_cast<int8_t>(hour);
        value.minute = static_cast<int8_t>(minute);
        value.second = static_cast<int8_t>(second);
        value.microsecond = static_cast<uint32_t>(microsecond);
    }
    return value;
}

DecimalValue DecimalOf(const std::string& plain)
{
    DecimalValue value = {};
    bool fraction = false;
    for (const char c : plain) {
        if (c == '-') {
            value.sign = 0x80;
        } else if (c == '.') {
            fraction = true;
        } else {
            AppendDigit(value, static_cast<uint32_t>(c - '0'));
            value.scale = static_cast<uint8_t>(value.scale + fraction);
        }
    }
    return value;
}

std::string DataOfNumberShown(const std::string& shown, char decimalChar)
{
    std::string data;
    bool percent = false;
    for (const char c : shown) {
        percent = percent || c == '%';
        if ((c >= '0' && c <= '9') || c == '-')
            data += c;
        else if (c == decimalChar)
            data += '.';
    }
    return percent ? HundredthOf(data) : data;
}

}  // namespace zttest
