// The caret after a click: one that stands on a literal goes to the nearest editable position.
#include "engine/edit/click.h"

#include "engine/edit/caret.h"
#include "engine/mask/mask_table.h"

namespace zte {

namespace {

// Where the caret may stay: in a fraction, on the AM/PM field, at the end, or on an editable position.
bool MayStay(const EditInstance& edit, const Text& text, int32_t position)
{
    return IsInFraction(edit, text, position) || position == Length(text) || MayTypeAt(edit, text, position);
}

// To the nearer side; the tie goes to the right, so that a click on a separator starts the field behind it.
void LeaveLiteral(EditInstance& edit, const Text& text, int32_t position)
{
    const int32_t right = StepsToEditable(edit, text, position, Direction::Forward);
    const int32_t left = StepsToEditable(edit, text, position, Direction::Backward);
    if (left == 0)
        return;
    MoveCaret(edit, right == 0 || left < right ? KEY_LEFT : KEY_RIGHT, 0, edit.field->IsHeld(KEY_SHIFT));
}

}  // namespace

// A click ends the walk through a code table whose entry is shown. Numbers that grow from their point take the caret anywhere.
bool IsClickCorrected(EditInstance& edit)
{
    if (edit.codeTable && Has(edit, CODE_SPIN) && Has(edit, CODE_POSITIONED) && !Has(edit, CODE_PICKLIST)) {
        SetFlag(edit, CODE_POSITIONED, false);
        return false;
    }
    return HasMask(edit) && Has(edit, CHARWISE);
}

bool CorrectClick(EditInstance& edit)
{
    const Selection selection = edit.field->ReadSelection();
    const Text text = edit.field->ReadText();
    if (!selection.IsEmpty() || MayStay(edit, text, selection.start))
        return false;
    LeaveLiteral(edit, text, selection.start);
    return true;
}

}  // namespace zte
