/* A window with a date in it. */
#include "ztedit.h"

static LRESULT CALLBACK FormProc(HWND form, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcA(form, message, wParam, lParam);
}

int main(void)
{
    WNDCLASSA form = {0};
    EditInitParams due = {0};
    HWND window;
    MSG message;

    ZTE_Initialize(); /* keeps the library linked, whose window class is named below */
    form.lpfnWndProc = FormProc;
    form.lpszClassName = "Form";
    form.hbrBackground = (HBRUSH)(COLOR_BTNFACE + 1);
    RegisterClassA(&form);

    due.heap = SharedHeapCreate();
    due.maskText = "MM/DD/YYYY";
    due.dataType = DT_DATE;
    due.initialData = "2026-11-21"; /* canonical, or as the mask shows it */
    due.options = ZTEO_MODERN;
    window = CreateWindowA("Form", "First control", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 60, 60, 320, 140, NULL, NULL, NULL, NULL);
    SetFocus(CreateWindowExA(WS_EX_CLIENTEDGE, ZTEDIT_CLASS, "", WS_CHILD | WS_VISIBLE, 20, 20, 120, 24, window, (HMENU)1, NULL, &due));

    while (GetMessageA(&message, NULL, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    SharedHeapDestroy(due.heap);
    return 0;
}
