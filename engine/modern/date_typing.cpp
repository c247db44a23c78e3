// Characters typed into dates and times, field by field.
#include <algorithm>

#include "engine/modern/date_fields.h"
#include "engine/text/ascii.h"

namespace zte::modern::dates {

namespace {

// Digits from a field's first position on that go on as a number in its bounds; Full: no further digit fits behind them.
enum class Prefix : uint8_t { Refused, Open, Full };

Prefix Judge(const Place& place, int32_t digits, int32_t number)
{
    const Bounds bounds = BoundsOf(place);
    if (number > bounds.most)
        return Prefix::Refused;
    if (digits == place.length)
        return number < bounds.least ? Prefix::Refused : Prefix::Full;
    return number * 10 <= bounds.most ? Prefix::Open : Prefix::Full;
}

// A name of a month stands for two digits while it is typed as a number.
Place AsDigits(const Place& place)
{
    return IsMonthName(place) ? Place{place.kind, place.start, 2} : place;
}

int32_t DigitsBefore(const Text& text, const Place& place, int32_t position)
{
    int32_t count = 0;
    while (place.start + count < position && IsDigit(At(text, place.start + count)))
        ++count;
    return count;
}

// One printable character on its way into a content.
class Typist {
public:
    Typist(const EditInstance& edit, const Content& content, Char typed)
        : edit_(edit), content_(content), typed_(typed), layout_(edit, content.text)
    {
    }

    Outcome Type()
    {
        if (TakeRest() || TakeCarried())
            return Accepted(content_);
        const Place* place = layout_.At(Caret());
        if (!place)
            return TypeBesides();
        return TypeInto(*place);
    }

private:
    int32_t Caret() const { return content_.Caret(); }
    Char Upper(Char c) const { return edit_.settings->letters->upper(c); }
    bool IsLetter() const { return edit_.settings->letters->isLetter(typed_); }

    Outcome Result() const
    {
        Outcome outcome = Accepted(content_);
        outcome.isFull = full_;
        return outcome;
    }

    // The letters that complete a month's name, or the designator just chosen, change nothing.
    bool TakeRest()
    {
        Text& rest = content_.typing.rest;
        if (Upper(At(rest, 0)) != Upper(typed_))
            return TakeDesignator();
        rest.erase(0, 1);
        return true;
    }

    // On with the designator of which letters have been typed.
    bool TakeDesignator()
    {
        const Text letters = content_.typing.prefix + typed_;
        return Length(letters) > 1 && Choose(letters);
    }

    // The literals that typing has just passed may be typed all the same, in their order; any separator stands for all of them.
    bool TakeCarried()
    {
        Typing& typing = content_.typing;
        if (typing.carriedFrom >= typing.carriedTo)
            return false;
        if (At(content_.text, typing.carriedFrom) == typed_) {
            ++typing.carriedFrom;
            return true;
        }
        if (!IsSeparator() || TakesAnything(Caret()))
            return false;
        content_.typing = {};
        return true;
    }

    bool TakesAnything(int32_t position) const
    {
        const Place* place = layout_.At(position);
        return place && !IsPart(*place);
    }

    // A literal of the mask that stands further on, or no letter and no digit.
    bool IsSeparator() const
    {
        if (IsDigit(typed_))
            return false;
        return !IsLetter() || IsLiteralFrom(std::max(Caret() - 1, 0));
    }

    bool IsLiteralFrom(int32_t position) const
    {
        for (; position < Length(content_.text); ++position)
            if (!layout_.At(position) && At(content_.text, position) == typed_)
                return true;
        return false;
    }

    // On a literal, or behind everything.
    Outcome TypeBesides()
    {
        const Place* next = layout_.Next(Caret());
        if (next && !IsSeparator()) {
            MoveTo(next->start);
            return TypeInto(*next);
        }
        if (IsDigit(typed_))
            return Refused(ZTR_FULL);
        if (!next && Choose(Text(1, typed_)))
            return Result();
        if (!next && !IsSeparator())
            return Refused(ZTR_WRONG_KIND);
        return Separate();
    }

