// Reads the fields of a date or time display text, position by position under the mask, into a value.
#include "format/date_walk.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "intl/regional_settings.h"
#include "mask/calendar.h"
#include "mask/mask_items.h"
#include "mask/mask_text.h"
#include "mask/month_names.h"
#include "shared/ascii.h"

namespace zte {

namespace {

constexpr int32_t kMicroDigits = 6;

// Fields that have been read so far.
struct FieldsSeen {
    bool hour;
    bool year;
};

bool ShowsAt(const char* text, int32_t position, const char* marker)
{
    if (strnlen(text, static_cast<size_t>(position)) < static_cast<size_t>(position))
        return false;
    return std::strncmp(text + position, marker, std::strlen(marker)) == 0;
}

// The first characters of a field, as text of its own.
std::string Cut(const char* text, int32_t length)
{
    return {text, strnlen(text, static_cast<size_t>(length))};
}

// Reads a number of a fixed count of characters; false when they are none.
bool ReadNumber(const char* text, int32_t length, int32_t& number)
{
    const std::string digits = Cut(text, length);
    if (!SharedIsNumber(digits.c_str()))
        return false;
    number = std::atoi(digits.c_str());
    return true;
}

// Values out of a field's range are stored as read; the check of the whole date refuses them.
template <typename T>
bool StoreNumber(const char* text, int32_t length, T& field, int32_t base = 0)
{
    int32_t number = 0;
    if (!ReadNumber(text, length, number))
        return false;
    field = static_cast<T>(number - base);
    return true;
}

// Month 00 is stored as month 0 as it is; the day tells an empty date.
bool ReadMonthNumber(const char* text, DateTimeValue& value)
{
    int32_t number = 0;
    if (!ReadNumber(text, 2, number))
        return false;
    value.month = static_cast<int8_t>(number == 0 ? 0 : number - 1);
    return true;
}

bool ReadMonthName(const char* text, DateTimeValue& value)
{
    const int32_t month = MonthFromName(Cut(text, 3).c_str());
    value.month = month < 0 ? value.month : static_cast<int8_t>(month);
    return month >= 0;
}

bool ReadFraction(const char* text, int32_t run, DateTimeValue& value)
{
    int32_t number = 0;
    if (!ReadNumber(text, run, number))
        return false;
    for (int32_t i = run; i < kMicroDigits; ++i)
        number *= 10;
    value.microsecond = static_cast<uint32_t>(number);
    return true;
}

int32_t YearValue(int32_t number, int32_t run)
{
    if (run != 2)
        return number - 1900;
    return number < 50 ? number + 100 : number;
}

// A day of the year that was read before the year is turned into month and day now.
bool ReadYear(EditInstance& edit, const char* text, int32_t run, FieldsSeen& seen, DateTimeValue& value)
{
    int32_t number = 0;
    if (!ReadNumber(text, run == 2 ? 2 : 4, number))
        return false;
    value.year = static_cast<int16_t>(YearValue(number, run));
    seen.year = true;
    if (Has(edit, DOY_PENDING))
        DateFromDayOfYear(edit.yearDigits, static_cast<int32_t>(edit.savedDatePart), value);
    SetFlag(edit, DOY_PENDING, false);
    return true;
}

bool ReadDayOfYear(EditInstance& edit, const char* text, const FieldsSeen& seen, DateTimeValue& value)
{
    const int32_t day = std::atoi(Cut(text, 3).c_str());
    edit.savedDatePart = static_cast<uint32_t>(day);
    if (seen.year)
        DateFromDayOfYear(edit.yearDigits, day, value);
    else
        SetFlag(edit, DOY_PENDING, true);
    return true;
}

// The hour of the 12-hour clock becomes that of the day by the marker shown in the text being read.
void ApplyAmPm(bool isPm, DateTimeValue& value)
{
    if (isPm && value.hour < 12)
        value.hour = static_cast<int8_t>(value.hour + 12);
    else if (!isPm && value.hour == 12)
        value.hour = 0;
}

// The text being walked: an hour looks ahead in it for the marker.
struct WalkedText {
    const char* whole;
    const char* field;
};

bool ReadHour(const EditInstance& edit, WalkedText text, FieldsSeen& seen, DateTimeValue& value)
{
    if (!StoreNumber(text.field, 2, value.hour))
        return false;
    seen.hour = true;
    if (Has(edit, AMPM))
        ApplyAmPm(ShowsAt(text.whole, edit.ampmPos, regionalSettings.pmString), value);
    return true;
}

bool ReadField(EditInstance& edit, DateTimeValue& value, WalkedText text, FieldsSeen& seen, char letter, int32_t run)
{
    switch (letter) {
    case 'D': return StoreNumber(text.field, 2, value.day);
    case 'H': return ReadHour(edit, text, seen, value);
    case 'M':
        if (seen.hour)
            return StoreNumber(text.field, 2, value.minute);
        return run == 2 ? ReadMonthNumber(text.field, value) : ReadMonthName(text.field, value);
    case 'S': return StoreNumber(text.field, 2, value.second);
    case 'F': return ReadFraction(text.field, run, value);
    case 'Y': return ReadYear(edit, text.field, run, seen, value);
    case 'J': return ReadDayOfYear(edit, text.field, seen, value);
    default: return true;
    }
}

bool IsFieldAt(const EditInstance& edit, const std::string& text, int32_t position)
{
    const MaskChar mask = MaskCharAt(edit, text, position);
    return mask.value != '~' && FindMaskItem(mask.value, edit.dataType);
}

}  // namespace

bool WalkDateText(EditInstance& edit, const char* text, DateTimeValue& value, int32_t escapeWidth)
{
    value = kEmptyDateTime;
    SetFlag(edit, DOY_PENDING, false);
    FieldsSeen seen{};
    const std::string shown(text, strnlen(text, kMaxMaskLength + 1));
    for (int32_t position = 0; position < static_cast<int32_t>(shown.size());) {
        const char* mask = MaskTextAt(edit.mask, position);
        if (!IsFieldAt(edit, shown, position)) {
            position += *mask == '~' && !IsInsideAmPmField(edit, position) ? escapeWidth : 1;
            continue;
        }
        const int32_t run = RunLength(mask);
        if (!ReadField(edit, value, {shown.c_str(), shown.c_str() + position}, seen, AsciiUpper(*mask), run))
            return false;
        position += run > 0 ? run : 1;
    }
    return true;
}

bool CheckByCanonicalText(int32_t dataType, DateTimeValue& value)
{
    char date[32];
    char time[48];
    std::snprintf(date, sizeof date, "%4.4d-%2.2d-%2.2d", value.year + 1900, value.month + 1,
                  value.day == 0 ? 1 : value.day);
    std::snprintf(time, sizeof time, "%2.2d:%2.2d:%2.2d:%6.6lu", value.hour, value.minute, value.second,
                  static_cast<unsigned long>(value.microsecond));
    std::string text = dataType == DT_TIME ? time : date;
    if (dataType == DT_DATETIME && value.hour != DATETIME_NO_TIME)
        text = text + ' ' + time;
    return ParseCanonical(dataType, text.c_str(), value) == 0;
}

bool LooksLikeDisplayText(const EditInstance& edit, const char* text)
{
    if (HasAmPmField(edit))
        return ShowsAt(text, edit.ampmPos, regionalSettings.amString) ||
               ShowsAt(text, edit.ampmPos, regionalSettings.pmString);
    return static_cast<int32_t>(strnlen(text, kMaxMaskLength + 1)) == edit.displayLength;
}

int32_t ParseCanonical(int32_t dataType, const char* text, DateTimeValue& value)
{
    const int32_t kind = dataType == DT_DATE   ? DATETIME_KIND_DATE
                         : dataType == DT_TIME ? DATETIME_KIND_TIME
                                               : DATETIME_KIND_BOTH;
    value = kEmptyDateTime;
    return SharedParseDateTime(&value, text, kind);
}

}  // namespace zte
