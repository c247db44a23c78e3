// The table of known differences, and the signs that tell them.
// When one is mended its scenario differs no longer: its rows move to the scenarios that both play alike.
#include "known_differences.h"

#include <algorithm>

namespace model {
namespace {

const Step& Last(const Scenario& scenario, const Difference& difference)
{
    return scenario.steps[difference.step];
}

// The mask at the step behind which the two differ.
std::string MaskAt(const Scenario& scenario, const Difference& difference)
{
    std::string mask = scenario.config.mask;
    for (size_t i = 0; i < difference.step; ++i)
        if (scenario.steps[i].kind == StepKind::Mask)
            mask = scenario.steps[i].text;
    return mask;
}

bool IsNumber(const Scenario& scenario, const Difference& difference)
{
    Type type = scenario.config.type;
    for (size_t i = 0; i < difference.step; ++i)
        if (scenario.steps[i].kind == StepKind::Mask)
            type = static_cast<Type>(scenario.steps[i].a);
    return type == kNumber || type == kDecimal;
}

bool HasForcedDigitsOnly(const Scenario& scenario, const Difference& difference)
{
    const std::string mask = MaskAt(scenario, difference);
    return IsNumber(scenario, difference) && mask.find("0") != std::string::npos && mask[0] != '[' &&
           (mask.find('#') == std::string::npos || mask.compare(0, 2, "~#") == 0);
}

bool IsKey(const Step& step, int key)
{
    return step.kind == StepKind::Key && step.a == key;
}

bool IsChar(const Step& step, char c)
{
    return step.kind == StepKind::Char && step.a == static_cast<unsigned char>(c);
}

bool IsDeletion(const Step& step)
{
    return IsKey(step, kBackspace) || IsKey(step, kDelete);
}

bool MovesCaret(const Step& step)
{
    return IsKey(step, kLeft) || IsKey(step, kRight) || step.kind == StepKind::Click;
}

bool SameText(const Difference& difference)
{
    return difference.expected.text == difference.got.text;
}

bool OnlyCaretDiffers(const Difference& difference)
{
    State got = difference.got;
    got.start = difference.expected.start;
    got.end = difference.expected.end;
    return got == difference.expected;
}

bool ModeOfForcedDigits(const Scenario& scenario, const Difference& difference)
{
    return MovesCaret(Last(scenario, difference)) && SameText(difference) && HasForcedDigitsOnly(scenario, difference);
}

bool StopsBeforeLiterals(const Scenario& scenario, const Difference& difference)
{
    const std::string& text = difference.before.text;
    const bool symbol = text.compare(0, scenario.setting->regional.currency.size(), scenario.setting->regional.currency) == 0;
    const bool literal = symbol || (!text.empty() && (text[0] < '0' || text[0] > '9') && text[0] != '-');
    return literal && (IsKey(Last(scenario, difference), kLeft) || Last(scenario, difference).kind == StepKind::Click) &&
           IsNumber(scenario, difference) && OnlyCaretDiffers(difference);
}

bool ModeBehindPoint(const Scenario& scenario, const Difference& difference)
{
    const char point = scenario.setting->regional.Point();
    const auto end = scenario.steps.begin() + static_cast<std::ptrdiff_t>(difference.step);
    return MovesCaret(Last(scenario, difference)) && SameText(difference) && IsNumber(scenario, difference) &&
           std::any_of(scenario.steps.begin(), end, [&](const Step& step) { return IsChar(step, point); });
}

bool SelectionBeforeSign(const Scenario& scenario, const Difference& difference)
{
    const State& before = difference.before;
    const size_t sign = before.text.rfind('-');
    const Step& last = Last(scenario, difference);
    return IsNumber(scenario, difference) && sign != std::string::npos && before.start != before.end &&
           before.start < static_cast<int>(sign) && (last.kind == StepKind::Char || IsDeletion(last));
}

bool PlusBeforeLiterals(const Scenario& scenario, const Difference& difference)
{
    return IsChar(Last(scenario, difference), '+') && OnlyCaretDiffers(difference) &&
           difference.expected.start == difference.before.start && difference.before.text != difference.got.text;
}

bool MinusIntoEmptyText(const Scenario& scenario, const Difference& difference)
{
    return IsChar(Last(scenario, difference), '-') && OnlyCaretDiffers(difference) &&
           difference.before.text.find_first_of("0123456789") == std::string::npos;
}

bool SymbolAtTextStart(const Scenario& scenario, const Difference& difference)
{
    const std::string& symbol = scenario.setting->regional.currency;
    const Step& last = Last(scenario, difference);
    return last.kind == StepKind::Char && symbol.find(static_cast<char>(last.a)) != std::string::npos &&
           difference.before.start == 0 && difference.before.text == difference.got.text && SameText(difference) &&
           difference.before.text.size() > symbol.size() &&
           difference.before.text.compare(difference.before.text.size() - symbol.size(), symbol.size(), symbol) == 0;
}

bool DeletionInForeignText(const Scenario& scenario, const Difference& difference)
{
    const bool deletes = IsDeletion(Last(scenario, difference));
    const bool untouched = deletes && IsNumber(scenario, difference) && difference.before.text == difference.got.text;
    return scenario.config.codes.has_value() &&
           (untouched || (HasForcedDigitsOnly(scenario, difference) &&
                          (deletes || difference.before.start != difference.before.end)));
}

bool CaretBeforeSeparator(const Scenario& scenario, const Difference& difference)
{
    const auto at = static_cast<size_t>(difference.got.start);
    return HasForcedDigitsOnly(scenario, difference) && OnlyCaretDiffers(difference) &&
           difference.expected.start == difference.got.start + 1 && at < difference.got.text.size() &&
           difference.got.text[at] == scenario.setting->regional.thousand;
}

bool ControlCharIntoCodeTable(const Scenario& scenario, const Difference& difference)
{
    const Step& last = Last(scenario, difference);
    return scenario.config.codeDisplay && MaskAt(scenario, difference).empty() && last.kind == StepKind::Char &&
           last.a < ' ';
}

bool RefusedBehindNumber(const Scenario& scenario, const Difference& difference)
{
    const Step& last = Last(scenario, difference);
    return last.kind == StepKind::Char && last.a >= '0' && last.a <= '9' && OnlyCaretDiffers(difference) &&
           difference.expected.beeps > difference.before.beeps && difference.expected.start > difference.got.start &&
           difference.expected.start == difference.before.start;
}

bool DeletedToSignedZeros(const Scenario& scenario, const Difference& difference)
{
    return IsKey(Last(scenario, difference), kDelete) && OnlyCaretDiffers(difference) &&
           difference.got.text.find('-') != std::string::npos &&
           difference.got.text.find_first_of("123456789") == std::string::npos &&
           HasForcedDigitsOnly(scenario, difference);
}

bool CutOfNothing(const Scenario& scenario, const Difference& difference)
{
    return difference.step > 0 && IsChar(scenario.steps[difference.step - 1], 24) &&
           Last(scenario, difference).kind == StepKind::Char;
}

}  // namespace

// clang-format off
const std::vector<KnownDifference>& KnownDifferences()
{
    static const char* const colours = "Red\tR/Green\tG/Blue\tB/Grey\tX/None\tnull!";
    static const std::vector<KnownDifference> known = {
        {"a number of forced digits alone is typed into position by position", ModeOfForcedDigits, {
            {"us", "000.0%", kNumber, true, 0, "", nullptr, false, false, "{sel 2 2}{Back}5{Right}"},
            {"swiss", "000", kNumber, true, 0, "", nullptr, false, false, "{sel 0 255}{Left}{Del}5{Right}"},
        }},
        {"the caret does not stop before the literals in front of a number", StopsBeforeLiterals, {
            {"us", "$#,###", kNumber, true, 0, "", nullptr, false, false, "3910{sel 1 10}{Left}"},
            {"us", "US $#,##0.00", kNumber, true, 0, "", nullptr, false, false, "{data 466}{click 3}"},
            {"swiss", "[currency(2)]", kNumber, true, 0, "", nullptr, false, false, "{click 2}"},
        }},
        {"a point that drops digits leaves the number growing", ModeBehindPoint, {
            {"german", "#.0%", kNumber, false, 0, "", nullptr, false, false, "{data 899.6}4,{Left}"},
        }},
        {"literals before the sign that are typed over or deleted leave the caret before it", SelectionBeforeSign, {
            {"german", "$#,###", kNumber, true, 0, "", nullptr, false, false, "{data -28.845}{Shift+Home}5"},
            {"icelandic", "$###", kNumber, false, 0, "", nullptr, false, false, "{paste -28}{Shift+Home}{Del}"},
        }},
        {"a plus leaves the caret where it is", PlusBeforeLiterals, {
            {"danish", "(##0", kNumber, true, 0, "", nullptr, false, false, "{data -7,938}{Home}+"},
        }},
        {"the caret stands behind the minus just typed", MinusIntoEmptyText, {
            {"us", "##0", kNumber, true, 1, "", "One\t1/Two\t2/Ten\t10/None\t0", true, false, "-"},
        }},
        {"a symbol behind the number is spelled character by character, and not behind a 0", SymbolAtTextStart, {
            {"mexican", "[currency(2)]", kNumber, true, 0, "", nullptr, false, false, "MX"},
            {"german", "[currency(6)]", kDecimal, false, 0, "", nullptr, false, false, "0E"},
        }},
        {"a deletion in a text from outside deletes what is selected or stands there, and nothing else", DeletionInForeignText, {
            {"us", "(A)", kString, false, 1, "", colours, true, false, "{mask 1 AAA}8{sel 0 255}{mask 6 00.00}6"},
            {"alpine", "AAAA", kString, true, 1, "", colours, true, false, "{mask 2 0000}{Del}"},
            {"african", "##0", kNumber, false, 1, "", "One\t1/Two\t2/Ten\t10/None\t0", true, false, "9{mask 2 000}{Back}"},
        }},
        {"a deletion leaves the caret where the deleted digits stood", CaretBeforeSeparator, {
            {"us", "0,000.000", kNumber, false, 0, "", nullptr, false, false, "73{Back}"},
            {"us", "0,000.000", kNumber, false, 0, "", nullptr, false, false, "{sel 2 12}{Back}"},
        }},
        {"Ctrl+A selects all that a code table shows", ControlCharIntoCodeTable, {
            {"danish", "", kString, true, 1, "", colours, true, false, "9{char 1}"},
        }},
        {"a refused digit leaves the caret where it is", RefusedBehindNumber, {
            {"icelandic", "[currency(2)]", kNumber, true, 0, "", nullptr, false, false, "16k0"},
        }},
        {"a Delete that leaves nothing but zeros goes to the first of them", DeletedToSignedZeros, {
            {"hex", "000%", kNumber, false, 0, "", nullptr, false, false, "{data 6}-{Del}"},
        }},
        {"Ctrl+X without a selection does nothing", CutOfNothing, {
            {"alpine", "[time]", kTime, false, 0, "", nullptr, false, false, "5{char 24}:"},
            {"german", "#.0%", kNumber, false, 0, "", nullptr, false, false, "8{char 24},"},
        }},
    };
    return known;
}
// clang-format on

bool IsKnown(const Scenario& scenario, const Difference& difference)
{
    const std::vector<KnownDifference>& table = KnownDifferences();
    return std::any_of(table.begin(), table.end(),
                       [&](const KnownDifference& known) { return known.shows(scenario, difference); });
}

}  // namespace model
