// A masked edit under test as a window of the library on a form of its own.
#include <windows.h>

#include "include/ztedit.h"

#include <gtest/gtest.h>

#include <cstring>

#include "tests/support/live/base_recorder.h"
#include "tests/support/live/beeps.h"
#include "tests/support/live/form.h"
#include "tests/support/live/typist.h"
#include "tests/support/masked_edit.h"
#include "tests/support/record_view.h"

namespace zttest {
namespace {

constexpr int kControlId = 7;

// The record as a host would find it: by the window's property.
const zte::EditInstance* RecordOf(HWND hwnd)
{
    const HGLOBAL block = GetPropA(hwnd, "MAIN");
    if (!block)
        return nullptr;
    const zte::EditInstance* record = *static_cast<zte::EditInstance**>(GlobalLock(block));
    GlobalUnlock(block);
    return record;
}

// Copies a value that was read back, and frees it.
std::string Take(const Control& control, void* block)
{
    if (!block)
        return kNullResult;
    std::string value;
    if (IsDateOrTime(ZTE_FmtGetDataType(control.hwnd()))) {
        DateTimeValue read;
        std::memcpy(&read, block, sizeof read);
        value = Canonical(read);
    } else {
        value = static_cast<const char*>(block);
    }
    SharedHeapFree(control.heap(), block);
    return value;
}

}  // namespace

struct MaskedEdit::Implementation {
    explicit Implementation(const Config& config)
        : form(config.visible), control(form.hwnd(), kControlId, config), typist(control.hwnd())
    {
        form.onNotification = [this](const Notification& notification) { Hear(notification); };
    }

    void Hear(const Notification& notification)
    {
        if (notification.id != kControlId || notification.control != control.hwnd())
            return;
        if (notification.code != EN_CHANGE && notification.code != ZTN_AUTOSKIP)
            return;
        notices.push_back(notification.code == EN_CHANGE ? Notice::Changed : Notice::Full);
        if (listener)
            listener();
    }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return SendMessageA(control.hwnd(), message, wParam, lParam);
    }

    std::vector<Notice> notices;
    std::function<void()> listener;
    BeepCounter beeps;
    Form form;
    Control control;
    Typist typist;
};

MaskedEdit::MaskedEdit(const Config& config) : it_(std::make_unique<Implementation>(config)) {}
MaskedEdit::~MaskedEdit() = default;

int32_t MaskedEdit::SetMask(const char* mask, int32_t type)
{
    return ZTE_FmtSetMask(it_->control.hwnd(), mask, type);
}

void MaskedEdit::SetData(const void* data)
{
    ZTE_FmtSetData(it_->control.hwnd(), data);
}

void MaskedEdit::SetDataString(const std::string& text)
{
    ZTE_FmtSetDataString(it_->control.hwnd(), text.c_str());
}

FormattedValue MaskedEdit::Format(const void* data) const
{
    FormatResult* result = ZTE_FmtFormatData(it_->control.hwnd(), data);
    if (!result) {
        ADD_FAILURE() << "nothing was formatted";
        return {};
    }
    const FormattedValue value = {result->text, result->formatFlags, result->firstFieldPos};
    SharedHeapFree(it_->control.heap(), result->text);
    SharedHeapFree(it_->control.heap(), result);
    return value;
}

int32_t MaskedEdit::DataType() const
{
    return ZTE_FmtGetDataType(it_->control.hwnd());
}

void MaskedEdit::SetAutoskip(uint32_t on)
{
    ZTE_SetAutoskip(it_->control.hwnd(), on);
}

void MaskedEdit::SetSpin(uint32_t increment, const char* range, const char* codes, uint32_t style)
{
    ZTE_SetSpin(it_->control.hwnd(), increment, range, codes, style);
}

void MaskedEdit::CreateSpin()
{
    ZTE_CreateSpin(it_->control.hwnd());
}

void MaskedEdit::DestroySpin()
{
    ZTE_DestroySpin(it_->control.hwnd());
}

bool MaskedEdit::ReadRangeEnd(DateTimeValue* value, const char* text) const
{
    return ZTE_SpinDateRange(it_->control.hwnd(), value, text) == 0;
}

bool MaskedEdit::IsOutOfOrder(const void* first, const void* second) const
{
    return ZTE_SpinRangeCompare(it_->control.hwnd(), first, second) != 0;
}

std::string MaskedEdit::Read() const
{
    return Take(it_->control, ZTE_FmtGetData(it_->control.hwnd()));
}

