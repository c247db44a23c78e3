// Loading and unloading the library: its window classes and first look at the regional settings.
#pragma once

#include <windows.h>

namespace zte {

extern HINSTANCE libraryInstance;

// Asks a window whether its messages reach the library: ZTE_SuperEditWndProc answers with libraryInstance.
extern UINT reachMessage;

// Registers "ZTEDIT050" and "spin" and reads the regional settings; false when a class could not be registered.
bool RegisterClasses(HINSTANCE instance);

// Unregisters both classes when flag is 0.
void UnregisterClasses(int flag);

}  // namespace zte
