// Steps of a user and a program on one control, and the short texts that write them down.
// "12{Left}{Shift+End}{data 3.5}{read}": characters stand for themselves, everything else in braces.
#ifndef TESTS_MODEL_SCRIPT_H
#define TESTS_MODEL_SCRIPT_H

#include <string>
#include <vector>

namespace model {

enum class StepKind {
    Char,
    Key,
    Select,
    Data,
    NoData,
    Paste,
    Click,
    Read,
    Autoskip,
    ReadOnly,
    Enable,
    Mask,
};

struct Step {
    StepKind kind = StepKind::Char;
    int a = 0;  // character, key, position, type of a mask, or on and off
    int b = 0;  // shift, or end of a selection
    std::string text;

    bool operator==(const Step& other) const
    {
        return kind == other.kind && a == other.a && b == other.b && text == other.text;
    }
};

std::string ScriptOf(const std::vector<Step>& steps);
std::vector<Step> StepsOf(const std::string& script);

// A text between quotes, as C++ writes it.
std::string Quoted(const std::string& text);

}  // namespace model

#endif
