// A storm of messages over controls of the library, and the same storm over plain edits.
// ZT_STORM_SEED, ZT_STORM_OPERATIONS: another storm, a longer one.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#include "tests/storm/tour.h"

namespace storm {
namespace {

uint64_t FromEnvironment(const char* name, uint64_t standard)
{
    const char* text = std::getenv(name);
    return text && *text ? std::strtoull(text, nullptr, 10) : standard;
}

Plan PlanOf(Cast cast, uint32_t threads = 1)
{
    constexpr uint64_t kOperations = 20000;
    return {cast, threads, FromEnvironment("ZT_STORM_SEED", 1), FromEnvironment("ZT_STORM_OPERATIONS", kOperations),
            static_cast<int64_t>(FromEnvironment("ZT_STORM_EPISODE", UINT64_MAX))};
}

bool IsTold()
{
    return FromEnvironment("ZT_STORM_TELL", 0) != 0;
}

void ExpectNothingFound(const Tour& tour)
{
    for (const std::string& finding : tour.findings)
        ADD_FAILURE() << finding;
}

TEST(Storm, OverMaskedEditsFindsNothingThatPlainEditsHaveNot)
{
    const Tour tour = Travel(PlanOf(Cast::Masked));
    if (IsTold())
        Tell(tour);
    ExpectNothingFound(tour);
}

TEST(Storm, OverPlainEditsIsTheMeasure)
{
    const Tour tour = Travel(PlanOf(Cast::Plain));
    if (IsTold())
        Tell(tour);
    for (const std::string& finding : tour.findings)
        std::printf("A plain edit: %s\n", finding.c_str());
}

TEST(Storm, OnTwoThreadsAtOnce)
{
    Plan plan = PlanOf(Cast::Masked, kThreads);
    plan.operations /= 4;
    const Tour tour = Travel(plan);
    if (IsTold())
        Tell(tour);
    ExpectNothingFound(tour);
}

}  // namespace
}  // namespace storm
