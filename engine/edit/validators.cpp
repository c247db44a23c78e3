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

constexpr ValidatorRow kValidators[] = {
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
};

}  // namespace

Verdict Validate(const Entry& entry)
{
    if (IsControl(entry.typed))
        return Verdict::Refused();
    const FieldKind kind = PositionAt(entry.edit, entry.text, entry.position).kind;
    for (const ValidatorRow& row : kValidators)
        if (row.kind == kind)
            return row.validate(entry);
    return Verdict::Refused();
}

}  // namespace zte
