// A text that may be a date or a time, taken apart.
#include "engine/modern/date_tokens.h"

#include <algorithm>
#include <optional>

#include "engine/mask/half_of_day.h"
#include "engine/modern/layout.h"
#include "engine/text/ascii.h"
#include "engine/values/month_names.h"

namespace zte::modern::dates {

namespace {

constexpr int32_t kShortestName = 3;
constexpr unsigned char kNoBreakBlank = 0xA0;

bool IsLetterOf(const EditInstance& edit, Char c)
{
    return edit.settings->letters->isLetter(c);
}

Text UpperOf(const EditInstance& edit, Text text)
{
    for (Char& c : text)
        c = edit.settings->letters->upper(c);
    return text;
}

bool StartsWith(const Text& text, const Text& beginning)
{
    return text.compare(0, beginning.size(), beginning) == 0;
}

// ---- designators

struct Designator {
    Text text;
    HalfOfDay half;
};

void AddPair(std::vector<Designator>& all, const Text& am, const Text& pm)
{
    if (am == pm)  // says nothing
        return;
    if (!am.empty())
        all.push_back({am, HalfOfDay::Am});
    if (!pm.empty())
        all.push_back({pm, HalfOfDay::Pm});
}

// The settings' come first; a single letter is theirs, where they have any.
std::vector<Designator> Designators(const EditInstance& edit)
{
    const Text am = UpperOf(edit, edit.settings->amString);
    const Text pm = UpperOf(edit, edit.settings->pmString);
    std::vector<Designator> all;
    AddPair(all, am, pm);
    AddPair(all, FromAscii("A.M."), FromAscii("P.M."));
    AddPair(all, FromAscii("AM"), FromAscii("PM"));
    if (am.empty() && pm.empty())
        AddPair(all, FromAscii("A"), FromAscii("P"));
    else
        AddPair(all, am.substr(0, 1), pm.substr(0, 1));
    return all;
}

// ---- names of months

// A cut name, or the whole name of which the settings have the beginning.
bool IsNameOf(const Text& word, const Text& name)
{
    return (Length(word) >= kShortestName && StartsWith(name, word)) ||
           (Length(name) >= kShortestName && StartsWith(word, name));
}

Text NameOf(const EditInstance& edit, int32_t month)
{
    const Text name = UpperOf(edit, MonthName(*edit.settings, month - 1));
    return name.substr(0, name.find_last_not_of(Char{'.'}) + 1);
}

// The months that a word may mean.
std::vector<int32_t> MonthsOf(const EditInstance& edit, const Text& word)
{
    std::vector<int32_t> months;
    for (int32_t month = 1; month <= kMonths; ++month) {
        const Text name = NameOf(edit, month);
        if (name == word)
            return {month};
        if (IsNameOf(word, name))
            months.push_back(month);
    }
    return months;
}

// ---- separators

Text WithoutBlanksAround(const EditInstance& edit, const Text& text)
{
    const auto isOther = [&](Char c) { return !IsBlankOfText(edit, c); };
    const auto first = std::find_if(text.begin(), text.end(), isOther);
    const auto last = std::find_if(text.rbegin(), text.rend(), isOther).base();
    return first < last ? Text(first, last) : Text();
}

// Takes a text apart from left to right.
class Tokenizer {
public:
    Tokenizer(const EditInstance& edit, const Text& text)
        : edit_(edit),
          text_(text),
          folded_(UpperOf(edit, text)),
          designators_(Designators(edit)),
          runs_(LiteralRuns(edit))
    {
    }

    std::vector<Token> Run()
    {
        at_ = BlanksEnd(0);
        while (at_ < Length(text_))
            Add(Next());
        if (!tokens_.empty() && tokens_.back().kind == TokenKind::Separator && IsMarkless(tokens_.back().text))
            tokens_.pop_back();
        for (Token& token : tokens_)
            if (token.kind == TokenKind::Separator && !MaySeparate(token.text))
                token.kind = TokenKind::Unknown;
        tokens_.push_back({TokenKind::End, Length(text_), {}, 0});
        return std::move(tokens_);
    }

private:
    int32_t BlanksEnd(int32_t position) const
    {
        while (position < Length(text_) && IsBlankOfText(edit_, At(text_, position)))
            ++position;
        return position;
    }

