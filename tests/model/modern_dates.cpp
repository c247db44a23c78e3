// The model's modern dates and times: typing, deletion, states.
#include "modern_dates.h"
#include "model_text.h"
#include "modern_text.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace model::modern {
namespace {

// What typing has left behind ends.
void Untype(Content& content)
{
    content.passed.clear();
    content.letters.clear();
    content.half.clear();
}

bool IsLeap(int year)
{
    return DaysOfMonth(year, 1) == 29;
}

}  // namespace

std::unique_ptr<ModernKind> MakeModernDates(const Regional& regional, const Config& config)
{
    return std::make_unique<ModernDates>(regional, config);
}

// ---- the mask

ModernDates::ModernDates(const Regional& regional, const Config& config) : regional_(regional), config_(config)
{
    Control classic(regional_);
    classic.SetMask(config.mask.c_str(), config.type);
    const std::string mask = classic.Mask();
    const bool dates = config.type != kTime;
    const bool times = config.type != kDate;
    bool hour = false;
    const auto add = [&](Of of, int width) {
        parts_.push_back({of, static_cast<int>(blank_.size()), width});
        blank_ += std::string(static_cast<size_t>(width), ' ');
        literal_ += std::string(static_cast<size_t>(width), ' ');
    };
    for (size_t i = 0; i < mask.size();) {
        const char letter = Upper(mask[i]);
        int run = 1;
        while (i + static_cast<size_t>(run) < mask.size() && mask[i + static_cast<size_t>(run)] == mask[i])
            ++run;
        if (times && (mask.compare(i, 5, "AM/PM") == 0 || mask.compare(i, 5, "am/pm") == 0)) {
            add(Of::Marker, static_cast<int>(regional_.am.size()));
            i += 5;
            continue;
        }
        const bool known =
            (dates && std::strchr("YMDJ", letter) != nullptr) || (times && std::strchr("HMSF", letter) != nullptr);
        if (mask[i] != '~' && known) {
            hour = hour || letter == 'H' || config.type == kTime;
            const Of of = letter == 'Y'   ? Of::Year
                          : letter == 'D' ? Of::Day
                          : letter == 'J' ? Of::Julian
                          : letter == 'H' ? Of::Hour
                          : letter == 'S' ? Of::Second
                          : letter == 'F' ? Of::Fraction
                          : hour          ? Of::Minute
                          : run == 3      ? Of::Name
                                          : Of::Month;
            add(of, run);
            if (of == Of::Year)
                yearWidth_ = run;
            i += static_cast<size_t>(run);
            continue;
        }
        if (mask[i] != '~' && (letter == 'X' || letter == '!' || letter == '^')) {
            add(Of::Free, 1);
            ++i;
            continue;
        }
        i += mask[i] == '~' ? 1 : 0;
        blank_ += mask[i++];
        literal_ += 'l';
    }
    if (config.increment == 0 || config.range.empty())
        return;
    classic.SetSpin(config.increment, config.range.c_str(), nullptr, false, false, config.type);
    const size_t tilde = config.range.find('~');
    Stamp stamp;
    if (classic.SpinDateRange(stamp, config.range.substr(0, tilde)))
        min_ = stamp;
    if (tilde != std::string::npos && classic.SpinDateRange(stamp, config.range.substr(tilde + 1)))
        max_ = stamp;
    if (min_ && max_ && classic.OutOfOrder(*min_, *max_))
        min_ = max_ = {};
}

int ModernDates::PartAt(int position) const
{
    for (size_t i = 0; i < parts_.size(); ++i)
        if (position >= parts_[i].start && position < parts_[i].End())
            return static_cast<int>(i);
    return -1;
}

// The part that a caret is in, or directly behind whose last position it stands.
int ModernDates::PartAround(int caret) const
{
    return PartAt(caret) >= 0 ? PartAt(caret) : PartAt(caret - 1);
}

