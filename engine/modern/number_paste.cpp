// Texts pasted into modern numbers: read as people write numbers, or refused where they could be read in two ways.
#include "engine/modern/number_paste.h"

#include <algorithm>

#include "engine/modern/number_content.h"
#include "engine/text/ascii.h"
#include "engine/values/number_text.h"

namespace zte::modern::numbers {

namespace {

constexpr int32_t kGroupSize = 3;
constexpr int32_t kAnyPlaces = 15;  // that "[GENERAL]" shows

bool IsPadding(Char c)
{
    return IsSpace(c) || IsBlankCharacter(c);
}

// A symbol made of what numbers are made of cannot be told from one.
bool IsTold(const Text& symbol)
{
    return std::any_of(symbol.begin(), symbol.end(), [](Char c) {
        return !IsDigit(c) && !IsSign(c) && !IsBlankCharacter(c) && c != '.' && c != ',' && c != '\'';
    });
}

Text Trimmed(const Text& text)
{
    size_t start = 0;
    size_t end = text.size();
    while (start < end && IsPadding(text[start]))
        ++start;
    while (end > start && IsPadding(text[end - 1]))
        --end;
    return text.substr(start, end - start);
}

// ---- what stands around the digits

// Takes signs, symbols, parentheses and '%' off both ends of a text, each of them once.
class Wrapping {
public:
    Wrapping(const EditInstance& edit, const Text& text) : edit_(edit), text_(text), end_(Length(text)) { Strip(); }

    int32_t Start() const { return start_; }
    int32_t End() const { return end_; }
    bool IsNegative() const { return negative_; }
    bool IsBracketed() const { return opened_; }
    bool IsWhole() const { return opened_ == closed_ && !(opened_ && signed_); }

private:
    void Strip()
    {
        const Text symbol = Trimmed(edit_.settings->currencySymbol);
        const Text before = Trimmed(MaskOf(edit_).before.text);
        const Text behind = Trimmed(MaskOf(edit_).behind.text);
        while (TakeFirst(before) || TakeFirst(symbol) || TakeFirst(behind)) {}
        while (TakeLast(behind) || TakeLast(symbol) || TakeLast(before)) {}
    }

    bool TakeFirst(const Text& symbol)
    {
        const Char c = At(text_, start_);
        if (start_ >= end_)
            return false;
        if (IsPadding(c) || TakeSign(c) || TakeOnce(c == '(', opened_)) {
            ++start_;
            return true;
        }
        const bool stands = text_.compare(static_cast<size_t>(start_), symbol.size(), symbol) == 0;
        if (!stands || !TakeOnce(IsSymbol(symbol), symbol_))
            return false;
        start_ += Length(symbol);
        return true;
    }

    bool TakeLast(const Text& symbol)
    {
        const Char c = At(text_, end_ - 1);
        if (start_ >= end_)
            return false;
        if (IsPadding(c) || TakeSign(c) || TakeOnce(c == ')', closed_) ||
            TakeOnce(c == '%' && MaskOf(edit_).shape.percent, percent_)) {
            --end_;
            return true;
        }
        const int32_t at = end_ - Length(symbol);
        const bool stands = at >= start_ && text_.compare(static_cast<size_t>(at), symbol.size(), symbol) == 0;
        if (!stands || !TakeOnce(IsSymbol(symbol), symbol_))
            return false;
        end_ = at;
        return true;
    }

    static bool IsSymbol(const Text& symbol) { return IsTold(symbol) && !Equals(symbol, "%"); }

    bool TakeSign(Char c)
    {
        if (!TakeOnce(IsSign(c), signed_))
            return false;
        negative_ = negative_ || c == '-';
        return true;
    }

    static bool TakeOnce(bool stands, bool& taken)
    {
        if (!stands || taken)
            return false;
        taken = true;
        return true;
    }

