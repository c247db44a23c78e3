// The tables of masks and spins, and the dice.
#include "random_scenario.h"

#include <cstdio>

namespace model {
namespace {

constexpr const char* kColours = "Red\tR/Green\tG/Blue\tB/Grey\tX/None\tnull!";

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

// A number as people of the setting write it, with or without its signs.
std::string ShownNumber(Random& random, const Regional& regional)
{
    std::string text = RandomDigits(random, 7);
    for (int at = static_cast<int>(text.size()) - 3; at > 0 && regional.thousand != '\0'; at -= 3)
        text.insert(static_cast<size_t>(at), 1, regional.thousand);
    if (random.Chance(60))
        text += regional.Point() + RandomDigits(random, 3);
    if (random.Chance(25))
        text.insert(0, "-");
    if (random.Chance(30))
        text = regional.currencyPosition % 2 == 1 ? text + regional.currency : regional.currency + text;
    return random.Chance(20) ? text + "%" : text;
}

std::string RandomDate(Random& random)
{
    char text[32];
    const int year = random.Chance(80) ? 1940 + random.Below(100) : random.Below(9999);
    const int month = random.Below(13);
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", year, month, random.Below(32));
    return text;
}

std::string RandomTime(Random& random)
{
    char text[48];
    const int hour = random.Below(25);
    const int minute = random.Below(60);
    const int second = random.Below(60);
    std::snprintf(text, sizeof text, "%02d:%02d:%02d:%06d", hour, minute, second, random.Below(1000000));
    return std::string(text).substr(0, random.Chance(70) ? 8 : 15);
}

std::string RandomString(Random& random)
{
    std::string text;
    for (int n = random.Below(12); n > 0; --n)
        text += random.Of("abcXYZ0123456789 -/");
    return text;
}

// A value of a code table, now and then one that is none.
std::string RandomCode(Random& random, const std::string& codes)
{
    std::vector<std::string> words(1);
    for (const char c : codes) {
        if (c == '/' || c == '\t')
            words.emplace_back();
        else
            words.back() += c;
    }
    return words[static_cast<size_t>(random.Below(static_cast<int>(words.size())))];
}

// A value as a program or the clipboard of another one hands it over.
std::string RandomData(Random& random, Type type, const Config& config)
{
    if (config.codes && config.codeDisplay && random.Chance(60))
        return RandomCode(random, *config.codes);
    switch (type) {
    case kNumber:
    case kDecimal: return RandomNumber(random);
    case kDate: return RandomDate(random);
    case kTime: return RandomTime(random);
    case kDateTime: {
        const std::string date = RandomDate(random);
        return random.Chance(70) ? date + " " + RandomTime(random) : date;
    }
    default: return RandomString(random);
    }
}

// Shows and reads; what typing into it does is not laid down.
constexpr const char* kNotTyped = "[GENERAL]";

std::string Alphabet(const Setting& setting, const Config& config, Type type)
{
    const char point = setting.regional.Point();
    if (config.codePick)
        return "RGBNrgbXA10257.-";
    switch (type) {
    case kNumber:
    case kDecimal:
        return std::string("01234567890123456789012345678901234567890123456789---.,+%$x ") + point + point +
               setting.regional.thousand + setting.regional.currency;
    case kDate: return "000111122233345678901234567890/.-/.-JFMASONDjanuneepct: ";
    case kTime: return "00011223345678901234567890:.::  AMPMapvND";
    case kDateTime: return "00011223345678901234567890/:./-  AMPMJFSONDaneuvp";
    default: return "0123456789012345678901234567890abcxyzABCXYZ()-/, .~\xe9";
    }
}

// The dice of one scenario. What they may throw depends on the mask of the moment.
class Player {
public:
    Player(const Setting& setting, const Config& config, unsigned seed)
        : random_(seed), setting_(setting), config_(config)
    {
        type_ = config.type;
        plain_ = config.mask.empty();
        config_.autoskip = random_.Chance(50);
        alphabet_ = Alphabet(setting_, config_, type_);
        typed_ = config_.mask != kNotTyped;
    }

