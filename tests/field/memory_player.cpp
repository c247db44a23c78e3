// Each action of a script as a call of the field in memory.
#include "tests/field/memory_player.h"

namespace zttest {
namespace {

zte::Text Widened(const std::string& text)
{
    zte::Text wide;
    for (const char c : text)
        wide += static_cast<zte::Char>(static_cast<unsigned char>(c));
    return wide;
}

std::string Narrowed(const zte::Text& text)
{
    std::string narrow;
    for (const zte::Char c : text)
        narrow += static_cast<char>(c);
    return narrow;
}

zte::FieldStyle StyleOf(int32_t style, zte::Char (*foldCase)(zte::Char, zte::LetterCase))
{
    zte::FieldStyle result;
    result.readOnly = (style & kReadOnly) != 0;
    result.digitsOnly = (style & kDigits) != 0;
    if (style & kUpper)
        result.letterCase = zte::LetterCase::Upper;
    if (style & kLower)
        result.letterCase = zte::LetterCase::Lower;
    result.foldCase = foldCase;
    return result;
}

}  // namespace

MemoryPlayer::MemoryPlayer(int32_t style, zte::Char (*foldCase)(zte::Char, zte::LetterCase))
    : field_(StyleOf(style, foldCase))
{
    field_.SetListener(this);
}

std::string MemoryPlayer::Play(const Operation& operation)
{
    const int32_t first = operation.first;
    const int32_t second = operation.second;
    const zte::Text text = Widened(operation.text);
    told_.clear();
    field_.HoldShift((second & kShiftDown) != 0);
    field_.HoldControl((second & kCtrlDown) != 0);
    switch (operation.action) {
    case Action::Type: field_.Type(text); break;
    case Action::Key: field_.Press(static_cast<zte::Key>(first)); break;
    case Action::SetText: field_.SetText(text.c_str()); break;
    case Action::Put: field_.ReplaceSelection(text.c_str()); break;
    case Action::Replace: field_.Replace(text.c_str(), false); break;
    case Action::ReplaceWithUndo: field_.Replace(text.c_str(), true); break;
    case Action::Select: field_.SetSelection(first, second); break;
    case Action::Limit: field_.SetLimit(first); break;
    case Action::FillClipboard: field_.SetClipboard(text); break;
    case Action::EmptyClipboard: field_.SetClipboard(std::nullopt); break;
    case Action::Cut: field_.Cut(); break;
    case Action::Copy: field_.Copy(); break;
    case Action::Paste: field_.Paste(); break;
    case Action::Clear: field_.Clear(); break;
    case Action::Undo:
    case Action::UndoByWindowMessage: field_.Undo(); break;
    case Action::ForgetUndo: field_.ForgetUndo(); break;
    case Action::Modify: field_.SetModifiedFlag(first != 0); break;
    case Action::Click: field_.Click(first); break;
    case Action::ShiftClick: field_.Click(first, true); break;
    case Action::DoubleClick: field_.DoubleClick(first); break;
    case Action::Drag: field_.Drag(first, second); break;
    case Action::ReadOnly: field_.SetReadOnly(first != 0); break;
    }
    return told_;
}

State MemoryPlayer::Look() const
{
    const zte::Selection selection = field_.ReadSelection();
    State state;
    state.text = Narrowed(field_.Shown());
    state.start = selection.start;
    state.end = selection.end;
    state.caretAtStart = field_.Caret() < field_.Anchor();
    state.modified = field_.IsModified();
    state.canUndo = field_.CanUndo();
    state.limit = field_.Limit();
    return state;
}

std::string MemoryPlayer::ClipboardText() const
{
    return Narrowed(field_.ReadClipboard().value_or(zte::Text()));
}

void MemoryPlayer::OnFieldEvent(zte::FieldEvent event)
{
    if (event == zte::FieldEvent::Update)
        told_ += 'U';
    if (event == zte::FieldEvent::Change)
        told_ += 'C';
    if (event == zte::FieldEvent::LimitReached)
        told_ += 'M';
}

}  // namespace zttest
