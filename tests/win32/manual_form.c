/* The functions that docs/manual/ prints, as it prints them; manual_forms_test.cpp runs them. */
#include "manual_form.h"

#include <stdlib.h>
#include <string.h>

/* The first field whose value cannot be stored; null when all can. What is empty may be stored. */
HWND FirstWrongField(HWND form)
{
    int id;
    for (id = FIRST_FIELD; id <= LAST_FIELD; ++id) {
        const int32_t state = ZTE_GetState(GetDlgItem(form, id));
        if (state != ZTS_COMPLETE && state != ZTS_EMPTY)
            return GetDlgItem(form, id);
    }
    return NULL;
}

/* One line a field, in canonical text; an empty line for an empty field. */
BOOL SaveForm(HWND form, SharedHeap heap, FILE* file)
{
    int id;
    if (FirstWrongField(form))
        return FALSE;
    for (id = FIRST_FIELD; id <= LAST_FIELD; ++id) {
        char* text = ZTE_GetDataString(GetDlgItem(form, id));
        fprintf(file, "%s\n", text);
        SharedHeapFree(heap, text);
    }
    return TRUE;
}

/* Shows what was saved. Returns the first field that refuses its line, and keeps what it showed; null when all is shown. */
HWND LoadForm(HWND form, FILE* file)
{
    char line[256];
    int id;
    for (id = FIRST_FIELD; id <= LAST_FIELD; ++id) {
        line[0] = '\0';
        if (fgets(line, sizeof line, file))
            line[strcspn(line, "\r\n")] = '\0';
        if (ZTE_TrySetDataString(GetDlgItem(form, id), line) != 0)
            return GetDlgItem(form, id);
    }
    return NULL;
}

/* A date as numbers; FALSE when there is none. */
BOOL ReadDay(HWND field, SharedHeap heap, SYSTEMTIME* day)
{
    DateTimeValue* value = (DateTimeValue*)ZTE_FmtGetData(field);
    const BOOL isDate =
        value && value->year != DATETIME_NO_DATE; /* a classic field whose text is gone: a record without a date */
    if (isDate) {
        day->wYear = (WORD)(value->year + 1900);
        day->wMonth = (WORD)(value->month + 1);
        day->wDay = (WORD)value->day;
    }
    SharedHeapFree(heap, value);
    return isDate;
}

/* An amount as a double; the point of the canonical text is that of the "C" locale. */
double ReadAmount(HWND field, SharedHeap heap, double whenEmpty)
{
    char* text = ZTE_GetDataString(field);
    const double amount = text && *text ? strtod(text, NULL) : whenEmpty;
    SharedHeapFree(heap, text);
    return amount;
}

/* Tells in the debugger why a mask does not fit its type, and where. */
int32_t TellMaskFault(const char* mask, int32_t type)
{
    char told[400];
    int32_t position;
    const int32_t reason = ZTE_CheckMask(mask, type, &position);
    if (reason != ZTM_FITS) {
        snprintf(told, sizeof told, "%s: ZTM_ reason %d at %d\n", mask, (int)reason, (int)position);
        OutputDebugStringA(told);
    }
    return reason;
}
