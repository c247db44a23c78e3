// Random scenarios: the masks and spins that are played, and what a user and a program may do to them.
#ifndef TESTS_MODEL_RANDOM_SCENARIO_H
#define TESTS_MODEL_RANDOM_SCENARIO_H

#include "scenario.h"

#include <random>
#include <string>
#include <vector>

namespace model {

struct ControlRow {
    const char* mask;
    Type type;
    unsigned increment = 0;  // with a spin when above 0
    const char* range = "";
    const char* codes = nullptr;
    bool codeDisplay = false;
    bool codePick = false;
};

const std::vector<ControlRow>& ControlRows();

class Random {
public:
    explicit Random(unsigned seed) : engine_(seed) {}
    int Below(int limit) { return static_cast<int>(engine_() % static_cast<unsigned>(limit)); }
    bool Chance(int percent) { return Below(100) < percent; }
    char Of(const std::string& text) { return text[static_cast<size_t>(Below(static_cast<int>(text.size())))]; }

private:
    std::mt19937 engine_;
};

Scenario RandomScenario(const Setting& setting, const ControlRow& row, unsigned seed, int steps);

}  // namespace model

#endif
