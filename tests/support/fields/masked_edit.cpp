// A masked edit under test as a field of libztfield, by its public functions alone. Tests that ask what these do not tell (the record, its
// blocks, binary values) are left out of the program's run.
#include "tests/support/masked_edit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <utility>

#include "tests/support/clipboard.h"
#include "tests/support/native/profile_store.h"
#include "ztfield.h"

namespace zttest {
namespace {

constexpr int kLastOfOneByte = 0x7F;

// The tests' characters are those of a code page, whose upper half has the numbers of Unicode.
std::string Utf8(const std::string& text)
{
    std::string utf8;
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (code <= kLastOfOneByte) {
            utf8 += c;
            continue;
        }
        utf8 += static_cast<char>(0xC0 | code >> 6);
        utf8 += static_cast<char>(0x80 | (code & 0x3F));
    }
    return utf8;
}

std::string CodePage(const std::string& utf8)
{
    std::string text;
    for (size_t i = 0; i < utf8.size(); ++i) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        if (lead <= kLastOfOneByte)
            text += utf8[i];
        else
            text += static_cast<char>((lead & 0x03) << 6 | (static_cast<unsigned char>(utf8[++i]) & 0x3F));
    }
    return text;
}

class Utf8Text {
public:
    explicit Utf8Text(const char* text) : isNull_(!text), text_(text ? Utf8(text) : "") {}
    const char* get() const { return isNull_ ? nullptr : text_.c_str(); }

private:
    bool isNull_;
    std::string text_;
};

// Asks for a text by its length, then for the text; kNullResult for -1.
template <typename Ask>
std::string TextOf(Ask ask)
{
    const int32_t length = ask(nullptr, 0);
    if (length < 0)
        return kNullResult;
    std::string text(static_cast<size_t>(length) + 1, '?');
    EXPECT_EQ(ask(text.data(), length + 1), length);
    text.resize(static_cast<size_t>(length));
    return CodePage(text);
}

struct SettingsDeleter {
    void operator()(ZTFieldSettings* settings) const { ZTF_DestroySettings(settings); }
};
using SettingsOwner = std::unique_ptr<ZTFieldSettings, SettingsDeleter>;

SettingsOwner SettingsOfField()
{
    const zte::Settings& now = SettingsInForce();
    SettingsOwner settings(ZTF_CreateSettings());
    const auto set = [&](int32_t setting, const std::string& value) { ZTF_SetSetting(settings.get(), setting, Utf8(value).c_str()); };
    set(ZTF_DECIMAL, std::string(1, now.decimalChar));
    set(ZTF_THOUSANDS, std::string(1, now.thousandChar));
    set(ZTF_CURRENCY, now.currencySymbol);
    set(ZTF_CURRENCY_POSITION, std::to_string(now.currencyPosition));
    set(ZTF_CURRENCY_DIGITS, std::to_string(now.currencyDigits));
    set(ZTF_AM, now.amString);
    set(ZTF_PM, now.pmString);
    set(ZTF_SHORT_DATE, now.shortDate);
    set(ZTF_TIME_SEPARATOR, now.timeSeparator);
    return settings;
}

std::optional<std::string>& Clipboard()
{
    static std::optional<std::string> clipboard;
    return clipboard;
}

}  // namespace

struct MaskedEdit::Implementation final : Keyboard {
    explicit Implementation(const Config& config) : field(Create(config), ZTF_Destroy) {}

    ZTField* Create(const Config& config)
    {
        const Utf8Text mask(config.mask), data(config.data), range(config.range), codes(config.codes);
        const SettingsOwner settings = SettingsOfField();
        ZTFieldSetup setup = {};
        setup.mask = mask.get();
        setup.dataType = config.type;
        setup.options = config.options;
        setup.data = data.get();
        setup.range = range.get();
        setup.increment = config.increment;
        setup.codeTable = codes.get();
        setup.settings = settings.get();
        setup.listener = [](void* context, ZTField*, const ZTFieldEvent* event) {
            return static_cast<Implementation*>(context)->Hear(*event);
        };
        setup.context = this;
        ZTField* created = ZTF_Create(&setup);
        ZTF_SetReadOnly(created, config.readOnly);
        return created;
    }

    int32_t Hear(const ZTFieldEvent& event)
    {
        beeps += event.kind == ZTF_BEEP;
        if (event.kind == ZTF_CHANGED || event.kind == ZTF_STEPPED)
            Note(Notice::Changed);
        else if (event.kind == ZTF_FULL)
            Note(Notice::Full);
        return 0;
    }

