// How the libraries end when memory runs out: callers never see null, and no C++ exception. Linked into a library it does so for
// the language's own allocations as well, from the moment the library is loaded.
#pragma once

namespace shared {

// Raises the system's no-memory exception, which cannot be continued.
void RaiseNoMemory();

}  // namespace shared
