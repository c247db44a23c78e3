// Stepping of dates and times: the field under the caret.
#include <string>

#include "core/base_edit.h"
#include "core/instance.h"
#include "format/date_walk.h"
#include "format/display.h"
#include "format/read_back.h"
#include "intl/regional_settings.h"
#include "mask/mask_items.h"
#include "mask/mask_text.h"
#include "shared/ascii.h"
#include "spin/date_range.h"
#include "spin/date_step.h"
#include "spin/range_text.h"
#include "spin/type_steps.h"

namespace zte {

namespace {

// The field under the caret in the display.
struct SpunField {
    int32_t start;
    int32_t length;
    DateField field;
};

struct FieldLetter {
    char letter;
    DateField field;
};

constexpr FieldLetter kFieldLetters[] = {
    {'Y', DateField::Year     },
    {'M', DateField::Month    },
    {'D', DateField::Day      },
    {'J', DateField::DayOfYear},
    {'H', DateField::Hour     },
    {'S', DateField::Second   },
    {'F', DateField::Fraction },
};

// An hour in front of it makes an "M" a minute. Letters of a date's words, and escaped ones, are no hours.
bool HasHourBefore(const EditInstance& edit, int32_t position)
{
    const char* mask = edit.mask;
    if (edit.dataType == DT_DATE)
        return false;
    for (int32_t i = MaskIndex(mask, position); i-- > 0;)
        if (AsciiUpper(mask[i]) == 'H' && !(i > 0 && mask[i - 1] == '~'))
            return true;
    return false;
}

DateField FieldOf(const EditInstance& edit, const std::string& text, int32_t position)
{
    const MaskChar mask = MaskCharAt(edit, text, position);
    if (!FindMaskItem(mask.value, edit.dataType))
        return DateField::None;
    const char letter = AsciiUpper(mask.value);
    if (letter == 'M' && HasHourBefore(edit, position))
        return DateField::Minute;
    for (const FieldLetter& row : kFieldLetters)
        if (row.letter == letter)
            return row.field;
    return DateField::None;
}

SpunField FieldAt(const EditInstance& edit, const std::string& text, int32_t caret)
{
    const int32_t before = MaskRunBefore(edit.mask, caret, edit.dataType);
    const int32_t after = MaskRunAfter(edit.mask, caret, edit.dataType);
    return {caret - before, before + 1 + after, FieldOf(edit, text, caret)};
}

// Exchanges the first letter only, on purpose: the designators differ in it.
void FlipAmPm(EditInstance& edit, const std::string& text, int32_t caret)
{
    const std::string am = regionalSettings.amString;
    const bool isAm = text.compare(static_cast<size_t>(caret), am.size(), am) == 0;
    const char replacement[] = {isAm ? regionalSettings.pmString[0] : regionalSettings.amString[0], '\0'};
    Select(edit, caret, caret + 1);
    ReplaceSelection(edit, replacement);
    SetRedraw(edit, true);
    Select(edit, caret, caret + 1);
}

// Both ends of the range text; out of order they are dropped.
void ReadRange(EditInstance& edit, DateStep& step)
{
    step.minimum = step.maximum = kEmptyDateTime;
    if (!edit.spinRange || !*edit.spinRange)
        return;
    const RangeText ends = SplitRange(edit.spinRange);
    const bool hasMinimum = ReadRangeEnd(edit, step.minimum, ends.minimum.c_str()) == 0;
    const bool hasMaximum = ReadRangeEnd(edit, step.maximum, ends.maximum.c_str()) == 0;
    if (hasMinimum && hasMaximum && IsOutOfOrder(edit.dataType, step.minimum, step.maximum))
        step.minimum = step.maximum = kEmptyDateTime;
}

StepDirection DirectionOf(const EditInstance& edit)
{
    if (Has(edit, SPIN_DOWN))
        return StepDirection::Down;
    return Has(edit, SPIN_UP) ? StepDirection::Up : StepDirection::Neither;
}

DateStep StepFor(EditInstance& edit, const SpunField& spun)
{
    DateStep step{};
    step.dataType = edit.dataType;
    step.yearDigits = edit.yearDigits;
    step.field = spun.field;
    step.fractionDigits = spun.length;
    step.increment = edit.spinIncrement;
    step.direction = DirectionOf(edit);
    ReadRange(edit, step);
    return step;
}

// The value shown; without a date it counts from the start of 1900, without a time from midnight.
DateTimeValue CurrentValue(EditInstance& edit)
{
    DateTimeValue value = ReadCurrentDateTime(edit);
    if (!HasDate(value)) {
        value.year = 0;
        value.month = 0;
        value.day = 0;
    }
    if (!HasTime(value))
        value.hour = 0;
    return value;
}

// A month or minute of one letter is no field to step; kept.
bool IsRefused(const SpunField& spun)
{
    return spun.length == 1 && (spun.field == DateField::Month || spun.field == DateField::Minute);
}

// Literals, and characters that are no part of the value, stay.
void ShowField(EditInstance& edit, const SpunField& spun, const std::string& display)
{
    if (spun.field == DateField::None || spun.start >= static_cast<int32_t>(display.size()))
        return;
    const std::string part = display.substr(static_cast<size_t>(spun.start), static_cast<size_t>(spun.length));
    Select(edit, spun.start, spun.start + spun.length);
    ReplaceSelection(edit, part.c_str());
}

void ShowWhole(EditInstance& edit, const std::string& display)
{
    UpdateFormatRect(edit);
    SetRedraw(edit, true);
    SetText(edit, display.c_str());
}

void StepFieldAt(EditInstance& edit, const std::string& text, int32_t caret)
{
    const SpunField spun = FieldAt(edit, text, caret);
    DateTimeValue value = CurrentValue(edit);
    const StepResult result = IsRefused(spun) ? StepResult::Refused : StepDateTime(StepFor(edit, spun), value);
    if (result != StepResult::Refused) {
        const std::string display = FormatValue(edit, &value).text;
        if (result == StepResult::SetToEnd)
            ShowWhole(edit, display);
        else
            ShowField(edit, spun, display);
    }
    SetRedraw(edit, true);
    InvalidateRect(edit.hwnd, nullptr, TRUE);
    Select(edit, spun.start, spun.start + spun.length);
}

}  // namespace

void SpinStepDateTime(EditInstance& edit)
{
    const std::string text = ReadText(edit);
    const int32_t caret = Caret(edit);
    if (text.empty() || caret >= edit.displayLength)
        SetRedraw(edit, true);
    else if (IsAmPmPosition(edit, caret) && caret < static_cast<int32_t>(text.size()))
        FlipAmPm(edit, text, caret);
    else
        StepFieldAt(edit, text, caret);
}

}  // namespace zte
