// A whole play: as many children as it takes, and what they have found, each with the shortest script that shows it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tests/storm/child.h"

namespace storm {

struct Plan {
    Cast cast;
    uint32_t threads;
    uint64_t seed;
    uint64_t operations;
    int64_t only = -1;  // the one episode to play
};

struct Tour {
    Plan plan = {};
    uint64_t played = 0;
    double seconds = 0;
    uint64_t kinds[kKinds] = {};
    uint64_t reactions = 0;
    std::vector<std::string> findings;
    std::vector<std::string> sharedFindings;  // those that the same script shows with plain edits
    Counts growth = {};                       // from the first episodes of a child to its last
    uint64_t grownOver = 0;                   // episodes
};

Tour Travel(const Plan& plan);
void Tell(const Tour& tour);

}  // namespace storm
