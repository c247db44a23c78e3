// The model's modern strings: positions that take characters one by one, and literals between them.
#include "model_text.h"
#include "modern_control.h"
#include "modern_text.h"

#include <cctype>
#include <cstring>

namespace model::modern {
namespace {

class Strings final : public ModernKind {
public:
    Strings(const Regional& regional, const Config& config)
    {
        Control classic(regional);
        classic.SetMask(config.mask.c_str(), kString);
        const std::string mask = classic.Mask();
        for (size_t i = 0; i < mask.size(); ++i) {
            const bool escaped = mask[i] == '~' && i + 1 < mask.size();
            const bool position = !escaped && std::strchr("#0AaXx!^", mask[i]) != nullptr;
            i += escaped ? 1 : 0;
            takes_ += position ? Upper(mask[i]) : '\0';
            blank_ += position ? ' ' : mask[i];
        }
    }

    Made Type(Content content, char c) const override
    {
        if (IsControl(c))
            return Made::Refused(kWrongKind);
        if (content.Selected())
            content = Clear(content).content;
        if (!content.passed.empty() && content.passed[0] == c) {
            content.passed.erase(0, 1);
            return Made::Of(content);
        }
        // What the mask writes before its first position, typed where that begins.
        if (content.caret == First(content) &&
            blank_.substr(0, static_cast<size_t>(content.caret)).find(c) != std::string::npos &&
            !(content.caret < Length() && Takes(content.caret, c)))
            return Made::Of(content);
        const bool carried = !content.passed.empty() && content.caret < Length();
        if (c == ' ' && carried && !TakesAll(content.caret)) {
            content.passed.clear();
            return Made::Of(content);
        }
        const int at = Next(content.caret);
        const bool on = at == content.caret && at < Length();
        if (on && Takes(at, c))
            return Put(content, at, c);
        if (carried && IsPasteSign(c)) {
            content.passed.clear();
            return Made::Of(content);
        }
        const bool other = IsLiteral(content.caret) && blank_[static_cast<size_t>(content.caret)] != c;
        if (other && at < Length() && Takes(at, c))
            return Put(content, at, c);
        // A literal further on: behind its run.
        for (int i = content.caret; i < Length(); ++i)
            if (IsLiteral(i) && blank_[static_cast<size_t>(i)] == c && LeadsOn(content.caret, i)) {
                content.Place(Next(i));
                content.passed = blank_.substr(static_cast<size_t>(i) + 1, static_cast<size_t>(content.caret - i - 1));
                return Made::Of(content);
            }
        if (at < Length() && Takes(at, c))
            return Put(content, at, c);
        return Made::Refused(Next(content.caret) >= Last() ? kFull : kWrongKind);
    }

    Made Erase(Content content, bool forward, bool whole) const override
    {
        content.passed.clear();
        int from = content.caret;
        if (forward) {
            from = Next(from);
            if (from >= Length())
                return Made::Of(content);
        } else {
            from = Before(from);
            if (from < 0)
                return Made::Of(content);
        }
        if (!whole) {
            content.text[static_cast<size_t>(from)] = ' ';
            content.Place(from);
            return Made::Of(content);
        }
        const auto blank = [&](int at) { return content.text[static_cast<size_t>(at)] == ' '; };
        int to = from;
        if (forward) {
            for (to = from; to < PlaceEnd(from) && !blank(to);)
                ++to;
            while (to < PlaceEnd(from) && blank(to))
                ++to;
        } else {
            const int start = PlaceStart(from);
            to = ++from;
            while (from > start && blank(from - 1))
                --from;
            while (from > start && !blank(from - 1))
                --from;
        }
        content.anchor = from;
        content.caret = to;
        return Clear(content);
    }

    Made Clear(Content content) const override
    {
        const int from = content.Start();
        for (int i = from; i < content.End(); ++i)
            if (!IsLiteral(i))
                content.text[static_cast<size_t>(i)] = ' ';
        content.Place(std::min(Next(from), Last()));
        content.passed.clear();
        return Made::Of(content);
    }

