// Texts with a caret or a selection drawn in: '|' is the caret, '[' and ']' stand around a selection.
#pragma once

#include <string>

namespace zttest {

struct Marked {
    std::string text;
    int start;  // -1: no mark
    int end;
};

// Takes the marks out.
Marked Unmark(const std::string& shown);

// Draws them in; a selection that no text can have is told in words.
std::string Mark(std::string text, int start, int end);

}  // namespace zttest
