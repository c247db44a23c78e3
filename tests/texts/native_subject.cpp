// The engine over a field in memory.
#include "tests/texts/subject.h"

#include <cstring>

#include "engine/format/data.h"
#include "engine/format/display.h"
#include "engine/format/mask_setting.h"
#include "engine/format/read_back.h"
#include "engine/memory_control.h"
#include "engine/services.h"
#include "engine/spin/range.h"
#include "engine/spin/spin_settings.h"
#include "engine/values/caller_value.h"
#include "engine/values/date_time.h"
#include "engine/values/decimal_number.h"
#include "engine/values/number_format.h"
#include "tests/support/keyboard.h"
#include "tests/support/native/profile_store.h"

namespace zttest {
namespace {

constexpr int kControlKey = 0x11;

DateTimeValue FourthOfJuly()
{
    return ValueOf("1995-07-04 14:07:09");
}

zte::ControlSetup SetupOf(const Config& config)
{
    zte::ControlSetup setup;
    setup.mask = config.mask;
    setup.dataType = config.type;
    setup.options = config.options;
    setup.data = config.data;
    setup.spinRange = config.range;
    setup.spinIncrement = config.increment;
    setup.codeTable = config.codes;
    return setup;
}

}  // namespace

struct Subject::Implementation final : Keyboard {
    explicit Implementation(const Config& config) : control(SetupOf(config), SettingsInForce(), FourthOfJuly) {}

    void Hold(int key, bool down) override
    {
        if (key == zte::KEY_SHIFT)
            control.Edit().HoldShift(down);
        else if (key == kControlKey)
            control.Edit().HoldControl(down);
        else if (key == zte::KEY_RIGHT)
            control.Edit().HoldRight(down);
    }
    void SendKeyDown(int key) override { control.KeyDown(key); }
    void SendKeyUp(int key) override { control.KeyUp(key); }
    void SendChar(char character, int) override { control.Type(static_cast<unsigned char>(character)); }

    zte::EditInstance& Record() { return control.Record(); }

    std::optional<std::string> Take(void* block)
    {
        if (!block)
            return std::nullopt;
        std::string read;
        if (IsDateOrTime(Record().dataType)) {
            DateTimeValue value;
            std::memcpy(&value, block, sizeof value);
            read = Canonical(value);
        } else {
            read = static_cast<const char*>(block);
        }
        zte::services::Free(Record().heap, block);
        return read;
    }

    zte::MemoryControl control;
};

Subject::Subject(const Config& config) : it_(std::make_unique<Implementation>(config)) {}
Subject::~Subject() = default;

void Subject::Init(const Config& config)
{
    it_ = std::make_unique<Implementation>(config);
}

int32_t Subject::SetMask(const char* mask, int32_t type)
{
    return zte::SetMask(it_->Record(), mask, type);
}

void Subject::SetData(const void* data)
{
    zte::SetData(it_->Record(), data);
}

void Subject::SetDataString(const char* text)
{
    zte::SetDataString(it_->Record(), text);
}

std::string Subject::Format(const void* data)
{
    return zte::FormatValue(it_->Record(), data).text;
}

void Subject::SetSpin(const char* range, const char* codes, uint32_t style)
{
    zte::SetSpin(it_->Record(), 1, range, codes, style);
}

bool Subject::ReadRangeEnd(DateTimeValue* value, const char* text)
{
    DateTimeValue end;
    const bool read = zte::ReadRangeEnd(it_->Record(), end, text) == 0;
    zte::WriteValue(value, end);
    return read;
}

bool Subject::IsOutOfOrder(const void* first, const void* second)
{
    return zte::IsOutOfOrder(it_->Record().dataType, first, second);
}

std::optional<std::string> Subject::Read()
{
    return it_->Take(zte::GetData(it_->Record()));
}

std::optional<std::string> Subject::Unformat(const char* text)
{
    return it_->Take(zte::UnformatData(it_->Record(), text));
}

std::string Subject::Text()
{
    return it_->control.Edit().Shown();
}

void Subject::SetText(const char* text)
{
    it_->control.SetText(text);
}

void Subject::ReplaceAll(const char* text)
{
    Select(0, -1);
    it_->control.Replace(text, true);
}

void Subject::Select(int start, int end)
{
    it_->control.Select(start, end);
}

int Subject::CaretStart()
{
    return it_->control.Edit().ReadSelection().start;
}

void Subject::Type(const std::string& text)
{
    it_->Type(text);
}

void Subject::Press(const std::string& keys)
{
    it_->Play(keys);
}

// A field's clipboard is a text already: what stands behind a NUL is no part of it.
std::string Subject::Paste(const std::string& bytes)
{
    const std::string text = bytes.substr(0, bytes.find('\0'));
    it_->control.Edit().SetClipboard(text);
    it_->control.Paste();
    it_->control.Edit().SetClipboard(std::nullopt);
    return text;
}

std::string Subject::PasteUnicode(const std::u16string& units)
{
    std::string bytes;
    for (const char16_t unit : units)
        bytes += static_cast<char>(unit);
    return Paste(bytes);
}

const zte::EditInstance& Subject::Record()
{
    return it_->Record();
}

uint32_t Subject::Blocks()
{
    return it_->control.BlockCount();
}

void Subject::AcceptBlocks() {}

namespace services_under_test {

bool IsNumber(const char* text)
{
    return zte::services::IsNumber(text, SettingsInForce());
}

bool ParseDateTime(DateTimeValue* value, const char* text, int32_t kind)
{
    DateTimeValue read;
    if (!zte::services::ParseDateTime(read, text, kind, SettingsInForce()))
        return false;
    zte::WriteValue(value, read);
    return true;
}

bool CompileFormat(void* compiled, const char* text, int32_t size)
{
    const size_t length = std::strlen(text);
    if (!zte::IsValidFormat(text) || length >= static_cast<size_t>(size))
        return false;
    std::memcpy(compiled, text, length + 1);
    return true;
}

int32_t FormatDouble(char* output, int32_t size, const void* compiled, double value)
{
    zte::Writer writer(output, size);
    zte::RenderNumber(writer, static_cast<const char*>(compiled), zte::DecimalDigits::FromDouble(value),
                      SettingsInForce());
    return writer.Length();
}

int32_t FormatDecimal(char* output, int32_t size, const void* compiled, const DecimalValue* value)
{
    zte::Writer writer(output, size);
    zte::RenderNumber(writer, static_cast<const char*>(compiled),
                      zte::DecimalDigits::FromDecimal(zte::ReadValue<DecimalValue>(value)), SettingsInForce());
    return writer.Length();
}

void DecimalOf(DecimalValue* value, const char* text, int32_t decimalPlaces)
{
    zte::WriteValue(value, zte::services::DecimalOf(text, decimalPlaces));
}

void Add(DecimalValue* sum, const DecimalValue* first, const DecimalValue* second)
{
    using namespace zte::decimal;
    zte::WriteValue(sum, Pack(Sum(Unpack(first), Unpack(second))));
}

int32_t Compare(const DecimalValue* first, const DecimalValue* second)
{
    using namespace zte::decimal;
    return zte::decimal::Compare(Unpack(first), Unpack(second));
}

std::string CopyOf(const char* text)
{
    return text;
}

}  // namespace services_under_test

bool HeapsAreSound()
{
    return true;
}

bool IsLive()
{
    return false;
}

}  // namespace zttest
