// Runs the examples of docs/masks.md: every table row with a mask, a keyword or a default in it.
#include <fstream>
#include <map>
#include <sstream>
#include <vector>

#include "tests/format/value_test.h"

namespace zttest {
namespace {

using Row = std::map<std::string, std::string>;  // by the heading of the column

// The path of a file of the sources, as Windows programs see it.
std::string SourceFile(const std::string& name)
{
    const std::string root = ZTE_SOURCE_DIR;
    return (root[0] == '/' ? "Z:" : "") + root + "/" + name;
}

// A cell without the blanks around it and without the marks of code.
std::string CellText(const std::string& cell)
{
    const size_t first = cell.find_first_not_of(' ');
    if (first == std::string::npos)
        return "";
    const size_t last = cell.find_last_not_of(' ');
    const std::string text = cell.substr(first, last - first + 1);
    if (text.size() >= 2 && text.front() == '`' && text.back() == '`')
        return text.substr(1, text.size() - 2);
    return text;
}

std::vector<std::string> Cells(const std::string& line)
{
    std::vector<std::string> cells;
    std::istringstream in(line.substr(1));
    for (std::string cell; std::getline(in, cell, '|');)
        cells.push_back(CellText(cell));
    return cells;
}

// Every row of every table, with the number of its line under "line".
std::vector<Row> ReadTables()
{
    std::vector<Row> rows;
    std::vector<std::string> headings;
    std::ifstream file(SourceFile("docs/masks.md"));
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        ++number;
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.empty() || line[0] != '|') {
            headings.clear();
            continue;
        }
        const std::vector<std::string> cells = Cells(line);
        if (headings.empty()) {
            headings = cells;
        } else if (line.compare(0, 4, "|---") != 0) {
            Row row = {
                {"line", std::to_string(number)}
            };
            for (size_t i = 0; i < headings.size() && i < cells.size(); ++i)
                row[headings[i]] = cells[i];
            rows.push_back(row);
        }
    }
    return rows;
}

int32_t TypeOf(const std::string& name)
{
    static const std::map<std::string, int32_t> types = {
        {"string",    DT_STRING  },
        {"number",    DT_NUMBER  },
        {"decimal",   DT_DECIMAL },
        {"date",      DT_DATE    },
        {"time",      DT_TIME    },
        {"date-time", DT_DATETIME}
    };
    const auto found = types.find(name);
    return found == types.end() ? 0 : found->second;
}

const RegionalSet& SettingsOf(const std::string& name)
{
    static const std::map<std::string, const RegionalSet*> sets = {
        {"",       &kUnitedStates},
        {"US",     &kUnitedStates},
        {"German", &kGerman      },
        {"French", &kFrench      },
        {"Swiss",  &kSwiss       },
        {"ISO",    &kIso         }
    };
    const auto found = sets.find(name);
    if (found != sets.end())
        return *found->second;
    ADD_FAILURE() << "unknown settings " << name;
    return kUnitedStates;
}

class DocumentedMasks : public ValueTest {
protected:
    // The rows whose table has all the columns named, with a failure when there are fewer than expected.
    std::vector<Row> RowsWith(const std::vector<const char*>& columns, size_t atLeast)
    {
        std::vector<Row> found;
        for (const Row& row : ReadTables()) {
            bool complete = true;
            for (const char* column : columns)
                complete = complete && row.count(column) == 1;
            if (complete)
                found.push_back(row);
        }
        EXPECT_GE(found.size(), atLeast) << "the examples are not found";
        return found;
    }

    static std::string Where(const Row& row) { return "docs/masks.md, line " + row.at("line"); }
    static std::string Settings(const Row& row) { return row.count("settings") ? row.at("settings") : ""; }

    void InstallFor(const Row& row)
    {
        ASSERT_NE(TypeOf(row.at("type")), 0) << row.at("type");
        Install(row.at("mask").c_str(), TypeOf(row.at("type")));
    }
};

TEST_F(DocumentedMasks, ShowTheData)
{
    for (const Row& row : RowsWith({"mask", "type", "data", "shown"}, 50)) {
        SCOPED_TRACE(Where(row));
        const Regional settings(SettingsOf(Settings(row)));
        InstallFor(row);
        EXPECT_EQ(ShownFor(row.at("data")), row.at("shown"));
    }
}

TEST_F(DocumentedMasks, AreInstalledAsWritten)
{
    for (const Row& row : RowsWith({"mask", "type", "data", "shown"}, 50)) {
        const std::string& mask = row.at("mask");
        if (mask.empty() || mask.find("[date]") == 0 || mask.find("[currency") == 0)
            continue;
        SCOPED_TRACE(Where(row));
        const Regional settings(SettingsOf(Settings(row)));
        InstallFor(row);
        EXPECT_EQ(MaskInForce(), mask);
    }
}

TEST_F(DocumentedMasks, TakeWhatIsTyped)
{
    for (const Row& row : RowsWith({"mask", "type", "typed", "shown"}, 15)) {
        SCOPED_TRACE(Where(row));
        InstallFor(row);
        control_->Select(0, 0);
        Typist(Window()).Type(row.at("typed"));
        EXPECT_EQ(Text(), row.at("shown"));
    }
}

TEST_F(DocumentedMasks, ExpandKeywords)
{
    for (const Row& row : RowsWith({"keyword", "settings", "type", "mask"}, 8)) {
        SCOPED_TRACE(Where(row));
        const Regional settings(SettingsOf(Settings(row)));
        Install(nullptr, DT_STRING);
        EXPECT_EQ(ZTE_FmtSetMask(Window(), row.at("keyword").c_str(), TypeOf(row.at("type"))), 1);
        EXPECT_EQ(MaskInForce(), row.at("mask"));
    }
}

TEST_F(DocumentedMasks, HaveTheDefaultsNamed)
{
    for (const Row& row : RowsWith({"type", "default mask", "shown when empty"}, 6)) {
        SCOPED_TRACE(Where(row));
        Install(nullptr, TypeOf(row.at("type")));
        EXPECT_EQ(MaskInForce(), row.at("default mask"));
        EXPECT_EQ(Text(), row.at("shown when empty"));
    }
}

TEST_F(DocumentedMasks, AreRefusedAsNamed)
{
    for (const Row& row : RowsWith({"refused mask", "type", "because"}, 20)) {
        SCOPED_TRACE(Where(row));
        Install(nullptr, DT_STRING);
        EXPECT_EQ(ZTE_FmtSetMask(Window(), row.at("refused mask").c_str(), TypeOf(row.at("type"))), 0);
    }
}

}  // namespace
}  // namespace zttest
