// The library against the model: random typing under many masks, and random masks, values and texts.
// ZT_MODEL_SEED and ZT_MODEL_ROUNDS give other and longer runs; the default run is fixed and short.
#include "scenario.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>

namespace model {
namespace {

struct MaskRow {
    const char* mask;
    Type type;
    unsigned settings = 0xF;  // bit n: played under setting n
};

constexpr MaskRow kRows[] = {
    {"AAAA",                   kString  },
    {"####",                   kString  },
    {"XXX",                    kString  },
    {"(###) ###-####",         kString  },
    {"##-##",                  kString  },
    {"AA/##/XX",               kString  },
    {"!!!-^^^",                kString  },
    {"~A##~-##",               kString  },
    {">>AA",                   kString  },
    {"A-A, A",                 kString  },
    {"",                       kString  },
    {"#,#.00",                 kNumber  },
    {"#,##0.00",               kNumber  },
    {"#,###,##0.00",           kNumber  },
    {"#.##",                   kNumber  },
    {"0.00",                   kNumber  },
    {"000",                    kNumber  },
    {"###",                    kNumber  },
    {"##0",                    kNumber  },
    {"#,###",                  kNumber  },
    {"#,##0",                  kNumber  },
    {"$#,##0.00",              kNumber  },
    {"$#,#.00",                kNumber  },
    {"[currency(8)]",          kNumber  },
    {"#,#.00",                 kDecimal },
    {"#,###,##0.0000",         kDecimal },
    {"[currency(6)]",          kDecimal },
    {"MM/DD/YY",               kDate    },
    {"DD.MM.YYYY",             kDate    },
    {"YYYY-MM-DD",             kDate    },
    {"DD-MMM-YY",              kDate    },
    {"MMM/DD/YYYY",            kDate    },
    {"JJJ/YY",                 kDate    },
    {"YYYY.JJJ",               kDate    },
    {"MM/YYYY",                kDate    },
    {"(DD/MM/YY)",             kDate    },
    {"XX MM/DD/YY",            kDate    },
    {"[date]",                 kDate    },
    {"HH:MM:SS:FFF",           kTime    },
    {"HH:MM",                  kTime    },
    {"HH:MM AM/PM",            kTime    },
    {"HH.MM.SS am/pm",         kTime    },
    {"HH:MM:SS.FF",            kTime    },
    {"[time]",                 kTime    },
    {"MM/DD/YY HH:MM:SS:FFF",  kDateTime},
    {"DD-MMM-YYYY HH:MM",      kDateTime},
    {"MM/DD/YYYY HH:MM AM/PM", kDateTime},
    {"[date] [time]",          kDateTime},
};

// Numbers with literals at their end or in front: where a digit typed on such a literal goes can be seen in more than one
// way, and the model takes the strictest. Played only when ZT_MODEL_OPEN is set, as are plus signs.
constexpr MaskRow kOpenRows[] = {
    {"$#,###",     kNumber },
    {"##0%",       kNumber },
    {"#.0%",       kNumber },
    {"##0.00%",    kNumber },
    {"0.0%",       kNumber },
    {"~N#,##0.00", kNumber },
    {"$#,###",     kNumber },
    {".##",        kDecimal},
    {"[GENERAL]",  kNumber },
    {"DM #,##0.0", kNumber },
    {"##0.0%",     kDecimal},
};

struct SpinRow {
    const char* mask;
    Type type;
    unsigned increment;
    const char* range;
};

constexpr SpinRow kSpinRows[] = {
    {"#,#.00",                  kNumber,   1, ""                                 },
    {"#,##0",                   kNumber,   3, "1~10"                             },
    {"#,##0.0",                 kNumber,   7, "-20~50"                           },
    {"##0",                     kNumber,   1, "5"                                },
    {"##0%",                    kNumber,   1, "0~2"                              },
    {"#,##0.00",                kDecimal,  1, ""                                 },
    {"#,##0.00",                kDecimal,  2, "5"                                },
    {"#,##0.00",                kDecimal,  3, "1~10"                             },
    {"##0.0",                   kDecimal,  1, "~0"                               },
    {"AAA",                     kString,   1, ""                                 },
    {"MM/DD/YY",                kDate,     1, ""                                 },
    {"MM/DD/YY",                kDate,     2, "1995-03-10~1997-06-20"            },
    {"DD.MM.YYYY",              kDate,     1, "01.02.1999~2001-05-06"            },
    {"DD-MMM-YYYY",             kDate,     5, "~2010-12-31"                      },
    {"YYYY.JJJ",                kDate,     1, "1999-02-01~2000-12-30"            },
    {"HH:MM:SS",                kTime,     1, ""                                 },
    {"HH:MM:SS:FFF",            kTime,     1, "08:15:10~17:45:50"                },
    {"HH:MM AM/PM",             kTime,     1, "09:00~"                           },
    {"HH:MM AM/PM",             kTime,     1, "09:30 AM~05:15 PM"                },
    {"MM/DD/YYYY HH:MM",        kDateTime, 1, "1999-02-03 04:05~1999-04-05 06:07"},
    {"MM/DD/YY HH:MM:SS AM/PM", kDateTime, 1, ""                                 },
};

unsigned EnvironmentNumber(const char* name, unsigned otherwise)
{
    const char* text = std::getenv(name);
    return text != nullptr ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : otherwise;
}

class Random {
public:
    explicit Random(unsigned seed) : engine_(seed) {}
    int Below(int limit) { return static_cast<int>(engine_() % static_cast<unsigned>(limit)); }
    bool Chance(int percent) { return Below(100) < percent; }
    char Of(const std::string& text) { return text[static_cast<size_t>(Below(static_cast<int>(text.size())))]; }

private:
    std::mt19937 engine_;
};

std::string RandomDigits(Random& random, int most)
{
    std::string digits;
    for (int n = random.Below(most) + 1; n > 0; --n)
        digits += static_cast<char>('0' + random.Below(10));
    return digits;
}

std::string RandomNumber(Random& random)
{
    std::string text = random.Chance(25) ? "-" : "";
    text += random.Chance(15) ? "0" : RandomDigits(random, random.Chance(80) ? 4 : 9);
    return random.Chance(60) ? text + "." + RandomDigits(random, 4) : text;
}

std::string RandomDate(Random& random)
{
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d",
                  random.Chance(80) ? 1940 + random.Below(100) : random.Below(9999), random.Below(13),
                  random.Below(32));
    return text;
}

std::string RandomTime(Random& random)
{
    char text[48];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d:%06d", random.Below(25), random.Below(60), random.Below(60),
                  random.Below(1000000));
    return std::string(text).substr(0, random.Chance(70) ? 8 : 15);
}

