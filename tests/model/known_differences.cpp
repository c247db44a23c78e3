// The table of known differences, and the signs that tell them.
// When one is mended its scenario differs no longer: its rows move to the scenarios that both play alike.
#include "known_differences.h"

#include <algorithm>

namespace model {

const std::vector<KnownDifference>& KnownDifferences()
{
    static const std::vector<KnownDifference> none;
    return none;
}

bool IsKnown(const Scenario& scenario, const Difference& difference)
{
    const std::vector<KnownDifference>& table = KnownDifferences();
    return std::any_of(table.begin(), table.end(),
                       [&](const KnownDifference& known) { return known.shows(scenario, difference); });
}

}  // namespace model
