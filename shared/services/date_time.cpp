// Reads the canonical texts of dates and times, and the clock.
#include "shared/ascii.h"
#include "shared/services/regional.h"
#include "ztshared.h"

namespace {

constexpr int32_t kFirstYear = 1900;  // years are counted from it
constexpr int32_t kFractionDigits = 6;
constexpr DateTimeValue kEmpty{0, DATETIME_NO_DATE, 0, 0, DATETIME_NO_TIME, 0, 0, 0};

bool IsLeapYear(int32_t year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

// month 1..12
int32_t DaysInMonth(int32_t year, int32_t month)
{
    constexpr int8_t kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && IsLeapYear(year) ? 29 : kDays[month - 1];
}

// Takes a canonical text from left to right. Each step returns whether it found what it wants; nothing behind a step that
// did not is looked at.
class Reader {
public:
    explicit Reader(const char* text) : at_(text) {}

    bool AtEnd() const { return *at_ == '\0'; }

    bool Take(char c)
    {
        if (*at_ != c)
            return false;
        ++at_;
        return true;
    }

    // Exactly count digits.
    bool TakeDigits(int32_t count, int32_t& number)
    {
        number = 0;
        for (; count > 0; --count, ++at_) {
            if (!zte::IsAsciiDigit(*at_))
                return false;
            number = number * 10 + (*at_ - '0');
        }
        return true;
    }

    // One to six digits, as millionths.
    bool TakeFraction(uint32_t& microsecond)
    {
        microsecond = 0;
        int32_t digits = 0;
        for (; digits < kFractionDigits && zte::IsAsciiDigit(*at_); ++digits, ++at_)
            microsecond = microsecond * 10 + static_cast<uint32_t>(*at_ - '0');
        const bool any = digits > 0;
        for (; digits < kFractionDigits; ++digits)
            microsecond *= 10;
        return any;
    }

    // The word in any case, as the last thing of the text.
    bool TakeLastWord(const char* word)
    {
        const char* at = at_;
        for (; *word != '\0'; ++word, ++at)
            if (zte::ToUpper(*at) != zte::ToUpper(*word))
                return false;
        if (*at != '\0')
            return false;
        at_ = at;
        return true;
    }

private:
    const char* at_;
};

bool TakeDate(Reader& reader, DateTimeValue& value)
{
    int32_t year = 0;
    int32_t month = 0;
    int32_t day = 0;
    const bool complete = reader.TakeDigits(4, year) && reader.Take('-') && reader.TakeDigits(2, month) &&
                          reader.Take('-') && reader.TakeDigits(2, day);
    if (!complete || year < 1 || month < 1 || month > 12 || day < 1 || day > DaysInMonth(year, month))
        return false;
    value.year = static_cast<int16_t>(year - kFirstYear);
    value.month = static_cast<int8_t>(month - 1);
    value.day = static_cast<int8_t>(day);
    return true;
}

struct ClockTime {
    int32_t hour = 0;
    int32_t minute = 0;
    int32_t second = 0;
    uint32_t microsecond = 0;
};

bool TakeClockTime(Reader& reader, ClockTime& time)
{
    if (!reader.TakeDigits(2, time.hour) || !reader.Take(':') || !reader.TakeDigits(2, time.minute))
        return false;
    if (!reader.Take(':'))
        return true;
    if (!reader.TakeDigits(2, time.second))
        return false;
    return (!reader.Take(':') && !reader.Take('.')) || reader.TakeFraction(time.microsecond);
}

// The AM or PM string, which ends the text; the hour becomes one of 24. The regional strings come first.
bool TakeHalfOfDay(Reader& reader, int32_t& hour)
{
    const shared::Regional& regional = shared::RegionalConventions();
    const struct {
        const char* word;
        int32_t firstHour;
    } halves[] = {
        {regional.am, 0 },
        {regional.pm, 12},
        {"AM",        0 },
        {"PM",        12},
    };
    if (hour < 1 || hour > 12)
        return false;
    for (const auto& half : halves)
        if (reader.TakeLastWord(half.word)) {
            hour = hour % 12 + half.firstHour;
            return true;
        }
    return false;
}

bool TakeTime(Reader& reader, DateTimeValue& value)
{
    ClockTime time;
    if (!TakeClockTime(reader, time) || (reader.Take(' ') && !TakeHalfOfDay(reader, time.hour)))
        return false;
    if (time.hour > 23 || time.minute > 59 || time.second > 59)
        return false;
    value.hour = static_cast<int8_t>(time.hour);
    value.minute = static_cast<int8_t>(time.minute);
    value.second = static_cast<int8_t>(time.second);
    value.microsecond = time.microsecond;
    return true;
}

bool TakeDateAndTime(Reader& reader, DateTimeValue& value)
{
    return TakeDate(reader, value) && (!reader.Take(' ') || TakeTime(reader, value));
}

bool TakeKind(Reader& reader, int32_t kind, DateTimeValue& value)
{
    switch (kind) {
    case DATETIME_KIND_BOTH: return TakeDateAndTime(reader, value);
    case DATETIME_KIND_DATE: return TakeDate(reader, value);
    case DATETIME_KIND_TIME: return TakeTime(reader, value);
    default: return false;
    }
}

}  // namespace

int32_t WINAPI SharedParseDateTime(DateTimeValue* value, const char* text, int32_t kind)
{
    if (!value || !text)
        return 1;
    Reader reader(text);
    DateTimeValue read = kEmpty;
    if (!TakeKind(reader, kind, read) || !reader.AtEnd())
        return 1;
    *value = read;
    return 0;
}

void WINAPI SharedDateTimeNow(DateTimeValue* value)
{
    if (!value)
        return;
    SYSTEMTIME now;
    GetLocalTime(&now);
    DateTimeValue read = kEmpty;
    read.microsecond = now.wMilliseconds * 1000u;
    read.year = static_cast<int16_t>(now.wYear - kFirstYear);
    read.month = static_cast<int8_t>(now.wMonth - 1);
    read.day = static_cast<int8_t>(now.wDay);
    read.hour = static_cast<int8_t>(now.wHour);
    read.minute = static_cast<int8_t>(now.wMinute);
    read.second = static_cast<int8_t>(now.wSecond);
    *value = read;
}
