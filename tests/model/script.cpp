// Reads and writes the texts of steps.
#include "script.h"

#include "model_edit.h"

#include <cstdio>
#include <cstdlib>

namespace model {
namespace {

struct KeyName {
    const char* name;
    int key;
};

constexpr KeyName kKeyNames[] = {
    {"Back",  kBackspace},
    {"End",   kEnd      },
    {"Home",  kHome     },
    {"Left",  kLeft     },
    {"Up",    kUp       },
    {"Right", kRight    },
    {"Down",  kDown     },
    {"Del",   kDelete   },
};

enum class Arguments {
    None,
    Number,
    Numbers,
    Text,
    NumberAndText,
};

struct Word {
    const char* name;
    StepKind kind;
    Arguments arguments;
};

constexpr Word kWords[] = {
    {"sel",      StepKind::Select,   Arguments::Numbers      },
    {"data",     StepKind::Data,     Arguments::Text         },
    {"nodata",   StepKind::NoData,   Arguments::None         },
    {"paste",    StepKind::Paste,    Arguments::Text         },
    {"click",    StepKind::Click,    Arguments::Number       },
    {"read",     StepKind::Read,     Arguments::None         },
    {"autoskip", StepKind::Autoskip, Arguments::Number       },
    {"readonly", StepKind::ReadOnly, Arguments::Number       },
    {"enable",   StepKind::Enable,   Arguments::Number       },
    {"mask",     StepKind::Mask,     Arguments::NumberAndText},
    {"char",     StepKind::Char,     Arguments::Number       },
};

const Word& WordOf(StepKind kind)
{
    const Word* word = kWords;
    while (word->kind != kind)
        ++word;
    return *word;
}

bool StandsForItself(int c)
{
    return c >= ' ' && c < 127 && c != '{' && c != '}';
}

std::string TextOf(const Step& step)
{
    if (step.kind == StepKind::Char && StandsForItself(step.a))
        return std::string(1, static_cast<char>(step.a));
    if (step.kind == StepKind::Key) {
        for (const KeyName& key : kKeyNames)
            if (key.key == step.a)
                return std::string("{") + (step.b != 0 ? "Shift+" : "") + key.name + "}";
        return "{?}";
    }
    const Word& word = WordOf(step.kind);
    std::string text = std::string("{") + word.name;
    const Arguments arguments = word.arguments;
    if (arguments == Arguments::Number || arguments == Arguments::Numbers || arguments == Arguments::NumberAndText)
        text += " " + std::to_string(step.a);
    if (arguments == Arguments::Numbers)
        text += " " + std::to_string(step.b);
    if (arguments == Arguments::Text || arguments == Arguments::NumberAndText)
        text += " " + step.text;
    return text + "}";
}

// The text up to a blank, which is taken out with it.
std::string NextWord(std::string& text)
{
    const size_t blank = text.find(' ');
    const std::string word = text.substr(0, blank);
    text.erase(0, blank == std::string::npos ? blank : blank + 1);
    return word;
}

Step StepOf(std::string inside)
{
    Step step;
    const std::string whole = inside;
    const std::string name = NextWord(inside);
    for (const Word& word : kWords) {
        if (name != word.name)
            continue;
        step.kind = word.kind;
        if (word.arguments != Arguments::None && word.arguments != Arguments::Text)
            step.a = std::atoi(NextWord(inside).c_str());
        if (word.arguments == Arguments::Numbers)
            step.b = std::atoi(inside.c_str());
        else if (word.arguments != Arguments::Number)
            step.text = inside;
        return step;
    }
    step.kind = StepKind::Key;
    const bool shift = whole.compare(0, 6, "Shift+") == 0;
    step.b = shift ? 1 : 0;
    for (const KeyName& key : kKeyNames)
        if (whole.substr(shift ? 6 : 0) == key.name)
            step.a = key.key;
    return step;
}

}  // namespace

std::string ScriptOf(const std::vector<Step>& steps)
{
    std::string script;
    for (const Step& step : steps)
        script += TextOf(step);
    return script;
}

std::vector<Step> StepsOf(const std::string& script)
{
    std::vector<Step> steps;
    for (size_t i = 0; i < script.size(); ++i) {
        if (script[i] != '{') {
            steps.push_back({StepKind::Char, static_cast<unsigned char>(script[i]), 0, ""});
            continue;
        }
        const size_t close = script.find('}', i);
        steps.push_back(StepOf(script.substr(i + 1, close - i - 1)));
        i = close;
    }
    return steps;
}

std::string Quoted(const std::string& text)
{
    std::string quoted = "\"";
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        char octal[8];
        std::snprintf(octal, sizeof octal, "\\%03o", code);
        if (c == '"' || c == '\\')
            quoted += std::string("\\") + c;
        else
            quoted += code < ' ' || code > 126 ? std::string(octal) : std::string(1, c);
    }
    return quoted + "\"";
}

}  // namespace model
