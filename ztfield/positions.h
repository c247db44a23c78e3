// What every position of the text shown is.
#pragma once

#include <vector>

#include "engine/record.h"
#include "ztfield.h"

namespace zte {

std::vector<ZTFieldPosition> PositionsShown(const EditInstance& edit);

}  // namespace zte
