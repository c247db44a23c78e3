// Rows of parameterized tests: each has a name, which the failure shows.
#pragma once

#include <gtest/gtest.h>

#include <string>

namespace zttest {

template <class Row>
std::string RowName(const testing::TestParamInfo<Row>& row)
{
    return row.param.name;
}

}  // namespace zttest
