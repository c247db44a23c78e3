// Builds the currency mask of the regional settings.
#include "mask/currency_mask.h"

#include "intl/regional_settings.h"
#include "mask/mask_text.h"

namespace zte {

namespace {

constexpr int32_t kGroup = 3;

// count placeholders in groups of three from the right.
std::string IntegerPart(int32_t count)
{
    std::string part;
    for (int32_t left = count; left > 0; --left) {
        part += '#';
        if (left > 1 && left % kGroup == 1)
            part += ',';
    }
    return part;
}

// A negative count of fraction digits leaves the point alone; kept.
std::string FractionPart(int32_t digits)
{
    if (digits == 0)
        return {};
    return "." + std::string(digits > 0 ? static_cast<size_t>(digits) : 0, '0');
}

bool IsSymbolBehind(int32_t position)
{
    return position == 1 || position == 3;
}

}  // namespace

std::string BuildCurrencyMask(int16_t totalDigits)
{
    const RegionalSettings& settings = regionalSettings;
    const int64_t integerDigits = int64_t{totalDigits} - settings.currencyDigits;
    if (integerDigits > kMaxMaskLength || settings.currencyDigits > kMaxMaskLength)
        return {};
    const std::string digits = IntegerPart(static_cast<int32_t>(integerDigits)) + FractionPart(settings.currencyDigits);
    const std::string symbol = settings.currencySymbol;
    std::string mask = IsSymbolBehind(settings.currencyPosition) ? digits + symbol : symbol + digits;
    return mask.size() <= kMaxMaskLength ? mask : std::string();
}

}  // namespace zte
