// The model's modern dates and times: a text of parts, each edited as a field.
#ifndef TESTS_MODEL_MODERN_DATES_H
#define TESTS_MODEL_MODERN_DATES_H

#include "modern_control.h"

namespace model::modern {

enum class Of { Year, Month, Name, Day, Julian, Hour, Minute, Second, Fraction, Marker, Free };

struct DatePart {
    Of of;
    int start;
    int width;
    int End() const { return start + width; }
};

class ModernDates final : public ModernKind {
public:
    ModernDates(const Regional& regional, const Config& config);

    Made Type(Content content, char c) const override;
    Made Erase(Content content, bool forward, bool whole) const override;
    Made Clear(Content content) const override;
    Made Paste(Content content, const std::string& text) const override;
    Made Step(Content content, int steps) const override;
    bool Steps() const override { return config_.increment != 0; }
    Content Leave(Content content, int from) const override;
    bool SameField(int from, int to) const override;
    int First(const Content&) const override { return parts_.empty() ? 0 : parts_[0].start; }
    int Last(const Content&) const override { return Last(); }
    int Last() const { return parts_.empty() ? 0 : parts_.back().End(); }
    int BehindFilled(const Content& content) const override;
    int Move(const Content& content, int from, bool forward, bool whole) const override;
    int Correct(const Content& content, int position) const override;
    void SelectField(Content& content, int position) const override;
    int State(const Content& content) const override;
    std::optional<std::string> Canonical(const Content& content) const override;
    Content Empty() const override;
    Content Data(const std::string& text) const override;
    Made Try(const std::string& text) const override;

private:
    int PartAt(int position) const;  // -1: a literal, or behind the last
    int PartAround(int caret) const;
    int PartFrom(int position) const;    // the next part whose positions do not all lie before; -1: none
    int PartBefore(int position) const;  // the last part that begins before; -1: none
    int PartOf(Of of) const;
    std::string Get(const std::string& text, int part) const;
    void Put(std::string& text, int part, const std::string& value) const;
    bool Numeric(int part) const;
    int Most(int part) const;  // the highest number of a part
    int Least(int part) const;
    bool Twelve() const { return PartOf(Of::Marker) >= 0; }
    bool Fits(const std::string& text) const;  // a text of this mask: literals stand, parts hold what they may

    Made TypeDigit(Content content, int part, int place, char digit) const;
    Made TypeName(Content content, int part, int place, char c) const;
    Made TypeMarker(Content content, bool evening) const;
    Made TypeSeparator(Content content, char c) const;
    bool IsLiteral(char c, int caret) const;
    bool InMarker(int position) const;
    std::optional<bool> Half(const std::string& text, char c) const;
    Made Completed(Content content, int part) const;  // the caret goes on behind the part
    Made Carried(Content content, int part) const;    // ... as it stands
    void Finish(std::string& text, int part) const;   // of an hour: half of the day and number of twelve
    void End(std::string& text, int part) const;
    std::string MonthOf(const std::string& letters) const;  // the first month that begins so; "": none

    std::optional<Stamp> Read(const std::string& text) const;  // none: incomplete or no date
    std::string Lay(const Stamp& stamp) const;
    std::string CanonicalOf(const Stamp& stamp) const;
    Made DateOf(const std::vector<Of>& order, const std::vector<std::string>& numbers, int named, Stamp& stamp) const;
    Made TimeOf(const std::string& text, Stamp& stamp) const;
    bool IsKnownWord(const std::string& word) const;
    std::optional<std::string> OwnPartly(const std::string& given, const std::string& stands) const;
    Made ReadPasted(const std::string& text, const std::string& stands) const;
    Content Placed(const std::string& text) const;

    Regional regional_;
    Config config_;
    std::string blank_;
    std::string literal_;  // where a literal stands 'l', else ' '
    std::vector<DatePart> parts_;
    int yearWidth_ = 0;
    std::optional<Stamp> min_;
    std::optional<Stamp> max_;
};

}  // namespace model::modern

#endif
