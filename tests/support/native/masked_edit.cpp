// A masked edit under test as the engine over a field in memory.
#include "tests/support/masked_edit.h"

#include <gtest/gtest.h>

#include <cstring>
#include <ctime>
#include <utility>

#include "engine/edit/click.h"
#include "engine/edit/keyboard.h"
#include "engine/edit/paste.h"
#include "engine/format/data.h"
#include "engine/format/display.h"
#include "engine/format/mask_setting.h"
#include "engine/format/read_back.h"
#include "engine/mask/mask_table.h"
#include "engine/memory_field.h"
#include "engine/own_heap.h"
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
constexpr zte::KeyData kKeyData = 1;  // a key pressed once

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

zte::FieldStyle StyleOf(const Config& config)
{
    zte::FieldStyle style;
    style.readOnly = config.readOnly;
    return style;
}

}  // namespace

struct MaskedEdit::Implementation final : Keyboard, zte::FieldListener {
    explicit Implementation(const Config& config) : field(StyleOf(config)), heap(zte::CreateHeap())
    {
        field.SetListener(this);
        record.heap = heap;
        record.dataType = config.type;
        record.field = &field;
        record.settings = &SettingsInForce();
        record.clock = Now;
        SetUp(config);
        ownBlocks = zte::BlockCount(heap);
    }
    Implementation(const Implementation&) = delete;
    Implementation& operator=(const Implementation&) = delete;
    ~Implementation()
    {
        EXPECT_EQ(zte::BlockCount(heap), ownBlocks) << "blocks were left behind in the control's heap";
        zte::DropSpinTexts(record);
        zte::DropMask(record);
        EXPECT_EQ(zte::BlockCount(heap), 0u) << "blocks of the record were not given back to the heap";
        zte::DestroyHeap(heap);
    }

    void SetUp(const Config& config)
    {
        zte::ApplyOptions(record, config.options);
        if (Has(record, zte::HAS_SPIN))
            zte::SetSpin(record, config.increment, EngineText(config.range).get(), EngineText(config.codes).get(),
                         zte::SpinStyleOf(config.options));
        zte::SetMask(record, EngineText(config.mask).get(), config.type);
        if (config.data)
            zte::SetDataString(record, EngineText(config.data).get());
        if (Has(record, zte::HAS_SPIN))
            record.hwndSpin = this;
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
        zte::services::Free(heap, block);
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

    // Keys. A disabled control has no focus, yet is sent them all the same.
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
        WithClipboard([&] {
            if (!zte::OnKeyDown(record, static_cast<uint32_t>(key), kKeyData).kept)
                field.Press(static_cast<zte::Key>(key));
        });
    }
    void SendKeyUp(int key) override { zte::OnKeyUp(record, static_cast<uint32_t>(key)); }
    void SendChar(char character, int) override
    {
        WithClipboard([&] {
            const auto typed = static_cast<unsigned char>(character);
            if (!zte::OnChar(record, typed, kKeyData).kept)
                field.Type(static_cast<zte::Char>(typed));
        });
    }

    // The clipboard is everybody's.
    template <class Work>
    void WithClipboard(Work work)
    {
        field.SetClipboard(NativeClipboard());
        work();
        NativeClipboard() = field.ReadClipboard();
    }

    template <class Work>
    void WithMouse(Work work)
    {
        record.carriedTo = 0;
        work();
        if (zte::IsClickCorrected(record) && !field.Shown().empty())
            zte::CorrectClick(record);
    }

    std::vector<Notice> notices;
    std::function<void()> listener;
    zte::EditInstance record{};
    zte::MemoryField field;
    SharedHeap heap;
    uint32_t ownBlocks = 0;
};

MaskedEdit::MaskedEdit(const Config& config) : it_(std::make_unique<Implementation>(config)) {}
MaskedEdit::~MaskedEdit() = default;

int32_t MaskedEdit::SetMask(const char* mask, int32_t type)
{
    return zte::SetMask(it_->record, EngineText(mask).get(), type);
}

void MaskedEdit::SetData(const void* data)
{
    zte::SetData(it_->record, data);
}

void MaskedEdit::SetDataString(const std::string& text)
{
    zte::SetDataString(it_->record, EngineText(text.c_str()).get());
}

FormattedValue MaskedEdit::Format(const void* data) const
{
    const zte::Display display = zte::FormatValue(it_->record, data);
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
    zte::SetSpin(it_->record, increment, EngineText(range).get(), EngineText(codes).get(), style);
}

void MaskedEdit::CreateSpin()
{
    it_->record.hwndSpin = it_.get();
}

void MaskedEdit::DestroySpin()
{
    zte::DropSpinTexts(it_->record);
    it_->record.hwndSpin = nullptr;
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
    return it_->Take(zte::GetData(it_->record));
}

std::string MaskedEdit::Unformat(const char* text) const
{
    return it_->Take(zte::UnformatData(it_->record, EngineText(text).get()));
}

std::optional<DateTimeValue> MaskedEdit::ReadDateTime() const
{
    void* block = zte::GetData(it_->record);
    if (!block)
        return std::nullopt;
    DateTimeValue value;
    std::memcpy(&value, block, sizeof value);
    zte::services::Free(it_->heap, block);
    return value;
}

std::string MaskedEdit::Text() const
{
    return Plain(it_->field.Shown());
}

void MaskedEdit::SetText(const std::string& text)
{
    it_->field.SetText(EngineText(text.c_str()).get());
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
    it_->field.SetSelection(start, end);
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
    it_->field.Undo();
}

void MaskedEdit::Paste()
{
    it_->WithClipboard([this] { zte::PasteClipboard(it_->record); });
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
    it_->WithMouse([&] { it_->field.Click(position); });
}

void MaskedEdit::Drag(int from, int to)
{
    it_->WithMouse([&] { it_->field.Drag(from, to); });
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
    return zte::BlockCount(it_->heap);
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
