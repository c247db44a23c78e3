/* The fields of the demo form: a label and a configuration each. */
#ifndef DEMO_FIELDS_H
#define DEMO_FIELDS_H

#include "ztedit.h"

typedef struct Field {
    const char* name; /* short, for the table of results */
    const char* label;
    const char* mask;
    int32_t type;
    const char* data;   /* shown at first; null for the empty value */
    uint32_t options;   /* ZTEO_ bits beside autoskip */
    uint32_t increment; /* the next three count for spins */
    const char* range;
    const char* codeTable;
} Field;

extern const Field kFields[];
extern const int kFieldCount;

#endif
