// A masked edit under test as the engine over a field in memory.
#include "tests/support/masked_edit.h"

#include <gtest/gtest.h>

#include <cstring>
#include <ctime>
#include <utility>

#include "engine/editing.h"
#include "engine/format/data.h"
#include "engine/format/display.h"
#include "engine/format/mask_setting.h"
#include "engine/format/read_back.h"
#include "engine/mask/mask_table.h"
#include "engine/memory_control.h"
#include "engine/services.h"
#include "engine/spin/range.h"
#include "engine/spin/spin_settings.h"
#include "tests/support/native/clipboard.h"
#include "tests/support/native/profile_store.h"
#include "tests/support/record_view.h"

namespace zttest {
namespace {

using zte::FieldEvent;
using zte::Text;

// What the recorder that lives has heard.
std::vector<std::string>* recorded = nullptr;

constexpr int kControlKey = 0x11;

// The engine's texts from those of the tests, and back.
class EngineText {
public:
    explicit EngineText(const char* text) : null_(!text), text_(text ? zte::FromAscii(text) : Text()) {}
    const zte::Char* get() const { return null_ ? nullptr : text_.c_str(); }

private:
    bool null_;
    Text text_;
};

std::string Plain(const Text& text)
{
    return std::string(text.begin(), text.end());
}

// A configuration in the engine's texts.
class EngineConfig {
public:
    explicit EngineConfig(const Config& config)
        : config_(config), mask_(config.mask), data_(config.data), range_(config.range), codes_(config.codes)
    {
    }

    zte::ControlSetup Setup() const
    {
        zte::ControlSetup setup;
        setup.mask = mask_.get();
        setup.dataType = config_.type;
        setup.options = config_.options;
        setup.data = data_.get();
        setup.spinRange = range_.get();
        setup.spinIncrement = config_.increment;
        setup.codeTable = codes_.get();
        setup.style.readOnly = config_.readOnly;
        return setup;
    }

private:
    const Config& config_;
    EngineText mask_;
    EngineText data_;
    EngineText range_;
    EngineText codes_;
};

}  // namespace

struct MaskedEdit::Implementation final : Keyboard, zte::FieldListener {
    explicit Implementation(const Config& config) : control(EngineConfig(config).Setup(), SettingsInForce(), Now, this)
    {
        ownBlocks = control.BlockCount();
    }
    Implementation(const Implementation&) = delete;
    Implementation& operator=(const Implementation&) = delete;
    ~Implementation()
    {
        EXPECT_EQ(control.BlockCount(), ownBlocks) << "blocks were left behind in the control's heap";
        zte::DropSpinTexts(record);
        zte::DropMask(record);
        EXPECT_EQ(control.BlockCount(), 0u) << "blocks of the record were not given back to the heap";
    }

    // Copies a value that was read back, and frees it.
    std::string Take(void* block) const
    {
        if (!block)
            return kNullResult;
        std::string value;
        if (IsDateOrTime(record.dataType)) {
            DateTimeValue read;
            std::memcpy(&read, block, sizeof read);
            value = Canonical(read);
        } else {
            value = Plain(static_cast<const zte::Char*>(block));
        }
        zte::services::Free(record.heap, block);
        return value;
    }

    void Hear(Notice notice)
    {
        notices.push_back(notice);
        if (listener)
            listener();
    }

    void OnFieldEvent(FieldEvent event) override
    {
        if (event == FieldEvent::Change || event == FieldEvent::Stepped)
            Hear(Notice::Changed);
        else if (event == FieldEvent::Full)
            Hear(Notice::Full);
        if (!recorded)
            return;
        if (event == FieldEvent::RedrawOff)
            recorded->push_back("redraw off");
        else if (event == FieldEvent::RedrawOn)
            recorded->push_back("redraw on");
        else if (event == FieldEvent::Update)
            recorded->push_back("text");
    }

    void Hold(int key, bool down) override
    {
        if (key == zte::KEY_SHIFT)
            field.HoldShift(down);
        else if (key == kControlKey)
            field.HoldControl(down);
        else if (key == zte::KEY_RIGHT)
            field.HoldRight(down);
    }
    void SendKeyDown(int key) override
    {
        WithClipboard([&] { control.KeyDown(key); });
    }
    void SendKeyUp(int key) override { control.KeyUp(key); }
    void SendChar(char character, int) override
    {
        WithClipboard([&] { control.Type(static_cast<unsigned char>(character)); });
    }

    // The clipboard is everybody's.
    template <class Work>
    void WithClipboard(Work work)
    {
        field.SetClipboard(NativeClipboard());
        work();
        NativeClipboard() = field.ReadClipboard();
    }

    std::vector<Notice> notices;
    std::function<void()> listener;
    zte::MemoryControl control;
    // The calls that the library's exports make.
    const zte::Editing& Reading() const { return zte::EditingOf(record); }

