// Stepping of numbers and decimals.
#include "core/base_edit.h"
#include "core/heap.h"
#include "format/data.h"
#include "format/number_text.h"
#include "format/read_back.h"
#include "spin/range_text.h"
#include "spin/type_steps.h"
#include "spin/value_step.h"

namespace zte {

namespace {

constexpr int32_t kWholeText = 32767;

// A decimal with the operators that the step rules need.
struct Exact {
    DecimalValue value;
};
bool operator<(const Exact& first, const Exact& second)
{
    return DecCompare(&first.value, &second.value) < 0;
}
Exact operator+(const Exact& first, const Exact& second)
{
    Exact sum;
    DecAdd(&sum.value, &first.value, &second.value);
    return sum;
}
Exact operator-(const Exact& first, const Exact& second)
{
    Exact difference;
    DecSubtract(&difference.value, &first.value, &second.value);
    return difference;
}

// The number now shown, as text; empty without data.
std::string CurrentText(EditInstance& edit)
{
    const auto data = Own(edit, static_cast<char*>(ReadCurrentData(edit)));
    return data ? std::string(data.get()) : std::string();
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
    SetRedraw(edit, true);
    if (value)
        SetData(edit, value);
    Select(edit, 0, kWholeText);
}

StepRange<Exact> DecimalRange(const EditInstance& edit)
{
    const RangeText ends = SplitRange(edit.spinRange);
    StepRange<Exact> range{};
    DecFromString(&range.minimum.value, ends.minimum.c_str(), edit.decimalPlaces);
    DecFromString(&range.maximum.value, ends.maximum.c_str(), edit.decimalPlaces);
    range.hasMaximum = !ends.maximum.empty();  // a maximum of 0 that is written out counts, unlike for numbers
    range.raisesWithoutMaximum = false;
    return range;
}

}  // namespace

void SpinStepNumber(EditInstance& edit)
{
    const double value = NumberFromText(CurrentText(edit).c_str());
    const bool hasMaximum = edit.spinMax < 0.0 || edit.spinMax > 0.0;
    const StepRange<double> range = {edit.spinMin, edit.spinMax, hasMaximum, true};
    const std::optional<double> stepped = Step(edit, value, static_cast<double>(edit.spinIncrement), range);
    ShowStepped(edit, stepped ? &*stepped : nullptr);
}

void SpinStepDecimal(EditInstance& edit)
{
    const Exact value = {DecimalFromText(CurrentText(edit).c_str(), edit.decimalPlaces)};
    Exact increment;
    DecFromUnsigned(&increment.value, edit.spinIncrement);
    const std::optional<Exact> stepped = Step(edit, value, increment, DecimalRange(edit));
    ShowStepped(edit, stepped ? &stepped->value : nullptr);
}

}  // namespace zte
