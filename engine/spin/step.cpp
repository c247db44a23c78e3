// One step of the spin: through the code table, or by the type of the value.
#include "engine/spin/step.h"

#include "engine/format/code_table.h"
#include "engine/services.h"
#include "engine/spin/date_time_step.h"
#include "engine/spin/number_step.h"

namespace zte {

namespace {

// The first step shows the first entry, or the last one when going down; later ones wrap at the ends.
const CodeTableEntry* NextEntry(EditInstance& edit)
{
    SharedList cycle = edit.codeTable->cycle;
    const bool forward = Has(edit, SPIN_UP);
    const auto start = forward ? services::First : services::Last;
    const auto step = forward ? services::Next : services::Previous;
    void* item = Has(edit, CODE_POSITIONED) ? step(cycle) : nullptr;
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
    if (edit.codeTable && Has(edit, CODE_SPIN))
        StepCodeTable(edit);
    else
        StepValue(edit);
    edit.field->NotifyStepped();
}

}  // namespace zte