    zte::EditInstance& record = control.Record();
    zte::MemoryField& field = control.Edit();
    uint32_t ownBlocks = 0;
};

MaskedEdit::MaskedEdit(const Config& config) : it_(std::make_unique<Implementation>(config)) {}
MaskedEdit::~MaskedEdit() = default;

int32_t MaskedEdit::SetMask(const char* mask, int32_t type)
{
    return it_->Reading().setMask(it_->record, EngineText(mask).get(), type);
}

void MaskedEdit::SetData(const void* data)
{
    it_->Reading().setData(it_->record, data);
}

void MaskedEdit::SetDataString(const std::string& text)
{
    it_->Reading().setDataString(it_->record, EngineText(text.c_str()).get());
}

FormattedValue MaskedEdit::Format(const void* data) const
{
    const zte::Display display = it_->Reading().format(it_->record, data);
    return {Plain(display.text), display.formatFlags, display.firstFieldPos};
}

int32_t MaskedEdit::DataType() const
{
    return it_->record.dataType;
}

void MaskedEdit::SetAutoskip(uint32_t on)
{
    zte::SetFlag(it_->record, zte::AUTOSKIP, (on & 1) != 0);
}

void MaskedEdit::SetSpin(uint32_t increment, const char* range, const char* codes, uint32_t style)
{
    it_->Reading().setSpin(it_->record, increment, EngineText(range).get(), EngineText(codes).get(), style);
}

void MaskedEdit::CreateSpin()
{
    it_->control.CreateSpin();
}

void MaskedEdit::DestroySpin()
{
    it_->control.DestroySpin();
}

bool MaskedEdit::ReadRangeEnd(DateTimeValue* value, const char* text) const
{
    return zte::ReadRangeEnd(it_->record, *value, zte::FromAscii(text)) == 0;
}

bool MaskedEdit::IsOutOfOrder(const void* first, const void* second) const
{
    return zte::IsOutOfOrder(it_->record.dataType, first, second);
}

std::string MaskedEdit::Read() const
{
    return it_->Take(it_->Reading().getData(it_->record));
}

std::string MaskedEdit::Unformat(const char* text) const
{
    return it_->Take(zte::UnformatData(it_->record, EngineText(text).get()));
}

int32_t MaskedEdit::State() const
{
    return zte::StateOf(it_->record);
}

std::string MaskedEdit::DataString() const
{
    zte::Text text;
    return zte::CanonicalText(it_->record, text) ? Plain(text) : kNullResult;
}

int32_t MaskedEdit::TrySetDataString(const std::string& text)
{
    return zte::TrySetDataString(it_->record, EngineText(text.c_str()).get());
}

std::optional<DateTimeValue> MaskedEdit::ReadDateTime() const
{
    void* block = it_->Reading().getData(it_->record);
    if (!block)
        return std::nullopt;
    DateTimeValue value;
    std::memcpy(&value, block, sizeof value);
    zte::services::Free(it_->record.heap, block);
    return value;
}

std::string MaskedEdit::Text() const
{
    return Plain(it_->field.Shown());
}

void MaskedEdit::SetText(const std::string& text)
{
    it_->control.SetText(EngineText(text.c_str()).get());
}

void MaskedEdit::Replace(const std::string& text)
{
    it_->control.Replace(EngineText(text.c_str()).get(), false);
}

int MaskedEdit::CaretStart() const
{
    return it_->field.ReadSelection().start;
}

int MaskedEdit::CaretEnd() const
{
    return it_->field.ReadSelection().end;
}

void MaskedEdit::Select(int start, int end)
{
    it_->control.Select(start, end);
}

bool MaskedEdit::IsModified() const
{
    return it_->field.IsModified();
}

void MaskedEdit::ForgetModified()
{
    it_->field.SetModifiedFlag(false);
}

bool MaskedEdit::CanUndo() const
{
    return it_->field.CanUndo();
}

void MaskedEdit::Undo()
{
    it_->control.Undo();
}

void MaskedEdit::Paste()
{
    it_->WithClipboard([this] { it_->control.Paste(); });
}

void MaskedEdit::LoseFocus()
{
    it_->control.LoseFocus();
}

void MaskedEdit::SetReadOnly()
{
    it_->field.SetReadOnly(true);
}

void MaskedEdit::Disable()
{
    it_->field.Enable(false);
}

Keyboard& MaskedEdit::Keys()
{
    return *it_;
}

void MaskedEdit::Click(int position)
{
    it_->control.Click(position);
}

void MaskedEdit::Drag(int from, int to)
{
    it_->control.Drag(from, to);
}

bool MaskedEdit::ShiftIsDown() const
{
    return it_->field.IsHeld(zte::KEY_SHIFT);
}

int MaskedEdit::Beeps() const
{
    return it_->field.Count(FieldEvent::Beep);
}

const std::vector<Notice>& MaskedEdit::Notices() const
{
    return it_->notices;
}

void MaskedEdit::Forget()
{
    it_->notices.clear();
    it_->field.ForgetCounts();
}

void MaskedEdit::OnNotice(std::function<void()> listener)
{
    it_->listener = std::move(listener);
}

std::string MaskedEdit::Mask() const
{
    return Record().mask;
}

RecordView MaskedEdit::Record() const
{
    return ViewOf(it_->record);
}

std::optional<CodeTableView> MaskedEdit::CodeTable() const
{
    return CodeTableOf(it_->record);
}

uint32_t MaskedEdit::Blocks() const
{
    return it_->control.BlockCount();
}

void MaskedEdit::AcceptBlocks()
{
    it_->ownBlocks = Blocks();
}

struct FieldRecorder::Implementation {
    std::vector<std::string> told;
};

FieldRecorder::FieldRecorder() : it_(std::make_unique<Implementation>())
{
    recorded = &it_->told;
}

FieldRecorder::~FieldRecorder()
{
    recorded = nullptr;
}

std::vector<std::string> FieldRecorder::Told() const
{
    return it_->told;
}

void FieldRecorder::Forget()
{
    it_->told.clear();
}

MaskFault FaultOf(const std::string& mask, int32_t type)
{
    const zte::MaskVerdict verdict = zte::JudgeMask(EngineText(mask.c_str()).get(), type, SettingsInForce());
    return {verdict.reason, verdict.offset};
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

}  // namespace zttest
