// The validator of number positions: decides between overwriting the character at the caret and inserting before it.
#include "engine/edit/validators.h"
#include "engine/text/ascii.h"
#include "engine/values/number_layout.h"

namespace zte {

namespace {

// A sign typed into a number that was emptied: what follows it are integer digits, although there is no point yet.
bool IsLoneSign(const Text& text)
{
    return Length(text) == 1 && IsSign(text[0]);
}

bool IsInTypedFraction(const Entry& entry, int32_t point)
{
    return entry.edit.decimalPlaces != 0 && entry.position >= point + 1 && !IsLoneSign(entry.text);
}

// Whether the integer part has grown into the whole room that the mask has for it.
bool IsIntegerFull(const Entry& entry, int32_t point)
{
    if (entry.edit.decimalPlaces == 0)
        return Length(entry.text) >= entry.edit.displayLength;
    return entry.edit.table->point == point;
}

}  // namespace

Verdict ValidateNumberDigit(const Entry& entry)
{
    const EditInstance& edit = entry.edit;
    if (!IsDigit(entry.typed) && !(IsSign(entry.typed) && entry.position == edit.firstFieldPos))
        return Verdict::Refused();
    if (!edit.maskJustSet)
        return Verdict::Placing(entry.typed);

    // Fraction digits are overwritten, except while one takes the place of a selection.
    const int32_t point = DecimalCharPos(entry.text, edit.settings->decimalChar);
    if (IsInTypedFraction(entry, point))
        return Has(edit, TYPING) ? Verdict::Inserting(entry.typed) : Verdict::Placing(entry.typed);
    if (At(entry.text, entry.position) == '-')
        return Verdict::Placing(entry.typed);
    const bool full = IsIntegerFull(entry, point);
    Verdict verdict = full || Has(edit, CHARWISE) ? Verdict::Placing(entry.typed) : Verdict::Inserting(entry.typed);
    verdict.charwise = full || (edit.decimalPlaces == 0 && Length(entry.text) >= edit.displayLength - 1);
    return verdict;
}

}  // namespace zte
