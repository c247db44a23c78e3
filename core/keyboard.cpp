// Key and character messages, routed to the code table, the number entry or the position-by-position entry.
#include "core/base_edit.h"
#include "core/message_handlers.h"
#include "edit/caret_keys.h"
#include "edit/char_entry.h"
#include "edit/deletion.h"
#include "edit/numeric_entry.h"
#include "edit/paste.h"
#include "format/data.h"
#include "format/read_back.h"
#include "mask/mask_text.h"
#include "spin/code_table.h"

namespace zte {

namespace {

constexpr WPARAM kCtrlC = 3;
constexpr WPARAM kCtrlD = 4;
constexpr WPARAM kBackspace = 8;
constexpr WPARAM kTab = 9;
constexpr WPARAM kLineFeed = 10;
constexpr WPARAM kCtrlV = 22;
constexpr WPARAM kEscape = 27;

bool IsCopy(WPARAM typed)
{
    return typed == kCtrlC || typed == kCtrlD;
}

// Never beeped at: dialogs give them other meanings.
bool IsLeftToTheForm(WPARAM typed)
{
    return typed == kTab || typed == kLineFeed || typed == kEscape;
}

void ReleaseShift()
{
    BYTE keys[256];
    if (!GetKeyboardState(keys))
        return;
    keys[VK_SHIFT] = 0;
    SetKeyboardState(keys);
}

// The key-down has selected the character left of the caret, the deletion has blanked it.
void FinishBackspace(EditInstance& edit)
{
    SetFlag(edit, BACKSPACE_DONE | TYPING, false);
    ReleaseShift();
    PlaceCaret(edit, Caret(edit));
}

// The text that a spin or the code table put there gives way to the blank template at the first typed character.
void EndSpunText(EditInstance& edit)
{
    const bool fromTable = edit.codeTable && Has(edit, CODE_SPIN) && !Has(edit, CODE_PICKLIST);
    if (fromTable)
        SetFlag(edit, CODE_POSITIONED, false);
    if (fromTable && Has(edit, SPUN)) {
        SetFlag(edit, CODE_SPIN, false);
        SetData(edit, nullptr);
        SetFlag(edit, CODE_SPIN, true);
    }
    SetFlag(edit, SPUN, false);
}

// The character of a Backspace whose key-down was left to the base: a forced digit becomes 0, any other goes.
void BackspaceInNumber(EditInstance& edit, WPARAM typed, LPARAM keyData)
{
    const int32_t caret = Caret(edit);
    const int32_t position = caret > 0 ? caret - 1 : 0;
    std::string text = ReadText(edit);
    if (MaskCharAt(edit, text, position).value == '0') {
        text[static_cast<size_t>(position)] = '0';
        SetText(edit, text.c_str());
    } else {
        SetRedraw(edit, false);
        SendCharToBase(edit, static_cast<char>(typed), keyData);
        ReformatNumber(edit, nullptr);
    }
    PlaceCaret(edit, position);
}

void EnterNumber(EditInstance& edit, WPARAM typed, LPARAM keyData)
{
    if (edit.deletePending && typed == kBackspace)
        BackspaceInNumber(edit, typed, keyData);
    else
        EnterNumericChar(edit, typed, keyData);
}

Reply Finish(EditInstance& edit, Reply reply)
{
    SetFlag(edit, TYPING, false);
    SetRedraw(edit, true);
    return reply;
}

Reply Enter(EditInstance& edit, WPARAM typed, LPARAM keyData)
{
    if (!HasMask(edit) && !Has(edit, CODE_SPIN)) {
        SetFlag(edit, SPUN, false);
        return kPassOn;
    }
    if (Has(edit, CODE_SPIN) && Has(edit, CODE_PICKLIST)) {
        SetFlag(edit, SPUN, false);
        CodeTableTypeAhead(edit, static_cast<char>(typed));
        return Keep();
    }
    if (Has(edit, CODE_SPIN) && edit.dataType == DT_STRING && !HasMask(edit)) {
        SetFlag(edit, SPUN, false);
        return kPassOn;
    }
    EndSpunText(edit);
    if (IsLeftToTheForm(typed))
        return Keep(0);
    if (typed == kCtrlV) {
        PasteClipboard(edit);
        return Keep();
    }
    if (IsNumeric(edit.dataType)) {
        EnterNumber(edit, typed, keyData);
        return Keep();
    }
    if (edit.deletePending && typed == kBackspace)
        return kPassOn;
    EnterChar(edit, typed);
    return Keep();
}

// A read-only or disabled control lets copying through and takes nothing else.
Reply RefuseChar(EditInstance& edit, WPARAM typed)
{
    if (typed == kBackspace && Has(edit, BACKSPACE_DONE))
        FinishBackspace(edit);
    return Keep(IsLeftToTheForm(typed) ? 0 : 1);
}

}  // namespace

Reply OnKeyDown(EditInstance& edit, WPARAM wParam, LPARAM lParam)
{
    if (static_cast<uint16_t>(wParam >> 16) == kTab)
        return Keep(0);
    if (!HasMask(edit))
        return kPassOn;
    return HandleKeyDown(edit, wParam, lParam) ? Keep() : kPassOn;
}

Reply OnKeyUp(EditInstance& edit, WPARAM wParam)
{
    edit.deletePending = 0;
    if (wParam == VK_BACK)
        edit.swallowBackspace = false;
    return kPassOn;
}

Reply OnChar(EditInstance& edit, WPARAM wParam, LPARAM lParam)
{
    if (IsCopy(wParam))
        return kPassOn;
    if (IsInputRefused(edit.hwnd))
        return RefuseChar(edit, wParam);
    if (wParam == kBackspace && edit.swallowBackspace) {
        edit.swallowBackspace = false;
        return Keep();
    }
    const bool deleted = DeleteSelection(edit, true);
    if (wParam == kBackspace && Has(edit, BACKSPACE_DONE)) {
        FinishBackspace(edit);
        return Keep();
    }
    if (deleted && wParam == kBackspace)
        return Finish(edit, Keep());
    return Finish(edit, Enter(edit, wParam, lParam));
}

Reply OnPaste(EditInstance& edit)
{
    PasteClipboard(edit);
    return Keep();
}

}  // namespace zte
