// The tables of the manual: every row of docs/manual/ that tells of values, masks and settings is played and comes out as written.
#include <cstring>
#include <optional>

#include "tests/support/documents.h"
#include "tests/support/engine_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

constexpr const char* kManualPages[] = {"docs/manual/types.md",       "docs/manual/settings.md",
                                        "docs/manual/forms.md",       "docs/manual/moving.md",
                                        "docs/manual/why-default.md", "docs/manual/getting-started.md"};

// The rows of all pages, in their order.
std::vector<DocumentRow> ManualRows(const std::vector<const char*>& columns)
{
    std::vector<DocumentRow> rows;
    for (const char* page : kManualPages)
        for (const DocumentRow& row : DocumentRows(page, columns))
            rows.push_back(row);
    return rows;
}

// Lines of several pages: the number of a row keeps its name its own.
std::string ManualRowName(const DocumentRow& row)
{
    return row.page + LineName(row);
}

const char* const kManualStates[] = {"empty", "incomplete", "invalid", "out of range", "complete"};

// As the pages write what a getter gives: nothing for the empty text and the empty record, null for a null pointer.
std::string AsWritten(const std::string& value)
{
    return value == kNullResult ? "null" : value;
}

class ManualRow : public ValueTest, public OfRow<DocumentRow> {
protected:
    std::string Cell(const char* heading, const char* otherwise = "") const
    {
        return GetParam().Has(heading) ? GetParam()[heading] : otherwise;
    }
    int32_t Type() const { return TypeNamed(GetParam()["type"]); }

    // Those of the row; tests start under the settings of the United States.
    void UseSettings()
    {
        if (GetParam().Has("settings") && GetParam()["settings"] != "US")
            regional_.emplace(SettingsNamed(GetParam()["settings"]));
    }

    // The control that the row tells of, with its data.
    void MakeIt()
    {
        const std::string mask = GetParam()["mask"];
        const std::string data = Cell("data");
        const std::string range = Cell("range");
        const bool hasSpin = !range.empty();
        Config config;
        config.mask = mask.c_str();
        config.type = Type();
        config.data = data.empty() ? nullptr : data.c_str();
        config.range = hasSpin ? range.c_str() : nullptr;
        config.increment = 1;
        config.options = (Cell("editing", "modern") == "classic" ? 0u : ZTEO_MODERN) | (hasSpin ? ZTEO_SPIN : 0u);
        Make(config);
    }

    void ExpectGetters()
    {
        EXPECT_EQ(AsWritten(Read()), GetParam()["value"]);
        EXPECT_EQ(AsWritten(control_->DataString()), GetParam()["canonical"]);
        EXPECT_EQ(kManualStates[control_->State()], GetParam()["state"]);
    }

    std::optional<Regional> regional_;
};

// ---- what is shown and read

class ManualValue : public ManualRow {};

ROW_TEST(ManualValue, IsShownAndReadAsWritten)
{
    UseSettings();
    MakeIt();
    Play(Cell("keys"));
    EXPECT_EQ(Text(), GetParam()["shown"]);
    ExpectGetters();
    EXPECT_EQ(MaskInForce(), Cell("in force", MaskInForce().c_str()));
}

const std::vector<DocumentRow> kManualValues =
    ManualRows({"mask", "type", "data", "keys", "shown", "value", "canonical", "state"});
TEST_ROWS_NAMED(Manual, ManualValue, ManualRowName, kManualValues);

// ---- a window text that the program or another one has set

class ManualWindowText : public ManualRow {};

ROW_TEST(ManualWindowText, IsReadAsWritten)
{
    MakeIt();
    SetText(GetParam()["window text"]);
    ExpectGetters();
}

const std::vector<DocumentRow> kWindowTexts =
    ManualRows({"mask", "type", "window text", "value", "canonical", "state"});
TEST_ROWS_NAMED(Manual, ManualWindowText, ManualRowName, kWindowTexts);

// ---- settings that change under a control

class ManualChange : public ManualRow {};

ROW_TEST(ManualChange, IsSurvivedAsWritten)
{
    const Regional before(SettingsNamed(GetParam()["before"]));
    MakeIt();
    EXPECT_EQ(Text(), GetParam()["shown"]);
    EXPECT_EQ(AsWritten(control_->DataString()), GetParam()["read before"]);
    const std::string value = control_->DataString();
    const Regional after(SettingsNamed(GetParam()["after"]));
    EXPECT_EQ(AsWritten(control_->DataString()), GetParam()["read after"]);
    SetMask(GetParam()["mask"], Type());
    EXPECT_EQ(control_->TrySetDataString(value), 0);
    EXPECT_EQ(Text(), GetParam()["shown anew"]);
}

const std::vector<DocumentRow> kChanges =
    ManualRows({"before", "after", "mask", "type", "data", "shown", "read before", "read after", "shown anew"});
TEST_ROWS_NAMED(Manual, ManualChange, ManualRowName, kChanges);

// ---- values that are tried

class ManualTry : public ManualRow {};

