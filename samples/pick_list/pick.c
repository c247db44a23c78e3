/* A field that shows names and stores codes: letters choose, the arrows walk. */
#include "ztedit.h"

static SharedHeap heap;

/* The value is told whenever it changes. */
static LRESULT CALLBACK FormProc(HWND form, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND && HIWORD(wParam) == EN_CHANGE) {
        char* code = ZTE_GetDataString((HWND)lParam);
        SetDlgItemTextA(form, 2, code ? code : "");
        SharedHeapFree(heap, code);
    }
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcA(form, message, wParam, lParam);
}

int main(void)
{
    WNDCLASSA form = {0};
    EditInitParams colour = {0};
    HWND window;
    MSG message;

    ZTE_Initialize();
    form.lpfnWndProc = FormProc;
    form.lpszClassName = "Form";
    form.hbrBackground = (HBRUSH)(COLOR_BTNFACE + 1);
    RegisterClassA(&form);
    window = CreateWindowA("Form", "Pick list", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 60, 60, 320, 140, NULL, NULL, NULL, NULL);
    CreateWindowA("STATIC", "", WS_CHILD | WS_VISIBLE, 20, 60, 120, 24, window, (HMENU)2, NULL, NULL);

    heap = SharedHeapCreate();
    colour.heap = heap;
    colour.dataType = DT_STRING;
    colour.codeTableText = "none\tnull!/red\tR/green\tG/grey\tY/black//white\tBW"; /* shown, a tab, stored; "//" is a slash */
    colour.options = ZTEO_MODERN | ZTEO_SPIN | ZTEO_CODE_PICK | ZTEO_CODE_DISPLAY;
    SetFocus(CreateWindowExA(WS_EX_CLIENTEDGE, ZTEDIT_CLASS, "", WS_CHILD | WS_VISIBLE, 20, 20, 140, 24, window, (HMENU)1, NULL,
                             &colour));
    while (GetMessageA(&message, NULL, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    SharedHeapDestroy(heap);
    return 0;
}
