// The name under which window tests still know their fixture.
#pragma once

#include "tests/support/live/window_value_test.h"

namespace zttest {

using ValueTest = WindowValueTest;

}  // namespace zttest
