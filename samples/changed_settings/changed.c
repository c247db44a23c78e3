/* A form that follows the regional settings while it runs: dates and amounts change their looks, the values stay. */
#include <string.h>

#include "ztedit.h"

static SharedHeap heap;
static HWND day;
static HWND amount;

/* The masks are made of the settings, so they are set anew. */
static void ShowAnew(HWND edit, const char* mask, char* value)
{
    ZTE_FmtSetMask(edit, mask, ZTE_FmtGetDataType(edit));
    ZTE_TrySetDataString(edit, value ? value : "");
    SharedHeapFree(heap, value);
}

/* Windows tells the windows of the desktop alone; the controls hear it from their form, once their values have been read under the
 * settings that they were shown under. */
static void FollowSettings(UINT message, WPARAM wParam, LPARAM lParam)
{
    char* dayShown = ZTE_GetDataString(day);
    char* amountShown = ZTE_GetDataString(amount);
    SendMessageA(day, message, wParam, lParam);
    ShowAnew(day, "[date]", dayShown);
    ShowAnew(amount, "[currency(9)]", amountShown);
}

static LRESULT CALLBACK FormProc(HWND form, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SETTINGCHANGE && lParam && strcmp((const char*)lParam, "intl") == 0)
        FollowSettings(message, wParam, lParam);
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcA(form, message, wParam, lParam);
}

static HWND AddField(HWND form, int id, const char* mask, int32_t type, const char* data)
{
    EditInitParams params = {0};
    params.heap = heap;
    params.maskText = mask;
    params.dataType = type;
    params.initialData = data;
    params.options = ZTEO_MODERN;
    return CreateWindowExA(WS_EX_CLIENTEDGE, ZTEDIT_CLASS, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 20, 20 + 40 * (id - 1), 140, 24,
                           form, (HMENU)(INT_PTR)id, NULL, &params);
}

int main(void)
{
    WNDCLASSA form = {0};
    HWND window;
    MSG message;

    ZTE_Initialize();
    form.lpfnWndProc = FormProc;
    form.lpszClassName = "Form";
    form.hbrBackground = (HBRUSH)(COLOR_BTNFACE + 1);
    RegisterClassA(&form);
    heap = SharedHeapCreate();
    window = CreateWindowA("Form", "Settings", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 60, 60, 320, 160, NULL, NULL, NULL, NULL);
    day = AddField(window, 1, "[date]", DT_DATE, "2026-11-21");
    amount = AddField(window, 2, "[currency(9)]", DT_DECIMAL, "1234.5");
    SetFocus(day);
    while (GetMessageA(&message, NULL, 0, 0) > 0) {
        if (!IsDialogMessageA(window, &message)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
    }
    SharedHeapDestroy(heap);
    return 0;
}
