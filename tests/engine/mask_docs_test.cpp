// The examples of docs/masks.md: every row of its tables with a mask, a keyword or a default in it comes out as
// written.
#include "tests/support/clipboard.h"
#include "tests/support/documents.h"
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

const RegionalSet& SettingsOf(const DocumentRow& row)
{
    const bool named = row.Has("settings") && !row["settings"].empty();
    return named ? SettingsNamed(row["settings"]) : kUnitedStates;
}

std::vector<DocumentRow> Rows(const std::vector<const char*>& columns)
{
    return DocumentRows("docs/masks.md", columns);
}

class DocumentedMask : public ValueTest, public OfRow<DocumentRow> {
protected:
    void InstallIt() { Install(GetParam()["mask"].c_str(), TypeNamed(GetParam()["type"])); }

    const Regional regional_{SettingsOf(GetParam())};
};

class DocumentedData : public DocumentedMask {};

ROW_TEST(DocumentedData, IsShownAsWritten)
{
    InstallIt();
    EXPECT_EQ(ShownFor(GetParam()["data"]), GetParam()["shown"]);
}

// Keywords expand, and the empty mask stands for the default, which a string has not; every other mask is in force as
// it is written.
ROW_TEST(DocumentedData, LeavesItsMaskInForce)
{
    InstallIt();
    const std::string& mask = GetParam()["mask"];
    const bool stands =
        (!mask.empty() || control_->DataType() == DT_STRING) && mask.find("[date]") != 0 && mask.find("[currency") != 0;
    EXPECT_EQ(MaskInForce() == mask, stands) << MaskInForce();
}

const std::vector<DocumentRow> kDataRows = Rows({"mask", "type", "data", "shown"});
TEST_ROWS_NAMED(Masks, DocumentedData, LineName, kDataRows);

class DocumentedTyping : public DocumentedMask {};

ROW_TEST(DocumentedTyping, IsTaken)
{
    InstallIt();
    PutCaret(0);
    Type(GetParam()["typed"]);
    EXPECT_EQ(Text(), GetParam()["shown"]);
}

const std::vector<DocumentRow> kTypingRows = Rows({"mask", "type", "typed", "shown"});
TEST_ROWS_NAMED(Masks, DocumentedTyping, LineName, kTypingRows);

class DocumentedOvertyping : public DocumentedMask {};

ROW_TEST(DocumentedOvertyping, Gives)
{
    Given(GetParam()["mask"].c_str(), TypeNamed(GetParam()["type"]), GetParam()["over"]);
    SelectAll();
    Type(GetParam()["keys"]);
    EXPECT_EQ(Text(), GetParam()["gives"]);
}

const std::vector<DocumentRow> kOvertypingRows = Rows({"mask", "type", "over", "keys", "gives"});
TEST_ROWS_NAMED(Masks, DocumentedOvertyping, LineName, kOvertypingRows);

class DocumentedPaste : public DocumentedMask {};

ROW_TEST(DocumentedPaste, Gives)
{
    Given(GetParam()["mask"].c_str(), TypeNamed(GetParam()["type"]), GetParam()["over"]);
    CopyToClipboard(GetParam()["pasted"]);
    control_->Paste();
    EXPECT_EQ(Text(), GetParam()["gives"]);
}

const std::vector<DocumentRow> kPasteRows = Rows({"mask", "type", "over", "pasted", "gives"});
TEST_ROWS_NAMED(Masks, DocumentedPaste, LineName, kPasteRows);

class DocumentedKeyword : public DocumentedMask {};

ROW_TEST(DocumentedKeyword, Expands)
{
    Install(nullptr, DT_STRING);
    EXPECT_EQ(SetMask(GetParam()["keyword"], TypeNamed(GetParam()["type"])), 1);
    EXPECT_EQ(MaskInForce(), GetParam()["mask"]);
}

const std::vector<DocumentRow> kKeywordRows = Rows({"keyword", "settings", "type", "mask"});
TEST_ROWS_NAMED(Masks, DocumentedKeyword, LineName, kKeywordRows);

class DocumentedDefault : public DocumentedMask {};

ROW_TEST(DocumentedDefault, StandsIn)
{
    Install(nullptr, TypeNamed(GetParam()["type"]));
    EXPECT_EQ(MaskInForce(), GetParam()["default mask"]);
    EXPECT_EQ(Text(), GetParam()["shown when empty"]);
}

const std::vector<DocumentRow> kDefaultRows = Rows({"type", "default mask", "shown when empty"});
TEST_ROWS_NAMED(Masks, DocumentedDefault, LineName, kDefaultRows);

class DocumentedRefusal : public DocumentedMask {};

ROW_TEST(DocumentedRefusal, IsRefused)
{
    Install(nullptr, DT_STRING);
    EXPECT_EQ(SetMask(GetParam()["refused mask"], TypeNamed(GetParam()["type"])), 0);
}

const std::vector<DocumentRow> kRefusedRows = Rows({"refused mask", "type", "because"});
TEST_ROWS_NAMED(Masks, DocumentedRefusal, LineName, kRefusedRows);

TEST(DocumentedMasks, AreFound)
{
    EXPECT_GE(kDataRows.size(), 50u);
    EXPECT_GE(kTypingRows.size(), 25u);
    EXPECT_GE(kOvertypingRows.size(), 5u);
    EXPECT_GE(kPasteRows.size(), 5u);
    EXPECT_GE(kKeywordRows.size(), 8u);
    EXPECT_GE(kDefaultRows.size(), 6u);
    EXPECT_GE(kRefusedRows.size(), 20u);
}

}  // namespace
}  // namespace zttest
