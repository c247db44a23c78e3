// A part of the play runs in a child process: a crash or a hang ends the child alone, and its parent tells where.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tests/storm/script.h"
#include "tests/storm/stage.h"

namespace storm {

enum class Ending : LONG {
    Unknown,  // the process ended without a word
    Played,
    Crashed,
    Hung,
    BrokeALaw,
};

struct Counts {
    LONG gdiObjects;
    LONG windows;
    LONG memoryBlocks;
};

constexpr int kThreads = 2;

// What the child tells, in memory that it shares with its parent.
struct Report {
    Ending ending;
    DWORD code;  // of the exception
    LONG episode[kThreads];
    LONG op[kThreads];
    LONG64 operations[kThreads];
    LONG kinds[kKinds];
    LONG reactions;  // inside notifications, beside the operations of the script
    LONG warmEpisodes;
    Counts warm;  // after the first episodes, which fill caches of the system
    Counts last;
    char told[2000];
};

// What a child plays.
struct Part {
    Cast cast;
    uint64_t seed;
    uint32_t first;  // episode
    uint32_t count;
    uint32_t threads = 1;
    std::vector<bool> kept = {};  // of the operations of the only episode; empty: all
};

// Plays in a child process to its end, or until it has stood still too long.
Report PlayInChild(const Part& part);

std::string Told(const Op& op);

}  // namespace storm
