// What is typed is what is read, in modern dates, times and strings: the text that the field will show, typed key by key from wherever
// typing may begin, gives its value without a refusal. How a mask shows a value is told here, with no help of the engine.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <memory>

#include "engine/editing.h"
#include "engine/memory_control.h"
#include "tests/support/number_law.h"

namespace zttest::modern_law {
namespace {

using namespace zte;

DateTimeValue NoClock()
{
    return {};
}

// Of so many rows one is played, the same ones in every run; ZT_MODERN_LAW_EVERY=1 plays all.
uint64_t Every(uint64_t otherwise)
{
    const char* text = std::getenv("ZT_MODERN_LAW_EVERY");
    const uint64_t every = text ? std::strtoull(text, nullptr, 10) : otherwise;
    return every > 0 ? every : 1;
}

std::string TwoDigits(int number)
{
    return std::string(number < 10 ? "0" : "") + std::to_string(number);
}

std::string Padded(int number, size_t digits)
{
    const std::string text = std::to_string(number);
    return std::string(digits - std::min(digits, text.size()), '0') + text;
}

// ---- the field

Settings SettingsWith(const char* am, const char* pm)
{
    Settings settings = StandardSettings();
    Assign(settings.amString, FromAscii(am));
    Assign(settings.pmString, FromAscii(pm));
    return settings;
}

class Field {
public:
    Field(const std::string& mask, int32_t type, const Settings& settings)
        : mask_(FromAscii(mask.c_str())), settings_(settings)
    {
        ControlSetup setup;
        setup.mask = mask_.c_str();
        setup.dataType = type;
        setup.options = ZTEO_MODERN;
        control_ = std::make_unique<MemoryControl>(setup, settings_, NoClock);
    }

    MemoryControl& Control() { return *control_; }
    bool HasMask() const { return Text(control_->Record().mask) == mask_; }

    bool SetData(const std::string& canonical)
    {
        return TrySetDataString(control_->Record(), FromAscii(canonical.c_str()).c_str()) == 0;
    }
    std::string Shown() const { return {control_->Edit().Shown().begin(), control_->Edit().Shown().end()}; }
    std::string Canonical() const
    {
        Text text;
        return CanonicalText(control_->Record(), text) ? std::string(text.begin(), text.end()) : "(none)";
    }
    void Type(const std::string& keys)
    {
        for (const char key : keys)
            control_->Type(static_cast<unsigned char>(key));
    }
    void Press(Key key)
    {
        control_->KeyDown(key);
        control_->KeyUp(key);
    }
    int Refusals() const
    {
        return control_->Edit().Count(FieldEvent::Rejected) + control_->Edit().Count(FieldEvent::Beep);
    }

private:
    Text mask_;
    Settings settings_;
    std::unique_ptr<MemoryControl> control_;
};

// ---- where typing begins

void BeginBlank(Field& field)
{
    field.SetData("");
}
void BeginAllSelected(Field& field)
{
    field.Control().Type(1);
}
void BeginAtStart(Field& field)
{
    field.Press(KEY_HOME);
}

void BeginBackspaced(Field& field)
{
    const size_t most = field.Shown().size();
    field.Control().Select(static_cast<int32_t>(most), static_cast<int32_t>(most));
    for (size_t i = 0; i < most; ++i)
        field.Control().Type(8);
}

// A position that is blank already is gone over.
void BeginDeleted(Field& field)
{
    const size_t most = 2 * field.Shown().size();
    field.Press(KEY_HOME);
    for (size_t i = 0; i < most; ++i) {
        const std::string before = field.Shown();
        field.Press(KEY_DELETE);
        if (field.Shown() == before)
            field.Press(KEY_RIGHT);
    }
    field.Press(KEY_HOME);
}

struct Start {
    const char* name;
    void (*begin)(Field&);
};
constexpr Start kOverStart = {"over it from its start", BeginAtStart};
constexpr Start kStarts[] = {
    kOverStart,
    {"from blank",        BeginBlank      },
    {"over all selected", BeginAllSelected},
    {"after Backspaces",  BeginBackspaced },
    {"after Deletes",     BeginDeleted    },
};

// ---- rows

struct LawCase {
    std::string other;  // canonical, what the field shows before
    std::string keys;   // what is typed
    std::string shown;
    std::string canonical;  // of what is shown
    bool leaves = false;    // the focus goes on then
};

class Tally {
public:
    explicit Tally(const char* what) : what_(what) {}
    ~Tally() { std::cout << "played " << played_ << " rows of " << what_ << ", " << failed_ << " failed\n"; }

