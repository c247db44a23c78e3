// The acts of a modern control's user and of its program.
#include "engine/modern/acts.h"

#include "engine/modern/editor.h"
#include "engine/text/ascii.h"

namespace zte::modern {

namespace {

constexpr int32_t kPage = 10;  // steps
constexpr int32_t kWholeTable = INT32_MAX;
constexpr KeyData kRepeated = 0x40000000;  // in a key message: the key was down before

constexpr uint32_t kKeypadPoint = 0x6E;  // a key

// Characters of the Ctrl key and of keys that are no letters.
constexpr uint32_t kCtrlA = 1;
constexpr uint32_t kCtrlC = 3;
constexpr uint32_t kBackspace = 8;
constexpr uint32_t kTab = 9;
constexpr uint32_t kLineFeed = 10;
constexpr uint32_t kReturn = 13;
constexpr uint32_t kCtrlV = 22;
constexpr uint32_t kCtrlX = 24;
constexpr uint32_t kCtrlY = 25;
constexpr uint32_t kCtrlZ = 26;
constexpr uint32_t kEscape = 27;
constexpr uint32_t kCtrlBackspace = 127;

constexpr bool IsRepeated(KeyData keyData)
{
    return (keyData & kRepeated) != 0;
}

// The control takes input; where it does not, the act is refused.
bool MayChange(EditInstance& edit, Char typed = {})
{
    if (!edit.field->RefusesInput())
        return true;
    edit.editor->Look();
    edit.editor->Refuse(ZTR_READ_ONLY, typed);
    return false;
}

void Erase(EditInstance& edit, Eraser eraser)
{
    if (!MayChange(edit))
        return;
    Editor& editor = *edit.editor;
    editor.Finish(KindOf(edit).erase(edit, editor.Look(), eraser), Run::Deleting);
}

void EraseSelection(EditInstance& edit)
{
    if (edit.field->ReadSelection().IsEmpty() || !MayChange(edit))
        return;
    Editor& editor = *edit.editor;
    editor.Finish(KindOf(edit).erase(edit, editor.Look(), Eraser::Forward), Run::None);
}

void Enter(EditInstance& edit, Char typed)
{
    if (!MayChange(edit, typed))
        return;
    Editor& editor = *edit.editor;
    const Kind& kind = KindOf(edit);
    const Content& content = editor.LookAtTyping(kind.forgetsTyping);
    editor.Finish(kind.type(edit, content, typed), Run::Typing, typed);
}

void SelectAll(EditInstance& edit)
{
    Editor& editor = *edit.editor;
    editor.MoveCaret({0, Length(editor.Look().text)});
}

// What ends a line was never part of a text of one line: a cell of a spreadsheet brings it along.
Text WithoutLineEnd(Text text)
{
    text.resize(text.find_last_not_of(FromAscii("\r\n")) + 1);
    return text;
}

void Insert(EditInstance& edit, const Text& text)
{
    Editor& editor = *edit.editor;
    editor.Finish(KindOf(edit).paste(edit, editor.Look(), text), Run::None);
}

bool MayStep(const EditInstance& edit)
{
    return edit.hwndSpin || &KindOf(edit) == &kChoices;
}

// ---- keys

// With Shift the field selects; what the caret leaves is completed before.
Reply Move(EditInstance& edit, Key key)
{
    Editor& editor = *edit.editor;
    const Content& content = editor.Look();
    if (edit.field->IsHeld(KEY_SHIFT)) {
        editor.MoveCaret(content.selection);
        return kPassOn;
    }
    const int32_t position = KindOf(edit).move(edit, content, key, edit.field->IsHeld(KEY_CONTROL));
    editor.MoveCaret({position, position});
    return Keep();
}

// Right at the end of a field that is no wrong one is a wish to go on.
Reply MoveRight(EditInstance& edit)
{
    const Selection before = edit.field->ReadSelection();
    const Reply reply = Move(edit, KEY_RIGHT);
    const bool atEnd = reply.kept && before.IsEmpty() && edit.editor->Left().Caret() == before.start;
    if (atEnd && Has(edit, AUTOSKIP) && edit.editor->State() != ZTS_INVALID)
        edit.field->NotifyFull();
    return reply;
}

Reply StepByKey(EditInstance& edit, int32_t steps, KeyData keyData)
{
    if (!MayStep(edit))
        return kPassOn;
    Step(edit, steps, IsRepeated(keyData));
    return Keep();
}

// Without anything to step the keys move the caret, as those of the field itself do.
Reply StepOrMove(EditInstance& edit, int32_t steps, KeyData keyData)
{
    return MayStep(edit) ? StepByKey(edit, steps, keyData) : Move(edit, steps > 0 ? KEY_LEFT : KEY_RIGHT);
}

Reply Delete(EditInstance& edit)
{
    if (edit.field->IsHeld(KEY_SHIFT))
        return Cut(edit);
    Erase(edit, edit.field->IsHeld(KEY_CONTROL) ? Eraser::ForwardWord : Eraser::Forward);
    return Keep();
}

Reply InsertKey(EditInstance& edit)
{
    return edit.field->IsHeld(KEY_SHIFT) ? Paste(edit) : kPassOn;
}

// A list of choices is walked from end to end.
Reply MoveOrChoose(EditInstance& edit, Key key)
{
    if (&KindOf(edit) != &kChoices)
        return Move(edit, key);
    Step(edit, key == KEY_HOME ? -kWholeTable : kWholeTable, false);
    return Keep();
}

// ---- characters

bool IsLeftToTheForm(uint32_t typed)
{
    return typed == kTab || typed == kLineFeed || typed == kReturn || typed == kEscape;
}

Reply Obey(EditInstance& edit, uint32_t typed)
{
    switch (typed) {
    case kCtrlA: SelectAll(edit); return Keep();
    case kCtrlC: return kPassOn;
    case kBackspace: Erase(edit, Eraser::Back); return Keep();
    case kCtrlBackspace: Erase(edit, Eraser::BackWord); return Keep();
    case kCtrlV: return Paste(edit);
    case kCtrlX: return Cut(edit);
    case kCtrlY: return Redo(edit);
    case kCtrlZ: return edit.field->IsHeld(KEY_SHIFT) ? Redo(edit) : Undo(edit);
    default: break;
    }
    if (IsLeftToTheForm(typed))
        return Keep(0);
    edit.editor->Look();
    edit.editor->Refuse(ZTR_WRONG_KIND, static_cast<Char>(typed));
    return Keep();
}

}  // namespace

Reply OnKeyDown(EditInstance& edit, uint32_t key, KeyData keyData)
{
    edit.editor->ExpectKeypadPoint(key == kKeypadPoint);
    if (key >> 16 == KEY_TAB)
        return Keep(0);
    switch (key) {
    case KEY_DELETE: return Delete(edit);
    case KEY_LEFT: return Move(edit, KEY_LEFT);
    case KEY_RIGHT: return MoveRight(edit);
    case KEY_HOME:
    case KEY_END: return MoveOrChoose(edit, static_cast<Key>(key));
    case KEY_UP: return StepOrMove(edit, 1, keyData);
    case KEY_DOWN: return StepOrMove(edit, -1, keyData);
    case KEY_PAGE_UP: return StepByKey(edit, kPage, keyData);
    case KEY_PAGE_DOWN: return StepByKey(edit, -kPage, keyData);
    case KEY_INSERT: return InsertKey(edit);
    default: return kPassOn;
    }
}

Reply OnKeyUp(EditInstance&, uint32_t)
{
    return kPassOn;
}

Reply OnChar(EditInstance& edit, uint32_t typed, KeyData)
{
    if (IsControl(static_cast<Char>(typed)))
        return Obey(edit, typed);
    Enter(edit, static_cast<Char>(typed));
    return Keep();
}

Reply OnForeignChar(EditInstance& edit)
{
    if (MayChange(edit)) {
        edit.editor->Look();
        edit.editor->Refuse(ZTR_NOT_IN_CODE_PAGE);
    }
    return Keep();
}

Reply Paste(EditInstance& edit)
{
    if (!MayChange(edit))
        return Keep();
    const Text text = WithoutLineEnd(edit.field->ReadClipboard().value_or(Text()));
    if (!text.empty())
        Insert(edit, text);
    return Keep();
}

Reply Cut(EditInstance& edit)
{
    if (edit.field->ReadSelection().IsEmpty())
        return Keep();
    edit.field->CopySelection();
    EraseSelection(edit);
    return Keep();
}

Reply Clear(EditInstance& edit)
{
    EraseSelection(edit);
    return Keep();
}

Reply Undo(EditInstance& edit)
{
    return Keep(MayChange(edit) && edit.editor->Undo());
}

Reply Redo(EditInstance& edit)
{
    return Keep(MayChange(edit) && edit.editor->Redo());
}

Reply CanUndo(EditInstance& edit)
{
    return Keep(edit.editor->CanUndo());
}

Reply EmptyUndo(EditInstance& edit)
{
    edit.editor->ForgetHistory();
    return Keep(0);
}

Reply ReplaceSelection(EditInstance& edit, const Char* text, bool canUndo)
{
    Insert(edit, text ? Text(text) : Text());
    if (!canUndo)
        edit.editor->ForgetHistory();
    return Keep();
}

// Held at the end of the range is one act, and refused once.
void Step(EditInstance& edit, int32_t steps, bool repeated)
{
    if (!MayChange(edit))
        return;
    Editor& editor = *edit.editor;
    if (!repeated)
        editor.EndRun();
    const Outcome outcome = KindOf(edit).step(edit, editor.Look(), steps);
    if (editor.NoteStep(outcome.reason != 0) && repeated)
        return;
    editor.Finish(outcome, Run::Stepping);
}

void StepOnce(EditInstance& edit, bool up, bool repeated)
{
    Step(edit, up ? 1 : -1, repeated);
}

// Turned notches less than a second apart are one step of the history.
Reply OnWheel(EditInstance& edit, int32_t notches)
{
    if (!MayStep(edit))
        return kPassOn;
    if (notches != 0)
        Step(edit, notches, true);
    return Keep(0);
}

bool AfterClick(EditInstance& edit)
{
    Editor& editor = *edit.editor;
    editor.NoteCaret();
    const Content& content = editor.Left();
    if (!content.selection.IsEmpty())
        return false;
    const int32_t position = KindOf(edit).click(edit, content, content.Caret());
    if (position == content.Caret())
        return false;
    editor.MoveCaret({position, position});
    return true;
}

Reply OnDoubleClick(EditInstance& edit, int32_t position)
{
    Editor& editor = *edit.editor;
    editor.MoveCaret(KindOf(edit).wordAt(edit, editor.Look(), position));
    return Keep(0);
}

void OnFocusLost(EditInstance& edit)
{
    edit.editor->Leave();
}

}  // namespace zte::modern
