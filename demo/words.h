/* What the demo says of a control, in words: the same on the form and in the laboratory. */
#ifndef DEMO_WORDS_H
#define DEMO_WORDS_H

#include <stddef.h>

#include "ztedit.h"

const char* StateWord(int32_t state);      /* of a ZTS_ value */
const char* ReasonWords(int32_t reason);   /* of a ZTR_ value */
const char* ProblemWords(int32_t problem); /* of a ZTP_ value */
const char* VerdictWords(int32_t verdict); /* of a ZTM_ value */

/* The value of a control as text. Dates and times are printed in their canonical form. */
void ReadValue(HWND control, SharedHeap heap, char* text, size_t size);

#endif
