// The model's modern numbers: a sign, integer digits and fraction digits, laid through the mask again after each act.
#include "model_number.h"
#include "model_text.h"
#include "modern_control.h"
#include "modern_text.h"

#include <cstring>

namespace model::modern {
namespace {

// The digits that are held: the integer ones without zeros in front, the fraction ones with those that a mask forces.
struct Held {
    bool negative = false;
    std::string integer;
    std::string fraction;

    bool IsZero() const { return (integer + fraction).find_first_not_of('0') == std::string::npos; }
};

class Numbers final : public ModernKind {
public:
    Numbers(const Regional& regional, const Config& config) : format_(*Format::Compile(config.mask))
    {
        signs_.point = regional.Point();
        signs_.group = regional.thousand != '\0' ? regional.thousand : ',';
        room_ = static_cast<size_t>(
            std::count_if(format_.integer.begin(), format_.integer.end(), [](char c) { return c == '#' || c == '0'; }));
        const std::string front = config.mask.substr(0, config.mask.find('.'));
        const size_t comma = front.find(',');
        const size_t before = comma == std::string::npos ? 2 : comma - front.find_first_of("#0");
        if (before == 1 && front.find(',', comma + 1) == std::string::npos)
            room_ = config.type == kNumber ? 15 : 28;
    }

    Made Type(Content content, char c) const override
    {
        if (c == '+' && !Read(content).digits.negative && (content.empty || content.Start() <= FirstDigit(content)))
            return Made::Of(content);
        if (content.Selected() && (IsDigit(c) || c == signs_.group || IsPoint(c, content)))
            return TypeOver(content, c);
        if (IsDigit(c))
            return TypeDigit(content, c);
        if (c == '-' || c == '+')
            return TypeSign(content, c);
        const ShownNumber shown = Read(content);
        const bool inside = content.caret > FirstDigit(content) && !InFraction(shown, content.caret);
        if (c == signs_.group && format_.Groups(signs_) && inside) {
            // The one that is shown there is passed over.
            if (content.caret < PointOf(shown) && content.text[static_cast<size_t>(content.caret)] == c)
                content.Place(content.caret + 1);
            return Made::Of(content);
        }
        if (IsPoint(c, content))
            return TypePoint(content);
        return Made::Refused(kWrongKind);
    }

    Made Erase(Content content, bool forward, bool whole) const override
    {
        const ShownNumber shown = Read(content);
        const std::vector<int> all = DigitsAt(shown);
        const Held held = Of(shown);
        // Places of a fraction that hold nothing are nothing to take from before the point.
        const bool holds = shown.digits.fraction.find_first_not_of('0') != std::string::npos;
        int at = -1;
        if (forward) {
            for (size_t i = all.size(); i-- > 0;)
                at = all[i] >= content.caret ? all[i] : at;
        } else
            for (const int digit : all)
                at = digit < content.caret ? digit : at;
        if (shown.sign >= 0 && content.caret == shown.sign + (forward ? 0 : 1))
            at = shown.sign;
        if (content.empty) {
            if (!forward)
                content.Place(FirstOf(shown));
            return Made::Of(content);
        }
        if (content.lone && at != shown.sign && forward)
            return Made::Of(content);
        if (held.IsZero() && !content.lone && at >= 0 && at != shown.sign)
            return Made::Of(Zeroed(held.negative));
        // Zeros that a mask forces are nothing to take; the caret goes before them.
        if (at >= 0 && at != shown.sign && !InFraction(shown, at) && at < FirstSignificant(shown)) {
            if (!forward) {
                content.Place(shown.integerAt[0]);
                return Made::Of(content);
            }
            at = FirstSignificant(shown) < PointOf(shown) ? FirstSignificant(shown)
                 : holds && !shown.fractionAt.empty()     ? shown.fractionAt[0]
                                                          : -1;
            if (at < 0)
                return Made::Of(content);
        }
        if (at < 0 || (forward && InFraction(shown, at) && !InFraction(shown, content.caret) && !holds))
            return Made::Of(content);
        content.anchor = at;
        content.caret = at + 1;
        if (whole && (at != shown.sign || (forward && content.Start() <= at))) {
            const bool fraction = InFraction(shown, at);
            content.anchor = forward ? at : fraction ? shown.point + 1 : shown.integerAt[0];
            content.caret = !forward ? at + 1 : fraction ? LastOf(content) : PointOf(shown);
        }
        return Clear(content);
    }

