// The table of docs/manual/notifications.md: every row is done to a live control, and its parent hears what is written, in that order.
#include "tests/support/clipboard.h"
#include "tests/support/documents.h"
#include "tests/support/rows.h"
#include "tests/win32/modern_window.h"

namespace zttest {
namespace {

class ManualNotice : public ModernWindow, public OfRow<DocumentRow> {
protected:
    std::string Cell(const char* heading) const { return GetParam().Has(heading) ? GetParam()[heading] : ""; }

    void MakeIt()
    {
        const std::string mask = Cell("mask");
        const std::string data = Cell("data");
        const std::string range = Cell("range");
        Config config;
        config.mask = mask.c_str();
        config.type = TypeNamed(Cell("type"));
        config.data = data.empty() ? nullptr : data.c_str();
        config.options = ZTEO_AUTOSKIP;
        if (!range.empty()) {
            config.range = range == "none" ? nullptr : range.c_str();
            config.increment = 1;
            config.options |= ZTEO_SPIN;
        }
        ModernWindow::Make(config, Cell("editing") == "modern" ? ZTEO_MODERN : 0u);
    }

    // What is done: keys, or one of the words below and a text.
    void Do(const std::string& act)
    {
        static const std::map<std::string, void (*)(ManualNotice&, const std::string&)> acts = {
            {"paste",          [](ManualNotice& it, const std::string& text) { CopyToClipboard(text), it.Send(WM_PASTE); }       },
            {"cut",            [](ManualNotice& it, const std::string&) { it.Send(WM_CUT); }                                     },
            {"undo",           [](ManualNotice& it, const std::string&) { it.Send(WM_UNDO); }                                    },
            {"data",
             [](ManualNotice& it,                   const std::string& text) { ZTE_FmtSetDataString(it.Window(), text.c_str()); }},
            {"try",            [](ManualNotice& it, const std::string& text) { ZTE_TrySetDataString(it.Window(), text.c_str()); }},
            {"window text",    [](ManualNotice& it, const std::string& text) { it.SendText(WM_SETTEXT, text.c_str()); }          },
            {"mask",           [](ManualNotice& it, const std::string& text) { it.SetMask(text); }                               },
            {"lose the focus", [](ManualNotice& it, const std::string&) { it.Send(WM_KILLFOCUS); }                               },
        };
        for (const auto& known : acts)
            if (act.compare(0, known.first.size(), known.first) == 0 &&
                (act.size() == known.first.size() || act[known.first.size()] == ' '))
                return known.second(*this, act.substr(std::min(act.size(), known.first.size() + 1)));
        Play(act);
    }
    void SetMask(const std::string& mask) { ZTE_FmtSetMask(Window(), mask.c_str(), TypeNamed(Cell("type"))); }

    std::string Heard()
    {
        std::string heard;
        for (const std::string& told : TakeTold())
            heard += (heard.empty() ? "" : ", ") + told;
        if (Beeps() > 0)
            heard += (heard.empty() ? "" : ", ") + std::string("beep");
        return heard;
    }
};

ROW_TEST(ManualNotice, ComesAsWritten)
{
    const std::string act = Cell("done");
    MakeIt();
    const std::string before = Cell("first");
    if (!before.empty())
        Do(before);
    TakeTold();
    beeps_.Forget();
    Do(act);
    EXPECT_EQ(Heard(), Cell("the parent hears"));
}

const std::vector<DocumentRow> kNotices = DocumentRows(
    "docs/manual/notifications.md", {"editing", "mask", "type", "data", "first", "done", "the parent hears"});
TEST_ROWS_NAMED(Manual, ManualNotice, LineName, kNotices);

// ---- styles of the edit control underneath, of docs/manual/moving.md

class ManualStyle : public ModernWindow, public OfRow<DocumentRow> {};

const std::map<std::string, DWORD> kManualStyles = {
    {"ES_UPPERCASE", ES_UPPERCASE},
    {"ES_LOWERCASE", ES_LOWERCASE},
    {"ES_NUMBER",    ES_NUMBER   },
    {"ES_PASSWORD",  ES_PASSWORD },
    {"ES_RIGHT",     ES_RIGHT    },
    {"ES_CENTER",    ES_CENTER   },
};

ROW_TEST(ManualStyle, IsHeededAsWritten)
{
    Config config;
    const std::string mask = GetParam()["mask"];
    config.mask = mask.c_str();
    config.style = WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL | kManualStyles.at(GetParam()["style"]);
    Make(config, GetParam()["editing"] == "modern" ? ZTEO_MODERN : 0u);
    Select(0, 0);
    Type(GetParam()["typed"]);
    EXPECT_EQ(control_->Text(), GetParam()["shown"]);
}

const std::vector<DocumentRow> kStyleRows =
    DocumentRows("docs/manual/moving.md", {"editing", "style", "mask", "typed", "shown"});
TEST_ROWS_NAMED(Manual, ManualStyle, LineName, kStyleRows);

TEST(ManualNotices, AreFound)
{
    EXPECT_GE(kStyleRows.size(), 8u);
    EXPECT_GE(kNotices.size(), 25u);
}

}  // namespace
}  // namespace zttest
