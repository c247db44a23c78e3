// The kinds of modern controls.
#include "engine/modern/kind.h"

namespace zte::modern {

const Kind& KindOf(const EditInstance& edit)
{
    if (edit.codeTable && Has(edit, CODE_SPIN))
        return kChoices;
    if (IsNumeric(edit.dataType))
        return kNumbers;
    return IsDateOrTime(edit.dataType) ? kDates : kStrings;
}

}  // namespace zte::modern
