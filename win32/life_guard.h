// Lets code that works on a control survive the control's destruction inside a message that it sends.
#pragma once

#include "win32/standard_field.h"

namespace zte {

// Thrown by the field of a control that was destroyed while it was sending; never leaves the library.
struct ControlGone {};

// Stands on the stack of every entry into the library that works on a record. Destroying the control tells all of them.
class LifeGuard {
public:
    explicit LifeGuard(StandardField& field) : field_(field), outer_(field.guard) { field.guard = this; }
    LifeGuard(const LifeGuard&) = delete;
    LifeGuard& operator=(const LifeGuard&) = delete;
    ~LifeGuard()
    {
        if (alive_)
            field_.guard = outer_;
    }

    bool IsAlive() const { return alive_; }

    // Called once, when the control is about to be freed.
    static void TellAll(const StandardField& field)
    {
        for (LifeGuard* guard = field.guard; guard; guard = guard->outer_)
            guard->alive_ = false;
    }

    // The work of all entries on the stack ends at the next message that they look at: the control stays, what they work with goes.
    static void EndOuterWork(StandardField& field)
    {
        TellAll(field);
        field.guard = nullptr;
    }

private:
    StandardField& field_;
    LifeGuard* outer_;
    bool alive_ = true;
};

// Watches one message that may destroy the control; Check() throws ControlGone when it did. Without a guard on the stack
// nobody could catch, so nothing is thrown.
class LifeCheck {
public:
    explicit LifeCheck(const StandardField& field) : guard_(field.guard) {}
    explicit LifeCheck(const EditInstance& edit) : LifeCheck(FieldOf(edit)) {}
    void Check() const
    {
        if (guard_ && !guard_->IsAlive())
            throw ControlGone{};
    }

private:
    const LifeGuard* guard_;
};

// Runs work on a control that may be destroyed meanwhile; the result of work, or gone when the control went away.
template <typename Result, typename Work>
Result WhileAlive(EditInstance& edit, Result gone, Work&& work)
{
    const LifeGuard guard(FieldOf(edit));
    try {
        return work();
    } catch (const ControlGone&) {
        return gone;
    }
}

// The same for work without a result.
template <typename Work>
void WhileAlive(EditInstance& edit, Work&& work)
{
    WhileAlive(edit, 0, [&] {
        work();
        return 0;
    });
}

}  // namespace zte
