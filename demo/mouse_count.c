/* What the mouse has done, for scripts. */
#include "mouse_count.h"

#include <stdio.h>

void CountMouse(UINT message, const char* path)
{
    static int acts = 0;
    FILE* file;
    if (!path || (message != WM_LBUTTONUP && message != WM_MOUSEWHEEL))
        return;
    ++acts;
    file = fopen(path, "w");
    if (!file)
        return;
    fprintf(file, "%d\n", acts);
    fclose(file);
}
