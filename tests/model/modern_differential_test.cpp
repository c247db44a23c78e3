// Modern editing: the library against the model, random play under many masks and settings.
// ZT_MODEL_SEED, ZT_MODEL_ROUNDS and ZT_MODEL_MASK as in differential_test.cpp.
#include "modern_play.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>

namespace model::modern {
namespace {

constexpr int kActs = 60;  // of a scenario
constexpr int kReportsOfMask = 2;

unsigned NumberOfEnvironment(const char* name, unsigned otherwise)
{
    const char* text = std::getenv(name);
    return text != nullptr ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : otherwise;
}

bool IsChosen(const ModernRow& row)
{
    const char* only = std::getenv("ZT_MODEL_MASK");
    return only == nullptr || std::string(only) == row.mask;
}

class ModernDifferential : public testing::Test {
protected:
    template <typename Belongs>
    void PlayRandomly(Belongs belongs)
    {
        const unsigned rounds = NumberOfEnvironment("ZT_MODEL_ROUNDS", 3);
        unsigned number = NumberOfEnvironment("ZT_MODEL_SEED", 1) * 1000003;
        for (const Setting& setting : Settings())
            for (const ModernRow& row : ModernRows()) {
                number += 7919;
                for (unsigned round = 0; round < rounds && belongs(row) && IsChosen(row); ++round)
                    Report(RandomModern(setting, row, number + round * 104729, kActs));
            }
        RecordProperty("acts", static_cast<int>(pair_.Compared()));
        if (std::getenv("ZT_MODEL_ROUNDS") != nullptr)
            std::printf("%zu acts compared\n", pair_.Compared());
    }

    void Report(const ModernScenario& scenario)
    {
        if (reported_[scenario.config.mask] > kReportsOfMask || !pair_.Play(scenario).found ||
            ++reported_[scenario.config.mask] > kReportsOfMask)
            return;
        const ModernScenario shortest = pair_.Shortest(scenario);
        ADD_FAILURE() << Row(shortest) << pair_.Play(shortest).description;
    }

    ModernPair pair_;
    std::map<std::string, int> reported_;
};

TEST_F(ModernDifferential, DatesAndTimes)
{
    PlayRandomly([](const ModernRow& row) { return row.type == kDate || row.type == kTime || row.type == kDateTime; });
}

TEST_F(ModernDifferential, Strings)
{
    PlayRandomly([](const ModernRow& row) { return row.type == kString && row.codes == nullptr; });
}

TEST_F(ModernDifferential, Numbers)
{
    PlayRandomly([](const ModernRow& row) { return row.type == kNumber || row.type == kDecimal; });
}

}  // namespace
}  // namespace model::modern