    Made Clear(Content content) const override
    {
        const ShownNumber shown = Read(content);
        Held held = Of(shown);
        const int from = content.Start();
        const int to = content.End();
        const auto taken = [&](int at) { return at >= from && at < to; };
        bool any = shown.sign >= 0 && taken(shown.sign);
        for (const int at : DigitsAt(shown))
            any = any || taken(at);
        if (!any) {
            // Signs between digits are nothing to take.
            content.Place(from);
            return Made::Of(content);
        }
        std::string integer;
        size_t left = 0;
        for (size_t i = 0; i < shown.integerAt.size(); ++i)
            if (!taken(shown.integerAt[i])) {
                integer += shown.digits.integer[i];
                left += shown.integerAt[i] < from ? 1 : 0;
            }
        const size_t right = integer.size() - left;
        held.integer = Stripped(integer);
        held.fraction.clear();
        size_t place = 0;
        for (size_t i = 0; i < shown.fractionAt.size(); ++i)
            if (!taken(shown.fractionAt[i])) {
                held.fraction += shown.digits.fraction[i];
                place += shown.fractionAt[i] < from ? 1 : 0;
            }
        if (shown.sign >= 0 && taken(shown.sign))
            held.negative = false;
        const bool inFraction = InFraction(shown, from);
        // Without digits it is empty; a sign that has not been taken stands alone.
        const bool empty = held.IsZero();
        Content made = Laid(held, empty && !held.negative);
        made.lone = empty && held.negative;
        const int sign = Read(made).sign;
        if (made.lone)
            made.Place(sign + 1);
        else if (empty)
            ;  // before its first digit
        else if (inFraction)
            made.Place(Read(made).point + 1 + static_cast<int>(place));
        else
            PlaceBefore(made, right);
        made.cut = !empty;
        return Made::Of(made);
    }

    Made Paste(Content, const std::string& text) const override
    {
        Made made = Try(text);
        if (Of(Read(made.content)).integer.size() > room_)
            return Made::Refused(kDoesNotFit);
        made.content.Place(LastOf(made.content));
        made.content.fresh = false;
        return made;
    }

    // A sign before zeros goes when the number is left.
    Content Leave(Content content, int) const override
    {
        Held held = Of(Read(content));
        if (content.lone || !held.negative || !held.IsZero())
            return content;
        held.negative = false;
        Content made = Laid(held, false);
        const int sign = Read(content).sign;
        made.anchor = content.anchor - (content.anchor > sign ? 1 : 0);
        made.caret = content.caret - (content.caret > sign ? 1 : 0);
        return made;
    }

    Made Step(Content content, int) const override { return Made::Of(content); }
    bool Steps() const override { return false; }

    int Last(const Content& content) const override { return LastOf(content); }
    int First(const Content& content) const override { return FirstOf(Read(content)); }
    int BehindFilled(const Content& content) const override { return LastOf(content); }

    int Move(const Content& content, int from, bool forward, bool whole) const override
    {
        const ShownNumber shown = Read(content);
        if (whole) {
            if (forward)
                return shown.point >= 0 && from <= shown.point ? shown.point + 1 : LastOf(content);
            return shown.point >= 0 && from > shown.point + 1 ? shown.point + 1 : FirstOf(shown);
        }
        int to = from + (forward ? 1 : -1);
        while (!IsStop(content, to))
            to += forward ? 1 : -1;
        return Correct(content, to);
    }

