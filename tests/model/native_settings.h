// The model's regional settings as the engine takes them. Empty conventions count as absent ones.
#ifndef TESTS_MODEL_NATIVE_SETTINGS_H
#define TESTS_MODEL_NATIVE_SETTINGS_H

#include "model_control.h"

#include "engine/values/settings.h"

namespace model {

inline zte::Settings SettingsOf(const Regional& regional)
{
    zte::Settings settings = zte::StandardSettings();
    settings.decimalChar = regional.Point();
    settings.thousandChar = regional.thousand != '\0' ? regional.thousand : ',';
    zte::Assign(settings.currencySymbol, regional.currency);
    settings.currencyPosition = regional.currencyPosition;
    settings.currencyDigits = regional.currencyDigits;
    zte::Assign(settings.amString, regional.am);
    zte::Assign(settings.pmString, regional.pm);
    zte::Assign(settings.shortDate, regional.shortDate);
    zte::Assign(settings.timeSeparator, regional.timeSeparator);
    return settings;
}

}  // namespace model

#endif