int ModernDates::PartFrom(int position) const
{
    for (size_t i = 0; i < parts_.size(); ++i)
        if (position < parts_[i].End())
            return static_cast<int>(i);
    return -1;
}

int ModernDates::PartBefore(int position) const
{
    int part = -1;
    for (size_t i = 0; i < parts_.size() && parts_[i].start < position; ++i)
        part = static_cast<int>(i);
    return part;
}

int ModernDates::PartOf(Of of) const
{
    for (size_t i = 0; i < parts_.size(); ++i)
        if (parts_[i].of == of)
            return static_cast<int>(i);
    return -1;
}

std::string ModernDates::Get(const std::string& text, int part) const
{
    const DatePart& at = parts_[static_cast<size_t>(part)];
    return text.substr(static_cast<size_t>(at.start), static_cast<size_t>(at.width));
}

void ModernDates::Put(std::string& text, int part, const std::string& value) const
{
    const DatePart& at = parts_[static_cast<size_t>(part)];
    std::string whole = value.substr(0, static_cast<size_t>(at.width));
    whole.resize(static_cast<size_t>(at.width), ' ');
    text.replace(static_cast<size_t>(at.start), whole.size(), whole);
}

bool ModernDates::Numeric(int part) const
{
    const Of of = parts_[static_cast<size_t>(part)].of;
    return of != Of::Name && of != Of::Marker && of != Of::Free;
}

int ModernDates::Most(int part) const
{
    switch (parts_[static_cast<size_t>(part)].of) {
    case Of::Year: return parts_[static_cast<size_t>(part)].width == 2 ? 99 : 9999;
    case Of::Month: return 12;
    case Of::Day: return 31;
    case Of::Julian: return 366;
    case Of::Hour: return 23;
    case Of::Minute:
    case Of::Second: return 59;
    default: return 999999;
    }
}

int ModernDates::Least(int part) const
{
    switch (parts_[static_cast<size_t>(part)].of) {
    case Of::Year: return parts_[static_cast<size_t>(part)].width == 2 ? 0 : 1;
    case Of::Month:
    case Of::Day:
    case Of::Julian: return 1;
    default: return 0;
    }
}

bool ModernDates::Fits(const std::string& text) const
{
    if (text.size() != blank_.size())
        return false;
    for (size_t i = 0; i < text.size(); ++i)
        if (literal_[i] == 'l' && text[i] != blank_[i])
            return false;
    for (int i = 0; i < static_cast<int>(parts_.size()); ++i) {
        const std::string value = Get(text, i);
        const Of of = parts_[static_cast<size_t>(i)].of;
        if (Numeric(i) && !IsBlank(value) && !AreDigits(WithoutBlanks(value)))
            return false;
        if (of == Of::Marker && !IsBlank(value) && value != regional_.am && value != regional_.pm)
            return false;
    }
    return true;
}

// ---- typing

std::string ModernDates::MonthOf(const std::string& letters) const
{
    for (const char* name : kMonths)
        if (Upper(letters) == std::string(name).substr(0, letters.size()))
            return name;
    return "";
}

// The half of the day that a letter names; none: it names none.
std::optional<bool> ModernDates::Half(const std::string& text, char c) const
{
    const int marker = PartOf(Of::Marker);
    if (marker < 0)
        return {};
    const char am = Upper(regional_.am[0]);
    const char pm = Upper(regional_.pm[0]);
    if (am == pm && Upper(c) == am)
        return Get(text, marker) == regional_.am;
    if (Upper(c) == am)
        return false;
    if (Upper(c) == pm)
        return true;
    return {};
}

void ModernDates::Finish(std::string& text, int part) const
{
    const int marker = PartOf(Of::Marker);
    if (parts_[static_cast<size_t>(part)].of != Of::Hour || marker < 0 || !AreDigits(Get(text, part)))
        return;
    const int hour = std::atoi(Get(text, part).c_str());
    const bool stands = !IsBlank(Get(text, marker));
    if (hour == 0 || hour > 12) {
        Put(text, part, ZeroPadded(hour == 0 ? 12 : hour - 12, 2));
        Put(text, marker, hour == 0 ? regional_.am : regional_.pm);
    } else if (!stands)
        Put(text, marker, hour == 12 ? regional_.pm : regional_.am);
}

