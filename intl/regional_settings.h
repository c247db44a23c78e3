// The user's regional conventions, as the profile section "intl" keeps them.
#pragma once

#include <cstdint>

namespace zte {

struct RegionalSettings {
    char decimalChar;  // NUL when the profile has an empty one; see DecimalChar()
    char thousandChar;
    char currencySymbol[256];
    int32_t currencyPosition;        // 0 and 2 before the digits, 1 and 3 after them
    int32_t currencyDigits;          // default fraction digits of a currency mask
    int32_t negativeCurrencyFormat;  // kept so that the record mirrors the section; not used
    char amString[5];
    char pmString[5];
};

// Written at start-up and at WM_WININICHANGE, on the user-interface thread.
extern RegionalSettings regionalSettings;

void ReadIntlSettings();

// The character read and written as the decimal point: the regional one, '.' when that is empty.
char DecimalChar();

}  // namespace zte