// A value as a program or the clipboard of another one hands it over.
std::string RandomData(Random& random, Type type)
{
    switch (type) {
    case kNumber:
    case kDecimal: return RandomNumber(random);
    case kDate: return RandomDate(random);
    case kTime: return RandomTime(random);
    case kDateTime: return RandomDate(random) + (random.Chance(70) ? " " + RandomTime(random) : "");
    default: {
        std::string text;
        for (int n = random.Below(12); n > 0; --n)
            text += random.Of("abcXYZ0123456789 -/");
        return text;
    }
    }
}

std::string Alphabet(const Scenario& scenario)
{
    const Regional& regional = scenario.setting->regional;
    switch (scenario.type) {
    case kNumber:
    case kDecimal:
        return std::string("0123456789012345678901234567890123456789--.,%$x ") + regional.Point() + regional.Point() +
               (std::getenv("ZT_MODEL_OPEN") != nullptr ? "+" : "");
    case kDate: return "000111122233345678901234567890/.-/.-JFMASONDjanuneepct: ";
    case kTime: return "00011223345678901234567890:.::  AMPMap";
    case kDateTime: return "00011223345678901234567890/:./-  AMPMJFSONDaneu";
    default: return "0123456789012345678901234567890abcxyzABCXYZ()-/, .~\xe9";
    }
}

