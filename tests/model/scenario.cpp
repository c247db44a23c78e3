// Plays scenarios on a live control and on the model.
// A step that the model refuses to predict (a step of the spin that takes today's date) ends the scenario as equal.
#include "scenario.h"

#include "tests/support/clipboard.h"
#include "tests/support/typist.h"

#include <cctype>
#include <cstdlib>
#include <cstring>
#include <sstream>

namespace model {
namespace {

constexpr int kControlId = 7;

bool NeedsShift(char c)
{
    return (c >= 'A' && c <= 'Z') || (c != '\0' && std::strchr("_+?:\"!@#$%^&*()~|{}<>", c) != nullptr);
}

std::string Marked(const std::string& text, int start, int end)
{
    std::string shown = text;
    const auto clip = [&](int at) { return std::min(static_cast<size_t>(at), shown.size()); };
    if (start == end)
        return shown.insert(clip(start), "|");
    shown.insert(clip(end), "]");
    return shown.insert(clip(start), "[");
}

std::string KeyName(int key)
{
    switch (key) {
    case kBackspace: return "Backspace";
    case kEnd: return "End";
    case kHome: return "Home";
    case kLeft: return "Left";
    case kRight: return "Right";
    case kUp: return "Up";
    case kDown: return "Down";
    case kDelete: return "Delete";
    default: return "key " + std::to_string(key);
    }
}

std::string StepName(const Step& step)
{
    std::ostringstream out;
    switch (step.kind) {
    case StepKind::Char:
        if (step.a < ' ' || step.a == 127)
            out << "type control " << step.a;
        else
            out << "type '" << static_cast<char>(step.a) << "'";
        break;
    case StepKind::Key: out << (step.b != 0 ? "Shift+" : "") << KeyName(step.a); break;
    case StepKind::Select: out << "select " << step.a << ".." << step.b; break;
    case StepKind::Data: out << "set data \"" << step.text << "\""; break;
    case StepKind::Paste: out << "paste \"" << step.text << "\""; break;
    case StepKind::Click: out << "click " << step.a; break;
    case StepKind::Read: out << "read back"; break;
    case StepKind::Autoskip: out << "autoskip " << step.a; break;
    case StepKind::Mask: out << "set mask \"" << step.text << "\" type " << step.a; break;
    }
    return out.str();
}

void Press(zttest::Typist& typist, Control& model, int key, bool shift)
{
    typist.Press(key, shift ? zttest::kShift : zttest::kPlain);
    model.KeyDown(key, shift);
    if (key == kBackspace)
        model.Char('\b', shift);
    model.KeyUp();
}

}  // namespace

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
        Regional french = german;
        french.thousand = ' ';
        french.currency = "F";
        french.shortDate = "dd/MM/yyyy";
        Regional swiss = us;
        swiss.thousand = '\'';
        swiss.currency = "CHF";
        swiss.shortDate = "dd.MM.yyyy";
        return std::vector<Setting>{
            {"us",     us,     zttest::kUnitedStates},
            {"german", german, zttest::kGerman      },
            {"french", french, zttest::kFrench      },
            {"swiss",  swiss,  zttest::kSwiss       }
        };
    }();
    return settings;
}

std::string ShowValue(const Value& value, Type type)
{
    if (value.none)
        return "(null)";
    if (type == kString || type == kNumber || type == kDecimal)
        return "\"" + value.text + "\"";
    const Stamp& s = value.stamp;
    char text[128];
    std::snprintf(text, sizeof text, "year %d month %d day %d  %d:%d:%d:%d", s.year, s.month, type == kTime ? 0 : s.day,
                  s.hour, s.minute, s.second, s.microsecond);
    return text;
}

std::string ShowBlock(void* block, Type type)
{
    Value value;
    if (block != nullptr && (type == kString || type == kNumber || type == kDecimal))
        value = Value::OfText(static_cast<const char*>(block));
    else if (block != nullptr) {
        DateTimeValue raw;
        std::memcpy(&raw, block, sizeof raw);
        Stamp stamp;
        stamp.microsecond = static_cast<int>(raw.microsecond);
        stamp.year = raw.year;
        stamp.month = raw.month;
        stamp.day = raw.day;
        stamp.hour = raw.hour;
        stamp.minute = raw.minute;
        stamp.second = raw.second;
        value = Value::OfStamp(stamp);
    }
    return ShowValue(value, type);
}

