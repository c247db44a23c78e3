// Differences between the library and the model that are known to be the library's, each shown by a scenario.
// Random play leaves out what one of them shows, and nothing else.
#ifndef TESTS_MODEL_KNOWN_DIFFERENCES_H
#define TESTS_MODEL_KNOWN_DIFFERENCES_H

#include "scenario.h"

#include <vector>

namespace model {

struct KnownDifference {
    const char* reason;
    bool (*shows)(const Scenario& scenario, const Difference& difference);
    std::vector<ScenarioRow> rows;  // each ends with the step behind which the two differ
};

const std::vector<KnownDifference>& KnownDifferences();

bool IsKnown(const Scenario& scenario, const Difference& difference);

}  // namespace model

#endif
