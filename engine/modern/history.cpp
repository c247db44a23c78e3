// What can be undone and redone.
#include "engine/modern/history.h"

namespace zte::modern {

namespace {

bool IsSameText(const Content& one, const Content& other)
{
    return one.text == other.text && one.isEmpty == other.isEmpty;
}

}  // namespace

bool History::GoesOn(const Content& before, Run run, uint32_t time) const
{
    return run != Run::None && run == run_ && CanUndo() && !CanRedo() && time - lastTime_ < kPause &&
           IsSameText(steps_.back().after, before);
}

void History::Add(const Content& before, const Content& after, Run run, uint32_t time)
{
    if (GoesOn(before, run, time)) {
        steps_.back().after = Untyped(after);
    } else {
        steps_.resize(done_);
        if (steps_.size() == kMostSteps)
            steps_.erase(steps_.begin());
        steps_.push_back({Untyped(before), Untyped(after)});
        done_ = steps_.size();
    }
    run_ = run;
    lastTime_ = time;
}

void History::Amend(const Content& before, const Content& after)
{
    EndRun();
    if (CanUndo() && !CanRedo() && IsSameText(steps_.back().after, before))
        steps_.back().after = Untyped(after);
    else
        Add(before, after, Run::None, lastTime_);
}

void History::Clear()
{
    steps_.clear();
    done_ = 0;
    EndRun();
}

const Content& History::Undo()
{
    EndRun();
    return steps_[--done_].before;
}

const Content& History::Redo()
{
    EndRun();
    return steps_[done_++].after;
}

}  // namespace zte::modern
