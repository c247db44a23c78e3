// The tables of the documentation, whose rows are played as tests.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "tests/support/profile.h"

namespace zttest {

// One row of a table. A cell is asked for by the heading of its column.
struct DocumentRow {
    int line;
    std::map<std::string, std::string> cells;
    std::string page;  // the file, without its folders and its ending

    bool Has(const std::string& heading) const { return cells.count(heading) == 1; }
    const std::string& operator[](const std::string& heading) const { return cells.at(heading); }
};
void PrintTo(const DocumentRow& row, std::ostream* out);

// A file of the sources ("docs/masks.md"), its lines ended by a newline each; empty where there is none.
std::string SourceText(const std::string& name);

// The rows of a file of the sources ("docs/masks.md") whose table has all the columns named.
std::vector<DocumentRow> DocumentRows(const std::string& file, const std::vector<const char*>& columns);

// The name of a row in the list of tests.
std::string LineName(const DocumentRow& row);

// The data type that the documentation calls by a name.
int32_t TypeNamed(const std::string& name);

// The settings that the documentation calls by a name.
const RegionalSet& SettingsNamed(const std::string& name);

// "<tab>" as it is meant.
std::string WithTabs(std::string text);

}  // namespace zttest
