// Code tables: display texts paired with data values, parsed from text, walked by a cursor, chosen by type-ahead.
#pragma once

#include "core/edit_instance.h"

namespace zte {

struct CodeTableEntry {
    char* display;  // null until written
    char* value;    // null: none; the entry is then out of reach of the spin, of type-ahead and of look-ups
};

// One block of the control's heap, the entry slots directly behind the header.
struct CodeTable {
    int16_t capacity;
    int16_t count;     // one more than the highest entry written
    SharedList cycle;  // the entries with a data value; its cursor is the table's cursor
    CodeTableEntry* Entries() { return reinterpret_cast<CodeTableEntry*>(this + 1); }
};

// Builds edit.codeTable from a code-table text; a table always results.
void ParseCodeTable(EditInstance& edit, const char* text);

// Destroys the cycle list, frees the table and clears the field; the entry texts stay in the caller's heap.
void DestroyCodeTable(EditInstance& edit);

// Chooses the next entry that begins with the typed character.
void CodeTableTypeAhead(EditInstance& edit, char typed);

}  // namespace zte
