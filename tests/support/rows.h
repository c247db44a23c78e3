// Tests that run once for each row of a table. They stand as tests of their own in the framework's lists, as its own tests with
// parameters do, but a row needs no templates there: those take most of the time in which tests are compiled.
//
//     struct SumCase { const char* name; int left; int right; int sum; };
//     class Sums : public RowTest<SumCase> {};
//
//     ROW_TEST(Sums, AreTheSumOfBoth) { EXPECT_EQ(GetParam().left + GetParam().right, GetParam().sum); }
//
//     const SumCase kSums[] = {{"OfNothing", 0, 0, 0}, {"OfTwo", 1, 2, 3}};
//     TEST_ROWS(Small, Sums, kSums);        // Small/Sums.AreTheSumOfBoth/OfNothing, Small/Sums.AreTheSumOfBoth/OfTwo
#pragma once

#include <gtest/gtest.h>

#include <iterator>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

namespace zttest {

// What a test on rows needs beside its fixture: the row it runs on.
template <class RowType>
class OfRow {
public:
    using Row = RowType;

    static void UseRow(const void* row) { row_ = static_cast<const Row*>(row); }

protected:
    static const Row& GetParam() { return *row_; }

private:
    static const Row* row_;
};
template <class RowType>
const RowType* OfRow<RowType>::row_ = nullptr;

template <class RowType>
class RowTest : public testing::Test, public OfRow<RowType> {
};

// A row as the framework lists it: its name and its text for a failure's message.
struct ListedRow {
    const void* row;
    std::string name;
    std::string text;
};

// Adds a test to a suite, or a table of rows: each test of the suite runs once for each row. Tests and tables may come in any order.
// A table of another file is had from a function, so that it is made before it is read.
bool AddRowTest(const char* suite, const char* test, const char* file, int line,
                testing::Test* (*make)(const void* row));
bool AddRows(const char* prefix, const char* suite, std::vector<ListedRow> rows);

// The numbers from first to end, without end: the rows of a test that counts.
std::vector<int> Integers(int first, int end);

// A row is named by its member "name"; one that has none, by its number in the table.
template <class Row, class = void>
struct RowNames {
    static std::string Of(const Row& /*row*/, size_t index) { return std::to_string(index); }
};
template <class Row>
struct RowNames<Row, std::void_t<decltype(Row::name)>> {
    static std::string Of(const Row& row, size_t /*index*/) { return row.name; }
};

template <class Row>
std::string TextOfRow(const Row& row)
{
    using testing::internal::PrintTo;
    std::ostringstream out;
    PrintTo(row, &out);
    return out.str();
}

// name: how a row is named otherwise, or null.
template <class Row>
std::vector<ListedRow> ListedRows(const Row* rows, size_t count, std::string (*name)(const Row& row))
{
    std::vector<ListedRow> listed;
    for (size_t i = 0; i < count; ++i)
        listed.push_back(
            {rows + i, name != nullptr ? name(rows[i]) : RowNames<Row>::Of(rows[i], i), TextOfRow(rows[i])});
    return listed;
}

}  // namespace zttest

// A test of a suite that is derived from RowTest or OfRow; its body follows.
#define ROW_TEST(suite, test)                                                                         \
    class suite##_##test##_Test final : public suite {                                                \
        void TestBody() override;                                                                     \
    };                                                                                                \
    [[maybe_unused]] const bool suite##_##test##_added =                                              \
        zttest::AddRowTest(#suite, #test, __FILE__, __LINE__, [](const void* row) -> testing::Test* { \
            suite::UseRow(row);                                                                       \
            return new suite##_##test##_Test;                                                         \
        });                                                                                           \
    void suite##_##test##_Test::TestBody()

// The rows of a suite: an array or a vector, which is kept; with a function that names them; or one after the other.
#define TEST_ROWS(prefix, suite, rows) TEST_ROWS_NAMED(prefix, suite, nullptr, rows)
#define TEST_ROWS_NAMED(prefix, suite, nameOfRow, ...)                                     \
    const auto& prefix##_##suite##_rows = __VA_ARGS__;                                     \
    [[maybe_unused]] const bool prefix##_##suite##_added =                                 \
        zttest::AddRows(#prefix, #suite,                                                   \
                        zttest::ListedRows<suite::Row>(std::data(prefix##_##suite##_rows), \
                                                       std::size(prefix##_##suite##_rows), nameOfRow))
#define TEST_ROWS_OF(prefix, suite, ...)                          \
    const suite::Row prefix##_##suite##_values[] = {__VA_ARGS__}; \
    TEST_ROWS(prefix, suite, prefix##_##suite##_values)
