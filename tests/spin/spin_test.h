// The name under which the tests of the spin's window still know their fixture.
#pragma once

#include "tests/support/live/spin_window_test.h"

namespace zttest {

using SpinTest = SpinWindowTest;

}  // namespace zttest
