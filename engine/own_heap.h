// The heaps of programs that run the engine without the library's DLLs.
#pragma once

#include "ztvalues.h"

namespace zte {

SharedHeap CreateHeap();
void DestroyHeap(SharedHeap heap);  // its blocks are freed one by one before
uint32_t BlockCount(SharedHeap heap);

}  // namespace zte
