// The step of dates and times: the field under the caret.
#include "engine/spin/date_time_step.h"

#include "engine/format/display.h"
#include "engine/format/read_back.h"
#include "engine/mask/half_of_day.h"
#include "engine/mask/mask_table.h"
#include "engine/spin/date_step.h"
#include "engine/spin/range.h"
#include "engine/values/date_time.h"

namespace zte {

namespace {

// The field under the caret in the display.
struct SpunField {
    int32_t start;
    int32_t length;
    FieldKind kind;
};

SpunField FieldAt(const EditInstance& edit, const Text& text, int32_t caret)
{
    const MaskPosition& mask = PositionOf(edit, text, caret);
    return {caret - mask.runBefore, mask.FieldLength(), mask.kind};
}

// The caret marks the field by its first letter.
void FlipAmPm(EditInstance& edit, const Text& text, int32_t caret)
{
    const HalfOfDay other = ShownHalf(edit, text) == HalfOfDay::Am ? HalfOfDay::Pm : HalfOfDay::Am;
    edit.field->Select(caret, caret + AmPmWidth(edit, text));
    edit.field->ReplaceSelection(Text(DesignatorOf(*edit.settings, other)).c_str());
    edit.field->SetRedraw(true);
    edit.field->Select(caret, caret + 1);
}

// Both ends of the range text, empty where they cannot be read; out of order they are dropped.
void ReadRange(const EditInstance& edit, DateStep& step)
{
    const RangeText ends = SplitRange(edit.spinRange);
    ReadRangeEnd(edit, step.minimum, ends.minimum);
    ReadRangeEnd(edit, step.maximum, ends.maximum);
    if (IsOutOfOrder(edit.dataType, step.minimum, step.maximum))
        step.minimum = step.maximum = kEmptyDateTime;
}

StepDirection DirectionOf(const EditInstance& edit)
{
    if (Has(edit, SPIN_DOWN))
        return StepDirection::Down;
    return Has(edit, SPIN_UP) ? StepDirection::Up : StepDirection::Neither;
}

DateStep StepFor(const EditInstance& edit, const SpunField& spun)
{
    DateStep step{};
    step.dataType = edit.dataType;
    step.yearDigits = edit.yearDigits;
    step.field = spun.kind;
    step.fractionDigits = spun.length;
    step.increment = edit.spinIncrement;
    step.direction = DirectionOf(edit);
    ReadRange(edit, step);
    return step;
}

// The value shown; without a date it counts from the start of 1900, without a time from midnight.
DateTimeValue CurrentValue(const EditInstance& edit, const Text& text)
{
    DateTimeValue value = ReadShownDateTime(edit, text);
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
    return spun.length == 1 && (spun.kind == FieldKind::Month || spun.kind == FieldKind::Minute);
}

bool IsPartOfValue(FieldKind kind)
{
    return kind >= FieldKind::Year && kind <= FieldKind::Fraction;
}

// Literals, and characters that are no part of the value, stay.
void ShowField(EditInstance& edit, const SpunField& spun, const Text& display)
{
    if (!IsPartOfValue(spun.kind) || spun.start >= Length(display))
        return;
    edit.field->Select(spun.start, spun.start + spun.length);
    edit.field->ReplaceSelection(Slice(display, spun.start, spun.length).c_str());
}

void ShowWhole(EditInstance& edit, const Text& display)
{
    edit.field->KeepLayout();
    edit.field->SetRedraw(true);
    edit.field->SetText(display.c_str());
}

void StepFieldAt(EditInstance& edit, const Text& text, int32_t caret)
{
    const SpunField spun = FieldAt(edit, text, caret);
    DateTimeValue value = CurrentValue(edit, text);
    const StepResult result =
        IsRefused(spun) ? StepResult::Refused : StepDateTime(StepFor(edit, spun), edit.clock, value);
    if (result != StepResult::Refused) {
        const Text display = FormatValue(edit, &value).text;
        if (result == StepResult::SetToEnd)
            ShowWhole(edit, display);
        else
            ShowField(edit, spun, display);
    }
    edit.field->SetRedraw(true);
    edit.field->Repaint();
    edit.field->Select(spun.start, spun.start + spun.length);
}

}  // namespace

void StepDateOrTime(EditInstance& edit)
{
    const Text text = edit.field->ReadText();
    const int32_t caret = Caret(edit);
    if (text.empty() || caret >= ShownLength(edit, text))
        edit.field->SetRedraw(true);
    else if (IsAmPmPosition(edit, caret) && caret < Length(text))
        FlipAmPm(edit, text, caret);
    else
        StepFieldAt(edit, text, caret);
}

}  // namespace zte