Step RandomStep(Random& random, const Scenario& scenario, const std::string& alphabet)
{
    Step step;
    const int kind = random.Below(100);
    if (kind < 58)
        step.a = static_cast<unsigned char>(random.Of(alphabet));
    else if (kind < 66)
        step = {StepKind::Key, kBackspace, 0, ""};
    else if (kind < 70)
        step = {StepKind::Key, kDelete, 0, ""};
    else if (kind < 82) {
        constexpr int keys[] = {kLeft, kRight, kLeft, kRight, kHome, kEnd};
        step = {StepKind::Key, keys[random.Below(6)], random.Chance(35) ? 1 : 0, ""};
    } else if (kind < 88) {
        const int start = random.Below(12);
        step = {StepKind::Select, start, random.Chance(50) ? start : random.Below(14), ""};
    } else if (kind < 90)
        step = {StepKind::Select, 0, 255, ""};
    else if (kind < 93)
        step = {StepKind::Data, 0, 0, RandomData(random, scenario.type)};
    else if (kind < 94)
        step = {StepKind::Paste, 0, 0, RandomData(random, scenario.type)};
    else if (kind < 98)
        step = {StepKind::Read, 0, 0, ""};
    else if (kind < 99) {
        constexpr int controls[] = {1, 13, 9, 27, 127, 26};  // a plain edit undoes at 26
        step.a = controls[random.Below(scenario.mask.empty() ? 5 : 6)];
    } else
        step = {StepKind::Click, random.Below(14), 0, ""};
    return step;
}

class Differential : public testing::Test {
protected:
    void PlayRandomly(int from, int to, int rounds)
    {
        const unsigned seed = EnvironmentNumber("ZT_MODEL_SEED", 1);
        rounds = static_cast<int>(EnvironmentNumber("ZT_MODEL_ROUNDS", static_cast<unsigned>(rounds)));
        std::map<std::string, int> reported;
        for (const Setting& setting : Settings()) {
            const zttest::Regional regional(setting.profile);
            for (const MaskRow& row : kRows)
                PlayRow(row, setting, from, to, rounds, seed, reported);
            for (const MaskRow& row : kOpenRows)
                if (std::getenv("ZT_MODEL_OPEN") != nullptr)
                    PlayRow(row, setting, from, to, rounds, seed, reported);
        }
    }

    void PlayRow(const MaskRow& row, const Setting& setting, int from, int to, int rounds, unsigned seed,
                 std::map<std::string, int>& reported)
    {
        const char* only = std::getenv("ZT_MODEL_MASK");
        if (row.type < from || row.type > to || (only != nullptr && std::string(only) != row.mask))
            return;
        for (int round = 0; round < rounds; ++round) {
            unsigned name = static_cast<unsigned>(row.type);
            for (const char* c = row.mask; *c != '\0'; ++c)
                name = name * 31 + static_cast<unsigned char>(*c);
            Random random(seed * 7919 + static_cast<unsigned>(round) * 104729 + name * 5 +
                          static_cast<unsigned>(&setting - &Settings()[0]));
            Scenario scenario{&setting, row.mask, row.type, random.Chance(50), 0, "", {}};
            const std::string alphabet = Alphabet(scenario);
            for (int n = 0; n < 60; ++n)
                scenario.steps.push_back(RandomStep(random, scenario, alphabet));
            Report(scenario, reported);
        }
    }

    void Report(const Scenario& scenario, std::map<std::string, int>& reported)
    {
        if (!Play(scenario, form_, beeps_).found || ++reported[scenario.mask] > 3)
            return;
        const Scenario shortest = Shortest(scenario, form_, beeps_);
        ADD_FAILURE() << Describe(shortest, Play(shortest, form_, beeps_));
    }

    zttest::Form form_;
    zttest::BeepCounter beeps_;
};

TEST_F(Differential, TypingIntoStrings)
{
    PlayRandomly(kString, kString, 3);
}

TEST_F(Differential, TypingIntoNumbers)
{
    PlayRandomly(kNumber, kNumber, 3);
}

TEST_F(Differential, TypingIntoDecimals)
{
    PlayRandomly(kDecimal, kDecimal, 3);
}

TEST_F(Differential, TypingIntoDatesAndTimes)
{
    PlayRandomly(kDate, kDateTime, 2);
}

}  // namespace
}  // namespace model
