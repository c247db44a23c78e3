// Reads the canonical texts of dates and times.
#include "engine/values/date_time.h"

#include "engine/text/ascii.h"
#include "engine/values/calendar.h"

namespace zte {

namespace {

constexpr int32_t kFourDigitYears = 4;

// Takes a canonical text from left to right. Each step returns whether it found what it wants; nothing behind a step that
// did not is looked at.
class Reader {
public:
    Reader(const Char* text, const Settings& settings) : at_(text), settings_(settings) {}

    bool AtEnd() const { return *at_ == Char{}; }

    bool Take(char c)
    {
        if (*at_ != static_cast<Char>(c))
            return false;
        ++at_;
        return true;
    }

    // Exactly count digits, into a number that is 0.
    bool TakeDigits(int32_t count, int32_t& number)
    {
        for (; count > 0; --count, ++at_) {
            if (!IsDigit(*at_))
                return false;
            number = number * 10 + DigitValue(*at_);
        }
        return true;
    }

    // One to six digits, as millionths, into a number that is 0.
    bool TakeFraction(uint32_t& microsecond)
    {
        int32_t digits = 0;
        for (; digits < kMicroDigits && IsDigit(*at_); ++digits, ++at_)
            microsecond = microsecond * 10 + static_cast<uint32_t>(DigitValue(*at_));
        const bool any = digits > 0;
        for (; digits < kMicroDigits; ++digits)
            microsecond *= 10;
        return any;
    }

    // The word in any case, as the last thing of the text.
    bool TakeLastWord(const Char* word)
    {
        const Char* at = at_;
        for (; *word != Char{}; ++word, ++at)
            if (Upper(*at) != Upper(*word))
                return false;
        if (*at != Char{})
            return false;
        at_ = at;
        return true;
    }

    const Settings& Regional() const { return settings_; }

private:
    Char Upper(Char c) const { return settings_.letters->upper(c); }

    const Char* at_;
    const Settings& settings_;
};

bool TakeDate(Reader& reader, DateTimeValue& value)
{
    int32_t year = 0;
    int32_t month = 0;
    int32_t day = 0;
    const bool complete = reader.TakeDigits(4, year) && reader.Take('-') && reader.TakeDigits(2, month) &&
                          reader.Take('-') && reader.TakeDigits(2, day);
    if (!complete || year < 1 || month < 1 || month > kMonths || day < 1)
        return false;
    if (day > MonthRowOf(kFourDigitYears, year - kFirstYear, month - 1).days)
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
    const Text am = FromAscii("AM");
    const Text pm = FromAscii("PM");
    const struct {
        const Char* word;
        int32_t firstHour;
    } halves[] = {
        {reader.Regional().amString, 0 },
        {reader.Regional().pmString, 12},
        {am.c_str(),                 0 },
        {pm.c_str(),                 12},
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

bool ParseDateTime(DateTimeValue& value, const Char* text, int32_t kind, const Settings& settings)
{
    Reader reader(text, settings);
    DateTimeValue read = kEmptyDateTime;
    if (!TakeKind(reader, kind, read) || !reader.AtEnd())
        return false;
    value = read;
    return true;
}

int32_t YearValue(int32_t number, int32_t digits)
{
    if (digits != 2)
        return number - kFirstYear;
    return number < 50 ? number + 100 : number;
}

int32_t FractionUnit(int32_t digits)
{
    int32_t unit = kMicroseconds;
    for (int32_t i = 0; i < digits && unit > 1; ++i)
        unit /= 10;
    return unit;
}

}  // namespace zte
