// The names of keys and messages in scripts, read and printed.
#include "tests/field/script.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace zttest {
namespace {

struct ActionName {
    const char* name;
    Action action;
    Takes takes;
};

constexpr ActionName kActions[] = {
    {"text",       Action::SetText,             Takes::Text      },
    {"put",        Action::Put,                 Takes::Text      },
    {"replace",    Action::Replace,             Takes::Text      },
    {"replaceU",   Action::ReplaceWithUndo,     Takes::Text      },
    {"sel",        Action::Select,              Takes::TwoNumbers},
    {"limit",      Action::Limit,               Takes::Number    },
    {"clip",       Action::FillClipboard,       Takes::Text      },
    {"noclip",     Action::EmptyClipboard,      Takes::Nothing   },
    {"cut",        Action::Cut,                 Takes::Nothing   },
    {"copy",       Action::Copy,                Takes::Nothing   },
    {"paste",      Action::Paste,               Takes::Nothing   },
    {"clear",      Action::Clear,               Takes::Nothing   },
    {"undo",       Action::Undo,                Takes::Nothing   },
    {"undoW",      Action::UndoByWindowMessage, Takes::Nothing   },
    {"forget",     Action::ForgetUndo,          Takes::Nothing   },
    {"modify",     Action::Modify,              Takes::Number    },
    {"click",      Action::Click,               Takes::Number    },
    {"shiftclick", Action::ShiftClick,          Takes::Number    },
    {"dblclick",   Action::DoubleClick,         Takes::Number    },
    {"drag",       Action::Drag,                Takes::TwoNumbers},
    {"readonly",   Action::ReadOnly,            Takes::Number    },
};

struct KeyName {
    const char* name;
    int32_t key;
};

constexpr KeyName kKeys[] = {
    {"Back",  0x08},
    {"Tab",   0x09},
    {"Enter", 0x0D},
    {"Esc",   0x1B},
    {"PgUp",  0x21},
    {"PgDn",  0x22},
    {"End",   0x23},
    {"Home",  0x24},
    {"Left",  0x25},
    {"Up",    0x26},
    {"Right", 0x27},
    {"Down",  0x28},
    {"Ins",   0x2D},
    {"Del",   0x2E},
};

constexpr char kShiftPrefix[] = "Shift+";
constexpr char kCtrlPrefix[] = "Ctrl+";

bool TakePrefix(std::string& text, const char* prefix)
{
    if (text.compare(0, std::strlen(prefix), prefix) != 0)
        return false;
    text.erase(0, std::strlen(prefix));
    return true;
}

void ReadArguments(Operation& operation, Takes takes, const std::string& arguments)
{
    if (takes == Takes::Text) {
        operation.text = arguments;
        return;
    }
    operation.first = std::atoi(arguments.c_str());
    const size_t comma = arguments.find(',');
    if (comma != std::string::npos)
        operation.second = std::atoi(arguments.c_str() + comma + 1);
}

bool ReadKey(Operation& operation, const std::string& name)
{
    for (const KeyName& row : kKeys)
        if (name == row.name) {
            operation.action = Action::Key;
            operation.first = row.key;
            return true;
        }
    constexpr char kCode[] = "key";
    if (name.compare(0, sizeof kCode - 1, kCode) != 0)
        return false;
    operation.action = Action::Key;
    operation.first = std::atoi(name.c_str() + sizeof kCode - 1);
    return true;
}

// What stands between braces.
Operation ReadNamed(std::string name)
{
    Operation operation;
    const size_t colon = std::min(name.find(':'), name.size());
    for (const ActionName& row : kActions)
        if (name.compare(0, colon, row.name) == 0) {
            operation.action = row.action;
            ReadArguments(operation, row.takes, name.substr(std::min(colon + 1, name.size())));
            return operation;
        }
    if (TakePrefix(name, kCtrlPrefix))
        operation.second |= kCtrlDown;
    if (TakePrefix(name, kShiftPrefix))
        operation.second |= kShiftDown;
    if (ReadKey(operation, name))
        return operation;
    if (name.size() != 1)
        ADD_FAILURE() << "neither a key nor a message: " << name;
    operation.text = name;
    return operation;
}

std::string KeyNameOf(int32_t key)
{
    for (const KeyName& row : kKeys)
        if (row.key == key)
            return row.name;
    return "key" + std::to_string(key);
}

std::string Prefix(int32_t keysDown)
{
    return std::string(keysDown & kCtrlDown ? kCtrlPrefix : "") + (keysDown & kShiftDown ? kShiftPrefix : "");
}

const ActionName& RowOf(Action action)
{
    return *std::find_if(std::begin(kActions), std::end(kActions),
                         [action](const ActionName& row) { return row.action == action; });
}

std::string PrintOperation(const Operation& operation)
{
    if (operation.action == Action::Type)
        return operation.second ? "{" + Prefix(operation.second) + operation.text + "}" : operation.text;
    if (operation.action == Action::Key)
        return "{" + Prefix(operation.second) + KeyNameOf(operation.first) + "}";
    const ActionName& row = RowOf(operation.action);
    std::string text = std::string("{") + row.name;
    if (row.takes == Takes::Text)
        text += ":" + operation.text;
    if (row.takes == Takes::Number || row.takes == Takes::TwoNumbers)
        text += ":" + std::to_string(operation.first);
    if (row.takes == Takes::TwoNumbers)
        text += "," + std::to_string(operation.second);
    return text + "}";
}

}  // namespace

