// A test program that starts itself again, to lose no more than the child in a crash.
#pragma once

namespace zttest {

// Called instead of the tests when the first argument is kChildArgument, with the second one; null when a program has no such use.
// The child runs beside its parent: it does not wait for its turn at the profile and the clipboard.
using ChildMain = int (*)(const char* argument);
ChildMain RegisterChild(ChildMain childMain);

constexpr const char* kChildArgument = "--child";

}  // namespace zttest
