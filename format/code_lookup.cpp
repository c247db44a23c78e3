// Looks values up in a control's code table.
#include "format/code_lookup.h"

#include <cstring>

#include "spin/code_table.h"

namespace zte {

namespace {

// The first entry of the cycle whose member equals text; the table's cursor stands on it afterwards.
const CodeTableEntry* FindEntry(const EditInstance& edit, char* CodeTableEntry::*member, const char* text)
{
    SharedList cycle = edit.codeTable->cycle;
    for (void* item = SharedListFirst(cycle); item; item = SharedListNext(cycle)) {
        const auto* entry = static_cast<const CodeTableEntry*>(item);
        if (entry->*member && std::strcmp(entry->*member, text) == 0)
            return entry;
    }
    return nullptr;
}

}  // namespace

const char* DisplayTextForValue(const EditInstance& edit, const char* value)
{
    const CodeTableEntry* entry = FindEntry(edit, &CodeTableEntry::value, value ? value : kNullValue);
    return entry ? entry->display : nullptr;
}

const char* ValueForDisplayText(const EditInstance& edit, const char* display)
{
    const CodeTableEntry* entry = FindEntry(edit, &CodeTableEntry::display, display);
    return entry ? entry->value : nullptr;
}

}  // namespace zte
