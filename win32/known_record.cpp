#include "win32/known_record.h"

#include "win32/record_store.h"

namespace zte {

namespace {

// One for all threads: a thread that meets another one's asks the window manager, and a heap may end on any thread. A record stands here
// no longer than its property, so that what is found is alive.
SRWLOCK lock = SRWLOCK_INIT;
HWND lastControl;
EditInstance* lastRecord;

class Locked {
public:
    Locked() { AcquireSRWLockExclusive(&lock); }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;
    ~Locked() { ReleaseSRWLockExclusive(&lock); }
};

bool IsLast(HWND hwnd)
{
    return hwnd && lastRecord && (hwnd == lastControl || hwnd == lastRecord->hwndSpin);
}

}  // namespace

EditInstance* KnownRecord(HWND hwnd)
{
    {
        const Locked locked;
        if (IsLast(hwnd))
            return lastRecord;
    }
    EditInstance* edit = GetEditInstance(hwnd);
    if (edit && IsOnThisThread(hwnd))
        RememberRecord(static_cast<HWND>(edit->hwnd), *edit);
    return edit;
}

void RememberRecord(HWND control, EditInstance& edit)
{
    const Locked locked;
    lastControl = control;
    lastRecord = &edit;
}

void ForgetRecord(HWND hwnd)
{
    const Locked locked;
    if (IsLast(hwnd))
        lastRecord = nullptr;
}

}  // namespace zte
