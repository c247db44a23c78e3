// The examples of docs/masks.md: every row of its tables with a mask, a keyword or a default in it comes out as
// written.
#include "tests/support/clipboard.h"
#include "tests/support/documents.h"
#include "tests/support/engine_test.h"

namespace zttest {
namespace {

const RegionalSet& SettingsNamed(const std::string& name)
{
    static const std::map<std::string, const RegionalSet*> sets = {
        {"US",     &kUnitedStates},
        {"German", &kGerman      },
        {"French", &kFrench      },
        {"Swiss",  &kSwiss       },
        {"ISO",    &kIso         }
    };
    const auto found = sets.find(name);
    if (found != sets.end())
        return *found->second;
    ADD_FAILURE() << "unknown settings " << name;
    return kUnitedStates;
}

const RegionalSet& SettingsOf(const DocumentRow& row)
{
    const bool named = row.Has("settings") && !row["settings"].empty();
    return named ? SettingsNamed(row["settings"]) : kUnitedStates;
}

std::vector<DocumentRow> Rows(const std::vector<const char*>& columns)
{
    return DocumentRows("docs/masks.md", columns);
}

class DocumentedMask : public ValueTest, public testing::WithParamInterface<DocumentRow> {
protected:
    void InstallIt() { Install(GetParam()["mask"].c_str(), TypeNamed(GetParam()["type"])); }

    const Regional regional_{SettingsOf(GetParam())};
};

class DocumentedData : public DocumentedMask {};

TEST_P(DocumentedData, IsShownAsWritten)
{
    InstallIt();
    EXPECT_EQ(ShownFor(GetParam()["data"]), GetParam()["shown"]);
}

// Keywords expand, and the empty mask stands for the default, which a string has not; every other mask is in force as
// it is written.
TEST_P(DocumentedData, LeavesItsMaskInForce)
{
    InstallIt();
    const std::string& mask = GetParam()["mask"];
    const bool stands =
        (!mask.empty() || control_->DataType() == DT_STRING) && mask.find("[date]") != 0 && mask.find("[currency") != 0;
    EXPECT_EQ(MaskInForce() == mask, stands) << MaskInForce();
}

const std::vector<DocumentRow> kDataRows = Rows({"mask", "type", "data", "shown"});
INSTANTIATE_TEST_SUITE_P(Masks, DocumentedData, testing::ValuesIn(kDataRows), LineName);

class DocumentedTyping : public DocumentedMask {};

TEST_P(DocumentedTyping, IsTaken)
{
    InstallIt();
    PutCaret(0);
    Type(GetParam()["typed"]);
    EXPECT_EQ(Text(), GetParam()["shown"]);
}

const std::vector<DocumentRow> kTypingRows = Rows({"mask", "type", "typed", "shown"});
INSTANTIATE_TEST_SUITE_P(Masks, DocumentedTyping, testing::ValuesIn(kTypingRows), LineName);

class DocumentedOvertyping : public DocumentedMask {};

TEST_P(DocumentedOvertyping, Gives)
{
    Given(GetParam()["mask"].c_str(), TypeNamed(GetParam()["type"]), GetParam()["over"]);
    SelectAll();
    Type(GetParam()["keys"]);
    EXPECT_EQ(Text(), GetParam()["gives"]);
}

const std::vector<DocumentRow> kOvertypingRows = Rows({"mask", "type", "over", "keys", "gives"});
INSTANTIATE_TEST_SUITE_P(Masks, DocumentedOvertyping, testing::ValuesIn(kOvertypingRows), LineName);

class DocumentedPaste : public DocumentedMask {};

TEST_P(DocumentedPaste, Gives)
{
    Given(GetParam()["mask"].c_str(), TypeNamed(GetParam()["type"]), GetParam()["over"]);
    CopyToClipboard(GetParam()["pasted"]);
    control_->Paste();
    EXPECT_EQ(Text(), GetParam()["gives"]);
}

const std::vector<DocumentRow> kPasteRows = Rows({"mask", "type", "over", "pasted", "gives"});
INSTANTIATE_TEST_SUITE_P(Masks, DocumentedPaste, testing::ValuesIn(kPasteRows), LineName);

class DocumentedKeyword : public DocumentedMask {};

TEST_P(DocumentedKeyword, Expands)
{
    Install(nullptr, DT_STRING);
    EXPECT_EQ(SetMask(GetParam()["keyword"], TypeNamed(GetParam()["type"])), 1);
    EXPECT_EQ(MaskInForce(), GetParam()["mask"]);
}

const std::vector<DocumentRow> kKeywordRows = Rows({"keyword", "settings", "type", "mask"});
INSTANTIATE_TEST_SUITE_P(Masks, DocumentedKeyword, testing::ValuesIn(kKeywordRows), LineName);

class DocumentedDefault : public DocumentedMask {};

TEST_P(DocumentedDefault, StandsIn)
{
    Install(nullptr, TypeNamed(GetParam()["type"]));
    EXPECT_EQ(MaskInForce(), GetParam()["default mask"]);
    EXPECT_EQ(Text(), GetParam()["shown when empty"]);
}

const std::vector<DocumentRow> kDefaultRows = Rows({"type", "default mask", "shown when empty"});
INSTANTIATE_TEST_SUITE_P(Masks, DocumentedDefault, testing::ValuesIn(kDefaultRows), LineName);

class DocumentedRefusal : public DocumentedMask {};

TEST_P(DocumentedRefusal, IsRefused)
{
    Install(nullptr, DT_STRING);
    EXPECT_EQ(SetMask(GetParam()["refused mask"], TypeNamed(GetParam()["type"])), 0);
}

const std::vector<DocumentRow> kRefusedRows = Rows({"refused mask", "type", "because"});
INSTANTIATE_TEST_SUITE_P(Masks, DocumentedRefusal, testing::ValuesIn(kRefusedRows), LineName);

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
