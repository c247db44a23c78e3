// Whether a mask is acceptable for a data type: strings, the dispatch to all types, and the defaults.
#include "engine/mask/mask_checks.h"

#include "engine/mask/number_mask.h"

namespace zte {

namespace {

struct DefaultRow {
    int32_t dataType;
    const char* mask;
};

constexpr DefaultRow kDefaultMasks[] = {
    {DT_STRING,   ""                     },
    {DT_NUMBER,   "#,#.00"               },
    {DT_DECIMAL,  "#,#.00"               },
    {DT_DATE,     "MM/DD/YY"             },
    {DT_TIME,     "HH:MM:SS:FFF"         },
    {DT_DATETIME, "MM/DD/YY HH:MM:SS:FFF"},
};

}  // namespace

MaskVerdict CheckStringMask(const Text& mask)
{
    if (Length(mask) > kMaxMaskLength)
        return {ZTM_TOO_LONG, kMaxMaskLength};
    for (const Char* at = mask.c_str(); *at; ++at)
        if (*at == '~' && IsBadEscape(at++))
            return {ZTM_ESCAPE, static_cast<int32_t>(at - mask.c_str()) - 1};
    return {};
}

MaskVerdict CheckMask(const Text& mask, int32_t dataType, const Settings& settings, FieldLayout& layout)
{
    switch (dataType) {
    case DT_STRING: return CheckStringMask(mask);
    case DT_NUMBER:
    case DT_DECIMAL: return CheckNumberMask(mask, settings);
    case DT_DATE:
    case DT_TIME:
    case DT_DATETIME: return CheckDateOrTimeMask(mask, dataType, layout);
    default: return {};
    }
}

const char* DefaultMask(int32_t dataType)
{
    for (const DefaultRow& row : kDefaultMasks)
        if (row.dataType == dataType)
            return row.mask;
    return nullptr;
}

}  // namespace zte
