// The model's characters: what a typed character does under a mask, and the way over literals.
// Numbers have a typing of their own.
#include "model_control.h"
#include "model_text.h"

#include <algorithm>
#include <cctype>
#include <cstring>

namespace model {

void Control::Char(char c, bool shift)
{
    shift_ = shift;
    if (readOnly_ || (!enabled_ && !IsPlain())) {
        if (c == 1 && !IsPlain()) {
            ForgetTyping();
            edit_.Select(0, edit_.Length());
        }
        return;
    }
    const std::string before = Text();
    const bool wasModified = modified_;
    if (IsPlain())
        edit_.Char(c);
    else
        TakeChar(c);
    NoteChange(before, wasModified);
}

void Control::TakeChar(char c)
{
    if (IsPlain())
        return edit_.Char(c);
    if (IsControl(c) && c != '\b')
        return TakeControlChar(c);
    if (c == '\b' && IsNumeric() && backspaceKey_ == BackspaceKey::Done) {
        backspaceKey_ = BackspaceKey::None;
        return;
    }
    const bool wasSelected = DeleteSelection();
    if (wasSelected)
        ForgetTyping();
    if (wasSelected && c == '\b' && !backspaceDone_)
        return;
    if (backspaceDone_ && c == '\b') {
        backspaceDone_ = false;
        PlaceCaret(edit_.Start());
        return;
    }
    if (codeSpin_ && codePick_)
        return TypeAhead(c);
    if (codeSpin_ && type_ == kString && mask_.empty()) {
        positioned_ = false;
        return edit_.Char(c);
    }
    if (hasTable_ && codeSpin_ && !codePick_) {
        positioned_ = false;
        if (spun_) {
            const BackspaceKey waits = backspaceKey_;  // its character finds the blank
            codeSpin_ = false;
            SetData(Value::None());
            codeSpin_ = true;
            backspaceKey_ = waits;
            spun_ = false;
        }
    }
    spun_ = false;
    if (IsNumeric()) {
        if (c == '\b' && backspaceKey_ == BackspaceKey::Waits) {
            backspaceKey_ = BackspaceKey::None;
            BackspaceInNumber();
        } else
            EnterNumericChar(c, wasSelected);
    } else if (deletePending_ && c == '\b')
        edit_.Char(c);
    else
        EnterChar(c);
}

// Control characters leave a selection alone, but for Ctrl+X.
void Control::TakeControlChar(char c)
{
    constexpr char selectAll = 1;
    constexpr char cut = 24;
    switch (c) {
    case selectAll:
        ForgetTyping();
        edit_.Select(0, edit_.Length());
        return;
    case cut:
        if (edit_.Start() != edit_.End()) {
            ForgetTyping();
            if (IsNumeric())
                DeleteSelection();
            else if (!PositionalDeletion(kDelete, false))
                edit_.Key(kDelete, false);
            deletePending_ = false;
        }
        return;
    case 3:
    case 4:
    case '\t':
    case '\n':
    case 27: return;
    default: break;
    }
    if (codeSpin_ && (codePick_ || (type_ == kString && mask_.empty())))
        return;
    if (edit_.Start() != edit_.End() || spun_ || positioned_)
        Beep();
    else if (IsNumeric())
        EnterNumericChar(c, false);
    else
        EnterChar(c);
}

// The marker that a letter stands for, in either case; the other one than is shown where both begin with it.
std::string Control::MarkerFor(char c) const
{
    if (!ampm_ || (type_ != kTime && type_ != kDateTime))
        return "";
    const bool am = Upper(c) == Upper(CharOf(regional_->am, 0));
    const bool pm = Upper(c) == Upper(CharOf(regional_->pm, 0));
    const bool morning = edit_.Length() > ampmPos_ &&
                         Text().compare(static_cast<size_t>(ampmPos_), regional_->am.size(), regional_->am) == 0;
    if (am && pm)
        return morning ? regional_->pm : regional_->am;
    return am ? regional_->am : pm ? regional_->pm : "";
}

void Control::PlaceMarker(const std::string& marker)
{
    edit_.Select(ampmPos_, ampmPos_ + MarkerWidth());
    edit_.Replace(marker);
    if (StepsToEditable(edit_.Start() - 1, true) == 0)
        TellFull();
    else
        SkipLiterals(edit_.Start(), true);
}

void Control::EnterChar(char c)
{
    typed_.clear();
    const std::string carried = carried_;
    carried_.clear();
    int position = edit_.Start();
    int typedAt = position;
    int n = 0;
    bool placed = false;
    const std::string marker = MarkerFor(c);
    if (!marker.empty()) {
        // What takes the letter itself keeps it.
        const int own = position < firstField_ && !Editable(Text(), position) ? firstField_ : position;
        const bool taken = own < ShownLength() && Editable(Text(), own) && Validate(c, own) == Verdict::Accepted;
        typed_.clear();
        zeroPadded_ = false;
        if (!taken)
            return PlaceMarker(marker);
    }
    {
        if (static_cast<unsigned>(position) > static_cast<unsigned>(ShownLength() - 1))
            return;
        const size_t over = carried.find(c);
        if (over != std::string::npos) {
            carried_ = carried.substr(over + 1);
            return;
        }
        if (!Editable(Text(), position)) {
            if (position >= firstField_)
                return Beep();
            position = typedAt = firstField_;
            PlaceCaret(position);
            if (Editable(Text(), position)) {
                if (Validate(c, position) == Verdict::Refused)
                    return Beep();
                placed = true;
            }
        } else if (Validate(c, position) == Verdict::Accepted)
            placed = true;
        else {
            const int literal = FindLiteralAhead(Text(), position, c);
            if (literal <= 0)
                return Beep();
            if (IsTemporal())
                PadFieldDigit(position);
            PlaceCaret(literal + 1);
        }
    }
    if (placed) {
        n = static_cast<int>(typed_.size());
        edit_.Select(typedAt, typedAt + n);
        edit_.Replace(typed_);
    }
    int caret = edit_.Start();
    if (n > 1 && zeroPadded_) {
        // A padded digit fills its field; a digit in front of a 0 and a month name leave the field open.
        const bool name = std::isalpha(static_cast<unsigned char>(typed_[0])) != 0;
        const bool filled = !name && typed_[1] == c && c != '0';
        caret = typedAt + (filled ? 2 : 1);
        PlaceCaret(caret);
        zeroPadded_ = false;
    }
    if (StepsToEditable(caret - 1, true) == 0) {
        if (autoskip_)
            TellFull();
        else
            PlaceCaret(edit_.Start());
        return;
    }
    if (SkipLiterals(caret, true))
        PlaceCaret(edit_.End());
}

int Control::FindLiteralAhead(const std::string& text, int position, char c) const
{
    for (int i = position + 1; i < std::min(static_cast<int>(text.size()), ShownLength()); ++i) {
        const MaskChar at = CharAt(text, i);
        if (text[static_cast<size_t>(i)] == c && (at.c != '~' || keyword_) && !InsideAmPm(i) && !InTable(at.c, type_))
            return i;
    }
    return -1;
}

void Control::PadFieldDigit(int position)
{
    const char letter = Upper(CharAt(Text(), position).c);
    if (letter == '\0' || std::strchr("MDHS", letter) == nullptr || RunBefore(position) != 1 ||
        RunAfter(position) != 0 || InsideAmPm(position))
        return;
    const char digit = CharOf(Text(), position - 1);
    if (!IsDigit(digit) || digit == '0')
        return;
    std::string text = Text();
    text[static_cast<size_t>(position)] = digit;
    text[static_cast<size_t>(position) - 1] = '0';
    edit_.SetText(text);
}

// Carries the caret over literals from `position`; true when an editable position was found.
bool Control::SkipLiterals(int position, bool remember)
{
    for (int k = 0;; ++k) {
        const int at = position + k;
        if (!InFraction(at)) {
            if (at > ShownLength() - 1 || CharAt(Text(), at).c == '\0')
                return false;
            if (!OnAmPm(at) && !Editable(Text(), at))
                continue;
        }
        if (k > 0)
            PlaceCaret(at);
        if (remember && k > 0 && position <= edit_.Length())
            carried_ = Text().substr(static_cast<size_t>(position), static_cast<size_t>(k));
        return true;
    }
}

}  // namespace model
