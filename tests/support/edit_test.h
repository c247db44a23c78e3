// The names under which window tests still know their fixtures.
#pragma once

#include "tests/support/live/window_test.h"

namespace zttest {

using EditTest = WindowTest;
using KeyTable = WindowKeyTable;

}  // namespace zttest