Made ModernDates::Completed(Content content, int part) const
{
    Finish(content.text, part);
    return Carried(content, part);
}

Made ModernDates::Carried(Content content, int part) const
{
    Made made;
    made.full = part + 1 == static_cast<int>(parts_.size());
    const int behind = made.full ? static_cast<int>(content.text.size()) : parts_[static_cast<size_t>(part) + 1].start;
    Untype(content);
    content.passed = content.text.substr(static_cast<size_t>(parts_[static_cast<size_t>(part)].End()),
                                         static_cast<size_t>(behind - parts_[static_cast<size_t>(part)].End()));
    content.Place(behind);
    made.content = content;
    return made;
}

Made ModernDates::TypeDigit(Content content, int part, int place, char digit) const
{
    const DatePart& at = parts_[static_cast<size_t>(part)];
    std::string value = Get(content.text, part);
    // Digits stand together: behind a blank there is none.
    const size_t filled = std::min(value.find(' '), value.size());
    place = std::min(place, static_cast<int>(filled));
    if (place == 0)
        value.assign(static_cast<size_t>(at.width), ' ');
    value[static_cast<size_t>(place)] = digit;
    const std::string front = value.substr(0, static_cast<size_t>(place) + 1);
    // What stands behind in the field gives way where it does not fit the digit typed.
    const bool bounded = at.of != Of::Fraction;
    if (bounded && AreDigits(value) && place + 1 < at.width &&
        (std::atoi(value.c_str()) > Most(part) || std::atoi(value.c_str()) < Least(part))) {
        value.assign(static_cast<size_t>(at.width), ' ');
        value.replace(0, front.size(), front);
    }
    const int number = std::atoi(front.c_str());
    const bool last = place + 1 == at.width;
    const bool whole = AreDigits(value);
    if (at.of == Of::Fraction || at.of == Of::Year) {
        if (whole && at.of == Of::Year && std::atoi(value.c_str()) < Least(part))
            return Made::Refused(kOutOfBounds);
    } else {
        if (number > Most(part) ||
            (whole && (std::atoi(value.c_str()) > Most(part) || std::atoi(value.c_str()) < Least(part))))
            return Made::Refused(kOutOfBounds);
        if (!last && number * 10 > Most(part)) {
            Put(content.text, part, ZeroPadded(number, at.width));
            return Completed(content, part);
        }
    }
    Put(content.text, part, value);
    if (last)
        return Completed(content, part);
    content.Place(at.start + place + 1);
    Untype(content);
    return Made::Of(content);
}

Made ModernDates::TypeName(Content content, int part, int place, char c) const
{
    const DatePart& at = parts_[static_cast<size_t>(part)];
    const std::string value = Get(content.text, part);
    Untype(content);
    std::string front = value.substr(0, static_cast<size_t>(place));
    if (IsDigit(c))
        front = front.substr(0, front.find(' '));
    if (front.find(' ') != std::string::npos || (!front.empty() && AreDigits(front) != IsDigit(c)))
        front.clear();
    if (IsDigit(c)) {
        const int number = std::atoi((front + c).c_str());
        if (number > 12 || (front.size() == 1 && number == 0))
            return Made::Refused(kOutOfBounds);
        if (number < 2 && front.empty()) {
            Put(content.text, part, std::string(1, c));
            content.Place(at.start + 1);
            return Made::Of(content);
        }
        Put(content.text, part, kMonths[number - 1]);
        return Completed(content, part);
    }
    const std::string letters = front + Upper(c);
    const std::string name = MonthOf(letters);
    if (name.empty())
        return Made::Refused(kWrongKind);
    bool only = true;
    for (const char* other : kMonths)
        only = only && (other == name || std::string(other).compare(0, letters.size(), letters) != 0);
    if (only) {
        Put(content.text, part, name);
        Made made = Completed(content, part);
        made.content.letters = name.substr(letters.size());
        return made;
    }
    Put(content.text, part, letters);
    content.Place(at.start + static_cast<int>(letters.size()));
    return Made::Of(content);
}

