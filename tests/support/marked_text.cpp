// Texts with a caret or a selection drawn in.
#include "tests/support/marked_text.h"

namespace zttest {

Marked Unmark(const std::string& shown)
{
    Marked marked = {"", -1, -1};
    for (const char c : shown) {
        const int position = static_cast<int>(marked.text.size());
        if (c == '|')
            marked.start = marked.end = position;
        else if (c == '[')
            marked.start = position;
        else if (c == ']')
            marked.end = position;
        else
            marked.text += c;
    }
    return marked;
}

std::string Mark(std::string text, int start, int end)
{
    const int length = static_cast<int>(text.size());
    if (start < 0 || start > end || end > length)
        return text + " with the selection " + std::to_string(start) + "-" + std::to_string(end);
    if (start == end)
        return text.insert(static_cast<size_t>(start), "|");
    return text.insert(static_cast<size_t>(end), "]").insert(static_cast<size_t>(start), "[");
}

}  // namespace zttest
