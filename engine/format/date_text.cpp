// Reads the fields of a date or time display text, position by position under the mask, into a value.
#include "engine/format/date_text.h"

#include "engine/mask/half_of_day.h"
#include "engine/mask/mask_table.h"
#include "engine/services.h"
#include "engine/values/calendar.h"
#include "engine/values/month_names.h"

namespace zte {

namespace {

constexpr int32_t kFourDigitYears = 4;

// One reading of one text.
class FieldReader {
public:
    FieldReader(const EditInstance& edit, const Text& text, DateTimeValue& value)
        : edit_(edit), text_(text), value_(value)
    {
    }

    // Reads the field at a position. Values out of a field's range are stored as read; the check of the whole refuses them.
    bool Read(int32_t position, FieldKind kind, int32_t run)
    {
        switch (kind) {
        case FieldKind::Day: return Store(position, value_.day);
        case FieldKind::Hour: return ReadHour(position);
        case FieldKind::Minute: return Store(position, value_.minute);
        case FieldKind::Month: return run == 2 ? ReadMonthNumber(position) : ReadMonthName(position);
        case FieldKind::Second: return Store(position, value_.second);
        case FieldKind::Fraction: return ReadFraction(position, run);
        case FieldKind::Year: return ReadYear(position, run);
        case FieldKind::DayOfYear: return ReadDayOfYear(position);
        default: return true;
        }
    }

private:
    static constexpr int32_t kNoDay = INT32_MIN;  // three characters stand for no such number

    // A number of a fixed count of characters; false when they are no number.
    bool ReadNumber(int32_t position, int32_t length, int32_t& number) const
    {
        number = DigitsAt(text_, position, length);
        return number >= 0 || ReadOddNumber(position, length, number);
    }

    // One with a sign or blanks.
    bool ReadOddNumber(int32_t position, int32_t length, int32_t& number) const
    {
        const Text digits = Slice(text_, position, length);
        number = IntegerOf(digits);
        return services::IsNumber(digits.c_str(), *edit_.settings);
    }

    bool Store(int32_t position, int8_t& field)
    {
        int32_t number = 0;
        if (!ReadNumber(position, 2, number))
            return false;
        field = static_cast<int8_t>(number);
        return true;
    }

    // The hour of the 12-hour clock becomes that of the day by the marker shown in the text being read.
    bool ReadHour(int32_t position)
    {
        if (!Store(position, value_.hour))
            return false;
        if (!HasAmPmField(edit_))
            return true;
        const bool isPm = ShownHalf(edit_, text_) == HalfOfDay::Pm;
        if (isPm && value_.hour < 12)
            value_.hour = static_cast<int8_t>(value_.hour + 12);
        else if (!isPm && value_.hour == 12)
            value_.hour = 0;
        return true;
    }

    // Month 00 is stored as month 0 as it is; the day tells an empty date.
    bool ReadMonthNumber(int32_t position)
    {
        int32_t number = 0;
        if (!ReadNumber(position, 2, number))
            return false;
        value_.month = static_cast<int8_t>(number == 0 ? 0 : number - 1);
        return true;
    }

    bool ReadMonthName(int32_t position)
    {
        const int32_t month = MonthFromName(*edit_.settings, Slice(text_, position, 3));
        if (month < 0)
            return false;
        value_.month = static_cast<int8_t>(month);
        return true;
    }

    bool ReadFraction(int32_t position, int32_t run)
    {
        int32_t number = 0;
        if (!ReadNumber(position, run, number))
            return false;
        for (int32_t i = run; i < kMicroDigits; ++i)
            number *= 10;
        value_.microsecond = static_cast<uint32_t>(number);
        return true;
    }

    // A day of the year that was read before the year is turned into month and day now.
    bool ReadYear(int32_t position, int32_t run)
    {
        int32_t number = 0;
        if (!ReadNumber(position, run == 2 ? 2 : 4, number))
            return false;
        value_.year = static_cast<int16_t>(YearValue(number, run));
        if (dayOfYear_ != kNoDay)
            TakeDayOfYear();
        return true;
    }