Made ModernDates::TypeMarker(Content content, bool evening) const
{
    const int part = PartOf(Of::Marker);
    Put(content.text, part, evening ? regional_.pm : regional_.am);
    // Behind the last position the marker's own place has not been left.
    const bool behind = part + 1 == static_cast<int>(parts_.size()) && content.caret == parts_.back().End() &&
                        PartAt(content.caret) < 0;
    if (PartFrom(content.caret) == part || behind)
        return Completed(content, part);
    content.anchor = content.caret;
    return Made::Of(content);
}

// A literal that stands further on.
bool ModernDates::IsLiteral(char c, int caret) const
{
    for (size_t i = static_cast<size_t>(std::max(caret - 1, 0)); i < blank_.size(); ++i)
        if (literal_[i] == 'l' && blank_[i] == c)
            return true;
    return false;
}

// Any sign ends the field and goes to the next; the literals passed there may be typed as well, in their order. Right after typing has
// carried the caret over literals a sign stands for all of them, once.
Made ModernDates::TypeSeparator(Content content, char c) const
{
    if (!content.passed.empty()) {
        Untype(content);
        return Made::Of(content);
    }
    // On a literal that is not directly behind a field: on to the next one.
    const int next = PartFrom(content.caret);
    const int part = PartAround(content.caret) >= 0 ? PartAround(content.caret) : next - 1;
    if (part < 0 && next < 0)
        return Made::Refused(kWrongKind);
    if (part < 0) {
        content.Place(First(content));
        return Made::Of(content);
    }
    const std::string before = content.text;
    End(content.text, part);
    Made made = Carried(content, part);
    if (made.full && before == content.text)
        return Made::Refused(kWrongKind);
    std::string& passed = made.content.passed;
    passed = !passed.empty() && passed[0] == c ? passed.substr(1) : "";
    return made;
}

Made ModernDates::Type(Content content, char c) const
{
    if (static_cast<unsigned char>(c) < ' ')
        return Made::Refused(kWrongKind);
    if (content.Selected())
        content = Clear(content).content;
    // Further letters of a name that is complete already, or of a half of the day.
    if (!content.letters.empty() && Upper(content.letters[0]) == Upper(c)) {
        content.letters.erase(0, 1);
        return Made::Of(content);
    }
    const std::string half = Upper(content.half + c);
    if (Twelve() && half.size() > 1 &&
        (Upper(regional_.am).compare(0, half.size(), half) == 0 ||
         Upper(regional_.pm).compare(0, half.size(), half) == 0)) {
        const bool morning = Upper(regional_.am).compare(0, half.size(), half) == 0;
        content.half = half;
        Put(content.text, PartOf(Of::Marker), morning ? regional_.am : regional_.pm);
        return Made::Of(content);
    }
    if (!content.passed.empty() && content.passed[0] == c) {
        content.passed.erase(0, 1);
        return Made::Of(content);
    }
    const bool letter = std::isalpha(static_cast<unsigned char>(c)) != 0;
    const int part = PartFrom(content.caret);
    const Of of = part < 0 ? Of::Year : parts_[static_cast<size_t>(part)].of;
    if (!IsDigit(c) && !letter)
        return std::strchr(" -./:,()", c) != nullptr || IsLiteral(c, content.caret) ? TypeSeparator(content, c)
                                                                                    : Made::Refused(kWrongKind);
    const int place = part < 0 ? 0 : std::max(0, content.caret - parts_[static_cast<size_t>(part)].start);
    if (part >= 0 && of == Of::Name && (IsDigit(c) || letter)) {
        const Made named = TypeName(content, part, place, c);
        if (named.Good() || (!Half(content.text, c) && !IsLiteral(c, content.caret)))
            return named;
    }
    // On a literal a letter stands where a digit would: before the next field.
    if (letter && part >= 0 && PartAt(content.caret) < 0 && !IsLiteral(c, content.caret))
        content.Place(parts_[static_cast<size_t>(part)].start);
    if (!content.passed.empty() && letter && IsLiteral(c, content.caret) && !Half(content.text, c))
        return TypeSeparator(content, c);
    if (letter) {
        const std::optional<bool> evening = Half(content.text, c);
        Made made = evening ? TypeMarker(content, *evening) : Made();
        made.content.letters.clear();
        made.content.half = c;
        made.content.passed = PartAt(content.caret) == PartOf(Of::Marker) ? made.content.passed : content.passed;
        return evening ? made : IsLiteral(c, content.caret) ? TypeSeparator(content, c) : Made::Refused(kWrongKind);
    }
    if (part < 0)
        return Made::Refused(kFull);
    if (of == Of::Marker && static_cast<size_t>(part) + 1 < parts_.size())
        return TypeDigit(content, part + 1, 0, c);  // a marker takes no digit, the field behind it does
    if (!Numeric(part))
        return Made::Refused(kWrongKind);
    return TypeDigit(content, part, place, c);
}

