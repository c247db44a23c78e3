// Key and character messages, routed to the code table, the number entry or the position-by-position entry.
#include "engine/edit/keyboard.h"

#include <algorithm>

#include "engine/edit/char_entry.h"
#include "engine/edit/deletion.h"
#include "engine/edit/key_down.h"
#include "engine/edit/numeric_entry.h"
#include "engine/edit/paste.h"
#include "engine/edit/type_ahead.h"
#include "engine/format/data.h"
#include "engine/format/reformat_number.h"
#include "engine/mask/mask_table.h"

namespace zte {

namespace {

// Characters of the Ctrl key and of keys that are no letters.
constexpr uint32_t kCtrlC = 3;
constexpr uint32_t kCtrlD = 4;
constexpr uint32_t kBackspace = 8;
constexpr uint32_t kTab = 9;
constexpr uint32_t kLineFeed = 10;
constexpr uint32_t kCtrlV = 22;
constexpr uint32_t kEscape = 27;

bool IsCopy(uint32_t typed)
{
    return typed == kCtrlC || typed == kCtrlD;
}

// Never beeped at: dialogs give them other meanings.
bool IsLeftToTheForm(uint32_t typed)
{
    return typed == kTab || typed == kLineFeed || typed == kEscape;
}

// The key-down has selected the character left of the caret, the deletion has blanked it.
void FinishBackspace(EditInstance& edit)
{
    SetFlag(edit, BACKSPACE_DONE | TYPING, false);
    edit.field->HoldShift(false);
    PlaceCaret(edit, Caret(edit));
}

// The text that a spin or the code table put there gives way to the blank template at the first typed character. True when it
// did.
bool EndSpunText(EditInstance& edit)
{
    const bool fromTable = edit.codeTable && Has(edit, CODE_SPIN) && !Has(edit, CODE_PICKLIST);
    if (fromTable)
        SetFlag(edit, CODE_POSITIONED, false);
    const bool ended = fromTable && Has(edit, SPUN);
    if (ended) {
        SetFlag(edit, CODE_SPIN, false);
        SetData(edit, nullptr);
        SetFlag(edit, CODE_SPIN, true);
    }
    SetFlag(edit, SPUN, false);
    return ended;
}

// The character of a Backspace whose key-down was left to the base: a forced digit becomes 0, any other goes.
void BackspaceInNumber(EditInstance& edit, int32_t caret, KeyData keyData)
{
    const int32_t position = std::max(caret - 1, 0);
    Text text = edit.field->ReadText();
    if (PositionAt(edit, text, position).character == '0') {
        text[static_cast<size_t>(position)] = '0';
        edit.field->SetText(text.c_str());
    } else {
        edit.field->SetRedraw(false);
        edit.field->TypeChar(static_cast<Char>(kBackspace), keyData);
        ReformatNumber(edit);
    }
    PlaceCaret(edit, position);
}

void EnterNumber(EditInstance& edit, uint32_t typed, int32_t caret, KeyData keyData)
{
    if (edit.deletePending && typed == kBackspace)
        BackspaceInNumber(edit, caret, keyData);
    else
        EnterNumericChar(edit, static_cast<Char>(typed), caret, keyData);
}

Reply Finish(EditInstance& edit, Reply reply)
{
    SetFlag(edit, TYPING, false);
    edit.field->SetRedraw(true);
    return reply;
}

// caret: where it stands before the character.
Reply Enter(EditInstance& edit, uint32_t typed, int32_t caret, KeyData keyData)
{
    if (Has(edit, CODE_SPIN) && Has(edit, CODE_PICKLIST)) {
        SetFlag(edit, SPUN, false);
        TypeAhead(edit, static_cast<Char>(typed));
        return Keep();
    }
    if (!HasMask(edit)) {
        SetFlag(edit, SPUN | CODE_POSITIONED, false);
        return kPassOn;
    }
    if (IsTyped(typed) && EndSpunText(edit))
        caret = Caret(edit);
    if (IsLeftToTheForm(typed))
        return Keep(0);
    if (typed == kCtrlV) {
        PasteClipboard(edit);
        return Keep();
    }
    if (IsNumeric(edit.dataType)) {
        EnterNumber(edit, typed, caret, keyData);
        return Keep();
    }
    if (edit.deletePending && typed == kBackspace)
        return kPassOn;
    EnterChar(edit, static_cast<Char>(typed), caret);
    return Keep();
}

// A read-only or disabled control lets copying through and takes nothing else.
Reply RefuseChar(EditInstance& edit, uint32_t typed)
{
    if (typed == kBackspace && Has(edit, BACKSPACE_DONE))
        FinishBackspace(edit);
    return Keep(IsLeftToTheForm(typed) ? 0 : 1);
}

}  // namespace

// A key message whose upper half is the Tab key's number is kept from the edit control underneath: hosts that steer the focus
// themselves mark a Tab in this way.
Reply OnKeyDown(EditInstance& edit, uint32_t key, KeyData keyData)
{
    if (key >> 16 == KEY_TAB)
        return Keep(0);
    const auto pressed = static_cast<int32_t>(key);
    const bool handled = HasMask(edit) ? HandleKeyDown(edit, pressed, keyData) : HandleSpinKey(edit, pressed);
    return handled ? Keep() : kPassOn;
}

Reply OnKeyUp(EditInstance& edit, uint32_t key)
{
    edit.deletePending = 0;
    if (key == KEY_BACKSPACE)
        edit.swallowBackspace = false;
    return kPassOn;
}

Reply OnChar(EditInstance& edit, uint32_t typed, KeyData keyData)
{
    if (IsCopy(typed))
        return kPassOn;
    if (edit.field->RefusesInput())
        return RefuseChar(edit, typed);
    if (typed == kBackspace && edit.swallowBackspace) {
        edit.swallowBackspace = false;
        return Keep();
    }
    const Selection selection = edit.field->ReadSelection();
    const bool deleted = DeleteSelection(edit, selection, true);
    if (typed == kBackspace && Has(edit, BACKSPACE_DONE)) {
        FinishBackspace(edit);
        return Keep();
    }
    if (deleted && typed == kBackspace)
        return Finish(edit, Keep());
    return Finish(edit, Enter(edit, typed, deleted ? Caret(edit) : selection.start, keyData));
}

}  // namespace zte
