// Code tables: display texts paired with data values, parsed from text, looked up, walked by a cursor.
#include "engine/format/code_table.h"

#include <algorithm>
#include <new>
#include <utility>

#include "engine/heap_block.h"

namespace zte {

namespace {

constexpr int32_t kGrowth = 51;       // slots
constexpr size_t kLongestText = 255;  // of an entry
constexpr Char kSeparator = '/';
constexpr Char kValueFollows = '\t';

uint32_t TableSize(int32_t slots)
{
    return static_cast<uint32_t>(sizeof(CodeTable) + static_cast<size_t>(slots) * sizeof(CodeTableEntry));
}

// Makes room for the entry at an index, behind those written so far; the table may move.
CodeTable* GrowFor(const EditInstance& edit, CodeTable* table, int32_t index)
{
    const int32_t old = table ? table->capacity : 0;
    if (index < old)
        return table;
    const int32_t capacity = index + kGrowth;
    table = static_cast<CodeTable*>(services::Reallocate(edit.heap, table, TableSize(capacity), edit.heapFlags));
    new (table) CodeTable{static_cast<int16_t>(capacity), static_cast<int16_t>(index), nullptr};
    std::fill(table->Entries() + old, table->Entries() + capacity, CodeTableEntry{});
    return table;
}

// Reads a code-table text entry by entry into a table that grows as needed.
class CodeTableParser {
public:
    explicit CodeTableParser(const EditInstance& edit) : edit_(edit) {}

    CodeTable* Parse(const Char* text)
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
    const Char* TakeItem(const Char* text)
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

    void Add(Char c)
    {
        if (part_.size() < kLongestText)
            part_ += c;
    }

    void Store(Char* CodeTableEntry::*member)
    {
        table_ = GrowFor(edit_, table_, index_);
        FreeBlock(edit_,
                  table_->Entries()[index_].*member);  // behind a second tab the entry shows what stood before that one
        table_->Entries()[index_].*member = Duplicate(edit_, part_);
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
    Text part_;
    Char* CodeTableEntry::*member_ = &CodeTableEntry::display;  // what the text being read is
    int32_t index_ = 0;
    bool pending_ = false;  // an entry has been begun
};

void FillCycle(const EditInstance& edit, CodeTable& table)
{
    table.cycle = services::CreateList(edit.heap, edit.heapFlags);
    for (int32_t i = 0; i < table.count; ++i)
        if (table.Entries()[i].value)
            services::Append(table.cycle, &table.Entries()[i]);
}

// The first entry of the cycle whose member equals text; the table's cursor stands on it afterwards. What has a data value has a
// display text as well: the tab between them writes it.
const CodeTableEntry* FindEntry(const EditInstance& edit, Char* CodeTableEntry::*member, const Text& text)
{
    SharedList cycle = edit.codeTable->cycle;
    for (void* item = services::First(cycle); item; item = services::Next(cycle)) {
        const auto* entry = static_cast<const CodeTableEntry*>(item);
        if (text == entry->*member)
            return entry;
    }
    return nullptr;
}

}  // namespace

void ParseCodeTable(EditInstance& edit, const Char* text)
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
    services::DestroyList(table->cycle);
    for (int32_t i = 0; i < table->count; ++i) {
        services::Free(edit.heap, table->Entries()[i].display);
        services::Free(edit.heap, table->Entries()[i].value);
    }
    services::Free(edit.heap, table);
}

const Char* DisplayTextForValue(const EditInstance& edit, const Char* value)
{
    const CodeTableEntry* entry = FindEntry(edit, &CodeTableEntry::value, value ? Text(value) : FromAscii(kNullValue));
    return entry ? entry->display : nullptr;
}

const Char* ValueForDisplayText(const EditInstance& edit, const Char* display)
{
    const CodeTableEntry* entry = FindEntry(edit, &CodeTableEntry::display, display);
    return entry ? entry->value : nullptr;
}

}  // namespace zte
