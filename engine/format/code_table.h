// Code tables: display texts paired with data values, parsed from text, looked up, walked by a cursor.
#pragma once

#include "engine/record.h"

namespace zte {

struct CodeTableEntry {
    Char* display;  // null until written
    Char* value;    // null: none; the entry is then out of reach of the spin, of type-ahead and of look-ups
};

// One block of the control's heap, the entry slots directly behind the header.
struct CodeTable {
    int16_t capacity;
    int16_t count;     // one more than the highest entry written
    SharedList cycle;  // the entries with a data value; its cursor is the table's cursor
    CodeTableEntry* Entries() { return reinterpret_cast<CodeTableEntry*>(this + 1); }
};

// The data value that stands for no data.
constexpr char kNullValue[] = "null!";

// Builds edit.codeTable from a code-table text; a table always results.
void ParseCodeTable(EditInstance& edit, const Char* text);

// Frees the table with its texts and clears the field.
void DestroyCodeTable(EditInstance& edit);

// The display text of the first entry whose data value equals value (null: the "null!" entry); null when none does. The
// cursor stands on the entry found.
const Char* DisplayTextForValue(const EditInstance& edit, const Char* value);

// The data value of the first entry that is shown as display; null when none is.
const Char* ValueForDisplayText(const EditInstance& edit, const Char* display);

}  // namespace zte
