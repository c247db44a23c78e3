// The tables of docs/manual/settings.md that tell of characters beyond ASCII, sent to live controls in the ways that Windows has for it.
#include <clocale>

#include "tests/support/documents.h"
#include "tests/support/rows.h"
#include "tests/win32/modern_window.h"

namespace zttest {
namespace {

constexpr UINT kCodePage = 1252;

std::wstring Wide(const std::string& utf8)
{
    wchar_t text[100] = L"";
    MultiByteToWideChar(CP_UTF8, 0, utf8.c_str(), -1, text, 100);
    return text;
}

std::string Narrow(const std::wstring& wide)
{
    char text[100] = "";
    WideCharToMultiByte(kCodePage, 0, wide.c_str(), -1, text, sizeof text, nullptr, nullptr);
    return text;
}

std::string InUtf8(const std::string& narrow)
{
    wchar_t wide[100] = L"";
    char text[200] = "";
    MultiByteToWideChar(kCodePage, 0, narrow.c_str(), -1, wide, 100);
    WideCharToMultiByte(CP_UTF8, 0, wide, -1, text, sizeof text, nullptr, nullptr);
    return text;
}

class ManualText : public ModernWindow, public OfRow<DocumentRow> {
protected:
    void MakeIt(const std::string& mask, const char* data)
    {
        Config config;
        config.mask = mask.c_str();
        config.data = data;
        Make(config, GetParam()["editing"] == "modern" ? ZTEO_MODERN : 0u);
    }
};

// ---- characters that come in several ways

class ManualCharacter : public ManualText {
protected:
    void SendIt(const std::string& way, const std::wstring& character) const
    {
        if (way == "WM_CHAR")
            Send(WM_CHAR, static_cast<uint8_t>(Narrow(character)[0]), 1);
        else if (way == "WM_CHAR of a wide program")
            SendMessageW(Window(), WM_CHAR, character[0], 1);
        else if (way == "WM_UNICHAR")
            Send(WM_UNICHAR, character[0], 1);
        else if (way == "SetWindowTextW")
            SetWindowTextW(Window(), character.c_str());
        else
            ADD_FAILURE() << "unknown way " << way;
    }
    std::string Heard()
    {
        std::string heard;
        for (const std::string& told : TakeTold())
            heard += (heard.empty() ? "" : ", ") + told;
        return heard;
    }
};

ROW_TEST(ManualCharacter, IsTakenOrRefusedAsWritten)
{
    ASSERT_EQ(GetACP(), kCodePage);
    MakeIt("XXXX", "abcd");
    Select(1, 1);
    TakeTold();
    SendIt(GetParam()["sent by"], Wide(GetParam()["character"]));
    EXPECT_EQ(InUtf8(control_->Text()), GetParam()["shown"]);
    EXPECT_EQ(Heard(), GetParam()["the parent hears"]);
}

const std::vector<DocumentRow> kManualCharacters =
    DocumentRows("docs/manual/settings.md", {"editing", "sent by", "character", "shown", "the parent hears"});
TEST_ROWS_NAMED(Manual, ManualCharacter, LineName, kManualCharacters);

// ---- letters of a locale

class RunTimeLocale {
public:
    explicit RunTimeLocale(const std::string& name) : known_(std::setlocale(LC_CTYPE, name.c_str()) != nullptr) {}
    RunTimeLocale(const RunTimeLocale&) = delete;
    RunTimeLocale& operator=(const RunTimeLocale&) = delete;
    ~RunTimeLocale() { std::setlocale(LC_CTYPE, "C"); }

    bool IsKnown() const { return known_; }

private:
    bool known_;
};

class ManualLetters : public ManualText {};

ROW_TEST(ManualLetters, AreThoseOfTheLocale)
{
    const RunTimeLocale locale(GetParam()["locale"]);
    ASSERT_TRUE(locale.IsKnown());
    MakeIt(GetParam()["mask"], nullptr);
    Select(0, 0);
    Type(Narrow(Wide(GetParam()["typed"])));
    EXPECT_EQ(InUtf8(control_->Text()), GetParam()["shown"]);
}

const std::vector<DocumentRow> kManualLetters =
    DocumentRows("docs/manual/settings.md", {"locale", "editing", "mask", "typed", "shown"});
TEST_ROWS_NAMED(Manual, ManualLetters, LineName, kManualLetters);

TEST(ManualCharacters, AreFound)
{
    EXPECT_GE(kManualCharacters.size(), 7u);
    EXPECT_GE(kManualLetters.size(), 8u);
}

}  // namespace
}  // namespace zttest
