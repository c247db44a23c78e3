// The edit control in memory: selection and keys, replacement with its undo step, clipboard, mouse.
#include "engine/memory_field.h"

#include <algorithm>

#include "engine/text/ascii.h"

namespace zte {
namespace {

constexpr int32_t kNoLimit = 0x7FFFFFFE;

// Characters that a keyboard makes with Ctrl, and Backspace.
enum ControlChar : int32_t {
    CHAR_COPY = 0x03,
    CHAR_BACKSPACE = 0x08,
    CHAR_PASTE = 0x16,
    CHAR_CUT = 0x18,
    CHAR_UNDO = 0x1A,
};

constexpr Char AsciiLower(Char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<Char>(c - 'A' + 'a') : c;
}

Char FoldAscii(Char character, LetterCase letterCase)
{
    return letterCase == LetterCase::Upper ? AsciiUpper(character) : AsciiLower(character);
}

int32_t WordLeft(const Text& text, int32_t position)
{
    while (At(text, position - 1) == ' ')
        --position;
    while (position > 0 && At(text, position - 1) != ' ')
        --position;
    return position;
}

int32_t WordRight(const Text& text, int32_t position)
{
    const int32_t length = Length(text);
    while (position < length && At(text, position) != ' ')
        ++position;
    while (At(text, position) == ' ')
        ++position;
    return position;
}

// A single line takes what is copied up to its first line break.
int32_t FirstLineLength(const Text& text)
{
    const int32_t end = Find(text, Char{'\n'});
    if (end < 0)
        return Length(text);
    return At(text, end - 1) == '\r' ? end - 1 : end;
}

}  // namespace

Selection MemoryField::ReadSelection() const
{
    return anchor_ < caret_ ? Selection{anchor_, caret_} : Selection{caret_, anchor_};
}

// ---- selection

void MemoryField::SetSelection(int32_t anchor, int32_t caret)
{
    const auto length = static_cast<uint32_t>(text_.size());
    const auto clamp = [length](int32_t position) {
        return static_cast<int32_t>(std::min(static_cast<uint32_t>(position), length));
    };
    if (anchor == -1) {
        anchor_ = caret_;
        return;
    }
    anchor_ = clamp(anchor);
    caret_ = clamp(caret);
}

void MemoryField::MoveCaret(int32_t position, bool extend)
{
    caret_ = std::clamp(position, 0, Length(text_));
    if (!extend)
        anchor_ = caret_;
}

// ---- replacement and undo

void MemoryField::SetText(const Char* text)
{
    if (!text_.empty() || *text)
        ForgetUndo();
    text_ = text;
    FoldCase(0, text_.size());
    anchor_ = caret_ = 0;
    modified_ = false;
    Tell(FieldEvent::Update);
    Tell(FieldEvent::Change);
}

void MemoryField::ReplaceSelection(const Char* text)
{
    const int32_t limit = limit_;
    limit_ = std::max(limit, Length(text_));
    Replace(text, false);
    limit_ = limit;
    ForgetUndo();
}

void MemoryField::Replace(const Char* text, bool canUndo)
{
    Put(text, static_cast<int32_t>(TextLength(text)), canUndo);
}

// What the limit leaves for an insertion in the place of the selection; negative where the rest is longer already.
int32_t MemoryField::Room() const
{
    const Selection selection = ReadSelection();
    return limit_ - (Length(text_) - (selection.end - selection.start));
}

void MemoryField::Put(const Char* text, int32_t count, bool canUndo)
{
    if (count == 0 && anchor_ == caret_)
        return;
    if (count > Room()) {
        Tell(FieldEvent::LimitReached);
        count = std::min(count, std::max(Room(), 0));
    }
    const Selection selection = ReadSelection();
    const auto start = static_cast<size_t>(selection.start);
    if (canUndo)
        Remember(selection, count);
    else if (count > 0 || !selection.IsEmpty())
        ForgetUndo();
    if (count == selection.end - selection.start)
        std::copy_n(text, count, text_.begin() + selection.start);
    else
        text_.replace(start, static_cast<size_t>(selection.end) - start, text, static_cast<size_t>(count));
    FoldCase(start, static_cast<size_t>(count));
    anchor_ = caret_ = selection.start + count;
    modified_ = true;
    Tell(FieldEvent::Update);
    Tell(FieldEvent::Change);
}

void MemoryField::FoldCase(size_t start, size_t count)
{
    if (style_.letterCase == LetterCase::AsTyped)
        return;
    const auto fold = style_.foldCase ? style_.foldCase : FoldAscii;
    for (size_t i = start; i < start + count; ++i)
        text_[i] = fold(text_[i], style_.letterCase);
}

void MemoryField::Remember(Selection replaced, int32_t insertedCount)
{
    if (!replaced.IsEmpty())
        RememberRemoval(replaced);
    if (insertedCount > 0)
        RememberInsertion(replaced.start, insertedCount);
}

// Removals side by side are undone together.
void MemoryField::RememberRemoval(Selection range)
{
    const auto start = static_cast<size_t>(range.start);
    const size_t count = static_cast<size_t>(range.end) - start;
    const bool goesOn = insertedCount_ == 0;
    if (goesOn && range.start == undoPosition_) {
        removed_.append(text_, start, count);
    } else if (goesOn && range.end == undoPosition_) {
        removed_.insert(0, text_, start, count);
    } else {
        removed_.assign(text_, start, count);
        insertedCount_ = 0;
    }
    undoPosition_ = range.start;
}

// So are insertions at either end of the last one, with the removal before it.
void MemoryField::RememberInsertion(int32_t position, int32_t count)
{
    if (position != undoPosition_ && position != undoPosition_ + insertedCount_) {
        removed_.clear();
        undoPosition_ = position;
        insertedCount_ = 0;
    }
    insertedCount_ += count;
}

void MemoryField::ForgetUndo()
{
    removed_.clear();
    insertedCount_ = 0;
}

// The undone step becomes the one that the next undo takes back.
void MemoryField::Undo()
{
    if (style_.readOnly)
        return;
    restored_.swap(removed_);
    const int32_t position = undoPosition_;
    SetSelection(position, position + insertedCount_);
    ForgetUndo();
    Put(restored_.c_str(), Length(restored_), true);
    SetSelection(position, caret_);
    Tell(FieldEvent::Change);
}

// ---- clipboard

void MemoryField::Copy()
{
    const Selection selection = ReadSelection();
    if (!selection.IsEmpty())
        clipboard_.emplace(text_, static_cast<size_t>(selection.start),
                           static_cast<size_t>(selection.end - selection.start));
}

void MemoryField::Cut()
{
    Copy();
    Clear();
}

// Unlike WM_CUT, which copies from a read-only control too.
void MemoryField::CutByKey()
{
    if (!style_.readOnly)
        Cut();
}

void MemoryField::Paste()
{
    if (!style_.readOnly && clipboard_)
        Put(clipboard_->c_str(), FirstLineLength(*clipboard_), true);
}

void MemoryField::Clear()
{
    constexpr Char kNothing{};
    if (!style_.readOnly)
        Put(&kNothing, 0, true);
}

// ---- keys

// One row a key and the Shift and Ctrl keys held with it; other combinations do nothing.
struct MemoryField::EditKey {
    Key key;
    bool shift;
    bool control;
    void (MemoryField::*act)();
};

void MemoryField::Press(Key key)
{
    static constexpr EditKey kEditKeys[] = {
        {KEY_DELETE, false, false, &MemoryField::DeleteForward },
        {KEY_DELETE, true,  false, &MemoryField::CutOrBackspace},
        {KEY_DELETE, false, true,  &MemoryField::DeleteToEnd   },
        {KEY_INSERT, true,  false, &MemoryField::Paste         },
        {KEY_INSERT, true,  true,  &MemoryField::Paste         },
        {KEY_INSERT, false, true,  &MemoryField::Copy          },
    };
    const int32_t destination = Destination(key);
    if (destination >= 0) {
        MoveCaret(destination, shiftHeld_);
        return;
    }
    if (key != KEY_DELETE && key != KEY_INSERT)
        return;  // it makes a character, or nothing
    for (const EditKey& row : kEditKeys)
        if (row.key == key && row.shift == shiftHeld_ && row.control == controlHeld_)
            (this->*row.act)();
}

// Where a key leads the caret; -1 for keys that do not move it.
int32_t MemoryField::Destination(Key key) const
{
    switch (key) {
    case KEY_LEFT:
    case KEY_UP: return controlHeld_ ? WordLeft(text_, caret_) : std::max(caret_ - 1, 0);
    case KEY_RIGHT:
    case KEY_DOWN: return controlHeld_ ? WordRight(text_, caret_) : caret_ + 1;
    case KEY_HOME: return 0;
    case KEY_END: return Length(text_);
    default: return -1;
    }
}

void MemoryField::PressArrow(Key key, KeyData, int32_t times)
{
    for (; times > 0; --times)
        Press(key);
}

void MemoryField::PressDelete(KeyData)
{
    Press(KEY_DELETE);
}

void MemoryField::Press(Key key, bool shift, bool control)
{
    const bool shiftBefore = shiftHeld_;
    const bool controlBefore = controlHeld_;
    shiftHeld_ = shift;
    controlHeld_ = control;
    Press(key);
    shiftHeld_ = shiftBefore;
    controlHeld_ = controlBefore;
}

void MemoryField::Erase(int32_t anchor, int32_t caret)
{
    if (style_.readOnly)
        return;
    if (anchor_ == caret_)
        SetSelection(std::max(anchor, 0), caret);
    Clear();
}

void MemoryField::DeleteForward()
{
    Erase(caret_, caret_ + 1);
}

void MemoryField::DeleteToEnd()
{
    Erase(caret_, Length(text_));
}

void MemoryField::Backspace()
{
    Erase(caret_ - 1, caret_);
}

void MemoryField::CutOrBackspace()
{
    if (anchor_ == caret_)
        Backspace();
    else
        CutByKey();
}

// ---- characters

void MemoryField::Type(Char character)
{
    switch (character) {
    case CHAR_BACKSPACE:
        if (!controlHeld_)
            Backspace();
        return;
    case CHAR_COPY: Copy(); return;
    case CHAR_PASTE: Paste(); return;
    case CHAR_CUT: CutByKey(); return;
    case CHAR_UNDO: Undo(); return;
    default: break;
    }
    if (!IsControl(character) && !style_.readOnly && (!style_.digitsOnly || IsDigit(character)))
        Put(&character, 1, true);
}

void MemoryField::Type(const Text& characters)
{
    for (const Char character : characters)
        Type(character);
}

// ---- mouse

void MemoryField::Click(int32_t position, bool shift)
{
    MoveCaret(position, shift);
}

void MemoryField::Drag(int32_t from, int32_t to)
{
    MoveCaret(from, false);
    MoveCaret(to, true);
}

// Selects the word with the blanks behind it.
void MemoryField::DoubleClick(int32_t position)
{
    const int32_t start = WordLeft(text_, std::clamp(position, 0, Length(text_)));
    SetSelection(start, WordRight(text_, start));
}

// ---- the program around

void MemoryField::SetLimit(int32_t characters)
{
    limit_ = characters > 0 ? std::min(characters, kNoLimit) : kNoLimit;
}

void MemoryField::SetRedraw(bool on)
{
    if (on && !redrawOff_)
        return;
    redrawOff_ = !on;
    Tell(on ? FieldEvent::RedrawOn : FieldEvent::RedrawOff);
}

bool MemoryField::IsHeld(Key key) const
{
    switch (key) {
    case KEY_SHIFT: return shiftHeld_;
    case KEY_CONTROL: return controlHeld_;
    case KEY_RIGHT: return rightHeld_;
    default: return false;
    }
}

bool MemoryField::NotifyRejected(int32_t reason, int32_t position, Char character)
{
    rejected_ = {reason, position, character};
    Tell(FieldEvent::Rejected);
    return quiet_;
}

void MemoryField::NotifyState(int32_t was, int32_t is)
{
    stateChange_ = {was, is};
    Tell(FieldEvent::State);
}

void MemoryField::Tell(FieldEvent event)
{
    ++counts_[static_cast<size_t>(event)];
    if (listener_)
        listener_->OnFieldEvent(event);
}

}  // namespace zte
