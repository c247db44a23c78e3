// The dice of modern editing, the play, and the acts as texts.
#include "modern_play.h"

#include "model_text.h"
#include "random_scenario.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <tuple>

namespace model::modern {
namespace {

constexpr const char* kModernColours = "Red\tR/Green\tG/Blue\tB/Grey\tX/None\tnull!";

std::string SomeNumber(Random& random, int below, int width)
{
    char text[32];
    std::snprintf(text, sizeof text, "%0*d", width, random.Below(below));
    return text;
}

std::string Day(Random& random)
{
    const int year = random.Chance(85) ? 1940 + random.Below(120) : random.Below(9999);
    char text[32];
    std::snprintf(text, sizeof text, "%04d-", year);
    return text + SomeNumber(random, random.Chance(80) ? 12 : 14, 2) + "-" + SomeNumber(random, 32, 2);
}

std::string Moment(Random& random)
{
    std::string text = SomeNumber(random, 25, 2) + ":" + SomeNumber(random, 61, 2);
    if (random.Chance(60))
        text += ":" + SomeNumber(random, 60, 2);
    if (text.size() > 5 && random.Chance(30))
        text += ":" + SomeNumber(random, 1000000, 6);
    return text;
}

// As people write them.
std::string WrittenDay(Random& random)
{
    constexpr const char* signs[] = {"/", "-", ".", " ", ""};
    const std::string sign = signs[random.Below(5)];
    const int width = random.Below(3) == 0 ? 1 : 2;
    const std::string month = random.Chance(15) ? kMonths[random.Below(12)] : SomeNumber(random, 14, width);
    const std::string day = SomeNumber(random, 32, width);
    const std::string year = random.Chance(50) ? SomeNumber(random, 100, 2) : std::to_string(1900 + random.Below(150));
    switch (random.Below(4)) {
    case 0: return year + sign + month + sign + day;
    case 1: return day + sign + month + sign + year;
    default: return month + sign + day + sign + year;
    }
}

std::string WrittenMoment(Random& random)
{
    std::string text = SomeNumber(random, 25, 1 + random.Below(2));
    constexpr const char* signs[] = {":", ".", " ", ""};
    const std::string sign = signs[random.Chance(60) ? 0 : random.Below(4)];
    if (random.Chance(85))
        text += sign + SomeNumber(random, 61, 2);
    if (random.Chance(40))
        text += sign + SomeNumber(random, 61, 2);
    constexpr const char* halves[] = {" PM", " am", "p", "AM", " p", ""};
    return text + halves[random.Chance(50) ? 5 : random.Below(5)];
}

// Digits for the most part, with the signs of the masks.
std::string SomeString(Random& random)
{
    std::string text;
    for (int n = 1 + random.Below(12); n > 0; --n)
        text += random.Chance(70) ? random.Of("0123456789") : random.Of("abcXYZ -/()., 012");
    return text;
}

std::string SomeAmount(Random& random)
{
    std::string text = random.Chance(25) ? "-" : "";
    text += std::to_string(random.Below(random.Chance(70) ? 1000 : 1000000));
    return random.Chance(60) ? text + "." + SomeNumber(random, 100, 2) : text;
}

class ModernPlayer {
public:
    ModernPlayer(const Setting& setting, const Config& config, unsigned seed)
        : random_(seed), regional_(setting.regional), config_(config)
    {
    }

