// A number mask rewritten into the format language of the number renderer. A run of literals reaches to the next
// placeholder, separators and escapes inside it included; kept, the checks and the display agree on it.
#include "format/format_text.h"

#include <cstring>

#include "intl/regional_settings.h"
#include "mask/mask_items.h"

namespace zte {

namespace {

bool IsSeparator(char c)
{
    return c == '.' || c == ',' || c == '%';
}

bool IsPlaceholder(char c, int32_t dataType)
{
    return FindMaskItem(c, dataType) != nullptr;
}

const char* EndOfLiterals(const char* mask, int32_t dataType)
{
    while (*mask && !IsPlaceholder(*mask, dataType))
        ++mask;
    return mask;
}

const char* BehindEscape(const char* mask)
{
    return mask[1] ? mask + 2 : mask + 1;
}

}  // namespace

std::string DisplayFormatText(const char* mask, int32_t dataType)
{
    std::string format;
    while (*mask) {
        if (*mask == '~') {
            format += '\\';
            format.append(mask + 1, BehindEscape(mask));
            mask = BehindEscape(mask);
        } else if (IsSeparator(*mask) || IsPlaceholder(*mask, dataType)) {
            format += *mask++;
        } else {
            const char* end = EndOfLiterals(mask, dataType);
            format.append(mask, end);
            mask = end;
        }
    }
    return format;
}

bool HasLiterals(const char* mask, int32_t dataType)
{
    const size_t symbol = std::strlen(regionalSettings.currencySymbol);
    while (*mask) {
        if (*mask == '~')
            return true;
        if (IsSeparator(*mask) || IsPlaceholder(*mask, dataType))
            ++mask;
        else if (symbol > 0 && std::strncmp(mask, regionalSettings.currencySymbol, symbol) == 0)
            mask += symbol;
        else
            return true;
    }
    return false;
}

int32_t FirstPlaceholderPos(const char* mask, int32_t dataType)
{
    int32_t position = 0;
    for (; *mask && !IsPlaceholder(*mask, dataType); ++position)
        mask = *mask == '~' ? BehindEscape(mask) : mask + 1;
    return position;
}

}  // namespace zte
