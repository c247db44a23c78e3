// The model's keys: caret movement, deletion, paste and clicks.
// The plain edit underneath does what is passed on to it.
#include "model_control.h"
#include "model_text.h"

#include <algorithm>
#include <cstdlib>

namespace model {

void Control::KeyDown(int key, bool shift)
{
    shift_ = shift;
    backspaceKey_ = BackspaceKey::None;
    const bool navigation = key >= 0x21 && key <= 0x28;
    if (navigation || key == kBackspace || key == kDelete || key == kInsert)
        ForgetTyping();
    const bool deletes = key == kBackspace || key == kDelete;
    // The plain edit underneath takes it for granted that a disabled window gets no keys.
    const bool steps = key == kUp || key == kDown;
    const bool refuses = readOnly_ || (!enabled_ && (steps || !mask_.empty()));
    if (refuses && deletes)
        return;
    const std::string before = Text();
    const bool wasModified = modified_;
    if ((mask_.empty() && !steps) || (refuses && steps) || !HandleKeyDown(key, shift, true))
        edit_.Key(key, shift);
    NoteChange(before, wasModified);
}

bool Control::HandleKeyDown(int key, bool shift, bool byUser)
{
    switch (key) {
    case kBackspace:
    case kDelete: return IsNumeric() ? NumericDeletion(key) : PositionalDeletion(key, shift);
    case kLeft:
    case kRight:
        if (shift || (IsNumeric() && !charwise_))
            return false;
        MoveCaret(key, shift, byUser);
        return true;
    case kUp:
    case kDown:
        if (increment_ == 0)
            return false;
        SpinStep(key == kUp);
        return true;
    default: return false;
    }
}

// A Backspace that finds a selection is done at once; any other waits for its character.
bool Control::NumericDeletion(int key)
{
    const bool backspace = key == kBackspace;
    if (DeleteSelection())
        backspaceKey_ = backspace ? BackspaceKey::Done : BackspaceKey::None;
    else if (backspace)
        backspaceKey_ = BackspaceKey::Waits;
    else
        DeleteInNumber();
    return true;
}

bool Control::PositionalDeletion(int key, bool shift)
{
    if ((formatFlags_ & 0x4000) == 0) {
        deletePending_ = true;
        return false;
    }
    if (DeleteSelection()) {
        if (key == kBackspace)
            backspaceDone_ = true;
        return true;
    }
    if (key == kBackspace) {
        MoveCaret(kBackspace, shift, true);
        backspaceDone_ = true;
        return true;
    }
    const int position = edit_.Start();
    if (position == edit_.Length() || !Editable(Text(), position))
        return true;
    edit_.Select(position, position + 1);
    edit_.Replace(type_ == kString ? " " : "0");
    PlaceCaret(position);
    return true;
}

void Control::MoveCaret(int key, bool shift, bool byUser)
{
    const int step = key == kLeft ? -1 : 1;
    const int length = edit_.Length();
    int position = edit_.Start();
    int n = 0;
    bool move = false;
    for (;;) {
        position += step;
        ++n;
        if (key == kRight && position >= length) {
            if (InFraction(position))
                move = true;
            else {
                if (autoskip_)
                    ++autoskips_;
                move = position == length && byUser;
            }
            break;
        }
        if (key == kLeft && position < 0) {
            move = true;
            break;
        }
        if (shift || key == kBackspace) {
            shift = true;
            key = kLeft;
            move = true;
            break;
        }
        if (CharAt(Text(), position).c == '\0')
            break;
        if (OnAmPm(position) || Editable(Text(), position)) {
            move = true;
            break;
        }
    }
    for (int i = 0; move && i < n; ++i)
        edit_.Key(key, shift);
}

int Control::StepsToEditable(int position, bool forward) const
{
    const int step = forward ? 1 : -1;
    for (int n = 1;; ++n) {
        position += step;
        if (forward ? position > ShownLength() - 1 : position < 0)
            return 0;
        if (CharAt(Text(), position).c == '\0' || OnAmPm(position) || Editable(Text(), position))
            return n;
    }
}

bool Control::DeleteSelection()
{
    const int start = edit_.Start();
    const int end = edit_.End();
    if (start == end)
        return false;
    if (IsNumeric()) {
        DeleteNumericSelection();
        return true;
    }
    std::string blank = Format(Value::None()).text;
    if (blank.empty())
        edit_.Replace("");
    else {
        // The AM/PM field changes by its letters only.
        if (ampm_ && (type_ == kTime || type_ == kDateTime) && ShowsMarker(blank))
            blank.replace(static_cast<size_t>(ampmPos_), regional_->am.size(),
                          edit_.Length() < ampmPos_
                              ? std::string()
                              : Text().substr(static_cast<size_t>(ampmPos_), static_cast<size_t>(MarkerWidth())));
        edit_.Replace(static_cast<int>(blank.size()) <= start
                          ? std::string()
                          : blank.substr(static_cast<size_t>(start), static_cast<size_t>(end - start)));
    }
    PlaceCaret(start);
    return true;
}

void Control::SetSelection(int start, int end)
{
    edit_.Select(start, end);
    ForgetTyping();
}

void Control::Paste(const std::string& clipboard)
{
    if (readOnly_ || (!enabled_ && !IsPlain()))
        return;
    const std::string before = Text();
    const bool wasModified = modified_;
    if (IsPlain())
        edit_.Replace(clipboard);
    else
        PasteText(clipboard);
    NoteChange(before, wasModified);
}

void Control::PasteText(const std::string& clipboard)
{
    const Value data = Unformat(clipboard);
    if (data.none)
        return;
    if (!IsNumeric())
        return SetData(data);
    std::string text = data.text;
    if (!IsNumber(text, Point()))
        return Beep();
    for (char& c : text)
        c = c == Point() ? '.' : c;
    // A bare number is a percentage in a percent field: the point moves before the text becomes a value.
    const Number number = Number::FromText(text).TimesPowerOfTen(percent_ ? -2 : 0);
    if (type_ == kNumber && !percent_)
        SetData(Value::OfNumber(Number::FromDouble(ToDouble(text))));
    else
        SetData(Value::OfNumber(number));
}

void Control::Click(int position)
{
    shift_ = false;
    ForgetTyping();
    PlaceCaret(position);
    if (ThroughCodes() && positioned_ && !codePick_) {
        positioned_ = false;
        return;
    }
    if (mask_.empty() || (IsNumeric() && !charwise_) || Text().empty())
        return;
    if (InFraction(position) || OnAmPm(position) || position == edit_.Length() || Editable(Text(), position))
        return;
    const int right = StepsToEditable(position, true);
    const int left = StepsToEditable(position, false);
    if (left != 0)
        MoveCaret(right == 0 || left < right ? kLeft : kRight, shift_, false);
}

}  // namespace model