const std::map<std::string, int32_t> kManualReasons = {
    {"0",                  0                 },
    {"ZTR_WRONG_KIND",     ZTR_WRONG_KIND    },
    {"ZTR_DOES_NOT_FIT",   ZTR_DOES_NOT_FIT  },
    {"ZTR_IN_DOUBT",       ZTR_IN_DOUBT      },
    {"ZTR_DOES_NOT_EXIST", ZTR_DOES_NOT_EXIST},
    {"ZTR_NO_SUCH_ENTRY",  ZTR_NO_SUCH_ENTRY },
};

ROW_TEST(ManualTry, IsAnsweredAsWritten)
{
    UseSettings();
    MakeIt();
    EXPECT_EQ(control_->TrySetDataString(GetParam()["tried"]), kManualReasons.at(GetParam()["result"]));
    EXPECT_EQ(Text(), GetParam()["shown"]);
}

const std::vector<DocumentRow> kTries = ManualRows({"mask", "type", "tried", "result", "shown"});
TEST_ROWS_NAMED(Manual, ManualTry, ManualRowName, kTries);

// ---- code that is printed

// The blocks of a page between ``` and ```: of C, or lines of a resource script.
std::vector<std::string> CodeBlocks(const std::string& page)
{
    std::vector<std::string> blocks;
    for (const char* start : {"```c\n", "```rc\n"})
        for (size_t at = page.find(start); at != std::string::npos; at = page.find(start, at + 1)) {
            const size_t first = at + std::strlen(start);
            blocks.push_back(page.substr(first, page.find("```", first) - first));
        }
    return blocks;
}

// What is printed is compiled and run: it stands in a sample, or in the form that the tests make.
TEST(ManualCode, StandsInASourceThatIsRun)
{
    std::string sources;
    for (const char* source : {"tests/win32/manual_form.c", "samples/first_control/first.c",
                               "samples/changed_settings/changed.c", "samples/subclassed_edit/subclassed.c",
                               "samples/dialog/dialog.rc", "samples/dialog/dialog.c", "samples/order_form/order.c"})
        sources += SourceText(source);
    size_t found = 0;
    for (const char* page : kManualPages)
        for (const std::string& block : CodeBlocks(SourceText(page))) {
            EXPECT_NE(sources.find(block), std::string::npos) << page << " prints\n" << block;
            ++found;
        }
    EXPECT_GE(found, 8u);
}

// ---- masks that fall back to the default

class ManualFault : public ManualRow {
protected:
    std::string GivenMask() const
    {
        const std::string mask = GetParam()["mask"];
        return mask == "256 times #" ? std::string(256, '#') : mask;
    }
    std::string DefaultMask()
    {
        SetMask("", Type());
        return MaskInForce();
    }
};

const std::map<std::string, int32_t> kManualFaults = {
    {"ZTM_EMPTY",         ZTM_EMPTY        },
    {"ZTM_TOO_LONG",      ZTM_TOO_LONG     },
    {"ZTM_ESCAPE",        ZTM_ESCAPE       },
    {"ZTM_KEYWORD",       ZTM_KEYWORD      },
    {"ZTM_OUT_OF_PLACE",  ZTM_OUT_OF_PLACE },
    {"ZTM_TWICE",         ZTM_TWICE        },
    {"ZTM_FIELD_LENGTH",  ZTM_FIELD_LENGTH },
    {"ZTM_EXCLUDED",      ZTM_EXCLUDED     },
    {"ZTM_FIELD_MISSING", ZTM_FIELD_MISSING},
    {"ZTM_NO_DIGIT",      ZTM_NO_DIGIT     },
};

ROW_TEST(ManualFault, IsToldAndCured)
{
    UseSettings();
    const MaskFault fault = FaultOf(GivenMask(), Type());
    EXPECT_EQ(fault.reason, kManualFaults.at(GetParam()["reason"]));
    EXPECT_EQ(std::to_string(fault.position), GetParam()["position"]);
    Install(nullptr, DT_STRING);
    EXPECT_EQ(SetMask(GivenMask(), Type()), 0);
    const std::string inForce = MaskInForce();
    EXPECT_EQ(inForce, DefaultMask());
    const std::string cure = GetParam()["instead"];
    EXPECT_EQ(FaultOf(cure, Type()).reason, ZTM_FITS);
    EXPECT_EQ(SetMask(cure, Type()), 1);
}

const std::vector<DocumentRow> kFaultRows = ManualRows({"mask", "type", "reason", "position", "instead"});
TEST_ROWS_NAMED(Manual, ManualFault, ManualRowName, kFaultRows);

TEST(ManualFaults, AreAllToldOf)
{
    std::map<std::string, int32_t> missing = kManualFaults;
    for (const DocumentRow& row : kFaultRows)
        missing.erase(row["reason"]);
    EXPECT_TRUE(missing.empty()) << missing.begin()->first;
}

TEST(ManualTables, AreFound)
{
    EXPECT_GE(kManualValues.size(), 60u);
    EXPECT_GE(kWindowTexts.size(), 6u);
    EXPECT_GE(kChanges.size(), 3u);
    EXPECT_GE(kTries.size(), 6u);
    EXPECT_GE(kFaultRows.size(), 15u);
}

}  // namespace
}  // namespace zttest
