// A scenario: one control under one regional setting, and the steps of a user, played on the library and on the model.
// After each step the two are compared; the first difference ends the scenario.
#ifndef TESTS_MODEL_SCENARIO_H
#define TESTS_MODEL_SCENARIO_H

#include "script.h"
#include "subject.h"

#include <string>
#include <vector>

namespace model {

struct Setting {
    const char* name;
    Regional regional;
};

const std::vector<Setting>& Settings();

struct ScenarioRow {
    const char* setting;
    const char* mask;
    Type type;
    bool autoskip;
    unsigned increment;
    const char* range;
    const char* codes;
    bool codeDisplay;
    bool codePick;
    const char* script;
};

struct Scenario {
    const Setting* setting = nullptr;
    Config config;
    std::vector<Step> steps;
};

Scenario ScenarioOf(const ScenarioRow& row);

struct Difference {
    bool found = false;
    size_t step = 0;  // index of the step behind which the two differ
    State before;     // the library's
    State expected;   // the model's
    State got;
    std::string description;
};

// The library and the model, and the setting under which both now stand.
class Pair {
public:
    void Use(const Setting& setting);

    Subject& Library() { return *library_; }
    Subject& Model() { return *model_; }

private:
    std::unique_ptr<Subject> library_ = MakeLibrary();
    std::unique_ptr<Subject> model_ = MakeModel();
    const Setting* setting_ = nullptr;
};

Difference Play(const Scenario& scenario, Pair& pair);

// The scenario without the steps that the difference does not need. What is known does not count as one.
Scenario Shortest(Scenario scenario, Pair& pair);

// The scenario as a row of a table of scenarios, and what differs.
std::string Row(const Scenario& scenario);
std::string Describe(const Scenario& scenario, const Difference& difference);
std::string ShowValue(const Value& value, Type type);

}  // namespace model

#endif
