// The model's dates and times: the calendar, canonical texts, and what a display text says.
// A display text is walked position by position against the mask.
#include "model_control.h"
#include "model_text.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <tuple>

namespace model {
namespace {

bool Leap(int calendarYear)
{
    return calendarYear % 4 == 0 && (calendarYear % 100 != 0 || calendarYear % 400 == 0);
}

std::string Lower(std::string text)
{
    for (char& c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

bool TwoDigits(const std::string& text, size_t at, int& value)
{
    if (at + 2 > text.size() || !IsDigit(text[at]) || !IsDigit(text[at + 1]))
        return false;
    value = (text[at] - '0') * 10 + text[at + 1] - '0';
    return true;
}

bool ParseDate(Stamp& stamp, const std::string& text)
{
    int century = 0;
    int year = 0;
    int month = 0;
    int day = 0;
    if (text.size() != 10 || text[4] != '-' || text[7] != '-' || !TwoDigits(text, 0, century) ||
        !TwoDigits(text, 2, year) || !TwoDigits(text, 5, month) || !TwoDigits(text, 8, day))
        return false;
    year += century * 100;
    if (year < 1 || month < 1 || month > 12 || day < 1 || day > DaysOfMonth(year, month - 1))
        return false;
    stamp.year = year - 1900;
    stamp.month = month - 1;
    stamp.day = day;
    return true;
}

bool ParseTime(Stamp& stamp, std::string text, const Regional& regional)
{
    int half = 0;  // 1 morning, 2 evening
    const auto strip = [&](const std::string& marker, int which) {
        const std::string tail = " " + marker;
        if (half != 0 || text.size() <= tail.size() || Lower(text.substr(text.size() - tail.size())) != Lower(tail))
            return;
        text.erase(text.size() - tail.size());
        half = which;
    };
    strip(regional.am, 1);
    strip(regional.pm, 2);
    strip("AM", 1);
    strip("PM", 2);
    int hour = 0;
    int minute = 0;
    int second = 0;
    int micro = 0;
    if (text.size() < 5 || !TwoDigits(text, 0, hour) || text[2] != ':' || !TwoDigits(text, 3, minute))
        return false;
    if (text.size() > 5 && (text[5] != ':' || !TwoDigits(text, 6, second)))
        return false;
    if (text.size() > 8) {
        const std::string digits = text.substr(9);
        if ((text[8] != ':' && text[8] != '.') || digits.empty() || digits.size() > 6 ||
            digits.find_first_not_of("0123456789") != std::string::npos)
            return false;
        micro = std::atoi((digits + std::string(6 - digits.size(), '0')).c_str());
    }
    if (hour > 23 || minute > 59 || second > 59 || (half != 0 && (hour < 1 || hour > 12)))
        return false;
    if (half != 0)
        hour = hour % 12 + (half == 2 ? 12 : 0);
    std::tie(stamp.hour, stamp.minute, stamp.second, stamp.microsecond) = std::tie(hour, minute, second, micro);
    return true;
}

std::string CanonicalDate(const Stamp& stamp)
{
    char text[64];
    std::snprintf(text, sizeof text, "%4.4d-%2.2d-%2.2d", stamp.year + 1900, stamp.month + 1, stamp.day);
    return text;
}

std::string CanonicalTime(const Stamp& stamp)
{
    char text[64];
    std::snprintf(text, sizeof text, "%2.2d:%2.2d:%2.2d:%6.6d", stamp.hour, stamp.minute, stamp.second,
                  stamp.microsecond);
    return text;
}

std::string At(const std::string& text, int position, int count)
{
    return position < static_cast<int>(text.size())
               ? text.substr(static_cast<size_t>(position), static_cast<size_t>(count))
               : std::string();
}

int MonthFromName(const std::string& name)
{
    for (int i = 0; i < 12; ++i)
        if (Upper(name) == kMonths[i])
            return i;
    return -1;
}

}  // namespace

int DaysOfMonth(int calendarYear, int month)
{
    constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 0 || month > 11)
        return 31;
    return month == 1 && Leap(calendarYear) ? 29 : days[month];
}

bool ParseCanonical(Stamp& stamp, const std::string& text, Type type, const Regional& regional)
{
    Stamp parsed;
    bool good = false;
    if (type == kDate)
        good = ParseDate(parsed, text);
    else if (type == kTime)
        good = ParseTime(parsed, text, regional);
    else
        good = ParseDate(parsed, text.substr(0, 10)) &&
               (text.size() == 10 || (text[10] == ' ' && ParseTime(parsed, text.substr(11), regional)));
    if (good)
        stamp = parsed;
    return good;
}

bool Stamp::operator==(const Stamp& other) const
{
    return std::tie(microsecond, year, month, day, hour, minute, second) ==
           std::tie(other.microsecond, other.year, other.month, other.day, other.hour, other.minute, other.second);
}

int Control::CalendarYear(int year) const
{
    return yearDigits_ == 2 && year < 50 ? year + 2000 : year + 1900;
}

int Control::DaysInMonth(int year, int month) const
{
    return DaysOfMonth(CalendarYear(year), month);
}

int Control::YearFromText() const
{
    for (size_t i = 0; i < mask_.size(); ++i) {
        if ((mask_[i] != 'Y' && mask_[i] != 'y') || (i > 0 && mask_[i - 1] == '~'))
            continue;
        int run = 1;
        while (i + static_cast<size_t>(run) < mask_.size() &&
               (mask_[i + static_cast<size_t>(run)] == 'Y' || mask_[i + static_cast<size_t>(run)] == 'y'))
            ++run;
        const int number = std::atoi(At(Text(), TextOffset(i), run).c_str());
        return run != 2 ? number - 1900 : number < 50 ? number + 100 : number;
    }
    return 0;
}

int Control::MonthFromText() const
{
    const std::string text = Text().substr(0, Text().empty() ? 0 : Text().size() - 1);
    for (size_t i = 0; i < mask_.size(); ++i) {
        const bool marker = ampm_ && DisplayOf(mask_, i) > ampmPos_ && DisplayOf(mask_, i) < ampmPos_ + 5;
        if ((mask_[i] != 'M' && mask_[i] != 'm') || (i > 0 && mask_[i - 1] == '~') || marker)
            continue;
        int run = 1;
        while (i + static_cast<size_t>(run) < mask_.size() &&
               (mask_[i + static_cast<size_t>(run)] == 'M' || mask_[i + static_cast<size_t>(run)] == 'm'))
            ++run;
        const std::string field = At(text, TextOffset(i), run);
        return run == 2 ? std::atoi(field.c_str()) : MonthFromName(field) + 1;
    }
    return 0;
}

void Control::DateFromDayOfYear(Stamp& stamp, int day) const
{
    if (day < 1 || day > (Leap(CalendarYear(stamp.year)) ? 366 : 365)) {
        stamp.year = kNoDate;
        return;
    }
    stamp.month = 0;
    while (stamp.month < 11 && day > DaysInMonth(stamp.year, stamp.month))
        day -= DaysInMonth(stamp.year, stamp.month++);
    stamp.day = day;
}

bool Control::ShowsMarker(const std::string& text) const
{
    return At(text, ampmPos_, static_cast<int>(regional_->am.size())) == regional_->am ||
           At(text, ampmPos_, static_cast<int>(regional_->pm.size())) == regional_->pm;
}

// Positions that the field at `position` spans, or -1 when its text cannot be read.
int Control::ParseField(Stamp& stamp, const std::string& text, int position, const MaskChar& at, bool& year,
                        const std::string& markerText)
{
    int run = 1;
    while (static_cast<size_t>(at.index + run) < mask_.size() && mask_[static_cast<size_t>(at.index + run)] == at.c)
        ++run;
    const char letter = static_cast<char>(std::toupper(static_cast<unsigned char>(at.c)));
    if (std::strchr("DHMSFYJ", letter) == nullptr)
        return run;
    const bool minute = MinuteAt(mask_, static_cast<size_t>(at.index), type_);
    if (letter == 'M' && !minute && run != 2) {
        stamp.month = MonthFromName(At(text, position, 3));
        if (stamp.month >= 0)
            return run;
        stamp.month = 0;
        return -1;
    }
    const int width = letter == 'F' ? run : letter == 'J' ? 3 : letter == 'Y' && run != 2 ? 4 : 2;
    const std::string digits = At(text, position, width);
    if (letter != 'J' && !IsNumber(digits, Point()))
        return -1;
    const int number = std::atoi(digits.c_str());
    switch (letter) {
    case 'D': stamp.day = number; break;
    case 'H':
        stamp.hour = number;
        if (ampm_) {
            const bool evening = At(markerText, ampmPos_, static_cast<int>(regional_->pm.size())) == regional_->pm;
            if (evening && number < 12)
                stamp.hour += 12;
            if (!evening && number == 12)
                stamp.hour = 0;
        }
        break;
    case 'M': (minute ? stamp.minute : stamp.month) = minute || number == 0 ? number : number - 1; break;
    case 'S': stamp.second = number; break;
    case 'F':
        stamp.microsecond = number;
        for (int i = run; i < 6; ++i)
            stamp.microsecond *= 10;
        break;
    case 'Y':
        stamp.year = run == 2 ? (number < 50 ? number + 100 : number) : number - 1900;
        year = true;
        if (pendingDay_ >= 0)
            DateFromDayOfYear(stamp, pendingDay_);
        pendingDay_ = -1;
        break;
    default:
        if (year)
            DateFromDayOfYear(stamp, number);
        else
            pendingDay_ = number;
    }
    return run;
}

// 0 when the whole text was read, -1 at the first field that could not be.
int Control::WalkDate(Stamp& stamp, const std::string& text, const std::string& markerText)
{
    bool year = false;
    for (int position = 0; position < static_cast<int>(text.size());) {
        const MaskChar at = CharAt(text, position);
        if (InsideAmPm(position) || at.index < 0 || !InTable(at.c, type_)) {
            ++position;
            continue;
        }
        const int taken = ParseField(stamp, text, position, at, year, markerText);
        if (taken < 0)
            return -1;
        position += taken;
    }
    return 0;
}

// The display text as a checked value; false when it is no display text of this mask.
bool Control::DisplayToStamp(Stamp& stamp, const std::string& text)
{
    const bool timed = type_ != kDate;
    Shown blank;
    FormatFields(Value::None(), blank);
    if (text == blank.text)
        return false;
    if (ampm_ && timed ? !ShowsMarker(text) : static_cast<int>(text.size()) != displayLength_ && !ampm_)
        return false;
    Stamp read;
    if (WalkDate(read, text, text) != 0)
        return false;
    if (type_ != kTime && read.day == 0)
        read.day = 1;
    std::string canonical = type_ == kTime ? CanonicalTime(read) : CanonicalDate(read);
    if (type_ == kDateTime && read.HasTime())
        canonical += " " + CanonicalTime(read);
    return ParseCanonical(stamp, canonical, type_, *regional_);
}

// The value under the mask as the window shows it; `internal` for the reader used while typing.
Stamp Control::ReadStamp(bool internal)
{
    Stamp stamp;
    const int length = edit_.Length();
    if (ampm_ || (internal ? length >= displayLength_ : length == displayLength_))
        WalkDate(stamp, Text(), Text());
    if (internal && stamp.HasDate() && stamp.day == 0)
        stamp.day = 1;
    return stamp;
}

bool Control::ZeroDate(const Stamp& stamp) const
{
    return stamp.day == 0 && stamp.month == 0 && stamp.year == 100 && MonthFromText() == 0;
}

}  // namespace model
