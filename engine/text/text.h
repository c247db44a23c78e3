// The engine's text: a string of Char, one character a display position. A build chooses what a Char is; the engine never
// assumes that it is a byte, and its own literals are ASCII.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace zte {

#ifdef ZT_WIDE_CHARACTERS
using Char = char32_t;  // a whole code point
#else
using Char = char;  // a character of the process's code page
#endif
using Text = std::basic_string<Char>;

constexpr int32_t kMaxMaskLength = 255;

// Characters before the terminator.
inline size_t TextLength(const Char* text)
{
    return std::char_traits<Char>::length(text);
}

// The same, not looking further than limit.
inline size_t BoundedLength(const Char* text, size_t limit)
{
    size_t length = 0;
    while (length < limit && text[length])
        ++length;
    return length;
}

inline int32_t Length(const Text& text)
{
    return static_cast<int32_t>(text.size());
}

// The character at a position; NUL outside the text.
inline Char At(const Text& text, int32_t position)
{
    return position >= 0 && position < Length(text) ? text[static_cast<size_t>(position)] : Char{};
}

// At most count characters from a position on; empty behind the end. The position is not negative.
Text Slice(const Text& text, int32_t position, int32_t count);

// The position of the first occurrence; -1 when there is none.
int32_t Find(const Text& text, Char character);
int32_t Find(const Char* text, Char character);

// ASCII literals as texts.
Text FromAscii(const char* ascii);
bool Equals(const Text& text, const char* ascii);

// Whether a text begins with another one, which may be an ASCII literal.
template <typename Character>
bool BeginsWith(const Char* text, const Character* beginning)
{
    for (; *beginning; ++beginning, ++text)
        if (*text != static_cast<Char>(*beginning))
            return false;
    return true;
}

// Blanks, an optional sign and digits, as far as they go; 0 when there are none. Numbers out of range become the nearest one.
int32_t IntegerOf(const Char* text);
inline int32_t IntegerOf(const Text& text)
{
    return IntegerOf(text.c_str());
}

// The same of a place in a text, as Slice takes it.
int32_t IntegerAt(const Text& text, int32_t position, int32_t count);

// Of a place where nothing but digits stands, nine at most; -1 for all others.
int32_t DigitsAt(const Text& text, int32_t position, int32_t count);

// Without the blanks at its end.
Text WithoutBlanksBehind(const Text& text);

// The number in decimal, with at least the count of digits (zeros in front).
void AppendNumber(Text& text, uint32_t number, int32_t digits);
Text NumberText(uint32_t number, int32_t digits);
inline Text TwoDigits(int32_t number)
{
    return NumberText(static_cast<uint32_t>(number), 2);
}

}  // namespace zte
