// The fixture of tests of modern controls in their windows.
#include "tests/win32/modern_window.h"

namespace zttest {
namespace {

constexpr char kParentClass[] = "zttest modern parent";
constexpr int kModernId = 11;

constexpr const char* kStateNames[] = {"empty", "incomplete", "invalid", "out of range", "complete"};
constexpr const char* kReasonNames[] = {"nothing",
                                        "wrong kind",
                                        "out of bounds",
                                        "full",
                                        "read-only",
                                        "does not fit",
                                        "in doubt",
                                        "does not exist",
                                        "no such entry",
                                        "end of the range",
                                        "not in the code page"};

std::string TextOfRefusal(const ZTNotifyRejected& refusal)
{
    std::string text =
        std::string("rejected ") + kReasonNames[refusal.reason] + " at " + std::to_string(refusal.position);
    if (refusal.character != 0)
        text += std::string(" by ") + static_cast<char>(refusal.character);
    return text;
}

std::string TextOfState(const ZTNotifyState& state)
{
    return std::string("state ") + kStateNames[state.was] + " to " + kStateNames[state.is];
}

std::string TextOfCommand(int code)
{
    switch (code) {
    case EN_UPDATE: return "update";
    case EN_CHANGE: return "change";
    case ZTN_AUTOSKIP: return "skip";
    default: return "";
    }
}

}  // namespace

ModernParent::ModernParent()
{
    WNDCLASSA parentClass = {};
    parentClass.lpfnWndProc = Proc;
    parentClass.hInstance = GetModuleHandleA(nullptr);
    parentClass.lpszClassName = kParentClass;
    RegisterClassA(&parentClass);
    hwnd_ = CreateWindowExA(0, kParentClass, "", WS_POPUP, 20, 20, 400, 300, nullptr, nullptr, parentClass.hInstance,
                            nullptr);
    SetWindowLongPtrA(hwnd_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

ModernParent::~ModernParent()
{
    SetWindowLongPtrA(hwnd_, GWLP_USERDATA, 0);
    DestroyWindow(hwnd_);
}

Told ModernParent::TakeTold()
{
    Told told;
    told.swap(told_);
    return told;
}

void ModernParent::Tell(std::string text)
{
    if (text.empty())
        return;
    told_.push_back(text);
    if (const auto listener = onTold)  // a copy: it may end its own listening
        listener(text);
}

LRESULT ModernParent::Notify(const NMHDR& header)
{
    EXPECT_EQ(header.idFrom, static_cast<UINT_PTR>(kModernId));
    EXPECT_EQ(header.hwndFrom, GetDlgItem(hwnd_, kModernId));
    if (header.code == ZTN_REJECTED)
        Tell(TextOfRefusal(reinterpret_cast<const ZTNotifyRejected&>(header)));
    else if (header.code == ZTN_STATECHANGED)
        Tell(TextOfState(reinterpret_cast<const ZTNotifyState&>(header)));
    return answer;
}

LRESULT CALLBACK ModernParent::Proc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* parent = reinterpret_cast<ModernParent*>(GetWindowLongPtrA(hwnd, GWLP_USERDATA));
    if (!parent)
        return DefWindowProcA(hwnd, message, wParam, lParam);
    switch (message) {
    case WM_COMMAND: parent->Tell(TextOfCommand(HIWORD(wParam))); return 0;
    case WM_NOTIFY: return parent->Notify(*reinterpret_cast<const NMHDR*>(lParam));
    case WM_MOUSEWHEEL: parent->wheels.push_back(GET_WHEEL_DELTA_WPARAM(wParam)); return 0;
    default: return DefWindowProcA(hwnd, message, wParam, lParam);
    }
}

void ModernWindow::Make(const Config& config, uint32_t options)
{
    Config given = config;
    given.options |= options;
    control_.reset();
    control_ = std::make_unique<Control>(parent_.hwnd(), kModernId, given);
    typist_.Use(control_->hwnd());
    parent_.TakeTold();
    beeps_.Forget();
}

void ModernWindow::Make(const char* mask, int32_t type, const char* data, uint32_t options)
{
    Config config;
    config.mask = mask;
    config.type = type;
    config.data = data;
    config.options = options;
    Make(config);
}

}  // namespace zttest