    void Play(Field& field, const std::string& mask, const Start& start, const LawCase& row)
    {
        ++played_;
        ASSERT_TRUE(field.SetData(row.other)) << mask << ": " << row.other;
        start.begin(field);
        field.Control().Edit().ForgetCounts();
        field.Type(row.keys);
        if (row.leaves)
            field.Control().LoseFocus();
        if (field.Shown() == row.shown && field.Canonical() == row.canonical && field.Refusals() == 0)
            return;
        if (++failed_ <= kTold)
            ADD_FAILURE() << mask << ": \"" << row.keys << "\" typed " << start.name << " with \"" << row.other
                          << "\" before shows \"" << field.Shown() << "\", reads \"" << field.Canonical() << "\", "
                          << field.Refusals() << " refusals and beeps; expected \"" << row.shown << "\", \""
                          << row.canonical << '"';
    }
    uint64_t Played() const { return played_; }

private:
    static constexpr uint64_t kTold = 10;
    const char* what_;
    uint64_t played_ = 0;
    uint64_t failed_ = 0;
};

// ---- dates

struct Day {
    int year;
    int month;
    int day;
};

bool IsLeap(int year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

int DaysOf(int year, int month)
{
    constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return kDays[month - 1] + (month == 2 && IsLeap(year) ? 1 : 0);
}

// Every day from 1950 to 2049.
std::vector<Day> AllDays()
{
    std::vector<Day> days;
    for (int year = 1950; year < 2050; ++year)
        for (int month = 1; month <= 12; ++month)
            for (int day = 1; day <= DaysOf(year, month); ++day)
                days.push_back({year, month, day});
    return days;
}

// Leap days, and firsts and lasts of months.
std::vector<Day> FiftyDays()
{
    std::vector<Day> days;
    for (int year = 1952; year < 2050; year += 8)
        days.push_back({year, 2, 29});
    for (int i = 0; days.size() < 50; ++i) {
        const int year = 1950 + i * 37 % 100;
        const int month = 1 + i * 5 % 12;
        days.push_back({year, month, i % 3 == 0 ? 1 : i % 3 == 1 ? DaysOf(year, month) : 10 + i % 15});
    }
    return days;
}

std::string CanonicalOf(const Day& day)
{
    return Padded(day.year, 4) + '-' + TwoDigits(day.month) + '-' + TwoDigits(day.day);
}

int DayOfYear(const Day& day)
{
    int number = day.day;
    for (int month = 1; month < day.month; ++month)
        number += DaysOf(day.year, month);
    return number;
}

struct Moment {
    Day date{};
    int hour = 0;
    int minute = 0;
    int second = 0;
};

struct Designators {
    const char* am;
    const char* pm;
};

constexpr const char* kMonthNames[] = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                       "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};

// The text that a field of a mask shows; an "MM" behind hours is minutes.
std::string ShowField(const std::string& field, bool hasHours, bool halves, const Moment& moment)
{
    const int half = moment.hour % 12 == 0 ? 12 : moment.hour % 12;
    switch (field[0]) {
    case 'Y': return field.size() == 2 ? TwoDigits(moment.date.year % 100) : Padded(moment.date.year, 4);
    case 'D': return TwoDigits(moment.date.day);
    case 'J': return Padded(DayOfYear(moment.date), 3);
    case 'H': return TwoDigits(halves ? half : moment.hour);
    case 'S': return TwoDigits(moment.second);
    case 'M':
        if (hasHours)
            return TwoDigits(moment.minute);
        return field.size() == 3 ? kMonthNames[moment.date.month - 1] : TwoDigits(moment.date.month);
    default: return field;
    }
}

std::string Show(const std::string& mask, const Moment& moment, const Designators& designators)
{
    const size_t marker = mask.find("AM/PM");
    std::string shown;
    bool hasHours = false;
    for (size_t i = 0; i < mask.size();) {
        if (i == marker) {
            shown += moment.hour < 12 ? designators.am : designators.pm;
            i += 5;
            continue;
        }
        const size_t end = std::min(mask.find_first_not_of(mask[i], i), mask.size());
        shown += ShowField(mask.substr(i, end - i), hasHours, marker != std::string::npos, moment);
        hasHours = hasHours || mask[i] == 'H';
        i = end;
    }
    return shown;
}

std::string Canonical(int32_t type, const Moment& moment)
{
    const std::string time = TwoDigits(moment.hour) + ':' + TwoDigits(moment.minute) + ':' + TwoDigits(moment.second);
    if (type == DT_TIME)
        return time;
    return CanonicalOf(moment.date) + (type == DT_DATE ? "" : ' ' + time);
}

// ---- ways to type what is shown

std::string AsShown(const std::string& shown)
{
    return shown;
}

std::string InSmallLetters(const std::string& text)
{
    std::string shown = text;
    std::transform(shown.begin(), shown.end(), shown.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return shown;
}

bool IsPlain(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z');
}

std::string WithoutSeparators(const std::string& text)
{
    std::string shown = text;
    shown.erase(std::remove_if(shown.begin(), shown.end(), [](char c) { return !IsPlain(c); }), shown.end());
    return shown;
}

// 07/04/2024 as 7/4/2024: a zero before one digit is left out.
std::string WithoutZeros(const std::string& shown)
{
    const auto digitAt = [&](size_t i) { return i < shown.size() && shown[i] >= '0' && shown[i] <= '9'; };
    std::string typed;
    for (size_t i = 0; i < shown.size(); ++i) {
        const bool first = i == 0 || !digitAt(i - 1);
        if (!(shown[i] == '0' && first && digitAt(i + 1) && !digitAt(i + 2) && i + 2 < shown.size()))
            typed += shown[i];
    }
    return typed;
}

// One separator of another kind stands for all between two fields; none is typed before the first field and behind the last.
std::string WithOtherSeparators(const std::string& shown)
{
    std::string typed;
    for (size_t i = 0; i < shown.size(); ++i) {
        const bool isLast = std::none_of(shown.begin() + static_cast<std::ptrdiff_t>(i), shown.end(), IsPlain);
        if (IsPlain(shown[i]))
            typed += shown[i];
        else if (!typed.empty() && typed.back() != ';' && !isLast)
            typed += ';';
    }
    return typed;
}

using Ways = std::vector<std::string (*)(const std::string&)>;

// Plays one in so many of all values over all others: as it is shown over the other from its start, and from another start in
// another way.
class Game {
public:
    Game(const char* what, uint64_t every) : tally_(what), every_(every) {}

    void Play(const std::string& mask, int32_t type, const std::vector<Moment>& values,
              const std::vector<Moment>& others, const Ways& ways, const Designators& designators = {"AM", "PM"})
    {
        Field field(mask, type, SettingsWith(designators.am, designators.pm));
        ASSERT_TRUE(field.HasMask()) << mask;
        const uint64_t rows = values.size() * others.size();
        for (; next_ < rows; next_ += every_) {
            const Moment& value = values[next_ % values.size()];
            const Moment& other = others[next_ / values.size()];
            const std::string shown = Show(mask, value, designators);
            const uint32_t choice = Mix(static_cast<uint32_t>(next_), static_cast<uint32_t>(values.size()));
            const auto& way = ways[choice / std::size(kStarts) % ways.size()];
            const LawCase row = {Canonical(type, other), shown, shown, Canonical(type, value)};
            tally_.Play(field, mask, kOverStart, row);
            tally_.Play(field, mask, kStarts[choice % std::size(kStarts)],
                        {row.other, way(shown), shown, row.canonical});
        }
        next_ -= rows;
    }
    uint64_t Played() const { return tally_.Played(); }

private:
    Tally tally_;
    uint64_t every_;
    uint64_t next_ = 0;
};

std::vector<Moment> Dates(const std::vector<Day>& days)
{
    std::vector<Moment> moments;
    for (const Day& day : days)
        moments.push_back({day, 0, 0, 0});
    return moments;
}

std::vector<Moment> Minutes(int step)
{
    std::vector<Moment> moments;
    for (int minute = 0; minute < 24 * 60; minute += step)
        moments.push_back({{}, minute / 60, minute % 60, 0});
    return moments;
}

constexpr const char* kDateMasks[] = {
    "MM/DD/YYYY",  "DD/MM/YYYY",  "YYYY/MM/DD", "MM/DD/YY",  "DD.MM.YY", "YY-MM-DD", "MMM-DD-YYYY",
    "DD MMM YYYY", "YYYY-MMM-DD", "MMM DD, YY", "DD-MMM-YY", "JJJ/YYYY", "YYYY JJJ", "(MM)(DD)(YYYY)",
};

TEST(ModernLaw, EveryDateTypedIsRead)
{
    Game game("dates", Every(9001));
    const std::vector<Moment> values = Dates(AllDays());
    const std::vector<Moment> others = Dates(FiftyDays());
    ASSERT_EQ(values.size(), 36525u);
    ASSERT_EQ(others.size(), 50u);
    const Ways ways = {AsShown, InSmallLetters, WithoutSeparators, WithoutZeros, WithOtherSeparators};
    for (const char* mask : kDateMasks)
        game.Play(mask, DT_DATE, values, others, ways);
    EXPECT_GT(game.Played(), 1000u);
}

TEST(ModernLaw, EveryTimeTypedIsRead)
{
    Game game("times", Every(401));
    const std::vector<Moment> values = Minutes(1);
    const std::vector<Moment> others = Minutes(29);
    const Ways ways = {AsShown, WithoutSeparators, WithoutZeros, WithOtherSeparators};
    const Ways halves = {AsShown, InSmallLetters, WithoutSeparators, WithoutZeros};
    const Ways spelled = {AsShown, WithoutZeros};
    game.Play("HH:MM", DT_TIME, values, others, ways);
    game.Play("HH:MM:SS", DT_TIME, values, others, ways);
    game.Play("HH:MM AM/PM", DT_TIME, values, others, halves);
    game.Play("AM/PM HH:MM", DT_TIME, values, others, halves);
    game.Play("HH:MM AM/PM", DT_TIME, values, others, spelled, {"a.m.", "p.m."});
    game.Play("AM/PM HH:MM:SS", DT_TIME, values, others, spelled, {"v", "nm"});
    EXPECT_GT(game.Played(), 1000u);
}

// Hours of the day in a field of half days: those that no half day has choose the half, others do so in a field that has none yet.
TEST(ModernLaw, HoursOfTheDayChooseTheHalf)
{
    Tally tally("times of the day in half days");
    const std::vector<Moment> values = Minutes(1);
    const std::vector<Moment> others = Minutes(29);
    const uint64_t every = Every(149);
    for (const std::string mask : {"HH:MM AM/PM", "HHuMM (AM/PM)"}) {
        Field field(mask, DT_TIME, SettingsWith("AM", "PM"));
        for (uint64_t row = 0; row < values.size() * others.size(); row += every) {
            const Moment& value = values[row % values.size()];
            const std::string keys = TwoDigits(value.hour) + (row % 2 == 0 ? ":" : "") + TwoDigits(value.minute);
            const bool isOfHalf = value.hour >= 1 && value.hour <= 12;
            const Start& start = kStarts[isOfHalf ? 1 + row % (std::size(kStarts) - 1) : row % std::size(kStarts)];
            tally.Play(field, mask, start,
                       {Canonical(DT_TIME, others[row / values.size()]), keys, Show(mask, value, {"AM", "PM"}),
                        Canonical(DT_TIME, value)});
        }
    }
    EXPECT_GT(tally.Played(), 500u);
}

// Two digits of a year, and single digits, are completed when they are left.
TEST(ModernLaw, ShortDatesAreCompleted)
{
    Tally tally("short dates");
    const std::vector<Moment> values = Dates(AllDays());
    const std::vector<Moment> others = Dates(FiftyDays());
    const uint64_t every = Every(7001);
    for (const std::string mask : {"MM/DD/YYYY", "DD.MM.YYYY", "MMM DD YYYY"}) {
        Field field(mask, DT_DATE, StandardSettings());
        for (uint64_t row = 0; row < values.size() * others.size(); row += every) {
            const Moment& value = values[row % values.size()];
            const std::string shown = Show(mask, value, {});
            const std::string keys = WithoutZeros(shown.substr(0, shown.size() - 4)) + TwoDigits(value.date.year % 100);
            tally.Play(field, mask, kStarts[row % std::size(kStarts)],
                       {Canonical(DT_DATE, others[row / values.size()]), keys, shown, Canonical(DT_DATE, value), true});
        }
    }
    EXPECT_GT(tally.Played(), 500u);
}

TEST(ModernLaw, DatesWithTimesTypedAreRead)
{
    Game game("dates with times", Every(20011));
    std::vector<Moment> values = Dates(AllDays());
    for (size_t i = 0; i < values.size(); ++i) {
        values[i].hour = static_cast<int>(i * 7 % 24);
        values[i].minute = static_cast<int>(i * 11 % 60);
    }
    std::vector<Moment> others(values.begin() + 100, values.begin() + 150);
    const Ways ways = {AsShown, InSmallLetters, WithoutSeparators, WithoutZeros};
    for (const char* mask :
         {"MM/DD/YYYY HH:MM", "DD-MMM-YY HH:MM AM/PM", "YYYY-MM-DD AM/PM HH:MM:SS", "HH:MM JJJ/YYYY"})
        game.Play(mask, DT_DATETIME, values, others, ways);
    EXPECT_GT(game.Played(), 300u);
}

// ---- strings

// A character that a place of a mask takes, as it is shown there.
char CharacterFor(char place, uint32_t choice)
{
    static const std::string kDigits = "0123456789";
    static const std::string kLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    static const std::string kOthers = "_*=%&";
    const auto from = [choice](const std::string& all) { return all[choice % all.size()]; };
    switch (place) {
    case '#':
    case '0': return from(kDigits);
    case 'A': return from(kDigits + kLetters);
    case 'X': return from(kDigits + kLetters + kOthers);
    case '!': return from(kLetters.substr(26) + kDigits);
    case '^': return from(kLetters.substr(0, 26) + kDigits);
    default: return place;
    }
}

bool IsPlaceOfString(char c)
{
    return std::string("#0AX!^").find(c) != std::string::npos;
}

// Masks of one to five groups; what stands between them no place takes, but where a group of digits follows.
std::string RandomMask(uint32_t seed)
{
    static const char* const kGroups[] = {"###", "00", "AA", "XX", "!!", "^^^", "#", "AX#"};
    static const char* const kBetween[] = {"-", " ", "/", ") ", ":", "--", ".", ", "};
    static const char* const kBefore[] = {"", "(", "[", "("};
    std::string mask;
    const uint32_t groups = 1 + Mix(seed, 1) % 5;
    for (uint32_t i = 0; i < groups; ++i) {
        const std::string group = kGroups[Mix(seed, 2, i) % std::size(kGroups)];
        if (i > 0)
            mask += kBetween[Mix(seed, 3, i) % std::size(kBetween)];
        else if (group[0] == '#' || group[0] == '0' || group[0] == 'A')
            mask += kBefore[Mix(seed, 4) % std::size(kBefore)];
        mask += group;
    }
    return mask + (Mix(seed, 5) % 4 == 0 ? ")" : "");
}

struct StringValue {
    std::string data;
    std::string shown;
};

// Some places that need no digit stay blank, so that what stands there is taken back.
StringValue RandomString(const std::string& mask, uint32_t seed)
{
    StringValue value;
    const bool sparse = seed % 5 == 0;
    for (size_t i = 0; i < mask.size(); ++i) {
        const bool isPlace = IsPlaceOfString(mask[i]);
        const bool isDigit = mask[i] == '#' || mask[i] == '0';
        const auto at = static_cast<uint32_t>(i);
        const char c =
            sparse && isPlace && !isDigit && Mix(seed, 7, at) % 3 == 0 ? ' ' : CharacterFor(mask[i], Mix(seed, 6, at));
        value.shown += c;
        if (isPlace)
            value.data += c;
    }
    value.data.erase(value.data.find_last_not_of(' ') + 1);
    return value;
}

TEST(ModernLaw, EveryStringTypedIsRead)
{
    Tally tally("strings");
    const uint64_t every = Every(149);
    const Settings settings = StandardSettings();
    uint64_t next = 0;
    uint64_t rows = 0;
    for (uint32_t seed = 0; seed < 400; ++seed) {
        const std::string mask = RandomMask(seed);
        Field field(mask, DT_STRING, settings);
        ASSERT_TRUE(field.HasMask()) << mask;
        const auto places = static_cast<size_t>(std::count_if(mask.begin(), mask.end(), IsPlaceOfString));
        for (uint32_t i = 0; i < 100; ++i, ++rows) {
            if (rows < next)
                continue;
            next += every;
            const StringValue value = RandomString(mask, Mix(seed, 8, i));
            const StringValue other = RandomString(mask, 5 * Mix(seed, 9, i) + 1);
            for (const Start& start : kStarts) {
                tally.Play(field, mask, start, {other.data, value.shown, value.shown, value.data});
                if (value.data.size() == places && value.data.find(' ') == std::string::npos)
                    tally.Play(field, mask, start, {other.data, value.data, value.shown, value.data});
            }
        }
    }
    EXPECT_GT(tally.Played(), 1000u);
}

// ---- what is pasted

std::string RandomText(uint32_t seed)
{
    static const char* const kPieces[] = {"7",    "4",    "04",       "31",  "13",   "30",  "99",         "000",
                                          "2024", "1999", "20240704", "/",   "-",    ".",   ":",          " ",
                                          ", ",   "//",   "T",        "JUL", "July", "mar", "ma",         "AM",
                                          "pm",   "p",    "x",        "\t",  "+",    "(",   "  /  /    ", "07/04/2024"};
    std::string text;
    const uint32_t count = 1 + Mix(seed, 1) % 9;
    for (uint32_t i = 0; i < count; ++i)
        text += kPieces[Mix(seed, 2, i) % std::size(kPieces)];
    return text;
}

// What a field shows goes into an empty one as it is.
void ExpectOwnTextIsTaken(Field& field, const std::string& row)
{
    const std::string shown = field.Shown();
    field.SetData("");
    field.Control().Edit().SetClipboard(FromAscii(shown.c_str()));
    field.Control().Paste();
    ASSERT_EQ(field.Shown(), shown) << row;
}

void ExpectValueOrRefusal(Field& field, const std::string& mask, const std::string& text)
{
    MemoryField& edit = field.Control().Edit();
    const std::string before = field.Shown();
    const Selection selection = edit.ReadSelection();
    edit.ForgetCounts();
    edit.SetModifiedFlag(false);
    edit.SetClipboard(FromAscii(text.c_str()));
    field.Control().Paste();
    const std::string row = mask + " \"" + before + "\": \"" + text + '"';
    if (edit.Count(FieldEvent::Rejected) == 0) {
        ASSERT_NE(StateOf(field.Control().Record()), ZTS_INVALID) << row << " shows " << field.Shown();
        ASSERT_EQ(edit.ReadSelection().start, edit.ReadSelection().end) << row;
        ExpectOwnTextIsTaken(field, row);
        return;
    }
    ASSERT_EQ(edit.Count(FieldEvent::Rejected), 1) << row;
    ASSERT_EQ(edit.Count(FieldEvent::Change), 0) << row;
    ASSERT_FALSE(edit.IsModified()) << row;
    ASSERT_EQ(field.Shown(), before) << row;
    ASSERT_EQ(edit.ReadSelection().start, selection.start) << row;
    ASSERT_EQ(edit.ReadSelection().end, selection.end) << row;
    ASSERT_LE(edit.LastRejected().position, static_cast<int32_t>(text.size())) << row;
}

TEST(ModernLaw, WhatIsPastedIsAValueOrRefused)
{
    struct Pasted {
        const char* mask;
        int32_t type;
        const char* other;
    };
    const Pasted kFields[] = {
        {"MM/DD/YYYY",         DT_DATE,     "1999-12-31"      },
        {"DD-MMM-YY",          DT_DATE,     "1999-12-31"      },
        {"JJJ/YYYY",           DT_DATE,     "1999-12-31"      },
        {"YYYY/DD/MM",         DT_DATE,     "1999-12-31"      },
        {"MM/YY",              DT_DATE,     "1999-12-01"      },
        {"HH:MM",              DT_TIME,     "23:59"           },
        {"AM/PM HH.MM.SS.FF",  DT_TIME,     "23:59"           },
        {"MM/DD/YYYY HH:MM",   DT_DATETIME, "1999-12-31 23:59"},
        {"HH:MM AM/PM JJJ.YY", DT_DATETIME, "1999-12-31 23:59"},
        {"XX",                 DT_DATETIME, ""                },
        {"(###) XX-AA",        DT_STRING,   "123ab"           },
    };
    const uint64_t texts = 120000 / std::min<uint64_t>(Every(97), 120);
    for (const Pasted& pasted : kFields) {
        Field field(pasted.mask, pasted.type, StandardSettings());
        ASSERT_TRUE(field.HasMask()) << pasted.mask;
        for (uint32_t i = 0; i < texts; ++i) {
            field.SetData(i % 2 == 0 ? pasted.other : "");
            if (i % 3 == 0)
                field.Control().Type(1);
            ASSERT_NO_FATAL_FAILURE(ExpectValueOrRefusal(field, pasted.mask, RandomText(i)));
        }
    }
}

}  // namespace
}  // namespace zttest::modern_law
