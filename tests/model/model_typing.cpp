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
    if (readOnly_ || (!enabled_ && !IsPlain()))
        return;
    const std::string before = Text();
    if (IsPlain())
        edit_.Char(c);
    else
        TakeChar(c);
    NoteChange(before);
}

void Control::TakeChar(char c)
{
    if (c == 3 || c == 4)
        return;
    if (c == '\b' && numericBackspaceDone_ && IsNumeric()) {
        numericBackspaceDone_ = false;
        return;
    }
    const bool wasSelected = DeleteSelection(true);
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
    if (codeSpin_ && codePick_) {
        TypeAhead(c);
        return finish();
    }
    if (codeSpin_ && type_ == kString && mask_.empty()) {
        positioned_ = false;
        edit_.Char(c);
        return finish();
    }
    const bool enters = (static_cast<unsigned char>(c) >= ' ' && c != 127) || c == '\b';
    if (enters && hasTable_ && codeSpin_ && !codePick_) {
        positioned_ = false;
        if (spun_) {
            codeSpin_ = false;
            SetData(Value::None());
            codeSpin_ = true;
            spun_ = false;
        }
    }
    spun_ = spun_ && !enters;
    if (c == '\t' || c == '\n' || c == 27)
        return finish();
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

void Control::EnterChar(char c)
{
    typed_.clear();
    const std::string carried = carried_;
    carried_.clear();
    int position = edit_.Start();
    int typedAt = position;
    int n = 0;
    bool placed = false;
    const bool marker = ampm_ && (type_ == kTime || type_ == kDateTime) &&
                        (c == CharOf(regional_->am, 0) || c == CharOf(regional_->pm, 0));
    if (marker) {
        typed_ = c;
        typedAt = ampmPos_;
        placed = true;
    } else {
        if (static_cast<unsigned>(position) > static_cast<unsigned>(displayLength_ - 1))
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
            MoveCaret(kRight, shift_, false);
        else
            PlaceCaret(edit_.Start());
        return;
    }
    if (SkipLiterals(caret, true))
        PlaceCaret(edit_.End());
}

int Control::FindLiteralAhead(const std::string& text, int position, char c) const
{
    for (int i = position + 1; i < std::min(static_cast<int>(text.size()), displayLength_); ++i) {
        const MaskChar at = CharAt(text, i);
        if (text[static_cast<size_t>(i)] == c && at.c != '~' && !InsideAmPm(i) && !InTable(at.c, type_))
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
            if (at > displayLength_ - 1 || CharAt(Text(), at).c == '\0')
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
