// The fixture of tests that need a live window.
#include "tests/support/live/window_test.h"

#include <cstring>

namespace zttest {
namespace {

constexpr int kControlId = 7;

char ProfileDecimalChar()
{
    char value[4];
    GetProfileStringA("intl", "sDecimal", ".", value, sizeof value);
    return value[0] ? value[0] : '.';
}

// The string that a display text stands for: without the literals.
std::string StringDataOf(const Control& control, const std::string& display)
{
    void* data = ZTE_FmtUnformatData(control.hwnd(), display.c_str());
    const std::string value = data ? static_cast<const char*>(data) : "";
    SharedHeapFree(control.heap(), data);
    return value;
}

}  // namespace

void WindowTest::Make(const Config& config, Creation creation)
{
    control_.reset();
    control_ = std::make_unique<Control>(form_.hwnd(), kControlId, config, creation);
    typist_.Use(control_->hwnd());
    form_.Forget();
    beeps_.Forget();
}

void WindowTest::Given(const char* mask, int32_t type, const std::string& shown, uint32_t options)
{
    const Marked marked = Unmark(shown);
    const std::string data = IsNumber(type) ? DataOfNumberShown(marked.text, ProfileDecimalChar()) : marked.text;
    Config config;
    config.mask = mask;
    config.type = type;
    config.options = options;
    Make(config);
    ZTE_FmtSetDataString(Window(), type == DT_STRING ? StringDataOf(*control_, data).c_str() : data.c_str());
    ASSERT_EQ(Text(), marked.text) << "no value is shown so; data " << data;
    if (marked.start >= 0)
        control_->Select(marked.start, marked.end);
    form_.Forget();
}

void WindowTest::GivenText(const char* mask, int32_t type, const std::string& shown, uint32_t options)
{
    const Marked marked = Unmark(shown);
    Config config;
    config.mask = mask;
    config.type = type;
    config.options = options;
    Make(config);
    SetWindowTextA(Window(), marked.text.c_str());
    ASSERT_EQ(Text(), marked.text);
    if (marked.start >= 0)
        control_->Select(marked.start, marked.end);
    form_.Forget();
}

void WindowKeyTable::Check(const KeyCase& row)
{
    const std::string given = row.given;
    const std::string outside = "text:";
    if (given.compare(0, outside.size(), outside) == 0)
        GivenText(row.mask, row.type, given.substr(outside.size()));
    else
        Given(row.mask, row.type, given);
    if (HasFatalFailure())
        return;
    Play(row.keys);
    EXPECT_EQ(Shown(), row.shown);
    EXPECT_EQ(Beeps(), row.beeps);
}

void WindowTest::Backspace(int times)
{
    for (int i = 0; i < times; ++i)
        typist_.Backspace();
}

void WindowTest::Delete(int times)
{
    for (int i = 0; i < times; ++i)
        typist_.Press(VK_DELETE);
}

std::string WindowTest::Value() const
{
    void* data = ZTE_FmtGetData(Window());
    if (!data)
        return "";
    const uint16_t type = ZTE_FmtGetDataType(Window());
    std::string value;
    if (IsDateOrTime(type)) {
        DateTimeValue read;
        std::memcpy(&read, data, sizeof read);
        value = Canonical(read);
    } else {
        value = static_cast<const char*>(data);
    }
    SharedHeapFree(control_->heap(), data);
    return value;
}

}  // namespace zttest
