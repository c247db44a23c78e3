// A program beside the one that owns a spin: asks it as a screen reader does, presses its arrows, and prints what it gets.
// Usage: assistive_client SPIN   (the window, as a decimal number)
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "tests/support/live/accessible_client.h"

namespace {

using zttest::AccessibleClient;
using zttest::Id;

HWND spin;
std::string events;

void CALLBACK NoteEvent(HWINEVENTHOOK, DWORD, HWND hwnd, LONG object, LONG child, DWORD, DWORD)
{
    if (object == OBJID_CLIENT && child == CHILDID_SELF)
        events += hwnd == spin ? " spin" : hwnd == GetParent(spin) ? " field" : " other";
}

// The events of a press come as messages; a while without one ends them.
void TakeEvents()
{
    MSG message;
    while (MsgWaitForMultipleObjects(0, nullptr, FALSE, 500, QS_ALLINPUT) == WAIT_OBJECT_0)
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageA(&message);
}

void Press(const AccessibleClient& client, LONG arrow)
{
    events.clear();
    const HRESULT result = client->accDoDefaultAction(Id(arrow));
    std::printf("%s %s: %s\n", client.Text(&IAccessible::get_accDefaultAction, arrow).c_str(),
                client.Text(&IAccessible::get_accName, arrow).c_str(), result == S_OK ? "done" : "refused");
    TakeEvents();
    std::printf("new values:%s; value %s\n", events.c_str(), client.Text(&IAccessible::get_accValue, 0).c_str());
}

}  // namespace

int main(int count, char** arguments)
{
    if (count != 2)
        return 2;
    spin = reinterpret_cast<HWND>(static_cast<uintptr_t>(std::strtoull(arguments[1], nullptr, 10)));
    const AccessibleClient client(spin);
    if (!client) {
        std::puts("nothing accessible");
        return 1;
    }
    DWORD process = 0;
    GetWindowThreadProcessId(spin, &process);
    const HWINEVENTHOOK hook = SetWinEventHook(EVENT_OBJECT_VALUECHANGE, EVENT_OBJECT_VALUECHANGE, nullptr, NoteEvent,
                                               process, 0, WINEVENT_OUTOFCONTEXT);
    LONG children = 0;
    client->get_accChildCount(&children);
    std::printf("role %ld, %ld children of the roles %ld and %ld\n", client.Role(0), children, client.Role(1),
                client.Role(2));
    std::printf("value %s\n", client.Text(&IAccessible::get_accValue, 0).c_str());
    Press(client, 1);
    Press(client, 2);
    Press(client, 2);
    UnhookWinEvent(hook);
    return 0;
}
