// How the services end when memory runs out: callers never see null.
#pragma once

namespace shared {

// Raises the system's no-memory exception, which cannot be continued.
void RaiseNoMemory();

}  // namespace shared
