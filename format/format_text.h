// A number mask rewritten into the format language of the number renderer.
#pragma once

#include <cstdint>
#include <string>

namespace zte {

// The format text: "~x" becomes "\x", the rest stands as it is.
std::string DisplayFormatText(const char* mask, int32_t dataType);

// Whether the display holds literals; the currency symbol alone, separators and '%' do not count.
bool HasLiterals(const char* mask, int32_t dataType);

// Display position of the mask's first digit placeholder.
int32_t FirstPlaceholderPos(const char* mask, int32_t dataType);

}  // namespace zte
