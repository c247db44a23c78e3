// The doors by which texts enter a control, and what holds of each whatever comes in.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "tests/texts/subject.h"

namespace zttest {

// A mask of each kind, a value that it can show, how the value is shown, and as what it is read back.
struct FieldRow {
    const char* name;
    const char* mask;
    int32_t type;
    const char* data;
    const char* shown;
    const char* read;
};
const std::vector<FieldRow>& Fields();

enum class Opens : uint8_t { ToAll, ToStrings };

// A text that goes into the window as a whole takes the system's edit control its time when it is long.
enum class Leads : uint8_t { ToTheMask, ToTheValue, ToTheWindow };

struct Door {
    const char* name;
    Opens opens;
    Leads leads;
    std::string (*good)(const FieldRow& field);  // a text that the door is made for
    void (*hand)(const FieldRow& field, const char* text,
                 size_t length);  // hands a text in, and reports what does not hold
};
void PrintTo(const Door& door, std::ostream* out);
const std::vector<Door>& Doors();

inline Config ConfigOf(const FieldRow& field)
{
    Config config;
    config.mask = field.mask;
    config.type = field.type;
    return config;
}

// Whatever came before: under the field's mask the control takes a value, shows it and gives it back, and takes keys.
void ExpectItWorks(Subject& subject, const FieldRow& field);

}  // namespace zttest
