// Values into the control: setting data, and setting data given as text.
#include "engine/format/data.h"

#include "engine/format/code_table.h"
#include "engine/format/date_text.h"
#include "engine/format/display.h"
#include "engine/format/number_value.h"
#include "engine/mask/mask_table.h"
#include "engine/values/number_text.h"

namespace zte {

namespace {

// Strings are looked up in the code table as they are, and no data is for every type.
bool CanLookUp(const EditInstance& edit, const void* data)
{
    return !data || edit.dataType == DT_STRING;
}

// Shows the data through the code table; false when it is to be formatted.
bool ShowCode(EditInstance& edit, const void* data)
{
    if (!edit.codeTable) {
        edit.flags |= SPUN;
        ShowText(edit, Text().c_str());
        return true;
    }
    const Char* entry = CanLookUp(edit, data) ? DisplayTextForValue(edit, static_cast<const Char*>(data)) : nullptr;
    if (entry) {
        edit.flags |= CODE_POSITIONED;
        ShowText(edit, Text(entry).c_str());  // a copy: the parent may set another table meanwhile
        return true;
    }
    if (Has(edit, CODE_PICKLIST))
        edit.flags |= SPUN;
    return false;
}

// The display is complete before the window hears of it: setting the text may take the control away.
void ShowDisplay(EditInstance& edit, const Display& display)
{
    ShowText(edit, display.text.c_str());
    if (Has(edit, SPUN))
        return;
    edit.formatFlags = display.formatFlags;
    edit.firstFieldPos = display.firstFieldPos;
    if (display.firstFieldPos != 0)
        PlaceCaret(edit, display.firstFieldPos);
}

bool IsBlankDisplay(const EditInstance& edit, const Char* text)
{
    Display blank;
    FormatFields(edit, nullptr, blank);
    return blank.text == text;
}

// What is shown where there is no value stands for none, unless it is the canonical text of one (midnight).
DateTimeValue DateTimeFromText(const EditInstance& edit, const Char* text)
{
    DateTimeValue value;
    if (IsBlankDisplay(edit, text) || !ReadDisplayText(edit, text, value))
        ParseCanonical(edit, text, value);
    return value;
}

}  // namespace

int32_t SetData(EditInstance& edit, const void* data)
{
    ForgetPassed(edit);
    SetFlag(edit, CODE_POSITIONED, false);
    if (!edit.mask)
        return 0;
    if (Has(edit, CODE_SPIN) && ShowCode(edit, data))
        return 1;
    ChooseEditMode(edit);
    ShowDisplay(edit, FormatValue(edit, data));
    return 1;
}

int32_t SetDataString(EditInstance& edit, const Char* text)
{
    if (!text)
        return SetData(edit, nullptr);
    if (edit.dataType == DT_NUMBER) {
        const double number = NumberFromPlainText(PlainNumberOf(edit, text).c_str());
        return SetData(edit, &number);
    }
    if (edit.dataType == DT_DECIMAL) {
        const DecimalValue decimal = services::DecimalOf(PlainNumberOf(edit, text).c_str(), edit.decimalPlaces);
        return SetData(edit, &decimal);
    }
    if (IsDateOrTime(edit.dataType) && edit.mask) {
        const DateTimeValue value = DateTimeFromText(edit, text);
        return SetData(edit, &value);
    }
    return SetData(edit, text);
}

void ChooseEditMode(EditInstance& edit)
{
    const bool hasLiterals = (edit.formatFlags & FORMAT_HAS_LITERALS) != 0;
    SetFlag(edit, CHARWISE, hasLiterals || !edit.table->number.Grows());
}

}  // namespace zte
