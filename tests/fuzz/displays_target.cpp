// Values shown under a mask and read back; texts from outside read under it. Bytes: settings, type, the mask's line, then lines: values as
// text, each shown, read and shown again, and each read as a display.
#include <cstdio>
#include <cstring>
#include <optional>

#include "engine/format/data.h"
#include "engine/format/read_back.h"
#include "engine/heap_block.h"
#include "engine/mask/mask_table.h"
#include "engine/values/calendar.h"
#include "engine/values/date_time.h"
#include "tests/fuzz/bytes.h"
#include "tests/fuzz/laws.h"
#include "tests/fuzz/player.h"
#include "tests/fuzz/promises.h"
#include "tests/fuzz/regional.h"
#include "tests/fuzz/targets.h"

namespace zttest {
namespace {

using zte::EditInstance;
using zte::FieldKind;
using zte::Text;

// How many positions of a kind a mask has; 0 where they do not stand in one piece.
int32_t LengthOf(const EditInstance& edit, FieldKind kind)
{
    int32_t count = 0;
    int32_t first = -1;
    int32_t last = -1;
    for (int32_t at = 0; at < edit.table->count; ++at) {
        if (edit.table->positions[at].kind != kind)
            continue;
        first = first < 0 ? at : first;
        last = at;
        ++count;
    }
    return last - first + 1 == count ? count : 0;
}

bool HasEscapes(const EditInstance& edit)
{
    return zte::Find(edit.mask, '~') >= 0;
}

bool ShowsDate(const EditInstance& edit)
{
    const bool day = LengthOf(edit, FieldKind::Month) > 0 && LengthOf(edit, FieldKind::Day) > 0;
    return LengthOf(edit, FieldKind::Year) > 0 && (day || LengthOf(edit, FieldKind::DayOfYear) > 0);
}

bool ShowsYear(const EditInstance& edit, int32_t year)
{
    return LengthOf(edit, FieldKind::Year) == 4 || (year >= 1950 && year <= 2049);
}

// A value of the date's fields that the mask has room for, from any four numbers.
DateTimeValue PossibleDate(const EditInstance& edit, Bytes& bytes)
{
    DateTimeValue value = zte::kEmptyDateTime;
    const uint32_t number = bytes.Take32();
    const bool isLong = LengthOf(edit, FieldKind::Year) == 4;
    value.year = static_cast<int16_t>(isLong ? static_cast<int32_t>(number % 9999) + 1 - 1900
                                             : static_cast<int32_t>(number % 100) + 50);
    value.month = static_cast<int8_t>(number / 10000 % 12);
    value.day = static_cast<int8_t>(1 + number / 120000 % static_cast<uint32_t>(zte::DaysInMonth(4, value)));
    return value;
}

// Fields that the mask lacks read as 0, and so they are set.
void AddTime(const EditInstance& edit, Bytes& bytes, DateTimeValue& value)
{
    const uint32_t number = bytes.Take32();
    const auto field = [&](FieldKind kind, uint32_t part) {
        return static_cast<int8_t>(LengthOf(edit, kind) > 0 ? part : 0);
    };
    value.hour = field(FieldKind::Hour, number % 24);
    value.minute = field(FieldKind::Minute, number / 24 % 60);
    value.second = field(FieldKind::Second, number / 1440 % 60);
    value.microsecond = 0;
    uint32_t unit = 1000000;
    for (int32_t digits = LengthOf(edit, FieldKind::Fraction); digits > 0; --digits)
        unit /= 10;
    if (unit < 1000000)
        value.microsecond = number / 86400 % (1000000 / unit) * unit;
}

Text Describe(const DateTimeValue& value)
{
    char text[80];
    std::snprintf(text, sizeof text, "%d-%02d-%02d %02d:%02d:%02d.%06u", value.year + 1900, value.month + 1, value.day, value.hour,
                  value.minute, value.second, value.microsecond);
    return text;
}

// Midnight, the one time that reads as no time.
bool ReadsAsNoTime(const EditInstance& edit, const DateTimeValue& value)
{
    return edit.dataType == DT_TIME && value.hour == 0 && value.minute == 0 && value.second == 0 && value.microsecond == 0;
}

// A value that the mask can show is read back as it was set.
void CheckValue(PlayedControl& played, const DateTimeValue& value)
{
    EditInstance& edit = played.Control().Record();
    CountStep(2);
    zte::SetData(edit, &value);
    const Text shown = played.Control().Edit().Shown();
    const auto read = zte::Own(edit, static_cast<DateTimeValue*>(zte::GetData(edit)));
    if (ReadsAsNoTime(edit, value)) {
        Demand(!read, "midnight reads as no time", shown);
        return;
    }
    Demand(static_cast<bool>(read), "a value shown is read", shown, Describe(value));
    Demand(std::memcmp(read.get(), &value, sizeof value) == 0, "a value set is the value read", Describe(*read), Describe(value) + " as " + shown + " under " + edit.mask);
}

// Which values a mask can show: those of its fields, where each field stands once and is read where it is shown. Behind escapes fields
// are measured elsewhere, which is kept.
bool CanShowValues(const EditInstance& edit)
{
    if (!zte::IsDateOrTime(edit.dataType) || HasEscapes(edit))
        return false;
    if (zte::HasAmPmField(edit) && !CanTellHalves(*edit.settings))
        return false;
    if (edit.dataType != DT_TIME && !ShowsDate(edit))
        return false;
    const bool hasHour = LengthOf(edit, FieldKind::Hour) == 2;
    return edit.dataType == DT_DATE || hasHour;
}

void CheckValues(PlayedControl& played, Bytes bytes)
{
    const EditInstance& edit = played.Control().Record();
    if (!CanShowValues(edit))
        return;
    while (!bytes.IsEmpty()) {
        DateTimeValue value = zte::kEmptyDateTime;
        if (edit.dataType != DT_TIME)
            value = PossibleDate(edit, bytes);
        if (edit.dataType != DT_DATE)
            AddTime(edit, bytes, value);
        if (edit.dataType == DT_TIME || ShowsYear(edit, value.year + 1900))
            CheckValue(played, value);
    }
}

// Digits that the mask has fraction places for, without zeros at the ends.
Text PossibleNumber(const EditInstance& edit, Bytes& bytes)
{
    const int32_t places = edit.table->number.shape.fractionPlaces + (edit.table->number.shape.percent ? 2 : 0);
    const bool negative = bytes.TakeBool();
    Text integer;
    for (uint32_t digits = bytes.TakeBelow(13); digits > 0; --digits)
        integer += static_cast<zte::Char>('0' + bytes.TakeBelow(10));
    Text fraction;
    const int32_t most = edit.dataType == DT_DECIMAL ? 15 : 15 - zte::Length(integer);
    for (int32_t digits = static_cast<int32_t>(bytes.TakeBelow(16)) % (1 + std::min(places, std::max(most, 0))); digits > 0; --digits)
        fraction += static_cast<zte::Char>('0' + bytes.TakeBelow(10));
    integer.erase(0, std::min(integer.find_first_not_of('0'), integer.size()));
    fraction.erase(fraction.find_last_not_of('0') + 1);
    Text number = negative && !(integer + fraction).empty() ? "-" : "";
    number += integer.empty() ? "0" : integer;
    return fraction.empty() ? number : number + "." + fraction;
}

// Without zeros that mean nothing.
Text Normalized(Text number, const zte::Settings& settings)
{
    const bool negative = number[0] == '-';
    number.erase(0, negative ? 1 : 0);
    for (zte::Char& c : number)
        c = c == settings.decimalChar ? '.' : c;
    const size_t point = std::min(number.find('.'), number.size());
    Text integer = number.substr(0, point);
    Text fraction = point < number.size() ? number.substr(point + 1) : Text();
    integer.erase(0, std::min(integer.find_first_not_of('0'), integer.size()));
    fraction.erase(fraction.find_last_not_of('0') + 1);
    const Text sign = negative && !(integer + fraction).empty() ? "-" : "";
    const Text units = integer.empty() ? "0" : integer;
    return fraction.empty() ? sign + units : sign + units + "." + fraction;
}

void CheckNumber(PlayedControl& played, const Text& number)
{
    EditInstance& edit = played.Control().Record();
    CountStep(2);
    zte::SetDataString(edit, number.c_str());
    const Text shown = played.Control().Edit().Shown();
    const auto read = zte::Own(edit, static_cast<zte::Char*>(zte::GetData(edit)));
    Demand(static_cast<bool>(read), "a number shown is read", shown, number);
    DemandEqual(Normalized(read.get(), *edit.settings), number, "a number set is the number read");
}

void CheckNumbers(PlayedControl& played, Bytes bytes)
{
    const EditInstance& edit = played.Control().Record();
    if (!zte::IsNumeric(edit.dataType) || edit.table->number.isGeneral ||
        !IsInOnePiece(edit.table->number.format) || !CanWriteNumbers(*edit.settings))
        return;
    while (!bytes.IsEmpty())
        CheckNumber(played, PossibleNumber(edit, bytes));
}

}  // namespace

void PlayDisplays(const uint8_t* data, size_t size)
{
    Bytes bytes(data, size);
    const zte::Settings& settings = RegionalSettings(bytes.Take());
    zte::ControlSetup setup;
    setup.dataType = static_cast<int32_t>(1 + bytes.TakeBelow(6));
    const Text mask = bytes.TakeLine();
    setup.mask = mask.c_str();
    PlayedControl played(setup, settings);
    CheckValues(played, bytes);
    CheckNumbers(played, bytes);
    while (!bytes.IsEmpty()) {
        const Text text = bytes.TakeLine();
        played.SetDataString(text);
        played.Unformat(text);
        played.SetText(text);
        played.Read();
    }
}

}  // namespace zttest
