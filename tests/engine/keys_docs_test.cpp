// The tables of docs/manual/keys.md and docs/manual/clipboard.md: every row is played classic and modern, and leaves what is written.
#include "tests/support/clipboard.h"
#include "tests/support/documents.h"
#include "tests/support/engine_test.h"
#include "tests/support/marked_text.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

std::string CellOf(const DocumentRow& row, const char* heading)
{
    return row.Has(heading) ? row[heading] : "";
}

// The page draws the caret in another way: a bar would end the cell.
std::string WithCaret(std::string text)
{
    const std::string drawn = "\xC2\xA6";
    const size_t at = text.find(drawn);
    return at == std::string::npos ? text : text.replace(at, drawn.size(), "|");
}

// What a cell says: `07/|04/95`, or `07/|04/95` beeps.
struct Outcome {
    std::string shown;
    bool beeps;
};

Outcome OutcomeOf(std::string cell)
{
    const std::string told = "` beeps";
    const bool beeps = cell.size() > told.size() && cell.compare(cell.size() - told.size(), told.size(), told) == 0;
    if (beeps)
        cell = cell.substr(1, cell.size() - told.size() - 1);
    return {WithCaret(cell), beeps};
}

const RegionalSet& SettingsOfKeys(const DocumentRow& row)
{
    const std::string name = CellOf(row, "settings");
    return name.empty() ? kUnitedStates : SettingsNamed(name);
}

class DocumentedKeys : public EditTest, public OfRow<DocumentRow> {
protected:
    void PlayUnder(uint32_t options)
    {
        const DocumentRow& row = GetParam();
        MakeIt(options);
        control_->Select(0, 0);
        if (!CellOf(row, "data").empty())
            control_->SetDataString(row["data"]);
        if (!CellOf(row, "from").empty())
            ShowFrom(WithCaret(row["from"]));
        if (CellOf(row, "field") == "read-only")
            control_->SetReadOnly();
        if (CellOf(row, "field") == "disabled")
            control_->Disable();
        CopyToClipboard(row.Has("clipboard") ? row["clipboard"] : "kept");
        control_->Forget();
        Play(CellOf(row, "keys").empty() ? "{Ctrl+V}" : row["keys"]);
    }

    void Check(const char* column, const char* value)
    {
        const Outcome outcome = OutcomeOf(GetParam()[column]);
        EXPECT_EQ(Shown(), outcome.shown);
        EXPECT_EQ(Beeps() > 0, outcome.beeps);
        if (GetParam().Has("clipboard after")) {
            EXPECT_EQ(ClipboardText(), GetParam()["clipboard after"]);
        }
        const std::string read = control_->Read();
        if (GetParam().Has(value)) {
            EXPECT_EQ(read == kNullResult ? "null" : read, GetParam()[value]);
        }
    }

private:
    void MakeIt(uint32_t options)
    {
        const DocumentRow& row = GetParam();
        const std::string mask = row["mask"];
        const std::string range = CellOf(row, "range");
        const std::string codes = WithTabs(CellOf(row, "code table"));
        Config config;
        config.mask = mask.c_str();
        config.type = TypeNamed(row["type"]);
        config.options = options;
        config.increment = 1;
        if (!range.empty())
            config.options |= ZTEO_SPIN;
        if (!range.empty() && range != "none")
            config.range = range.c_str();
        if (!codes.empty()) {
            config.options |=
                ZTEO_SPIN | ZTEO_CODE_DISPLAY | (CellOf(row, "list") == "pick list" ? ZTEO_CODE_PICK : 0u);
            config.codes = codes.c_str();
        }
        Make(config);
    }

    // As data, as far as there is a value that is shown so; what is half filled in is put there as a text.
    void ShowFrom(const std::string& marked)
    {
        const Marked text = Unmark(marked);
        const bool isString = control_->DataType() == DT_STRING;
        const std::string data = isString && !text.text.empty() ? control_->Unformat(text.text.c_str()) : text.text;
        control_->SetDataString(data);
        if (Text() != text.text)
            control_->SetText(text.text);
        ASSERT_EQ(Text(), text.text);
        control_->Select(text.start, text.end);
    }

    const Regional regional_{SettingsOfKeys(GetParam())};
};

class ClassicKeys : public DocumentedKeys {};
class ModernKeys : public DocumentedKeys {};

ROW_TEST(ClassicKeys, LeaveWhatIsWritten)
{
    PlayUnder(0);
    Check("classic", "classic reads");
}

ROW_TEST(ModernKeys, LeaveWhatIsWritten)
{
    PlayUnder(ZTEO_MODERN);
    Check("modern", "modern reads");
}

constexpr char kKeysPage[] = "docs/manual/keys.md";
constexpr char kClipboardPage[] = "docs/manual/clipboard.md";
const std::vector<DocumentRow> kClassicKeys = DocumentRows(kKeysPage, {"mask", "type", "classic"});
const std::vector<DocumentRow> kModernKeys = DocumentRows(kKeysPage, {"mask", "type", "modern"});
const std::vector<DocumentRow> kClassicClipboard = DocumentRows(kClipboardPage, {"mask", "type", "classic"});
const std::vector<DocumentRow> kModernClipboard = DocumentRows(kClipboardPage, {"mask", "type", "modern"});
TEST_ROWS_NAMED(Keys, ClassicKeys, LineName, kClassicKeys);
TEST_ROWS_NAMED(Keys, ModernKeys, LineName, kModernKeys);
TEST_ROWS_NAMED(Clipboard, ClassicKeys, LineName, kClassicClipboard);
TEST_ROWS_NAMED(Clipboard, ModernKeys, LineName, kModernClipboard);

TEST(DocumentedKeysOfAllTypes, AreFound)
{
    EXPECT_GE(kClassicKeys.size(), 200u);
    EXPECT_GE(kModernKeys.size(), 210u);
    EXPECT_GE(kClassicClipboard.size(), 85u);
    EXPECT_GE(kModernClipboard.size(), 85u);
}

}  // namespace
}  // namespace zttest
