// What the field validators share.
#include "mask/field_entry.h"

#include <cstdlib>

#include "core/base_edit.h"
#include "mask/mask_text.h"

namespace zte {

FieldEntry::FieldEntry(const EditInstance& edit, int32_t typedChar, int32_t at)
    : text(ReadText(edit)),
      position(at),
      typed(static_cast<char>(typedChar)),
      index(MaskRunBefore(edit.mask, at, edit.dataType)),
      length(index + 1 + MaskRunAfter(edit.mask, at, edit.dataType))
{
}

char FieldEntry::At(int32_t at) const
{
    return at >= 0 && at < static_cast<int32_t>(text.size()) ? text[static_cast<size_t>(at)] : '\0';
}

bool Accept(EditInstance& edit, char placed)
{
    edit.typedChar[0] = placed;
    edit.typedChar[1] = '\0';
    return true;
}

bool AcceptTwo(EditInstance& edit, char first, char second)
{
    edit.typedChar[0] = first;
    edit.typedChar[1] = second;
    edit.typedChar[2] = '\0';
    edit.flags |= ZERO_PADDED;
    return true;
}

bool Swallow(EditInstance& edit)
{
    edit.typedChar[0] = '\0';
    return true;
}

int32_t TwoDigits(char first, char second)
{
    const char digits[] = {first, second, '\0'};
    return std::atoi(digits);
}

}  // namespace zte
