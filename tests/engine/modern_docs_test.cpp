// The table of docs/modern.md: every row is played classic and modern, and both show what is written.
#include "tests/support/documents.h"
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

class TwoReadings : public EditTest, public OfRow<DocumentRow> {
protected:
    void PlayUnder(uint32_t options)
    {
        const Regional regional(kUnitedStates);
        Config config;
        const std::string mask = GetParam()["mask"];
        const std::string data = GetParam()["data"];
        config.mask = mask.c_str();
        config.type = TypeNamed(GetParam()["type"]);
        config.data = data.empty() ? nullptr : data.c_str();
        config.options = options;
        Make(config);
        Play(GetParam()["keys"]);
    }
};

ROW_TEST(TwoReadings, ShowsTheClassicOne)
{
    PlayUnder(0);
    EXPECT_EQ(Text(), GetParam()["classic"]);
}

ROW_TEST(TwoReadings, ShowsTheModernOne)
{
    PlayUnder(ZTEO_MODERN);
    EXPECT_EQ(Text(), GetParam()["modern"]);
}

const std::vector<DocumentRow> kRows = DocumentRows("docs/modern.md", {"mask", "type", "keys", "classic", "modern"});
TEST_ROWS_NAMED(Modern, TwoReadings, LineName, kRows);

}  // namespace
}  // namespace zttest
