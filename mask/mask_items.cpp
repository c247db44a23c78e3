// The table of mask characters.
#include "mask/mask_items.h"

#include "mask/validators.h"
#include "shared/ascii.h"

namespace zte {

namespace {

// Order matters: the first row that fits the character and the type wins.
constexpr MaskItem kMaskItems[] = {
    {ValidateNumberDigit,   '#', DT_NUMBER  },
    {ValidateNumberDigit,   '#', DT_DECIMAL },
    {ValidateDigit,         '#', DT_STRING  },
    {ValidateDigit,         '0', DT_STRING  },
    {ValidateNumberDigit,   '0', DT_NUMBER  },
    {ValidateNumberDigit,   '0', DT_DECIMAL },
    {ValidateAlphanumeric,  'A', DT_STRING  },
    {ValidateAny,           'X', DT_ANY     }, // free text in masks of every type
    {ValidateCaseOne,       '!', DT_STRING  },
    {ValidateCaseTwo,       '^', DT_STRING  },
    {ValidateYearDigit,     'Y', DT_DATE    },
    {ValidateYearDigit,     'Y', DT_DATETIME},
    {ValidateMonthOrMinute, 'M', DT_DATE    },
    {ValidateMonthOrMinute, 'M', DT_DATETIME},
    {ValidateMonthOrMinute, 'M', DT_TIME    },
    {ValidateDay,           'D', DT_DATE    },
    {ValidateDay,           'D', DT_DATETIME},
    {ValidateJulianDay,     'J', DT_DATE    },
    {ValidateJulianDay,     'J', DT_DATETIME},
    {ValidateHour,          'H', DT_DATETIME},
    {ValidateHour,          'H', DT_TIME    },
    {ValidateMinuteSecond,  'S', DT_DATETIME},
    {ValidateMinuteSecond,  'S', DT_TIME    },
    {ValidateDigit,         'F', DT_TIME    },
    {ValidateDigit,         'F', DT_DATETIME},
    {ValidateCaseOne,       '!', DT_ANY     },
    {ValidateCaseTwo,       '^', DT_ANY     },
};

constexpr bool NoLowerCase()
{
    for (const MaskItem& item : kMaskItems)
        if (AsciiUpper(item.maskChar) != item.maskChar)
            return false;
    return true;
}
static_assert(NoLowerCase(), "FindMaskItem folds its argument to upper case");

}  // namespace

const MaskItem* FindMaskItem(char maskChar, int32_t dataType)
{
    const char folded = ToUpper(maskChar);
    for (const MaskItem& item : kMaskItems)
        if (item.maskChar == folded && (item.dataType == DT_ANY || item.dataType == dataType))
            return &item;
    return nullptr;
}

}  // namespace zte
