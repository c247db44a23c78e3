// Settings behind the interface.
#pragma once

#include "ztfield.h"
#include "ztfield/regional.h"

struct ZTFieldSettings {
    zte::Settings value = zte::DefaultSettings();
};

namespace zte {

// Null: the defaults.
inline Settings SettingsOf(const ZTFieldSettings* settings)
{
    return settings ? settings->value : DefaultSettings();
}

}  // namespace zte
