/* A program that has nothing but the libraries and the system: makes a control, and exits with 0 when it shows its value. */
#include "ztdecimal.h"
#include "ztedit.h"
#include "ztshared.h"

int __stdcall Start(void)
{
    static EditInitParams params;
    static DecimalValue zero;
    static char text[32];
    HWND edit;

    if (ZTE_Initialize() != ZTEDIT_VERSION)
        ExitProcess(2);
    DecSetZero(&zero);
    params.heap = SharedHeapCreate();
    params.maskText = "MM/DD/YYYY";
    params.dataType = DT_DATE;
    params.initialData = "2026-11-21";
    edit = CreateWindowExA(0, ZTEDIT_CLASS, "", 0, 0, 0, 100, 20, NULL, NULL, NULL, &params);
    GetWindowTextA(edit, text, sizeof text);
    ExitProcess(ZTE_GetLastProblem(edit) == ZTP_NONE && lstrcmpA(text, "11/21/2026") == 0 ? 0 : 1);
    return 0;
}
