#include "tests/support/rows.h"

#include <map>
#include <numeric>

namespace zttest {
namespace {

struct AddedTest {
    const char* name;
    const char* file;
    int line;
    testing::Test* (*make)(const void* row);
};
struct AddedTable {
    const char* prefix;
    std::vector<ListedRow> rows;
};
struct RowSuite {
    std::vector<AddedTest> tests;
    std::vector<AddedTable> tables;
};

// By name. A function's variable, so that it is there before the first test adds itself.
std::map<std::string, RowSuite>& Suites()
{
    static std::map<std::string, RowSuite> suites;
    return suites;
}

// One type for all rows, so that the framework's templates are compiled once.
struct MakeTest {
    testing::Test* (*make)(const void* row);
    const void* row;

    testing::Test* operator()() const { return make(row); }
};

void List(const std::string& suite, const AddedTest& test, const AddedTable& table)
{
    const std::string listed = *table.prefix != '\0' ? std::string(table.prefix) + "/" + suite : suite;
    for (const ListedRow& row : table.rows)
        testing::RegisterTest(listed.c_str(), (std::string(test.name) + "/" + row.name).c_str(), nullptr,
                              row.text.c_str(), test.file, test.line, MakeTest{test.make, row.row});
}

}  // namespace

bool AddRowTest(const char* suite, const char* test, const char* file, int line,
                testing::Test* (*make)(const void* row))
{
    RowSuite& its = Suites()[suite];
    its.tests.push_back({test, file, line, make});
    for (const AddedTable& table : its.tables)
        List(suite, its.tests.back(), table);
    return true;
}

bool AddRows(const char* prefix, const char* suite, std::vector<ListedRow> rows)
{
    RowSuite& its = Suites()[suite];
    its.tables.push_back({prefix, std::move(rows)});
    for (const AddedTest& test : its.tests)
        List(suite, test, its.tables.back());
    return true;
}

std::vector<int> Integers(int first, int end)
{
    std::vector<int> numbers(static_cast<size_t>(end - first));
    std::iota(numbers.begin(), numbers.end(), first);
    return numbers;
}

// A table that no test reads, or a test without a row, would be a test that cannot fail.
TEST(Rows, StandInTablesThatTestsRead)
{
    for (const auto& [name, suite] : Suites()) {
        EXPECT_FALSE(suite.tests.empty()) << name << " has rows, but no test";
        EXPECT_FALSE(suite.tables.empty()) << name << " has tests, but no rows";
        for (const AddedTable& table : suite.tables)
            EXPECT_FALSE(table.rows.empty()) << table.prefix << "/" << name << " is an empty table";
    }
}

}  // namespace zttest
