// Watching heaps, by functions of the shared-services library that a customer's own may lack: they are looked up, not imported.
#include "win32/heap_watch.h"

namespace zte {

namespace {

struct HeapCalls {
    decltype(&SharedHeapIsAlive) isAlive;
    decltype(&SharedHeapWatch) watch;
    decltype(&SharedHeapUnwatch) unwatch;
};

template <typename Function>
Function Find(HMODULE library, const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

HeapCalls FindCalls()
{
    const HMODULE shared = GetModuleHandleA("ztshared.dll");
    const HeapCalls calls = {Find<decltype(&SharedHeapIsAlive)>(shared, "SharedHeapIsAlive"),
                             Find<decltype(&SharedHeapWatch)>(shared, "SharedHeapWatch"),
                             Find<decltype(&SharedHeapUnwatch)>(shared, "SharedHeapUnwatch")};
    return calls.isAlive && calls.watch && calls.unwatch ? calls : HeapCalls{};
}

const HeapCalls& Calls()
{
    static const HeapCalls calls = FindCalls();
    return calls;
}

}  // namespace

bool IsUsableHeap(SharedHeap heap)
{
    return heap && (!Calls().isAlive || Calls().isAlive(heap));
}

void WatchHeap(SharedHeap heap, SharedHeapWatcher& watcher, void(WINAPI* ending)(SharedHeapWatcher*))
{
    watcher.ending = ending;
    if (Calls().watch)
        Calls().watch(heap, &watcher);
}

void UnwatchHeap(SharedHeap heap, SharedHeapWatcher& watcher)
{
    if (Calls().unwatch)
        Calls().unwatch(heap, &watcher);
}

}  // namespace zte
