// Windows of the library, and the companions' exports.
#include "tests/texts/subject.h"

#include <windows.h>

#include <algorithm>
#include <cstring>
#include <vector>

#include "include/ztedit.h"
#include "tests/support/live/form.h"
#include "tests/support/live/typist.h"

namespace zttest {
namespace {

constexpr int kControlId = 7;

// The text of the clipboard that is open, as far as its block goes.
std::string TextThere()
{
    const HANDLE block = GetClipboardData(CF_TEXT);
    const auto* text = block ? static_cast<const char*>(GlobalLock(block)) : nullptr;
    if (!text)
        return "";
    std::string copy(text, GlobalSize(block));
    GlobalUnlock(block);
    return copy.substr(0, copy.find('\0'));
}

// Fills a clipboard block of exactly the bytes given and tells the control to paste it.
std::string PasteBlock(HWND control, UINT format, const void* bytes, size_t size)
{
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
    std::memcpy(GlobalLock(block), bytes, size);
    GlobalUnlock(block);
    OpenClipboard(nullptr);
    EmptyClipboard();
    SetClipboardData(format, block);
    CloseClipboard();
    SendMessageA(control, WM_PASTE, 0, 0);
    OpenClipboard(nullptr);
    const std::string text = TextThere();
    EmptyClipboard();
    CloseClipboard();
    return text;
}

EditInitParams ParamsOf(const Config& config, SharedHeap heap)
{
    EditInitParams params = {};
    params.heap = heap;
    params.maskText = config.mask;
    params.dataType = config.type;
    params.initialData = config.data;
    params.spinRangeText = config.range;
    params.spinIncrement = config.increment;
    params.codeTableText = config.codes;
    params.options = config.options;
    return params;
}

// One form holds all controls of a program: to make one takes longer than most tests here.
Form& TheForm()
{
    static Form form;
    return form;
}

}  // namespace

struct Subject::Implementation {
    explicit Implementation(const Config& config)
        : control(TheForm().hwnd(), kControlId, config), typist(control.hwnd())
    {
        TheForm().Forget();
    }

    HWND Window() const { return control.hwnd(); }

    std::optional<std::string> Take(void* block)
    {
        if (!block)
            return std::nullopt;
        std::string read;
        if (IsDateOrTime(ZTE_FmtGetDataType(Window()))) {
            DateTimeValue value;
            std::memcpy(&value, block, sizeof value);
            read = Canonical(value);
        } else {
            read = static_cast<const char*>(block);
        }
        SharedHeapFree(control.heap(), block);
        return read;
    }

    Control control;
    Typist typist;
};

Subject::Subject(const Config& config) : it_(std::make_unique<Implementation>(config)) {}
Subject::~Subject() = default;

void Subject::Init(const Config& config)
{
    const EditInitParams params = ParamsOf(config, it_->control.heap());
    ZTE_Init(it_->Window(), &params);
    it_->control.AcceptHeap();
}

int32_t Subject::SetMask(const char* mask, int32_t type)
{
    return ZTE_FmtSetMask(it_->Window(), mask, type);
}

void Subject::SetData(const void* data)
{
    ZTE_FmtSetData(it_->Window(), data);
}

void Subject::SetDataString(const char* text)
{
    ZTE_FmtSetDataString(it_->Window(), text);
}

std::string Subject::Format(const void* data)
{
    FormatResult* result = ZTE_FmtFormatData(it_->Window(), data);
    std::string text = result->text;
    SharedHeapFree(it_->control.heap(), result->text);
    SharedHeapFree(it_->control.heap(), result);
    return text;
}

void Subject::SetSpin(const char* range, const char* codes, uint32_t style)
{
    ZTE_SetSpin(it_->Window(), 1, range, codes, style);
}

bool Subject::ReadRangeEnd(DateTimeValue* value, const char* text)
{
    return ZTE_SpinDateRange(it_->Window(), value, text) == 0;
}

bool Subject::IsOutOfOrder(const void* first, const void* second)
{
    return ZTE_SpinRangeCompare(it_->Window(), first, second) != 0;
}

std::optional<std::string> Subject::Read()
{
    return it_->Take(ZTE_FmtGetData(it_->Window()));
}

std::optional<std::string> Subject::Unformat(const char* text)
{
    return it_->Take(ZTE_FmtUnformatData(it_->Window(), text));
}

std::string Subject::Text()
{
    return it_->control.Text();
}

void Subject::SetText(const char* text)
{
    SetWindowTextA(it_->Window(), text);
}

void Subject::ReplaceAll(const char* text)
{
    Select(0, -1);
    SendMessageA(it_->Window(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
}

void Subject::Select(int start, int end)
{
    it_->control.Select(start, end);
}

int Subject::CaretStart()
{
    return it_->control.CaretStart();
}

void Subject::Type(const std::string& text)
{
    it_->typist.Type(text);
}

void Subject::Press(const std::string& keys)
{
    it_->typist.Play(keys);
}

std::string Subject::Paste(const std::string& bytes)
{
    return PasteBlock(it_->Window(), CF_TEXT, bytes.data(), bytes.size());
}

std::string Subject::PasteUnicode(const std::u16string& units)
{
    return PasteBlock(it_->Window(), CF_UNICODETEXT, units.data(), units.size() * sizeof(char16_t));
}

const zte::EditInstance& Subject::Record()
{
    const HGLOBAL block = GetPropA(it_->Window(), "MAIN");
    const auto* record = *static_cast<const zte::EditInstance**>(GlobalLock(block));
    GlobalUnlock(block);
    return *record;
}

uint32_t Subject::Blocks()
{
    return SharedHeapBlockCount(it_->control.heap());
}

void Subject::AcceptBlocks()
{
    it_->control.AcceptHeap();
}

namespace services_under_test {

bool IsNumber(const char* text)
{
    return SharedIsNumber(text) != 0;
}

bool ParseDateTime(DateTimeValue* value, const char* text, int32_t kind)
{
    return SharedParseDateTime(value, text, kind) == 0;
}

bool CompileFormat(void* compiled, const char* text, int32_t size)
{
    return SharedCompileFormat(compiled, text, size) == 0;
}

int32_t FormatDouble(char* output, int32_t size, const void* compiled, double value)
{
    return SharedFormatDouble(output, size, compiled, value, 0);
}

int32_t FormatDecimal(char* output, int32_t size, const void* compiled, const DecimalValue* value)
{
    return SharedFormatDecimal(output, size, compiled, value, 0);
}

void DecimalOf(DecimalValue* value, const char* text, int32_t decimalPlaces)
{
    DecFromString(value, text, decimalPlaces);
}

void Add(DecimalValue* sum, const DecimalValue* first, const DecimalValue* second)
{
    DecAdd(sum, first, second);
}

int32_t Compare(const DecimalValue* first, const DecimalValue* second)
{
    return DecCompare(first, second);
}

std::string CopyOf(const char* text)
{
    const SharedHeap heap = SharedHeapCreate();
    const char* duplicate = SharedHeapStrDup(heap, text, 0);
    std::string copy(std::strlen(duplicate) + 1, '\0');
    SharedStrCopy(copy.data(), text);
    copy.pop_back();
    const bool same = copy == duplicate;
    SharedHeapDestroy(heap);
    return same ? copy : "the copies differ";
}

}  // namespace services_under_test

bool HeapsAreSound()
{
    std::vector<HANDLE> heaps(GetProcessHeaps(0, nullptr));
    GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    return std::all_of(heaps.begin(), heaps.end(), [](HANDLE heap) { return HeapValidate(heap, 0, nullptr); });
}

bool IsLive()
{
    return true;
}

}  // namespace zttest
