#include "bench/windows/form.h"

#include <commctrl.h>

namespace bench {

namespace {

constexpr int kWidth = 800;
constexpr int kHeight = 600;
constexpr int kColumn = 190;
constexpr int kRow = 30;

}  // namespace

Form::Form()
    : window_(CreateWindowExA(0, "static", "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, kWidth, kHeight, nullptr,
                              nullptr, nullptr, nullptr)),
      heap_(SharedHeapCreate())
{
}

Form::~Form()
{
    DestroyWindow(window_);
    SharedHeapDestroy(heap_);
}

// No visible control covers another: what is covered is not painted.
POINT Form::NextPlace(Visibility visibility) const
{
    if (visibility == Visibility::Hidden)
        return {0, 0};
    constexpr int kColumns = kWidth / kColumn;
    const int number = shown_++;
    return {10 + number % kColumns * kColumn, 10 + number / kColumns * kRow};
}

HWND Form::MakeChild(const char* windowClass, DWORD style, Visibility visibility, void* params) const
{
    const DWORD shown = visibility == Visibility::Visible ? WS_VISIBLE : 0;
    const POINT place = NextPlace(visibility);
    return CreateWindowExA(0, windowClass, "", WS_CHILD | shown | style, place.x, place.y, 160, 24, window_, nullptr,
                           nullptr, params);
}

HWND Form::MakeControl(const char* mask, int32_t type, Visibility visibility, uint32_t options) const
{
    EditInitParams params{};
    params.heap = heap_;
    params.maskText = mask;
    params.dataType = type;
    params.options = options;
    params.spinIncrement = 1;
    return MakeChild(ZTEDIT_CLASS, ES_AUTOHSCROLL, visibility, &params);
}

HWND Form::MakeEdit(Visibility visibility) const
{
    return MakeChild("edit", ES_AUTOHSCROLL, visibility, nullptr);
}

HWND Form::MakePicker(Visibility visibility) const
{
    return MakeChild(DATETIMEPICK_CLASSA, DTS_SHORTDATEFORMAT | DTS_UPDOWN, visibility, nullptr);
}

HWND Form::MakeUpDown(HWND buddy) const
{
    return CreateUpDownControl(WS_CHILD | WS_VISIBLE | UDS_SETBUDDYINT | UDS_ALIGNRIGHT | UDS_ARROWKEYS, 0, 0, 0, 0,
                               window_, 1, GetModuleHandleA(nullptr), buddy, 30000, 0, 100);
}

void Paint(HWND window)
{
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void TypeKey(HWND window, char character)
{
    const int key = VkKeyScanA(character) & 0xFF;
    const auto scan = static_cast<LPARAM>(MapVirtualKeyA(static_cast<UINT>(key), MAPVK_VK_TO_VSC) << 16 | 1);
    SendMessageA(window, WM_KEYDOWN, static_cast<WPARAM>(key), scan);
    SendMessageA(window, WM_CHAR, static_cast<WPARAM>(character), scan);
    SendMessageA(window, WM_KEYUP, static_cast<WPARAM>(key), scan | static_cast<LPARAM>(0xC0000000));
}

void PressKey(HWND window, WPARAM key)
{
    const auto scan = static_cast<LPARAM>(MapVirtualKeyA(static_cast<UINT>(key), MAPVK_VK_TO_VSC) << 16 | 1);
    SendMessageA(window, WM_KEYDOWN, key, scan);
    SendMessageA(window, WM_KEYUP, key, scan | static_cast<LPARAM>(0xC0000000));
}

}  // namespace bench
