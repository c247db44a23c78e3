// The fixture for typing into a live control.
#include "tests/support/edit_test.h"

#include <cstdio>
#include <cstring>

namespace zttest {
namespace {

constexpr int kControlId = 7;

bool IsNumber(int32_t type)
{
    return type == DT_NUMBER || type == DT_DECIMAL;
}

char ProfileDecimalChar()
{
    char value[4];
    GetProfileStringA("intl", "sDecimal", ".", value, sizeof value);
    return value[0] ? value[0] : '.';
}

// Moves the point of a plain number two digits to the left.
std::string HundredthOf(const std::string& number)
{
    const size_t sign = number.compare(0, 1, "-") == 0 ? 1 : 0;
    const size_t point = number.find('.');
    std::string whole = number.substr(sign, point == std::string::npos ? point : point - sign);
    const std::string fraction = point == std::string::npos ? "" : number.substr(point + 1);
    while (whole.size() < 3)
        whole.insert(0, "0");
    return number.substr(0, sign) + whole.substr(0, whole.size() - 2) + "." + whole.substr(whole.size() - 2) + fraction;
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

Marked Unmark(const std::string& shown)
{
    Marked marked = {"", -1, -1};
    for (const char c : shown) {
        const int position = static_cast<int>(marked.text.size());
        if (c == '|')
            marked.start = marked.end = position;
        else if (c == '[')
            marked.start = position;
        else if (c == ']')
            marked.end = position;
        else
            marked.text += c;
    }
    return marked;
}

std::string DataOfNumberShown(const std::string& shown, char decimalChar)
{
    std::string data;
    bool percent = false;
    for (const char c : shown) {
        percent = percent || c == '%';
        if ((c >= '0' && c <= '9') || c == '-')
            data += c;
        else if (c == decimalChar)
            data += '.';
    }
    return percent ? HundredthOf(data) : data;
}

std::string Canonical(const DateTimeValue& value)
{
    char date[40] = "";
    char time[40] = "";
    if (value.year != DATETIME_NO_DATE)
        std::snprintf(date, sizeof date, "%4.4d-%2.2d-%2.2d", value.year + 1900, value.month + 1, value.day);
    if (value.hour != DATETIME_NO_TIME)
        std::snprintf(time, sizeof time, "%2.2d:%2.2d:%2.2d:%6.6lu", value.hour, value.minute, value.second,
                      static_cast<unsigned long>(value.microsecond));
    return std::string(date) + (*date && *time ? " " : "") + time;
}

void EditTest::Make(const Config& config, Creation creation)
{
    control_.reset();
    control_ = std::make_unique<Control>(form_.hwnd(), kControlId, config, creation);
    typist_.Use(control_->hwnd());
    form_.Forget();
    beeps_.Forget();
}

void EditTest::Given(const char* mask, int32_t type, const std::string& shown, uint32_t options)
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

void EditTest::GivenText(const char* mask, int32_t type, const std::string& shown, uint32_t options)
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

void PrintTo(const KeyCase& row, std::ostream* out)
{
    *out << row.name << " (mask " << row.mask << ", from " << row.given << ", keys " << row.keys << ")";
}

void KeyTable::Check(const KeyCase& row)
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

void EditTest::Backspace(int times)
{
    for (int i = 0; i < times; ++i)
        typist_.Backspace();
}

void EditTest::Delete(int times)
{
    for (int i = 0; i < times; ++i)
        typist_.Press(VK_DELETE);
}

std::string EditTest::Value() const
{
    void* data = ZTE_FmtGetData(Window());
    if (!data)
        return "";
    const uint16_t type = ZTE_FmtGetDataType(Window());
    std::string value;
    if (type == DT_DATE || type == DT_TIME || type == DT_DATETIME) {
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