    Outcome TypeInto(const Place& place)
    {
        if (!IsPart(place))
            return TypeFreely(place);
        if (IsMonthName(place) && IsLetter() && TypeLetter(place))
            return Result();
        if (Choose(Text(1, typed_)))
            return Result();
        if (IsDigit(typed_))
            return place.kind == FieldKind::AmPm ? TypeBehind(place) : TypeDigit(place);
        return IsSeparator() ? Separate() : Refused(ZTR_WRONG_KIND);
    }

    // A digit at the designator is the next field's.
    Outcome TypeBehind(const Place& marker)
    {
        const Place* next = layout_.Next(marker.End());
        return next && IsPart(*next) ? TypeDigit(*next) : Refused(ZTR_WRONG_KIND);
    }

    // Free text takes every character.
    Outcome TypeFreely(const Place& place)
    {
        content_.text[static_cast<size_t>(Caret())] = FreeCharacter();
        content_.typing = {};
        GoOn(place, Caret() + 1);
        return Result();
    }

    Char FreeCharacter() const
    {
        switch (PositionOf(edit_, content_.text, Caret()).kind) {
        case FieldKind::UpperCase: return services::ToUpper(typed_, *edit_.settings);
        case FieldKind::LowerCase: return services::ToLower(typed_, *edit_.settings);
        default: return typed_;
        }
    }

    // ---- digits

    Outcome TypeDigit(const Place& field)
    {
        const Place place = AsDigits(field);
        const int32_t before = DigitsBefore(content_.text, place, Caret());
        Text digits = Slice(content_.text, place.start, before) + typed_;
        Text all = digits;
        if (before > 0)
            all += KeptBehind(place, before + 1);
        if (Judge(place, Length(all), IntegerOf(all)) == Prefix::Refused)
            all = digits;
        const Prefix prefix = Judge(place, Length(all), IntegerOf(all));
        if (prefix == Prefix::Refused)
            return Refused(ZTR_OUT_OF_BOUNDS);
        content_.typing = {};
        const int32_t caret = place.start + Length(digits);
        if (prefix == Prefix::Open || Length(digits) < Length(all))
            Put(field, all, caret);
        else
            Fill(field, IntegerOf(all));
        return Result();
    }

    // What stands behind the digit typed stays in a field that is typed into from its middle.
    Text KeptBehind(const Place& place, int32_t from) const
    {
        const Text behind = Slice(content_.text, place.start + from, place.length - from);
        return behind.substr(
            0, static_cast<size_t>(std::find_if_not(behind.begin(), behind.end(), IsDigit) - behind.begin()));
    }

    void Put(const Place& place, const Text& part, int32_t caret)
    {
        PutAt(content_.text, place, part);
        MoveTo(caret);
    }

    void Fill(const Place& place, int32_t number)
    {
        PutNumber(edit_, content_.text, place, number);
        MoveTo(place.End());
        if (place.kind == FieldKind::Hour)
            SettleHour(edit_, content_);
        GoOn(place, content_.Caret());
    }

    // ---- letters

    // The letters that decide complete the name.
    bool TypeLetter(const Place& place)
    {
        const Text letters = LettersBefore(place) + typed_;
        const MonthsFound found = FindMonths(edit_, place, letters);
        if (found.count == 0)
            return false;
        const Text name = MonthShown(edit_, place, found.first);
        content_.typing = {};
        if (found.count > 1 && letters.size() < name.size()) {
            Put(place, name.substr(0, letters.size()), place.start + Length(letters));
            return true;
        }
        Fill(place, found.first);
        content_.typing.rest = name.substr(letters.size());
        return true;
    }

    Text LettersBefore(const Place& place) const
    {
        const Text before = Slice(content_.text, place.start, Caret() - place.start);
        const bool letters = std::none_of(before.begin(), before.end(), [](Char c) { return IsDigit(c) || c == ' '; });
        return letters ? before : Text();
    }

    // Chooses the half whose designator begins with the letters, wherever the caret is; it stays there but for the designator's own place.
    bool Choose(const Text& letters)
    {
        const Place* marker = layout_.Of(FieldKind::AmPm);
        if (!marker)
            return false;
        const std::optional<HalfOfDay> half = HalfOf(letters);
        if (!half)
            return false;
        const Place place = *marker;
        const bool inside = place.Holds(Caret()) || (Length(letters) == 1 && Caret() == place.End());
        PutHalf(edit_, content_, *half);
        if (inside)
            GoOn(place, place.start + static_cast<int32_t>(TextLength(DesignatorOf(*edit_.settings, *half))));
        content_.typing.rest.clear();
        content_.typing.prefix = letters;
        return true;
    }

