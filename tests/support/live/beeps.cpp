// The beep counter.
// An imported function is called without a context, so the count is a variable of this file.
#include "tests/support/live/beeps.h"

#include <windows.h>

namespace zttest {
namespace {

int beepCount = 0;

BOOL WINAPI CountBeep(UINT)
{
    ++beepCount;
    return TRUE;
}

}  // namespace

BeepCounter::BeepCounter() : patch_("user32.dll", "MessageBeep", reinterpret_cast<void*>(CountBeep))
{
    beepCount = 0;
}

int BeepCounter::Count() const
{
    return beepCount;
}

void BeepCounter::Forget()
{
    beepCount = 0;
}

}  // namespace zttest
