// Scripts for an edit control, real or in memory: what is done to it, written as in keystroke tables, and what is seen.
//
// A script is a text of characters to type, keys such as {Left}, {Shift+End} or {Ctrl+Del}, and messages such as
// {text:abc}, {sel:1,3} or {undo}; the names stand in script.cpp. Braces cannot be typed.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zttest {

enum class Action : uint8_t {
    Type,
    Key,
    SetText,
    Put,      // as the engine replaces the selection
    Replace,  // EM_REPLACESEL without and with undo
    ReplaceWithUndo,
    Select,
    Limit,
    FillClipboard,
    EmptyClipboard,
    Cut,
    Copy,
    Paste,
    Clear,
    Undo,
    UndoByWindowMessage,
    ForgetUndo,
    Modify,
    Click,
    ShiftClick,
    DoubleClick,
    Drag,
    ReadOnly,
};

enum KeysDown : int32_t { kNoKeys = 0, kShiftDown = 1, kCtrlDown = 2 };

struct Operation {
    Action action = Action::Type;
    int32_t first = 0;   // a position or number; a key's code
    int32_t second = 0;  // the other position; KeysDown of a key, and of a character
    std::string text;
};

using Script = std::vector<Operation>;

// Numbers and texts that an action takes; for printing and for making scripts at random.
enum class Takes : uint8_t { Nothing, Text, Number, TwoNumbers };
Takes TakenBy(Action action);

Script ParseScript(const std::string& text);  // fails the test on an unknown name
std::string PrintScript(const Script& script);

// As a literal of the source code.
std::string Quoted(const std::string& text);

// Styles of a control, for rows and scripts.
enum Style : int32_t {
    kPlain = 0,
    kReadOnly = 1,
    kUpper = 2,
    kLower = 4,
    kDigits = 8,
};

// What is seen from outside.
struct State {
    std::string text;
    int32_t start = 0;
    int32_t end = 0;
    bool caretAtStart = false;  // of a selection
    bool caretHidden = false;   // both ends look the same: any caret is right
    bool modified = false;
    bool canUndo = false;
    int32_t limit = 0;

    bool operator==(const State& other) const;
};

// The text with the caret as '|' and the selection in brackets: "a[bc|]d".
std::string PrintText(const State& state);
std::string Print(const State& state);

// A control that scripts are played on.
class Player {
public:
    Player() = default;
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;
    virtual ~Player() = default;

    // What the control tells its parent: U for an update, C for a change, M for the limit reached.
    virtual std::string Play(const Operation& operation) = 0;
    virtual State Look() const = 0;
    virtual std::string ClipboardText() const = 0;  // empty when there is none
};

// Plays a whole script; returns all that was told.
std::string PlayScript(Player& player, const Script& script);

// Puts a text written like PrintText's in place; the caret may stand without brackets.
void Given(Player& player, const std::string& shown);

}  // namespace zttest
