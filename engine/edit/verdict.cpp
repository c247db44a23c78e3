// A validator's answer in the record.
#include "engine/edit/verdict.h"

#include <algorithm>

namespace zte {

void ForgetVerdict(EditInstance& edit)
{
    edit.typedChar[0] = edit.typedFractionChar[0] = Char{};
    SetFlag(edit, ZERO_PADDED, false);
}

void KeepVerdict(EditInstance& edit, const Verdict& verdict)
{
    Char(&room)[Verdict::kRoom] = verdict.inserts ? edit.typedFractionChar : edit.typedChar;
    std::copy(std::begin(verdict.placed), std::end(verdict.placed), std::begin(room));
    SetFlag(edit, ZERO_PADDED, verdict.padded);
    if (verdict.charwise)
        edit.flags |= CHARWISE;
}

}  // namespace zte
