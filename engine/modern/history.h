// What can be undone and redone: the contents before and after each step, a run of like acts being one.
#pragma once

#include <vector>

#include "engine/modern/content.h"

namespace zte::modern {

// Which acts go on as one step: those of one kind, less than a second apart.
enum class Run : uint8_t { None, Typing, Deleting, Stepping };

// Nothing changes what is shown but its steps: who shows anything else empties it.
class History {
public:
    static constexpr size_t kMostSteps = 100;
    static constexpr uint32_t kPause = 1000;  // milliseconds that end a run

    // time: of the act, in milliseconds of any clock that goes round.
    void Add(const Content& before, const Content& after, Run run, uint32_t time);
    // What completes a field belongs to the step that led there; without such a step it is one of its own.
    void Amend(const Content& before, const Content& after);
    void EndRun() { run_ = Run::None; }
    void Clear();

    bool CanUndo() const { return done_ > 0; }
    bool CanRedo() const { return done_ < steps_.size(); }
    size_t Steps() const { return done_; }
    // The content to show; asked where there is one. What is done again has been undone, which ends a run.
    const Content& Undo();
    const Content& Redo();

private:
    struct Step {
        Content before;
        Content after;
    };

    bool GoesOn(Run run, uint32_t time) const;

    std::vector<Step> steps_;
    size_t done_ = 0;  // steps that are not undone
    Run run_ = Run::None;
    uint32_t lastTime_ = 0;
};

}  // namespace zte::modern
