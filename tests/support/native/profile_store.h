// The regional settings of tests without windows: a profile in memory, read into the engine's settings.
#pragma once

#include "engine/values/settings.h"

namespace zttest {

// The settings in force; every control under test is given a reference to them.
const zte::Settings& SettingsInForce();

}  // namespace zttest
