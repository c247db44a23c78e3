// Numbers and decimals into display text, and the position where editing of the number starts.
#include <algorithm>

#include "engine/format/display.h"
#include "engine/mask/mask_table.h"
#include "engine/text/ascii.h"

namespace zte {

namespace {

// The first digit or sign behind the literals; a point directly before it comes first, so that a fraction is entered on its point.
// Where no digit is shown, the place of the first one behind the literals.
int32_t FirstNumberPos(const EditInstance& edit, const Text& text)
{
    const NumberMask& mask = edit.table->number;
    const ShownNumber shown(mask, *edit.settings, text);
    int32_t first = shown.Start();
    while (first < shown.End() && !IsDigit(At(text, first)) && !IsSign(At(text, first)))
        ++first;
    if (first == shown.End())
        return edit.table->hasLiterals ? mask.before.length : 0;
    // Without a point in the text its position counts as 0, so that 1 becomes 0 as well; kept.
    const int32_t point = std::max(shown.Point(), 0);
    return edit.decimalPlaces != 0 && first == point + 1 ? first - 1 : first;
}

void Finish(const EditInstance& edit, Text&& rendered, Display& display)
{
    display.text = std::move(rendered);
    if (edit.table->hasLiterals)
        display.formatFlags |= FORMAT_HAS_LITERALS;
    display.firstFieldPos = FirstNumberPos(edit, display.text);
}

}  // namespace

void FormatNumber(const EditInstance& edit, double value, Display& display)
{
    Finish(edit, services::FormatDouble(*edit.table->compiled, value, *edit.settings), display);
}

void FormatDecimal(const EditInstance& edit, const DecimalValue& value, Display& display)
{
    Finish(edit, services::FormatDecimal(*edit.table->compiled, value, *edit.settings), display);
}

}  // namespace zte