    // A single letter that both begin with chooses the one that is not shown.
    std::optional<HalfOfDay> HalfOf(const Text& letters) const
    {
        const bool am = Begins(HalfOfDay::Am, letters);
        const bool pm = Begins(HalfOfDay::Pm, letters);
        const std::optional<HalfOfDay> shown = ShownHalf(edit_, content_.text);
        if (am && pm && letters.size() > 1 && shown)
            return shown;
        if (am && pm)
            return shown == HalfOfDay::Am ? HalfOfDay::Pm : HalfOfDay::Am;
        if (am || pm)
            return am ? HalfOfDay::Am : HalfOfDay::Pm;
        return std::nullopt;
    }

    bool Begins(HalfOfDay half, const Text& letters) const
    {
        const Text designator = DesignatorOf(*edit_.settings, half);
        return letters.size() <= designator.size() &&
               std::equal(letters.begin(), letters.end(), designator.begin(),
                          [this](Char one, Char other) { return Upper(one) == Upper(other); });
    }

    // ---- separators

    // Ends the field and goes to the next one, over its literals, of which the first ones may be the characters typed.
    Outcome Separate()
    {
        const Place* place = layout_.Around(Caret());
        if (place && !place->Holds(Caret()) && layout_.Next(Caret()))
            place = nullptr;  // on the literal behind it: it has been left
        if (IsLeadingLiteral(place))
            return Accepted(content_);
        const Text before = content_.text;
        if (place)
            Complete(edit_, content_, *place);
        const Layout after(edit_, content_.text);
        const Place* next = after.Next(place ? std::max(place->End(), Caret()) : Caret());
        if (!next)
            return SeparateAtEnd(after, before != content_.text);
        PassTo(place ? place->End() : Caret(), next->start);
        return Result();
    }

    // A literal before the first field, typed where the field begins.
    bool IsLeadingLiteral(const Place* place) const
    {
        if (!place || place->start != layout_.First() || Caret() != place->start)
            return false;
        return Find(content_.text.substr(0, static_cast<size_t>(place->start)), typed_) >= 0;
    }

    Outcome SeparateAtEnd(const Layout& after, bool completed)
    {
        if (after.Places().empty())  // a mask of literals alone
            return Refused(ZTR_WRONG_KIND);
        const int32_t end = after.End();
        const bool isLiteral = At(content_.text, end) == typed_;
        if (!completed && !(isLiteral && Caret() > after.Places().back().start))
            return Refused(ZTR_WRONG_KIND);
        full_ = completed;
        PassTo(end, Length(content_.text));
        return Result();
    }

    // Over the literals from the end of a field on; the character typed is the first of them, or stands for all.
    void PassTo(int32_t from, int32_t to)
    {
        content_.typing = {};
        if (At(content_.text, from) == typed_)
            content_.typing = {from + 1, to, {}, {}};
        MoveTo(to);
    }

    // ---- the caret

    void MoveTo(int32_t caret) { content_.selection = {caret, caret}; }

    // Behind the last position of a field, over the literals that follow.
    void GoOn(const Place& place, int32_t caret)
    {
        MoveTo(caret);
        if (caret < place.End() && place.kind != FieldKind::AmPm)
            return;
        const Layout after(edit_, content_.text);
        const Place* next = after.Next(caret);
        full_ = !next;
        const int32_t to = next ? next->start : Length(content_.text);
        content_.typing = {caret, to, {}, {}};
        MoveTo(to);
    }

    const EditInstance& edit_;
    Content content_;
    const Char typed_;
    const Layout layout_;
    bool full_ = false;
};

// A text that the mask does not show gives way to the blank one.
Content Start(const EditInstance& edit, const Content& content)
{
    if (!Layout(edit, content.text).Fits()) {
        Content blank;
        blank.text = BlankText(edit);
        blank.selection = {Layout(edit, blank.text).First(), Layout(edit, blank.text).First()};
        return blank;
    }
    return content.selection.IsEmpty() ? content : WithoutSelection(edit, content);
}

}  // namespace

Outcome Type(const EditInstance& edit, const Content& content, Char typed)
{
    return Typist(edit, Start(edit, content), typed).Type();
}

}  // namespace zte::modern::dates
