/* What the mouse has done, for scripts: it may come later than keys that were pressed after it, so who drives a window by both waits
 * for this count. */
#ifndef DEMO_MOUSE_COUNT_H
#define DEMO_MOUSE_COUNT_H

#include <windows.h>

/* Of a message that has been dispatched: writes how many buttons have been released and wheels turned into the file, null for none. */
void CountMouse(UINT message, const char* path);

#endif
