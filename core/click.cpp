// The button's release: a caret that a click left on a literal goes to the nearest editable position.
#include "core/base_edit.h"
#include "core/life_guard.h"
#include "core/message_handlers.h"
#include "edit/caret.h"
#include "mask/mask_text.h"

namespace zte {

namespace {

bool IsCorrected(const EditInstance& edit)
{
    const bool freeNumber = IsNumeric(edit.dataType) && edit.maskJustSet && !Has(edit, CHARWISE);
    return HasMask(edit) && !freeNumber;
}

// Where the caret may stay: in a fraction, on the AM/PM field, at the end, or on an editable position.
bool MayStay(const EditInstance& edit, const std::string& text, int32_t position)
{
    return IsInFraction(edit, text, position) || IsAmPmPosition(edit, position) ||
           position == static_cast<int32_t>(text.size()) || IsEditable(edit, text, position);
}

// To the nearer side; the tie goes to the right, so that a click on a separator starts the field behind it.
void LeaveLiteral(EditInstance& edit, const std::string& text, int32_t position)
{
    const int32_t right = StepsToEditable(edit, text, position, Direction::Forward);
    const int32_t left = StepsToEditable(edit, text, position, Direction::Backward);
    if (left == 0)
        return;
    MoveCaret(edit, right == 0 || left < right ? VK_LEFT : VK_RIGHT, 0);
}

}  // namespace

Reply OnButtonUp(EditInstance& edit, WPARAM wParam, LPARAM lParam)
{
    if (edit.codeTable && Has(edit, CODE_SPIN) && Has(edit, CODE_POSITIONED) && !Has(edit, CODE_PICKLIST)) {
        SetFlag(edit, CODE_POSITIONED, false);
        return kPassOn;
    }
    if (!IsCorrected(edit) || CallBaseEdit(edit.hwnd, WM_GETTEXTLENGTH, 0, 0) == 0)
        return kPassOn;

    const LifeCheck life(edit);
    CallBaseEdit(edit.hwnd, WM_LBUTTONUP, wParam, lParam);
    life.Check();
    const Selection selection = GetSelection(edit);
    const std::string text = ReadText(edit);
    if (!selection.IsEmpty() || MayStay(edit, text, selection.start))
        return kPassOn;  // the base sees the release a second time; it is used to that
    LeaveLiteral(edit, text, selection.start);
    return Keep();
}

}  // namespace zte