    const Config& Start() const { return config_; }

    Step Next()
    {
        const int throws = random_.Below(1000);
        if (!typed_ && throws < 700)
            return Value();
        if (config_.increment != 0 && throws < 100)
            return {StepKind::Key, random_.Chance(50) ? kUp : kDown, 0, ""};
        if (throws < 560)
            return {StepKind::Char, static_cast<unsigned char>(random_.Of(alphabet_)), 0, ""};
        if (throws < 700)
            return {StepKind::Key, random_.Chance(66) ? kBackspace : kDelete, 0, ""};
        if (throws < 800)
            return Movement();
        if (throws < 880)
            return Selection();
        if (throws < 950)
            return Value();
        if (throws < 990)
            return {StepKind::Read, 0, 0, ""};
        return Rare();
    }

private:
    Step Movement()
    {
        if (random_.Chance(12))
            return {StepKind::Click, random_.Below(14), 0, ""};
        constexpr int keys[] = {kLeft, kRight, kLeft, kRight, kHome, kEnd};
        const int key = keys[random_.Below(6)];
        return {StepKind::Key, key, random_.Chance(35) ? 1 : 0, ""};
    }

    Step Selection()
    {
        if (random_.Chance(25))
            return {StepKind::Select, 0, 255, ""};
        const int start = random_.Below(12);
        return {StepKind::Select, start, random_.Chance(50) ? start : random_.Below(14), ""};
    }

    Step Value()
    {
        if (random_.Chance(8))
            return {StepKind::NoData, 0, 0, ""};
        const StepKind kind = random_.Chance(70) ? StepKind::Data : StepKind::Paste;
        const bool number = type_ == kNumber || type_ == kDecimal;
        if (number && typed_ && random_.Chance(30))
            return {kind, 0, 0, ShownNumber(random_, setting_.regional)};
        return {kind, 0, 0, RandomData(random_, type_, config_)};
    }

    Step Rare()
    {
        switch (random_.Below(8)) {
        case 0:
        case 1: return NewMask();
        case 2: return {StepKind::ReadOnly, random_.Chance(30) ? 1 : 0, 0, ""};
        case 3: return {StepKind::Enable, random_.Chance(70) ? 1 : 0, 0, ""};
        case 4: return {StepKind::Autoskip, random_.Below(2), 0, ""};
        default: {
            constexpr int controls[] = {1, 13, 9, 27, 127, 26, 24};  // a plain edit undoes at 26 and cuts at 24
            return {StepKind::Char, controls[random_.Below(plain_ ? 5 : 7)], 0, ""};
        }
        }
    }

    Step NewMask()
    {
        const std::vector<ControlRow>& rows = ControlRows();
        const ControlRow& row = rows[static_cast<size_t>(random_.Below(static_cast<int>(rows.size())))];
        type_ = row.type;
        plain_ = *row.mask == '\0';
        alphabet_ = Alphabet(setting_, config_, type_);
        typed_ = row.mask != std::string(kNotTyped);
        return {StepKind::Mask, row.type, 0, row.mask};
    }

