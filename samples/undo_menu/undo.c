/* An Edit menu for whatever field has the focus: messages that every edit control knows, and two characters that modern ones do. */
#include "ztedit.h"

enum { kUndo = 100, kRedo, kCut, kCopy, kPaste, kDelete, kSelectAll };
enum { kCtrlA = 1, kCtrlY = 25 };

typedef struct Item {
    UINT id;
    const char* text;
    UINT message;
    WPARAM wParam;
} Item;

static const Item kItems[] = {
    {kUndo, "&Undo\tCtrl+Z", WM_UNDO, 0},
    {kRedo, "&Redo\tCtrl+Y", WM_CHAR, kCtrlY},
    {kCut, "Cu&t\tCtrl+X", WM_CUT, 0},
    {kCopy, "&Copy\tCtrl+C", WM_COPY, 0},
    {kPaste, "&Paste\tCtrl+V", WM_PASTE, 0},
    {kDelete, "&Delete\tDel", WM_CLEAR, 0},
    {kSelectAll, "Select &all\tCtrl+A", WM_CHAR, kCtrlA},
};
enum { kItemCount = sizeof kItems / sizeof kItems[0] };

static void EnableItems(HMENU menu)
{
    DWORD start = 0;
    DWORD end = 0;
    SendMessageA(GetFocus(), EM_GETSEL, (WPARAM)&start, (LPARAM)&end);
    EnableMenuItem(menu, kUndo, SendMessageA(GetFocus(), EM_CANUNDO, 0, 0) ? MF_ENABLED : MF_GRAYED);
    EnableMenuItem(menu, kCut, start < end ? MF_ENABLED : MF_GRAYED);
    EnableMenuItem(menu, kCopy, start < end ? MF_ENABLED : MF_GRAYED);
    EnableMenuItem(menu, kDelete, start < end ? MF_ENABLED : MF_GRAYED);
}

static LRESULT CALLBACK FormProc(HWND form, UINT message, WPARAM wParam, LPARAM lParam)
{
    int i;
    if (message == WM_INITMENUPOPUP)
        EnableItems((HMENU)wParam);
    for (i = 0; message == WM_COMMAND && lParam == 0 && i < kItemCount; ++i)
        if (LOWORD(wParam) == kItems[i].id)
            SendMessageA(GetFocus(), kItems[i].message, kItems[i].wParam, 1);
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcA(form, message, wParam, lParam);
}

static HMENU MakeMenu(void)
{
    HMENU bar = CreateMenu();
    HMENU edit = CreatePopupMenu();
    int i;
    for (i = 0; i < kItemCount; ++i)
        AppendMenuA(edit, MF_STRING, kItems[i].id, kItems[i].text);
    AppendMenuA(bar, MF_POPUP, (UINT_PTR)edit, "&Edit");
    return bar;
}

int main(void)
{
    WNDCLASSA form = {0};
    EditInitParams phone = {0};
    HWND window;
    MSG message;

    ZTE_Initialize();
    form.lpfnWndProc = FormProc;
    form.lpszClassName = "Form";
    form.hbrBackground = (HBRUSH)(COLOR_BTNFACE + 1);
    RegisterClassA(&form);
    window = CreateWindowA("Form", "Undo menu", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 60, 60, 320, 140, NULL, MakeMenu(), NULL, NULL);
    phone.heap = SharedHeapCreate();
    phone.maskText = "(###) ###-####";
    phone.dataType = DT_STRING;
    phone.options = ZTEO_MODERN;
    SetFocus(CreateWindowExA(WS_EX_CLIENTEDGE, ZTEDIT_CLASS, "", WS_CHILD | WS_VISIBLE, 20, 20, 140, 24, window, (HMENU)1, NULL,
                             &phone));
    while (GetMessageA(&message, NULL, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    SharedHeapDestroy(phone.heap);
    return 0;
}
