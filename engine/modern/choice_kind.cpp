// The entries of a code table as a kind: what is shown is always one of them, chosen by letters, keys and the spin.
#include <algorithm>
#include <vector>

#include "engine/format/code_table.h"
#include "engine/modern/kind.h"

namespace zte::modern {

namespace choices {

namespace {

using Entry = CodeTableEntry;

// The entries that can be chosen: those with a data value.
std::vector<const Entry*> Entries(const EditInstance& edit)
{
    std::vector<const Entry*> entries;
    for (int32_t i = 0; edit.codeTable && i < edit.codeTable->count; ++i)
        if (edit.codeTable->Entries()[i].value)
            entries.push_back(&edit.codeTable->Entries()[i]);
    return entries;
}

template <typename Wanted>
const Entry* Find(const EditInstance& edit, Wanted isWanted)
{
    const std::vector<const Entry*> entries = Entries(edit);
    const auto found =
        std::find_if(entries.begin(), entries.end(), [&](const Entry* entry) { return isWanted(*entry); });
    return found == entries.end() ? nullptr : *found;
}

const Entry* EntryShownAs(const EditInstance& edit, const Text& display)
{
    return Find(edit, [&](const Entry& entry) { return display == entry.display; });
}

const Entry* EntryOf(const EditInstance& edit, const Text& value)
{
    return Find(edit, [&](const Entry& entry) { return value == entry.value; });
}

bool IsNull(const Entry& entry)
{
    return Equals(entry.value, kNullValue);
}

Content Showing(const Text& text)
{
    Content content;
    content.text = text;
    content.selection = {0, Length(text)};
    return content;
}

// The entry that stands for no data; nothing where there is none.
Content ShowingNone(const EditInstance& edit)
{
    const Entry* entry = EntryOf(edit, FromAscii(kNullValue));
    return Showing(entry ? Text(entry->display) : Text());
}

// ---- values

// What a value of another type is called in a table: its canonical text, or what the mask shows of it.
Content ShowTyped(const EditInstance& edit, const Kind& kind, const void* data)
{
    const Content content = kind.show(edit, data);
    const Entry* entry = EntryOf(edit, kind.canonical(edit, content));
    if (!entry)
        entry = EntryOf(edit, content.text);
    return Showing(entry ? Text(entry->display) : content.text);
}

Content ShowString(const EditInstance& edit, const Text& data)
{
    const Entry* entry = EntryOf(edit, data);
    return Showing(entry ? Text(entry->display) : data);
}

Content Show(const EditInstance& edit, const void* data)
{
    if (!data)
        return ShowingNone(edit);
    if (edit.dataType == DT_STRING)
        return ShowString(edit, static_cast<const Char*>(data));
    return ShowTyped(edit, IsNumeric(edit.dataType) ? kNumbers : kDates, data);
}

std::optional<Content> ReadCanonical(const EditInstance& edit, const Text& text)
{
    const Entry* entry = EntryOf(edit, text);
    return entry ? std::optional<Content>(Showing(entry->display)) : std::nullopt;
}

int32_t State(const EditInstance& edit, const Content& content)
{
    const Entry* entry = EntryShownAs(edit, content.text);
    if (content.text.empty() || (entry && IsNull(*entry)))
        return ZTS_EMPTY;
    return entry ? ZTS_COMPLETE : ZTS_INVALID;
}

Text Canonical(const EditInstance& edit, const Content& content)
{
    const Entry* entry = EntryShownAs(edit, content.text);
    return entry ? Text(entry->value) : content.text;
}

// ---- choosing by letters

bool Begins(const EditInstance& edit, const Entry& entry, const Text& letters)
{
    const Text display = Folded(*edit.settings, entry.display);
    return display.compare(0, letters.size(), Folded(*edit.settings, letters)) == 0;
}

size_t IndexShown(const std::vector<const Entry*>& entries, const Text& text)
{
    const auto found =
        std::find_if(entries.begin(), entries.end(), [&](const Entry* entry) { return text == entry->display; });
    return static_cast<size_t>(found - entries.begin());
}

// The first entry that begins with the letters, from the one shown on, or from the one behind it, and around.
const Entry* FindFrom(const EditInstance& edit, const Text& shown, const Text& letters, bool behind)
{
    const std::vector<const Entry*> entries = Entries(edit);
    const size_t index = IndexShown(entries, shown);
    const size_t first = index == entries.size() ? 0 : index + (behind ? 1 : 0);
    for (size_t i = 0; i < entries.size(); ++i) {
        const Entry* entry = entries[(first + i) % entries.size()];
        if (Begins(edit, *entry, letters))
            return entry;
    }
    return nullptr;
}

Outcome Choose(const Entry& entry, const Text& prefix)
{
    Content content = Showing(entry.display);
    content.typing.prefix = prefix;
    return Accepted(content);
}

// The lengthened prefix where an entry has it; else the same letter again goes on to the next.
Outcome Type(const EditInstance& edit, const Content& content, Char typed)
{
    const Text& prefix = content.typing.prefix;
    const Text longer = prefix + typed;
    if (const Entry* entry = FindFrom(edit, content.text, longer, prefix.empty()))
        return Choose(*entry, longer);
    const Text again(1, typed);
    const bool isSame = Folded(*edit.settings, prefix) == Folded(*edit.settings, again);
    const Entry* next = isSame ? FindFrom(edit, content.text, again, true) : nullptr;
    return next ? Choose(*next, prefix) : Refused(ZTR_NO_SUCH_ENTRY);
}

// ---- the other acts

Outcome Erase(const EditInstance& edit, const Content&, Eraser)
{
    return Accepted(ShowingNone(edit));
}

Outcome Paste(const EditInstance& edit, const Content&, const Text& text)
{
    const Entry* entry = EntryShownAs(edit, text);
    if (!entry)
        entry = EntryOf(edit, text);
    if (!entry)
        entry = Find(edit, [&](const Entry& other) {
            return Folded(*edit.settings, other.display) == Folded(*edit.settings, text);
        });
    return entry ? Accepted(Showing(entry->display)) : Refused(ZTR_NO_SUCH_ENTRY, 0);
}

// A single step goes round at the ends; more stop there.
size_t Stepped(size_t index, int32_t steps, size_t count)
{
    const auto last = static_cast<int64_t>(count) - 1;
    const int64_t moved = static_cast<int64_t>(index) + steps;
    if (steps == 1 || steps == -1)
        return static_cast<size_t>(moved < 0 ? last : moved > last ? 0 : moved);
    return static_cast<size_t>(std::clamp<int64_t>(moved, 0, last));
}

Outcome Step(const EditInstance& edit, const Content& content, int32_t steps)
{
    const std::vector<const Entry*> entries = Entries(edit);
    if (entries.empty())
        return Refused(ZTR_END_OF_RANGE);
    const size_t index = IndexShown(entries, content.text);
    const size_t near = steps > 0 ? 0 : entries.size() - 1;
    const size_t next = index == entries.size() ? near : Stepped(index, steps, entries.size());
    const bool stays = next == index && entries.size() > 1;
    return stays ? Refused(ZTR_END_OF_RANGE) : Accepted(Showing(entries[next]->display));
}

int32_t Move(const EditInstance&, const Content& content, Key key, bool)
{
    const int32_t position = key == KEY_LEFT ? content.selection.start - 1 : content.selection.end + 1;
    return std::clamp(position, 0, Length(content.text));
}

int32_t Click(const EditInstance&, const Content&, int32_t position)
{
    return position;
}

Selection WordAt(const EditInstance&, const Content& content, int32_t)
{
    return {0, Length(content.text)};
}

Content Leave(const EditInstance&, const Content& content, int32_t)
{
    return content;
}

}  // namespace

}  // namespace choices

const Kind kChoices = {choices::Show, choices::ReadCanonical, choices::State,  choices::Canonical,
                       choices::Type, choices::Erase,         choices::Paste,  choices::Step,
                       choices::Move, choices::Click,         choices::WordAt, choices::Leave,
                       true};

}  // namespace zte::modern
