// Random scenarios of modern editing, played on the library and on the model; the first difference ends one.
#ifndef TESTS_MODEL_MODERN_PLAY_H
#define TESTS_MODEL_MODERN_PLAY_H

#include "modern_subject.h"

#include <string>
#include <vector>

namespace model::modern {

struct ModernRow {
    const char* mask;
    Type type;
    unsigned increment = 0;  // with a spin when above 0
    const char* range = "";
    const char* codes = nullptr;
    bool codeDisplay = false;
    bool codePick = false;
};

const std::vector<ModernRow>& ModernRows();

struct ModernScenario {
    const Setting* setting = nullptr;
    Config config;
    std::vector<std::string> acts;
};

ModernScenario RandomModern(const Setting& setting, const ModernRow& row, unsigned seed, int acts);

struct ModernDifference {
    bool found = false;
    size_t act = 0;
    std::string description;
};

class ModernPair {
public:
    ModernDifference Play(const ModernScenario& scenario);
    ModernScenario Shortest(ModernScenario scenario);
    size_t Compared() const { return compared_; }

private:
    std::unique_ptr<ModernSubject> library_ = MakeModernLibrary();
    std::unique_ptr<ModernSubject> model_ = MakeModernModel();
    size_t compared_ = 0;
};

std::string Row(const ModernScenario& scenario);

}  // namespace model::modern

#endif
