// The rows of modern editing through a keyboard and a mouse: in memory, and by real messages on live windows.
#include "tests/support/modern_rows.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <optional>

#include "tests/support/engine_test.h"
#include "tests/support/modern_number_rows.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

using typing::TypingRow;

// What is done to the control by no key.
struct ActRow {
    const char* name;
    void (*act)(MaskedEdit&);
};

constexpr ActRow kActs[] = {
    {"Paste",    [](MaskedEdit& control) { control.Paste(); }      },
    {"Undo",     [](MaskedEdit& control) { control.Undo(); }       },
    {"Blur",     [](MaskedEdit& control) { control.LoseFocus(); }  },
    {"ReadOnly", [](MaskedEdit& control) { control.SetReadOnly(); }},
};

const ActRow* ActNamed(const std::string& name)
{
    const auto* const found =
        std::find_if(std::begin(kActs), std::end(kActs), [&](const ActRow& row) { return name == row.name; });
    return found == std::end(kActs) ? nullptr : found;
}

// The position of "Click10"; none for other acts.
std::optional<int> ClickedAt(const std::string& name)
{
    const std::string click = "Click";
    if (name.compare(0, click.size(), click) != 0)
        return std::nullopt;
    return std::atoi(name.c_str() + click.size());
}

// Characters, and acts named in braces; handed on one by one.
template <typename Type, typename Act>
void Walk(const std::string& keys, Type type, Act act)
{
    for (size_t i = 0; i < keys.size(); ++i) {
        if (keys[i] != '{') {
            type(keys[i]);
            continue;
        }
        const size_t end = keys.find('}', i);
        act(keys.substr(i + 1, end - i - 1));
        i = end;
    }
}

// Played in memory alone: rows of clocks, wheels, double clicks and other designators than those of the settings in force.
bool CanBePlayed(const TypingRow& row)
{
    bool all = std::strcmp(row.setup.am, "AM") == 0;
    const bool fromToday = (row.setup.options & ZTEO_SPIN) != 0 && !row.before;
    Walk(
        row.keys, [](char) {}, [&](const std::string& name) { all = all && (typing::KeyOf(name) || ActNamed(name) || ClickedAt(name)); });
    return all && !fromToday;
}

std::vector<TypingRow> Playable(const std::vector<TypingRow>& rows)
{
    std::vector<TypingRow> playable;
    for (const TypingRow& row : rows)
        if (CanBePlayed(row))
            playable.push_back(row);
    return playable;
}

class ModernRows : public EditTest, public OfRow<TypingRow> {
protected:
    void MakeIt()
    {
        const typing::TypingSetup& setup = GetParam().setup;
        Config config;
        config.mask = setup.mask;
        config.type = setup.type;
        config.options = ZTEO_MODERN | setup.options | (setup.codes ? ZTEO_SPIN | ZTEO_CODE_DISPLAY : 0u);
        config.codes = setup.codes;
        config.range = setup.range;
        config.increment = 1;
        Make(config);
        if (GetParam().before)
            Show(GetParam().before);
        control_->Forget();
    }

    void Do(const std::string& name)
    {
        if (const char* key = typing::KeyOf(name))
            Play(key);
        else if (const std::optional<int> position = ClickedAt(name))
            control_->Click(*position);
        else
            ActNamed(name)->act(*control_);
    }
};

int CountReasons(const std::string& reasons)
{
    return reasons.empty() ? 0 : 1 + static_cast<int>(std::count(reasons.begin(), reasons.end(), ','));
}

ROW_TEST(ModernRows, AreWhatIsShown)
{
    const Regional regional(kUnitedStates);
    MakeIt();
    Walk(
        GetParam().keys, [&](char typed) { Type(std::string(1, typed)); }, [&](const std::string& name) { Do(name); });
    EXPECT_EQ(Shown(), GetParam().after);
    EXPECT_EQ(Beeps(), CountReasons(GetParam().reasons));
}

const std::vector<TypingRow> kDates = Playable(typing::ModernDates());
const std::vector<TypingRow> kTimes = Playable(typing::ModernTimes());
const std::vector<TypingRow> kDeletions = Playable(typing::ModernDeletions());
const std::vector<TypingRow> kUndo = Playable(typing::ModernUndo());
const std::vector<TypingRow> kCarets = Playable(typing::ModernCarets());
const std::vector<TypingRow> kSpins = Playable(typing::ModernSpins());
const std::vector<TypingRow> kStrings = Playable(typing::ModernStrings());
const std::vector<TypingRow> kChoices = Playable(typing::ModernChoices());
TEST_ROWS(Dates, ModernRows, kDates);
TEST_ROWS(Times, ModernRows, kTimes);
TEST_ROWS(Deletions, ModernRows, kDeletions);
TEST_ROWS(Undo, ModernRows, kUndo);
TEST_ROWS(Carets, ModernRows, kCarets);
TEST_ROWS(Spins, ModernRows, kSpins);
TEST_ROWS(Strings, ModernRows, kStrings);
TEST_ROWS(Choices, ModernRows, kChoices);

// ---- numbers

using modern_numbers::KeyRow;

// Rows of other settings than those in force are played over the functions alone.
std::vector<KeyRow> Playable(const std::vector<KeyRow>& rows)
{
    std::vector<KeyRow> playable;
    for (const KeyRow& row : rows)
        if (std::strcmp(row.region, "US") == 0)
            playable.push_back(row);
    return playable;
}

class ModernNumberRows : public EditTest, public OfRow<KeyRow> {
protected:
    void MakeIt()
    {
        Config config;
        config.mask = GetParam().mask;
        config.type = DT_NUMBER;
        config.options = ZTEO_MODERN;
        Make(config);
        const std::string start = GetParam().start;
        if (start[0] == '=')
            control_->SetDataString(start.substr(1));
        else if (!start.empty())
            Show(start);
    }

    void Press(char letter)
    {
        if (letter == 'l')
            control_->LoseFocus();
        else if (const char* key = modern_numbers::KeyOf(letter))
            Play(key);
        else
            Type(std::string(1, letter));
    }
};

ROW_TEST(ModernNumberRows, AreWhatIsShown)
{
    const Regional regional(kUnitedStates);
    MakeIt();
    for (const char* key = GetParam().keys; *key; ++key)
        Press(*key);
    EXPECT_EQ(Shown(), GetParam().after);
}

const std::vector<KeyRow> kNumberDigits = Playable(modern_numbers::NumberDigits());
const std::vector<KeyRow> kNumberSigns = Playable(modern_numbers::NumberSigns());
const std::vector<KeyRow> kNumberSeparators = Playable(modern_numbers::NumberSeparators());
const std::vector<KeyRow> kNumberDeletion = Playable(modern_numbers::NumberDeletion());
const std::vector<KeyRow> kNumberCaret = Playable(modern_numbers::NumberCaret());
TEST_ROWS(Digits, ModernNumberRows, kNumberDigits);
TEST_ROWS(Signs, ModernNumberRows, kNumberSigns);
TEST_ROWS(Separators, ModernNumberRows, kNumberSeparators);
TEST_ROWS(Deletion, ModernNumberRows, kNumberDeletion);
TEST_ROWS(Caret, ModernNumberRows, kNumberCaret);

}  // namespace
}  // namespace zttest