    const EditInstance& edit_;
    const Text& text_;
    int32_t start_ = 0;
    int32_t end_;
    bool signed_ = false;
    bool negative_ = false;
    bool opened_ = false;
    bool closed_ = false;
    bool symbol_ = false;
    bool percent_ = false;
};

// ---- digits and separators

// Where separators stand in a text of nothing but them and digits.
struct Separators {
    int32_t first = -1;
    int32_t last = -1;
    int32_t kinds = 0;
    int32_t ofFirst = 0;  // as often the first one's character stands there
    int32_t ofLast = 0;
    int32_t foreign = -1;  // what is neither
};

class Reading {
public:
    Reading(const EditInstance& edit, const Text& text, int32_t start, int32_t end)
        : edit_(edit), text_(text), start_(start), end_(end)
    {
        FindSeparators();
    }

    // 0, or why the text is no number, and of what.
    Reason Judge()
    {
        position_ = found_.foreign >= 0 ? found_.foreign : start_;
        if (found_.foreign >= 0 || CountDigits(start_, end_) == 0)
            return ZTR_DOES_NOT_FIT;
        if (found_.kinds == 0)
            return 0;
        position_ = found_.last;
        if (found_.kinds > 1)
            return JudgeTwoKinds();
        return found_.ofFirst > 1 ? JudgeGroups(end_) : JudgeOne();
    }

    int32_t Position() const { return position_; }

    TypedNumber Number() const
    {
        TypedNumber number;
        for (int32_t i = start_; i < end_; ++i)
            if (IsDigit(At(text_, i)))
                (point_ >= 0 && i > point_ ? number.fraction : number.integer) += At(text_, i);
        number.integer.erase(0, std::min(number.integer.find_first_not_of(Char{'0'}), number.integer.size()));
        return number;
    }

private:
    bool IsPointOnly(Char c) const { return c == edit_.settings->decimalChar && c != '.' && c != ','; }
    bool IsGroupOnly(Char c) const
    {
        return !IsPoint(c) && (IsBlankCharacter(c) || c == '\'' || c == edit_.settings->thousandChar);
    }
    bool IsPoint(Char c) const { return c == '.' || c == ',' || c == edit_.settings->decimalChar; }
    bool Separates(Char c) const { return IsPoint(c) || IsGroupOnly(c); }

    void FindSeparators()
    {
        for (int32_t i = start_; i < end_; ++i)
            if (!IsDigit(At(text_, i)))
                Note(i);
        for (int32_t i = start_; i < end_; ++i) {
            found_.ofFirst += found_.first >= 0 && At(text_, i) == At(text_, found_.first) ? 1 : 0;
            found_.ofLast += found_.last >= 0 && At(text_, i) == At(text_, found_.last) ? 1 : 0;
        }
    }

    void Note(int32_t at)
    {
        const Char c = At(text_, at);
        if (!Separates(c)) {
            found_.foreign = found_.foreign < 0 ? at : found_.foreign;
            return;
        }
        const bool isNew = found_.last < 0 || (c != At(text_, found_.first) && c != At(text_, found_.last));
        found_.kinds += isNew ? 1 : 0;
        found_.first = found_.first < 0 ? at : found_.first;
        found_.last = at;
    }

    int32_t CountDigits(int32_t from, int32_t to) const
    {
        int32_t count = 0;
        for (int32_t i = from; i < to; ++i)
            count += IsDigit(At(text_, i)) ? 1 : 0;
        return count;
    }

    // The last is the point, and stands once; the other one groups the digits before it.
    Reason JudgeTwoKinds()
    {
        const Char last = At(text_, found_.last);
        if (found_.kinds > 2 || !IsPoint(last) || found_.ofLast > 1)
            return ZTR_DOES_NOT_FIT;
        point_ = found_.last;
        return JudgeGroups(found_.last);
    }

