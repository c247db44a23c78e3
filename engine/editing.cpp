// Classic and modern editing as tables.
#include "engine/editing.h"

#include "engine/edit/click.h"
#include "engine/edit/keyboard.h"
#include "engine/edit/paste.h"
#include "engine/format/data.h"
#include "engine/format/mask_setting.h"
#include "engine/format/read_back.h"
#include "engine/modern/acts.h"
#include "engine/modern/data.h"
#include "engine/modern/editor.h"
#include "engine/spin/spin_settings.h"
#include "engine/spin/step.h"

namespace zte {

namespace {

// ---- classic: what it has no part in is the field's own

Reply LeaveToField(EditInstance&)
{
    return kPassOn;
}

Reply PasteClassic(EditInstance& edit)
{
    PasteClipboard(edit);
    return Keep();
}

Reply LeaveReplacing(EditInstance& edit, const Char*, bool)
{
    OnTextSetFromOutside(edit);
    return kPassOn;
}

void StepClassic(EditInstance& edit, bool up, bool)
{
    const uint32_t direction = up ? SPIN_UP : SPIN_DOWN;
    edit.flags |= direction;
    SpinStep(edit);
    SetFlag(edit, direction, false);
}

void Ignore(EditInstance&) {}

constexpr Editing kClassic = {
    OnKeyDown,
    nullptr,
    OnKeyUp,
    OnChar,
    nullptr,
    PasteClassic,
    LeaveToField,
    LeaveToField,
    LeaveToField,
    LeaveToField,
    nullptr,
    StepClassic,
    IsClickCorrected,
    CorrectClick,
    nullptr,
    OnFocusLost,
    OnTextSetFromOutside,
    Ignore,
    Ignore,
    LeaveReplacing,
    LeaveToField,
    LeaveToField,
    SetMask,
    SetData,
    SetDataString,
    GetData,
    FormatValue,
    SetSpin,
};

// ---- modern

bool CorrectEveryClick(EditInstance&)
{
    return true;
}

void NoteCaret(EditInstance& edit)
{
    edit.editor->NoteCaret();
}

void NoteTextSet(EditInstance& edit)
{
    edit.editor->NoteTextSet();
}

constexpr Editing kModern = {
    modern::OnKeyDown,
    NoteCaret,
    modern::OnKeyUp,
    modern::OnChar,
    modern::OnForeignChar,
    modern::Paste,
    modern::Cut,
    modern::Clear,
    modern::Undo,
    modern::Redo,
    modern::OnWheel,
    modern::StepOnce,
    CorrectEveryClick,
    modern::AfterClick,
    modern::OnDoubleClick,
    modern::OnFocusLost,
    Ignore,
    NoteTextSet,
    NoteCaret,
    modern::ReplaceSelection,
    modern::CanUndo,
    modern::EmptyUndo,
    modern::SetMask,
    modern::SetData,
    modern::SetDataString,
    modern::GetData,
    modern::Format,
    modern::SetSpin,
};

}  // namespace

const Editing& EditingOf(const EditInstance& edit)
{
    return edit.editor ? kModern : kClassic;
}

void BeginModern(EditInstance& edit)
{
    edit.editor = new modern::Editor(edit);
}

void EndCreation(EditInstance& edit)
{
    if (edit.editor)
        edit.editor->StartTelling();
}

void TellState(EditInstance& edit)
{
    if (!edit.editor)
        return;
    edit.editor->Look();
    edit.editor->TellState();
}

bool SetModern(EditInstance& edit, bool on)
{
    const bool was = edit.editor != nullptr;
    if (on && !was)
        modern::TakeOver(edit);
    else if (!on && was)
        modern::GiveBack(edit);
    else if (was)
        edit.editor->ForgetHistory();
    return was;
}

void DropEditor(EditInstance& edit)
{
    modern::DropEditor(edit);
}

int32_t StateOf(const EditInstance& edit)
{
    return edit.mask ? modern::StateOf(edit) : ZTS_EMPTY;
}

int32_t TrySetDataString(EditInstance& edit, const Char* text)
{
    return modern::TrySetDataString(edit, text);
}

bool CanonicalText(const EditInstance& edit, Text& text)
{
    return edit.mask && modern::CanonicalText(edit, text);
}

}  // namespace zte
