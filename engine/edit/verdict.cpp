// A validator's answer in the record.
#include "engine/edit/verdict.h"

#include <algorithm>

namespace zte {

void ForgetVerdict(EditInstance& edit)
{
    edit.typedChar[0] = Char{};
}

void KeepVerdict(EditInstance& edit, const Verdict& verdict)
{
    std::copy(std::begin(verdict.placed), std::end(verdict.placed), std::begin(edit.typedChar));
    SetFlag(edit, ZERO_PADDED, verdict.padded);
}

}  // namespace zte