Difference Play(const Scenario& scenario, zttest::Form& form, zttest::BeepCounter& beeps)
{
    zttest::Config config;
    config.mask = scenario.mask.c_str();
    config.type = scenario.type;
    config.options = scenario.autoskip ? ZTEO_AUTOSKIP : 0;
    config.width = 600;
    if (scenario.increment != 0) {
        config.options |= ZTEO_SPIN;
        config.increment = scenario.increment;
        config.range = scenario.range.empty() ? nullptr : scenario.range.c_str();
    }
    form.Forget();
    zttest::Control real(form.hwnd(), kControlId, config);
    Control model(scenario.setting->regional);
    Type type = scenario.type;
    model.SetAutoskip(scenario.autoskip);
    if (scenario.increment != 0)
        model.SetSpin(scenario.increment, config.range, nullptr, false, false, scenario.type);
    model.SetMask(scenario.mask.c_str(), scenario.type);
    zttest::Typist typist(real.hwnd());
    form.Forget();
    beeps.Forget();

    Difference difference;
    for (size_t i = 0; i < scenario.steps.size() && !difference.found; ++i) {
        const Step& step = scenario.steps[i];
        difference.step = i;
        difference.before = real.Shown();
        std::string expected;
        std::string got;
        switch (step.kind) {
        case StepKind::Char: {
            const char c = static_cast<char>(step.a);
            typist.Type(std::string(1, c));
            model.Char(c, NeedsShift(c));
            model.KeyUp();
            break;
        }
        case StepKind::Key: Press(typist, model, step.a, step.b != 0); break;
        case StepKind::Select:
            real.Select(step.a, step.b);
            model.SetSelection(step.a, step.b);
            break;
        case StepKind::Data:
            ZTE_FmtSetDataString(real.hwnd(), step.text.c_str());
            model.SetDataString(step.text);
            break;
        case StepKind::Paste:
            zttest::CopyToClipboard(step.text);
            SendMessageA(real.hwnd(), WM_PASTE, 0, 0);
            model.Paste(step.text);
            break;
        case StepKind::Click:
            if (step.a > static_cast<int>(real.Text().size()))
                continue;
            typist.Click(step.a);
            model.Click(step.a);
            break;
        case StepKind::Read: {
            void* block = ZTE_FmtGetData(real.hwnd());
            expected = "reads " + ShowValue(model.GetData(), type);
            got = "reads " + ShowBlock(block, type);
            SharedHeapFree(real.heap(), block);
            break;
        }
        case StepKind::Autoskip:
            ZTE_SetAutoskip(real.hwnd(), static_cast<uint32_t>(step.a));
            model.SetAutoskip(step.a != 0);
            break;
        case StepKind::Mask:
            type = static_cast<Type>(step.a);
            expected = "result " + std::to_string(model.SetMask(step.text.c_str(), type));
            got = "result " + std::to_string(ZTE_FmtSetMask(real.hwnd(), step.text.c_str(), step.a));
            break;
        }
        if (model.TookClock())
            break;
        const auto state = [](const std::string& marked, int skips, int beepCount, bool visible) {
            return marked + "  skips " + std::to_string(skips) + " beeps " + std::to_string(beepCount) +
                   (visible ? " " : " (not redrawn) ");
        };
        const bool visible = (GetWindowLongA(real.hwnd(), GWL_STYLE) & WS_VISIBLE) != 0;
        expected =
            state(Marked(model.Text(), model.Start(), model.End()), model.Autoskips(), model.Beeps(), true) + expected;
        got = state(real.Shown(), form.Count(ZTN_AUTOSKIP), beeps.Count(), visible) + got;
        // ZT_MODEL_LENIENT looks past carets in numbers, to find other differences behind them.
        const bool caretOnly = model.Text() == real.Text() && step.kind == StepKind::Char &&
                               (type == kNumber || type == kDecimal) && std::getenv("ZT_MODEL_LENIENT") != nullptr;
        // Behind or before a thousands character: the same place in a number that was laid out again.
        const int caret = std::max(model.Start(), real.CaretStart());
        const bool besideGroup =
            model.Text() == real.Text() && model.Start() == model.End() && real.CaretStart() == real.CaretEnd() &&
            std::abs(model.Start() - real.CaretStart()) == 1 && caret <= static_cast<int>(model.Text().size()) &&
            (type == kNumber || type == kDecimal) &&
            model.Text()[static_cast<size_t>(caret) - 1] == scenario.setting->regional.thousand &&
            step.kind == StepKind::Char && model.Beeps() == beeps.Count();
        if (expected != got && (caretOnly || besideGroup))
            real.Select(model.Start(), model.End());
        else if (expected != got) {
            difference.found = true;
            difference.expected = expected;
            difference.got = got;
        }
    }
    real.AcceptHeap();
    return difference;
}

Scenario Shortest(Scenario scenario, zttest::Form& form, zttest::BeepCounter& beeps)
{
    const Difference first = Play(scenario, form, beeps);
    scenario.steps.resize(first.step + 1);
    // Halves, quarters ... single steps are left out as long as the last step still differs.
    for (size_t width = scenario.steps.size() / 2 + 1; width > 0; width /= 2)
        for (size_t from = 0; from + 1 < scenario.steps.size();) {
            Scenario shorter = scenario;
            const size_t to = std::min(from + width, shorter.steps.size() - 1);
            const auto begin = shorter.steps.begin();
            shorter.steps.erase(begin + static_cast<std::ptrdiff_t>(from), begin + static_cast<std::ptrdiff_t>(to));
            const Difference difference = Play(shorter, form, beeps);
            if (difference.found) {
                shorter.steps.resize(difference.step + 1);
                scenario = shorter;
            } else
                from = to;
        }
    return scenario;
}

std::string Describe(const Scenario& scenario, const Difference& difference)
{
    std::ostringstream out;
    out << "mask \"" << scenario.mask << "\" type " << scenario.type << " setting " << scenario.setting->name
        << (scenario.autoskip ? " autoskip" : "");
    if (scenario.increment != 0)
        out << " increment " << scenario.increment << " range \"" << scenario.range << "\"";
    out << "\n  ";
    for (const Step& step : scenario.steps)
        out << StepName(step) << "; ";
    out << "\n  before    " << difference.before << "\n  expected  " << difference.expected << "\n  got       "
        << difference.got;
    return out.str();
}

}  // namespace model
