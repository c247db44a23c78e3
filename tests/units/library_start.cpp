// These programs have the library's objects in them: the classes are registered and the regional settings read before the
// tests begin, as the loader has the DLL do.
#include "core/library.h"

namespace {

[[maybe_unused]] const bool kStarted = zte::RegisterClasses(GetModuleHandleA(nullptr));

}  // namespace
