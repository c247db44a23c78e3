/* What the headers of the companions want of windows.h, where their functions are built without it. */
#ifndef ZT_NATIVE_WINDOWS_H
#define ZT_NATIVE_WINDOWS_H

#define WINAPI

#endif
