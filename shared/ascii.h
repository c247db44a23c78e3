// Character tests that get unsigned characters and never depend on a host's locale, and those of the runtime's locale.
#pragma once

#include <cctype>

namespace zte {

constexpr char AsciiUpper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }
constexpr bool IsAsciiDigit(char c) { return c >= '0' && c <= '9'; }

// The runtime's classes, in its current locale.
inline bool IsDigit(int c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }
inline bool IsLetter(int c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; }
inline char ToUpper(char c) { return static_cast<char>(std::toupper(static_cast<unsigned char>(c))); }

// Characters that no mask position takes.
constexpr bool IsControl(int c) { return (c >= 0 && c < 0x20) || c == 0x7F; }

}  // namespace zte
