// The validators of single characters, and the table of all kinds.
#include "engine/edit/validators.h"

#include <iterator>

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

Verdict Refuse(const Entry& /*entry*/)
{
    return Verdict::Refused();
}

struct ValidatorRow {
    FieldKind kind;
    Verdict (*validate)(const Entry&);
};

// In the order of the kinds.
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

constexpr bool StandInOrder()
{
    for (size_t i = 0; i < std::size(kValidators); ++i)
        if (static_cast<size_t>(kValidators[i].kind) != i)
            return false;
    return true;
}
static_assert(StandInOrder(), "each kind finds its validator by its number");

}  // namespace

Verdict Validate(const Entry& entry)
{
    if (IsControl(entry.typed))
        return Verdict::Refused();
    const FieldKind kind = PositionAt(entry.edit, entry.text, entry.position).kind;
    return kValidators[static_cast<size_t>(kind)].validate(entry);
}

}  // namespace zte
