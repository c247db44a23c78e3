// The two peers that are native.
#pragma once

#include "bench/peers/cases.h"

namespace peers {

void MeasureEngine(const Case& row);
void MeasureIcu(const Case& row);

}  // namespace peers
