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

// Scenarios in which the two once differed.
// clang-format off
constexpr ScenarioRow kModernScenarios[] = {
    {"us", "AM/PM HH:MM", kTime, true, 0, "", nullptr, false, false, "345a{Home}app{End}p"},
    {"us", "HH:MM AM/PM", kTime, true, 0, "", nullptr, false, false, "345{End}pa{Left}a{Left}{Left}p"},
    {"us", "HH:MM", kTime, true, 0, "", nullptr, false, false, "{try 13:12}{Del}."},
    {"us", "MM/DD/YYYY", kDate, true, 0, "", nullptr, false, false, "1{Del}{End}{leave}"},
    {"icelandic", "MM/DD/YYYY", kDate, true, 0, "", nullptr, false, false, "32{Left}{Back}"},
    {"us", "AM/PM HH:MM", kTime, false, 0, "", nullptr, false, false, "2{Left}{Back}"},
    {"us", "YYYY.JJJ", kDate, true, 0, "", nullptr, false, false, "{paste 1966-04-00}{paste 2034 05 03}{paste 1984.2}"},
    {"us", "MM/DD/YYYY", kDate, true, 0, "", nullptr, false, false, "{paste 1966-04-07-00}{paste 04/07/1966 00:00}"},
    {"swiss", "JJJ/YY", kDate, true, 0, "", nullptr, false, false, "958{sel 5 0}1{sel 10 15}p"},
    {"us", "##0", kNumber, true, 0, "", nullptr, false, false, "{data 494}{sel 1 3}{Left}{sel 1 3}{Right}"},
    {"us", "0.00", kNumber, false, 0, "", nullptr, false, false, "{Shift+End}{Ctrl+Right}"},
    {"us", "#,##0.00", kDecimal, false, 0, "", nullptr, false, false, "-7{Back}0{undo}"},
};
// clang-format on

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
        const unsigned rounds = NumberOfEnvironment("ZT_MODEL_ROUNDS", 2);
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

TEST_F(ModernDifferential, ScenariosOfTheTable)
{
    for (const ScenarioRow& row : kModernScenarios) {
        const Scenario scenario = ScenarioOf({row.setting, row.mask, row.type, row.autoskip, row.increment, row.range,
                                              row.codes, row.codeDisplay, row.codePick, ""});
        const ModernScenario modern = {scenario.setting, scenario.config, ActsOf(row.script)};
        const ModernDifference difference = pair_.Play(modern);
        EXPECT_FALSE(difference.found) << Row(modern) << difference.description;
    }
}

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
