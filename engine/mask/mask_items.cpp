// The table of mask characters.
#include "engine/mask/mask_items.h"

#include "engine/text/ascii.h"
#include "ztvalues.h"

namespace zte {

namespace {

constexpr int32_t DT_ANY = 7;  // a mask character of every type

struct MaskItem {
    FieldKind kind;
    char maskChar;  // upper case
    int32_t dataType;
};

// Order matters: the first row that fits the character and the type wins.
constexpr MaskItem kMaskItems[] = {
    {FieldKind::NumberDigit,  '#', DT_NUMBER  },
    {FieldKind::NumberDigit,  '#', DT_DECIMAL },
    {FieldKind::Digit,        '#', DT_STRING  },
    {FieldKind::Digit,        '0', DT_STRING  },
    {FieldKind::NumberDigit,  '0', DT_NUMBER  },
    {FieldKind::NumberDigit,  '0', DT_DECIMAL },
    {FieldKind::Alphanumeric, 'A', DT_STRING  },
    {FieldKind::Any,          'X', DT_ANY     }, // free text in masks of every type
    {FieldKind::UpperCase,    '!', DT_ANY     },
    {FieldKind::LowerCase,    '^', DT_ANY     },
    {FieldKind::Year,         'Y', DT_DATE    },
    {FieldKind::Year,         'Y', DT_DATETIME},
    {FieldKind::Month,        'M', DT_DATE    },
    {FieldKind::Month,        'M', DT_DATETIME}, // minutes behind an hour
    {FieldKind::Minute,       'M', DT_TIME    },
    {FieldKind::Day,          'D', DT_DATE    },
    {FieldKind::Day,          'D', DT_DATETIME},
    {FieldKind::DayOfYear,    'J', DT_DATE    },
    {FieldKind::DayOfYear,    'J', DT_DATETIME},
    {FieldKind::Hour,         'H', DT_DATETIME},
    {FieldKind::Hour,         'H', DT_TIME    },
    {FieldKind::Second,       'S', DT_DATETIME},
    {FieldKind::Second,       'S', DT_TIME    },
    {FieldKind::Fraction,     'F', DT_TIME    },
    {FieldKind::Fraction,     'F', DT_DATETIME},
};

constexpr bool NoLowerCase()
{
    for (const MaskItem& item : kMaskItems)
        if (item.maskChar >= 'a' && item.maskChar <= 'z')
            return false;
    return true;
}
static_assert(NoLowerCase(), "KindOf folds its argument to upper case");

}  // namespace

FieldKind KindOf(Char maskChar, int32_t dataType, bool hourBefore)
{
    const Char folded = AsciiUpper(maskChar);
    for (const MaskItem& item : kMaskItems) {
        if (static_cast<Char>(item.maskChar) != folded || (item.dataType != DT_ANY && item.dataType != dataType))
            continue;
        return item.kind == FieldKind::Month && hourBefore ? FieldKind::Minute : item.kind;
    }
    return FieldKind::Literal;
}

}  // namespace zte
