// The examples on the system's control: that they are true.
#include <gtest/gtest.h>

#include "tests/field/real_player.h"
#include "tests/field/rows.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

class EditControlOfTheSystem : public RowTest<FieldCase> {};

ROW_TEST(EditControlOfTheSystem, LeadsTo)
{
    RealPlayer player(GetParam().style);
    Check(player, GetParam());
}

TEST_ROWS(Rows, EditControlOfTheSystem, FieldCases());

}  // namespace
}  // namespace zttest
