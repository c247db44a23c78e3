// The model's modern control: keys, the history, and what the parent is told.
#include "modern_control.h"
#include "model_text.h"

#include <algorithm>
#include <cstdlib>
#include <map>

namespace model::modern {
namespace {

constexpr size_t kMostSteps = 100;

bool TakeFront(std::string& text, const std::string& front)
{
    if (text.compare(0, front.size(), front) != 0)
        return false;
    text.erase(0, front.size());
    return true;
}

}  // namespace

std::unique_ptr<ModernSubject> MakeModernModel()
{
    return std::make_unique<ModernControl>();
}

void ModernControl::MakeKind()
{
    if (config_.type == kDate || config_.type == kTime || config_.type == kDateTime)
        kind_ = MakeModernDates(regional_, config_);
    else if (config_.type == kNumber || config_.type == kDecimal)
        kind_ = MakeModernNumbers(regional_, config_);
    else if (config_.type == kString)
        kind_ = MakeModernStrings(regional_, config_);
}

void ModernControl::Make(const Regional& regional, const Config& config)
{
    regional_ = regional;
    config_ = config;
    readOnly_ = false;
    clipboard_.clear();
    told_ = {};
    MakeKind();
    Take(kind_->Empty());
    told_ = {};
}

ModernLook ModernControl::Look()
{
    ModernLook look = told_;
    look.text = content_.text;
    look.start = content_.Start();
    look.end = content_.End();
    look.state = kind_->State(content_);
    look.canonical = kind_->Canonical(content_);
    return look;
}

// Data from code: not modified, nothing to undo.
void ModernControl::Take(const Content& value)
{
    content_ = value;
    history_.clear();
    done_ = 0;
    latest_ = false;
    goesOn_ = false;
    told_.modified = false;
    ++told_.changes;
}

void ModernControl::Refuse(int reason, int position, char c)
{
    ++told_.rejections;
    ++told_.beeps;
    told_.reason = reason;
    told_.position = position < 0 ? content_.Start() : position;
    told_.character = static_cast<unsigned char>(c);
}

void ModernControl::Note(const Undoable& step)
{
    history_.resize(done_);
    history_.push_back(step);
    if (history_.size() > kMostSteps)
        history_.erase(history_.begin());
    done_ = history_.size();
    latest_ = true;
}

void ModernControl::Perform(Run run, const Made& made, char c)
{
    if (readOnly_)
        return Refuse(kReadOnly, -1, c);
    if (!made.Good())
        return Refuse(made.reason, made.position, c);
    const Content before = content_;
    content_ = made.content;
    const bool changed = before.text != content_.text || before.empty != content_.empty || before.lone != content_.lone;
    told_.changes += before.text != content_.text ? 1 : 0;
    told_.modified = told_.modified || changed;
    const bool one = goesOn_ && run != Run::Other && done_ > 0 && history_[done_ - 1].run == run;
    if (changed) {
        if (one)
            history_.back().after = content_;
        else
            Note({before, content_, run});
        goesOn_ = true;
    }
    if (made.full && config_.autoskip && kind_->State(content_) != kInvalid)
        ++told_.autoskips;
}

// The selection is another one: the field that the caret leaves ends, and that belongs to the typing before. The same one set again is
// nothing, but by a key.
void ModernControl::Settle(Content next, By by)
{
    const Content before = content_;
    const bool stays = by == By::Program && next.Looks(before);
    const bool leaves = by == By::Focus || (!stays && !kind_->SameField(before.Start(), next.Start()));
    if (leaves) {
        const Content left = kind_->Leave(next, before.Start());
        // The text is replaced, and the selection set again: its moving end is the last one then.
        if (left.text != next.text && !readOnly_) {
            ++told_.changes;
            next = left;
            next.Straighten();
            // It belongs to the typing before; after an undo it is a step of its own.
            if (latest_)
                history_[done_ - 1].after = next;
            else
                Note({before, next, Run::Other});
        }
    }
    if (!stays)
        Forget(next);
    content_ = next;
    goesOn_ = goesOn_ && stays;
}

void ModernControl::MoveTo(int caret, bool extend)
{
    Content next = content_;
    next.caret = std::clamp(caret, 0, static_cast<int>(next.text.size()));
    if (!extend)
        next.anchor = next.caret;
    Settle(next, By::Key);
}

// What typing has left behind does not come back.
void ModernControl::Forget(Content& content)
{
    content.passed.clear();
    content.letters.clear();
    content.half.clear();
    content.cut = false;
}

bool ModernControl::Undo()
{
    if (readOnly_)
        return Refuse(kReadOnly, -1, '\0'), false;
    if (done_ == 0)
        return false;
    goesOn_ = false;
    --done_;
    latest_ = false;
    if (content_.text != history_[done_].before.text)
        ++told_.changes;
    content_ = history_[done_].before;
    content_.Straighten();
    Forget(content_);
    return true;
}

bool ModernControl::Redo()
{
    if (readOnly_)
        return Refuse(kReadOnly, -1, '\0'), false;
    if (done_ == history_.size())
        return false;
    goesOn_ = false;
    if (content_.text != history_[done_].after.text)
        ++told_.changes;
    content_ = history_[done_].after;
    content_.Straighten();
    Forget(content_);
    ++done_;
    latest_ = true;
    return true;
}

void ModernControl::Cut(bool copies)
{
    if (!content_.Selected())
        return;
    if (copies)
        clipboard_ = content_.text.substr(static_cast<size_t>(content_.Start()),
                                          static_cast<size_t>(content_.End() - content_.Start()));
    Perform(Run::Other, kind_->Clear(content_));
}

void ModernControl::Erase(bool forward, bool whole)
{
    if (content_.Selected())
        return Perform(Run::Erasing, kind_->Clear(content_));
    Perform(Run::Erasing, kind_->Erase(content_, forward, whole));
}

void ModernControl::Move(const std::string& key, bool shift, bool control)
{
    Forget(content_);
    goesOn_ = false;
    const int caret = content_.caret;
    const int length = static_cast<int>(content_.text.size());
    const bool forward = key == "Right";
    if (key == "Home")
        return MoveTo(shift ? 0 : kind_->First(content_), shift);
    if (key == "End") {
        const int filled = kind_->BehindFilled(content_);
        return MoveTo(shift ? length : content_.End() == filled ? kind_->Last(content_) : filled, shift);
    }
    // With Shift, one position at a time. What the caret stands behind has ended before.
    if (shift && !kind_->SameField(content_.Start(), content_.Start()))
        Settle(content_, By::Key);
    if (shift)
        return MoveTo(control ? kind_->Move(content_, caret, forward, true) : caret + (forward ? 1 : -1), true);
    if (content_.Selected()) {
        const int edge = forward ? content_.End() : content_.Start();
        return MoveTo(control ? kind_->Move(content_, edge, forward, true) : kind_->Edge(content_, edge), false);
    }
    if (forward && caret == kind_->Last(content_) && config_.autoskip && kind_->State(content_) != kInvalid)
        ++told_.autoskips;
    MoveTo(kind_->Move(content_, caret, forward, control), false);
}

void ModernControl::Key(const std::string& act)
{
    std::string name = act.substr(1, act.size() - 2);
    const bool control = TakeFront(name, "Ctrl+");
    const bool shift = TakeFront(name, "Shift+");
    if (control && name == "A") {
        Content all = content_;
        all.anchor = 0;
        all.caret = static_cast<int>(all.text.size());
        if (all.Looks(content_))
            all = content_;
        return Settle(all, By::Program);
    }
    if (control && name == "Z")
        return static_cast<void>(shift ? Redo() : Undo());
    if ((control && name == "X") || (shift && name == "Del"))
        return Cut(true);
    if ((control && name == "C") || (control && name == "Ins")) {
        if (content_.Selected())
            clipboard_ = content_.text.substr(static_cast<size_t>(content_.Start()),
                                              static_cast<size_t>(content_.End() - content_.Start()));
        return;
    }
    if ((control && name == "V") || (shift && name == "Ins")) {
        if (!clipboard_.empty())
            Perform(Run::Other, kind_->Paste(content_, clipboard_));
        return;
    }
    if (name == "Back" || name == "Del")
        return Erase(name == "Del", control);
    if (name == "Up" || name == "Down" || name == "PgUp" || name == "PgDn") {
        const int steps = name.size() == 4 ? 10 : 1;
        const bool up = name == "Up" || name == "PgUp";
        if (kind_->Steps())
            return Perform(Run::Other, kind_->Step(content_, up ? steps : -steps));
        if (steps == 1)
            Move(up ? "Left" : "Right", shift, control);
        return;
    }
    if (name == "Left" || name == "Right" || name == "Home" || name == "End")
        Move(name, shift, control);
}

void ModernControl::Letter(char c)
{
    Perform(Run::Typing, kind_->Type(content_, c), c);
}

int ModernControl::Do(const std::string& act)
{
    const std::optional<Word> word = WordOf(act);
    if (!word) {
        if (act.size() > 1)
            Key(act);
        else
            Letter(act[0]);
        return 0;
    }
    const std::string& name = word->name;
    const std::string& rest = word->rest;
    if (name == "sel") {
        char* behind = nullptr;
        Content next = content_;
        const int length = static_cast<int>(next.text.size());
        next.anchor = std::clamp(static_cast<int>(std::strtol(rest.c_str(), &behind, 10)), 0, length);
        next.caret = std::clamp(std::atoi(behind), 0, length);
        Settle(next, By::Program);
    } else if (name == "click") {
        // The caret is put right where the button has set it: it may have left the field for a moment.
        Content next = content_;
        next.Place(std::clamp(std::atoi(rest.c_str()), 0, static_cast<int>(next.text.size())));
        Settle(next, By::Program);
        // Who clicks behind everything means the place where something is still to be filled in.
        const bool behind = content_.caret >= kind_->Last(content_);
        const int meant = behind ? std::min(content_.caret, kind_->BehindFilled(content_)) : content_.caret;
        const int right = kind_->Correct(content_, meant);
        if (right != content_.caret)
            Forget(content_);
        content_.Place(right);
    } else if (name == "double") {
        Content next = content_;
        kind_->SelectField(next, std::clamp(std::atoi(rest.c_str()), 0, static_cast<int>(content_.text.size())));
        if (next.Looks(content_))
            next = content_;
        Settle(next, By::Program);
    } else if (name == "paste") {
        clipboard_ = rest;
        if (!rest.empty())
            Perform(Run::Other, kind_->Paste(content_, rest));
    } else if (name == "cut" || name == "clear")
        Cut(name == "cut");
    else if (name == "undo")
        Undo();
    else if (name == "redo")
        Redo();
    else if (name == "wait")
        goesOn_ = goesOn_ && std::atoi(rest.c_str()) < 1000;
    else if (name == "leave")
        Settle(content_, By::Focus);
    else if (name == "step")
        Perform(Run::Other, kind_->Step(content_, rest == "up" ? 1 : -1));
    else if (name == "data")
        Take(kind_->Data(rest));
    else if (name == "nodata")
        Take(kind_->Empty());
    else if (name == "try") {
        const Made made = rest.empty() ? Made::Of(kind_->Empty()) : kind_->Try(rest);
        if (made.Good())
            Take(made.content);
        return made.reason;
    } else if (name == "readonly")
        readOnly_ = rest == "1";
    return 0;
}

}  // namespace model::modern
