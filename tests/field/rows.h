// Examples of what an edit control does: one table, played on the field in memory and on the system's control.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "tests/field/script.h"

namespace zttest {

// With this style, from this text and caret, the script leads to that text and caret and tells the parent this much.
struct FieldCase {
    const char* name;
    int32_t style;
    const char* given;
    const char* script;
    const char* shown;
    const char* told;  // U: updated, C: changed, M: limit reached
    bool canUndo;
};

const std::vector<FieldCase>& FieldCases();

void Check(Player& player, const FieldCase& row);
void PrintTo(const FieldCase& row, std::ostream* stream);

}  // namespace zttest