std::string MaskedEdit::Unformat(const char* text) const
{
    return Take(it_->control, ZTE_FmtUnformatData(it_->control.hwnd(), text));
}

int32_t MaskedEdit::State() const
{
    return ZTE_GetState(it_->control.hwnd());
}

std::string MaskedEdit::DataString() const
{
    char* text = ZTE_GetDataString(it_->control.hwnd());
    const std::string value = text ? text : kNullResult;
    SharedHeapFree(it_->control.heap(), text);
    return value;
}

int32_t MaskedEdit::TrySetDataString(const std::string& text)
{
    return ZTE_TrySetDataString(it_->control.hwnd(), text.c_str());
}

std::optional<DateTimeValue> MaskedEdit::ReadDateTime() const
{
    void* block = ZTE_FmtGetData(it_->control.hwnd());
    if (!block)
        return std::nullopt;
    DateTimeValue value;
    std::memcpy(&value, block, sizeof value);
    SharedHeapFree(it_->control.heap(), block);
    return value;
}

std::string MaskedEdit::Text() const
{
    return it_->control.Text();
}

void MaskedEdit::SetText(const std::string& text)
{
    SetWindowTextA(it_->control.hwnd(), text.c_str());
}

void MaskedEdit::Replace(const std::string& text)
{
    it_->Send(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text.c_str()));
}

int MaskedEdit::CaretStart() const
{
    return it_->control.CaretStart();
}

int MaskedEdit::CaretEnd() const
{
    return it_->control.CaretEnd();
}

void MaskedEdit::Select(int start, int end)
{
    it_->control.Select(start, end);
}

bool MaskedEdit::IsModified() const
{
    return it_->Send(EM_GETMODIFY) != 0;
}

void MaskedEdit::ForgetModified()
{
    it_->Send(EM_SETMODIFY, FALSE);
}

bool MaskedEdit::CanUndo() const
{
    return it_->Send(EM_CANUNDO) != 0;
}

void MaskedEdit::Undo()
{
    it_->Send(WM_UNDO);
}

void MaskedEdit::Paste()
{
    it_->Send(WM_PASTE);
}

void MaskedEdit::LoseFocus()
{
    it_->Send(WM_KILLFOCUS);
}

void MaskedEdit::SetReadOnly()
{
    it_->Send(EM_SETREADONLY, TRUE);
}

void MaskedEdit::Disable()
{
    EnableWindow(it_->control.hwnd(), FALSE);
}

Keyboard& MaskedEdit::Keys()
{
    return it_->typist;
}

void MaskedEdit::Click(int position)
{
    it_->typist.Click(position);
}

void MaskedEdit::Drag(int from, int to)
{
    it_->typist.Drag(from, to);
}

bool MaskedEdit::ShiftIsDown() const
{
    return (GetKeyState(VK_SHIFT) & 0x8000) != 0;
}

int MaskedEdit::Beeps() const
{
    return it_->beeps.Count();
}

const std::vector<Notice>& MaskedEdit::Notices() const
{
    return it_->notices;
}

void MaskedEdit::Forget()
{
    it_->notices.clear();
    it_->beeps.Forget();
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
    return ViewOf(*RecordOf(it_->control.hwnd()));
}

std::optional<CodeTableView> MaskedEdit::CodeTable() const
{
    return CodeTableOf(*RecordOf(it_->control.hwnd()));
}

uint32_t MaskedEdit::Blocks() const
{
    return SharedHeapBlockCount(it_->control.heap());
}

void MaskedEdit::AcceptBlocks()
{
    it_->control.AcceptHeap();
}

struct FieldRecorder::Implementation {
    BaseRecorder base;
};

FieldRecorder::FieldRecorder() : it_(std::make_unique<Implementation>()) {}
FieldRecorder::~FieldRecorder() = default;

std::vector<std::string> FieldRecorder::Told() const
{
    std::vector<std::string> told;
    for (const BaseMessage& message : it_->base.All())
        if (message.message == WM_SETREDRAW)
            told.push_back(message.wParam ? "redraw on" : "redraw off");
        else if (message.message == EM_REPLACESEL || message.message == WM_SETTEXT)
            told.push_back("text");
    return told;
}

void FieldRecorder::Forget()
{
    it_->base.Forget();
}

MaskFault FaultOf(const std::string& mask, int32_t type)
{
    MaskFault fault = {};
    fault.reason = ZTE_CheckMask(mask.c_str(), type, &fault.position);
    return fault;
}

DateTimeValue Now()
{
    DateTimeValue now;
    SharedDateTimeNow(&now);
    return now;
}

}  // namespace zttest
