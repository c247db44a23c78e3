/* A form with a field of each type: the focus goes on when a field is full, and OK tells what is still wrong. */
#include <stdio.h>
#include <string.h>

#include "order.h"
#include "ztedit.h"

typedef struct Field {
    const char* name;
    const char* mask;
    int32_t type;
} Field;

static const Field kFields[] = {
    {"The phone number", "(###) ###-####", DT_STRING},
    {"The day of the order", "MM/DD/YYYY", DT_DATE},
    {"The time to call", "HH:MM", DT_TIME},
    {"The delivery", "MM/DD/YYYY HH:MM", DT_DATETIME},
    {"The count", "#,##0", DT_NUMBER},
    {"The price", "#,##0.00", DT_DECIMAL},
};

static const char* const kStates[] = {"is missing", "is not complete", "does not exist", "is out of range", "is fine"};

static void ConfigureAll(HWND dialog, SharedHeap heap)
{
    int id;
    for (id = IDC_FIRST_FIELD; id <= IDC_LAST_FIELD; ++id) {
        const Field* field = &kFields[id - IDC_FIRST_FIELD];
        EditInitParams params = {0};
        params.heap = heap;
        params.maskText = field->mask;
        params.dataType = field->type;
        params.options = ZTEO_MODERN | ZTEO_AUTOSKIP;
        ZTE_Init(GetDlgItem(dialog, id), &params);
    }
}

/* The first field that is not complete gets the focus, and is named. */
static BOOL IsComplete(HWND dialog)
{
    char told[100];
    int id;
    for (id = IDC_FIRST_FIELD; id <= IDC_LAST_FIELD; ++id) {
        const int32_t state = ZTE_GetState(GetDlgItem(dialog, id));
        if (state != ZTS_COMPLETE) {
            snprintf(told, sizeof told, "%s %s.", kFields[id - IDC_FIRST_FIELD].name, kStates[state]);
            SetDlgItemTextA(dialog, IDC_TOLD, told);
            SetFocus(GetDlgItem(dialog, id));
            return FALSE;
        }
    }
    return TRUE;
}

/* As a program would store them: canonical texts, the same under all regional settings. */
static void TellValues(HWND dialog, SharedHeap heap)
{
    char told[200] = "";
    int id;
    for (id = IDC_FIRST_FIELD; id <= IDC_LAST_FIELD; ++id) {
        char* value = ZTE_GetDataString(GetDlgItem(dialog, id));
        strncat(told, id == IDC_FIRST_FIELD ? "" : "|", sizeof told - strlen(told) - 1);
        strncat(told, value ? value : "", sizeof told - strlen(told) - 1);
        SharedHeapFree(heap, value);
    }
    SetDlgItemTextA(dialog, IDC_TOLD, told);
}

static INT_PTR CALLBACK OrderProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    SharedHeap heap = (SharedHeap)GetWindowLongPtrA(dialog, DWLP_USER);
    switch (message) {
    case WM_INITDIALOG:
        SetWindowLongPtrA(dialog, DWLP_USER, lParam);
        ConfigureAll(dialog, (SharedHeap)lParam);
        return TRUE;
    case WM_COMMAND:
        if (HIWORD(wParam) == ZTN_AUTOSKIP)
            SendMessageA(dialog, WM_NEXTDLGCTL, 0, FALSE);
        else if (LOWORD(wParam) == IDOK && IsComplete(dialog))
            TellValues(dialog, heap);
        else if (LOWORD(wParam) == IDCANCEL)
            EndDialog(dialog, 0);
        return TRUE;
    default: return FALSE;
    }
}

int main(void)
{
    SharedHeap heap = SharedHeapCreate();
    ZTE_Initialize();
    DialogBoxParamA(GetModuleHandleA(NULL), MAKEINTRESOURCEA(IDD_ORDER), NULL, OrderProc, (LPARAM)heap);
    SharedHeapDestroy(heap);
    return 0;
}
