// The model's code tables: their text, look-ups in them, and the keys that choose an entry.
// A look-up moves the table's cursor.
#include "model_control.h"
#include "model_text.h"

namespace model {

std::vector<CodeEntry> CycleOfCodeTable(const std::string& text)
{
    std::vector<CodeEntry> cycle;
    CodeEntry entry;
    std::string buffer;
    bool isValue = false;
    const auto close = [&] {
        if (isValue)
            cycle.push_back({entry.display, buffer.substr(0, 255)});
        entry = {};
        buffer.clear();
        isValue = false;
    };
    size_t i = text.compare(0, 1, "/") == 0 && text.compare(0, 2, "//") != 0 ? 1 : 0;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        const bool literal = c == '/' && i + 1 < text.size() && text[i + 1] == '/';
        if (c == '\t') {
            entry.display = buffer.substr(0, 255);
            buffer.clear();
            isValue = true;
        } else if (c == '/' && !literal)
            close();
        else
            buffer += c;
        i += literal ? 1 : 0;
    }
    if (!buffer.empty() || isValue)
        close();
    return cycle;
}

void Control::SetCodeDisplay(bool codes, bool pick)
{
    codeSpin_ = codes;
    codePick_ = pick;
}

// A look-up leaves the table's cursor on the entry found, or behind the last one.
const CodeEntry* Control::Find(const std::string CodeEntry::*part, const std::string& text)
{
    for (cursor_ = 0; cursor_ < static_cast<int>(cycle_.size()); ++cursor_)
        if (cycle_[static_cast<size_t>(cursor_)].*part == text)
            return &cycle_[static_cast<size_t>(cursor_)];
    cursor_ = -1;
    return nullptr;
}

// The entry of data as they are handed in: no data, or the text of a string.
const CodeEntry* Control::EntryOf(const Value& value)
{
    if (!ThroughCodes() || (!value.none && type_ != kString))
        return nullptr;
    return Find(&CodeEntry::value, value.none ? "null!" : value.text);
}

// The data that an entry stands for.
Value Control::DataOf(const CodeEntry& entry) const
{
    if (!IsTemporal())
        return Value::OfText(entry.value);
    Stamp stamp;
    ParseCanonical(stamp, entry.value, type_, *regional_);
    return Value::OfStamp(stamp);
}

// True when the code table has settled what is shown.
bool Control::ShowThroughCodes(const Value& value)
{
    if (codeSpin_ && !hasTable_) {
        edit_.SetText("");
        spun_ = true;
        return true;
    }
    const CodeEntry* entry = EntryOf(value);
    if (entry != nullptr) {
        positioned_ = true;
        edit_.SetText(entry->display);
    } else if (ThroughCodes() && codePick_)
        spun_ = true;
    return entry != nullptr;
}

void Control::TypeAhead(char c)
{
    if (!hasTable_)
        return;
    const int count = static_cast<int>(cycle_.size());
    const auto search = [&](int from) {
        for (int i = from; i < count; ++i)
            if (!cycle_[static_cast<size_t>(i)].display.empty() && cycle_[static_cast<size_t>(i)].display[0] == c)
                return i;
        return -1;
    };
    int found = search(cursor_ + 1);
    if (found < 0)
        found = search(0);
    if (found < 0)
        return;
    cursor_ = found;
    edit_.SetText(cycle_[static_cast<size_t>(found)].display);
}

// The entry that someone who looks at the control sees: by its display text, or by the data value that is shown.
bool Control::SeesEntry()
{
    const auto trimmed = [](std::string text) { return text.erase(text.find_last_not_of(' ') + 1); };
    const std::string seen = trimmed(Text());
    if (Find(&CodeEntry::display, Text()) != nullptr)
        return true;
    if (seen.empty())
        return false;
    const std::string fields = type_ == kString ? trimmed(ReadFields(Text())) : "";
    return Find(&CodeEntry::display, seen) != nullptr || Find(&CodeEntry::value, seen) != nullptr ||
           (!fields.empty() && Find(&CodeEntry::value, fields) != nullptr);
}

void Control::SpinCodeTable(bool up)
{
    const int count = static_cast<int>(cycle_.size());
    const bool atEntry = positioned_ ? cursor_ >= 0 : SeesEntry();
    positioned_ = true;
    if (count == 0)
        return;
    if (!atEntry)
        cursor_ = up ? 0 : count - 1;
    else
        cursor_ = up ? cursor_ + 1 : cursor_ - 1;
    cursor_ = (cursor_ + count) % count;
    edit_.SetText(cycle_[static_cast<size_t>(cursor_)].display);
}

}  // namespace model
