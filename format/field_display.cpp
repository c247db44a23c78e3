// Strings, dates and times into display text: a walk over the mask that writes its literals and lays a value into its fields.
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "format/date_walk.h"
#include "format/display.h"
#include "intl/regional_settings.h"
#include "mask/calendar.h"
#include "mask/mask_items.h"
#include "mask/mask_text.h"
#include "mask/month_names.h"
#include "shared/ascii.h"

namespace zte {

namespace {

constexpr int32_t kAmPmLength = 5;

// The display being written. A field may write more than it takes: what is left over is overwritten by what follows, or cut.
class Output {
public:
    int32_t Position() const { return position_; }
    void Write(const char* text)
    {
        for (size_t i = 0; text[i]; ++i)
            At(static_cast<size_t>(position_) + i) = text[i];
    }
    void Take(int32_t positions)
    {
        position_ += positions;
        At(static_cast<size_t>(position_));
    }
    void Put(char c)
    {
        At(static_cast<size_t>(position_)) = c;
        Take(1);
    }
    std::string Text() const { return text_.substr(0, static_cast<size_t>(position_)); }

private:
    char& At(size_t position)
    {
        if (position >= text_.size())
            text_.resize(position + 1, ' ');
        return text_[position];
    }

    std::string text_;
    int32_t position_ = 0;
};

// What a field spans in the mask and in the display.
struct Span {
    int32_t consumed;
    int32_t taken;
};

// The text of one date or time field; run tells how many letters the mask gives it.
std::string Digits(const char* format, uint32_t number)
{
    char text[16];
    std::snprintf(text, sizeof text, format, number);
    return text;
}

std::string TwoDigitText(int32_t number)
{
    return Digits("%.2u", static_cast<uint32_t>(number));
}

std::string YearText(const DateTimeValue& value, int32_t run)
{
    if (value.year == DATETIME_NO_DATE)
        return "0000";
    const std::string year = Digits("%.4u", static_cast<uint32_t>(value.year + 1900));
    return run == 2 ? year.substr(year.size() - 2) : year;
}

std::string MonthText(const DateTimeValue& value, int32_t run)
{
    if (value.year == DATETIME_NO_DATE)
        return run == 2 ? "00" : "   ";
    return run == 2 ? TwoDigitText(value.month + 1) : MonthName(value.month);
}

std::string DayOfYearText(const EditInstance& edit, const DateTimeValue& value)
{
    if (value.year == DATETIME_NO_DATE)
        return "001";
    return Digits("%.3u", static_cast<uint32_t>(DayOfYear(edit.yearDigits, value)));
}

// On the 12-hour clock 0 shows as 12 and 13 as 1.
std::string HourText(const EditInstance& edit, int32_t hour)
{
    if (!Has(edit, AMPM))
        return TwoDigitText(hour);
    const int32_t shown = hour > 12 ? hour - 12 : hour;
    return TwoDigitText(shown == 0 ? 12 : shown);
}

// The walk over one mask.
class FieldFormatter {
public:
    FieldFormatter(const EditInstance& edit, const void* data, Display& display)
        : edit_(edit),
          display_(display),
          text_(static_cast<const char*>(data)),
          value_(data && IsDateOrTime(edit.dataType) ? *static_cast<const DateTimeValue*>(data) : kEmptyDateTime)
    {
    }

    void Run()
    {
        const char* mask = edit_.mask;
        while (*mask)
            mask += TakeItem(mask);
        display_.text = output_.Text();
    }

private:
    int32_t TakeItem(const char* mask)
    {
        if (*mask == '~')
            return TakeEscape(mask);
        const bool isAmPm = Has(edit_, AMPM) && BeginsWithAmPm(mask);
        if (isAmPm || FindMaskItem(*mask, edit_.dataType))
            return TakeField(mask);
        output_.Put(*mask);
        display_.formatFlags |= FORMAT_HAS_LITERALS | (fieldSeen_ ? FORMAT_LITERAL_AFTER : 0);
        return 1;
    }

    int32_t TakeEscape(const char* mask)
    {
        display_.formatFlags |= FORMAT_HAS_LITERALS;
        if (mask[1] == '\0')
            return 1;
        output_.Put(mask[1]);
        return 2;
    }

    int32_t TakeField(const char* mask)
    {
        if (!fieldSeen_)
            display_.firstFieldPos = output_.Position();
        fieldSeen_ = true;
        const Span span = IsDateOrTime(edit_.dataType) ? DateField(mask) : StringField(mask);
        output_.Take(span.taken);
        return span.consumed;
    }

    Span DateField(const char* mask)
    {
        if (hourSeen_ && BeginsWithAmPm(mask)) {
            const char* marker = value_.hour < 12 ? regionalSettings.amString : regionalSettings.pmString;
            output_.Write(marker);
            return {kAmPmLength, static_cast<int32_t>(std::strlen(marker))};
        }
        const int32_t run = RunLength(mask);
        output_.Write(FieldText(AsciiUpper(*mask), run).c_str());
        return {run, run};
    }

    std::string FieldText(char letter, int32_t run)
    {
        const bool noDate = value_.year == DATETIME_NO_DATE;
        const bool noTime = value_.hour == DATETIME_NO_TIME;
        switch (letter) {
        case 'Y': return YearText(value_, run);
        case 'M':
            if (hourSeen_)
                return TwoDigitText(noTime ? 0 : value_.minute);
            return MonthText(value_, run);
        case 'D': return TwoDigitText(noDate ? 0 : value_.day);
        case 'J': return DayOfYearText(edit_, value_);
        case 'H': hourSeen_ = true; return noTime ? "00" : HourText(edit_, value_.hour);
        case 'S': return TwoDigitText(noTime ? 0 : value_.second);
        case 'F': return Digits("%.6u", noTime ? 0 : value_.microsecond);
        default: return std::string(static_cast<size_t>(run), ' ');  // free text: blank until it is typed
        }
    }

    // The value holds the characters of the fields only. Without one the field is blank in a display with literals, and
    // empty in one without.
    Span StringField(const char* mask)
    {
        const int32_t run = RunLength(mask);
        const std::string placed = PlacedText(run);
        output_.Write(placed.c_str());
        cursor_ += static_cast<int32_t>(placed.size());
        return {run, static_cast<int32_t>(placed.size())};
    }

    std::string PlacedText(int32_t run)
    {
        const auto width = static_cast<size_t>(run);
        std::string placed;
        if (!text_ || !*text_) {
            const bool blank = (edit_.formatFlags & FORMAT_HAS_LITERALS) != 0 || edit_.dataType != DT_STRING;
            placed.assign(blank ? width : 0, ' ');
        } else if (!ended_) {
            const char* source = text_ + cursor_;
            placed.assign(source, strnlen(source, width));
            ended_ = placed.size() < width;  // the cursor never goes past the end
        }
        if (edit_.formatFlags & FORMAT_LITERAL_AFTER)
            placed.resize(width, ' ');
        return placed;
    }

    const EditInstance& edit_;
    Display& display_;
    const char* text_;
    DateTimeValue value_;
    Output output_;
    int32_t cursor_ = 0;  // of the string value
    bool ended_ = false;  // the string value is used up
    bool fieldSeen_ = false;
    bool hourSeen_ = false;
};

}  // namespace

void FormatFields(const EditInstance& edit, const void* data, Display& display)
{
    FieldFormatter(edit, data, display).Run();
    if (IsDateOrTime(edit.dataType))
        display.formatFlags |= FORMAT_HAS_LITERALS;
}

}  // namespace zte
