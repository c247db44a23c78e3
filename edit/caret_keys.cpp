// Key-downs of a masked control: deletion, arrows, the spin's keys, and paste by Shift+Insert.
#include "edit/caret_keys.h"

#include "core/base_edit.h"
#include "core/life_guard.h"
#include "edit/caret.h"
#include "edit/deletion.h"
#include "edit/paste.h"
#include "format/read_back.h"
#include "mask/mask_text.h"
#include "spin/spin_step.h"

namespace zte {

namespace {

bool IsShiftPressed()
{
    return (GetKeyState(VK_SHIFT) & 0x8000) != 0;
}

bool IsNumericMode(const EditInstance& edit)
{
    return IsNumeric(edit.dataType) && edit.maskJustSet != 0;
}

// The key-down did all that its Backspace does in a number; the character that follows has nothing left to do.
bool FinishNumberKey(EditInstance& edit, WPARAM key)
{
    edit.swallowBackspace = key == VK_BACK;
    return true;
}

// Brings the caret behind a digit, over the separators left of it; false when there is no digit to delete.
bool ReachDigitLeft(EditInstance& edit, const std::string& text, int32_t caret, LPARAM keyData)
{
    if (caret == static_cast<int32_t>(text.size()))
        return true;
    if (MaskCharAt(edit, text, caret - 1).IsNone())
        return false;
    if (IsEditable(edit, text, caret - 1))
        return true;
    const int32_t steps = StepsToEditable(edit, text, caret - 1, Direction::Backward);
    SendKeyToBase(edit, VK_LEFT, keyData, steps);
    return steps != 0;
}

// Never the decimal character or a literal.
bool CanDeleteAt(const EditInstance& edit, const std::string& text, int32_t caret)
{
    return caret != static_cast<int32_t>(text.size()) && IsEditable(edit, text, caret);
}

// The digit goes by the edit control underneath, the number is laid anew. A Backspace is carried out by its character.
bool DeleteInNumber(EditInstance& edit, WPARAM key, LPARAM keyData)
{
    if (DeleteSelection(edit, false)) {
        if (Has(edit, PERCENT))
            ReformatNumber(edit, nullptr);
        return FinishNumberKey(edit, key);
    }
    const int32_t caret = Caret(edit);
    const std::string text = ReadText(edit);
    const bool deletable =
        key == VK_BACK ? caret > 0 && ReachDigitLeft(edit, text, caret, keyData) : CanDeleteAt(edit, text, caret);
    if (!deletable)
        return FinishNumberKey(edit, key);
    edit.deletePending = 1;
    SetFlag(edit, CHARWISE, false);
    if (key == VK_DELETE)
        SetRedraw(edit, false);
    SendKeyDownToBase(edit, key, keyData);
    if (key == VK_DELETE) {
        ReformatNumber(edit, nullptr);
        PlaceCaret(edit, caret);
        edit.deletePending = 0;
    }
    return true;
}

void BlankCharAt(EditInstance& edit, int32_t caret)
{
    Select(edit, caret, caret + 1);
    ReplaceSelection(edit, edit.dataType == DT_STRING ? " " : "0");
    PlaceCaret(edit, caret);
}

// A display without literals deletes as a plain edit does; one with them blanks positions and keeps the literals.
bool DeleteAtPosition(EditInstance& edit, WPARAM key, LPARAM keyData)
{
    if ((edit.formatFlags & FORMAT_HAS_LITERALS) == 0) {
        edit.deletePending = 1;
        return false;
    }
    const bool deleted = DeleteSelection(edit, false);
    if (key == VK_BACK) {
        if (!deleted)
            MoveCaret(edit, VK_BACK, keyData);
        edit.flags |= BACKSPACE_DONE;
    } else if (!deleted) {
        const int32_t caret = Caret(edit);
        if (CanDeleteAt(edit, ReadText(edit), caret))
            BlankCharAt(edit, caret);
    }
    return true;
}

bool HandleDeletion(EditInstance& edit, WPARAM key, LPARAM keyData)
{
    if (IsInputRefused(edit.hwnd))
        return true;
    return IsNumericMode(edit) ? DeleteInNumber(edit, key, keyData) : DeleteAtPosition(edit, key, keyData);
}

bool HandleArrow(EditInstance& edit, WPARAM key, LPARAM keyData)
{
    if (IsShiftPressed() || (IsNumericMode(edit) && !Has(edit, CHARWISE)))
        return false;
    MoveCaret(edit, key, keyData);
    return true;
}

bool HandleSpinKey(EditInstance& edit, WPARAM key)
{
    if (!edit.hwndSpin || IsInputRefused(edit.hwnd))
        return false;
    edit.flags |= key == VK_UP ? SPIN_UP : SPIN_DOWN;
    const LifeCheck life(edit);
    SpinStep(edit, edit.hwndSpin);
    life.Check();
    SetFlag(edit, SPIN_UP | SPIN_DOWN, false);
    if (edit.hwndSpin)
        InvalidateRect(edit.hwndSpin, nullptr, FALSE);
    return true;
}

bool HandleInsert(EditInstance& edit)
{
    if (!IsShiftPressed())
        return false;
    PasteClipboard(edit);
    return true;
}

bool MovesOrDeletes(WPARAM key)
{
    return key == VK_BACK || (key >= VK_PRIOR && key <= VK_DELETE);
}

}  // namespace

bool HandleKeyDown(EditInstance& edit, WPARAM key, LPARAM keyData)
{
    if (MovesOrDeletes(key))
        edit.carriedTo = 0;
    switch (key) {
    case VK_BACK:
    case VK_DELETE: return HandleDeletion(edit, key, keyData);
    case VK_LEFT:
    case VK_RIGHT: return HandleArrow(edit, key, keyData);
    case VK_UP:
    case VK_DOWN: return HandleSpinKey(edit, key);
    case VK_INSERT: return HandleInsert(edit);
    default: return false;
    }
}

}  // namespace zte