    std::string Next()
    {
        if (!queue_.empty()) {
            const std::string act = queue_.front();
            queue_.erase(queue_.begin());
            return act;
        }
        const int dice = random_.Below(1000);
        if (dice < 520)
            return Letter();
        if (dice < 640)
            return random_.Chance(12) ? Pick({"{Ctrl+Back}", "{Ctrl+Del}"}) : Pick({"{Back}", "{Back}", "{Del}"});
        if (dice < 740)
            return Pick({"{Left}", "{Right}", "{Left}", "{Right}", "{Home}", "{End}", "{Shift+Left}", "{Shift+Right}",
                         "{Shift+Home}", "{Shift+End}", "{Ctrl+Left}", "{Ctrl+Right}", "{Ctrl+A}"});
        if (dice < 800)
            return Selection();
        if (dice < 850 && IsNumber())
            return Pick({"{Ctrl+Z}", "{Ctrl+Z}", "{Ctrl+Shift+Z}", "{undo}", "{redo}"});
        if (dice < 870 && !IsNumber())
            return random_.Chance(70) ? Pick({"{Ctrl+Z}", "{Ctrl+Z}", "{Ctrl+Shift+Z}", "{undo}", "{redo}"})
                                      : Pick({"{Ctrl+X}", "{Ctrl+C}", "{Ctrl+V}", "{cut}", "{clear}", "{Shift+Del}"});
        if (dice < 870 && IsNumber())
            return Pick({"{Ctrl+X}", "{Ctrl+C}", "{cut}", "{clear}",
                         "{Shift+Del}"});  // a part of a number may mean another one
        if (dice < 900 && config_.increment != 0)
            return Pick({"{Up}", "{Down}", "{Up}", "{Down}", "{PgUp}", "{PgDn}", "{step up}", "{step down}"});
        if (dice < 970)
            return Value();
        return Rare();
    }

private:
    std::string Pick(std::initializer_list<const char*> of)
    {
        return of.begin()[random_.Below(static_cast<int>(of.size()))];
    }

    bool IsNumber() const { return config_.type == kNumber || config_.type == kDecimal; }
    bool IsDate() const { return config_.type == kDate || config_.type == kTime || config_.type == kDateTime; }

    std::string Letter()
    {
        if (random_.Chance(8))
            Spell();
        return std::string(1, random_.Of(Letters()));
    }

    // A value typed key by key, from the start or over all.
    void Spell()
    {
        const std::string text = Written();
        queue_.push_back(Pick({"{Home}", "{Ctrl+A}"}));
        for (const char c : text)
            queue_.push_back(std::string(1, c));
    }

    std::string Letters() const
    {
        switch (config_.type) {
        case kDate: return "00011122233345678901234567890/.-/-JFMASONDjanuneepctx ";
        case kTime: return "00011223345678901234567890:.:: AMPMapvNDx";
        case kDateTime: return "00011122233345678901234567890/:.- AMPMJFSONDaneuvpx";
        case kString: return "0123456789012345678901234567890abcxyzABCXYZ()-/, .+";
        default: return "012345678901234567890123456789012345678901234567890123456789---.,.,+x ";
        }
    }

    std::string Written()
    {
        if (config_.type == kDate)
            return WrittenDay(random_);
        if (config_.type == kTime)
            return WrittenMoment(random_);
        if (config_.type == kDateTime)
            return WrittenDay(random_) + (random_.Chance(20) ? "" : " " + WrittenMoment(random_));
        return IsNumber() ? SomeAmount(random_) : SomeString(random_);
    }

    std::string Canonical()
    {
        if (config_.type == kDate)
            return Day(random_);
        if (config_.type == kTime)
            return Moment(random_);
        if (config_.type == kDateTime)
            return Day(random_) + (random_.Chance(20) ? "" : " " + Moment(random_));
        return IsNumber() ? SomeAmount(random_) : SomeString(random_);
    }

    std::string Value()
    {
        if (random_.Chance(8))
            return "{nodata}";
        const int dice = random_.Below(100);
        if (dice < 45)
            return "{data " + Canonical() + "}";
        const std::string word = random_.Chance(70) ? "{paste " : "{try ";
        return word + (random_.Chance(35) ? Canonical() : Written()) + "}";
    }

    std::string Selection()
    {
        if (random_.Chance(20))
            return "{sel 0 255}";
        const int from = random_.Below(16);
        if (random_.Chance(30))
            return (random_.Chance(70) ? "{click " : "{double ") + std::to_string(from) + "}";
        return "{sel " + std::to_string(from) + " " + std::to_string(random_.Chance(50) ? from : random_.Below(18)) +
               "}";
    }

    std::string Rare()
    {
        switch (random_.Below(6)) {
        case 0: return "{wait 1500}";
        case 1: return "{wait 400}";
        case 2:
        case 3: return "{leave}";
        case 4: queue_ = {Letter(), Pick({"{Back}", "{Ctrl+Z}", "{Del}"}), "{readonly 0}"}; return "{readonly 1}";
        default: return "{leave}";
        }
    }

