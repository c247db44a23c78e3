#include "win32/open_deletion.h"

#include "win32/standard_field.h"
#include "win32/window_of_thread.h"

namespace zte {

namespace {

const WindowOfThread openAt;

// A second control where one has not ended its deletion yet, as when a host moves the focus between a key's way down and up: from then
// on it is not known for sure.
HWND Several()
{
    return static_cast<HWND>(INVALID_HANDLE_VALUE);
}

}  // namespace

bool DeletionIsOpen()
{
    return openAt.Get() != nullptr;
}

void NoteDeletion(const EditInstance& edit)
{
    if (edit.deletePending == 0 && !edit.swallowBackspace && !FieldOf(edit).isPointToCome)
        return ForgetDeletion(edit);
    const HWND hwnd = WindowOf(edit);
    const HWND former = openAt.Get();
    openAt.Set(former && former != hwnd ? Several() : hwnd);
}

void ForgetDeletion(const EditInstance& edit)
{
    if (openAt.Get() == WindowOf(edit))
        openAt.Set(nullptr);
}

}  // namespace zte
