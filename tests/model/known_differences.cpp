// The table of known differences, and the signs that tell them.
// When one is mended its scenario differs no longer: its rows move to the scenarios that both play alike.
#include "known_differences.h"

#include "model_text.h"

#include <algorithm>

namespace model {
namespace {

bool IsCharStep(const Scenario& scenario, const Difference& difference)
{
    return scenario.steps[difference.step].kind == StepKind::Char;
}

char Typed(const Scenario& scenario, const Difference& difference)
{
    return static_cast<char>(scenario.steps[difference.step].a);
}

int PointOf(const Scenario& scenario, const std::string& text)
{
    const size_t point = text.find(scenario.setting->regional.Point());
    return static_cast<int>(point != std::string::npos ? point : text.find_last_of("0123456789") + 1);
}

int IntegerDigits(const Scenario& scenario, const std::string& text)
{
    return static_cast<int>(std::count_if(text.begin(), text.begin() + PointOf(scenario, text), IsDigit));
}

// A digit after which both show the same text, and differ in the caret and the notifications at most.
bool DiffersInCaretOnly(const Scenario& scenario, const Difference& difference)
{
    State expected = difference.expected;
    expected.start = difference.got.start;
    expected.end = difference.got.end;
    expected.autoskips = difference.got.autoskips;
    return IsCharStep(scenario, difference) && IsDigit(Typed(scenario, difference)) && expected == difference.got;
}

// The number as it was typed, before it was laid out anew.
struct Entered {
    std::string text;
    bool inFraction;
};

Entered EnteredBy(const Scenario& scenario, const Difference& difference)
{
    const State& before = difference.before;
    const std::string number = std::string("0123456789+-") + scenario.setting->regional.Point();
    std::string text = before.text;
    text.erase(static_cast<size_t>(before.start), static_cast<size_t>(before.end - before.start));
    const size_t first = difference.got.text.find_first_of(number);
    const size_t at = std::min(std::max(static_cast<size_t>(before.start), first), text.size());
    const bool inFraction = static_cast<int>(at) > PointOf(scenario, text);
    const bool overwrites = inFraction && before.start == before.end && at < text.size();
    text.replace(at, overwrites ? 1 : 0, 1, Typed(scenario, difference));
    return {text, inFraction};
}

bool LosesLeadingZero(const Scenario& scenario, const Difference& difference)
{
    if (!DiffersInCaretOnly(scenario, difference))
        return false;
    const Entered entered = EnteredBy(scenario, difference);
    const std::string& text = difference.got.text;
    return CharOf(entered.text, static_cast<int>(entered.text.find_first_of("0123456789"))) == '0' &&
           IntegerDigits(scenario, text) < IntegerDigits(scenario, entered.text) &&
           (entered.inFraction || text.size() > entered.text.size());
}

bool PutsZeroForSign(const Scenario& scenario, const Difference& difference)
{
    const State& got = difference.got;
    return DiffersInCaretOnly(scenario, difference) && Typed(scenario, difference) == '0' &&
           CharOf(difference.before.text, difference.before.start) == '-' && CharOf(got.text, got.start) == '0' &&
           difference.expected.start == got.start + 1 && difference.expected.autoskips == got.autoskips;
}

// The caret is the same, but it was held for the end of the fraction, or not, by where it stood before the text moved.
bool TellsEndByOldPlace(const Scenario& scenario, const Difference& difference)
{
    const State& got = difference.got;
    if (!DiffersInCaretOnly(scenario, difference) || difference.expected.start != got.start)
        return false;
    const Entered entered = EnteredBy(scenario, difference);
    const bool early = got.autoskips > difference.expected.autoskips && got.text.size() < entered.text.size();
    const bool missed = got.autoskips < difference.expected.autoskips && got.text.size() > entered.text.size();
    return entered.inFraction && (early || missed);
}

bool BeginsBehindPoint(const Scenario& scenario, const Difference& difference)
{
    return StartsBehindPoint(difference.expected, difference.got, scenario.setting->regional.Point());
}

}  // namespace

bool StartsBehindPoint(const State& expected, const State& got, char point)
{
    return expected.text == got.text && got.text.find_first_of("0123456789") == std::string::npos &&
           CharOf(got.text, expected.start) == point && got.start == expected.start + 1;
}

// clang-format off
const std::vector<KnownDifference>& KnownDifferences()
{
    static const std::vector<KnownDifference> table = {
        {"a digit typed while a leading 0 is dropped: the caret belongs behind that digit, or before the point when it "
         "is the 0 itself, and only the last fraction digit lets the focus move on", LosesLeadingZero, {
            {"swiss", "#,#.00", kDecimal, false, 0, "", nullptr, false, false, "{data 747.410}0{sel 4 9}4"},
            {"french", "#,#.00", kNumber, true, 0, "", nullptr, false, false, "{data 589.6}0555{Shift+Left}2"},
            {"german", "#.##", kNumber, true, 0, "", nullptr, false, false, "45{click 0}0{Shift+End}3"},
            {"swiss", "[currency(8)]", kNumber, true, 0, "", nullptr, false, false, "10{sel 3 0}{Back}3{sel 5 0}1"},
            {"german", "[currency(6)]", kDecimal, false, 0, "", nullptr, false, false, "3{sel 5 11}1{Home}0"},
            {"us", "DM #,##0.0", kNumber, false, 0, "", nullptr, false, false, "{Shift+Home}0{Left}{Shift+Home}4"},
        }},
        {"a 0 typed on the sign takes the place of the 0 that the mask forces: the caret belongs behind it",
         PutsZeroForSign, {
            {"us", "$#,##0.00", kNumber, false, 0, "", nullptr, false, false, "{data -0.1708}0"},
        }},
        {"only the last fraction digit lets the focus move on, and it always does, whatever moved before it",
         TellsEndByOldPlace, {
            {"us", "0.0%", kNumber, true, 0, "", nullptr, false, false, "-6{Back}4"},
            {"german", "##0.00%", kNumber, true, 0, "", nullptr, false, false, "-{sel 3 3}0"},
            {"us", "#.##", kNumber, true, 0, "", nullptr, false, false, "3{Home}+9{sel 2 7}9"},
        }},
        {"a number of which literals and the point show, but no digit, is entered on its point", BeginsBehindPoint, {
            {"us", "~x.##", kNumber, false, 0, "", nullptr, false, false, "{data 0}"},
        }},
    };
    return table;
}
// clang-format on

bool IsKnown(const Scenario& scenario, const Difference& difference)
{
    const std::vector<KnownDifference>& table = KnownDifferences();
    return std::any_of(table.begin(), table.end(),
                       [&](const KnownDifference& known) { return known.shows(scenario, difference); });
}

}  // namespace model
