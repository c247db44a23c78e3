// Digits as they are typed.
#include "engine/values/typed_number.h"

namespace zte {

namespace {

// Adds one unit of the last digit; the carry out of the first one stays to be added: true.
bool CarriesOutOf(Text& digits)
{
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
        if (*digit != '9') {
            ++*digit;
            return false;
        }
        *digit = '0';
    }
    return true;
}

}  // namespace

void RoundToPlaces(TypedNumber& number, int32_t places)
{
    if (Length(number.fraction) <= places)
        return;
    const bool up = At(number.fraction, places) >= '5';
    number.fraction.resize(static_cast<size_t>(places));
    if (up && CarriesOutOf(number.fraction) && CarriesOutOf(number.integer))
        number.integer.insert(0, 1, '1');
}

}  // namespace zte
