// Key and character messages, routed to the code table, the number entry or the position-by-position entry.
#include "engine/edit/keyboard.h"

#include "engine/edit/char_entry.h"
#include "engine/edit/deletion.h"
#include "engine/edit/key_down.h"
#include "engine/edit/numeric_entry.h"
#include "engine/edit/paste.h"
#include "engine/edit/type_ahead.h"
#include "engine/format/data.h"

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
    SetFlag(edit, BACKSPACE_DONE, false);
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

void EnterNumber(EditInstance& edit, uint32_t typed, Selection selection)
{
    if (typed == kBackspace && (edit.deletePending || !selection.IsEmpty()))
        BackspaceInNumber(edit, selection);
    else
        EnterNumericChar(edit, static_cast<Char>(typed), selection);
}

Reply Finish(EditInstance& edit, Reply reply)
{
    edit.field->SetRedraw(true);
    return reply;
}

// selection: before the character; the caret where one was deleted.
Reply Enter(EditInstance& edit, uint32_t typed, Selection selection)
{
    if (!HasMask(edit) && !Has(edit, CODE_SPIN)) {
        SetFlag(edit, SPUN, false);
        return kPassOn;
    }
    if (Has(edit, CODE_SPIN) && Has(edit, CODE_PICKLIST)) {
        SetFlag(edit, SPUN, false);
        TypeAhead(edit, static_cast<Char>(typed));
        return Keep();
    }
    if (Has(edit, CODE_SPIN) && edit.dataType == DT_STRING && !HasMask(edit)) {
        SetFlag(edit, SPUN, false);
        return kPassOn;
    }
    if (EndSpunText(edit))
        selection = edit.field->ReadSelection();
    if (IsLeftToTheForm(typed))
        return Keep(0);
    if (typed == kCtrlV) {
        PasteClipboard(edit);
        return Keep();
    }
    if (IsNumeric(edit.dataType)) {
        EnterNumber(edit, typed, selection);
        return Keep();
    }
    if (edit.deletePending && typed == kBackspace)
        return kPassOn;
    EnterChar(edit, static_cast<Char>(typed), selection.start);
    return Keep();
}

// A read-only or disabled control lets copying through and takes nothing else.
Reply RefuseChar(EditInstance& edit, uint32_t typed)
{
    if (typed == kBackspace && Has(edit, BACKSPACE_DONE))
        FinishBackspace(edit);
    return Keep(IsLeftToTheForm(typed) ? 0 : 1);
}

// Its character never came.
void ForgetBackspace(EditInstance& edit)
{
    edit.deletePending = 0;
    edit.swallowBackspace = false;
}

}  // namespace

// A key message whose upper half is the Tab key's number is kept from the edit control underneath: hosts that steer the focus
// themselves mark a Tab in this way.
Reply OnKeyDown(EditInstance& edit, uint32_t key, KeyData keyData)
{
    ForgetBackspace(edit);
    if (key >> 16 == KEY_TAB)
        return Keep(0);
    if (!HasMask(edit))
        return kPassOn;
    return HandleKeyDown(edit, static_cast<int32_t>(key), keyData) ? Keep() : kPassOn;
}

Reply OnKeyUp(EditInstance& edit, uint32_t key)
{
    edit.deletePending = 0;
    if (key == KEY_BACKSPACE)
        edit.swallowBackspace = false;
    return kPassOn;
}

Reply OnChar(EditInstance& edit, uint32_t typed)
{
    if (IsCopy(typed))
        return kPassOn;
    if (edit.field->RefusesInput())
        return RefuseChar(edit, typed);
    if (typed == kBackspace && edit.swallowBackspace) {
        edit.swallowBackspace = false;
        return Keep();
    }
    // A number is changed at once: what is selected goes together with what takes its place.
    const Selection selection = edit.field->ReadSelection();
    const bool deleted = !IsNumeric(edit.dataType) && DeleteSelection(edit, selection);
    if (typed == kBackspace && Has(edit, BACKSPACE_DONE)) {
        FinishBackspace(edit);
        return Keep();
    }
    if (deleted && typed == kBackspace)
        return Finish(edit, Keep());
    return Finish(edit, Enter(edit, typed, deleted ? edit.field->ReadSelection() : selection));
}

}  // namespace zte
