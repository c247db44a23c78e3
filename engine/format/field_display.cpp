// Strings, dates and times into display text: a walk over the mask that writes its literals and lays a value into its fields.
#include "engine/format/display.h"
#include "engine/mask/mask_table.h"
#include "engine/values/calendar.h"
#include "engine/values/caller_value.h"
#include "engine/values/date_time.h"
#include "engine/values/month_names.h"

namespace zte {

namespace {

constexpr Char kBlank = ' ';

// The text of one date or time field; run tells how many letters the mask gives it.
Text YearText(const DateTimeValue& value, int32_t run)
{
    if (!HasDate(value))
        return Text(4, '0');
    const Text year = NumberText(static_cast<uint32_t>(value.year + kFirstYear), 4);
    return run == 2 ? year.substr(year.size() - 2) : year;
}

Text MonthText(const EditInstance& edit, const DateTimeValue& value, int32_t run)
{
    if (!HasDate(value))
        return run == 2 ? TwoDigits(0) : Text();
    return run == 2 ? TwoDigits(value.month + 1) : MonthName(*edit.settings, value.month);
}

Text DayOfYearText(const EditInstance& edit, const DateTimeValue& value)
{
    return NumberText(HasDate(value) ? static_cast<uint32_t>(DayOfYear(edit.yearDigits, value)) : 1, 3);
}

// On the 12-hour clock 0 shows as 12 and 13 as 1.
Text HourText(const EditInstance& edit, int32_t hour)
{
    if (!HasAmPmField(edit))
        return TwoDigits(hour);
    const int32_t shown = hour % 12;
    return TwoDigits(shown == 0 ? 12 : shown);
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
            const Text marker = value_.hour < 12 ? edit_.settings->amString : edit_.settings->pmString;
            WriteField(marker, Length(marker));
            return kAmPmLength;
        }
        const int32_t run = mask.runAfter + 1;
        if (IsDateOrTime(edit_.dataType))
            WriteField(FieldText(mask.kind, run), run);
        else
            PlaceText(run);
        return run;
    }

    // Cut, or filled with blanks, to what the field takes.
    void WriteField(Text text, int32_t taken)
    {
        text.resize(static_cast<size_t>(taken), kBlank);
        display_.text += text;
    }

    Text FieldText(FieldKind kind, int32_t run) const
    {
        const bool noTime = !HasTime(value_);
        switch (kind) {
        case FieldKind::Year: return YearText(value_, run);
        case FieldKind::Month: return MonthText(edit_, value_, run);
        case FieldKind::Day: return TwoDigits(HasDate(value_) ? value_.day : 0);
        case FieldKind::DayOfYear: return DayOfYearText(edit_, value_);
        case FieldKind::Hour: return noTime ? TwoDigits(0) : HourText(edit_, value_.hour);
        case FieldKind::Minute: return TwoDigits(noTime ? 0 : value_.minute);
        case FieldKind::Second: return TwoDigits(noTime ? 0 : value_.second);
        case FieldKind::Fraction: return NumberText(noTime ? 0 : value_.microsecond, kMicroDigits);
        default: return Text(static_cast<size_t>(run), kBlank);  // free text: blank until it is typed
        }
    }

    // The value holds the characters of the fields only. Without one the field is blank in a display with literals, and
    // empty in one without.
    void PlaceText(int32_t run)
    {
        const Text placed = PlacedText(static_cast<size_t>(run));
        cursor_ += placed.size();
        WriteField(placed, Length(placed));
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
