// Where the window tests still look for it.
#pragma once

#include "tests/support/live/base_recorder.h"
