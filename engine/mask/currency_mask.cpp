// Builds the currency mask of the regional settings.
#include "engine/mask/currency_mask.h"

#include <algorithm>

namespace zte {

namespace {

constexpr int32_t kGroup = 3;

// count placeholders in groups of three from the right.
Text IntegerPart(int32_t count)
{
    Text part;
    for (int32_t left = count; left > 0; --left) {
        part += Char{'#'};
        if (left > 1 && left % kGroup == 1)
            part += Char{','};
    }
    return part;
}

// A negative count of fraction digits leaves the point alone; kept.
Text FractionPart(int32_t digits)
{
    if (digits == 0)
        return {};
    return Char{'.'} + Text(static_cast<size_t>(std::max(digits, 0)), '0');
}

bool IsSymbolBehind(int32_t position)
{
    return position == 1 || position == 3;
}

}  // namespace

Text BuildCurrencyMask(int16_t totalDigits, const Settings& settings)
{
    const int64_t integerDigits = int64_t{totalDigits} - settings.currencyDigits;
    if (integerDigits > kMaxMaskLength || settings.currencyDigits > kMaxMaskLength)
        return {};
    const Text digits = IntegerPart(static_cast<int32_t>(integerDigits)) + FractionPart(settings.currencyDigits);
    const Text symbol = settings.currencySymbol;
    Text mask = IsSymbolBehind(settings.currencyPosition) ? digits + symbol : symbol + digits;
    return mask.size() <= kMaxMaskLength ? mask : Text();
}

}  // namespace zte
