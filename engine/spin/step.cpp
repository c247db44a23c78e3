// One step of the spin: through the code table, or by the type of the value.
#include "engine/spin/step.h"

#include "engine/format/code_table.h"
#include "engine/format/read_back.h"
#include "engine/services.h"
#include "engine/spin/date_time_step.h"
#include "engine/spin/number_step.h"
#include "engine/user_change.h"

namespace zte {

namespace {

// Puts the cursor on the entry whose display text or data value is shown; false when none is. An empty field shows no value. The
// values of strings stand in the table without a mask's literals, those of numbers in the form shown.
bool FindEntryShown(const EditInstance& edit, const Text& text)
{
    if (ValueForDisplayText(edit, text.c_str()))
        return true;
    const Text shown = WithoutBlanksBehind(text);
    if (shown.empty())
        return false;
    if (ValueForDisplayText(edit, shown.c_str()) || DisplayTextForValue(edit, shown.c_str()))
        return true;
    const Text data = edit.dataType == DT_STRING ? WithoutBlanksBehind(ReadShownText(edit, text)) : Text();
    return !data.empty() && DisplayTextForValue(edit, data.c_str());
}

// From the entry shown on, and around at the ends; where none is shown, up begins with the first and down with the last one.
const CodeTableEntry* NextEntry(EditInstance& edit)
{
    SharedList cycle = edit.codeTable->cycle;
    const bool forward = Has(edit, SPIN_UP);
    const auto start = forward ? services::First : services::Last;
    const auto step = forward ? services::Next : services::Previous;
    const bool standsOnEntry = Has(edit, CODE_POSITIONED) || FindEntryShown(edit, edit.field->ReadText());
    void* item = standsOnEntry ? step(cycle) : nullptr;
    edit.flags |= CODE_POSITIONED;
    return static_cast<const CodeTableEntry*>(item ? item : start(cycle));
}

void StepCodeTable(EditInstance& edit)
{
    const CodeTableEntry* entry = NextEntry(edit);
    if (!entry)
        return;
    edit.field->KeepLayout();
    edit.field->SetText(Text(entry->display).c_str());  // a copy: the parent may set another table meanwhile
}

// An unknown type leaves redrawing off: kept, no such control is shown.
void StepValue(EditInstance& edit)
{
    edit.field->SetRedraw(false);
    switch (edit.dataType) {
    case DT_STRING: edit.field->SetRedraw(true); break;
    case DT_NUMBER: StepNumber(edit); break;
    case DT_DATE:
    case DT_TIME:
    case DT_DATETIME: StepDateOrTime(edit); break;
    case DT_DECIMAL: StepDecimal(edit); break;
    default: break;
    }
}

}  // namespace

void SpinStep(EditInstance& edit)
{
    if (edit.spinIncrement == 0 || (!edit.codeTable && Has(edit, CODE_SPIN)) || edit.field->RefusesInput())
        return;
    edit.flags |= SPUN;
    AsUserChange(edit, [&] {
        if (edit.codeTable && Has(edit, CODE_SPIN))
            StepCodeTable(edit);
        else
            StepValue(edit);
    });
    edit.field->NotifyStepped();
}

}  // namespace zte