// ---- a field ends

void ModernDates::End(std::string& text, int part) const
{
    const DatePart& at = parts_[static_cast<size_t>(part)];
    const std::string value = WithoutBlanks(Get(text, part));
    const int width = at.width;
    const int count = static_cast<int>(value.size());
    if (value.empty() || count == width)
        return;
    std::string whole = Get(text, part);
    switch (at.of) {
    case Of::Fraction: whole = value + std::string(static_cast<size_t>(width - count), '0'); break;
    case Of::Julian: whole = ZeroPadded(std::atoi(value.c_str()), width); break;
    case Of::Year: {
        const int year = std::atoi(value.c_str());
        if (width == 2)
            whole = ZeroPadded(year, 2);
        else if (count < 3)
            whole = ZeroPadded(year + (year < 50 ? 2000 : 1900), 4);
        break;
    }
    case Of::Name: {
        if (AreDigits(value))
            whole = value == "0" ? whole : kMonths[std::atoi(value.c_str()) - 1];
        else if (!MonthOf(value).empty())
            whole = MonthOf(value);
        break;
    }
    case Of::Marker:
    case Of::Free: break;
    default: whole = ZeroPadded(std::atoi(value.c_str()), width); break;
    }
    if (Numeric(part) && AreDigits(whole) && at.of != Of::Fraction && std::atoi(whole.c_str()) < Least(part))
        return;
    Put(text, part, whole);
    Finish(text, part);
}

// The field that the caret has left ends.
Content ModernDates::Leave(Content content, int from) const
{
    if (PartAround(from) >= 0)
        End(content.text, PartAround(from));
    return content;
}

bool ModernDates::SameField(int from, int to) const
{
    return PartAround(from) == PartAt(to);
}

// ---- deletion

Made ModernDates::Clear(Content content) const
{
    const int from = content.Start();
    const int to = content.End();
    for (int i = 0; i < static_cast<int>(parts_.size()); ++i) {
        const DatePart& at = parts_[static_cast<size_t>(i)];
        if (at.End() <= from || at.start >= to)
            continue;
        std::string value = Get(content.text, i);
        for (int k = std::max(from, at.start); k < std::min(to, at.End()); ++k)
            value[static_cast<size_t>(k - at.start)] = ' ';
        // Of a name the letters in front stand.
        if (at.of == Of::Name)
            value.resize(std::min(value.find(' '), value.size()));
        if (at.of == Of::Marker)
            value.assign(value.size(), ' ');
        Put(content.text, i, Numeric(i) ? WithoutBlanks(value) : value);
    }
    const int part = PartFrom(from);
    content.Place(part < 0         ? Last()
                  : InMarker(from) ? parts_[static_cast<size_t>(part)].start
                                   : std::max(from, parts_[static_cast<size_t>(part)].start));
    Untype(content);
    return Made::Of(content);
}

