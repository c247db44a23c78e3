// Key-downs of a masked control: deletion, arrows, the spin's keys, and paste by Shift+Insert.
#include "engine/edit/key_down.h"

#include "engine/edit/caret.h"
#include "engine/edit/deletion.h"
#include "engine/edit/numeric_entry.h"
#include "engine/edit/paste.h"
#include "engine/mask/mask_table.h"
#include "engine/spin/step.h"

namespace zte {

namespace {

// Never the decimal character or a literal.
bool CanDeleteAt(const EditInstance& edit, const Text& text, int32_t caret)
{
    return caret != Length(text) && IsEditable(edit, text, caret);
}

// A Backspace is carried out by its character, unless something is selected: then the character that follows has nothing left to do.
void HandleNumberDeletion(EditInstance& edit, Key key)
{
    const Selection selection = edit.field->ReadSelection();
    if (key == KEY_BACKSPACE && selection.IsEmpty()) {
        edit.deletePending = 1;
        return;
    }
    DeleteInNumber(edit, selection);
    edit.swallowBackspace = key == KEY_BACKSPACE;
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
    const bool deleted = DeleteSelection(edit, selection);
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
    if (!IsNumeric(edit.dataType))
        return DeleteAtPosition(edit, key, keyData);
    HandleNumberDeletion(edit, key);
    return true;
}

// A Delete pressed with Shift would cut in the field underneath, or without a selection delete to the left.
bool HandleDelete(EditInstance& edit, KeyData keyData)
{
    if (!edit.field->IsHeld(KEY_SHIFT))
        return HandleDeletion(edit, KEY_DELETE, keyData);
    edit.field->HoldShift(false);
    CutByKey(edit, keyData);
    edit.field->HoldShift(true);
    return true;
}

bool HandleArrow(EditInstance& edit, Key key, KeyData keyData)
{
    if (edit.field->IsHeld(KEY_SHIFT) || !Has(edit, CHARWISE))
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

// In the upper half hosts mark keys; see OnKeyDown.
bool ConcernsKeyDown(uint32_t key)
{
    return key >> 16 != 0 || MovesOrDeletes(static_cast<int32_t>(key));
}

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
    if (!MovesOrDeletes(key))
        return false;
    ForgetPassed(edit);
    switch (key) {
    case KEY_BACKSPACE: return HandleDeletion(edit, KEY_BACKSPACE, keyData);
    case KEY_DELETE: return HandleDelete(edit, keyData);
    case KEY_LEFT:
    case KEY_RIGHT: return HandleArrow(edit, static_cast<Key>(key), keyData);
    case KEY_UP:
    case KEY_DOWN: return HandleSpinKey(edit, key);
    case KEY_INSERT: return HandleInsert(edit);
    default: return false;
    }
}

void CutByKey(EditInstance& edit, KeyData keyData)
{
    if (!edit.field->ReadSelection().IsEmpty())
        edit.field->CopySelection();
    if (!HandleDeletion(edit, KEY_DELETE, keyData))
        edit.field->PressDelete(keyData);
    edit.deletePending = 0;
}

}  // namespace zte