    void Note(Notice notice)
    {
        notices.push_back(notice);
        if (listener)
            listener();
    }

    void Hold(int key, bool down) override
    {
        const int bit = key == 0x10 ? ZTF_SHIFT : key == 0x11 ? ZTF_CONTROL : 0;
        held = down ? held | bit : held & ~bit;
    }
    void SendKeyDown(int key) override
    {
        WithClipboard([&] { ZTF_KeyDown(field.get(), key, held); });
    }
    void SendKeyUp(int key) override { ZTF_KeyUp(field.get(), key, held); }
    void SendChar(char character, int) override
    {
        WithClipboard([&] { ZTF_Character(field.get(), static_cast<unsigned char>(character)); });
    }

    // The clipboard is everybody's.
    template <class Work>
    void WithClipboard(Work work)
    {
        ZTF_SetClipboard(field.get(), Clipboard() ? Utf8(*Clipboard()).c_str() : nullptr);
        work();
        const std::string text = TextOf([&](char* buffer, int32_t size) { return ZTF_GetClipboard(field.get(), buffer, size); });
        Clipboard() = text == kNullResult ? std::nullopt : std::optional(text);
    }

    std::pair<int, int> Selection() const
    {
        int32_t anchor = 0, caret = 0;
        ZTF_GetSelection(field.get(), &anchor, &caret);
        return {std::min(anchor, caret), std::max(anchor, caret)};
    }

    int held = 0;
    int beeps = 0;
    std::vector<Notice> notices;
    std::function<void()> listener;
    std::unique_ptr<ZTField, void (*)(ZTField*)> field;
};

MaskedEdit::MaskedEdit(const Config& config) : it_(std::make_unique<Implementation>(config)) {}
MaskedEdit::~MaskedEdit() = default;

int32_t MaskedEdit::SetMask(const char* mask, int32_t type)
{
    ZTF_UseSettings(it_->field.get(), SettingsOfField().get());  // a window's mask is read under those of the moment
    return ZTF_SetMask(it_->field.get(), Utf8Text(mask).get(), type);
}

void MaskedEdit::SetData(const void* data)
{
    EXPECT_EQ(data, nullptr) << "values come as texts here";
    ZTF_SetDataString(it_->field.get(), nullptr);
}

void MaskedEdit::SetDataString(const std::string& text)
{
    ZTF_SetDataString(it_->field.get(), Utf8(text).c_str());
}

int32_t MaskedEdit::DataType() const
{
    return ZTF_GetDataType(it_->field.get());
}

std::string MaskedEdit::Mask() const
{
    return TextOf([&](char* buffer, int32_t size) { return ZTF_GetMask(it_->field.get(), buffer, size); });
}

void MaskedEdit::SetAutoskip(uint32_t on)
{
    ZTF_SetAutoskip(it_->field.get(), static_cast<int32_t>(on & 1));
}

void MaskedEdit::SetSpin(uint32_t increment, const char* range, const char* codes, uint32_t style)
{
    ZTF_SetSpin(it_->field.get(), increment, Utf8Text(range).get(), Utf8Text(codes).get(), style);
}

void MaskedEdit::CreateSpin()
{
    ZTF_ShowSpin(it_->field.get(), 1);
}

void MaskedEdit::DestroySpin()
{
    ZTF_ShowSpin(it_->field.get(), 0);
}

std::string MaskedEdit::Read() const
{
    return TextOf([&](char* buffer, int32_t size) { return ZTF_ReadData(it_->field.get(), buffer, size); });
}

std::string MaskedEdit::Unformat(const char* text) const
{
    const Utf8Text utf8(text);
    return TextOf([&](char* buffer, int32_t size) { return ZTF_ReadText(it_->field.get(), utf8.get(), buffer, size); });
}

int32_t MaskedEdit::State() const
{
    return ZTF_GetState(it_->field.get());
}

std::string MaskedEdit::DataString() const
{
    return TextOf([&](char* buffer, int32_t size) { return ZTF_GetDataString(it_->field.get(), buffer, size); });
}

int32_t MaskedEdit::TrySetDataString(const std::string& text)
{
    return ZTF_TrySetDataString(it_->field.get(), Utf8(text).c_str());
}

std::string MaskedEdit::Text() const
{
    return TextOf([&](char* buffer, int32_t size) { return ZTF_GetText(it_->field.get(), buffer, size); });
}

void MaskedEdit::SetText(const std::string& text)
{
    ZTF_SetText(it_->field.get(), Utf8(text).c_str());
}

void MaskedEdit::Replace(const std::string& text)
{
    ZTF_ReplaceSelection(it_->field.get(), Utf8(text).c_str());
}