    Random random_;
    const Regional& regional_;
    Config config_;
    std::vector<std::string> queue_;
};

std::string MarkedLook(const ModernLook& look)
{
    std::string text = look.text;
    const auto clip = [&](int at) { return std::min(static_cast<size_t>(at), text.size()); };
    if (look.start == look.end)
        return text.insert(clip(look.start), "|");
    text.insert(clip(look.end), "]");
    return text.insert(clip(look.start), "[");
}

std::string ShowLook(const ModernLook& look, int answer)
{
    constexpr const char* states[] = {"empty", "incomplete", "invalid", "out of range", "complete"};
    std::string text = "'" + MarkedLook(look) + "' " + (look.state >= 0 && look.state <= 4 ? states[look.state] : "?");
    text += look.canonical ? " '" + *look.canonical + "'" : " none";
    text += "  changes " + std::to_string(look.changes) + "  refused " + std::to_string(look.rejections) + " (" +
            std::to_string(look.reason) + " at " + std::to_string(look.position) + " char " +
            std::to_string(look.character) + ")  beeps " + std::to_string(look.beeps) + "  skips " +
            std::to_string(look.autoskips);
    return text + (look.modified ? "  modified" : "") + "  answer " + std::to_string(answer);
}

}  // namespace

bool ModernLook::operator==(const ModernLook& o) const
{
    const auto all = [](const ModernLook& l) {
        return std::tie(l.text, l.start, l.end, l.state, l.canonical, l.changes, l.rejections, l.reason, l.position,
                        l.character, l.beeps, l.autoskips, l.modified);
    };
    return all(*this) == all(o);
}

std::optional<Word> WordOf(const std::string& act)
{
    if (act.size() < 3 || act[0] != '{' || act[1] < 'a' || act[1] > 'z')
        return {};
    const std::string inside = act.substr(1, act.size() - 2);
    const size_t blank = inside.find(' ');
    return Word{inside.substr(0, blank), blank == std::string::npos ? "" : inside.substr(blank + 1)};
}

std::vector<std::string> ActsOf(const std::string& script)
{
    std::vector<std::string> acts;
    for (size_t i = 0; i < script.size();) {
        const size_t end = script[i] == '{' ? script.find('}', i) : i;
        acts.push_back(script.substr(i, end + 1 - i));
        i = end + 1;
    }
    return acts;
}

ModernDifference ModernPair::Play(const ModernScenario& scenario)
{
    library_->Make(scenario.setting->regional, scenario.config);
    model_->Make(scenario.setting->regional, scenario.config);
    std::string before = "(just made)";
    bool pasted = false;  // the last refusal was of a paste
    int refused = 0;
    for (size_t i = 0; i <= scenario.acts.size(); ++i) {
        const std::string act = i == 0 ? "" : scenario.acts[i - 1];
        const int expectedAnswer = i == 0 ? 0 : model_->Do(act);
        const int gotAnswer = i == 0 ? 0 : library_->Do(act);
        ModernLook expected = model_->Look();
        const ModernLook got = library_->Look();
        // At which of its characters a pasted text stops to be one is not laid down.
        if (act.compare(0, 6, "{paste") == 0 || act == "{Ctrl+V}")
            pasted = true;
        else if (expected.rejections != refused)
            pasted = false;
        refused = expected.rejections;
        if (pasted)
            expected.position = got.position;
        ++compared_;
        if (!(expected == got) || expectedAnswer != gotAnswer)
            return {true, i,
                    "\n  before    " + before + "\n  act       " + act + "\n  expected  " +
                        ShowLook(expected, expectedAnswer) + "\n  got       " + ShowLook(got, gotAnswer)};
        before = ShowLook(got, gotAnswer);
    }
    return {};
}

ModernScenario ModernPair::Shortest(ModernScenario scenario)
{
    const auto found = Play(scenario);
    scenario.acts.resize(found.act);
    for (size_t width = scenario.acts.size() / 2 + 1; width > 0 && !scenario.acts.empty(); width /= 2)
        for (size_t from = 0; from + 1 < scenario.acts.size();) {
            ModernScenario shorter = scenario;
            const size_t to = std::min(from + width, shorter.acts.size() - 1);
            const auto begin = shorter.acts.begin();
            shorter.acts.erase(begin + static_cast<std::ptrdiff_t>(from), begin + static_cast<std::ptrdiff_t>(to));
            const ModernDifference difference = Play(shorter);
            if (difference.found) {
                shorter.acts.resize(difference.act);
                scenario = shorter;
            } else
                from = to;
        }
    return scenario;
}

std::string Row(const ModernScenario& scenario)
{
    const Config& config = scenario.config;
    std::string script;
    for (const std::string& act : scenario.acts)
        script += act;
    std::string row = std::string("{\"") + scenario.setting->name + "\", " + Quoted(config.mask) + ", Type(" +
                      std::to_string(config.type) + "), " + (config.autoskip ? "true" : "false") + ", " +
                      std::to_string(config.increment) + ", " + Quoted(config.range) + ", ";
    row += config.codes ? Quoted(*config.codes) : std::string("nullptr");
    row += std::string(", ") + (config.codeDisplay ? "true" : "false") + ", " + (config.codePick ? "true" : "false");
    return row + ", " + Quoted(script) + "},";
}

// clang-format off
const std::vector<ModernRow>& ModernRows()
{
    static const std::vector<ModernRow> rows = {
        {"AAAA",                    kString  },
        {"####",                    kString  },
        {"XXX",                     kString  },
        {"(###) ###-####",          kString  },
        {"##-##",                   kString  },
        {"AA/##/XX",                kString  },
        {"!!!-^^^",                 kString  },
        {"~A##~-##",                kString  },
        {">>AA",                    kString  },
        {"A-A, A",                  kString  },
        {"##+XX",                   kString  },
        {"[AA##]",                  kString  },
        {"MM/DD/YY",                kDate    },
        {"MM/DD/YYYY",              kDate    },
        {"DD.MM.YYYY",              kDate    },
        {"YYYY-MM-DD",              kDate    },
        {"DD-MMM-YY",               kDate    },
        {"MMM/DD/YYYY",             kDate    },
        {"JJJ/YY",                  kDate    },
        {"YYYY.JJJ",                kDate    },
        {"MM/YYYY",                 kDate    },
        {"(DD/MM/YY)",              kDate    },
        {"[date]",                  kDate    },
        {"DDMMYY",                  kDate    },
        {"HH:MM:SS:FFF",            kTime    },
        {"HH:MM",                   kTime    },
        {"HH:MM AM/PM",             kTime    },
        {"HH.MM.SS am/pm",          kTime    },
        {"AM/PM HH:MM",             kTime    },
        {"HH:MM:SS.FF",             kTime    },
        {"[time]",                  kTime    },
        {"MM/DD/YY HH:MM:SS:FFF",   kDateTime},
        {"DD-MMM-YYYY HH:MM",       kDateTime},
        {"MM/DD/YYYY HH:MM AM/PM",  kDateTime},
        {"[date] [time]",           kDateTime},
        {"#,##0.00",                kNumber  },
        {"##0.00",                  kNumber  },
        {"##0",                     kNumber  },
        {"000",                     kNumber  },
        {"0.00",                    kNumber  },
        {"#,##0.00",                kDecimal },
    };
    return rows;
}
// clang-format on

ModernScenario RandomModern(const Setting& setting, const ModernRow& row, unsigned seed, int acts)
{
    Config config;
    config.mask = row.mask;
    config.type = row.type;
    config.autoskip = seed % 2 == 0;
    config.increment = row.increment;
    config.range = row.range;
    if (row.codes != nullptr)
        config.codes = row.codes;
    config.codeDisplay = row.codeDisplay;
    config.codePick = row.codePick;
    ModernPlayer player(setting, config, seed);
    ModernScenario scenario{&setting, config, {}};
    for (; acts > 0; --acts)
        scenario.acts.push_back(player.Next());
    return scenario;
}

}  // namespace model::modern
