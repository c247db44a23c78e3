// The state of one control in modern editing.
#include "engine/modern/editor.h"

#include <algorithm>
#include <utility>

namespace zte::modern {

namespace {

bool IsSame(Selection one, Selection other)
{
    return one.start == other.start && one.end == other.end;
}

bool IsSameValue(const Content& one, const Content& other)
{
    return one.isEmpty == other.isEmpty && one.text == other.text;
}

int32_t CommonBeginning(const Text& one, const Text& other)
{
    const auto shorter = static_cast<Text::difference_type>(std::min(one.size(), other.size()));
    const auto differs = std::mismatch(one.begin(), one.begin() + shorter, other.begin());
    return static_cast<int32_t>(differs.first - one.begin());
}

int32_t CommonEnd(const Text& one, const Text& other, int32_t beginning)
{
    const int32_t most = std::min(Length(one), Length(other)) - beginning;
    const auto differs = std::mismatch(one.rbegin(), one.rbegin() + most, other.rbegin());
    return static_cast<int32_t>(differs.first - one.rbegin());
}

}  // namespace

Content Editor::AtField() const
{
    Content content;
    content.text = edit_.field->ReadText();
    content.selection = edit_.field->ReadSelection();
    return content;
}

const Content& Editor::Look()
{
    Content now = AtField();
    if (now.text == left_.text) {
        now.isEmpty = left_.isEmpty;
        now.isUntouched = left_.isUntouched;
        if (IsSame(now.selection, left_.selection))
            now.typing = std::move(left_.typing);
    } else {
        history_.Clear();
    }
    left_ = std::move(now);
    return left_;
}

Content Editor::Peek() const
{
    Content now = AtField();
    now.isEmpty = now.text == left_.text && left_.isEmpty;
    return now;
}

const Content& Editor::LookAtTyping(bool pauseEnds)
{
    Look();
    const uint32_t now = edit_.field->Milliseconds();
    if (pauseEnds && now - std::exchange(lastTyped_, now) >= History::kPause)
        left_.typing = {};
    left_.typing.keypadPoint = std::exchange(keypadPoint_, false);
    return left_;
}

void Editor::Finish(Outcome outcome, Run run, Char typed)
{
    if (outcome.reason != 0) {
        Tell(outcome, typed);
        return;
    }
    const Content before = left_;
    if (!IsSameValue(before, outcome.content))
        history_.Add(before, outcome.content, run, edit_.field->Milliseconds());
    const bool goesOn = outcome.isFull && Has(edit_, AUTOSKIP);
    const bool chosen = run == Run::Stepping || &KindOf(edit_) == &kChoices;
    Show(before, outcome.content);
    if (chosen && !IsSameValue(before, outcome.content))
        edit_.field->NotifyValue();
    if (goesOn && state_ != ZTS_INVALID)
        edit_.field->NotifyFull();
}

// A refused key does not end what was begun: the next one may still be the rest of a month's name.
void Editor::Tell(const Outcome& refused, Char typed)
{
    const int32_t position = refused.position >= 0 ? refused.position : left_.selection.start;
    if (!edit_.field->NotifyRejected(refused.reason, position, typed))
        edit_.field->Beep();
}

// The content is remembered before the field is touched: the parent may ask for it in a notification.
void Editor::Show(const Content& before, const Content& after)
{
    left_ = after;
    if (before.text != after.text)
        ReplaceDifference(before.text, after.text);
    if (left_.text != after.text)
        return;  // the parent has put in another text meanwhile, which is its own
    if (before.text != after.text || !IsSame(before.selection, after.selection))
        edit_.field->Select(after.selection.start, after.selection.end);
    if (!IsSameValue(before, after))
        edit_.field->SetModified();
    TellState();
}

// One replacement, so that the parent hears of one change.
void Editor::ReplaceDifference(const Text& before, const Text& after)
{
    const int32_t beginning = CommonBeginning(before, after);
    const int32_t end = CommonEnd(before, after, beginning);
    edit_.field->SetRedraw(false);
    edit_.field->Select(beginning, Length(before) - end);
    edit_.field->SetRedraw(true);
    edit_.field->ReplaceSelection(Slice(after, beginning, Length(after) - end - beginning).c_str());
    PutBackWhatWasCut(after);
}

// A field may take less than what is put there: its limit is reached, or it is too narrow and does not scroll.
void Editor::PutBackWhatWasCut(const Text& text)
{
    const bool isCurrent = left_.text == text;  // the parent has put in nothing else meanwhile
    if (isCurrent && edit_.field->ReadText() != text)
        edit_.field->SetText(text.c_str());
}

void Editor::MoveCaret(Selection selection)
{
    const Content before = left_;
    Content after = Untyped(KindOf(edit_).leave(edit_, before, selection.start));
    const bool completed = !IsSameValue(before, after);
    after.selection = selection;
    if (completed)
        history_.Amend(before, after);
    history_.EndRun();
    Show(before, after);
}

void Editor::NoteCaret()
{
    const Content was = left_;
    const Content& now = Look();
    if (now.text != was.text || IsSame(now.selection, was.selection))
        return;
    Content after = KindOf(edit_).leave(edit_, was, now.selection.start);
    after = Untyped(std::move(after));
    after.selection = now.selection;
    history_.EndRun();
    if (IsSameValue(was, after))
        return;
    history_.Amend(was, after);
    Show(Content(now), after);
}

void Editor::Leave()
{
    const Content before = Look();
    Content after = Untyped(KindOf(edit_).leave(edit_, before, -1));
    if (!IsSameValue(before, after))
        history_.Amend(before, after);
    history_.EndRun();
    Show(before, after);
}

bool Editor::CanUndo()
{
    Look();
    return history_.CanUndo();
}

bool Editor::Undo()
{
    const Content before = Look();
    if (!history_.CanUndo())
        return false;
    Show(before, Content(history_.Undo()));
    edit_.field->NotifyValue();
    return true;
}

bool Editor::Redo()
{
    const Content before = Look();
    if (!history_.CanRedo())
        return false;
    Show(before, Content(history_.Redo()));
    edit_.field->NotifyValue();
    return true;
}

void Editor::ShowData(const Content& content)
{
    history_.Clear();
    left_ = content;
    ShowText(edit_, Text(content.text).c_str());
    if (content.selection.end != 0)
        edit_.field->Select(content.selection.start, content.selection.end);
    TellState();
}

void Editor::NoteTextSet()
{
    history_.Clear();
    left_ = AtField();
    TellState();
}

void Editor::TellState()
{
    const int32_t is = KindOf(edit_).state(edit_, left_);
    const int32_t was = std::exchange(state_, is);
    if (was != is && tells_)
        edit_.field->NotifyState(was, is);
}

void Editor::TakeOver(const Content& content)
{
    left_ = content;
    state_ = KindOf(edit_).state(edit_, left_);
    tells_ = true;
    if (edit_.field->ReadText() != content.text)
        ShowText(edit_, content.text.c_str());
}

}  // namespace zte::modern
