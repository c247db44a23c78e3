// Reads dates and times as people and programs write them.
#include "engine/modern/date_reader.h"

#include <algorithm>

#include "engine/format/date_text.h"
#include "engine/modern/date_fields.h"
#include "engine/modern/date_tokens.h"
#include "engine/text/ascii.h"
#include "engine/values/calendar.h"
#include "engine/values/date_time.h"

namespace zte::modern::dates {

namespace {

constexpr int32_t kYearDigits = 4;
constexpr int32_t kHoursOfHalf = 12;

using Kinds = std::vector<FieldKind>;

// How many digits a number may have where a text keeps its fields apart.
struct DigitsRow {
    FieldKind kind;
    int32_t most;
};

constexpr DigitsRow kMostDigits[] = {
    {FieldKind::Year,      kYearDigits},
    {FieldKind::Month,     2          },
    {FieldKind::Day,       2          },
    {FieldKind::DayOfYear, 3          },
    {FieldKind::Hour,      2          },
    {FieldKind::Minute,    2          },
    {FieldKind::Second,    2          },
    {FieldKind::Fraction,  9          }, // other programs write nanoseconds
};

constexpr FieldKind kTimeOrder[] = {FieldKind::Hour, FieldKind::Minute, FieldKind::Second, FieldKind::Fraction};

int32_t MostDigits(FieldKind kind)
{
    const auto* const row = std::find_if(std::begin(kMostDigits), std::end(kMostDigits),
                                         [=](const DigitsRow& other) { return other.kind == kind; });
    return row == std::end(kMostDigits) ? 0 : row->most;
}

// A year of one digit or three is none.
bool MayHaveDigits(FieldKind kind, int32_t digits)
{
    if (kind == FieldKind::Year)
        return digits == 2 || digits == kYearDigits;
    return digits <= MostDigits(kind);
}

// The millionths that the first digits of a fraction are.
int32_t MicrosecondsOf(const Text& digits)
{
    Text six = digits.substr(0, kMicroDigits);
    six.resize(static_cast<size_t>(kMicroDigits), Char{'0'});
    return IntegerOf(six);
}

bool IsTimeField(const Place& place)
{
    return place.kind >= FieldKind::Hour && place.kind < FieldKind::AmPm;
}

bool IsDateField(const Place& place)
{
    return IsPart(place) && IsOfTheDate(place.kind);
}

// A month is two digits where it stands among digits alone, its name's field too.
int32_t DigitsIn(const Place& place)
{
    return IsMonthName(place) ? 2 : place.length;
}

int32_t DigitsOf(const std::vector<Place>& fields)
{
    int32_t digits = 0;
    for (const Place& field : fields)
        digits += DigitsIn(field);
    return digits;
}

Kinds KindsOf(const std::vector<Place>& fields)
{
    Kinds kinds;
    for (const Place& field : fields)
        kinds.push_back(field.kind);
    return kinds;
}

bool Includes(const Kinds& kinds, FieldKind kind)
{
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

// One reading of one text, from left to right. Each step tells whether it found what it wants; behind one that did not nothing is read.
class DateReader {
public:
    DateReader(const EditInstance& edit, const Text& text)
        : edit_(edit), tokens_(TokensOf(edit, text)), literals_(LiteralRuns(edit))
    {
        reading_.value = kEmptyDateTime;
        const Text blank = BlankText(edit);
        const Layout layout(edit, blank);
        for (const Place& place : layout.Places())
            Sort(place);
        reading_.isCanonical = IsCanonical(text);
    }

    DateReading Read()
    {
        if (TakeTokens())
            Assemble();
        return reading_;
    }

private:
    void Sort(const Place& place)
    {
        if (IsDateField(place))
            dateFields_.push_back(place);
        else if (IsTimeField(place))
            timeFields_.push_back(place);
        else
            return;
        allFields_.push_back(place);
    }

    bool IsCanonical(const Text& text) const
    {
        DateTimeValue value;
        Text trimmed = text.substr(static_cast<size_t>(Peek().start));
        while (!trimmed.empty() && IsBlankOfText(edit_, trimmed.back()))
            trimmed.pop_back();
        return ParseCanonical(edit_, trimmed.c_str(), value);
    }

    const Token& Peek(size_t ahead = 0) const { return tokens_[std::min(at_ + ahead, tokens_.size() - 1)]; }
    bool IsNext(TokenKind kind) const { return Peek().kind == kind; }
    void Advance() { ++at_; }
    FoundField& Field(FieldKind kind) { return reading_.fields[static_cast<size_t>(kind)]; }

    bool Fail(Reason reason, int32_t position)
    {
        reading_.reason = reason;
        reading_.position = position;
        return false;
    }
    bool FailHere() { return Fail(ZTR_DOES_NOT_FIT, Peek().start); }

    // ---- the whole text

    bool TakeTokens()
    {
        for (const Token& token : tokens_)
            if (token.kind == TokenKind::Unknown || token.kind == TokenKind::Doubtful)
                return Fail(token.kind == TokenKind::Unknown ? ZTR_DOES_NOT_FIT : ZTR_IN_DOUBT, token.start);
        SkipLiteral(literals_.front());
        if (!TakeParts())
            return false;
        SkipLiteral(literals_.back());
        return IsNext(TokenKind::End) || FailHere();
    }

    // What the mask writes before its first field, or behind its last one.
    void SkipLiteral(const Text& literal)
    {
        if (IsNext(TokenKind::Separator) && Marks(Peek().text) == Marks(literal))
            Advance();
    }

    Text Marks(Text text) const
    {
        text.erase(std::remove_if(text.begin(), text.end(), [this](Char c) { return IsBlankOfText(edit_, c); }),
                   text.end());
        return text;
    }

    bool TakeParts()
    {
        if (edit_.dataType == DT_TIME)
            return TakeTime(false);
        if (edit_.dataType == DT_DATETIME && IsRunOf(allFields_))
            return TakeRun(allFields_) && TakeHalfBehind();
        if (edit_.dataType == DT_DATETIME && StartsWithTime())
            return TakeTime(true) && (AtEnd() || (SkipBetween() && TakeDate()));
        return TakeDate() && (AtEnd() || (SkipBetween() && TakeTime(false)));
    }

    bool AtEnd() const
    {
        const bool isLiteral = IsNext(TokenKind::Separator) && Marks(Peek().text) == Marks(literals_.back());
        return Peek(isLiteral ? 1 : 0).kind == TokenKind::End;
    }

    // A colon stands in times, and in dates where the mask has it there.
    bool StartsWithTime() const
    {
        if (IsNext(TokenKind::Half) || Peek(1).kind == TokenKind::Half || Peek(2).kind == TokenKind::Half)
            return true;
        const bool anyColon =
            std::any_of(tokens_.begin(), tokens_.end(), [](const Token& token) { return token.HasColon(); });
        if (anyColon && !HasColonInDate())
            return Peek(1).HasColon();
        return !allFields_.empty() && IsTimeField(allFields_.front()) && !Peek().IsNumber(kYearDigits) &&
               !IsNext(TokenKind::Month);
    }

    bool HasColonInDate() const
    {
        return std::any_of(literals_.begin(), literals_.end(), [](const Text& run) { return Find(run, ':') >= 0; }) &&
               std::adjacent_find(dateFields_.begin(), dateFields_.end(), [this](const Place& one, const Place& other) {
                   const Text between = Slice(BlankText(edit_), one.End(), other.start - one.End());
                   return Find(between, ':') >= 0;
               }) != dateFields_.end();
    }

    // From the date to the time, or from the time to the date: a blank, a T, what the mask has between fields. Another sign would
    // make a time of what is left of a date.
    bool SkipBetween()
    {
        const bool separated = IsNext(TokenKind::Separator) && !Peek().HasColon() && Peek(1).kind != TokenKind::End;
        if (separated && !HasBlank(Peek().text) && !IsBetweenParts())
            return Fail(ZTR_DOES_NOT_FIT, Peek(1).start);
        if (separated)
            Advance();
        if (IsNext(TokenKind::TimeMark) && !HasTime())
            Advance();
        else if (!separated)
            return FailHere();
        return true;
    }

    bool HasBlank(const Text& separator) const { return Marks(separator).size() < separator.size(); }

    // What the mask of a date and a time writes between the two.
    bool IsBetweenParts() const
    {
        for (size_t i = 1; i < allFields_.size(); ++i) {
            const Place& one = allFields_[i - 1];
            if (IsTimeField(one) != IsTimeField(allFields_[i]) &&
                Slice(BlankText(edit_), one.End(), allFields_[i].start - one.End()) == Peek().text)
                return true;
        }
        return false;
    }

    bool HasTime() const { return reading_.Of(FieldKind::Hour).number >= 0; }

    // ---- digits alone

    // Nothing but the digits of fields: more of them than one field has, or the last number of the text.
    bool IsRunOf(const std::vector<Place>& fields) const
    {
        const int32_t digits = DigitsOf(fields);
        return fields.size() > 1 && Peek().IsNumber(digits) &&
               (digits > kYearDigits || Peek(2).kind != TokenKind::Number);
    }

    bool TakeRun(const std::vector<Place>& fields)
    {
        const Token run = Peek();
        int32_t from = 0;
        for (const Place& field : fields) {
            const int32_t digits = DigitsIn(field);
            if (!Keep(field.kind, Slice(run.text, from, digits), run.start + from))
                return false;
            from += digits;
        }
        Advance();
        return true;
    }

    // ---- numbers

    bool TakeNumber(FieldKind kind)
    {
        const Token token = Peek();
        if (token.kind != TokenKind::Number)
            return FailHere();
        if (reading_.Of(kind).number >= 0 || !MayHaveDigits(kind, Length(token.text)))
            return Fail(ZTR_DOES_NOT_FIT, token.start);
        Advance();
        return Keep(kind, token.text, token.start);
    }

    bool Keep(FieldKind kind, const Text& digits, int32_t start)
    {
        const int32_t count = Length(digits);
        const int32_t number = kind == FieldKind::Fraction ? MicrosecondsOf(digits) : IntegerOf(digits);
        const Bounds bounds = BoundsOf({kind, 0, std::min(count, kMicroDigits)});
        Field(kind) = {number, count, start};
        if (kind == FieldKind::Fraction || (number >= bounds.least && number <= bounds.most))
            return true;
        return Fail(ZTR_DOES_NOT_EXIST, start);
    }

    // ---- dates

    bool TakeDate()
    {
        if (IsRunOf(dateFields_))
            return TakeRun(dateFields_);
        if (HasMonthName())
            return TakeNamed();
        const bool yearFirst =
            Peek().IsNumber(kYearDigits) && (!StartsWithYear() || Includes(KindsOf(dateFields_), FieldKind::DayOfYear));
        return TakeInOrder(reading_.isCanonical || yearFirst ? YearFirst() : KindsOf(dateFields_));
    }

    bool StartsWithYear() const { return !dateFields_.empty() && dateFields_.front().kind == FieldKind::Year; }

    bool HasMonthName() const
    {
        return std::any_of(tokens_.begin() + static_cast<std::ptrdiff_t>(at_), tokens_.end(),
                           [](const Token& token) { return token.kind == TokenKind::Month; });
    }

    // What the mask shows of a date, the year before the rest; a day of the year has three digits.
    Kinds YearFirst() const
    {
        const Kinds kinds = KindsOf(dateFields_);
        if (reading_.isCanonical)
            return {FieldKind::Year, FieldKind::Month, FieldKind::Day};
        if (Includes(kinds, FieldKind::DayOfYear))
            return HasThreeNumbers() ? Kinds{FieldKind::Year, FieldKind::Month, FieldKind::Day}
                                     : Kinds{FieldKind::Year, FieldKind::DayOfYear};
        Kinds first = {FieldKind::Year};
        for (const FieldKind kind : {FieldKind::Month, FieldKind::Day})
            if (Includes(kinds, kind))
                first.push_back(kind);
        return first;
    }

    // Of a date: behind another sign than its own a time begins.
    bool HasThreeNumbers() const
    {
        return Peek(2).kind == TokenKind::Number && !Peek(2).IsNumber(3) && Peek(4).kind == TokenKind::Number &&
               Peek(1).text == Peek(3).text;
    }

    bool TakeInOrder(const Kinds& kinds)
    {
        for (size_t i = 0; i < kinds.size(); ++i)
            if ((i > 0 && !SkipInDate()) || !TakeNumber(kinds[i]))
                return false;
        return !kinds.empty() || FailHere();
    }

    bool SkipInDate()
    {
        if (!IsNext(TokenKind::Separator))
            return IsNext(TokenKind::Number) || IsNext(TokenKind::Month) || FailHere();
        if ((Peek().HasColon() && !HasColonInDate()) || Peek(1).kind == TokenKind::End)
            return FailHere();
        Advance();
        return true;
    }

    // The name anywhere; of the other two a number of four digits is the year, else they stand in the mask's order.
    bool TakeNamed()
    {
        Kinds kinds = KindsOf(dateFields_);
        if (Includes(kinds, FieldKind::DayOfYear))
            kinds = {FieldKind::Day, FieldKind::Year};
        kinds.erase(std::remove(kinds.begin(), kinds.end(), FieldKind::Month), kinds.end());
        PutYearInItsPlace(kinds);
        size_t next = 0;
        for (size_t i = 0; i <= kinds.size(); ++i) {
            if (i > 0 && !SkipInDate())
                return false;
            if (!(IsNext(TokenKind::Month) ? TakeName() : next < kinds.size() && TakeNumber(kinds[next++])))
                return reading_.reason == 0 ? FailHere() : false;
        }
        return true;
    }

    // Moves the year to where a number of four digits stands among those to come.
    void PutYearInItsPlace(Kinds& kinds) const
    {
        size_t number = 0;
        for (size_t i = 0; number < kinds.size() && Peek(i).kind != TokenKind::End; ++i) {
            if (Peek(i).IsNumber(kYearDigits)) {
                kinds.erase(std::remove(kinds.begin(), kinds.end(), FieldKind::Year), kinds.end());
                kinds.insert(kinds.begin() + static_cast<std::ptrdiff_t>(std::min(number, kinds.size())),
                             FieldKind::Year);
                return;
            }
            number += Peek(i).kind == TokenKind::Number ? 1 : 0;
        }
    }

    bool TakeName()
    {
        const Token token = Peek();
        if (reading_.Of(FieldKind::Month).number >= 0)
            return FailHere();
        Field(FieldKind::Month) = {token.number, 0, token.start};
        Advance();
        return true;
    }

    // ---- times

    bool TakeTime(bool dateFollows)
    {
        TakeHalfBefore();
        if (timeFields_.size() > 1 && IsRunOf(timeFields_))
            return TakeRun(timeFields_) && TakeHalfBehind();
        const Kinds kinds = TimeKinds();
        if (!TakeNumber(kinds.front()))
            return false;
        const Text first = Marks(Peek().text);
        for (size_t i = 1; i < kinds.size() && GoesOn(dateFollows, kinds[i], first); ++i) {
            Advance();
            if (!TakeNumber(kinds[i]))
                return false;
        }
        return TakeHalfBehind() && HasEnoughOfTime();
    }

    // In the mask's order; what the mask does not show comes behind.
    Kinds TimeKinds() const
    {
        Kinds kinds = reading_.isCanonical ? Kinds() : KindsOf(timeFields_);
        for (const FieldKind kind : kTimeOrder)
            if (!Includes(kinds, kind))
                kinds.push_back(kind);
        return kinds;
    }

    // A time has the same mark between its fields, but for its fraction: what comes behind another one is no part of it. Blanks end a
    // time that a date may follow.
    bool GoesOn(bool dateFollows, FieldKind kind, const Text& mark) const
    {
        if (!IsNext(TokenKind::Separator) || Peek(1).kind != TokenKind::Number)
            return false;
        const Text& separator = Peek().text;
        if (HasBlank(separator) && (dateFollows || kind == FieldKind::Fraction))
            return false;
        return kind == FieldKind::Fraction || Marks(separator) == mark;
    }

    void TakeHalfBefore()
    {
        if (!IsNext(TokenKind::Half))
            return;
        KeepHalf();
        if (IsNext(TokenKind::Separator) && !Peek().HasColon())
            Advance();
    }

    bool TakeHalfBehind()
    {
        const bool separated = IsNext(TokenKind::Separator) && Peek(1).kind == TokenKind::Half;
        if (!separated && !IsNext(TokenKind::Half))
            return true;
        if (separated)
            Advance();
        if (reading_.Of(FieldKind::AmPm).number >= 0)
            return FailHere();
        KeepHalf();
        return true;
    }

    void KeepHalf()
    {
        Field(FieldKind::AmPm) = {Peek().number, 0, Peek().start};
        Advance();
    }

    // "1 PM" is a time, 13 alone is one only where the mask has hours and nothing else. A mask without hours takes no bare number.
    bool HasEnoughOfTime()
    {
        const bool minutesShown = Includes(KindsOf(timeFields_), FieldKind::Minute);
        const bool enough = reading_.Of(FieldKind::Minute).number >= 0 || reading_.Of(FieldKind::AmPm).number >= 0;
        if (!enough && timeFields_.empty())
            return Fail(ZTR_DOES_NOT_FIT, reading_.Of(FieldKind::Hour).start);
        return enough || !minutesShown || FailHere();
    }

    // ---- the value

    void Assemble()
    {
        if (reading_.Of(FieldKind::Year).number >= 0 && !AssembleDate())
            return;
        if (HasTime())
            AssembleTime();
    }

    bool AssembleDate()
    {
        DateTimeValue& value = reading_.value;
        const FoundField& year = reading_.Of(FieldKind::Year);
        value.year = static_cast<int16_t>(YearValue(year.number, year.digits));
        if (const FoundField& day = reading_.Of(FieldKind::DayOfYear); day.number >= 0) {
            if (day.number > DaysInYear(kYearDigits, value.year))
                return Fail(ZTR_DOES_NOT_EXIST, day.start);
            DateFromDayOfYear(kYearDigits, day.number, value);
            return true;
        }
        value.month = static_cast<int8_t>(std::max(reading_.Of(FieldKind::Month).number, 1) - 1);
        value.day = static_cast<int8_t>(std::max(reading_.Of(FieldKind::Day).number, 1));
        return Exists(value) || Fail(ZTR_DOES_NOT_EXIST, reading_.Of(FieldKind::Day).start);
    }

    // With a designator an hour is one of the half day, else of the day.
    void AssembleTime()
    {
        DateTimeValue& value = reading_.value;
        const FoundField& hour = reading_.Of(FieldKind::Hour);
        const int32_t half = reading_.Of(FieldKind::AmPm).number;
        int32_t ofTheDay = hour.number;
        if (half >= 0) {
            if (hour.number < 1 || hour.number > kHoursOfHalf) {
                Fail(ZTR_DOES_NOT_EXIST, hour.start);
                return;
            }
            ofTheDay = hour.number % kHoursOfHalf + half * kHoursOfHalf;
        }
        value.hour = static_cast<int8_t>(ofTheDay);
        value.minute = static_cast<int8_t>(std::max(reading_.Of(FieldKind::Minute).number, 0));
        value.second = static_cast<int8_t>(std::max(reading_.Of(FieldKind::Second).number, 0));
        value.microsecond = static_cast<uint32_t>(std::max(reading_.Of(FieldKind::Fraction).number, 0));
    }

    const EditInstance& edit_;
    const std::vector<Token> tokens_;
    const std::vector<Text> literals_;
    std::vector<Place> dateFields_;
    std::vector<Place> timeFields_;
    std::vector<Place> allFields_;
    size_t at_ = 0;
    DateReading reading_;
};

}  // namespace

DateReading ReadDateText(const EditInstance& edit, const Text& text)
{
    return DateReader(edit, text).Read();
}

}  // namespace zte::modern::dates
