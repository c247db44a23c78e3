// The step of numbers and decimals.
#include "engine/spin/number_step.h"

#include "engine/format/data.h"
#include "engine/format/number_value.h"
#include "engine/format/read_back.h"
#include "engine/services.h"
#include "engine/spin/range.h"

namespace zte {

namespace {

constexpr int32_t kWholeText = 32767;

// A decimal with the operators that the step rules need.
struct Exact {
    DecimalValue value;
};
bool operator<(const Exact& first, const Exact& second)
{
    return services::Compare(first.value, second.value) < 0;
}
Exact operator+(const Exact& first, const Exact& second)
{
    return {services::Add(first.value, second.value)};
}
Exact operator-(const Exact& first, const Exact& second)
{
    return {services::Subtract(first.value, second.value)};
}

Text NumberShown(const EditInstance& edit)
{
    return ReadShownText(edit, edit.field->ReadText());
}

template <typename Number>
std::optional<Number> Step(const EditInstance& edit, const Number& value, const Number& increment,
                           const StepRange<Number>& range)
{
    return Has(edit, SPIN_DOWN) ? StepDown(value, increment, range) : StepUp(value, increment, range);
}

// Shows the new value, if there is one, and selects the whole text either way.
void ShowStepped(EditInstance& edit, const void* value)
{
    edit.field->SetRedraw(true);
    if (value)
        SetData(edit, value);
    edit.field->Select(0, kWholeText);
}

StepRange<Exact> DecimalRange(const EditInstance& edit)
{
    const RangeText ends = SplitRange(edit.spinRange);
    StepRange<Exact> range{};
    range.minimum.value = services::DecimalOf(ends.minimum.c_str(), edit.decimalPlaces);
    range.maximum.value = services::DecimalOf(ends.maximum.c_str(), edit.decimalPlaces);
    range.hasMaximum = !ends.maximum.empty();  // a maximum of 0 that is written out counts, unlike for numbers
    return range;
}

}  // namespace

void StepNumber(EditInstance& edit)
{
    const double value = NumberFromText(edit, NumberShown(edit));
    const bool hasMaximum = edit.spinMax < 0.0 || edit.spinMax > 0.0;
    const StepRange<double> range = {edit.spinMin, edit.spinMax, hasMaximum, true};
    const std::optional<double> stepped = Step(edit, value, static_cast<double>(edit.spinIncrement), range);
    ShowStepped(edit, stepped ? &*stepped : nullptr);
}

void StepDecimal(EditInstance& edit)
{
    const Exact value = {DecimalFromText(edit, NumberShown(edit))};
    const Exact increment = {services::DecimalOf(edit.spinIncrement)};
    const std::optional<Exact> stepped = Step(edit, value, increment, DecimalRange(edit));
    ShowStepped(edit, stepped ? &stepped->value : nullptr);
}

}  // namespace zte