    // Keys let the caret stand before a separator, not behind it.
    bool IsStop(const Content& content, int position) const
    {
        const ShownNumber shown = Read(content);
        return !(format_.Groups(signs_) && position > FirstOf(shown) && position <= PointOf(shown) &&
                 position < LastOf(content) && content.text[static_cast<size_t>(position) - 1] == signs_.group);
    }

    int Edge(const Content& content, int position) const override
    {
        return Correct(content, IsStop(content, position) ? position : position - 1);
    }

    int Correct(const Content& content, int position) const override
    {
        return std::clamp(position, FirstOf(Read(content)), LastOf(content));
    }

    void SelectField(Content& content, int position) const override
    {
        const ShownNumber shown = Read(content);
        const bool fraction = InFraction(shown, position);
        content.anchor = fraction ? shown.point + 1 : First(content) + (shown.sign >= 0 ? 1 : 0);
        content.caret = fraction ? LastOf(content) : PointOf(shown);
    }

    int State(const Content& content) const override
    {
        if (content.empty)
            return kEmpty;
        const Held held = Of(Read(content));
        return held.negative && held.IsZero() && content.lone ? kIncomplete : kComplete;
    }

    std::optional<std::string> Canonical(const Content& content) const override
    {
        const int state = State(content);
        if (state == kEmpty)
            return "";
        if (state == kIncomplete)
            return {};
        const ShownNumber shown = Read(content);
        const Held held = Of(shown);
        std::string integer = shown.digits.integer;
        std::string fraction = held.fraction;
        if (format_.percent) {
            integer.insert(0, integer.size() < 2 ? 2 - integer.size() : 0, '0');
            fraction = integer.substr(integer.size() - 2) + fraction;
            integer = Stripped(integer.substr(0, integer.size() - 2));
            fraction.erase(fraction.find_last_not_of('0') + 1);
        }
        const std::string text = (integer.empty() ? "0" : integer) + (fraction.empty() ? "" : "." + fraction);
        return (held.negative && !held.IsZero() ? "-" : "") + text;
    }

    Content Empty() const override { return Laid({}, true); }

    Content Data(const std::string& text) const override
    {
        Content content;
        content.text = Render(format_, Number::FromText(text), signs_);
        content.Place(First(content));
        content.fresh = true;
        return content;
    }

    Made Try(const std::string& text) const override { return Made::Of(Data(text)); }

private:
    ShownNumber Read(const Content& content) const { return ReadShown(format_, content.text, signs_); }
    static std::string Stripped(const std::string& digits)
    {
        return digits.substr(std::min(digits.find_first_not_of('0'), digits.size()));
    }
    static std::string Significant(const ShownNumber& shown) { return Stripped(shown.digits.integer); }
    static Held Of(const ShownNumber& shown)
    {
        return {shown.digits.negative, Significant(shown), shown.digits.fraction};
    }
    static std::vector<int> DigitsAt(const ShownNumber& shown)
    {
        std::vector<int> all = shown.integerAt;
        all.insert(all.end(), shown.fractionAt.begin(), shown.fractionAt.end());
        return all;
    }
    int PointOf(const ShownNumber& shown) const { return shown.point >= 0 ? shown.point : shown.end; }
    bool InFraction(const ShownNumber& shown, int position) const { return shown.point >= 0 && position > shown.point; }
    int FirstOf(const ShownNumber& shown) const
    {
        if (shown.sign >= 0)
            return shown.sign;
        return shown.integerAt.empty() ? PointOf(shown) : shown.integerAt[0];
    }
    int LastOf(const Content& content) const
    {
        const ShownNumber shown = Read(content);
        const std::vector<int> all = DigitsAt(shown);
        return std::max(all.empty() ? 0 : all.back() + 1, shown.point + 1);
    }
    bool IsPoint(char c, const Content&) const
    {
        // '.' and ',' are the point wherever they are not the separator of groups; a blank never is.
        const bool groups = format_.Groups(signs_) && c == signs_.group;
        return format_.point && !groups &&
               (c == signs_.point || c == '.' || c == ',' || (c == signs_.group && c != ' '));
    }