    // Separators side by side are one.
    void Add(Token token)
    {
        at_ = token.start + Length(token.text);
        const bool goesOn = !tokens_.empty() && tokens_.back().kind == TokenKind::Separator;
        if (goesOn && token.kind == TokenKind::Separator)
            tokens_.back().text += token.text;
        else
            tokens_.push_back(std::move(token));
    }

    Token Next() const
    {
        const Char first = At(text_, at_);
        if (IsDigit(first))
            return TokenTo(TokenKind::Number, RunEnd(IsDigit));
        if (!IsLetterOf(edit_, first))
            return {TokenKind::Separator, at_, Text(1, first), 0};
        if (const Designator* designator = FindDesignator())
            return {TokenKind::Half, at_, Slice(text_, at_, Length(designator->text)),
                    static_cast<int32_t>(designator->half)};
        return WordToken(RunEnd([this](Char c) { return IsLetterOf(edit_, c); }));
    }

    template <typename Wanted>
    int32_t RunEnd(Wanted isWanted) const
    {
        int32_t end = at_;
        while (end < Length(text_) && isWanted(At(text_, end)))
            ++end;
        return end;
    }

    Token TokenTo(TokenKind kind, int32_t end, int32_t number = 0) const
    {
        return {kind, at_, Slice(text_, at_, end - at_), number};
    }

    const Designator* FindDesignator() const
    {
        const auto stands = [this](const Designator& designator) {
            const int32_t length = Length(designator.text);
            return Slice(folded_, at_, length) == designator.text && !IsLetterOf(edit_, At(text_, at_ + length));
        };
        const auto found = std::find_if(designators_.begin(), designators_.end(), stands);
        return found == designators_.end() || IsLiteralWord(found->text) ? nullptr : &*found;
    }

    Token WordToken(int32_t end) const
    {
        const Text word = Slice(folded_, at_, end - at_);
        if (IsLiteralWord(word))
            return TokenTo(TokenKind::Separator, end);
        const std::vector<int32_t> months = MonthsOf(edit_, word);
        if (months.size() == 1)
            return TokenTo(TokenKind::Month, end, months.front());
        if (!months.empty())
            return TokenTo(TokenKind::Doubtful, end);
        return TokenTo(Equals(word, "T") ? TokenKind::TimeMark : TokenKind::Unknown, end);
    }

    // A word that the mask itself writes between its fields.
    bool IsLiteralWord(const Text& word) const
    {
        return std::any_of(runs_.begin(), runs_.end(),
                           [&](const Text& run) { return UpperOf(edit_, WithoutBlanksAround(edit_, run)) == word; });
    }

    bool IsMarkless(const Text& separator) const { return WithoutBlanksAround(edit_, separator).empty(); }

    // Two marks would stand around a field that is missing, a plus before a zone of time.
    bool MaySeparate(const Text& separator) const
    {
        const Text mark = WithoutBlanksAround(edit_, separator);
        const bool isPlain = mark.empty() || (mark.size() == 1 && mark[0] != '+' && !IsControl(mark[0]));
        return isPlain || IsLiteralWord(UpperOf(edit_, mark));
    }

    const EditInstance& edit_;
    const Text& text_;
    const Text folded_;
    const std::vector<Designator> designators_;
    const std::vector<Text> runs_;
    std::vector<Token> tokens_;
    int32_t at_ = 0;
};

}  // namespace

bool IsBlankOfText(const EditInstance& edit, Char c)
{
    return c == ' ' || c == '\t' || (c == static_cast<Char>(kNoBreakBlank) && !IsLetterOf(edit, c));
}

std::vector<Text> LiteralRuns(const EditInstance& edit)
{
    const Text blank = BlankText(edit);
    const Layout layout(edit, blank);
    std::vector<Text> runs;
    int32_t from = 0;
    for (const Place& place : layout.Places()) {
        runs.push_back(Slice(blank, from, place.start - from));
        from = place.End();
    }
    runs.push_back(Slice(blank, from, Length(blank) - from));
    return runs;
}

std::vector<Token> TokensOf(const EditInstance& edit, const Text& text)
{
    return Tokenizer(edit, text).Run();
}

}  // namespace zte::modern::dates
