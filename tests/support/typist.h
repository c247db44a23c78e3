// Where the window tests still look for it.
#pragma once

#include "tests/support/live/typist.h"
