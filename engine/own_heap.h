// The heaps of programs that run the engine without the library's DLLs.
#pragma once

#include "ztvalues.h"

namespace zte {

SharedHeap CreateHeap();
void DestroyHeap(SharedHeap heap);  // with all its blocks
uint32_t BlockCount(SharedHeap heap);

}  // namespace zte
