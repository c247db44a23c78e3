// The field in memory against the system's edit control: random scripts on both, compared after every operation.
// ZT_FIELD_SEED and ZT_FIELD_ROUNDS give other and longer runs; the default run is fixed and short.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>

#include "tests/field/memory_player.h"
#include "tests/field/real_player.h"
#include "tests/support/clipboard.h"

namespace zttest {
namespace {

constexpr uint32_t kSeed = 20240229;
constexpr uint32_t kRounds = 10000;
constexpr uint32_t kLongestScript = 10;
constexpr uint32_t kScriptsPerControl = 10;  // one behind the other: making a window takes as long as a script
constexpr int32_t kLongestText = 40;

uint32_t Setting(const char* name, uint32_t standard)
{
    const char* value = std::getenv(name);
    return value ? static_cast<uint32_t>(std::strtoul(value, nullptr, 0)) : standard;
}

// The letters of the process's locale, as the system's control folds them.
zte::Char FoldLocale(zte::Char character, zte::LetterCase letterCase)
{
    char text[] = {character, '\0'};
    if (letterCase == zte::LetterCase::Upper)
        CharUpperA(text);
    else
        CharLowerA(text);
    return text[0];
}

struct Weight {
    Action action;
    int32_t weight;
};

constexpr Weight kWeights[] = {
    {Action::Type,                30},
    {Action::Key,                 40},
    {Action::SetText,             6 },
    {Action::Put,                 3 },
    {Action::Replace,             3 },
    {Action::ReplaceWithUndo,     6 },
    {Action::Select,              12},
    {Action::Limit,               4 },
    {Action::FillClipboard,       2 },
    {Action::EmptyClipboard,      1 },
    {Action::Cut,                 1 },
    {Action::Copy,                1 },
    {Action::Paste,               3 },
    {Action::Clear,               3 },
    {Action::Undo,                8 },
    {Action::UndoByWindowMessage, 1 },
    {Action::ForgetUndo,          1 },
    {Action::Modify,              2 },
    {Action::Click,               4 },
    {Action::ShiftClick,          2 },
    {Action::DoubleClick,         2 },
    {Action::Drag,                2 },
    {Action::ReadOnly,            1 },
};

constexpr int32_t kKeys[] = {0x08, 0x09, 0x0D, 0x21, 0x22, 0x23, 0x24, 0x25, 0x25, 0x25, 0x26, 0x27, 0x27, 0x27,
                             0x28, 0x2D, 0x2D, 0x2E, 0x2E, 0x2E, 0x2E, 'A',  'C',  'V',  'X',  'Z',  '1'};
constexpr int32_t kStyles[] = {kPlain, kPlain, kPlain, kUpper, kLower, kDigits, kReadOnly};
constexpr char kFrequentChars[] = "abc xyz  AZ09.,-\b\b\b\b";
constexpr char kWordChars[] = "abc xyz  AZ09";
constexpr char kFrequentControls[] = "\x01\x03\x08\x16\x18\x1a\x7f";

class ScriptMaker {
public:
    explicit ScriptMaker(uint32_t seed) : random_(seed), onlyWords_(OneIn(3)) {}

    int32_t MakeStyle() { return kStyles[Below(static_cast<uint32_t>(std::size(kStyles)))]; }

    // The scripts of one control. What one leaves behind is where the next begins, but for limit and style.
    Script Make(int32_t style)
    {
        Script scripts;
        for (uint32_t i = 0; i < kScriptsPerControl; ++i) {
            scripts.push_back({Action::Limit, zte::MemoryField::kDefaultLimit, 0, {}});
            scripts.push_back({Action::ReadOnly, (style & kReadOnly) != 0, 0, {}});
            for (uint32_t length = 1 + Below(kLongestScript); length > 0; --length)
                scripts.push_back(MakeOperation());
        }
        return scripts;
    }

private:
    uint32_t Below(uint32_t limit) { return static_cast<uint32_t>(random_() % limit); }
    bool OneIn(uint32_t count) { return Below(count) == 0; }

    Action MakeAction()
    {
        int32_t total = 0;
        for (const Weight& row : kWeights)
            total += row.weight;
        int32_t choice = static_cast<int32_t>(Below(static_cast<uint32_t>(total)));
        for (const Weight& row : kWeights)
            if ((choice -= row.weight) < 0)
                return row.action;
        return Action::Type;
    }

    // Any byte but the braces of scripts and NUL.
    char MakeChar()
    {
        if (onlyWords_)
            return kWordChars[Below(sizeof kWordChars - 1)];
        if (!OneIn(4))
            return kFrequentChars[Below(sizeof kFrequentChars - 1)];
        for (;;) {
            const auto c = static_cast<char>(1 + Below(255));
            if (c != '{' && c != '}')
                return c;
        }
    }

    std::string MakeText()
    {
        std::string text(OneIn(8) ? 0 : 1 + Below(OneIn(4) ? 12 : 4), ' ');
        for (char& c : text)
            c = MakeChar();
        return text;
    }

    int32_t MakePosition()
    {
        if (OneIn(8))
            return static_cast<int32_t>(Below(4)) - 2;
        if (OneIn(20))
            return OneIn(2) ? INT32_MIN : INT32_MAX;
        return static_cast<int32_t>(Below(OneIn(3) ? 20 : 6));
    }

    Operation MakeOperation()
    {
        Operation operation;
        operation.action = MakeAction();
        if (operation.action == Action::Type)
            MakeTyped(operation);
        else if (operation.action == Action::Key)
            operation.first = kKeys[Below(static_cast<uint32_t>(std::size(kKeys)))];
        if (operation.action == Action::Key)
            operation.second = static_cast<int32_t>(OneIn(2) ? 0 : Below(4));
        if (TakenBy(operation.action) == Takes::Text)
            operation.text = MakeText();
        if (TakenBy(operation.action) == Takes::Number || TakenBy(operation.action) == Takes::TwoNumbers)
            operation.first = MakePosition();
        if (TakenBy(operation.action) == Takes::TwoNumbers)
            operation.second = MakePosition();
        ClampMouse(operation);
        return operation;
    }