Made ModernDates::Erase(Content content, bool forward, bool whole) const
{
    int part = forward ? PartFrom(content.caret) : PartBefore(content.caret);
    if (part < 0)
        return Made::Of(content);
    const int inside =
        std::clamp(content.caret - parts_[static_cast<size_t>(part)].start, 0, parts_[static_cast<size_t>(part)].width);
    const std::string value = Get(content.text, part);
    const std::string side =
        forward ? value.substr(static_cast<size_t>(inside)) : value.substr(0, static_cast<size_t>(inside));
    if (IsBlank(side)) {
        // Nothing to take in this field. Backwards the caret goes to its start; forwards the next field has its turn.
        const int stood = content.caret;
        if (!forward) {
            content.Place(parts_[static_cast<size_t>(part)].start);
            return Made::Of(SameField(stood, content.caret) ? content : Leave(content, stood));
        }
        const bool onLiteral = stood < parts_[static_cast<size_t>(part)].start;
        if (!onLiteral && ++part == static_cast<int>(parts_.size()))
            return Made::Of(content);
        Untype(content);
        content = Leave(content, stood);
        content.Place(parts_[static_cast<size_t>(part)].start);
        if (IsBlank(Get(content.text, part)))
            return Made::Of(content);
    }
    const DatePart& at = parts_[static_cast<size_t>(part)];
    if (PartAt(content.caret) >= 0 && PartAt(content.caret) != part)
        content = Leave(content, content.caret);
    content.anchor = forward ? std::max(content.caret, at.start) : std::min(content.caret, at.End()) - 1;
    while (!forward && content.text[static_cast<size_t>(content.anchor)] == ' ')
        --content.anchor;
    content.caret = content.anchor + 1;
    if (whole)
        (content.anchor = at.start, content.caret = at.End());
    const int place = content.anchor;
    content = Clear(content).content;
    if (place >= at.start)
        content.Place(at.of == Of::Marker ? at.start : place);
    return Made::Of(content);
}

// ---- the caret

int ModernDates::BehindFilled(const Content& content) const
{
    for (int i = static_cast<int>(content.text.size()) - 1; i >= 0; --i)
        if (PartAt(i) >= 0 && content.text[static_cast<size_t>(i)] != ' ')
            return i + 1;
    return First(content);
}

bool ModernDates::InMarker(int position) const
{
    const int part = PartAt(position);
    return part >= 0 && parts_[static_cast<size_t>(part)].of == Of::Marker &&
           position > parts_[static_cast<size_t>(part)].start;
}

int ModernDates::Move(const Content& content, int from, bool forward, bool whole) const
{
    const int length = Last();
    if (whole) {
        if (forward) {
            const int part = PartFrom(from);
            const size_t next =
                static_cast<size_t>(part) + (part >= 0 && from >= parts_[static_cast<size_t>(part)].start ? 1 : 0);
            return part < 0 || next >= parts_.size() ? length : parts_[next].start;
        }
        const int part = PartBefore(from);
        return part < 0 ? First(content) : parts_[static_cast<size_t>(part)].start;
    }
    int to = from + (forward ? 1 : -1);
    while (to > 0 && (to < length || !forward) && (PartAt(to) < 0 || InMarker(to)))
        to += forward ? 1 : -1;
    if (to <= 0 && PartAt(0) < 0)
        return First(content);
    return std::clamp(to, 0, length);
}

// On a literal: the nearest position, the one behind where both are as near. A marker is stood before.
int ModernDates::Correct(const Content&, int position) const
{
    int part = PartAt(position);
    const int next = PartFrom(position);
    const int before = PartBefore(position);
    if (part < 0) {
        if (next < 0)
            return Last();
        const int ahead = parts_[static_cast<size_t>(next)].start;
        const int back = before < 0 ? -1 : parts_[static_cast<size_t>(before)].End() - 1;
        const bool forward = before < 0 || ahead - position <= position - back;
        part = forward ? next : before;
        position = forward ? ahead : back;
    }
    return InMarker(position) ? parts_[static_cast<size_t>(part)].start : position;
}

