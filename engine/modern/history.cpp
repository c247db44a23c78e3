// What can be undone and redone.
#include "engine/modern/history.h"

namespace zte::modern {

// Whatever undoes, or empties the history, ends the run as well: a run that goes on has its step at the end.
bool History::GoesOn(Run run, uint32_t time) const
{
    return run != Run::None && run == run_ && time - lastTime_ < kPause;
}

void History::Add(const Content& before, const Content& after, Run run, uint32_t time)
{
    if (GoesOn(run, time)) {
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
    if (CanUndo() && !CanRedo())
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
    return steps_[done_++].after;
}

}  // namespace zte::modern
