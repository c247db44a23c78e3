// The examples on the system's control: that they are true.
#include <gtest/gtest.h>

#include "tests/field/real_player.h"
#include "tests/field/rows.h"

namespace zttest {
namespace {

class EditControlOfTheSystem : public testing::TestWithParam<FieldCase> {};

TEST_P(EditControlOfTheSystem, LeadsTo)
{
    RealPlayer player(GetParam().style);
    Check(player, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Rows, EditControlOfTheSystem, testing::ValuesIn(kFieldCases), NameOf);

}  // namespace
}  // namespace zttest
