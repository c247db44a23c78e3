// The validator of number positions: decides between overwriting the character at the caret and inserting before it.
#include <cstring>

#include "core/base_edit.h"
#include "edit/number_layout.h"
#include "mask/field_entry.h"
#include "mask/validators.h"
#include "shared/ascii.h"

namespace zte {

namespace {

bool Insert(EditInstance& edit, char typed)
{
    edit.typedFractionChar[0] = typed;
    edit.typedFractionChar[1] = '\0';
    return true;
}

// Fraction digits are overwritten, except while one takes the place of a selection.
bool AcceptInFraction(EditInstance& edit, char typed)
{
    if (Has(edit, TYPING))
        return Insert(edit, typed);
    return Accept(edit, typed);
}

// A sign typed into a number that was emptied: what follows it are integer digits, although there is no point yet.
bool IsLoneSign(const std::string& text)
{
    return text == "-" || text == "+";
}

// Whether the integer part has grown into the whole room that the mask has for it.
bool IsIntegerFull(const EditInstance& edit, int32_t textLen, int32_t point)
{
    if (edit.decimalPlaces == 0)
        return textLen >= edit.displayLength;
    return MaskPointPos(edit) == point;
}

}  // namespace

bool ValidateNumberDigit(int32_t typedChar, EditInstance& edit, int32_t position)
{
    const char typed = static_cast<char>(typedChar);
    const bool isSign = typed == '-' || typed == '+';
    if (!isSign && !IsDigit(typed))
        return false;
    if (isSign && position != edit.firstFieldPos)
        return false;
    if (!edit.maskJustSet)
        return Accept(edit, typed);

    const std::string text = ReadText(edit);
    const auto textLen = static_cast<int32_t>(text.size());
    const int32_t point = DecimalCharPos(text);
    if (edit.decimalPlaces != 0 && position >= point + 1 && !IsLoneSign(text))
        return AcceptInFraction(edit, typed);
    if (position < textLen && text[static_cast<size_t>(position)] == '-')
        return Accept(edit, typed);
    if (IsIntegerFull(edit, textLen, point))
        edit.flags |= CHARWISE;
    if (Has(edit, CHARWISE))
        return Accept(edit, typed);
    if (edit.decimalPlaces == 0 && textLen >= edit.displayLength - 1)
        edit.flags |= CHARWISE;
    return Insert(edit, typed);
}

}  // namespace zte
