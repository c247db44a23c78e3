// Some systems' edit controls read and write on in memory of theirs that they have freed, when they are destroyed inside a notification
// of their own. Plain edits do so, too; what it ruins would hide what the library does wrong. So what the system's window code frees
// inside a host's reaction is held back, and freed when the episode is over.
#pragma once

namespace storm {

// Leads the system's window code to functions that hold back; one for the process.
void HoldBackReleases();

// While it lives, this thread's releases are held back.
class LateRelease {
public:
    LateRelease();
    LateRelease(const LateRelease&) = delete;
    LateRelease& operator=(const LateRelease&) = delete;
    ~LateRelease();
};

// Frees what this thread has held back.
void ReleaseHeldBack();

}  // namespace storm
