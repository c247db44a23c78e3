/* Controls that a dialog template has made, configured when the dialog begins. */
#include <stdio.h>

#include "dialog.h"
#include "ztedit.h"

static void Configure(HWND dialog, SharedHeap heap, int id, const char* mask, int32_t type, const char* range)
{
    EditInitParams params = {0};
    params.heap = heap;
    params.maskText = mask;
    params.dataType = type;
    params.options = ZTEO_MODERN | (range ? ZTEO_SPIN : 0);
    params.spinIncrement = 1;
    params.spinRangeText = range;
    ZTE_Init(GetDlgItem(dialog, id), &params);
}

static void TellWhatWasEntered(HWND dialog, SharedHeap heap)
{
    char* arrival = ZTE_GetDataString(GetDlgItem(dialog, IDC_ARRIVAL)); /* null while it is no date */
    char* nights = ZTE_GetDataString(GetDlgItem(dialog, IDC_NIGHTS));
    char told[100];
    snprintf(told, sizeof told, "From %s, %s nights", arrival ? arrival : "some day", nights && *nights ? nights : "some");
    SetDlgItemTextA(dialog, IDC_TOLD, told);
    SharedHeapFree(heap, arrival);
    SharedHeapFree(heap, nights);
}

static INT_PTR CALLBACK StayProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    SharedHeap heap = (SharedHeap)GetWindowLongPtrA(dialog, DWLP_USER);
    switch (message) {
    case WM_INITDIALOG:
        heap = (SharedHeap)lParam;
        SetWindowLongPtrA(dialog, DWLP_USER, (LONG_PTR)heap);
        Configure(dialog, heap, IDC_ARRIVAL, "MM/DD/YYYY", DT_DATE, NULL);
        Configure(dialog, heap, IDC_NIGHTS, "#0", DT_NUMBER, "1~30");
        return TRUE;
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK)
            TellWhatWasEntered(dialog, heap);
        if (LOWORD(wParam) == IDCANCEL)
            EndDialog(dialog, 0);
        return TRUE;
    default: return FALSE;
    }
}

int main(void)
{
    SharedHeap heap = SharedHeapCreate();
    ZTE_Initialize();
    DialogBoxParamA(GetModuleHandleA(NULL), MAKEINTRESOURCEA(IDD_STAY), NULL, StayProc, (LPARAM)heap);
    SharedHeapDestroy(heap);
    return 0;
}
