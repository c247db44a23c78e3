// The examples of docs/spin.md: every row of its tables is played and must come out as written.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "tests/spin/spin_test.h"

namespace zttest {
namespace {

using Row = std::vector<std::string>;

// The file stands beside the sources that this program was built from.
std::string DocumentPath()
{
    std::string path = __FILE__;
    for (char& c : path)
        c = c == '\\' ? '/' : c;
    path = path.substr(0, path.rfind("/tests/")) + "/docs/spin.md";
    return path[0] == '/' ? "Z:" + path : path;
}

std::string WithoutMarks(std::string cell)
{
    const size_t first = cell.find_first_not_of(" `");
    const size_t last = cell.find_last_not_of(" `");
    return first == std::string::npos ? "" : cell.substr(first, last - first + 1);
}

Row CellsOf(const std::string& line)
{
    Row cells;
    std::istringstream rest(line.substr(1));
    for (std::string cell; std::getline(rest, cell, '|');)
        cells.push_back(WithoutMarks(cell));
    return cells;
}

// The rows below every header that begins with a column.
std::vector<Row> RowsUnder(const std::string& firstColumn)
{
    std::vector<Row> rows;
    std::ifstream document(DocumentPath());
    bool inside = false;
    for (std::string line; std::getline(document, line);) {
        if (line.empty() || line[0] != '|') {
            inside = false;
            continue;
        }
        const Row cells = CellsOf(line);
        if (cells[0] == firstColumn)
            inside = true;
        else if (inside && cells[0].find("---") == std::string::npos)
            rows.push_back(cells);
    }
    return rows;
}

std::string WithTabs(std::string text)
{
    for (size_t at = text.find("<tab>"); at != std::string::npos; at = text.find("<tab>"))
        text.replace(at, 5, "\t");
    return text;
}

class Documentation : public SpinTest {
protected:
    void PressAll(const std::string& keys)
    {
        std::istringstream names(keys);
        for (std::string name; names >> name;) {
            ASSERT_TRUE(name == "Up" || name == "Down") << name;
            Step(name == "Up" ? Arrow::Up : Arrow::Down);
        }
    }
    static int32_t TypeNamed(const std::string& name)
    {
        const std::pair<const char*, int32_t> types[] = {
            {"number",    DT_NUMBER  },
            {"decimal",   DT_DECIMAL },
            {"date",      DT_DATE    },
            {"time",      DT_TIME    },
            {"date-time", DT_DATETIME}
        };
        for (const auto& type : types)
            if (name == type.first)
                return type.second;
        ADD_FAILURE() << "no type is called " << name;
        return DT_STRING;
    }
};

TEST_F(Documentation, ExamplesOfStepsComeOutAsWritten)
{
    const std::vector<Row> rows = RowsUnder("type");
    ASSERT_GT(rows.size(), 30u) << DocumentPath();
    for (const Row& row : rows) {
        ASSERT_EQ(row.size(), 7u) << row[0];
        SCOPED_TRACE(row[1] + " " + row[2] + ", from " + row[4]);
        const char* range = row[2] == "none" ? nullptr : row[2].c_str();
        MakeSpin(row[1].c_str(), TypeNamed(row[0]), range, static_cast<uint32_t>(std::stoul(row[3])), nullptr);
        Show(row[4]);
        PressAll(row[5]);
        EXPECT_EQ(Shown(), row[6]);
    }
}

TEST_F(Documentation, ExamplesOfCodeTablesComeOutAsWritten)
{
    const std::vector<Row> rows = RowsUnder("code table");
    ASSERT_GE(rows.size(), 5u) << DocumentPath();
    for (const Row& row : rows) {
        ASSERT_EQ(row.size(), 4u) << row[0];
        SCOPED_TRACE(row[0]);
        MakeCodeTable("XXXXXX", DT_STRING, WithTabs(row[0]).c_str(), SPINSTYLE_CODETABLE);
        PressAll(row[1]);
        EXPECT_EQ(Text(), row[2]);
        EXPECT_EQ(Value(), row[3]);
    }
}

}  // namespace
}  // namespace zttest
