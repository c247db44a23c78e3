// Formatting a value into display text: the dispatch by type, and the code table.
#include "engine/format/display.h"

#include "engine/format/code_table.h"
#include "engine/values/caller_value.h"

namespace zte {

namespace {

// Puts an entry's display text in place, when the value is in the table.
void ShowThroughCodeTable(EditInstance& edit, const Char* value, Display& display)
{
    if (!edit.codeTable || !Has(edit, CODE_SPIN))
        return;
    const Char* entry = DisplayTextForValue(edit, value);
    if (!entry)
        return;
    edit.flags |= CODE_POSITIONED;
    display.text = entry;
}

void FormatNumeric(const EditInstance& edit, const void* data, Display& display)
{
    if (edit.dataType == DT_NUMBER)
        FormatNumber(edit, data ? ReadValue<double>(data) : 0.0, display);
    else
        FormatDecimal(edit, data ? ReadValue<DecimalValue>(data) : DecimalValue{}, display);
}

}  // namespace

Display FormatValue(EditInstance& edit, const void* data)
{
    SetFlag(edit, CODE_POSITIONED, false);
    Display display;
    if (!edit.mask)
        return display;
    if (IsNumeric(edit.dataType)) {
        FormatNumeric(edit, data, display);
        ShowThroughCodeTable(edit, Text(display.text).c_str(), display);
        return display;
    }
    if (edit.dataType == DT_STRING && !HasMask(edit))
        display.text = data ? static_cast<const Char*>(data) : Text();
    else
        FormatFields(edit, data, display);
    // A date's record is no text to look up: only its absence is.
    if (!data || !IsDateOrTime(edit.dataType))
        ShowThroughCodeTable(edit, static_cast<const Char*>(data), display);
    return display;
}

}  // namespace zte
