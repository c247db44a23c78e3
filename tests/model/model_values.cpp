// The model's values: formatting under the mask, reading back, and canonical dates and times.
// Dates are walked position by position against the mask, as the display shows them.
#include "model_control.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <tuple>

namespace model {
namespace {

constexpr const char* kMonths[] = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN", "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

std::string Padded(int value, int width)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.*u", width, static_cast<unsigned>(value));
    return text;
}

std::string At(const std::string& text, int position, int count)
{
    return position < static_cast<int>(text.size())
               ? text.substr(static_cast<size_t>(position), static_cast<size_t>(count))
               : std::string();
}

bool Leap(int calendarYear)
{
    return calendarYear % 4 == 0 && (calendarYear % 100 != 0 || calendarYear % 400 == 0);
}

std::string Upper(std::string text)
{
    for (char& c : text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
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

// The text being laid out; `used` is where the next part goes, what lies behind it may be written over.
struct Buffer {
    std::string bytes;
    size_t used = 0;

    void Write(const std::string& text)
    {
        bytes.resize(std::max(bytes.size(), used + text.size()), ' ');
        bytes.replace(used, text.size(), text);
        used += text.size();
    }
    std::string Text() const { return bytes.substr(0, used) + std::string(used - std::min(used, bytes.size()), ' '); }
};

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

Value Value::OfText(const std::string& text)
{
    Value value;
    value.none = false;
    value.text = text;
    return value;
}

Value Value::OfNumber(const Number& number)
{
    Value value;
    value.none = false;
    value.number = number;
    return value;
}

Value Value::OfStamp(const Stamp& stamp)
{
    Value value;
    value.none = false;
    value.stamp = stamp;
    return value;
}

int Control::CalendarYear(int year) const
{
    return yearDigits_ == 2 && year < 50 ? year + 2000 : year + 1900;
}

int Control::DaysInMonth(int year, int month) const
{
    return DaysOfMonth(CalendarYear(year), month);
}

int Control::PointPos(const std::string& text) const
{
    const size_t at = text.find(Point());
    return at == std::string::npos ? 0 : static_cast<int>(at);
}

void Control::FormatNumber(const Number& number, Shown& shown) const
{
    bool literals = false;
    for (size_t i = 0; i < mask_.size();) {
        const char c = mask_[i];
        if (c == '~') {
            literals = true;
            i += 2;
        } else if (c == '.' || c == ',' || c == '%' || InTable(c, type_))
            ++i;
        else if (!regional_->currency.empty() && mask_.compare(i, regional_->currency.size(), regional_->currency) == 0)
            i += regional_->currency.size();
        else {
            literals = true;
            while (i < mask_.size() && !InTable(mask_[i], type_))
                ++i;
        }
    }
    if (literals)
        shown.flags |= 0x4000;
    std::optional<model::Format> format = model::Format::Compile(FormatTextOf(mask_, type_, literals, shown.first));
    if (!format)
        format = model::Format::Compile("#,#.00");
    shown.text = Render(*format, number, {Point(), regional_->thousand});
    const size_t first = shown.text.find_first_of("0123456789+-");
    if (first != std::string::npos)
        shown.first = static_cast<int>(first);
    if (decimalPlaces_ != 0 && shown.first == PointPos(shown.text) + 1)
        --shown.first;
}

// Strings, dates and times: the mask is walked and every field laid into the text.
void Control::FormatFields(const Value& value, Shown& shown) const
{
    Buffer out;
    const Stamp stamp = value.none ? Stamp() : value.stamp;
    const bool noText = value.none || value.text.empty();
    bool hourSeen = false;
    bool fieldSeen = false;
    int cursor = 0;  // characters of the string laid out so far
    for (size_t i = 0; i < mask_.size();) {
        const char c = mask_[i];
        if (c == '~' && i + 1 < mask_.size()) {
            out.Write(std::string(1, mask_[i + 1]));
            shown.flags |= 0x4000;
            i += 2;
            continue;
        }
        const bool marker = ampm_ && (mask_.compare(i, 5, "AM/PM") == 0 || mask_.compare(i, 5, "am/pm") == 0);
        if (!marker && !InTable(c, type_)) {
            out.Write(std::string(1, c));
            shown.flags |= fieldSeen ? 0xC000u : 0x4000u;
            ++i;
            continue;
        }
        if (!fieldSeen)
            shown.first = static_cast<int>(out.used);
        fieldSeen = true;
        if (marker && hourSeen) {
            out.Write(stamp.hour < 12 ? regional_->am : regional_->pm);
            i += 5;
            continue;
        }
        size_t run = 1;
        while (i + run < mask_.size() && mask_[i + run] == c)
            ++run;
        i += run;
        if (!IsTemporal()) {
            const int remaining = static_cast<int>(value.text.size()) - cursor;
            int count = std::min(remaining, static_cast<int>(run));
            if (noText) {
                count = (formatFlags_ & 0x4000) != 0 || type_ != kString ? static_cast<int>(run) : 0;
                out.Write(std::string(static_cast<size_t>(count), ' '));
            } else if (count > 0)
                out.Write(value.text.substr(static_cast<size_t>(cursor), static_cast<size_t>(count)));
            if (count < static_cast<int>(run) && (formatFlags_ & 0x8000) != 0) {
                out.Write(std::string(run - static_cast<size_t>(std::max(count, 0)), ' '));
                count = static_cast<int>(run);
            }
            cursor += std::max(count, 0);
            continue;
        }
        std::string text;
        switch (std::toupper(static_cast<unsigned char>(c))) {
        case 'Y':
            text = stamp.HasDate() ? Padded(stamp.year + 1900, 4) : "0000";
            if (run == 2)
                text = text.substr(text.size() - 2);
            break;
        case 'M':
            if (hourSeen)
                text = stamp.HasTime() ? Padded(stamp.minute, 2) : "00";
            else if (run == 2)
                text = stamp.HasDate() ? Padded(stamp.month + 1, 2) : "00";
            else
                text = stamp.HasDate() && stamp.month >= 0 && stamp.month < 12 ? kMonths[stamp.month] : "   ";
            break;
        case 'D': text = stamp.HasDate() ? Padded(stamp.day, 2) : "00"; break;
        case 'J': {
            int day = stamp.day;
            for (int month = 0; month < stamp.month; ++month)
                day += DaysInMonth(stamp.year, month);
            text = stamp.HasDate() ? Padded(day, 3) : "001";
            break;
        }
        case 'H': {
            hourSeen = true;
            int hour = stamp.hour;
            if (ampm_)
                hour = hour > 12 ? hour - 12 : hour == 0 ? 12 : hour;
            text = stamp.HasTime() ? Padded(hour, 2) : "00";
            break;
        }
        case 'S': text = stamp.HasTime() ? Padded(stamp.second, 2) : "00"; break;
        case 'F': text = stamp.HasTime() ? Padded(stamp.microsecond, 6) : "000000"; break;
        default: text.assign(marker ? 0 : run, ' '); break;
        }
        // What a field writes beyond its run stays until something is written over it.
        const size_t at = out.used;
        out.Write(text);
        out.used = at + run;
    }
    shown.text = out.Text();
}

// A look-up leaves the table's cursor on the entry found, or behind the last one.
const CodeEntry* Control::Find(const std::string CodeEntry::*part, const std::string& text)
{
    for (cursor_ = 0; cursor_ < static_cast<int>(cycle_.size()); ++cursor_)
        if (cycle_[static_cast<size_t>(cursor_)].*part == text)
            return &cycle_[static_cast<size_t>(cursor_)];
    cursor_ = -1;
    return nullptr;
}

// The entry of data as they are handed in: no data, or the text of a string.
const CodeEntry* Control::EntryOf(const Value& value)
{
    if (!ThroughCodes() || (!value.none && type_ != kString))
        return nullptr;
    return Find(&CodeEntry::value, value.none ? "null!" : value.text);
}

Shown Control::Format(const Value& value)
{
    positioned_ = false;
    Shown shown;
    shown.flags = 1;
    if (IsNumeric())
        FormatNumber(value.none ? Number() : value.number, shown);
    else if (mask_.empty())
        shown.text = value.none ? std::string() : value.text;
    else
        FormatFields(value, shown);
    if (IsTemporal())
        shown.flags |= 0x4000;
    const CodeEntry* entry = IsNumeric() && ThroughCodes() ? Find(&CodeEntry::value, shown.text) : EntryOf(value);
    if (entry != nullptr) {
        positioned_ = true;
        shown.text = entry->display;
    }
    return shown;
}

// True when the code table has settled what is shown.
bool Control::ShowThroughCodes(const Value& value)
{
    if (codeSpin_ && !hasTable_) {
        edit_.SetText("");
        spun_ = true;
        return true;
    }
    const CodeEntry* entry = EntryOf(value);
    if (entry != nullptr) {
        positioned_ = true;
        edit_.SetText(entry->display);
    } else if (ThroughCodes() && codePick_)
        spun_ = true;
    return entry != nullptr;
}

void Control::SetData(const Value& value)
{
    ForgetTyping();
    numericBackspaceDone_ = false;
    positioned_ = false;
    modified_ = false;
    if (ShowThroughCodes(value))
        return;
    ChooseEditMode();
    const Shown shown = Format(value);
    edit_.SetText(shown.text);
    if (spun_)
        return;
    formatFlags_ = shown.flags;
    if (shown.first != 0)
        PlaceCaret(shown.first);
    firstField_ = shown.first;
}

bool Control::ShowsMarker(const std::string& text) const
{
    return At(text, ampmPos_, static_cast<int>(regional_->am.size())) == regional_->am ||
           At(text, ampmPos_, static_cast<int>(regional_->pm.size())) == regional_->pm;
}

void Control::DateFromDayOfYear(Stamp& stamp, int day) const
{
    stamp.month = 0;
    while (stamp.month < 11 && day > DaysInMonth(stamp.year, stamp.month))
        day -= DaysInMonth(stamp.year, stamp.month++);
    stamp.day = day;
}

// Positions that the field at `position` spans, or -1 when its text cannot be read.
int Control::ParseField(Stamp& stamp, const std::string& text, int position, const MaskChar& at, bool& hour, bool& year,
                        const std::string& markerText)
{
    int run = 1;
    while (static_cast<size_t>(at.index + run) < mask_.size() && mask_[static_cast<size_t>(at.index + run)] == at.c)
        ++run;
    const char letter = static_cast<char>(std::toupper(static_cast<unsigned char>(at.c)));
    if (std::strchr("DHMSFYJ", letter) == nullptr)
        return run;
    if (letter == 'M' && !hour && run != 2) {
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
        hour = true;
        if (ampm_) {
            const bool evening = At(markerText, ampmPos_, static_cast<int>(regional_->pm.size())) == regional_->pm;
            if (evening && number < 12)
                stamp.hour += 12;
            if (!evening && number == 12)
                stamp.hour = 0;
        }
        break;
    case 'M': (hour ? stamp.minute : stamp.month) = hour || number == 0 ? number : number - 1; break;
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
    bool hour = false;
    bool year = false;
    for (int position = 0; position < static_cast<int>(text.size());) {
        const MaskChar at = CharAt(text, position);
        if (InsideAmPm(position) || at.index < 0 || !InTable(at.c, type_)) {
            ++position;
            continue;
        }
        const int taken = ParseField(stamp, text, position, at, hour, year, markerText);
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

void Control::SetDataString(const std::string& text)
{
    if (type_ == kNumber)
        SetData(Value::OfNumber(Number::FromDouble(std::atof(text.c_str()))));
    else if (type_ == kDecimal)
        SetData(Value::OfNumber(Number::FromText(text)));
    else if (IsTemporal()) {
        Stamp stamp;
        if (!DisplayToStamp(stamp, text)) {
            stamp = Stamp();
            ParseCanonical(stamp, text, type_, *regional_);
        }
        SetData(Value::OfStamp(stamp));
    } else
        SetData(Value::OfText(text));
}

std::string Control::ReadFields(const std::string& text, bool dropGroups) const
{
    if (mask_.empty())
        return text;
    std::string fields;
    for (int i = 0; i < static_cast<int>(text.size()); ++i) {
        const MaskChar at = CharAt(text, i);
        const char c = text[static_cast<size_t>(i)];
        if (at.c == '~' || (IsNumeric() && dropGroups && c == regional_->thousand))
            continue;
        if (InTable(at.c, type_) || (IsNumeric() && (at.c == '.' || (dropGroups && at.c == ',' && IsDigit(c)))))
            fields += c;
    }
    return fields;
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

// The data that an entry stands for.
Value Control::DataOf(const CodeEntry& entry) const
{
    if (!IsTemporal())
        return Value::OfText(entry.value);
    Stamp stamp;
    ParseCanonical(stamp, entry.value, type_, *regional_);
    return Value::OfStamp(stamp);
}

Value Control::GetData()
{
    if (Text().empty()) {
        if (IsTemporal())
            return Value::OfStamp(Stamp());
        return Value::OfText(IsNumeric() ? "0" : "");
    }
    const CodeEntry* entry = ThroughCodes() ? Find(&CodeEntry::display, Text()) : nullptr;
    if (entry != nullptr && !IsTemporal())
        return DataOf(*entry);
    if (!IsTemporal()) {
        std::string fields = ReadFields(Text(), true);
        if (IsNumeric() && percent_) {
            for (char& c : fields)
                c = c == Point() ? '.' : c;
            model::Format general;
            general.general = true;
            fields =
                Render(general, Number::FromDouble(std::atof(fields.c_str()) * 0.01), {Point(), regional_->thousand});
        }
        return Value::OfText(fields);
    }
    Stamp stamp = entry != nullptr ? DataOf(*entry).stamp : ReadStamp(false);
    if (type_ == kDate && (ZeroDate(stamp) || stamp.year == -1900 || !stamp.HasDate()))
        return Value::None();
    if (type_ == kTime && stamp.hour == 0 && stamp.minute == 0 && stamp.second == 0 && stamp.microsecond == 0)
        return Value::None();
    if (type_ == kDateTime && !ZeroDate(stamp) && stamp.year != -1900) {
        if (!stamp.HasDate()) {
            stamp.year = 100;
            stamp.month = stamp.day = 0;
        } else if (!stamp.HasTime())
            stamp.hour = 0;
    }
    if (type_ != kTime && stamp.day == 0)
        stamp.day = 1;
    return Value::OfStamp(stamp);
}

Value Control::Unformat(const std::string& text)
{
    if (text.empty())
        return Value::None();
    if (const CodeEntry* entry = ThroughCodes() ? Find(&CodeEntry::display, text) : nullptr)
        return DataOf(*entry);
    if (!IsTemporal())
        return Value::OfText(ReadFields(text, false));
    Stamp stamp;
    ParseCanonical(stamp, text, type_, *regional_);
    return Value::OfStamp(stamp);
}

// Lays the number text through the mask again; characters by which the text grew.
int Control::Reformat(const std::string* given)
{
    const std::string text = given != nullptr ? *given : Text();
    if (text.size() > 254)
        return 0;
    size_t i = 0;
    if ((formatFlags_ & 0x4000) != 0)
        for (size_t m = 0; m < mask_.size() && mask_[m] == '~'; m += 2)
            ++i;
    std::string number;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        if (c == Point())
            number += '.';
        else if (IsDigit(c) || c == '+' || c == '-')
            number += c;
    }
    Number value;
    if (type_ == kNumber)
        value = Number::FromDouble(std::atof(number.c_str()) * (percent_ ? 0.01 : 1.0));
    else
        value = Number::FromText(number).TimesPowerOfTen(percent_ ? -2 : 0);
    edit_.SetText(Format(Value::OfNumber(value)).text);
    return std::max(0, edit_.Length() - static_cast<int>(text.size()));
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
        const int number = std::atoi(At(Text(), static_cast<int>(i), run).c_str());
        return run != 2 ? number - 1900 : number < 50 ? number + 100 : number;
    }
    return 0;
}

int Control::MonthFromText() const
{
    const std::string text = Text().substr(0, Text().empty() ? 0 : Text().size() - 1);
    for (size_t i = 0; i < mask_.size(); ++i) {
        if ((mask_[i] != 'M' && mask_[i] != 'm') || (i > 0 && mask_[i - 1] == '~'))
            continue;
        int run = 1;
        while (i + static_cast<size_t>(run) < mask_.size() &&
               (mask_[i + static_cast<size_t>(run)] == 'M' || mask_[i + static_cast<size_t>(run)] == 'm'))
            ++run;
        const std::string field = At(text, static_cast<int>(i), run);
        return run == 2 ? std::atoi(field.c_str()) : MonthFromName(field) + 1;
    }
    return 0;
}

}  // namespace model
