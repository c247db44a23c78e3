// A storm of messages over controls of the library, and the same storm over plain edits: no crash, no hang and no loss that plain edits
// do not have. Played in child processes (child.h); what is found is told with the shortest script that shows it.
//
// ZT_STORM_SEED, ZT_STORM_OPERATIONS: another storm, a longer one. ZT_STORM_EPISODE: one episode of it alone. ZT_STORM_TELL: what was
// played.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "tests/storm/tour.h"

namespace storm {
namespace {

constexpr uint64_t kOperations = 12000;
constexpr uint64_t kNone = UINT64_MAX;

uint64_t FromEnvironment(const char* name, uint64_t standard)
{
    const char* text = std::getenv(name);
    return text && *text ? std::strtoull(text, nullptr, 10) : standard;
}

Tour TravelWith(Cast cast, uint32_t threads, uint64_t share)
{
    Plan plan = {};
    plan.cast = cast;
    plan.threads = threads;
    plan.seed = FromEnvironment("ZT_STORM_SEED", 1);
    plan.operations = FromEnvironment("ZT_STORM_OPERATIONS", kOperations) / share;
    plan.only = static_cast<int64_t>(FromEnvironment("ZT_STORM_EPISODE", kNone));
    Tour tour = Travel(plan);
    if (FromEnvironment("ZT_STORM_TELL", 0) != 0)
        Tell(tour);
    return tour;
}

// Played once, by the test that comes first.
const Tour& OverMaskedEdits()
{
    static const Tour tour = TravelWith(Cast::Masked, 1, 1);
    return tour;
}

const Tour& OverPlainEdits()
{
    static const Tour tour = TravelWith(Cast::Plain, 1, 1);
    return tour;
}

void ExpectNothingFound(const Tour& tour)
{
    EXPECT_GT(tour.played, 0u);
    for (const std::string& finding : tour.findings)
        ADD_FAILURE() << finding;
}

// What masked edits may have left behind: as much an episode as plain edits, a little more, and what the system keeps once and for all.
double Allowed(LONG ofPlainEdits, double more)
{
    constexpr double kOnce = 60;
    const auto plainEpisodes = static_cast<double>(std::max<uint64_t>(OverPlainEdits().grownOver, 1));
    const auto episodes = static_cast<double>(OverMaskedEdits().grownOver);
    return kOnce + episodes * (more + std::max<LONG>(ofPlainEdits, 0) / plainEpisodes);
}

TEST(Storm, OverMaskedEditsEndsNoProgramThatPlainEditsDoNotEnd)
{
    ExpectNothingFound(OverMaskedEdits());
}

// Not the library's matter: what the edit control underneath does by itself.
TEST(Storm, OverPlainEditsIsTheMeasure)
{
    EXPECT_GT(OverPlainEdits().played, 0u);
    for (const std::string& finding : OverPlainEdits().findings)
        std::printf("A plain edit: %s\n", finding.c_str());
}

TEST(Storm, OnTwoThreadsOverPlainEditsIsTheMeasure)
{
    const Tour tour = TravelWith(Cast::Plain, kThreads, 8);
    EXPECT_GT(tour.played, 0u);
    for (const std::string& finding : tour.findings)
        std::printf("A plain edit: %s\n", finding.c_str());
}

TEST(Storm, OnTwoThreadsAtOnceIsSurvived)
{
    ExpectNothingFound(TravelWith(Cast::Masked, kThreads, 8));
}

// An episode makes more than ten controls: a block lost with each, or with each message of some kind, would be many.
TEST(Storm, OverMaskedEditsLosesNoMoreThanOverPlainEdits)
{
    const Counts& masked = OverMaskedEdits().growth;
    const Counts& plain = OverPlainEdits().growth;
    EXPECT_LE(masked.windows, 0);
    EXPECT_LE(masked.memoryBlocks, Allowed(plain.memoryBlocks, 2));
    EXPECT_LE(masked.gdiObjects, Allowed(plain.gdiObjects, 0.5));
}

}  // namespace
}  // namespace storm