    Content Laid(Held held, bool empty) const
    {
        Digits digits;
        digits.negative = held.negative;
        digits.integer = held.integer;
        const size_t forced = format_.ForcedInteger();
        digits.integer.insert(0, forced > digits.integer.size() ? forced - digits.integer.size() : 0, '0');
        digits.fraction = held.fraction.substr(0, format_.Places());
        digits.fraction.erase(digits.fraction.find_last_not_of('0') + 1);
        digits.fraction.append(
            format_.ForcedFraction() > digits.fraction.size() ? format_.ForcedFraction() - digits.fraction.size() : 0,
            '0');
        Content content;
        content.text = format_.Lay(digits, signs_);
        content.empty = empty;
        const ShownNumber shown = Read(content);
        content.Place(empty && !shown.integerAt.empty() ? shown.integerAt[0] : FirstOf(shown));
        return content;
    }

    // Behind the digit that has so many integer digits behind it.
    void PlaceBefore(Content& content, size_t right) const
    {
        const ShownNumber shown = Read(content);
        const size_t count = shown.integerAt.size();
        const size_t held = Significant(shown).size();
        if (count > right && !(held == 0 && content.empty))
            content.Place(shown.integerAt[count - right - 1] + 1);
        else
            content.Place(count == 0 ? PointOf(shown) : shown.integerAt[0]);
        static_cast<void>(held);
    }

    Content Zeroed(bool negative) const
    {
        Content content = Laid({negative, "", ""}, !negative);
        content.lone = negative;
        if (negative)
            content.Place(Read(content).sign + 1);
        return content;
    }

    bool AtStart(const Content& content) const
    {
        const ShownNumber shown = Read(content);
        for (const int at : DigitsAt(shown))
            if (at < content.caret)
                return false;
        return !InFraction(shown, content.caret);
    }

    Made TypeDigit(Content content, char digit) const
    {
        const ShownNumber shown = Read(content);
        Held held = Of(shown);
        const bool untouched = content.empty || content.lone || (content.fresh && held.IsZero());
        if (InFraction(shown, content.caret) && !(untouched && content.caret >= LastOf(content))) {
            size_t place = 0;
            for (const int at : shown.fractionAt)
                place += at < content.caret ? 1 : 0;
            if (place >= format_.Places())
                return Made::Refused(kFull);
            held.fraction.resize(std::max(held.fraction.size(), place + 1), '0');
            held.fraction[place] = digit;
            Made made;
            made.content = Laid(held, false);
            // A zero that the mask does not show yet stands as typed.
            made.content.Place(Read(made.content).point + 2 + static_cast<int>(place));
            made.full = place + 1 == format_.Places();
            return made;
        }
        size_t right = 0;
        const int from = FirstSignificant(shown);
        for (const int at : shown.integerAt)
            right += at >= std::max(content.caret, from) ? 1 : 0;
        if (untouched || (AtStart(content) && !content.cut)) {
            const bool sign = shown.sign >= 0 && content.caret > shown.sign;
            held = {sign, "", ""};
            right = 0;
        }
        right = std::min(right, held.integer.size());
        std::string integer = held.integer;
        integer.insert(integer.size() - right, 1, digit);
        held.integer = Stripped(integer);
        if (held.integer.size() > room_ || (held.integer.empty() && room_ == 0))
            return Made::Refused(kFull);
        Made made;
        made.content = Laid(held, false);
        PlaceBefore(made.content, right);
        made.content.cut = true;
        made.full = !format_.point && held.integer.size() == room_ && right == 0;
        return made;
    }

