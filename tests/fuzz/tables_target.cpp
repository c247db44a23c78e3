// Code tables and ranges. Bytes: settings, type, style, the mask's line, the range's line, the table's line, then steps.
#include <vector>

#include "engine/format/code_table.h"
#include "engine/spin/range.h"
#include "engine/values/calendar.h"
#include "engine/values/date_time.h"
#include "tests/fuzz/bytes.h"
#include "tests/fuzz/laws.h"
#include "tests/fuzz/player.h"
#include "tests/fuzz/regional.h"
#include "tests/fuzz/targets.h"

namespace zttest {
namespace {

using zte::EditInstance;
using zte::Text;

struct Entry {
    Text display;
    Text value;
    bool hasDisplay = false;
    bool hasValue = false;
};

void Store(Entry& entry, Text& part, bool isValue)
{
    Text& member = isValue ? entry.value : entry.display;
    member = part.substr(0, 255);
    (isValue ? entry.hasValue : entry.hasDisplay) = true;
    part.clear();
}

// The entries of a table's text, read once more: "/" ends an entry, "//" is one, a tab begins the value; one "/" in front is no entry.
std::vector<Entry> EntriesOf(const Text& text)
{
    std::vector<Entry> entries;
    Entry entry;
    Text part;
    bool isValue = false;
    bool begun = false;
    const auto close = [&] {
        Store(entry, part, isValue);
        entries.push_back(entry);
        entry = {};
        isValue = begun = false;
    };
    size_t at = text.size() > 1 && text[0] == '/' && text[1] != '/' ? 1 : 0;
    if (text == "/")
        at = 1;
    for (; at < text.size(); ++at) {
        begun = true;
        if (text[at] == '\t') {
            Store(entry, part, false);  // what stands before the last tab is shown
            isValue = true;
        } else if (text[at] != '/') {
            part += text[at];
        } else if (at + 1 < text.size() && text[at + 1] == '/') {
            part += text[at++];
        } else {
            close();
        }
    }
    if (begun)
        close();
    return entries;
}

Text OrEmpty(const zte::Char* text)
{
    return text ? text : Text();
}

const Entry* FirstWithValue(const std::vector<Entry>& entries, const Text& value)
{
    for (const Entry& entry : entries)
        if (entry.hasValue && entry.value == value)
            return &entry;
    return nullptr;
}

const Entry* FirstShownAs(const std::vector<Entry>& entries, const Text& display)
{
    for (const Entry& entry : entries)
        if (entry.hasValue && entry.hasDisplay && entry.display == display)
            return &entry;
    return nullptr;
}

// Every entry is found by its value and by what it shows, the first of equal ones.
void CheckTable(const EditInstance& edit, const Text& text)
{
    if (!edit.codeTable)
        return;
    const std::vector<Entry> entries = EntriesOf(text);
    Demand(static_cast<size_t>(edit.codeTable->count) == entries.size(), "a table has the entries of its text", text);
    for (size_t at = 0; at < entries.size(); ++at) {
        CountStep(2);
        const zte::CodeTableEntry& entry = edit.codeTable->Entries()[at];
        DemandEqual(OrEmpty(entry.display), entries[at].display, "an entry shows what stands before its tab");
        DemandEqual(OrEmpty(entry.value), entries[at].value, "an entry's value stands behind its tab");
        if (!entries[at].hasValue)
            continue;
        const zte::Char* display = zte::DisplayTextForValue(edit, entries[at].value.c_str());
        Demand(display != nullptr, "an entry is found by its value", entries[at].value);
        DemandEqual(display, FirstWithValue(entries, entries[at].value)->display, "the first entry with a value is the one");
        const zte::Char* value = zte::ValueForDisplayText(edit, display);
        Demand(value != nullptr, "an entry is found by what it shows", display);
        DemandEqual(value, FirstShownAs(entries, display)->value, "the first entry shown so is the one");
    }
}

bool IsPossible(const DateTimeValue& value)
{
    const bool date = !zte::HasDate(value) || (value.month >= 0 && value.month <= 11 && value.day >= 0 && value.day <= 31);
    const bool time = !zte::HasTime(value) || (value.hour >= 0 && value.hour <= 23 && value.minute >= 0 && value.minute <= 59);
    return date && time;
}

void CheckRange(const EditInstance& edit, const Text& range)
{
    CountStep(3);
    const zte::RangeText ends = zte::SplitRange(range.c_str());
    const size_t tilde = range.find('~');
    DemandEqual(ends.minimum, range.substr(0, tilde), "the minimum stands before the tilde");
    DemandEqual(ends.maximum, tilde == Text::npos ? Text() : range.substr(tilde + 1), "the maximum stands behind it");
    DateTimeValue minimum;
    DateTimeValue maximum;
    if (!zte::IsDateOrTime(edit.dataType) || zte::ReadRangeEnd(edit, minimum, ends.minimum) != 0 ||
        zte::ReadRangeEnd(edit, maximum, ends.maximum) != 0)
        return;
    Demand(IsPossible(minimum) && IsPossible(maximum), "an end that is read is a possible one", range);
    Demand(!zte::IsOutOfOrder(edit.dataType, minimum, maximum) || !zte::IsOutOfOrder(edit.dataType, maximum, minimum),
           "two values are out of order one way round", range);
}

}  // namespace

void PlayTables(const uint8_t* data, size_t size)
{
    Bytes bytes(data, size);
    const zte::Settings& settings = RegionalSettings(bytes.Take());
    zte::ControlSetup setup;
    setup.dataType = static_cast<int32_t>(1 + bytes.TakeBelow(6));
    setup.options = ZTEO_SPIN | (bytes.Take() & (ZTEO_CODE_PICK | ZTEO_CODE_DISPLAY));
    setup.spinIncrement = bytes.Take();
    const Text mask = bytes.TakeLine();
    const Text range = bytes.TakeLine();
    const Text codes = bytes.TakeLine();
    setup.mask = mask.c_str();
    setup.spinRange = range.c_str();
    setup.codeTable = codes.empty() ? nullptr : codes.c_str();
    PlayedControl played(setup, settings);
    CheckTable(played.Control().Record(), codes);
    CheckRange(played.Control().Record(), range);
    while (!bytes.IsEmpty()) {
        const uint8_t act = bytes.Take();
        if (act < 3)
            played.Step(act == 1);
        else if (act == 3)
            played.SetDataString(bytes.TakeLine());
        else
            played.Type(act);
        played.Read();
    }
}

}  // namespace zttest
