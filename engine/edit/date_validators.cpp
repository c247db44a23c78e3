// Validators of the date fields. A digit that cannot begin its field is padded with a 0 before it; one that makes the digit
// behind it impossible brings a 0 there; one that would make a day too large for its month is refused or swallowed.
#include "engine/edit/validators.h"
#include "engine/format/field_text.h"
#include "engine/format/read_back.h"
#include "engine/text/ascii.h"
#include "engine/values/calendar.h"
#include "engine/values/month_names.h"

namespace zte {

namespace {

constexpr int32_t kFebruary = 1;

// A text set from outside may show something else than digits.
int32_t TwoDigitNumber(Char first, Char second)
{
    if (IsDigit(first) && IsDigit(second))
        return DigitValue(first) * 10 + DigitValue(second);
    const Char digits[] = {first, second, Char{}};
    return IntegerOf(digits);
}

// The year that a last digit would make: the first character printed of the shown year's value (95 or 104) and the digit. It is
// the year meant only where two digits make the year; kept, leap days have always been checked against it.
int32_t CandidateYear(const DateTimeValue& shown, Char digit)
{
    auto printed = static_cast<uint32_t>(int32_t{shown.year});
    while (printed >= 10)
        printed /= 10;
    return TwoDigitNumber(DigitChar(static_cast<int32_t>(printed)), digit);
}

bool CompletesYear(const Entry& entry)
{
    return (entry.FieldLength() <= 2 && entry.Index() == 1) || entry.Index() == 3;
}

bool LosesLeapDay(const Entry& entry)
{
    const DateTimeValue shown = ReadShownDateTime(entry.edit, entry.text);
    return shown.month == kFebruary && shown.day > 28 &&
           !IsLeapYear(entry.edit.yearDigits, CandidateYear(shown, entry.typed));
}

Verdict PlaceMonthDigit(const Entry& entry)
{
    if (entry.Index() > 0)
        return entry.Before() == '1' && entry.typed > '2' ? Verdict::Refused() : Verdict::Placing(entry.typed);
    if (entry.typed > '1')
        return Verdict::Padding({Char{'0'}, entry.typed});
    if (entry.After() > '2')
        return Verdict::Padding({entry.typed, Char{'0'}});
    return Verdict::Placing(entry.typed);
}

// The month that the field will show once the verdict has been carried out.
int32_t MonthToBe(const Entry& entry, const Verdict& verdict)
{
    if (entry.Index() > 0)
        return TwoDigitNumber(entry.Before(), verdict.placed[0]);
    return TwoDigitNumber(verdict.placed[0], verdict.padded ? verdict.placed[1] : entry.After());
}

bool IsDayTooLarge(const Entry& entry, const DateTimeValue& shown, int32_t month)
{
    return shown.day > MonthRowOf(entry.edit.yearDigits, shown.year, month).days;
}

// A month that is too short for the day shown swallows the digit: nothing changes and nothing beeps.
Verdict ValidateMonthDigit(const Entry& entry)
{
    const Verdict verdict = IsDigit(entry.typed) ? PlaceMonthDigit(entry) : Verdict::Refused();
    if (!verdict.accepted)
        return verdict;
    const int32_t month = MonthToBe(entry, verdict);
    if (month != 0 && IsDayTooLarge(entry, ReadShownDateTime(entry.edit, entry.text), month - 1))
        return Verdict::Swallowed();
    return verdict;
}

// The letters of the field before the caret and the one typed.
Text NamePrefix(const Entry& entry)
{
    Text prefix;
    for (int32_t i = entry.Index(); i > 0; --i)
        prefix += At(entry.text, entry.position - i);
    return prefix + entry.typed;
}

// Goes on to later months with the same letters while the month is too short for the day shown, at the first two letters.
Verdict ValidateMonthName(const Entry& entry)
{
    const Settings& settings = *entry.edit.settings;
    const int32_t index = entry.Index();
    int32_t month = MonthByPrefix(settings, NamePrefix(entry), 0);
    if (month < 0)
        return Verdict::Refused();
    const Text start = MonthName(settings, month).substr(0, static_cast<size_t>(index) + 1);
    const DateTimeValue shown = ReadShownDateTime(entry.edit, entry.text);
    while (month >= 0 && IsDayTooLarge(entry, shown, month))
        month = index >= 2 ? -1 : MonthByPrefix(settings, start, month + 1);
    if (month < 0)
        return Verdict::Swallowed();
    const Text name = MonthName(settings, month);
    return Verdict::Padding(Slice(name, index, Length(name)));
}

// Days of the month in the text, in whose year February has 28 or 29; any month has up to 31 while none is readable.
int32_t DayLimit(const Entry& entry)
{
    const int32_t month = MonthFromText(entry.edit, entry.text) - 1;
    const int32_t year = month == kFebruary ? YearFromText(entry.edit, entry.text) : 0;
    return month < 0 ? 31 : MonthRowOf(entry.edit.yearDigits, year, month).days;
}

int32_t DayOfYearToBe(const Entry& entry)
{
    Text digits;
    for (int32_t i = 0; i < 3; ++i)
        digits += i == entry.Index() ? entry.typed : At(entry.text, entry.position - entry.Index() + i);
    return IntegerOf(digits);
}

}  // namespace

Verdict ValidateYear(const Entry& entry)
{
    if (!IsDigit(entry.typed) || (CompletesYear(entry) && LosesLeapDay(entry)))
        return Verdict::Refused();
    if (entry.FieldLength() > 2 && entry.Index() == 0 && entry.typed > '2')
        return Verdict::Refused();
    return Verdict::Placing(entry.typed);
}

Verdict ValidateMonth(const Entry& entry)
{
    return entry.FieldLength() == 3 ? ValidateMonthName(entry) : ValidateMonthDigit(entry);
}

Verdict ValidateDay(const Entry& entry)
{
    if (!IsDigit(entry.typed))
        return Verdict::Refused();
    const int32_t limit = DayLimit(entry);
    if (entry.Index() > 0)
        return TwoDigitNumber(entry.Before(), entry.typed) <= limit ? Verdict::Placing(entry.typed)
                                                                    : Verdict::Refused();
    if (TwoDigitNumber(entry.typed, entry.After()) <= limit)
        return Verdict::Placing(entry.typed);
    if (TwoDigitNumber(entry.typed, '0') > limit)
        return Verdict::Padding({Char{'0'}, entry.typed});
    return Verdict::Padding({entry.typed, Char{'0'}});
}

// Two characters are not marked as padded, unlike those of the other fields, so that the caret goes behind both; kept.
Verdict ValidateDayOfYear(const Entry& entry)
{
    if (!IsDigit(entry.typed))
        return Verdict::Refused();
    if (DayOfYearToBe(entry) <= DaysInYear(entry.edit.yearDigits, YearFromText(entry.edit, entry.text)))
        return Verdict::Placing(entry.typed);
    return entry.Index() >= 2 ? Verdict::Refused() : Verdict::Placing(Text{Char{'0'}, entry.typed});
}

}  // namespace zte