    int FirstSignificant(const ShownNumber& shown) const
    {
        const size_t zeros = shown.digits.integer.size() - Significant(shown).size();
        return zeros < shown.integerAt.size() ? shown.integerAt[zeros] : 1 << 20;
    }

    Made TypePoint(Content content) const
    {
        const ShownNumber shown = Read(content);
        if (InFraction(shown, content.caret) && content.caret != shown.point + 1 &&
            !((content.empty || content.lone) && content.caret >= LastOf(content)))
            return Made::Refused(kWrongKind);
        if (AtStart(content) && !content.cut && (!Of(shown).IsZero() || (content.lone && content.caret <= shown.sign)))
            content = Zeroed(shown.sign >= 0 && content.caret > shown.sign);
        content.Place(Read(content).point + 1);
        content.passed = ".";
        return Made::Of(content);
    }

    Made TypeSign(Content content, char c) const
    {
        const ShownNumber shown = Read(content);
        Held held = Of(shown);
        if (c == '+' && !held.negative)
            return content.empty || AtStart(content) ? Made::Of(content) : Made::Refused(kWrongKind);
        // The sign that stands there is passed over.
        if (c == '-' && content.caret == shown.sign && !content.Selected()) {
            content.Place(shown.sign + 1);
            return Made::Of(content);
        }
        if (c == '-' && content.empty && !(InFraction(shown, content.Start()) && content.Start() < LastOf(content)))
            return Made::Of(Zeroed(true));
        if (content.Selected()) {
            bool all = c == '-';
            for (const int at : DigitsAt(shown))
                all = all && at >= content.Start() && at < content.End();
            if (all)
                return Made::Of(Zeroed(true));
        }
        const int behind = static_cast<int>(content.text.size()) - content.caret;
        const int behindAnchor = static_cast<int>(content.text.size()) - content.anchor;
        held.negative = c == '-' && !held.negative;
        const bool empty = content.empty || (content.lone && held.IsZero());
        Content made = Laid(held, empty && !held.negative);
        made.caret = std::max(FirstDigit(made), static_cast<int>(made.text.size()) - behind);
        made.anchor = std::max(FirstDigit(made), static_cast<int>(made.text.size()) - behindAnchor);
        made.Straighten();
        made.lone = empty && held.negative;
        made.cut = content.cut;
        if (made.empty && !content.Selected() &&
            (content.caret >= LastOf(content) || !InFraction(shown, content.caret)))
            made.Place(FirstDigit(made));
        // As before a separator, not behind it.
        for (int* end : {&made.anchor, &made.caret})
            *end -= IsStop(made, *end) ? 0 : 1;
        return Made::Of(made);
    }

    int FirstDigit(const Content& content) const
    {
        const ShownNumber shown = Read(content);
        return shown.integerAt.empty() ? PointOf(shown) : shown.integerAt[0];
    }

    Made TypeOver(Content content, char c) const
    {
        Content cleared = Clear(content).content;
        const ShownNumber shown = Read(cleared);
        // In the place of digits of a fraction: those behind give way.
        if (IsDigit(c) && !cleared.empty && InFraction(shown, cleared.caret) && cleared.caret < LastOf(cleared)) {
            Held held = Of(shown);
            held.fraction.insert(static_cast<size_t>(cleared.caret - shown.point - 1), 1, c);
            held.fraction.resize(format_.Places(), '0');
            const int caret = cleared.caret + 1;
            Made made = Made::Of(Laid(held, false));
            made.content.Place(caret);
            made.content.cut = true;
            made.full = caret == LastOf(made.content);
            return made;
        }
        return Type(cleared, c);
    }

    Format format_;
    Separators signs_;
    size_t room_ = 0;
};

}  // namespace

std::unique_ptr<ModernKind> MakeModernNumbers(const Regional& regional, const Config& config)
{
    return std::make_unique<Numbers>(regional, config);
}

}  // namespace model::modern
