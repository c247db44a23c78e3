// Every mask character as it takes, completes and refuses what is typed on it.
#include "tests/support/classic_rows.h"
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

class MaskCharacter : public KeyTable {};

ROW_TEST(MaskCharacter, LeadsTo)
{
    Check(GetParam());
}

TEST_ROWS(String, MaskCharacter, classic::kStringPositions);
TEST_ROWS(Month, MaskCharacter, classic::kMonths);
TEST_ROWS(MonthName, MaskCharacter, classic::kMonthNames);
TEST_ROWS(Day, MaskCharacter, classic::kDays);
TEST_ROWS(DayOfYear, MaskCharacter, classic::kDaysOfTheYear);
TEST_ROWS(Year, MaskCharacter, classic::kYears);
TEST_ROWS(Time, MaskCharacter, classic::kTimes);
TEST_ROWS(Completed, MaskCharacter, classic::kCompletedFields);
TEST_ROWS(Shared, MaskCharacter, classic::kSharedPositions);

}  // namespace
}  // namespace zttest
