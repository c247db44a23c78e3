// What the laws are promised for: masks and settings that a form has.
#pragma once

#include "engine/values/settings.h"

namespace zttest {

// Literals stand before a format's placeholders and behind them, not among them.
bool IsInOnePiece(const zte::Text& format);

// The separators are none of the characters that numbers and masks are made of, and the currency symbol is more than these.
bool CanWriteNumbers(const zte::Settings& settings);

// The AM and PM strings can be told apart, by people too.
bool CanTellHalves(const zte::Settings& settings);

}  // namespace zttest
