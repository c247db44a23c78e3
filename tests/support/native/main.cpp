// Runs the tests of one program on fields in memory, under the settings of the United States.
#include <gtest/gtest.h>

#include "tests/support/profile.h"

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const zttest::Regional standard(zttest::kUnitedStates);
    return RUN_ALL_TESTS();
}