// Directly behind a field it is still that one; on a literal further on, the next.
void ModernDates::SelectField(Content& content, int position) const
{
    const int next = PartFrom(position) >= 0 ? PartFrom(position) : static_cast<int>(parts_.size()) - 1;
    const DatePart& at = parts_[static_cast<size_t>(PartAround(position) >= 0 ? PartAround(position) : next)];
    content.anchor = at.start;
    content.caret = at.End();
}

// ---- values

std::optional<Stamp> ModernDates::Read(const std::string& text) const
{
    Stamp stamp;
    int month = 1;
    int day = 1;
    int julian = 0;
    int year = 0;
    for (int i = 0; i < static_cast<int>(parts_.size()); ++i) {
        const std::string value = Get(text, i);
        const int number = std::atoi(value.c_str());
        if (Numeric(i) && (!AreDigits(value) || (parts_[static_cast<size_t>(i)].of != Of::Fraction &&
                                                 (number > Most(i) || number < Least(i)))))
            return {};
        switch (parts_[static_cast<size_t>(i)].of) {
        case Of::Year:
            year = parts_[static_cast<size_t>(i)].width == 2 ? number + (number < 50 ? 2000 : 1900) : number;
            break;
        case Of::Month: month = number; break;
        case Of::Name:
            month = 0;
            for (int m = 0; m < 12; ++m)
                month = value == kMonths[m] ? m + 1 : month;
            break;
        case Of::Day: day = number; break;
        case Of::Julian: julian = number; break;
        case Of::Hour: stamp.hour = number; break;
        case Of::Minute: stamp.minute = number; break;
        case Of::Second: stamp.second = number; break;
        case Of::Fraction: stamp.microsecond = std::atoi((value + "000000").substr(0, 6).c_str()); break;
        case Of::Marker:
            if (IsBlank(value))
                return {};
            break;
        case Of::Free: break;
        }
    }
    if (yearWidth_ != 0) {
        if (julian > (IsLeap(year) ? 366 : 365) || month == 0)
            return {};
        if (julian > 0)
            for (month = 1, day = julian; day > DaysOfMonth(year, month - 1); ++month)
                day -= DaysOfMonth(year, month - 1);
        if (day > DaysOfMonth(year, month - 1))
            return {};
        stamp.year = year - 1900;
        stamp.month = month - 1;
        stamp.day = day;
    }
    if (Twelve()) {
        if (stamp.hour > 12 || stamp.hour < 1)
            return {};
        stamp.hour = stamp.hour % 12 + (Get(text, PartOf(Of::Marker)) == regional_.pm ? 12 : 0);
    }
    return stamp;
}

int ModernDates::State(const Content& content) const
{
    const std::string& text = content.text;
    if (text == blank_)
        return kEmpty;
    if (!Fits(text))
        return kInvalid;
    bool empty = true;
    bool missing = false;
    for (int i = 0; i < static_cast<int>(parts_.size()); ++i) {
        empty = empty && IsBlank(Get(text, i));
        missing =
            missing || (parts_[static_cast<size_t>(i)].of != Of::Free && Get(text, i).find(' ') != std::string::npos);
    }
    if (empty || missing)
        return empty ? kEmpty : kIncomplete;
    const std::optional<Stamp> stamp = Read(text);
    if (!stamp)
        return kInvalid;
    Control classic(regional_);
    classic.SetMask(config_.mask.c_str(), config_.type);
    const bool below = min_ && classic.OutOfOrder(*min_, *stamp);
    const bool above = max_ && classic.OutOfOrder(*stamp, *max_);
    return below || above ? kOutOfRange : kComplete;
}

