// The user's regional conventions as one value: read by the program around the engine, handed in, never read by the engine itself.
#pragma once

#include <type_traits>

#include "engine/text/text.h"

namespace zte {

constexpr int32_t kMonths = 12;
constexpr int32_t kMonthNameSize = 32;
constexpr int32_t kDesignatorSize = 5;  // 4 characters and the terminator

// Which characters are letters, and their cases.
struct Letters {
    bool (*isLetter)(Char);
    Char (*upper)(Char);
    Char (*lower)(Char);
};

// The letters of ASCII alone.
extern const Letters kAsciiLetters;

// Fixed room and no pointers of its own: whoever reads it while the settings change sees old or new characters, never a freed
// text.
struct Settings {
    Char decimalChar;   // never NUL
    Char thousandChar;  // never NUL
    Char currencySymbol[256];
    int32_t currencyPosition;        // 0 and 2 before the digits, 1 and 3 after them
    int32_t currencyDigits;          // default fraction digits of a currency mask
    int32_t negativeCurrencyFormat;  // kept so that the record mirrors the section; not used
    Char amString[kDesignatorSize];
    Char pmString[kDesignatorSize];
    Char shortDate[100];  // the picture of "[date]"
    Char timeSeparator[10];
    Char monthNames[kMonths][kMonthNameSize];  // abbreviations, shown and typed under "MMM"
    const Letters* letters;
};
static_assert(std::is_trivially_copyable_v<Settings>);

// Point and comma, "$" before the digits, AM and PM, "m/d/yy", JAN to DEC.
Settings StandardSettings();

// A text as it is compared without regard to case.
Text Folded(const Settings& settings, Text text);

// Copies a text into one of the settings' arrays, cut to its room.
template <size_t size>
void Assign(Char (&destination)[size], const Text& text)
{
    const size_t length = text.copy(destination, size - 1);
    destination[length] = Char{};
}

}  // namespace zte
