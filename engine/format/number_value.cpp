// Number texts with the regional decimal character, and the values that they stand for; percentages.
#include "engine/format/number_value.h"

#include "engine/services.h"
#include "engine/values/number_text.h"

namespace zte {

double NumberFromText(const EditInstance& edit, const Text& text)
{
    return NumberFromPlainText(WithPlainPoint(text, *edit.settings).c_str());
}

DecimalValue DecimalFromText(const EditInstance& edit, const Text& text)
{
    return services::DecimalOf(WithPlainPoint(text, *edit.settings).c_str(), edit.decimalPlaces);
}

double FromPercentage(double percentage)
{
    return percentage / 100.0;
}

DecimalValue FromPercentage(const DecimalValue& percentage)
{
    return services::Divide(percentage, services::DecimalOf(100));
}

}  // namespace zte
