// Texts of the interface, UTF-8, as the engine's, and back.
#pragma once

#include "engine/text/text.h"

namespace zte {

// What stands for bytes that are no character.
constexpr Char kReplacement = 0xFFFD;

// Null counts as "". A byte that is no part of a character, among them those of surrogates, of longer forms than needed and of numbers
// beyond the last code point, is U+FFFD for itself.
Text FromUtf8(const char* utf8);

// A code point as it is; U+FFFD for what is none. NUL stays: it ends a text.
Char ValidCodePoint(uint32_t code);

// Writes as many whole characters as there is room for, and the NUL; returns the bytes of all of them, without it.
int32_t WriteUtf8(const Text& text, char* buffer, int32_t size);

}  // namespace zte