    Random random_;
    const Setting& setting_;
    Config config_;
    Type type_;
    bool plain_;
    bool typed_;
    std::string alphabet_;
};

}  // namespace

// clang-format off
const std::vector<ControlRow>& ControlRows()
{
    static const std::vector<ControlRow> rows = {
        {"AAAA",                    kString                                                        },
        {"####",                    kString                                                        },
        {"XXX",                     kString                                                        },
        {"(###) ###-####",          kString                                                        },
        {"##-##",                   kString                                                        },
        {"AA/##/XX",                kString                                                        },
        {"!!!-^^^",                 kString                                                        },
        {"~A##~-##",                kString                                                        },
        {">>AA",                    kString                                                        },
        {"A-A, A",                  kString                                                        },
        {"",                        kString                                                        },
        {"#,#.00",                  kNumber                                                        },
        {"#,##0.00",                kNumber                                                        },
        {"#,###,##0.00",            kNumber                                                        },
        {"#.##",                    kNumber                                                        },
        {"0.00",                    kNumber                                                        },
        {"000",                     kNumber                                                        },
        {"###",                     kNumber                                                        },
        {"##0",                     kNumber                                                        },
        {"#,###",                   kNumber                                                        },
        {"#,##0",                   kNumber                                                        },
        {"$#,##0.00",               kNumber                                                        },
        {"$#,#.00",                 kNumber                                                        },
        {"[currency(8)]",           kNumber                                                        },
        {"$#,###",                  kNumber                                                        },
        {"##0%",                    kNumber                                                        },
        {"#.0%",                    kNumber                                                        },
        {"##0.00%",                 kNumber                                                        },
        {"0.0%",                    kNumber                                                        },
        {"~N#,##0.00",              kNumber                                                        },
        {"[GENERAL]",               kNumber                                                        },
        {"#%",                      kNumber                                                        },
        {"###%",                    kNumber                                                        },
        {"000%",                    kNumber                                                        },
        {"000.0%",                  kNumber                                                        },
        {"#,##0%",                  kNumber                                                        },
        {"#,##0.00%",               kNumber                                                        },
        {"0000",                    kNumber                                                        },
        {"00.00",                   kNumber                                                        },
        {"0,000.000",               kNumber                                                        },
        {"#00.00",                  kNumber                                                        },
        {"#.0##",                   kNumber                                                        },
        {".00",                     kNumber                                                        },
        {"#,###.00",                kNumber                                                        },
        {"$###",                    kNumber                                                        },
        {"$000.00",                 kNumber                                                        },
        {"US $#,##0.00",            kNumber                                                        },
        {"~N~o~5 #,##0.0",          kNumber                                                        },
        {"~#~-0.00",                kNumber                                                        },
        {"(##0",                    kNumber                                                        },
        {"[currency(2)]",           kNumber                                                        },
        {"[currency(4)]",           kNumber                                                        },
        {"[currency(5)]",           kNumber                                                        },
        {"[currency(11)]",          kNumber                                                        },
        {"DM #,##0.0",              kNumber                                                        },
        {"#,#.00",                  kDecimal                                                       },
        {"#,###,##0.0000",          kDecimal                                                       },
        {"[currency(6)]",           kDecimal                                                       },
        {"[currency(9)]",           kDecimal                                                       },
        {"00.00",                   kDecimal                                                       },
        {"#,##0.00000000000000000%", kDecimal                                                      },
        {"####################",    kDecimal                                                       },
        {".##",                     kDecimal                                                       },
        {"##0.0%",                  kDecimal                                                       },
        {"MM/DD/YY",                kDate                                                          },
        {"DD.MM.YYYY",              kDate                                                          },
        {"YYYY-MM-DD",              kDate                                                          },
        {"DD-MMM-YY",               kDate                                                          },
        {"MMM/DD/YYYY",             kDate                                                          },
        {"JJJ/YY",                  kDate                                                          },
        {"YYYY.JJJ",                kDate                                                          },
        {"MM/YYYY",                 kDate                                                          },
        {"(DD/MM/YY)",              kDate                                                          },
        {"XX MM/DD/YY",             kDate                                                          },
        {"[date]",                  kDate                                                          },
        {"HH:MM:SS:FFF",            kTime                                                          },
        {"HH:MM",                   kTime                                                          },
        {"HH:MM AM/PM",             kTime                                                          },
        {"HH.MM.SS am/pm",          kTime                                                          },
        {"AM/PM HH:MM",             kTime                                                          },
        {"HH am/pm:MM:SS",          kTime                                                          },
        {"HH:MM:SS.FF",             kTime                                                          },
        {"[time]",                  kTime                                                          },
        {"MM/DD/YY HH:MM:SS:FFF",   kDateTime                                                      },
        {"DD-MMM-YYYY HH:MM",       kDateTime                                                      },
        {"MM/DD/YYYY HH:MM AM/PM",  kDateTime                                                      },
        {"AM/PM MMM-DD-YY HH:MM",   kDateTime                                                      },
        {"[date] [time]",           kDateTime                                                      },
        {"#,#.00",                  kNumber,   1                                                   },
        {"#,##0",                   kNumber,   3, "1~10"                                           },
        {"#,##0.0",                 kNumber,   7, "-20~50"                                         },
        {"##0",                     kNumber,   1, "5"                                              },
        {"##0%",                    kNumber,   1, "0~2"                                            },
        {"#,##0.00",                kDecimal,  1                                                   },
        {"#,##0.00",                kDecimal,  2, "5"                                              },
        {"#,##0.00",                kDecimal,  3, "1~10"                                           },
        {"##0.0",                   kDecimal,  1, "~0"                                             },
        {"AAA",                     kString,   1                                                   },
        {"",                        kString,   1                                                   },
        {"MM/DD/YY",                kDate,     1                                                   },
        {"MM/DD/YY",                kDate,     2, "1995-03-10~1997-06-20"                          },
        {"DD.MM.YYYY",              kDate,     1, "01.02.1999~2001-05-06"                          },
        {"DD-MMM-YYYY",             kDate,     5, "~2010-12-31"                                    },
        {"YYYY.JJJ",                kDate,     1, "1999-02-01~2000-12-30"                          },
        {"HH:MM:SS",                kTime,     1                                                   },
        {"HH:MM:SS:FFF",            kTime,     1, "08:15:10~17:45:50"                              },
        {"HH:MM AM/PM",             kTime,     1, "09:00~"                                         },
        {"HH:MM AM/PM",             kTime,     1, "09:30 AM~05:15 PM"                              },
        {"MM/DD/YYYY HH:MM",        kDateTime, 1, "1999-02-03 04:05~1999-04-05 06:07"              },
        {"MM/DD/YY HH:MM:SS AM/PM", kDateTime, 1                                                   },
        {"",                        kString,   1, "", kColours,                         true       },
        {"AAAA",                    kString,   1, "", kColours,                         true       },
        {"(A)",                     kString,   1, "", kColours,                         true       },
        {"",                        kString,   1, "", kColours,                         true,  true},
        {"AAAA",                    kString,   1, "", kColours,                         true,  true},
        {"AAAA",                    kString,   1, "", kColours                                     },
        {"AAAA",                    kString,   1, "", "",                               true       },
        {"##0",                     kNumber,   1, "", "One\t1/Two\t2/Ten\t10/None\t0",  true       },
        {"##0",                     kNumber,   1, "", "One\t1/Two\t2/Ten\t10/No\tnull!",  true,  true},
        {"#,##0.00",                kDecimal,  1, "", "Half\t0.50/One\t1.00/Few\t3.00", true       },
        {"MM/DD/YY",                kDate,     1, "", "Moon\t1969-07-20/Now\tnull!",    true       },
        {"HH:MM",                   kTime,     1, "", "Noon\t12:00/Tea\t16:30",         true,  true},
    };
    return rows;
}
// clang-format on

Scenario RandomScenario(const Setting& setting, const ControlRow& row, unsigned seed, int steps)
{
    Config config;
    config.mask = row.mask;
    config.type = row.type;
    config.increment = row.increment;
    config.range = row.range;
    if (row.codes != nullptr)
        config.codes = row.codes;
    config.codeDisplay = row.codeDisplay;
    config.codePick = row.codePick;
    Player player(setting, config, seed);
    Scenario scenario{&setting, player.Start(), {}};
    scenario.steps.reserve(static_cast<size_t>(steps));
    while (steps-- > 0)
        scenario.steps.push_back(player.Next());
    return scenario;
}

}  // namespace model
