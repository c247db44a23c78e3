// The date and time of the moment, where the program runs.
#pragma once

#include "engine/host.h"

namespace zte {

DateTimeValue LocalNow();

}  // namespace zte
