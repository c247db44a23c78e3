// The model of modern editing: a text, a selection and what typing has left behind, and a history of such contents. Written apart from
// the library, slow and simple: each act makes another content or tells a reason, and everything else is read from the text again.
#ifndef TESTS_MODEL_MODERN_CONTROL_H
#define TESTS_MODEL_MODERN_CONTROL_H

#include "modern_subject.h"

#include <optional>
#include <string>
#include <vector>

namespace model::modern {

// ZTS_ and ZTR_ values, written down once more.
enum ModernState { kEmpty, kIncomplete, kInvalid, kOutOfRange, kComplete };
enum Reason {
    kFine,
    kWrongKind,
    kOutOfBounds,
    kFull,
    kReadOnly,
    kDoesNotFit,
    kInDoubt,
    kDoesNotExist,
    kNoSuchEntry,
    kEndOfRange,
};

struct Content {
    std::string text;
    int anchor = 0;
    int caret = 0;
    bool empty = false;   // of a number: remembered, not seen
    std::string passed;   // the literals over which typing has just carried the caret
    bool fresh = false;   // of a number: untouched since it was set
    std::string letters;  // of a choice: typed so far; of a name that is complete: the rest
    std::string half;     // letters typed of a half of the day
    bool lone = false;    // of a number: a sign that has been typed before any digit
    bool cut = false;     // of a number: deletion has left the caret where it is

    int Start() const { return std::min(anchor, caret); }
    int End() const { return std::max(anchor, caret); }
    bool Selected() const { return anchor != caret; }
    // A selection that is set again is set from its start.
    void Straighten()
    {
        const int start = Start();
        caret = End();
        anchor = start;
    }
    void Place(int position) { anchor = caret = position; }
    bool Looks(const Content& other) const
    {
        return text == other.text && Start() == other.Start() && End() == other.End();
    }
};

// What an act makes of a content.
struct Made {
    int reason = kFine;
    int position = -1;  // of the refusal; -1: where the selection begins
    Content content;
    bool full = false;  // the last position was filled

    static Made Refused(int why, int where = -1)
    {
        Made made;
        made.reason = why;
        made.position = where;
        return made;
    }
    static Made Of(const Content& content)
    {
        Made made;
        made.content = content;
        return made;
    }
    bool Good() const { return reason == kFine; }
};

// A kind of value under one mask: pure functions over contents.
class ModernKind {
public:
    virtual ~ModernKind() = default;

    virtual Made Type(Content content, char c) const = 0;
    virtual Made Erase(Content content, bool forward, bool whole) const = 0;  // nothing is selected
    virtual Made Clear(Content content) const = 0;                            // the selection
    virtual Made Paste(Content content, const std::string& text) const = 0;
    virtual Made Step(Content content, int steps) const = 0;
    virtual bool Steps() const = 0;
    virtual Content Leave(Content content, int) const { return content; }  // the field at a position ends
    virtual bool SameField(int, int) const { return true; }

    virtual int First(const Content& content) const = 0;
    virtual int Last(const Content& content) const = 0;  // behind the last position
    virtual int BehindFilled(const Content& content) const = 0;
    virtual int Move(const Content& content, int from, bool forward, bool whole) const = 0;
    virtual int Correct(const Content& content, int position) const = 0;  // a click there
    virtual int Edge(const Content& content, int position) const
    {
        return Correct(content, position);
    }                                                                    // where a selection ends
    virtual void SelectField(Content& content, int position) const = 0;  // a double click there

    virtual int State(const Content& content) const = 0;
    virtual std::optional<std::string> Canonical(const Content& content) const = 0;
    virtual Content Empty() const = 0;
    virtual Content Data(const std::string& text) const = 0;
    virtual Made Try(const std::string& text) const = 0;
};

std::unique_ptr<ModernKind> MakeModernDates(const Regional& regional, const Config& config);
std::unique_ptr<ModernKind> MakeModernStrings(const Regional& regional, const Config& config);
std::unique_ptr<ModernKind> MakeModernNumbers(const Regional& regional, const Config& config);
std::unique_ptr<ModernKind> MakeModernChoices(const Regional& regional, const Config& config);

class ModernControl final : public ModernSubject {
public:
    void Make(const Regional& regional, const Config& config) override;
    int Do(const std::string& act) override;
    ModernLook Look() override;

private:
    enum class Run { None, Typing, Erasing, Other };

    enum class By { Key, Program, Focus };

    struct Undoable {
        Content before;
        Content after;
        Run run;
    };

    void MakeKind();
    void Key(const std::string& name);
    void Letter(char c);
    void Perform(Run run, const Made& made, char c = '\0');
    void Note(const Undoable& step);
    void Refuse(int reason, int position, char c);
    void MoveTo(int caret, bool extend);
    void Settle(Content next, By by);
    void Show(const Content& next);
    void Take(const Content& value);
    static void Forget(Content& content);
    bool Undo();
    bool Redo();
    void Cut(bool copies);
    void Move(const std::string& key, bool shift, bool control);
    void Erase(bool forward, bool whole);

    Regional regional_;
    Config config_;
    std::unique_ptr<ModernKind> kind_;
    Content content_;
    std::vector<Undoable> history_;
    size_t done_ = 0;      // steps of the history that stand
    bool latest_ = false;  // the last of them is what was done last
    bool goesOn_ = false;
    std::string clipboard_;
    bool readOnly_ = false;
    ModernLook told_;
};

}  // namespace model::modern

#endif
