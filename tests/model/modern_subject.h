// What a scenario of modern editing is played on: one masked edit control, as its user and its program see it. An act is a short text:
// a character or a key in braces ("5", "{Left}", "{Ctrl+Z}"), or a word of the program, the mouse or the menu ("{data 1995-07-04}").
#ifndef TESTS_MODEL_MODERN_SUBJECT_H
#define TESTS_MODEL_MODERN_SUBJECT_H

#include "scenario.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace model::modern {

// What can be seen of a modern control, and what its parent has been told since it was made.
struct ModernLook {
    std::string text;
    int start = 0;
    int end = 0;
    int state = 0;                         // ZTS_
    std::optional<std::string> canonical;  // none: incomplete or invalid
    int changes = 0;
    int rejections = 0;
    int reason = 0;  // ZTR_, of the last one; so are the next two
    int position = 0;
    int character = 0;
    int beeps = 0;
    int autoskips = 0;
    bool modified = false;

    bool operator==(const ModernLook& other) const;
};

// "{word rest}" of an act.
struct Word {
    std::string name;
    std::string rest;
};
std::optional<Word> WordOf(const std::string& act);  // none: keys
std::vector<std::string> ActsOf(const std::string& script);

class ModernSubject {
public:
    ModernSubject() = default;
    ModernSubject(const ModernSubject&) = delete;
    ModernSubject& operator=(const ModernSubject&) = delete;
    virtual ~ModernSubject() = default;

    virtual void Make(const Regional& regional, const Config& config) = 0;  // a new control in place of the last one
    virtual int Do(const std::string& act) = 0;                             // what the call hands back, 0 for most
    virtual ModernLook Look() = 0;
};

std::unique_ptr<ModernSubject> MakeModernModel();
std::unique_ptr<ModernSubject> MakeModernLibrary();

}  // namespace model::modern

#endif
