// Code tables: display texts paired with data values, parsed from text, walked by a cursor, chosen by type-ahead.
#include "spin/code_table.h"

#include <cstring>
#include <string>
#include <utility>

#include "core/base_edit.h"
#include "core/heap.h"

namespace zte {

namespace {

constexpr int32_t kGrowth = 51;       // slots
constexpr size_t kLongestText = 255;  // of an entry
constexpr char kSeparator = '/';
constexpr char kValueFollows = '\t';

uint32_t TableSize(int32_t slots)
{
    return static_cast<uint32_t>(sizeof(CodeTable) + static_cast<size_t>(slots) * sizeof(CodeTableEntry));
}

// Makes room for the entry at an index; the table may move.
CodeTable* GrowFor(const EditInstance& edit, CodeTable* table, int32_t index)
{
    const int32_t old = table ? table->capacity : 0;
    if (table && index < old)
        return table;
    const int32_t capacity = index + kGrowth;
    const bool isNew = table == nullptr;
    table = static_cast<CodeTable*>(SharedHeapRealloc(edit.heap, table, TableSize(capacity), edit.heapFlags));
    if (isNew)
        *table = CodeTable{};
    std::memset(table->Entries() + old, 0, static_cast<size_t>(capacity - old) * sizeof(CodeTableEntry));
    table->capacity = static_cast<int16_t>(capacity);
    return table;
}

// Reads a code-table text entry by entry into a table that grows as needed.
class CodeTableParser {
public:
    explicit CodeTableParser(const EditInstance& edit) : edit_(edit) {}

    CodeTable* Parse(const char* text)
    {
        if (text[0] == kSeparator && text[1] != kSeparator)
            ++text;
        while (*text && index_ < INT16_MAX - kGrowth)
            text = TakeItem(text);
        if (pending_)
            CloseEntry();
        return table_ ? table_ : GrowFor(edit_, nullptr, 0);
    }

private:
    const char* TakeItem(const char* text)
    {
        pending_ = true;
        if (*text == kValueFollows) {
            Store(&CodeTableEntry::display);
            member_ = &CodeTableEntry::value;
            return text + 1;
        }
        if (*text != kSeparator) {
            Add(*text);
            return text + 1;
        }
        if (text[1] == kSeparator) {
            Add(kSeparator);
            return text + 2;
        }
        CloseEntry();
        return text + 1;
    }

    void Add(char c)
    {
        if (part_.size() < kLongestText)
            part_ += c;
    }

    void Store(char* CodeTableEntry::*member)
    {
        table_ = GrowFor(edit_, table_, index_);
        table_->Entries()[index_].*member = Duplicate(edit_, part_.c_str());
        if (table_->count < index_ + 1)
            table_->count = static_cast<int16_t>(index_ + 1);
        part_.clear();
    }

    void CloseEntry()
    {
        Store(member_);
        member_ = &CodeTableEntry::display;
        pending_ = false;
        ++index_;
    }

    const EditInstance& edit_;
    CodeTable* table_ = nullptr;
    std::string part_;
    char* CodeTableEntry::*member_ = &CodeTableEntry::display;  // what the text being read is
    int32_t index_ = 0;
    bool pending_ = false;  // an entry has been begun
};

void FillCycle(const EditInstance& edit, CodeTable& table)
{
    table.cycle = SharedListCreate(edit.heap, edit.heapFlags);
    for (int32_t i = 0; i < table.count; ++i)
        if (table.Entries()[i].value)
            SharedListAppend(table.cycle, &table.Entries()[i]);
}

// Walks on from an element to one that begins with the character.
const CodeTableEntry* FindFrom(SharedList cycle, void* item, char first)
{
    for (; item; item = SharedListNext(cycle)) {
        const auto* entry = static_cast<const CodeTableEntry*>(item);
        if (entry->display && entry->display[0] == first)
            return entry;
    }
    return nullptr;
}

}  // namespace

void ParseCodeTable(EditInstance& edit, const char* text)
{
    CodeTable* table = CodeTableParser(edit).Parse(text);
    FillCycle(edit, *table);
    edit.codeTable = table;
}

void DestroyCodeTable(EditInstance& edit)
{
    CodeTable* table = std::exchange(edit.codeTable, nullptr);
    if (!table)
        return;
    SharedListDestroy(table->cycle);
    SharedHeapFree(edit.heap, table);
}

// From behind the entry that the cursor stands on to the end, then from the first one: the same letter typed again goes on
// to the next entry, whether or not the cursor counts as standing on the entry shown.
void CodeTableTypeAhead(EditInstance& edit, char typed)
{
    if (!edit.codeTable || typed == '\0')
        return;
    SharedList cycle = edit.codeTable->cycle;
    const int32_t former = SharedListTell(cycle);
    const CodeTableEntry* entry = FindFrom(cycle, SharedListNext(cycle), typed);
    if (!entry)
        entry = FindFrom(cycle, SharedListFirst(cycle), typed);
    if (entry)
        ShowText(edit, std::string(entry->display).c_str());
    else
        SharedListSeek(cycle, former);
}

}  // namespace zte
