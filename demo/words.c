/* What the demo says of a control, in words: the same on the form and in the laboratory. */
#include "words.h"

#include <stdio.h>

/* All by their numbers. */
static const char* const kStates[] = {"empty", "incomplete", "invalid", "out of range", "complete"};

static const char* const kReasons[] = {"",
                                       "it does not belong there",
                                       "there is no such number",
                                       "there is no room for more",
                                       "the field is read-only",
                                       "the text does not fit",
                                       "the number is in doubt",
                                       "there is no such date",
                                       "there is no such entry",
                                       "the range ends here",
                                       "the character is not in the code page"};

static const char* const kProblems[] = {"none",
                                        "no parameters were given",
                                        "no heap was given",
                                        "the heap is none, or is gone",
                                        "the window's messages do not reach the library",
                                        "the window gets wide texts",
                                        "there is no such data type",
                                        "the mask does not fit the type, whose default stands in"};

static const char* const kVerdicts[] = {"The mask fits.",
                                        "There is no such data type.",
                                        "No mask at all: only strings do without one.",
                                        "A mask has at most 255 characters.",
                                        "Nothing behind this ~ that it could make a literal.",
                                        "Nothing can be made of this keyword under these settings.",
                                        "It may not stand here in a number.",
                                        "It is there a second time.",
                                        "A field of this length does not exist.",
                                        "The day of the year does not go with a day or a month.",
                                        "A field is missing: minutes need hours, a day its month, a date its year.",
                                        "A number needs a place for a digit."};

static const char* At(const char* const* words, int32_t count, int32_t number)
{
    return number >= 0 && number < count ? words[number] : "(unknown)";
}

const char* StateWord(int32_t state)
{
    return At(kStates, sizeof kStates / sizeof kStates[0], state);
}

const char* ReasonWords(int32_t reason)
{
    return At(kReasons, sizeof kReasons / sizeof kReasons[0], reason);
}

const char* ProblemWords(int32_t problem)
{
    return At(kProblems, sizeof kProblems / sizeof kProblems[0], problem);
}

const char* VerdictWords(int32_t verdict)
{
    return At(kVerdicts, sizeof kVerdicts / sizeof kVerdicts[0], verdict);
}

void ReadValue(HWND control, SharedHeap heap, char* text, size_t size)
{
    const uint16_t type = ZTE_FmtGetDataType(control);
    void* data = ZTE_FmtGetData(control);
    const DateTimeValue* value = (const DateTimeValue*)data;
    if (!data)
        snprintf(text, size, "(none)");
    else if (type == DT_DATE)
        snprintf(text, size, "%04d-%02d-%02d", value->year + 1900, value->month + 1, value->day);
    else if (type == DT_TIME)
        snprintf(text, size, "%02d:%02d:%02d:%06u", value->hour, value->minute, value->second, value->microsecond);
    else if (type == DT_DATETIME)
        snprintf(text, size, "%04d-%02d-%02d %02d:%02d:%02d:%06u", value->year + 1900, value->month + 1, value->day,
                 value->hour, value->minute, value->second, value->microsecond);
    else
        snprintf(text, size, "%s", (const char*)data);
    SharedHeapFree(heap, data);
}