    // It waits for a year that is still to come.
    bool ReadDayOfYear(int32_t position)
    {
        dayOfYear_ = IntegerAt(text_, position, 3);
        if (HasDate(value_))
            TakeDayOfYear();
        return true;
    }

    // A day that the year does not have makes no date.
    void TakeDayOfYear()
    {
        if (dayOfYear_ >= 1 && dayOfYear_ <= DaysInYear(edit_.yearDigits, value_.year))
            DateFromDayOfYear(edit_.yearDigits, dayOfYear_, value_);
        else
            value_.year = kEmptyDateTime.year;
    }

    const EditInstance& edit_;
    const Text& text_;
    DateTimeValue& value_;
    int32_t dayOfYear_ = kNoDay;
};

// Whether a text handed in may be display text: it has the length of the mask's display or, under an AM/PM mask, shows the
// AM or PM string at that field.
bool LooksLikeDisplayText(const EditInstance& edit, const Text& text)
{
    return HasAmPmField(edit) ? ShownHalf(edit, text).has_value() : Length(text) == edit.displayLength;
}

bool IsPossibleDate(const DateTimeValue& value)
{
    const int32_t year = value.year + kFirstYear;
    if (year < 1 || year > 9999 || value.month < 0 || value.month >= kMonths || value.day < 0)
        return false;
    return value.day <= MonthRowOf(kFourDigitYears, value.year, value.month).days;
}

bool IsPossibleTime(const DateTimeValue& value)
{
    return value.hour >= 0 && value.hour < 24 && value.minute >= 0 && value.minute < 60 && value.second >= 0 &&
           value.second < 60 && value.microsecond < uint32_t{kMicroseconds};
}

void DropDate(DateTimeValue& value)
{
    value.year = kEmptyDateTime.year;
    value.month = value.day = 0;
}

void DropTime(DateTimeValue& value)
{
    value.hour = kEmptyDateTime.hour;
    value.minute = value.second = 0;
    value.microsecond = 0;
}

}  // namespace

bool ReadFields(const EditInstance& edit, const Text& text, DateTimeValue& value, int32_t escapeWidth)
{
    value = kEmptyDateTime;
    FieldReader reader(edit, text, value);
    const int32_t end = Length(text) > kMaxMaskLength ? kMaxMaskLength + 1 : Length(text);
    for (int32_t position = 0; position < end;) {
        const MaskPosition& mask = PositionOf(edit, text, position);
        if (!mask.IsEditable()) {
            position += mask.escaped ? escapeWidth : 1;
            continue;
        }
        const int32_t run = mask.runAfter + 1;
        if (!reader.Read(position, mask.kind, run))
            return false;
        position += run;
    }
    return true;
}

bool CheckFields(int32_t dataType, DateTimeValue& value)
{
    const bool hasDate = dataType != DT_TIME;
    const bool hasTime = dataType == DT_TIME || (dataType == DT_DATETIME && HasTime(value));
    if ((hasDate && !IsPossibleDate(value)) || (hasTime && !IsPossibleTime(value))) {
        value = kEmptyDateTime;
        return false;
    }
    if (!hasDate)
        DropDate(value);
    else if (value.day == 0)
        value.day = 1;
    if (!hasTime)
        DropTime(value);
    return true;
}

bool ReadDisplayText(const EditInstance& edit, const Text& text, DateTimeValue& value, int32_t escapeWidth)
{
    return LooksLikeDisplayText(edit, text) && ReadFields(edit, text, value, escapeWidth) &&
           CheckFields(edit.dataType, value);
}

bool ParseCanonical(const EditInstance& edit, const Char* text, DateTimeValue& value)
{
    const int32_t kind = edit.dataType == DT_DATE   ? DATETIME_KIND_DATE
                         : edit.dataType == DT_TIME ? DATETIME_KIND_TIME
                                                    : DATETIME_KIND_BOTH;
    value = kEmptyDateTime;
    return services::ParseDateTime(value, text, kind, *edit.settings);
}

}  // namespace zte
