// Leads a life on a field in memory.
#pragma once

#include <string>

#include "tests/soak/life.h"

namespace soak {

// All of a life, from the creation to the end. Empty when each block of its heap came back where it must; else what was lost.
std::string Lead(const Life& life);

// Operations begun in the life last led: its creation and its deeds.
int OperationsBegun();

// The text of the control whose life is being led, null between lives.
const std::string* TextBeingEdited();

}  // namespace soak
