// The model's reading of pasted dates and times: what the field shows, canonical text, what people write.
#include "model_text.h"
#include "modern_dates.h"
#include "modern_text.h"

#include <cstdlib>

namespace model::modern {
namespace {

struct Written {
    enum class Kind { Number, Word, Sign } kind;
    std::string text;
};

std::vector<Written> WrittenOf(const std::string& text)
{
    std::vector<Written> tokens;
    for (const char c : text) {
        const bool letter = std::isalpha(static_cast<unsigned char>(c)) != 0;
        const Written::Kind kind = IsDigit(c) ? Written::Kind::Number
                                   : letter   ? Written::Kind::Word
                                              : Written::Kind::Sign;
        if (tokens.empty() || tokens.back().kind != kind)
            tokens.push_back({kind, ""});
        tokens.back().text += c;
    }
    return tokens;
}

// 1 to 12; 0: no month's name.
int MonthNamed(const std::string& word)
{
    constexpr const char* whole[] = {"JANUARY", "FEBRUARY", "MARCH",     "APRIL",   "MAY",      "JUNE",
                                     "JULY",    "AUGUST",   "SEPTEMBER", "OCTOBER", "NOVEMBER", "DECEMBER"};
    for (int i = 0; i < 12 && word.size() >= 3; ++i)
        if (std::string(whole[i]).compare(0, word.size(), Upper(word)) == 0)
            return i + 1;
    return 0;
}

int YearOf(const std::string& digits)
{
    const int year = std::atoi(digits.c_str());
    return digits.size() > 2 ? year : year + (year < 50 ? 2000 : 1900);
}

}  // namespace

// Reads the numbers of a date in an order of fields; a year of two digits by the pivot.
Made ModernDates::DateOf(const std::vector<Of>& order, const std::vector<std::string>& numbers, int named,
                         Stamp& stamp) const
{
    int year = -1;
    int month = named;
    int day = 1;
    int julian = -1;
    for (size_t i = 0; i < order.size() && i < numbers.size(); ++i) {
        const std::string& digits = numbers[i];
        const int number = std::atoi(digits.c_str());
        const size_t most = order[i] == Of::Year ? 4 : order[i] == Of::Julian ? 3 : 2;
        if (digits.size() > most || (order[i] == Of::Year && digits.size() != 4 && digits.size() != 2))
            return Made::Refused(kDoesNotFit);
        const int bound = order[i] == Of::Year ? 9999 : order[i] == Of::Julian ? 366 : order[i] == Of::Day ? 31 : 12;
        if (number > bound || (number < 1 && digits.size() + (order[i] == Of::Year ? 0u : 2u) != 2))
            return Made::Refused(kDoesNotExist);
        switch (order[i]) {
        case Of::Year: year = YearOf(digits); break;
        case Of::Day: day = number; break;
        case Of::Julian: julian = number; break;
        default: month = number;
        }
    }
    if (numbers.size() < order.size())
        return Made::Refused(kDoesNotFit);
    if (julian >= 0) {
        if (julian > (DaysOfMonth(year, 1) == 29 ? 366 : 365)) {
            stamp.day = 0;
            return Made::Of({});
        }
        for (month = 1, day = julian; day > DaysOfMonth(year, month - 1); ++month)
            day -= DaysOfMonth(year, month - 1);
    }
    stamp.year = year - 1900;
    stamp.month = month - 1;
    stamp.day = day > DaysOfMonth(year, month - 1) ? 0 : day;  // no such day: told when all is read
    return Made::Of({});
}

// The time in a text of its own: hour, minute and so on, with or without the half of the day.
Made ModernDates::TimeOf(const std::string& text, Stamp& stamp) const
{
    std::vector<std::string> numbers;
    std::optional<bool> evening;
    std::string left = text;
    const std::string words[] = {Upper(regional_.am), Upper(regional_.pm), "AM", "PM"};
    const std::string upper = Upper(text);
    const size_t letters = std::min(upper.find_first_not_of("0123456789:. -"), upper.size());
    if (letters < upper.size()) {
        const std::string half = upper.substr(letters, upper.find_last_not_of(' ') + 1 - letters);
        for (int i = 0; i < 4 && !evening; ++i)
            if (half == words[i] || (i < 2 && half == words[i].substr(0, 1)))
                evening = i % 2 == 1;
        if (!evening)
            return Made::Refused(kDoesNotFit);  // letters that mean nothing are seen before any number
        left = text.substr(0, letters);
    }
    for (const Written& token : WrittenOf(left)) {
        if (token.kind == Written::Kind::Number)
            numbers.push_back(token.text);
    }
    if (numbers.size() == 1 && numbers[0].size() > 2) {
        const std::string digits = numbers[0];
        numbers.clear();
        for (size_t i = 0; i < digits.size(); i += 2)
            numbers.push_back(digits.substr(i, i == 4 && digits.size() > 6 ? std::string::npos : 2));
        size_t sum = 0;
        for (const DatePart& part : parts_)
            sum += part.of >= Of::Hour && part.of <= Of::Fraction ? static_cast<size_t>(part.width) : 0;
        if (digits.size() != sum)
            return Made::Refused(kDoesNotFit);
    }
    for (size_t i = 0; i < numbers.size() && i < 4; ++i) {
        if (numbers[i].size() > (i == 3 ? 6u : 2u))
            return Made::Refused(kDoesNotFit);
        if (i < 3 && std::atoi(numbers[i].c_str()) > (i == 0 ? 23 : 59))
            return Made::Refused(kDoesNotExist);
    }
    if (numbers.empty() || numbers.size() > 4 || (numbers.size() < 2 && !evening))
        return Made::Refused(kDoesNotFit);
    numbers.resize(4, "0");
    int hour = std::atoi(numbers[0].c_str());
    stamp.minute = std::atoi(numbers[1].c_str());
    stamp.second = std::atoi(numbers[2].c_str());
    stamp.microsecond = std::atoi((numbers[3] + "000000").substr(0, 6).c_str());
    if (hour > 23 || stamp.minute > 59 || stamp.second > 59 || (evening && (hour < 1 || hour > 12)))
        return Made::Refused(kDoesNotExist);
    stamp.hour = evening ? hour % 12 + (*evening ? 12 : 0) : hour;
    return Made::Of({});
}

// A month, a half of the day, the T before a time.
bool ModernDates::IsKnownWord(const std::string& word) const
{
    const std::string upper = Upper(word);
    const auto begins = [&](const std::string& half) {
        return upper == Upper(half) || upper == Upper(half.substr(0, 1));
    };
    return MonthNamed(word) != 0 || upper == "T" || upper == "AM" || upper == "PM" || begins(regional_.am) ||
           begins(regional_.pm);
}

// A display of the field's own that is blank, or of which the date alone or the time alone is filled in.
std::optional<std::string> ModernDates::OwnPartly(const std::string& given, const std::string& stands) const
{
    if (!Fits(given))
        return {};
    bool anyDate = false;
    bool anyTime = false;
    std::string other = stands;
    for (int i = 0; i < static_cast<int>(parts_.size()); ++i) {
        const bool date = parts_[static_cast<size_t>(i)].of <= Of::Julian;
        bool& any = date ? anyDate : anyTime;
        any = any || !IsBlank(Get(given, i));
    }
    if (!anyDate && !anyTime)
        return blank_;
    if (config_.type != kDateTime || anyDate == anyTime || !Fits(stands))
        return {};
    std::string probe = Lay(Today());
    for (int i = 0; i < static_cast<int>(parts_.size()); ++i)
        if ((parts_[static_cast<size_t>(i)].of <= Of::Julian) == anyDate) {
            Put(probe, i, Get(given, i));
            Put(other, i, Get(given, i));
        }
    return Read(probe) ? std::optional<std::string>(other) : std::nullopt;
}

Made ModernDates::ReadPasted(const std::string& given, const std::string& stands) const
{
    Stamp stamp;
    const auto shown = [&](Stamp value) {
        if (value.HasDate() && config_.type != kTime) {
            const int year = value.year + 1900;
            if (yearWidth_ == 2 && (year < 1950 || year > 2049))
                return Made::Refused(kDoesNotFit);
            if (PartOf(Of::Day) < 0 && PartOf(Of::Julian) < 0 && value.day != 1)
                return Made::Refused(kDoesNotFit);
        }
        std::string text = Lay(value);
        // A date alone leaves the time that stands.
        if (config_.type == kDateTime && !value.HasTime())
            for (int i = 0; i < static_cast<int>(parts_.size()); ++i)
                if (parts_[static_cast<size_t>(i)].of >= Of::Hour && Fits(stands))
                    Put(text, i, Get(stands, i));
        return Made::Of(Placed(text));
    };
    if (Fits(given) && Read(given))
        return shown(*Read(given));
    if (const std::optional<std::string> own = OwnPartly(given, stands))
        return Made::Of(Placed(*own));
    if (ParseCanonical(stamp, given, config_.type, regional_))
        return shown(stamp);
    const size_t from = std::min(given.find_first_not_of(' '), given.size());
    std::string text = given.substr(from, given.find_last_not_of(' ') + 1 - from);
    // What the mask writes before its first field may stand there.
    const std::string front = blank_.substr(0, static_cast<size_t>(First({})));
    if (!front.empty() && text.compare(0, front.size(), front) == 0)
        text.erase(0, front.size());
    if (config_.type == kTime) {
        const Made time = TimeOf(text, stamp);
        return time.Good() ? shown(stamp) : time;
    }
    // The fields of the date, in the mask's order.
    std::vector<Of> order;
    std::vector<int> widths;
    for (const DatePart& part : parts_)
        if (part.of <= Of::Julian) {
            order.push_back(part.of);
            widths.push_back(part.width);
        }
    std::vector<Written> tokens = WrittenOf(text);
    for (const Written& token : tokens)
        if (token.kind == Written::Kind::Word && !IsKnownWord(token.text))
            return Made::Refused(kDoesNotFit);
    std::vector<std::string> numbers;
    int named = 0;
    size_t used = 0;
    // Digits alone, in the mask's lengths.
    int sum = 0;
    bool digitsOnly = true;
    for (size_t i = 0; i < order.size(); ++i) {
        sum += order[i] == Of::Name ? 2 : widths[i];
    }
    // A day of the year may be written as month and day.
    const auto julian = std::find(order.begin(), order.end(), Of::Julian);
    const auto count =
        std::count_if(tokens.begin(), tokens.end(), [](const Written& t) { return t.kind != Written::Kind::Sign; });
    const bool byName =
        std::any_of(tokens.begin(), tokens.end(), [](const Written& t) { return MonthNamed(t.text) != 0; });
    if (julian != order.end() && (byName || (count > 2 && tokens[0].text.size() == 4))) {
        const size_t at = static_cast<size_t>(julian - order.begin());
        order[at] = Of::Month;
        order.insert(order.begin() + static_cast<std::ptrdiff_t>(at) + 1, Of::Day);
        if (byName)
            order = {Of::Month, Of::Day, Of::Year};  // as people say it
        digitsOnly = false;
    }
    if (digitsOnly && !tokens.empty() && tokens[0].kind == Written::Kind::Number &&
        static_cast<int>(tokens[0].text.size()) == sum && order.size() > 1) {
        size_t at = 0;
        for (size_t i = 0; i < widths.size(); ++i) {
            const int width = order[i] == Of::Name ? 2 : widths[i];
            numbers.push_back(tokens[0].text.substr(at, static_cast<size_t>(width)));
            at += static_cast<size_t>(width);
        }
        used = 1;
    } else {
        const auto whole = [&] { return numbers.size() + (named != 0 ? 1 : 0) == order.size(); };
        for (; used < tokens.size() && !whole(); ++used) {
            const Written& token = tokens[used];
            if (token.kind == Written::Kind::Number)
                numbers.push_back(token.text);
            else if (token.kind == Written::Kind::Word) {
                if (named != 0 || MonthNamed(token.text) == 0)
                    break;
                named = MonthNamed(token.text);
            } else if (token.text.find(':') != std::string::npos)
                break;  // a colon stands in times
            else if (used == 0)
                return Made::Refused(kDoesNotFit);
        }
    }
    const auto drop = [&](Of of) {
        for (size_t i = 0; i < order.size(); ++i)
            if (order[i] == of)
                order.erase(order.begin() + static_cast<std::ptrdiff_t>(i));
    };
    if (named != 0) {
        drop(Of::Month);
        drop(Of::Name);
    }
    // A number of four digits is the year: the first one always, another beside a name.
    for (size_t i = 0; i < numbers.size() && used > 1; ++i)
        if (numbers[i].size() == 4 && (i == 0 || named != 0)) {
            drop(Of::Year);
            if (i == 0 && order.size() == 2)
                order = {Of::Month, Of::Day};
            order.insert(order.begin() + static_cast<std::ptrdiff_t>(std::min(i, order.size())), Of::Year);
            break;
        }
    if (numbers.size() > order.size())
        return Made::Refused(kDoesNotFit);
    const Made date = DateOf(order, numbers, named, stamp);
    if (!date.Good())
        return date;
    std::string rest;
    for (size_t i = used; i < tokens.size(); ++i)
        rest += tokens[i].text;
    if (!rest.empty()) {
        if (rest[0] != ' ' && Upper(rest[0]) != 'T')
            return Made::Refused(kDoesNotFit);
        const Made time = TimeOf(rest.substr(1), stamp);
        if (!time.Good())
            return time;
        if (config_.type == kDate && (stamp.hour != 0 || stamp.minute != 0))
            return Made::Refused(stamp.day == 0 ? kDoesNotExist : kDoesNotFit);  // a time that would be lost
    }
    if (stamp.day == 0)
        return Made::Refused(kDoesNotExist);
    return shown(stamp);
}

}  // namespace model::modern