std::string ModernDates::CanonicalOf(const Stamp& stamp) const
{
    const std::string date =
        ZeroPadded(stamp.year + 1900, 4) + "-" + ZeroPadded(stamp.month + 1, 2) + "-" + ZeroPadded(stamp.day, 2);
    std::string time =
        ZeroPadded(stamp.hour, 2) + ":" + ZeroPadded(stamp.minute, 2) + ":" + ZeroPadded(stamp.second, 2);
    if (stamp.microsecond != 0)
        time += ":" + ZeroPadded(stamp.microsecond, 6);
    return config_.type == kDate ? date : config_.type == kTime ? time : date + " " + time;
}

std::optional<std::string> ModernDates::Canonical(const Content& content) const
{
    const int state = State(content);
    if (state == kEmpty)
        return "";
    if (state == kIncomplete || state == kInvalid)
        return {};
    return CanonicalOf(*Read(content.text));
}

std::string ModernDates::Lay(const Stamp& stamp) const
{
    std::string text = blank_;
    for (int i = 0; i < static_cast<int>(parts_.size()); ++i) {
        const int width = parts_[static_cast<size_t>(i)].width;
        int hour = stamp.hour;
        if (Twelve())
            hour = hour % 12 == 0 ? 12 : hour % 12;
        // Under two digits a year before 1950 counts as one of this century, as data have always been shown.
        const int year = stamp.year + (yearWidth_ == 2 && stamp.year < 50 ? 2000 : 1900);
        int julian = stamp.day;
        for (int m = 0; m < stamp.month; ++m)
            julian += DaysOfMonth(year, m);
        const auto date = [&](const std::string& value) { Put(text, i, stamp.HasDate() ? value : ""); };
        const auto time = [&](const std::string& value) { Put(text, i, stamp.HasTime() ? value : ""); };
        switch (parts_[static_cast<size_t>(i)].of) {
        case Of::Year: date(ZeroPadded(stamp.year + 1900, 4).substr(width == 2 ? 2 : 0)); break;
        case Of::Month: date(ZeroPadded(stamp.month + 1, width)); break;
        case Of::Name: date(stamp.HasDate() ? kMonths[stamp.month] : ""); break;
        case Of::Day: date(ZeroPadded(stamp.day, width)); break;
        case Of::Julian: date(ZeroPadded(julian, width)); break;
        case Of::Hour: time(ZeroPadded(hour, width)); break;
        case Of::Minute: time(ZeroPadded(stamp.minute, width)); break;
        case Of::Second: time(ZeroPadded(stamp.second, width)); break;
        case Of::Fraction: time(ZeroPadded(stamp.microsecond, 6)); break;
        case Of::Marker: time(stamp.hour < 12 ? regional_.am : regional_.pm); break;
        case Of::Free: break;
        }
    }
    return text;
}

Content ModernDates::Placed(const std::string& text) const
{
    Content content;
    content.text = text;
    content.Place(First(content));
    return content;
}

Content ModernDates::Empty() const
{
    return Placed(blank_);
}

Content ModernDates::Data(const std::string& text) const
{
    Stamp stamp;
    if (ParseCanonical(stamp, text, config_.type, regional_))
        return Placed(Lay(stamp));
    // What people write is read here too, as where it is asked whether it is a value; what cannot be read is empty.
    const Made made = Paste(Empty(), text);
    return made.Good() ? made.content : Empty();
}

// Canonical text leaves the caret at the start as data do, another text behind as a paste does.
Made ModernDates::Try(const std::string& text) const
{
    Stamp stamp;
    const bool canonical = ParseCanonical(stamp, text, config_.type, regional_);
    return canonical ? ReadPasted(text, blank_) : Paste(Empty(), text);
}

Made ModernDates::Paste(Content content, const std::string& text) const
{
    Made made = ReadPasted(text, content.text);
    made.content.Place(Last());
    return made;
}

Made ModernDates::Step(Content content, int) const
{
    return Made::Of(content);
}

}  // namespace model::modern
