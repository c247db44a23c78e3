/* An existing program's edit control, given a mask where it stands: all that was written for it goes on working. */
#include "ztedit.h"

static WNDPROC formerProc;

/* What the program had always done with its field: Enter hands the text over. */
static LRESULT CALLBACK OwnProc(HWND edit, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_KEYDOWN && wParam == VK_RETURN) {
        char text[100];
        GetWindowTextA(edit, text, sizeof text);
        SetDlgItemTextA(GetParent(edit), 2, text);
        return 0;
    }
    return CallWindowProcA(formerProc, edit, message, wParam, lParam);
}

static LRESULT CALLBACK FormProc(HWND form, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcA(form, message, wParam, lParam);
}

static void GiveMask(HWND edit, SharedHeap heap)
{
    EditInitParams params = {0};
    params.heap = heap;
    params.maskText = "~A##-##"; /* a literal A, four digits in two groups */
    params.dataType = DT_STRING;
    params.options = ZTEO_MODERN;
    SetWindowLongPtrA(edit, GWLP_WNDPROC, (LONG_PTR)ZTE_SuperEditWndProc); /* the A function, always */
    ZTE_Init(edit, &params);
}

int main(void)
{
    SharedHeap heap = SharedHeapCreate();
    WNDCLASSA form = {0};
    HWND window;
    HWND edit;
    MSG message;

    form.lpfnWndProc = FormProc;
    form.lpszClassName = "Form";
    form.hbrBackground = (HBRUSH)(COLOR_BTNFACE + 1);
    RegisterClassA(&form);
    window = CreateWindowA("Form", "Subclassed", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 60, 60, 320, 140, NULL, NULL, NULL, NULL);
    edit = CreateWindowExA(WS_EX_CLIENTEDGE, "EDIT", "", WS_CHILD | WS_VISIBLE, 20, 20, 120, 24, window, (HMENU)1, NULL, NULL);
    CreateWindowA("STATIC", "", WS_CHILD | WS_VISIBLE, 20, 60, 200, 24, window, (HMENU)2, NULL, NULL);
    GiveMask(edit, heap);
    formerProc = (WNDPROC)SetWindowLongPtrA(edit, GWLP_WNDPROC, (LONG_PTR)OwnProc); /* before the library's: it hears first */
    SetFocus(edit);
    while (GetMessageA(&message, NULL, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    SharedHeapDestroy(heap);
    return 0;
}
