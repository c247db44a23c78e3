// The library against the model: random play under many masks.
// ZT_MODEL_SEED and ZT_MODEL_ROUNDS give other and longer runs, ZT_MODEL_MASK plays one mask alone; the default run is
// fixed and short. A difference is reported as a row for kScenarios below.
#include "known_differences.h"
#include "random_scenario.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>

namespace model {
namespace {

constexpr int kStepsOfScenario = 60;
constexpr int kMostReports = 3;  // of one mask

// Scenarios in which the two once differed.
// clang-format off
constexpr const char* kColours = "Red\tR/Green\tG/Blue\tB/Grey\tX/None\tnull!";

constexpr ScenarioRow kScenarios[] = {
    {"us", "#,##0.00", kNumber, false, 0, "", nullptr, false, false, "1234.5{read}{Home}{Del}{Back}x"},
    {"us", "##0%", kNumber, false, 0, "", nullptr, false, false, "{sel 0 255}12{End}5{read}"},
    {"us", "##0%", kNumber, false, 0, "", nullptr, false, false, "{sel 0 255}-12{read}"},
    {"us", "$#,###", kNumber, true, 0, "", nullptr, false, false, "{sel 0 255}+{data 9920}{sel 0 255}{Del}0"},
    {"swiss", "[currency(8)]", kNumber, true, 0, "", nullptr, false, false, "{paste -407}0{read}"},
    {"german", "#,#.00", kNumber, true, 0, "", nullptr, false, false,
     "{data 8867}{End}{Back}{Shift+Right}6{Shift+Left}{Left}3"},
    {"swiss", "#,#.00", kDecimal, false, 0, "", nullptr, false, false, "{data 747.410}0{sel 4 9}4"},
    {"french", "#,#.00", kNumber, true, 0, "", nullptr, false, false, "{data 589.6}0555{Shift+Left}2"},
    {"german", "#.##", kNumber, true, 0, "", nullptr, false, false, "45{click 0}0{Shift+End}3"},
    {"swiss", "[currency(8)]", kNumber, true, 0, "", nullptr, false, false, "10{sel 3 0}{Back}3{sel 5 0}1"},
    {"german", "[currency(6)]", kDecimal, false, 0, "", nullptr, false, false, "3{sel 5 11}1{Home}0"},
    {"us", "DM #,##0.0", kNumber, false, 0, "", nullptr, false, false, "{Shift+Home}0{Left}{Shift+Home}4"},
    {"us", "$#,##0.00", kNumber, false, 0, "", nullptr, false, false, "{data -0.1708}0"},
    {"us", "0.0%", kNumber, true, 0, "", nullptr, false, false, "-6{Back}4"},
    {"german", "##0.00%", kNumber, true, 0, "", nullptr, false, false, "-{sel 3 3}0"},
    {"us", "#.##", kNumber, true, 0, "", nullptr, false, false, "3{Home}+9{sel 2 7}9"},
    {"french", "HH:MM:SS", kTime, true, 1, "", nullptr, false, false, "7{sel 0 0}{sel 3 3}:"},
    {"swiss", "#.##", kNumber, false, 0, "", nullptr, false, false, "8{sel 0 255}{sel 2 2}."},
    {"us", "~x.##", kNumber, false, 0, "", nullptr, false, false, "{data 0}"},
    {"us", "AM/PM HH:MM", kTime, false, 0, "", nullptr, false, false, "{data 13:30}{read}"},
    {"us", "AM/PM HH:MM", kTime, false, 0, "", nullptr, false, false, "{sel 3 3}0"},
    {"french", "#,##0.00", kNumber, false, 0, "", nullptr, false, false, "{data 9924016014}{sel 2 5}6{read}"},
    {"us", "(A)", kString, true, 1, "", "Red\tR/Green\tG/None\tnull!", true, false, "{Up}{Back}{data R}{Down}{read}"},
    {"us", "##0", kNumber, false, 1, "", "One\t1/Two\t2/Ten\t10/None\t0", true, false, "{Up}1{Up}{Back}x{read}"},
    {"us", "HH:MM", kTime, false, 1, "", "Noon\t12:00/Tea\t16:30", true, true, "N{read}{paste Noon}{Up}"},
    {"us", "HH:MM AM/PM", kTime, false, 1, "09:00~", nullptr, false, false, "{sel 9 9}{Up}{mask 3 JJJ/YY}{Up}"},
    {"french", "HH:MM:SS", kTime, true, 1, "", nullptr, false, false, "7{sel 0 0}{sel 3 3}:"},
    {"swiss", "#.##", kNumber, false, 0, "", nullptr, false, false, "8{sel 0 255}{sel 2 2}."},
    {"us", "AM/PM HH:MM", kTime, false, 0, "", nullptr, false, false, "{data 13:30}{read}"},
    {"us", "AM/PM HH:MM", kTime, false, 0, "", nullptr, false, false, "{sel 3 3}0"},
    {"french", "[date]", kDate, false, 0, "", nullptr, false, false, "31121999{read}"},
    {"us", "", kString, true, 1, "", nullptr, false, false, "y{Up}{enable 0}{Del}{Back}z{readonly 1}{Del}"},
    {"us", "#,##0.00", kNumber, false, 0, "", nullptr, false, false, "{data 593}5{read}"},
    {"us", "#,#.00", kNumber, false, 0, "", nullptr, false, false, ".+{Back}"},
    {"us", "#00.00", kNumber, false, 0, "", nullptr, false, false, "{data 2}0{Right}{Back}"},
    {"us", "0000", kNumber, true, 0, "", nullptr, false, false, "44{sel 1 1}{Back}{Del}"},
    {"us", ".00", kNumber, false, 0, "", nullptr, false, false, "{data 970.21}92{Del}0"},
    {"us", "$#,##0.00", kNumber, false, 0, "", nullptr, false, false, "{data $-5,683.0}{read}{data $12}{read}"},
    {"german", "##0.0%", kDecimal, false, 0, "", nullptr, false, false, "{data 230,21EUR}{read}{data 12,5%}{read}"},
    {"german", "[currency(4)]", kNumber, false, 0, "", nullptr, false, false, "{data 47415114.485}0{sel 0 0}-{Back}"},
    {"french", "00.00", kDecimal, true, 0, "", nullptr, false, false, "{data -49 964F}{read}"},
    {"alpine", "[currency(4)]", kNumber, true, 0, "", nullptr, false, false, "5{sel 2 2}."},
    {"icelandic", "[currency(8)]", kNumber, true, 0, "", nullptr, false, false, "-35{sel 9 9}{Back}x"},
    {"african", "$#,##0.00", kNumber, false, 0, "", nullptr, false, false, "{data 7356}{Del}00x"},
    {"hex", "0.0%", kNumber, true, 0, "", nullptr, false, false, "{data 0x27.15%}{read}"},
    {"us", "AAAA", kString, true, 1, "", "Red\tR/Green\tG/Blue\tB/Grey\tX/None\tnull!", true, true, "R{sel 0 255}{char 24}"},
    {"us", "AAAA", kString, true, 1, "", "Red\tR/Green\tG/Blue\tB/Grey\tX/None\tnull!", true, false, "{mask 2 000}{Down}{Back}"},
    {"us", "000.0%", kNumber, true, 0, "", nullptr, false, false, "{sel 2 2}{Back}5{Right}"},
    {"swiss", "000", kNumber, true, 0, "", nullptr, false, false, "{sel 0 255}{Left}{Del}5{Right}"},
    {"us", "$#,###", kNumber, true, 0, "", nullptr, false, false, "3910{sel 1 10}{Left}"},
    {"us", "US $#,##0.00", kNumber, true, 0, "", nullptr, false, false, "{data 466}{click 3}"},
    {"swiss", "[currency(2)]", kNumber, true, 0, "", nullptr, false, false, "{click 2}"},
    {"german", "#.0%", kNumber, false, 0, "", nullptr, false, false, "{data 899.6}4,{Left}"},
    {"german", "$#,###", kNumber, true, 0, "", nullptr, false, false, "{data -28.845}{Shift+Home}5"},
    {"icelandic", "$###", kNumber, false, 0, "", nullptr, false, false, "{paste -28}{Shift+Home}{Del}"},
    {"danish", "(##0", kNumber, true, 0, "", nullptr, false, false, "{data -7,938}{Home}+"},
    {"us", "##0", kNumber, true, 1, "", "One\t1/Two\t2/Ten\t10/None\t0", true, false, "-"},
    {"mexican", "[currency(2)]", kNumber, true, 0, "", nullptr, false, false, "MX"},
    {"german", "[currency(6)]", kDecimal, false, 0, "", nullptr, false, false, "0E"},
    {"us", "(A)", kString, false, 1, "", kColours, true, false, "{mask 1 AAA}8{sel 0 255}{mask 6 00.00}6"},
    {"alpine", "AAAA", kString, true, 1, "", kColours, true, false, "{mask 2 0000}{Del}"},
    {"african", "##0", kNumber, false, 1, "", "One\t1/Two\t2/Ten\t10/None\t0", true, false, "9{mask 2 000}{Back}"},
    {"us", "0,000.000", kNumber, false, 0, "", nullptr, false, false, "73{Back}"},
    {"us", "0,000.000", kNumber, false, 0, "", nullptr, false, false, "{sel 2 12}{Back}"},
    {"danish", "", kString, true, 1, "", kColours, true, false, "9{char 1}"},
    {"icelandic", "[currency(2)]", kNumber, true, 0, "", nullptr, false, false, "16k0"},
    {"hex", "000%", kNumber, false, 0, "", nullptr, false, false, "{data 6}-{Del}"},
    {"alpine", "[time]", kTime, false, 0, "", nullptr, false, false, "5{char 24}:"},
    {"german", "#.0%", kNumber, false, 0, "", nullptr, false, false, "8{char 24},"},
};
// clang-format on

unsigned EnvironmentNumber(const char* name, unsigned otherwise)
{
    const char* text = std::getenv(name);
    return text != nullptr ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : otherwise;
}

bool Chosen(const ControlRow& row)
{
    const char* only = std::getenv("ZT_MODEL_MASK");
    return only == nullptr || std::string(only) == row.mask;
}

class Differential : public testing::Test {
protected:
    void PlayRandomly(Type from, Type to)
    {
        const unsigned rounds = EnvironmentNumber("ZT_MODEL_ROUNDS", kDefaultRounds);
        const unsigned seed = EnvironmentNumber("ZT_MODEL_SEED", 1);
        unsigned number = seed * 1000003;
        unsigned combination = seed;
        for (const Setting& setting : Settings())
            for (const ControlRow& row : ControlRows()) {
                number += 7919;
                if (++combination % kPlayedOf != 0)
                    continue;
                for (unsigned round = 0; round < rounds && row.type >= from && row.type <= to && Chosen(row); ++round)
                    Report(RandomScenario(setting, row, number + round * 104729, kStepsOfScenario));
            }
    }

