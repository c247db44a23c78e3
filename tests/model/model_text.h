// Small questions about characters and texts.
#ifndef TESTS_MODEL_MODEL_TEXT_H
#define TESTS_MODEL_MODEL_TEXT_H

#include <algorithm>
#include <cctype>
#include <string>

namespace model {

constexpr const char* kMonths[] = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN", "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};

inline bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

inline bool IsControl(char c)
{
    return static_cast<unsigned char>(c) < ' ' || c == 127;
}

inline char Upper(char c)
{
    return static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
}

inline std::string Upper(std::string text)
{
    for (char& c : text)
        c = Upper(c);
    return text;
}

// The position at which the character of an offset in the mask is shown.
inline int DisplayOf(const std::string& mask, size_t offset)
{
    const auto escapes = std::count(mask.begin(), mask.begin() + static_cast<std::ptrdiff_t>(offset), '~');
    return static_cast<int>(offset) - static_cast<int>(escapes);
}

// NUL outside the text.
inline char CharOf(const std::string& text, int position)
{
    return position >= 0 && position < static_cast<int>(text.size()) ? text[static_cast<size_t>(position)] : '\0';
}

}  // namespace model

#endif