    Made Paste(Content content, const std::string& given) const override
    {
        const int start = content.Start();
        const int end = content.End();
        if (Fits(given)) {
            for (int i = 0; i < Length(); ++i)
                content.text[static_cast<size_t>(i)] =
                    IsLiteral(i) ? blank_[static_cast<size_t>(i)] : Shown(i, given[static_cast<size_t>(i)]);
            content.Place(Last());
            return Made::Of(content);
        }
        content = Clear(content).content;
        int at = start;
        for (const char c : given) {
            const int next = Next(at);
            if (next < Length() && Takes(next, c) && (c != ' ' || TakesAll(next)) &&
                !(at < next && blank_[static_cast<size_t>(at)] == c)) {
                content.text[static_cast<size_t>(next)] = Shown(next, c);
                at = next + 1;
            } else if (at < Length() && IsLiteral(at) && blank_[static_cast<size_t>(at)] == c)
                ++at;
            else if (!IsPasteSign(c) && !WasPassed(next, c))
                return Made::Refused(next < Length() ? kWrongKind : kDoesNotFit);
        }
        static_cast<void>(end);
        content.Place(std::min(Next(at), Last()));
        return Made::Of(content);
    }

    Made Step(Content content, int) const override { return Made::Of(content); }
    bool Steps() const override { return false; }

    int First(const Content&) const override { return Next(0) < Length() ? Next(0) : 0; }
    int Last(const Content&) const override { return Last(); }
    int Last() const
    {
        for (int i = Length(); i > 0; --i)
            if (!IsLiteral(i - 1))
                return i;
        return 0;
    }
    int BehindFilled(const Content& content) const override
    {
        for (int i = Length(); i > 0; --i)
            if (!IsLiteral(i - 1) && content.text[static_cast<size_t>(i) - 1] != ' ')
                return i;
        return First(content);
    }

    int Move(const Content& content, int from, bool forward, bool whole) const override
    {
        if (!whole) {
            if (forward)
                return std::min(Next(from + 1), Last());
            return Before(from) < 0 ? First(content) : Before(from);
        }
        if (forward)
            return std::min(Next(IsLiteral(from) ? from : PlaceEnd(from)), Last());
        return Before(from) < 0 ? First(content) : PlaceStart(Before(from));
    }

    int Correct(const Content&, int position) const override
    {
        if (!IsLiteral(position) || position >= Length())
            return std::min(position, Last());
        const int ahead = Next(position);
        const int back = Before(position);
        if (ahead >= Length())
            return Last();
        return back < 0 || ahead - position <= position - back ? ahead : back;
    }

    void SelectField(Content& content, int position) const override
    {
        // Directly behind the positions between two literals it is still those.
        const bool behind = IsLiteral(position) && position > 0 && !IsLiteral(position - 1);
        int at = behind ? position - 1 : Correct(content, position);
        if (at >= Last())
            at = Last() - 1;
        const bool away = (IsLiteral(position) && !behind) || position > Last();
        // A word where there are several, else all positions between two literals.
        const std::string place = content.text.substr(static_cast<size_t>(PlaceStart(at)),
                                                      static_cast<size_t>(PlaceEnd(at) - PlaceStart(at)));
        const size_t first = place.find_first_not_of(' ');
        const size_t last = place.find_last_not_of(' ');
        // Directly behind a word it is still that one.
        if (at == position && at > PlaceStart(at) && content.text[static_cast<size_t>(at)] == ' ' &&
            content.text[static_cast<size_t>(at) - 1] != ' ')
            --at;
        const bool inWords = !away && first != std::string::npos && static_cast<size_t>(at - PlaceStart(at)) <= last;
        const bool several =
            inWords && first != std::string::npos && place.substr(first, last - first).find(' ') != std::string::npos;
        content.anchor = several ? WordStart(content.text, at) : PlaceStart(at);
        content.caret = several ? WordEnd(content.text, at) : PlaceEnd(at);
    }

    int State(const Content& content) const override
    {
        if (!Fits(content.text))
            return kInvalid;
        bool literals = false;
        bool missing = false;
        for (int i = 0; i < Length(); ++i) {
            literals = literals || IsLiteral(i);
            const char take = takes_[static_cast<size_t>(i)];
            missing = missing || ((take == '#' || take == '0') && content.text[static_cast<size_t>(i)] == ' ');
        }
        if (Positions(content.text).empty())
            return kEmpty;
        return literals && missing ? kIncomplete : kComplete;
    }

    std::optional<std::string> Canonical(const Content& content) const override { return Positions(content.text); }

    Content Empty() const override { return Of(blank_); }

    Content Data(const std::string& text) const override
    {
        const Made made = Try(text);
        if (made.Good())
            return made.content;
        std::string shown = blank_;
        size_t used = 0;
        for (int i = 0; i < Length(); ++i)
            if (!IsLiteral(i) && used < text.size())
                shown[static_cast<size_t>(i)] = text[used++];
        return Of(shown);
    }

