// The kinds of modern controls.
#include "engine/modern/kind.h"

namespace zte::modern {

const Kind& KindOf(const EditInstance& edit)
{
    if (Has(edit, CODE_SPIN) && (edit.codeTable || !HasMask(edit)))  // without a table there is nothing to choose
        return kChoices;
    if (IsNumeric(edit.dataType))
        return kNumbers;
    return IsDateOrTime(edit.dataType) ? kDates : kStrings;
}

}  // namespace zte::modern
