// Key and character messages, routed to the code table, the number entry or the position-by-position entry.
#include "engine/edit/keyboard.h"

#include <optional>

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
constexpr uint32_t kCtrlA = 1;
constexpr uint32_t kCtrlC = 3;
constexpr uint32_t kCtrlD = 4;
constexpr uint32_t kBackspace = 8;
constexpr uint32_t kTab = 9;
constexpr uint32_t kLineFeed = 10;
constexpr uint32_t kCtrlV = 22;
constexpr uint32_t kCtrlX = 24;
constexpr uint32_t kCtrlZ = 26;
constexpr uint32_t kEscape = 27;
constexpr uint32_t kCtrlBackspace = 127;

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
    const bool fromTable = edit.codeTable && Has(edit, CODE_SPIN);
    SetFlag(edit, CODE_POSITIONED, false);
    const bool ended = fromTable && Has(edit, SPUN);
    if (ended) {
        SetFlag(edit, CODE_SPIN, false);
        SetData(edit, nullptr);
        SetFlag(edit, CODE_SPIN, true);
        edit.field->SetModified();
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

void Paste(EditInstance& edit)
{
    if (PasteClipboard(edit))
        SetFlag(edit, SPUN, false);
}

void SelectAll(EditInstance& edit)
{
    ForgetPassed(edit);
    edit.field->Select(0, Length(edit.field->ReadText()));
}

void CutSelection(EditInstance& edit, KeyData keyData)
{
    if (edit.field->ReadSelection().IsEmpty())
        return;
    CutByKey(edit, keyData);
}

bool IsPickList(const EditInstance& edit)
{
    return Has(edit, CODE_SPIN) && Has(edit, CODE_PICKLIST);
}

// What becomes of the control characters that have a meaning; no reply for the others. A pick list has a use for none of
// those that edit.
std::optional<Reply> Obey(EditInstance& edit, uint32_t typed, KeyData keyData)
{
    switch (typed) {
    case kCtrlA: SelectAll(edit); return Keep();
    case kCtrlX:
        if (!HasMask(edit))
            return kPassOn;
        CutSelection(edit, keyData);
        return Keep();
    case kCtrlV:
        if (!IsPickList(edit))
            Paste(edit);
        return Keep();
    }
    if (IsPickList(edit))
        return Keep();
    return IsLeftToTheForm(typed) ? std::optional<Reply>(Keep(0)) : std::nullopt;
}

// selection: before the character; where it has been deleted, the caret stands at its start.
Reply Enter(EditInstance& edit, uint32_t typed, Selection selection)
{
    if (IsPickList(edit)) {
        SetFlag(edit, SPUN, false);
        TypeAhead(edit, static_cast<Char>(typed));
        return Keep();
    }
    if (!HasMask(edit)) {
        SetFlag(edit, SPUN | CODE_POSITIONED, false);
        return kPassOn;
    }
    if (EndSpunText(edit))
        selection = edit.field->ReadSelection();
    if (IsNumeric(edit.dataType)) {
        EnterNumber(edit, typed, selection);
        return Keep();
    }
    if (edit.deletePending && typed == kBackspace)
        return kPassOn;
    EnterChar(edit, static_cast<Char>(typed), selection.start);
    return Keep();
}

// A read-only or disabled control is selected and copied from, and takes nothing else.
Reply RefuseChar(EditInstance& edit, uint32_t typed, KeyData keyData)
{
    if (typed == kBackspace && Has(edit, BACKSPACE_DONE))
        FinishBackspace(edit);
    if (typed == kCtrlA)
        SelectAll(edit);
    if (typed == kCtrlX)
        CutSelection(edit, keyData);
    return Keep(IsLeftToTheForm(typed) ? 0 : 1);
}

// Its character never came.
void ForgetBackspace(EditInstance& edit)
{
    edit.deletePending = 0;
    edit.swallowBackspace = false;
}

// A text shown through a code table without a mask: it is edited as a plain text, but an undo would bring back what stood there before
// the entry.
Reply TakeControlCharWithoutMask(EditInstance& edit, uint32_t typed)
{
    if (typed != kCtrlA && typed != kCtrlZ)
        return kPassOn;
    if (typed == kCtrlA)
        SelectAll(edit);
    return Keep();
}

// A control character leaves the text alone: what is selected, and what the spin or the code table shows, too.
Reply TakeControlChar(EditInstance& edit, uint32_t typed, KeyData keyData)
{
    if (!HasMask(edit) && !IsPickList(edit))
        return TakeControlCharWithoutMask(edit, typed);
    if (const std::optional<Reply> reply = Obey(edit, typed, keyData))
        return *reply;
    const Selection selection = edit.field->ReadSelection();
    if (selection.IsEmpty() && !Has(edit, SPUN | CODE_POSITIONED))
        return Enter(edit, typed, selection);
    edit.field->Beep();
    return Keep();
}

}  // namespace

// A key message whose upper half is the Tab key's number is kept from the edit control underneath: hosts that steer the focus
// themselves mark a Tab in this way.
Reply OnKeyDown(EditInstance& edit, uint32_t key, KeyData keyData)
{
    ForgetBackspace(edit);
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
        return RefuseChar(edit, typed, keyData);
    if (typed == kBackspace && edit.swallowBackspace) {
        edit.swallowBackspace = false;
        return Keep();
    }
    if (typed == kCtrlBackspace && Has(edit, BACKSPACE_DONE))
        typed = kBackspace;  // the key-down was that of a Backspace
    if (!IsTyped(typed))
        return Finish(edit, TakeControlChar(edit, typed, keyData));
    // A number is changed at once: what is selected goes together with what takes its place.
    const Selection selection = edit.field->ReadSelection();
    const bool atOnce = IsNumeric(edit.dataType) && !IsPickList(edit);
    const bool deleted = !atOnce && DeleteSelection(edit, selection);
    if (typed == kBackspace && Has(edit, BACKSPACE_DONE)) {
        FinishBackspace(edit);
        return Keep();
    }
    if (deleted && typed == kBackspace)
        return Finish(edit, Keep());
    return Finish(edit, Enter(edit, typed, selection));
}

void OnTextSetFromOutside(EditInstance& edit)
{
    ForgetPassed(edit);
}

void OnFocusLost(EditInstance& edit)
{
    CompleteNumber(edit);
}

}  // namespace zte
