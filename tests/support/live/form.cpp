// The host form and its controls.
#include "tests/support/live/form.h"

#include <gtest/gtest.h>

#include "tests/support/marked_text.h"

namespace zttest {
namespace {

constexpr const char* kFormClass = "test form";

HINSTANCE Instance()
{
    return GetModuleHandleA(nullptr);
}

void RegisterForm(WNDPROC proc)
{
    WNDCLASSA wc = {};
    if (GetClassInfoA(Instance(), kFormClass, &wc))
        return;
    wc.lpfnWndProc = proc;
    wc.hInstance = Instance();
    wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    wc.lpszClassName = kFormClass;
    RegisterClassA(&wc);
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

DWORD StyleOf(const Config& config)
{
    const DWORD style = config.style ? config.style : WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL;
    return config.readOnly ? style | ES_READONLY : style;
}

HWND CreateChild(HWND parent, int id, const Config& config, const char* windowClass, EditInitParams* params)
{
    return CreateWindowExA(0, windowClass, "", StyleOf(config), 10, 10, config.width, config.height, parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), Instance(), params);
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const Notification& notification)
{
    return out << std::hex << "code 0x" << notification.code << std::dec << " from " << notification.id;
}

std::string TextOf(HWND hwnd)
{
    const auto length = static_cast<size_t>(GetWindowTextLengthA(hwnd));
    std::string text(length + 1, '\0');
    const int got = GetWindowTextA(hwnd, &text[0], static_cast<int>(text.size()));
    text.resize(static_cast<size_t>(got));
    return text;
}

void DrainMessages()
{
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

Control::Control(HWND parent, int id, const Config& config, Creation creation) : id_(id), heap_(SharedHeapCreate())
{
    EditInitParams params = ParamsOf(config, heap_);
    if (creation == Creation::ByClass) {
        hwnd_ = CreateChild(parent, id, config, ZTEDIT_CLASS, &params);
    } else {
        const bool subclass = creation == Creation::BySubclassing;
        hwnd_ = CreateChild(parent, id, config, subclass ? "edit" : ZTEDIT_CLASS, nullptr);
        if (subclass)
            SetWindowLongPtrA(hwnd_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ZTE_SuperEditWndProc));
        ZTE_Init(hwnd_, &params);
    }
    EXPECT_NE(hwnd_, nullptr);
    AcceptHeap();
}

Control::~Control()
{
    if (IsWindow(hwnd_) && GetPropA(hwnd_, "MAIN")) {
        EXPECT_EQ(SharedHeapBlockCount(heap_), ownBlocks_) << "blocks were left behind in the control's heap";
        DestroyWindow(hwnd_);
        // A spin takes its range and code table with it, so more than the record may go.
        EXPECT_LT(SharedHeapBlockCount(heap_), ownBlocks_) << "the record was not given back to the heap";
    } else if (IsWindow(hwnd_)) {
        DestroyWindow(hwnd_);
    }
    SharedHeapDestroy(heap_);
}

void Control::AcceptHeap()
{
    ownBlocks_ = SharedHeapBlockCount(heap_);
}

std::string Control::Text() const
{
    return TextOf(hwnd_);
}

int Control::CaretStart() const
{
    DWORD start = 0;
    SendMessageA(hwnd_, EM_GETSEL, reinterpret_cast<WPARAM>(&start), 0);
    return static_cast<int>(start);
}

int Control::CaretEnd() const
{
    DWORD end = 0;
    SendMessageA(hwnd_, EM_GETSEL, 0, reinterpret_cast<LPARAM>(&end));
    return static_cast<int>(end);
}

void Control::Select(int start, int end) const
{
    SendMessageA(hwnd_, EM_SETSEL, static_cast<WPARAM>(start), end);
}

std::string Control::Shown() const
{
    return Mark(Text(), CaretStart(), CaretEnd());
}

Form::Form(bool visible)
{
    RegisterForm(Proc);
    hwnd_ = CreateWindowExA(0, kFormClass, "form", WS_POPUP, 20, 20, 500, 400, nullptr, nullptr, Instance(), nullptr);
    SetWindowLongPtrA(hwnd_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    if (visible) {
        ShowWindow(hwnd_, SW_SHOW);
        DrainMessages();
    }
}

Form::~Form()
{
    SetWindowLongPtrA(hwnd_, GWLP_USERDATA, 0);
    DestroyWindow(hwnd_);
}

int Form::Count(int code) const
{
    int count = 0;
    for (const Notification& notification : notifications_)
        count += notification.code == code;
    return count;
}

LRESULT CALLBACK Form::Proc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    Form* form = reinterpret_cast<Form*>(GetWindowLongPtrA(hwnd, GWLP_USERDATA));
    if (form && message == WM_COMMAND) {
        const Notification notification = {HIWORD(wParam), LOWORD(wParam), reinterpret_cast<HWND>(lParam)};
        form->notifications_.push_back(notification);
        if (form->onNotification)
            form->onNotification(notification);
        return 0;
    }
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

}  // namespace zttest
