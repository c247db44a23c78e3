// Plays scenarios on the library and on the model.
#include "scenario.h"

#include "known_differences.h"

#include <algorithm>
#include <cstdio>

namespace model {
namespace {

// What a step hands back, empty for most.
struct Answer {
    bool given = false;
    int number = 0;
    Value value;
};

bool Same(const Value& a, const Value& b)
{
    return a.none == b.none && a.text == b.text && a.stamp == b.stamp;
}

bool Same(const Answer& a, const Answer& b)
{
    return !a.given || (a.number == b.number && Same(a.value, b.value));
}

Answer Do(const Step& step, Subject& subject)
{
    switch (step.kind) {
    case StepKind::Char: subject.Enter(static_cast<char>(step.a)); break;
    case StepKind::Key: subject.Press(step.a, step.b != 0); break;
    case StepKind::Select: subject.Select(step.a, step.b); break;
    case StepKind::Data: subject.SetData(step.text.c_str()); break;
    case StepKind::NoData: subject.SetData(nullptr); break;
    case StepKind::Paste: subject.Paste(step.text); break;
    case StepKind::Click: subject.Click(step.a); break;
    case StepKind::Autoskip: subject.SetAutoskip(step.a != 0); break;
    case StepKind::ReadOnly: subject.SetReadOnly(step.a != 0); break;
    case StepKind::Enable: subject.Enable(step.a != 0); break;
    case StepKind::Mask: return {true, subject.SetMask(step.text.c_str(), static_cast<Type>(step.a)), {}};
    case StepKind::Read: return {true, 0, subject.Read()};
    }
    return {};
}

std::string Marked(const State& state)
{
    std::string text = state.text;
    const auto clip = [&](int at) { return std::min(static_cast<size_t>(at), text.size()); };
    if (state.start == state.end)
        return text.insert(clip(state.start), "|");
    text.insert(clip(state.end), "]");
    return text.insert(clip(state.start), "[");
}

std::string Show(const State& state, const Answer& answer, const Step& step, Type type)
{
    std::string text = Marked(state) + "  beeps " + std::to_string(state.beeps) + " skips " +
                       std::to_string(state.autoskips) + " steps " + std::to_string(state.steps) +
                       (state.modified ? " modified" : "") + (state.drawn ? "" : " not redrawn");
    if (step.kind == StepKind::Read)
        text += " reads " + ShowValue(answer.value, type);
    else if (answer.given)
        text += " result " + std::to_string(answer.number);
    return text;
}

std::string Compared(const State& before, const std::string& expected, const std::string& got)
{
    return "\n  before    " + Marked(before) + "\n  expected  " + expected + "\n  got       " + got;
}

}  // namespace

Stamp Today()
{
    Stamp today;
    today.year = 124;
    today.month = 1;
    today.day = 29;
    today.hour = 13;
    today.minute = 45;
    today.second = 56;
    today.microsecond = 123456;
    return today;
}

const std::vector<Setting>& Settings()
{
    static const std::vector<Setting> settings = [] {
        Regional us;
        us.shortDate = "M/d/yyyy";
        Regional german;
        german.decimal = ',';
        german.thousand = '.';
        german.currency = "EUR";
        german.currencyPosition = 1;
        german.shortDate = "dd.MM.yyyy";
        german.am = "vorm";
        german.pm = "nach";
        Regional french = german;
        french.thousand = ' ';
        french.currency = "F";
        french.shortDate = "d 'de' MMMM \"de\" yyyy";
        french.am = "de.";
        french.pm = "du.";
        french.timeSeparator = "h";
        Regional swiss = us;
        swiss.thousand = '\'';
        swiss.currency = "CHF";
        swiss.shortDate = "dd.MM.yyyy";
        swiss.am = "a.m.";
        swiss.pm = "p.m.";
        const auto money = [](Regional regional, const char* symbol, int position, int digits) {
            regional.currency = symbol;
            regional.currencyPosition = position;
            regional.currencyDigits = digits;
            return regional;
        };
        // clang-format off
        return std::vector<Setting>{
            {"us",        us                         },
            {"german",    german                     },
            {"french",    french                     },
            {"swiss",     swiss                      },
            {"danish",    money(german, "kr.", 2, 2) },
            {"icelandic", money(german, "kr.", 1, 0) },
            {"alpine",    money(swiss, "Fr.", 0, 2)  },
            {"mexican",   money(us, "MXN", 1, 2)     },
            {"african",   money(french, "XAF", 0, 0) },
            {"hex",       money(us, "0x", 0, 2)      },
        };
        // clang-format on
    }();
    return settings;
}

void Pair::Use(const Setting& setting)
{
    if (setting_ == &setting)
        return;
    setting_ = &setting;
    library_->UseSettings(setting.regional);
    model_->UseSettings(setting.regional);
}

std::string ShowValue(const Value& value, Type type)
{
    if (value.none)
        return "(null)";
    if (type == kString || type == kNumber || type == kDecimal)
        return Quoted(value.text);
    const Stamp& s = value.stamp;
    char text[128];
    std::snprintf(text, sizeof text, "year %d month %d day %d  %d:%d:%d:%d", s.year, s.month, type == kTime ? 0 : s.day,
                  s.hour, s.minute, s.second, s.microsecond);
    return text;
}

Scenario ScenarioOf(const ScenarioRow& row)
{
    Scenario scenario;
    for (const Setting& setting : Settings())
        if (std::string(setting.name) == row.setting)
            scenario.setting = &setting;
    scenario.config = {row.mask, row.type, row.autoskip, row.increment, row.range, {}, row.codeDisplay, row.codePick};
    if (row.codes != nullptr)
        scenario.config.codes = row.codes;
    scenario.steps = StepsOf(row.script);
    return scenario;
}

Difference Play(const Scenario& scenario, Pair& pair)
{
    pair.Use(*scenario.setting);
    Subject& library = pair.Library();
    Subject& model = pair.Model();
    Type type = scenario.config.type;
    library.Make(scenario.config);
    model.Make(scenario.config);
    State before = library.Look();
    if (const State expected = model.Look(); !(expected == before))
        return {true, 0, before, expected, before, Compared(before, Show(expected, {}, {}, type), "(just made)")};
    for (size_t i = 0; i < scenario.steps.size(); ++i) {
        const Step& step = scenario.steps[i];
        const Answer expectedAnswer = Do(step, model);
        const Answer gotAnswer = Do(step, library);
        if (step.kind == StepKind::Mask)
            type = static_cast<Type>(step.a);
        State expected = model.Look();
        const State got = library.Look();
        // What a key leaves of the mark when it changes nothing is not laid down.
        if (expected.text == before.text)
            expected.modified = got.modified;
        if (!(expected == got) || !Same(expectedAnswer, gotAnswer))
            return {
                true,   i,
                before, expected,
                got,    Compared(before, Show(expected, expectedAnswer, step, type), Show(got, gotAnswer, step, type))};
        before = got;
    }
    return {};
}

Scenario Shortest(Scenario scenario, Pair& pair)
{
    scenario.steps.resize(Play(scenario, pair).step + 1);
    // Halves, quarters ... single steps are left out as long as some step still differs.
    for (size_t width = scenario.steps.size() / 2 + 1; width > 0; width /= 2)
        for (size_t from = 0; from + 1 < scenario.steps.size();) {
            Scenario shorter = scenario;
            const size_t to = std::min(from + width, shorter.steps.size() - 1);
            const auto begin = shorter.steps.begin();
            shorter.steps.erase(begin + static_cast<std::ptrdiff_t>(from), begin + static_cast<std::ptrdiff_t>(to));
            const Difference difference = Play(shorter, pair);
            if (difference.found && !IsKnown(shorter, difference)) {
                shorter.steps.resize(difference.step + 1);
                scenario = shorter;
            } else
                from = to;
        }
    return scenario;
}

std::string Row(const Scenario& scenario)
{
    const Config& config = scenario.config;
    std::string row = std::string("{\"") + scenario.setting->name + "\", " + Quoted(config.mask) + ", Type(" +
                      std::to_string(config.type) + "), " + (config.autoskip ? "true" : "false") + ", " +
                      std::to_string(config.increment) + ", " + Quoted(config.range) + ", ";
    row += config.codes ? Quoted(*config.codes) : std::string("nullptr");
    row += std::string(", ") + (config.codeDisplay ? "true" : "false") + ", " + (config.codePick ? "true" : "false");
    return row + ",\n   " + Quoted(ScriptOf(scenario.steps)) + "},";
}

std::string Describe(const Scenario& scenario, const Difference& difference)
{
    return Row(scenario) + difference.description;
}

}  // namespace model
