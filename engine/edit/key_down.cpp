// Key-downs of a masked control: deletion, arrows, the spin's keys, and paste by Shift+Insert.
#include "engine/edit/key_down.h"

#include "engine/edit/caret.h"
#include "engine/edit/deletion.h"
#include "engine/edit/paste.h"
#include "engine/format/reformat_number.h"
#include "engine/mask/mask_table.h"
#include "engine/spin/step.h"

namespace zte {

namespace {

bool IsNumericMode(const EditInstance& edit)
{
    return IsNumeric(edit.dataType) && edit.maskJustSet != 0;
}

// The key-down did all that its Backspace does in a number; the character that follows has nothing left to do.
bool FinishNumberKey(EditInstance& edit, Key key)
{
    edit.swallowBackspace = key == KEY_BACKSPACE;
    return true;
}

// Brings the caret behind a digit, over the separators left of it; false when there is no digit to delete.
bool ReachDigitLeft(EditInstance& edit, const Text& text, int32_t caret, KeyData keyData)
{
    if (caret == Length(text))
        return true;
    if (!PositionAt(edit, text, caret - 1).exists)
        return false;
    if (IsEditable(edit, text, caret - 1))
        return true;
    const int32_t steps = StepsToEditable(edit, text, caret - 1, Direction::Backward);
    edit.field->PressArrow(KEY_LEFT, keyData, steps);
    return steps != 0;
}

// Never the decimal character or a literal.
bool CanDeleteAt(const EditInstance& edit, const Text& text, int32_t caret)
{
    return caret != Length(text) && IsEditable(edit, text, caret);
}

bool CanDelete(EditInstance& edit, Key key, const Text& text, int32_t caret, KeyData keyData)
{
    if (key == KEY_DELETE)
        return CanDeleteAt(edit, text, caret);
    return caret > 0 && ReachDigitLeft(edit, text, caret, keyData);
}

// The digit goes by the edit control underneath, the number is laid anew. A Backspace is carried out by its character.
bool DeleteInNumber(EditInstance& edit, Key key, KeyData keyData)
{
    const Selection selection = edit.field->ReadSelection();
    if (DeleteSelection(edit, selection, false)) {
        if (Has(edit, PERCENT))
            ReformatNumber(edit);
        return FinishNumberKey(edit, key);
    }
    const int32_t caret = selection.start;
    if (!CanDelete(edit, key, edit.field->ReadText(), caret, keyData))
        return FinishNumberKey(edit, key);
    edit.deletePending = 1;
    SetFlag(edit, CHARWISE, false);
    if (key == KEY_DELETE)
        edit.field->SetRedraw(false);
    edit.field->PressDown(key, keyData);
    if (key == KEY_DELETE) {
        ReformatNumber(edit);
        PlaceCaret(edit, caret);
        edit.deletePending = 0;
    }
    return true;
}

void BlankCharAt(EditInstance& edit, int32_t caret)
{
    const Text blank(1, edit.dataType == DT_STRING ? ' ' : '0');
    edit.field->Select(caret, caret + 1);
    edit.field->ReplaceSelection(blank.c_str());
    PlaceCaret(edit, caret);
}

// A display without literals deletes as a plain edit does; one with them blanks positions and keeps the literals.
bool DeleteAtPosition(EditInstance& edit, Key key, KeyData keyData)
{
    if ((edit.formatFlags & FORMAT_HAS_LITERALS) == 0) {
        edit.deletePending = 1;
        return false;
    }
    const Selection selection = edit.field->ReadSelection();
    const bool deleted = DeleteSelection(edit, selection, false);
    if (key == KEY_BACKSPACE) {
        if (!deleted)
            MoveCaret(edit, KEY_BACKSPACE, keyData, edit.field->IsHeld(KEY_SHIFT));
        edit.flags |= BACKSPACE_DONE;
    } else if (!deleted && CanDeleteAt(edit, edit.field->ReadText(), selection.start)) {
        BlankCharAt(edit, selection.start);
    }
    return true;
}

bool HandleDeletion(EditInstance& edit, Key key, KeyData keyData)
{
    if (edit.field->RefusesInput())
        return true;
    return IsNumericMode(edit) ? DeleteInNumber(edit, key, keyData) : DeleteAtPosition(edit, key, keyData);
}

bool HandleArrow(EditInstance& edit, Key key, KeyData keyData)
{
    if (edit.field->IsHeld(KEY_SHIFT) || (IsNumericMode(edit) && !Has(edit, CHARWISE)))
        return false;
    MoveCaret(edit, key, keyData, false);
    return true;
}

bool HandleInsert(EditInstance& edit)
{
    if (!edit.field->IsHeld(KEY_SHIFT))
        return false;
    PasteClipboard(edit);
    return true;
}

bool MovesOrDeletes(int32_t key)
{
    return key == KEY_BACKSPACE || (key >= KEY_PAGE_UP && key <= KEY_DELETE);
}

}  // namespace

bool HandleSpinKey(EditInstance& edit, int32_t key)
{
    if ((key != KEY_UP && key != KEY_DOWN) || !edit.hwndSpin || edit.field->RefusesInput())
        return false;
    edit.flags |= key == KEY_UP ? SPIN_UP : SPIN_DOWN;
    SpinStep(edit);
    SetFlag(edit, SPIN_UP | SPIN_DOWN, false);
    edit.field->RepaintSpin();
    return true;
}

bool HandleKeyDown(EditInstance& edit, int32_t key, KeyData keyData)
{
    if (MovesOrDeletes(key))
        edit.carriedTo = 0;
    switch (key) {
    case KEY_BACKSPACE:
    case KEY_DELETE: return HandleDeletion(edit, static_cast<Key>(key), keyData);
    case KEY_LEFT:
    case KEY_RIGHT: return HandleArrow(edit, static_cast<Key>(key), keyData);
    case KEY_UP:
    case KEY_DOWN: return HandleSpinKey(edit, key);
    case KEY_INSERT: return HandleInsert(edit);
    default: return false;
    }
}

}  // namespace zte
