// The examples of docs/spin.md: every row of its tables is played and comes out as written.
#include <sstream>

#include "tests/support/documents.h"
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

class DocumentedSteps : public SpinTest, public OfRow<DocumentRow> {
protected:
    void StepAll(const std::string& keys)
    {
        std::istringstream names(keys);
        for (std::string name; names >> name;) {
            ASSERT_TRUE(name == "Up" || name == "Down") << name;
            Step(name == "Up" ? Arrow::Up : Arrow::Down);
        }
    }
};

class DocumentedStep : public DocumentedSteps {};

ROW_TEST(DocumentedStep, LeadsToWhatIsWritten)
{
    const DocumentRow& row = GetParam();
    const char* range = row["range"] == "none" ? nullptr : row["range"].c_str();
    const auto increment = static_cast<uint32_t>(std::stoul(row["increment"]));
    MakeSpin(row["mask"].c_str(), TypeNamed(row["type"]), range, increment, nullptr);
    Show(row["from"]);
    StepAll(row["keys"]);
    EXPECT_EQ(Shown(), row["becomes"]);
}

const std::vector<DocumentRow> kSteps =
    DocumentRows("docs/spin.md", {"type", "mask", "range", "increment", "from", "keys", "becomes"});
TEST_ROWS_NAMED(Spin, DocumentedStep, LineName, kSteps);

class DocumentedCodeTable : public DocumentedSteps {};

ROW_TEST(DocumentedCodeTable, ComesOutAsWritten)
{
    const DocumentRow& row = GetParam();
    MakeCodeTable("XXXXXX", DT_STRING, WithTabs(row["code table"]).c_str(), SPINSTYLE_CODETABLE);
    StepAll(row["keys"]);
    EXPECT_EQ(Text(), row["shows"]);
    EXPECT_EQ(Value(), row["reads as"]);
}

const std::vector<DocumentRow> kCodeTables = DocumentRows("docs/spin.md", {"code table", "keys", "shows", "reads as"});
TEST_ROWS_NAMED(Spin, DocumentedCodeTable, LineName, kCodeTables);

TEST(DocumentedExamplesOfTheSpin, AreFound)
{
    EXPECT_GT(kSteps.size(), 30u);
    EXPECT_GE(kCodeTables.size(), 5u);
}

}  // namespace
}  // namespace zttest
