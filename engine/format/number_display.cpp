// Numbers and decimals into display text, and the position where editing of the number starts.
#include "engine/format/display.h"
#include "engine/mask/mask_table.h"
#include "engine/text/ascii.h"
#include "engine/values/number_layout.h"

namespace zte {

namespace {

// The first digit or sign; a point directly before it comes first, so that a fraction is entered on its point. Where no
// digit is shown, the place of the first one behind the literals.
int32_t FirstNumberPos(const EditInstance& edit, const Text& text)
{
    int32_t first = 0;
    while (first < Length(text) && !IsDigit(At(text, first)) && !IsSign(At(text, first)))
        ++first;
    if (first == Length(text))
        return edit.table->hasLiterals ? edit.table->firstPlaceholder : 0;
    // Without a point in the text its position counts as 0, so that 1 becomes 0 as well; kept.
    const int32_t point = DecimalCharPos(text, edit.settings->decimalChar);
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
    Finish(edit, services::FormatDouble(*edit.table->format, value, *edit.settings), display);
}

void FormatDecimal(const EditInstance& edit, const DecimalValue& value, Display& display)
{
    Finish(edit, services::FormatDecimal(*edit.table->format, value, *edit.settings), display);
}

}  // namespace zte