    // The characters of the positions; what is none of these as a paste.
    Made Try(const std::string& given) const override
    {
        const std::string text = given.substr(0, given.find_last_not_of(' ') + 1);
        std::string shown = blank_;
        size_t used = 0;
        for (int i = 0; i < Length(); ++i)
            if (!IsLiteral(i) && used < text.size()) {
                if (!Takes(i, text[used]))
                    return Paste(Empty(), given);
                shown[static_cast<size_t>(i)] = text[used++];
            }
        return used == text.size() ? Made::Of(Of(shown)) : Paste(Empty(), given);
    }

private:
    int Length() const { return static_cast<int>(blank_.size()); }
    bool IsLiteral(int position) const { return position < Length() && takes_[static_cast<size_t>(position)] == '\0'; }
    int Next(int position) const
    {
        while (IsLiteral(position))
            ++position;
        return position;
    }
    int Before(int position) const
    {
        for (--position; position >= 0 && IsLiteral(position);)
            --position;
        return position;
    }
    static bool IsPasteSign(char c) { return std::strchr(" -./()", c) != nullptr; }

    // A blank is what an unfilled position shows.
    bool Takes(int position, char c) const
    {
        switch (takes_[static_cast<size_t>(position)]) {
        case '#':
        case '0': return IsDigit(c) || c == ' ';
        case 'A': return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == ' ';
        default: return !IsControl(c);
        }
    }

    // One of the literals directly before a position.
    bool WasPassed(int position, char c) const
    {
        for (int i = position - 1; i >= 0 && position < Length() && IsLiteral(i); --i)
            if (blank_[static_cast<size_t>(i)] == c)
                return true;
        return false;
    }

    bool TakesAll(int position) const { return std::strchr("X!^", takes_[static_cast<size_t>(position)]) != nullptr; }

    char Shown(int position, char c) const
    {
        const char take = takes_[static_cast<size_t>(position)];
        return take == '!'   ? Upper(c)
               : take == '^' ? static_cast<char>(std::tolower(static_cast<unsigned char>(c)))
                             : c;
    }

    Made Put(Content content, int at, char c) const
    {
        Made made;
        content.text[static_cast<size_t>(at)] = Shown(at, c);
        const int next = Next(at + 1);
        content.passed = blank_.substr(static_cast<size_t>(at) + 1, static_cast<size_t>(next - at - 1));
        content.Place(next);
        made.full = at + 1 == Last();
        made.content = content;
        return made;
    }

    bool LeadsOn(int, int literal) const { return Next(literal) < Length(); }

    bool Fits(const std::string& text) const
    {
        if (text.size() != blank_.size())
            return false;
        for (int i = 0; i < Length(); ++i)
            if (IsLiteral(i) ? text[static_cast<size_t>(i)] != blank_[static_cast<size_t>(i)]
                             : !Takes(i, text[static_cast<size_t>(i)]))
                return false;
        return true;
    }

    std::string Positions(const std::string& text) const
    {
        std::string positions;
        for (int i = 0; i < Length() && i < static_cast<int>(text.size()); ++i)
            if (!IsLiteral(i))
                positions += text[static_cast<size_t>(i)];
        positions.erase(positions.find_last_not_of(' ') + 1);
        return positions;
    }

    int PlaceStart(int at) const
    {
        while (at > 0 && !IsLiteral(at - 1))
            --at;
        return at;
    }
    int PlaceEnd(int at) const
    {
        while (at < Length() && !IsLiteral(at))
            ++at;
        return at;
    }

    // A word: positions between literals and blanks.
    int WordStart(const std::string& text, int at) const
    {
        while (at > 0 && !IsLiteral(at - 1) &&
               (text[static_cast<size_t>(at) - 1] == ' ') == (text[static_cast<size_t>(at)] == ' '))
            --at;
        return at;
    }
    int WordEnd(const std::string& text, int at) const
    {
        const int from = at;
        while (at < Length() && !IsLiteral(at) &&
               (text[static_cast<size_t>(at)] == ' ') == (text[static_cast<size_t>(from)] == ' '))
            ++at;
        return at;
    }

    Content Of(const std::string& text) const
    {
        Content content;
        content.text = text;
        content.Place(First(content));
        return content;
    }

    std::string takes_;  // the mask character of a position, NUL of a literal
    std::string blank_;
};

}  // namespace

std::unique_ptr<ModernKind> MakeModernStrings(const Regional& regional, const Config& config)
{
    return std::make_unique<Strings>(regional, config);
}

}  // namespace model::modern
