/* A customer's program in C: includes the public headers, links every public function through the import libraries, and
 * makes one control. Exits with 0 when the control shows and gives back its value. */
#include <string.h>

#include "ztdecimal.h"
#include "ztedit.h"
#include "ztshared.h"

typedef void (*Function)(void);

static const Function kFunctions[] = {
    (Function)WEP,
    (Function)ZTE_CheckMask,
    (Function)ZTE_CreateSpin,
    (Function)ZTE_DestroySpin,
    (Function)ZTE_FmtFormatData,
    (Function)ZTE_FmtGetData,
    (Function)ZTE_FmtGetDataType,
    (Function)ZTE_FmtSetData,
    (Function)ZTE_FmtSetDataString,
    (Function)ZTE_FmtSetMask,
    (Function)ZTE_FmtUnformatData,
    (Function)ZTE_GetDataString,
    (Function)ZTE_GetLastProblem,
    (Function)ZTE_GetSpinWidth,
    (Function)ZTE_GetState,
    (Function)ZTE_Init,
    (Function)ZTE_Initialize,
    (Function)ZTE_PaintSpin,
    (Function)ZTE_PaintSpinOnce,
    (Function)ZTE_SetAutoskip,
    (Function)ZTE_SetModern,
    (Function)ZTE_SetSpin,
    (Function)ZTE_SetSpinBkColor,
    (Function)ZTE_SpinDateRange,
    (Function)ZTE_SpinRangeCompare,
    (Function)ZTE_SpinWndProc,
    (Function)ZTE_SuperEditWndProc,
    (Function)ZTE_TrySetDataString,
    (Function)ZTE_UtilSetFormatRect,
    (Function)DecAdd,
    (Function)DecCompare,
    (Function)DecCopy,
    (Function)DecDivide,
    (Function)DecFromString,
    (Function)DecFromUnsigned,
    (Function)DecSetZero,
    (Function)DecSubtract,
    (Function)SharedCharConvertOne,
    (Function)SharedCharConvertTwo,
    (Function)SharedCompileFormat,
    (Function)SharedDateTimeNow,
    (Function)SharedFormatDecimal,
    (Function)SharedFormatDouble,
    (Function)SharedHeapAlloc,
    (Function)SharedHeapBlockCount,
    (Function)SharedHeapCreate,
    (Function)SharedHeapDestroy,
    (Function)SharedHeapFree,
    (Function)SharedHeapRealloc,
    (Function)SharedHeapStrDup,
    (Function)SharedIsNumber,
    (Function)SharedListAppend,
    (Function)SharedListCreate,
    (Function)SharedListCurrent,
    (Function)SharedListDestroy,
    (Function)SharedListFirst,
    (Function)SharedListLast,
    (Function)SharedListNext,
    (Function)SharedListPrev,
    (Function)SharedListSeek,
    (Function)SharedListTell,
    (Function)SharedParseDateTime,
    (Function)SharedReadRegionalSettings,
    (Function)SharedStrCopy,
};

static int AllAreLinked(void)
{
    size_t i;
    for (i = 0; i < sizeof kFunctions / sizeof kFunctions[0]; ++i)
        if (!*(const volatile Function*)&kFunctions[i])
            return 0;
    return 1;
}

int main(void)
{
    EditInitParams params = {0};
    DecimalValue price, zero;
    char shown[32] = "";
    char* number;
    int good;
    HWND control;

    params.heap = SharedHeapCreate();
    params.maskText = "#,##0.00";
    params.dataType = DT_NUMBER;
    params.initialData = "1234.5";
    control = CreateWindowExA(0, ZTEDIT_CLASS, "", WS_POPUP, 0, 0, 100, 20, NULL, NULL, NULL, &params);
    GetWindowTextA(control, shown, sizeof shown);
    number = (char*)ZTE_FmtGetData(control);
    good = AllAreLinked() && strcmp(shown, "1,234.50") == 0 && number && strcmp(number, "1234.50") == 0 &&
           DecCompare(DecFromString(&price, "19.90", 2), DecSetZero(&zero)) > 0;
    SharedHeapFree(params.heap, number);
    DestroyWindow(control);
    SharedHeapDestroy(params.heap);
    return good ? 0 : 1;
}
