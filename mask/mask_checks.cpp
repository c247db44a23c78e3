// Whether a mask is acceptable for a data type: strings, numbers, and the dispatch to all types.
#include "mask/mask_checks.h"

#include <cstring>

#include "core/heap.h"
#include "format/format_text.h"
#include "intl/regional_settings.h"
#include "mask/mask_text.h"

namespace zte {

namespace {

bool IsTooLong(const char* mask)
{
    return strnlen(mask, kMaxMaskLength + 1) > kMaxMaskLength;
}

// "~" must be followed by a character to escape, which is not "~" itself.
bool IsBadEscape(const char* at)
{
    return at[1] == '\0' || at[1] == '~';
}

// The walk over a number mask: what has been seen so far decides what may come.
class NumberMaskWalk {
public:
    // Takes the character at mask and returns what follows it; null refuses the mask.
    const char* Take(const char* mask)
    {
        const char c = *mask;
        if (c == '#' || c == '0') {
            body_ = true;
            return percent_ ? nullptr : mask + 1;
        }
        if (c == '~')
            return body_ || IsBadEscape(mask) ? nullptr : mask + 2;
        const size_t symbol = std::strlen(regionalSettings.currencySymbol);
        if (std::strncmp(mask, regionalSettings.currencySymbol, symbol) == 0)
            return TakeCurrency() ? mask + symbol : nullptr;
        return TakeOther(c) ? mask + 1 : nullptr;
    }

private:
    // An empty symbol fits anywhere, and so refuses every mask with more than placeholders; kept.
    bool TakeCurrency()
    {
        const bool taken = !currency_ && !body_;
        currency_ = body_ = true;
        return taken;
    }

    bool TakeOther(char c)
    {
        if (c == '\'' || c == '"')
            return false;
        if (c == DecimalChar()) {
            const bool taken = !decimal_;
            decimal_ = true;
            return taken;
        }
        if (c == regionalSettings.thousandChar)
            return !decimal_;
        if (c == '%') {
            const bool taken = !percent_ && !currency_;
            percent_ = true;
            return taken;
        }
        return !body_;
    }

    bool body_ = false;
    bool currency_ = false;
    bool decimal_ = false;
    bool percent_ = false;
};

bool CanBeRendered(const char* mask, int32_t dataType)
{
    char compiled[SHARED_FORMAT_SIZE];
    return SharedCompileFormat(compiled, DisplayFormatText(mask, dataType).c_str(), sizeof compiled) == 0;
}

struct DefaultMask {
    int32_t dataType;
    const char* mask;
};

constexpr DefaultMask kDefaultMasks[] = {
    {DT_STRING,   ""                     },
    {DT_NUMBER,   "#,#.00"               },
    {DT_DECIMAL,  "#,#.00"               },
    {DT_DATE,     "MM/DD/YY"             },
    {DT_TIME,     "HH:MM:SS:FFF"         },
    {DT_DATETIME, "MM/DD/YY HH:MM:SS:FFF"},
};

const DefaultMask* FindDefaultMask(int32_t dataType)
{
    for (const DefaultMask& row : kDefaultMasks)
        if (row.dataType == dataType)
            return &row;
    return nullptr;
}

}  // namespace

bool CheckStringMask(const char* mask)
{
    if (IsTooLong(mask))
        return false;
    for (; *mask; ++mask)
        if (*mask == '~' && IsBadEscape(mask++))
            return false;
    return true;
}

bool CheckNumberMask(const char* mask)
{
    if (IsTooLong(mask))
        return false;
    NumberMaskWalk walk;
    for (const char* at = mask; *at;) {
        at = walk.Take(at);
        if (!at)
            return false;
    }
    return CanBeRendered(mask, DT_NUMBER);
}

bool CheckMask(EditInstance& edit, const char* mask, int32_t dataType)
{
    switch (dataType) {
    case DT_STRING: return CheckStringMask(mask);
    case DT_NUMBER:
    case DT_DECIMAL: return CheckNumberMask(mask);
    case DT_DATE: return CheckDateMask(edit, mask);
    case DT_TIME: return CheckTimeMask(edit, mask);
    case DT_DATETIME: return CheckDateTimeMask(edit, mask);
    default: return true;
    }
}

char* CheckMaskForType(EditInstance& edit, const char* mask, int32_t dataType)
{
    const DefaultMask* fallback = FindDefaultMask(dataType);
    if (!fallback || (mask && *mask && CheckMask(edit, mask, dataType)))
        return nullptr;
    if (dataType == DT_DATE || dataType == DT_DATETIME)
        edit.yearDigits = 2;
    return Duplicate(edit, fallback->mask);
}

}  // namespace zte
