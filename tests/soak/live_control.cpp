// A control in a window.
#include "tests/soak/live_control.h"

#include <cstring>

#include "tests/support/clipboard.h"
#include "tests/support/live/form.h"

namespace soak {

namespace {

constexpr int kControlId = 7;
constexpr DWORD kStyle = WS_CHILD | ES_AUTOHSCROLL;

EditInitParams ParamsOf(SharedHeap heap, const zttest::Config& config)
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

HWND CreateChild(HWND parent, const char* windowClass, DWORD style, EditInitParams* params)
{
    return CreateWindowExA(0, windowClass, "", style, 10, 10, 200, 20, parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(kControlId)), GetModuleHandleA(nullptr),
                           params);
}

INT_PTR CALLBACK DialogProc(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

// A dialog with one control of the class. Texts are of 16-bit characters.
struct alignas(DWORD) DialogTemplate {
    DLGTEMPLATE dialog{WS_POPUP | WS_BORDER, 0, 1, 0, 0, 150, 60};
    WORD menu = 0;
    WORD windowClass = 0;
    WORD title = 0;
    alignas(DWORD) DLGITEMTEMPLATE item{WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, 0, 8, 8, 100, 14, kControlId};
    wchar_t itemClass[10] = L"ZTEDIT050";
    WORD itemTitle = 0;
    WORD itemData = 0;
};
static_assert(sizeof(ZTEDIT_CLASS) == 10, "the name stands in the template too");

}  // namespace

void LiveControl::CreateInDialog(HWND parent)
{
    const DialogTemplate made;
    dialog_ = CreateDialogIndirectParamA(GetModuleHandleA(nullptr), &made.dialog, parent, DialogProc, 0);
    hwnd_ = GetDlgItem(dialog_, kControlId);
}

void LiveControl::Create(HWND parent, SharedHeap heap, const zttest::Config& config, Way way, bool shown)
{
    heap_ = heap;
    const DWORD style = kStyle | (shown ? WS_VISIBLE : 0u) | (config.readOnly ? DWORD{ES_READONLY} : 0u);
    EditInitParams params = ParamsOf(heap, config);
    switch (way) {
    case Way::ByClass: hwnd_ = CreateChild(parent, ZTEDIT_CLASS, style, &params); break;
    case Way::ByInit: hwnd_ = CreateChild(parent, ZTEDIT_CLASS, style, nullptr); break;
    case Way::BySubclassing:
        hwnd_ = CreateChild(parent, "edit", style, nullptr);
        SetWindowLongPtrA(hwnd_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ZTE_SuperEditWndProc));
        break;
    case Way::FromDialog: CreateInDialog(parent); break;
    case Way::AsPlainEdit: hwnd_ = CreateChild(parent, "edit", style, nullptr); break;
    default: {
        zttest::Config first;
        first.mask = "MM/DD/YY";
        first.type = DT_DATE;
        first.options = ZTEO_SPIN | ZTEO_CODE_DISPLAY;
        first.range = "1990-01-01~2010-12-31";
        first.codes = "Christmas\t1999-12-25/never\tnull!";
        EditInitParams firstParams = ParamsOf(heap, first);
        hwnd_ = CreateChild(parent, ZTEDIT_CLASS, style, &firstParams);
        break;
    }
    }
    if (way != Way::ByClass && way != Way::AsPlainEdit)
        ZTE_Init(hwnd_, &params);
    typist_.Use(hwnd_);
}

void LiveControl::Destroy()
{
    DestroyWindow(dialog_ ? dialog_ : hwnd_);
    dialog_ = hwnd_ = nullptr;
}

void LiveControl::PressSpin(bool up) const
{
    const HWND spin = GetWindow(hwnd_, GW_CHILD);
    if (!spin)
        return;
    RECT client{};
    GetClientRect(spin, &client);
    SendMessageA(spin, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, up ? 0 : client.bottom - 1));
    SendMessageA(spin, WM_TIMER, 1, 0);
    SendMessageA(spin, WM_LBUTTONUP, 0, MAKELPARAM(1, 0));
}

