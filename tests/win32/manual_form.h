/* What docs/manual/ prints, for manual_forms_test.cpp. */
#pragma once

#include <stdio.h>

#include "ztedit.h"

#ifdef __cplusplus
extern "C" {
#endif

enum { FIRST_FIELD = 101, LAST_FIELD = 104 };

HWND FirstWrongField(HWND form);
BOOL SaveForm(HWND form, SharedHeap heap, FILE* file);
HWND LoadForm(HWND form, FILE* file);
BOOL ReadDay(HWND field, SharedHeap heap, SYSTEMTIME* day);
double ReadAmount(HWND field, SharedHeap heap, double whenEmpty);
int32_t TellMaskFault(const char* mask, int32_t type);

#ifdef __cplusplus
}
#endif
