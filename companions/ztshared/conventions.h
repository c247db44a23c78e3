// The user's regional conventions that the services read and write texts with.
#pragma once

#include "engine/values/settings.h"

namespace shared {

// As the profile had them when they were last read. Reading costs a round trip to the system, so it is not done per call.
const zte::Settings& Conventions();

}  // namespace shared