    void Report(const Scenario& scenario)
    {
        ++played_;
        const Difference difference = Play(scenario, pair_);
        if (!difference.found)
            return;
        if (IsKnown(scenario, difference)) {
            ++known_;
            return;
        }
        if (++reported_[scenario.config.mask] > kMostReports)
            return;
        const Scenario shortest = Shortest(scenario, pair_);
        ADD_FAILURE() << Describe(shortest, Play(shortest, pair_));
    }

    // What is known stays rare: play that ended there has tried little else.
    void TearDown() override { EXPECT_LE(known_ * 100, played_) << known_ << " of " << played_ << " left out"; }

    Pair pair_;
    unsigned played_ = 0;
    unsigned known_ = 0;
    std::map<std::string, int> reported_;
};

TEST_F(Differential, ScenariosOfTheTable)
{
    for (const ScenarioRow& row : kScenarios) {
        const Difference difference = Play(ScenarioOf(row), pair_);
        EXPECT_FALSE(difference.found) << Describe(ScenarioOf(row), difference);
    }
}

TEST_F(Differential, KnownDifferencesAreStillThere)
{
    for (const KnownDifference& known : KnownDifferences())
        for (const ScenarioRow& row : known.rows) {
            const Scenario scenario = ScenarioOf(row);
            const Difference difference = Play(scenario, pair_);
            EXPECT_TRUE(difference.found && difference.step + 1 == scenario.steps.size() &&
                        known.shows(scenario, difference))
                << Row(scenario) << "\n  no longer shows that " << known.reason << "\n  "
                << Describe(scenario, difference);
        }
}

TEST_F(Differential, TypingIntoStrings)
{
    PlayRandomly(kString, kString);
}

TEST_F(Differential, TypingIntoNumbers)
{
    PlayRandomly(kNumber, kNumber);
}

TEST_F(Differential, TypingIntoDecimals)
{
    PlayRandomly(kDecimal, kDecimal);
}

TEST_F(Differential, TypingIntoDatesAndTimes)
{
    PlayRandomly(kDate, kDateTime);
}

TEST(Scripts, AreReadAsTheyAreWritten)
{
    for (const ControlRow& row : ControlRows()) {
        const Scenario scenario = RandomScenario(Settings()[0], row, 17, 300);
        EXPECT_TRUE(StepsOf(ScriptOf(scenario.steps)) == scenario.steps) << ScriptOf(scenario.steps);
    }
}

}  // namespace
}  // namespace model