// Also what is hidden: a host may have the spin painted elsewhere.
void LiveControl::Paint() const
{
    RedrawWindow(hwnd_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    const RECT place = {0, 0, 20, 24};
    const HDC dc = GetDC(hwnd_);
    ZTE_PaintSpin(hwnd_, dc, &place);
    ZTE_PaintSpinOnce(&place, dc);
    ReleaseDC(hwnd_, dc);
}

void LiveControl::Perform(const Act& act)
{
    const char* text = act.text.c_str();
    switch (act.deed) {
    case Deed::Type: typist_.Type(act.text); break;
    case Deed::Press: typist_.Press(act.first, act.second); break;
    case Deed::Paste:
        zttest::CopyToClipboard(act.text);
        SendMessageA(hwnd_, WM_PASTE, 0, 0);
        break;
    case Deed::Click:
        typist_.Click(act.first);
        PressSpin(act.second % 2 == 0);
        break;
    case Deed::Drag: typist_.Drag(act.first, act.second); break;
    case Deed::Select: SendMessageA(hwnd_, EM_SETSEL, static_cast<WPARAM>(act.first), act.second); break;
    case Deed::SetText: SetWindowTextA(hwnd_, text); break;
    case Deed::Replace: SendMessageA(hwnd_, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text)); break;
    case Deed::SetMask: ZTE_FmtSetMask(hwnd_, text, act.first); break;
    case Deed::SetData: ZTE_FmtSetDataString(hwnd_, text); break;
    case Deed::SetNothing: ZTE_FmtSetData(hwnd_, nullptr); break;
    case Deed::Read: SharedHeapFree(heap_, ZTE_FmtGetData(hwnd_)); break;
    case Deed::Format:
        if (FormatResult* result = ZTE_FmtFormatData(hwnd_, nullptr)) {
            SharedHeapFree(heap_, result->text);
            SharedHeapFree(heap_, result);
        }
        break;
    case Deed::Unformat: SharedHeapFree(heap_, ZTE_FmtUnformatData(hwnd_, text)); break;
    case Deed::ReadRange: {
        DateTimeValue end{};
        ZTE_SpinDateRange(hwnd_, &end, text);
        break;
    }
    case Deed::SetSpin: {
        const SpinRow& row = SpinRowOf(act.first);
        ZTE_SetSpin(hwnd_, row.increment, row.range, row.codes, row.style);
        break;
    }
    case Deed::CreateSpin: ZTE_CreateSpin(hwnd_); break;
    case Deed::DestroySpin: ZTE_DestroySpin(hwnd_); break;
    case Deed::Autoskip: ZTE_SetAutoskip(hwnd_, static_cast<uint32_t>(act.first)); break;
    case Deed::ReadOnly: SendMessageA(hwnd_, EM_SETREADONLY, act.first ? TRUE : FALSE, 0); break;
    case Deed::Enable: EnableWindow(hwnd_, act.first ? TRUE : FALSE); break;
    case Deed::LoseFocus: SendMessageA(hwnd_, WM_KILLFOCUS, 0, 0); break;
    case Deed::Undo: SendMessageA(hwnd_, EM_UNDO, 0, 0); break;
    case Deed::Resize: SetWindowPos(hwnd_, nullptr, 0, 0, act.first, act.second, SWP_NOMOVE | SWP_NOZORDER); break;
    case Deed::Show: ShowWindow(hwnd_, act.first ? SW_SHOW : SW_HIDE); break;
    case Deed::Paint: Paint(); break;
    }
}

std::string LeadInWindow(HWND parent, const Life& life, Way way, bool shown)
{
    // A mask stays until the heap goes, for each time that the control was configured, and the range that no spin took with it.
    const uint32_t mayStay = way == Way::ByInitTwice ? 3 : 2;
    const SharedHeap heap = SharedHeapCreate();
    LiveControl control;
    control.Create(parent, heap, life.config, way, shown);
    std::string complaint;
    for (size_t i = 0; i < life.acts.size() && complaint.empty(); ++i) {
        const uint32_t blocks = SharedHeapBlockCount(heap);
        control.Perform(life.acts[i]);
        const uint32_t now = SharedHeapBlockCount(heap);
        if (now != blocks && !ChangesBlocks(life.acts[i].deed))
            complaint =
                "blocks " + std::to_string(blocks) + " became " + std::to_string(now) + ": " + Describe(life, i);
    }
    control.Destroy();
    if (complaint.empty() && SharedHeapBlockCount(heap) > mayStay)
        complaint =
            std::to_string(SharedHeapBlockCount(heap)) + " blocks are left: " + Describe(life, life.acts.size());
    SharedHeapDestroy(heap);
    return complaint;
}

}  // namespace soak