    // One to three digits, and behind each separator three.
    Reason JudgeGroups(int32_t end)
    {
        int32_t digits = 0;
        bool isFirst = true;
        for (int32_t i = start_; i <= end; ++i) {
            if (i < end && IsDigit(At(text_, i))) {
                ++digits;
                continue;
            }
            if (digits > kGroupSize || digits == 0 || (!isFirst && digits != kGroupSize)) {
                position_ = std::min(i, end_ - 1);
                return ZTR_DOES_NOT_FIT;
            }
            isFirst = false;
            digits = 0;
        }
        return IsPointOnly(At(text_, found_.first)) ? ZTR_DOES_NOT_FIT : 0;
    }

    Reason JudgeOne()
    {
        const Char c = At(text_, found_.last);
        if (IsGroupOnly(c))
            return JudgeGroups(end_);
        if (end_ - found_.last - 1 != kGroupSize)
            return TakePoint();
        return JudgeOneBeforeThree(c);
    }

    // "1,234": by the settings alone, and never against them.
    Reason JudgeOneBeforeThree(Char c)
    {
        const Settings& settings = *edit_.settings;
        if (c == settings.decimalChar)
            return FractionPlaces() >= kGroupSize || IsPointOnly(c) ? TakePoint() : ZTR_IN_DOUBT;
        if (c != settings.thousandChar)
            return ZTR_IN_DOUBT;
        const bool couldBeFraction = At(text_, start_) == '0' && found_.last == start_ + 1;
        return couldBeFraction ? ZTR_IN_DOUBT : JudgeGroups(end_);
    }

    Reason TakePoint()
    {
        point_ = found_.last;
        return 0;
    }

    int32_t FractionPlaces() const { return MaskOf(edit_).isGeneral ? kAnyPlaces : MaskOf(edit_).shape.fractionPlaces; }

    const EditInstance& edit_;
    const Text& text_;
    int32_t start_;
    int32_t end_;
    Separators found_;
    int32_t point_ = -1;
    int32_t position_ = 0;
};

// ---- the outcome

Outcome Pasted(const EditInstance& edit, Content content)
{
    content.isUntouched = false;
    const int32_t end = MaskOf(edit).isGeneral ? Length(content.text) : HeldNumber(edit, content).Shown().End();
    return Accepted(WithCaret(std::move(content), end));
}

Outcome PasteNumber(const EditInstance& edit, TypedNumber number, int32_t position)
{
    if (MaskOf(edit).isGeneral)
        return Pasted(edit, ShowingValue(edit, PlainText(number)));
    RoundToPlaces(number, MaskOf(edit).shape.fractionPlaces);
    number.negative = number.negative && !IsZero(number);
    if (!HasRoomFor(edit, number))
        return Refused(ZTR_DOES_NOT_FIT, position);
    return Pasted(edit, Showing(edit, Lay(edit, number)));
}

// What the field itself shows: no digit means that it is empty.
Outcome PasteShown(const EditInstance& edit, const Text& text)
{
    if (MaskOf(edit).isGeneral)
        return Pasted(edit, ShowingValue(edit, WithPlainPoint(text, *edit.settings)));
    TypedNumber number = ShownNumber(MaskOf(edit), *edit.settings, text).Digits();
    if (number.integer.empty() && number.fraction.empty())
        return number.negative ? Refused(ZTR_DOES_NOT_FIT, 0) : Pasted(edit, Blank(edit));
    number.integer.erase(0, std::min(number.integer.find_first_not_of(Char{'0'}), number.integer.size()));
    return PasteNumber(edit, std::move(number), 0);
}

}  // namespace

Outcome Paste(const EditInstance& edit, const Content& /*content*/, const Text& text)
{
    if (IsOfMask(edit, text))
        return PasteShown(edit, text);
    const Wrapping wrapping(edit, text);
    if (!wrapping.IsWhole())
        return Refused(ZTR_DOES_NOT_FIT, wrapping.Start());
    Reading reading(edit, text, wrapping.Start(), wrapping.End());
    if (const Reason reason = reading.Judge())
        return Refused(reason, reading.Position());
    TypedNumber number = reading.Number();
    number.negative = wrapping.IsNegative() || wrapping.IsBracketed();
    return PasteNumber(edit, std::move(number), wrapping.Start());
}

}  // namespace zte::modern::numbers
