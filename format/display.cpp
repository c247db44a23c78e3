// Formatting a value into display text: the dispatch by type, and the code table.
#include "format/display.h"

#include "format/code_lookup.h"
#include "mask/mask_text.h"

namespace zte {

namespace {

// Puts an entry's display text in place, when the value is in the table.
void ShowThroughCodeTable(EditInstance& edit, const char* value, Display& display)
{
    if (!edit.codeTable || !Has(edit, CODE_SPIN))
        return;
    const char* entry = DisplayTextForValue(edit, value);
    if (!entry)
        return;
    edit.flags |= CODE_POSITIONED;
    display.text = entry;
}

}  // namespace

Display FormatValue(EditInstance& edit, const void* data)
{
    SetFlag(edit, CODE_POSITIONED, false);
    Display display;
    if (!edit.mask)
        return display;
    if (IsNumeric(edit.dataType)) {
        if (edit.dataType == DT_NUMBER)
            FormatNumber(edit, data ? *static_cast<const double*>(data) : 0.0, display);
        else
            FormatDecimal(edit, static_cast<const DecimalValue*>(data), display);
        ShowThroughCodeTable(edit, display.text.c_str(), display);
        return display;
    }
    if (edit.dataType == DT_STRING && !HasMask(edit))
        display.text = data ? static_cast<const char*>(data) : "";
    else
        FormatFields(edit, data, display);
    // A date's record is no text to look up: only its absence is.
    if (!data || !IsDateOrTime(edit.dataType))
        ShowThroughCodeTable(edit, static_cast<const char*>(data), display);
    return display;
}

}  // namespace zte
