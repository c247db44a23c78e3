// What the system has lent to the program, by count: the same after the work as before it, or something was lost.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zttest {

int GdiObjects();       // graphics objects, of all processes
int Windows();          // windows of this thread, and all that is on them
int MemoryBlocks();     // blocks of the process's heap that are in use
int NamedAtoms();       // names in the table of atoms, in which the names of window properties stand; takes a while
int ProcessHandles();   // handles of the kernel, of this process
size_t PrivateBytes();  // committed memory of the process's own

}  // namespace zttest
