// A control lets go of its heap before the heap goes: what a host destroys in the wrong order is a plain edit from then on.
#pragma once

#include "ztedit.h"

namespace zte {

// Whether a control may be made in a heap. A shared-services library of a customer's own that does not tell is believed.
bool IsUsableHeap(SharedHeap heap);

// Watches a heap, where its library lets it be watched.
void WatchHeap(SharedHeap heap, SharedHeapWatcher& watcher, void(WINAPI* ending)(SharedHeapWatcher*));
void UnwatchHeap(SharedHeap heap, SharedHeapWatcher& watcher);

}  // namespace zte
