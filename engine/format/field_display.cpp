// Strings, dates and times into display text: a walk over the mask that writes its literals and lays a value into its fields.
#include "engine/format/display.h"
#include "engine/mask/mask_table.h"
#include "engine/text/ascii.h"
#include "engine/values/calendar.h"
#include "engine/values/caller_value.h"
#include "engine/values/date_time.h"
#include "engine/values/month_names.h"

namespace zte {

namespace {

constexpr Char kBlank = ' ';

// Numbers that are none of a clock or a calendar may be longer; they are cut afterwards.
void AppendTwoDigits(Text& text, int32_t number)
{
    if (number < 0 || number > 99)
        return AppendNumber(text, static_cast<uint32_t>(number), 2);
    text += DigitChar(number / 10);
    text += DigitChar(number % 10);
}

// One date or time field; run tells how many letters the mask gives it.
void AppendYear(Text& text, const DateTimeValue& value, int32_t run)
{
    const uint32_t year = HasDate(value) ? static_cast<uint32_t>(value.year + kFirstYear) : 0;
    if (run == 2)
        AppendTwoDigits(text, static_cast<int32_t>(year % 100));
    else
        AppendNumber(text, year, 4);
}

void AppendMonth(Text& text, const EditInstance& edit, const DateTimeValue& value, int32_t run)
{
    if (run == 2)
        AppendTwoDigits(text, HasDate(value) ? value.month + 1 : 0);
    else if (HasDate(value))
        text += MonthName(*edit.settings, value.month);
}

void AppendDayOfYear(Text& text, const EditInstance& edit, const DateTimeValue& value)
{
    AppendNumber(text, HasDate(value) ? static_cast<uint32_t>(DayOfYear(edit.yearDigits, value)) : 1, 3);
}

// On the 12-hour clock 0 shows as 12 and 13 as 1.
int32_t HourShown(const EditInstance& edit, int32_t hour)
{
    if (!HasAmPmField(edit))
        return hour;
    const int32_t shown = hour % 12;
    return shown == 0 ? 12 : shown;
}

// The walk over one mask.
class FieldFormatter {
public:
    FieldFormatter(const EditInstance& edit, const void* data, Display& display)
        : edit_(edit),
          display_(display),
          text_(static_cast<const Char*>(data)),
          value_(data && IsDateOrTime(edit.dataType) ? ReadValue<DateTimeValue>(data) : kEmptyDateTime)
    {
    }

    void Run()
    {
        for (int32_t position = 0; position < edit_.table->count;)
            position += TakeItem(edit_.table->positions[position]);
    }

private:
    // Returns the positions of the mask that the item takes.
    int32_t TakeItem(const MaskPosition& mask)
    {
        if (mask.kind != FieldKind::Literal)
            return TakeField(mask);
        if (mask.character != Char{})  // a lone "~" at the end shows nothing
            display_.text += mask.character;
        display_.formatFlags |= FORMAT_HAS_LITERALS | (fieldSeen_ && !mask.escaped ? FORMAT_LITERAL_AFTER : 0);
        return 1;
    }

    int32_t TakeField(const MaskPosition& mask)
    {
        if (!fieldSeen_)
            display_.firstFieldPos = Length(display_.text);
        fieldSeen_ = true;
        if (mask.kind == FieldKind::AmPm) {
            display_.text += value_.hour < 12 ? edit_.settings->amString : edit_.settings->pmString;
            return kAmPmLength;
        }
        const int32_t run = mask.runAfter + 1;
        if (IsDateOrTime(edit_.dataType))
            WriteField(mask.kind, run);
        else
            PlaceText(run);
        return run;
    }

    // Cut, or filled with blanks, to what the field takes.
    void WriteField(FieldKind kind, int32_t run)
    {
        Text& text = display_.text;
        const size_t start = text.size();
        AppendField(text, kind, run);
        text.resize(start + static_cast<size_t>(run), kBlank);
    }

    // Free text is blank until it is typed.
    void AppendField(Text& text, FieldKind kind, int32_t run) const
    {
        const bool noTime = !HasTime(value_);
        switch (kind) {
        case FieldKind::Year: return AppendYear(text, value_, run);
        case FieldKind::Month: return AppendMonth(text, edit_, value_, run);
        case FieldKind::Day: return AppendTwoDigits(text, HasDate(value_) ? value_.day : 0);
        case FieldKind::DayOfYear: return AppendDayOfYear(text, edit_, value_);
        case FieldKind::Hour: return AppendTwoDigits(text, noTime ? 0 : HourShown(edit_, value_.hour));
        case FieldKind::Minute: return AppendTwoDigits(text, noTime ? 0 : value_.minute);
        case FieldKind::Second: return AppendTwoDigits(text, noTime ? 0 : value_.second);
        case FieldKind::Fraction: return AppendNumber(text, noTime ? 0 : value_.microsecond, kMicroDigits);
        default: return;
        }
    }

    // The value holds the characters of the fields only. Without one the field is blank in a display with literals, and
    // empty in one without.
    void PlaceText(int32_t run)
    {
        const Text placed = PlacedText(static_cast<size_t>(run));
        cursor_ += placed.size();
        display_.text += placed;
    }

    Text PlacedText(size_t width)
    {
        Text placed;
        if (!text_ || !*text_) {
            const bool blank = (edit_.formatFlags & FORMAT_HAS_LITERALS) != 0 || edit_.dataType != DT_STRING;
            placed.assign(blank ? width : 0, kBlank);
        } else if (!ended_) {
            const Char* source = text_ + cursor_;
            placed.assign(source, BoundedLength(source, width));
            ended_ = placed.size() < width;  // the cursor never goes past the end
        }
        if (edit_.formatFlags & FORMAT_LITERAL_AFTER)
            placed.resize(width, kBlank);
        return placed;
    }

    const EditInstance& edit_;
    Display& display_;
    const Char* text_;
    DateTimeValue value_;
    size_t cursor_ = 0;   // of the string value
    bool ended_ = false;  // the string value is used up
    bool fieldSeen_ = false;
};

}  // namespace

void FormatFields(const EditInstance& edit, const void* data, Display& display)
{
    FieldFormatter(edit, data, display).Run();
    if (IsDateOrTime(edit.dataType))
        display.formatFlags |= FORMAT_HAS_LITERALS;
}

}  // namespace zte
