// Choosing entries of a pick list by their first letter.
#include "engine/edit/type_ahead.h"

#include "engine/format/code_table.h"
#include "engine/services.h"
#include "engine/user_change.h"

namespace zte {

namespace {

// Walks on from an element to one that begins with the character.
const CodeTableEntry* FindFrom(SharedList cycle, void* item, Char first)
{
    for (; item; item = services::Next(cycle)) {
        const auto* entry = static_cast<const CodeTableEntry*>(item);
        if (entry->display && entry->display[0] == first)
            return entry;
    }
    return nullptr;
}

}  // namespace

// From behind the entry that the cursor stands on to the end, then from the first one: the same letter typed again goes on
// to the next entry, whether or not the cursor counts as standing on the entry shown.
void TypeAhead(EditInstance& edit, Char typed)
{
    if (!edit.codeTable)
        return;
    SharedList cycle = edit.codeTable->cycle;
    const int32_t former = services::Tell(cycle);
    const CodeTableEntry* entry = FindFrom(cycle, services::Next(cycle), typed);
    if (!entry)
        entry = FindFrom(cycle, services::First(cycle), typed);
    if (!entry) {
        services::Seek(cycle, former);
        return;
    }
    const Text chosen = entry->display;  // a copy: the table may be replaced meanwhile
    AsUserChange(edit, [&] { ShowText(edit, chosen.c_str()); });
}

}  // namespace zte
