// Whether a mask is acceptable for a data type: strings, the dispatch to all types, and the defaults.
#include "engine/mask/mask_checks.h"

#include "engine/mask/number_mask.h"
#include "ztvalues.h"

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

bool CheckStringMask(const Text& mask)
{
    if (Length(mask) > kMaxMaskLength)
        return false;
    for (const Char* at = mask.c_str(); *at; ++at)
        if (*at == '~' && IsBadEscape(at++))
            return false;
    return true;
}

bool CheckMask(const Text& mask, int32_t dataType, const Settings& settings, FieldLayout& layout)
{
    switch (dataType) {
    case DT_STRING: return CheckStringMask(mask);
    case DT_NUMBER:
    case DT_DECIMAL: return CheckNumberMask(mask, settings);
    case DT_DATE:
    case DT_TIME:
    case DT_DATETIME: return CheckDateOrTimeMask(mask, dataType, layout);
    default: return true;
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
