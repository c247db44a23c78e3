/* In place of the DLLs, for the control of the C# binding where there is no Windows: one control, which takes every text without an "x"
 * and gives back what it has taken. What it is told is written down. */
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

typedef struct Params { /* EditInitParams */
    void* heap;
    uint32_t heapFlags;
    uint32_t reserved;
    const char* maskText;
    int32_t dataType;
    const char* initialData;
    const char* spinRangeText;
    uint32_t spinIncrement;
    const char* codeTableText;
    uint32_t options;
} Params;

static char told[4096];
static char value[256];
static int32_t hasValue = 1;
static int32_t refuses;
static int heaps;
static int blocks;

static void Tell(const char* what, const char* text, long number)
{
    const size_t length = strlen(told);
    snprintf(told + length, sizeof told - length, "%s %s %ld;", what, text ? text : "-", number);
}

/* For the tests: what was told since the last call; what is alive; a control without a value; a window that cannot be configured. */
void TakeTold(char* text, int32_t size)
{
    snprintf(text, (size_t)size, "%s", told);
    told[0] = '\0';
}
int32_t HeapsAlive(void)
{
    return heaps;
}
int32_t BlocksAlive(void)
{
    return blocks;
}
void SetHasValue(int32_t on)
{
    hasValue = on;
}
void SetRefuses(int32_t on)
{
    refuses = on;
}

uint32_t ZTE_Initialize(void)
{
    return 0x000500;
}
void* SharedHeapCreate(void)
{
    ++heaps;
    return told;
}
void SharedHeapDestroy(void* heap)
{
    heaps -= heap == told;
}
void SharedHeapFree(void* heap, void* block)
{
    blocks -= heap == told && block;
    free(block);
}
int32_t ZTE_Init(void* hwnd, const Params* params)
{
    if (!hwnd || params->heap != told || refuses)
        return 0;
    Tell("mask", params->maskText, params->dataType);
    Tell("data", params->initialData, (long)params->options);
    Tell("spin", params->spinRangeText, (long)params->spinIncrement);
    Tell("codes", params->codeTableText, 0);
    snprintf(value, sizeof value, "%s", params->initialData ? params->initialData : "");
    return 1;
}
int32_t ZTE_GetLastProblem(void* hwnd)
{
    return hwnd && refuses ? 4 : 0;
}
int32_t ZTE_FmtSetMask(void* hwnd, const char* mask, int32_t dataType)
{
    Tell("set mask", mask, dataType);
    return hwnd && !strchr(mask, 'x');
}
int32_t ZTE_SetModern(void* hwnd, int32_t on)
{
    Tell("modern", "", hwnd ? on : -1);
    return 0;
}
void ZTE_SetAutoskip(void* hwnd, uint32_t on)
{
    Tell("autoskip", "", hwnd ? (long)on : -1);
}
int32_t ZTE_GetState(void* hwnd)
{
    return !hwnd || refuses ? -1 : hasValue ? 4 : 1;
}
int32_t ZTE_TrySetDataString(void* hwnd, const char* text)
{
    if (!hwnd || strchr(text, 'x'))
        return 5;
    snprintf(value, sizeof value, "%s", text);
    return 0;
}
int32_t ZTE_FmtSetDataString(void* hwnd, const char* text)
{
    Tell("set text", text, hwnd != 0);
    return 0;
}
char* ZTE_GetDataString(void* hwnd)
{
    if (!hwnd || !hasValue || refuses)
        return NULL;
    ++blocks;
    return strcpy(malloc(sizeof value), value);
}