Takes TakenBy(Action action)
{
    return action == Action::Type || action == Action::Key ? Takes::Nothing : RowOf(action).takes;
}

Script ParseScript(const std::string& text)
{
    Script script;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '{') {
            script.push_back({Action::Type, 0, 0, text.substr(i, 1)});
            continue;
        }
        const size_t end = text.find('}', i);
        script.push_back(ReadNamed(text.substr(i + 1, end - i - 1)));
        i = end;
    }
    return script;
}

std::string PrintScript(const Script& script)
{
    std::string text;
    for (const Operation& operation : script)
        text += PrintOperation(operation);
    return text;
}

std::string Quoted(const std::string& text)
{
    std::string quoted = "\"";
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        char octal[8];
        std::snprintf(octal, sizeof octal, "\\%03o", code);
        if (code < 0x20 || code > 0x7E)
            quoted += octal;
        else
            quoted += c == '"' || c == '\\' ? std::string("\\") + c : std::string(1, c);
    }
    return quoted + "\"";
}

bool State::operator==(const State& other) const
{
    const bool sameCaret = caretAtStart == other.caretAtStart || caretHidden || other.caretHidden;
    return text == other.text && start == other.start && end == other.end && sameCaret && modified == other.modified &&
           canUndo == other.canUndo && limit == other.limit;
}

std::string PrintText(const State& state)
{
    std::string text = state.text;
    if (state.start == state.end)
        return text.insert(static_cast<size_t>(state.start), "|");
    text.insert(static_cast<size_t>(state.end), state.caretAtStart ? "]" : "|]");
    return text.insert(static_cast<size_t>(state.start), state.caretAtStart ? "[|" : "[");
}

std::string Print(const State& state)
{
    return Quoted(PrintText(state)) + (state.modified ? " modified" : "") + (state.canUndo ? " can undo" : "") +
           " limit " + std::to_string(state.limit);
}

std::string PlayScript(Player& player, const Script& script)
{
    std::string told;
    for (const Operation& operation : script)
        told += player.Play(operation);
    return told;
}

void Given(Player& player, const std::string& shown)
{
    std::string text;
    int32_t caret = 0;
    int32_t start = -1;
    int32_t end = -1;
    for (const char c : shown) {
        const auto position = static_cast<int32_t>(text.size());
        if (c == '|')
            caret = position;
        else if (c == '[')
            start = position;
        else if (c == ']')
            end = position;
        else
            text += c;
    }
    player.Play({Action::SetText, 0, 0, text});
    const int32_t anchor = start < 0 ? caret : caret == start ? end : start;
    player.Play({Action::Select, anchor, caret, {}});
}

}  // namespace zttest