int MaskedEdit::CaretStart() const
{
    return it_->Selection().first;
}

int MaskedEdit::CaretEnd() const
{
    return it_->Selection().second;
}

void MaskedEdit::Select(int start, int end)
{
    ZTF_Select(it_->field.get(), start, end);
}

bool MaskedEdit::IsModified() const
{
    return ZTF_IsModified(it_->field.get()) != 0;
}

void MaskedEdit::ForgetModified()
{
    ZTF_SetModified(it_->field.get(), 0);
}

bool MaskedEdit::CanUndo() const
{
    return ZTF_CanUndo(it_->field.get()) != 0;
}

void MaskedEdit::Undo()
{
    ZTF_Undo(it_->field.get());
}

void MaskedEdit::Paste()
{
    it_->WithClipboard([this] { ZTF_Paste(it_->field.get()); });
}

void MaskedEdit::LoseFocus()
{
    ZTF_Leave(it_->field.get());
}

void MaskedEdit::SetReadOnly()
{
    ZTF_SetReadOnly(it_->field.get(), 1);
}

void MaskedEdit::Disable()
{
    ZTF_SetReadOnly(it_->field.get(), 1);
}

Keyboard& MaskedEdit::Keys()
{
    return *it_;
}

void MaskedEdit::Click(int position)
{
    ZTF_Click(it_->field.get(), position, it_->held);
}

void MaskedEdit::Drag(int from, int to)
{
    ZTF_Drag(it_->field.get(), from, to);
}

bool MaskedEdit::ShiftIsDown() const
{
    return (it_->held & ZTF_SHIFT) != 0;
}

int MaskedEdit::Beeps() const
{
    return it_->beeps;
}

const std::vector<Notice>& MaskedEdit::Notices() const
{
    return it_->notices;
}

void MaskedEdit::Forget()
{
    it_->notices.clear();
    it_->beeps = 0;
}

void MaskedEdit::OnNotice(std::function<void()> listener)
{
    it_->listener = std::move(listener);
}

MaskFault FaultOf(const std::string& mask, int32_t type)
{
    MaskFault fault = {};
    fault.reason = ZTF_CheckMask(SettingsOfField().get(), Utf8(mask).c_str(), type, &fault.position);
    return fault;
}

void CopyToClipboard(const std::string& text)
{
    Clipboard() = text;
}

void EmptyTheClipboard()
{
    Clipboard().reset();
}

std::string ClipboardText()
{
    return Clipboard().value_or("");
}

DateTimeValue Now()
{
    const std::time_t seconds = std::time(nullptr);
    const std::tm& local = *std::localtime(&seconds);
    DateTimeValue now = {};
    now.year = static_cast<int16_t>(local.tm_year);
    now.month = static_cast<int8_t>(local.tm_mon);
    now.day = static_cast<int8_t>(local.tm_mday);
    now.hour = static_cast<int8_t>(local.tm_hour);
    now.minute = static_cast<int8_t>(local.tm_min);
    now.second = static_cast<int8_t>(local.tm_sec);
    return now;
}

// ---- what a field does not tell

namespace {

// A test that asks for it is none of this program's.
template <typename Answer>
Answer NotTold()
{
    ADD_FAILURE() << "a field does not tell this";
    return {};
}

}  // namespace

FormattedValue MaskedEdit::Format(const void*) const
{
    return NotTold<FormattedValue>();
}

bool MaskedEdit::ReadRangeEnd(DateTimeValue*, const char*) const
{
    return NotTold<bool>();
}

bool MaskedEdit::IsOutOfOrder(const void*, const void*) const
{
    return NotTold<bool>();
}

std::optional<DateTimeValue> MaskedEdit::ReadDateTime() const
{
    return NotTold<std::optional<DateTimeValue>>();
}

RecordView MaskedEdit::Record() const
{
    return NotTold<RecordView>();
}

std::optional<CodeTableView> MaskedEdit::CodeTable() const
{
    return NotTold<std::optional<CodeTableView>>();
}

uint32_t MaskedEdit::Blocks() const
{
    return NotTold<uint32_t>();
}

// What stays of blocks is counted where they can be counted.
void MaskedEdit::AcceptBlocks() {}

struct FieldRecorder::Implementation {};

FieldRecorder::FieldRecorder() = default;
FieldRecorder::~FieldRecorder() = default;

std::vector<std::string> FieldRecorder::Told() const
{
    return NotTold<std::vector<std::string>>();
}

void FieldRecorder::Forget() {}

}  // namespace zttest
