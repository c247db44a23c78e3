// A scenario: one mask under one regional setting, and the steps of a user, played on the library and on the model at once.
// After each step the two are compared; the first difference ends the scenario.
#ifndef TESTS_MODEL_SCENARIO_H
#define TESTS_MODEL_SCENARIO_H

#include "model_control.h"
#include "tests/support/beeps.h"
#include "tests/support/form.h"
#include "tests/support/profile.h"

#include <string>
#include <vector>

namespace model {

enum class StepKind {
    Char,
    Key,
    Select,
    Data,
    Paste,
    Click,
    Read,
    Autoskip,
    Mask,
};

struct Step {
    StepKind kind = StepKind::Char;
    int a = 0;  // character, key, or start of a selection
    int b = 0;  // shift, or end of a selection
    std::string text;
};

struct Setting {
    const char* name;
    Regional regional;
    zttest::RegionalSet profile;
};

const std::vector<Setting>& Settings();

struct Scenario {
    const Setting* setting = nullptr;
    std::string mask;
    Type type = kString;
    bool autoskip = false;
    unsigned increment = 0;  // with a spin when above 0
    std::string range;
    std::vector<Step> steps;
};

struct Difference {
    bool found = false;
    size_t step = 0;  // index of the step behind which the two differ
    std::string before;
    std::string expected;
    std::string got;
};

Difference Play(const Scenario& scenario, zttest::Form& form, zttest::BeepCounter& beeps);

// The scenario without the steps that the difference does not need.
Scenario Shortest(Scenario scenario, zttest::Form& form, zttest::BeepCounter& beeps);

std::string Describe(const Scenario& scenario, const Difference& difference);
std::string ShowValue(const Value& value, Type type);
std::string ShowBlock(void* block, Type type);

}  // namespace model

#endif
