// One step of the spin: through the code table, or by the type of the value.
#include "spin/spin_step.h"

#include <string>

#include "core/base_edit.h"
#include "core/instance.h"
#include "spin/code_table.h"
#include "spin/type_steps.h"

namespace zte {

namespace {

// The first step shows the first entry, or the last one when going down; later ones wrap at the ends.
const CodeTableEntry* NextEntry(EditInstance& edit)
{
    SharedList cycle = edit.codeTable->cycle;
    const bool forward = Has(edit, SPIN_UP);
    const auto start = forward ? SharedListFirst : SharedListLast;
    const auto step = forward ? SharedListNext : SharedListPrev;
    void* item = Has(edit, CODE_POSITIONED) ? step(cycle) : nullptr;
    edit.flags |= CODE_POSITIONED;
    return static_cast<const CodeTableEntry*>(item ? item : start(cycle));
}

void StepCodeTable(EditInstance& edit)
{
    const CodeTableEntry* entry = NextEntry(edit);
    if (!entry)
        return;
    UpdateFormatRect(edit);
    SetText(edit, std::string(entry->display).c_str());
}

// An unknown type leaves redrawing off: kept, no such control is shown.
void StepValue(EditInstance& edit)
{
    SetRedraw(edit, false);
    switch (edit.dataType) {
    case DT_STRING: SetRedraw(edit, true); break;
    case DT_NUMBER: SpinStepNumber(edit); break;
    case DT_DATE:
    case DT_TIME:
    case DT_DATETIME: SpinStepDateTime(edit); break;
    case DT_DECIMAL: SpinStepDecimal(edit); break;
    default: break;
    }
}

}  // namespace

void SpinStep(EditInstance& edit, HWND /*spin*/)
{
    if (edit.spinIncrement == 0 || (!edit.codeTable && Has(edit, CODE_SPIN)) || IsInputRefused(edit.hwnd))
        return;
    HWND hwnd = edit.hwnd;
    edit.flags |= SPUN;
    if (edit.codeTable && Has(edit, CODE_SPIN))
        StepCodeTable(edit);
    else
        StepValue(edit);
    NotifyParent(hwnd, GetParent(hwnd), EN_CHANGE);
}

}  // namespace zte
