// The step of numbers and decimals.
#pragma once

#include <optional>

#include "engine/record.h"

namespace zte {

template <typename Number>
struct StepRange {
    Number minimum;
    Number maximum;  // counts only when hasMaximum
    bool hasMaximum;
    // An upward step that stays below the minimum goes to it, also where there is no maximum.
    bool raisesWithoutMaximum;
};

// The value after a step down; none when it stays. A value below the range goes to the top; a step that would leave the
// range from inside is refused, not cut short.
template <typename Number>
std::optional<Number> StepDown(const Number& value, const Number& increment, const StepRange<Number>& range)
{
    if (value < range.minimum)
        return range.hasMaximum ? std::optional<Number>(range.maximum) : std::nullopt;
    const Number stepped = value - increment;
    if (stepped < range.minimum)
        return std::nullopt;
    return range.hasMaximum && range.maximum < stepped ? range.maximum : stepped;
}

// The value after a step up; a value above the range goes to the bottom.
template <typename Number>
std::optional<Number> StepUp(const Number& value, const Number& increment, const StepRange<Number>& range)
{
    if (range.hasMaximum && range.maximum < value)
        return range.minimum;
    const Number stepped = value + increment;
    if (range.hasMaximum && range.maximum < stepped)
        return std::nullopt;
    const bool raised = (range.hasMaximum || range.raisesWithoutMaximum) && stepped < range.minimum;
    return raised ? range.minimum : stepped;
}

// Steps the number shown in the direction of SPIN_UP or SPIN_DOWN, and leaves redrawing on.
void StepNumber(EditInstance& edit);
void StepDecimal(EditInstance& edit);

}  // namespace zte
