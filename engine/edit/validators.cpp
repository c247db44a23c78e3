// The validators of single characters, and the table of all kinds.
#include "engine/edit/validators.h"

#include "engine/services.h"
#include "engine/text/ascii.h"

namespace zte {

namespace {

Verdict PlaceIf(bool accepted, Char c)
{
    return accepted ? Verdict::Placing(c) : Verdict::Refused();
}

Verdict Refuse(const Entry&)
{
    return Verdict::Refused();
}

Verdict ValidateDigit(const Entry& entry)
{
    return PlaceIf(IsDigit(entry.typed), entry.typed);
}

Verdict ValidateAlphanumeric(const Entry& entry)
{
    return PlaceIf(IsDigit(entry.typed) || entry.edit.settings->letters->isLetter(entry.typed), entry.typed);
}

Verdict ValidateAny(const Entry& entry)
{
    return Verdict::Placing(entry.typed);
}

Verdict ValidateUpperCase(const Entry& entry)
{
    return Verdict::Placing(services::ToUpper(entry.typed, *entry.edit.settings));
}

Verdict ValidateLowerCase(const Entry& entry)
{
    return Verdict::Placing(services::ToLower(entry.typed, *entry.edit.settings));
}

struct ValidatorRow {
    FieldKind kind;
    Verdict (*validate)(const Entry&);
};

// In the order of the kinds, so that each is found by its number.
constexpr ValidatorRow kValidators[] = {
    {FieldKind::Literal,      Refuse                },
    {FieldKind::NumberDigit,  Refuse                },
    {FieldKind::Digit,        ValidateDigit         },
    {FieldKind::Alphanumeric, ValidateAlphanumeric  },
    {FieldKind::Any,          ValidateAny           },
    {FieldKind::UpperCase,    ValidateUpperCase     },
    {FieldKind::LowerCase,    ValidateLowerCase     },
    {FieldKind::Year,         ValidateYear          },
    {FieldKind::Month,        ValidateMonth         },
    {FieldKind::Day,          ValidateDay           },
    {FieldKind::DayOfYear,    ValidateDayOfYear     },
    {FieldKind::Hour,         ValidateHour          },
    {FieldKind::Minute,       ValidateMinuteOrSecond},
    {FieldKind::Second,       ValidateMinuteOrSecond},
    {FieldKind::Fraction,     ValidateDigit         },
    {FieldKind::AmPm,         Refuse                },
};

constexpr bool InOrderOfKinds()
{
    size_t row = 0;
    for (const ValidatorRow& validator : kValidators)
        if (validator.kind != static_cast<FieldKind>(row++))
            return false;
    return row == static_cast<size_t>(FieldKind::AmPm) + 1;
}
static_assert(InOrderOfKinds(), "Validate takes the row of a kind by its number");

}  // namespace

Verdict Validate(const Entry& entry)
{
    const FieldKind kind = IsControl(entry.typed) ? FieldKind::Literal : entry.mask.kind;
    return kValidators[static_cast<size_t>(kind)].validate(entry);
}

}  // namespace zte