    void MakeTyped(Operation& operation)
    {
        operation.text = std::string(1, MakeChar());
        if (OneIn(6)) {
            operation.text[0] = kFrequentControls[Below(sizeof kFrequentControls - 1)];
            operation.second = static_cast<int32_t>(Below(4));
        }
    }

    // No mouse points in front of the text.
    static void ClampMouse(Operation& operation)
    {
        const Action action = operation.action;
        if (action != Action::Click && action != Action::ShiftClick && action != Action::DoubleClick &&
            action != Action::Drag)
            return;
        operation.first = std::clamp(operation.first, 0, kLongestText);
        operation.second = std::clamp(operation.second, 0, kLongestText);
    }

    std::mt19937 random_;
    bool onlyWords_;
};

// Words are alike on both as long as only blanks part them; see the known limits of the field.
bool IsWordMove(const Operation& operation)
{
    const bool arrow = operation.action == Action::Key && operation.first >= 0x25 && operation.first <= 0x28;
    return operation.action == Action::DoubleClick || (arrow && (operation.second & kCtrlDown) != 0);
}

bool HasPlainWords(const std::string& text)
{
    return std::all_of(text.begin(), text.end(), [](char c) {
        return c == ' ' || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    });
}

struct Difference {
    bool found = false;
    size_t operations = 0;  // played, the last one with the difference
    State real;
    State memory;
    std::string realTold;
    std::string memoryTold;
};

// Plays a script on both, up to the first difference. Operations that cannot be compared are left out
// on both.
Difference Compare(const Script& script, int32_t style)
{
    static DWORD emptied = 0;  // the clipboard's state when it was last emptied here
    if (emptied == 0 || emptied != GetClipboardSequenceNumber()) {
        EmptyTheClipboard();
        emptied = GetClipboardSequenceNumber();
    }
    RealPlayer real(style);
    MemoryPlayer memory(style, FoldLocale);
    Difference difference;
    for (const Operation& operation : script) {
        ++difference.operations;
        if (!real.CanPlay(operation) || (IsWordMove(operation) && !HasPlainWords(memory.Look().text)))
            continue;
        difference.realTold = real.Play(operation);
        difference.memoryTold = memory.Play(operation);
        difference.real = real.Look();
        difference.memory = memory.Look();
        if (!(difference.real == difference.memory) || difference.realTold != difference.memoryTold) {
            difference.found = true;
            return difference;
        }
    }
    if (emptied == GetClipboardSequenceNumber() && memory.ClipboardText().empty())
        return difference;
    difference.realTold = "clipboard " + Quoted(real.ClipboardText());
    difference.memoryTold = "clipboard " + Quoted(memory.ClipboardText());
    difference.found = difference.realTold != difference.memoryTold;
    return difference;
}

bool Differs(const Script& script, int32_t style)
{
    return Compare(script, style).found;
}

// Leaves out operations, many and then few at a time, as long as the difference stays.
Script WithFewerOperations(Script script, int32_t style)
{
    for (size_t count = script.size(); count > 0; count /= 2)
        for (size_t at = 0; at + count <= script.size();) {
            Script shorter = script;
            const auto begin = shorter.begin() + static_cast<std::ptrdiff_t>(at);
            shorter.erase(begin, begin + static_cast<std::ptrdiff_t>(count));
            if (Differs(shorter, style))
                script = shorter;
            else
                ++at;
        }
    return script;
}

Script WithShorterTexts(Script script, int32_t style)
{
    for (size_t i = 0; i < script.size(); ++i)
        for (size_t c = 0; TakenBy(script[i].action) == Takes::Text && c < script[i].text.size();) {
            Script shorter = script;
            shorter[i].text.erase(c, 1);
            if (Differs(shorter, style))
                script = shorter;
            else
                ++c;
        }
    return script;
}

Script Shrunk(Script script, int32_t style)
{
    script.resize(Compare(script, style).operations);
    script = WithShorterTexts(WithFewerOperations(script, style), style);
    return WithFewerOperations(script, style);
}

// As a row for the table of examples, with what the system's control shows.
std::string Report(const Script& script, int32_t style)
{
    const Difference difference = Compare(script, style);
    RealPlayer real(style);
    const std::string told = PlayScript(real, script);
    return "{\"Found\", " + std::to_string(style) + ", \"|\", " + Quoted(PrintScript(script)) + ", " +
           Quoted(PrintText(difference.real)) + ", " + Quoted(told) + ", " +
           (difference.real.canUndo ? "true" : "false") + "},\nreal:   " + Print(difference.real) + " told " +
           difference.realTold + "\nmemory: " + Print(difference.memory) + " told " + difference.memoryTold;
}

TEST(FieldInMemoryAtRandom, BehavesAsTheEditControlOfTheSystem)
{
    const uint32_t seed = Setting("ZT_FIELD_SEED", kSeed);
    const uint32_t rounds = Setting("ZT_FIELD_ROUNDS", kRounds);
    int32_t differences = 0;
    for (uint32_t round = 0; round < rounds && differences < 3; round += kScriptsPerControl) {
        ScriptMaker maker(seed + round);
        const int32_t style = maker.MakeStyle();
        const Script script = maker.Make(style);
        if (!Differs(script, style))
            continue;
        ++differences;
        ADD_FAILURE() << "seed " << seed + round << "\n" << Report(Shrunk(script, style), style);
    }
}

}  // namespace
}  // namespace zttest
