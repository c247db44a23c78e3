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
    if (Refuses()) {
        if (c == 1) {
            ForgetTyping();
            edit_.Select(0, edit_.Length());
        }
        return;
    }
    const std::string before = Text();
    TakeChar(c);
    NoteChange(before);
}

// True when a control character has had all its effect; it never deletes what is selected.
bool Control::TakeControl(char c)
{
    const bool pick = codeSpin_ && codePick_;
    const bool plain = mask_.empty() && (!codeSpin_ || (type_ == kString && !codePick_));
    if (plain)
        return false;
    if (c == 1) {
        ForgetTyping();
        edit_.Select(0, edit_.Length());
        return true;
    }
    if (pick || c == '\t' || c == '\n' || c == 27)
        return true;
    if (edit_.Start() == edit_.End() && !spun_ && !positioned_)
        return false;
    Beep();
    return true;
}

void Control::TakeChar(char c)
{
    if (c == 3 || c == 4)
        return;
    if (c == '\b' && numericBackspaceDone_ && IsNumeric()) {
        numericBackspaceDone_ = false;
        return;
    }
    if (IsControl(c) && c != '\b' && TakeControl(c)) {
        typing_ = false;
        return;
    }
    const bool wasSelected = IsControl(c) && c != '\b' ? false : DeleteSelection(true);
    if (wasSelected)
        ForgetTyping();
    const auto finish = [this] { typing_ = false; };
    if (wasSelected && c == '\b' && !backspaceDone_)
        return finish();
    if (backspaceDone_ && c == '\b') {
        backspaceDone_ = false;
        PlaceCaret(edit_.Start());
        return finish();
    }
    if (IsPlain()) {
        edit_.Char(c);
        return finish();
    }
    if (codeSpin_ && codePick_) {
        TypeAhead(c);
        return finish();
    }
    if (codeSpin_ && type_ == kString && mask_.empty()) {
        edit_.Char(c);
        return finish();
    }
    if (hasTable_ && codeSpin_ && !codePick_) {
        positioned_ = false;
        if (spun_) {
            codeSpin_ = false;
            SetData(Value::None());
            codeSpin_ = true;
            spun_ = false;
        }
    }
    spun_ = false;
    if (IsNumeric()) {
        if (!deletePending_ || c != '\b')
            EnterNumericChar(c);
        else {
            const int position = std::max(0, edit_.Start() - 1);
            if (CharAt(Text(), position).c == '0') {
                std::string text = Text();
                text[static_cast<size_t>(position)] = '0';
                edit_.SetText(text);
            } else {
                edit_.Char(c);
                Reformat(nullptr);
            }
            PlaceCaret(position);
        }
    } else if (deletePending_ && c == '\b')
        edit_.Char(c);
    else
        EnterChar(c);
    finish();
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
    const int point = PointPos(Text());
    for (int k = 0;; ++k) {
        const int at = position + k;
        const bool inFraction = decimalPlaces_ != 0 && point < at && point + decimalPlaces_ + 1 > at;
        if (!inFraction) {
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
