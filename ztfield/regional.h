// The regional settings of fields, set and told one by one as texts.
#pragma once

#include "engine/values/settings.h"

namespace zte {

// As in the United States, with the letters of all scripts.
Settings DefaultSettings();

// A ZTF_ setting. False, and nothing is changed, for what there is not or cannot be.
bool SetSetting(Settings& settings, int32_t setting, const Text& value);

// "" for a setting that there is not.
Text SettingOf(const Settings& settings, int32_t setting);

}  // namespace zte
