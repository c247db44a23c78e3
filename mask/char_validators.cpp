// Validators of single characters: digits, letters, any character, case conversion.
#include "mask/field_entry.h"
#include "mask/validators.h"
#include "shared/ascii.h"

namespace zte {

bool ValidateDigit(int32_t typed, EditInstance& edit, int32_t /*position*/)
{
    return IsDigit(typed) && Accept(edit, static_cast<char>(typed));
}

bool ValidateAlphanumeric(int32_t typed, EditInstance& edit, int32_t /*position*/)
{
    return (IsLetter(typed) || IsDigit(typed)) && Accept(edit, static_cast<char>(typed));
}

bool ValidateAny(int32_t typed, EditInstance& edit, int32_t /*position*/)
{
    return !IsControl(typed) && Accept(edit, static_cast<char>(typed));
}

bool ValidateCaseOne(int32_t typed, EditInstance& edit, int32_t /*position*/)
{
    return !IsControl(typed) && Accept(edit, static_cast<char>(SharedCharConvertOne(typed)));
}

bool ValidateCaseTwo(int32_t typed, EditInstance& edit, int32_t /*position*/)
{
    return !IsControl(typed) && Accept(edit, static_cast<char>(SharedCharConvertTwo(typed)));
}

}  // namespace zte
