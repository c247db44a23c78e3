// The money of the world's countries, as their regional settings write it: which symbol, on which side, how many fraction
// digits, which separators.
#pragma once

#include <cstddef>

namespace zttest {

// Characters are single bytes of code page 1252. The values of the profile's keys sCurrency, iCurrency (0 before and 1 behind
// the digits, 2 and 3 the same with a blank between), iCurrDigits, sDecimal and sThousand.
struct CurrencySettings {
    const char* country;
    const char* symbol;
    int position;
    int digits;
    const char* decimal;
    const char* thousand;
};

extern const CurrencySettings kCurrencies[];
extern const size_t kCurrencyCount;

}  // namespace zttest
