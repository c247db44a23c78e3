// sample.cpp - a form of two masked edits: a due date and an amount. OK, or the Enter key, puts what was entered into the title.
//
//     x86_64-w64-mingw32-g++ -std=c++17 -mwindows -static -Iinclude sample.cpp lib/libztedit050.dll.a lib/libztshared.dll.a
//         lib/libztdecimal.dll.a
#include "ztedit.hpp"

namespace {

constexpr char kFormClass[] = "ztedit sample";
constexpr int kDue = 101;
constexpr int kAmount = 102;

class Form {
public:
    Form()
    {
        WNDCLASSA form = {};
        form.lpfnWndProc = Proc;
        form.hInstance = GetModuleHandleA(nullptr);
        form.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
        form.lpszClassName = kFormClass;
        RegisterClassA(&form);
        hwnd_ = CreateWindowA(kFormClass, "Invoice", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100, 300, 200, nullptr,
                              nullptr, form.hInstance, nullptr);
        due_ =
            zt::Edit::Create(heap_, zt::Setup::Date("MM/DD/YYYY").Modern().Autoskip(), hwnd_, kDue, {20, 20, 120, 24});
        amount_ = zt::Edit::Create(heap_, zt::Setup::Decimal("#,##0.00").Modern().Spin(1, "0~99999"), hwnd_, kAmount,
                                   {20, 54, 120, 24});
        CreateWindowA("button", "OK", WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, 20, 88, 60, 26, hwnd_,
                      reinterpret_cast<HMENU>(INT_PTR{IDOK}), form.hInstance, nullptr);
        hint_ = CreateWindowA("static", "", WS_CHILD | WS_VISIBLE, 20, 124, 240, 20, hwnd_, nullptr, form.hInstance,
                              nullptr);
        SetWindowLongPtrA(hwnd_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        SetFocus(due_.Window());
    }

    void Run() const
    {
        MSG message;
        while (GetMessageA(&message, nullptr, 0, 0) > 0) {
            if (IsDialogMessageA(hwnd_, &message))
                continue;
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
    }

private:
    static LRESULT CALLBACK Proc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
    {
        const auto* form = reinterpret_cast<const Form*>(GetWindowLongPtrA(hwnd, GWLP_USERDATA));
        if (form && message == WM_COMMAND)
            form->OnCommand(wParam, lParam);
        if (form && message == WM_NOTIFY)
            return form->OnNotify(lParam);
        if (message == WM_DESTROY)
            PostQuitMessage(0);
        return DefWindowProcA(hwnd, message, wParam, lParam);
    }

    void OnCommand(WPARAM wParam, LPARAM lParam) const
    {
        if (const auto skip = zt::Autoskip::From(wParam, lParam))
            SetFocus(GetNextDlgTabItem(hwnd_, skip->control, FALSE));
        else if (LOWORD(wParam) == IDOK)
            ShowEntered();
    }

    // A refused key is told in words; the answer takes the place of the beep.
    LRESULT OnNotify(LPARAM lParam) const
    {
        const auto refused = zt::Rejected::From(lParam);
        if (!refused)
            return 0;
        SetWindowTextA(
            hint_, refused->reason == zt::Reason::WrongKind ? "This does not belong here." : "This cannot be entered.");
        return 1;
    }

    void ShowEntered() const
    {
        const auto due = due_.Get<std::string>();
        const auto amount = amount_.Get<zt::Decimal>();
        if (due_.GetState() != zt::State::Complete)
            SetFocus(due_.Window());
        else if (due && amount)
            SetWindowTextA(hwnd_, ("Due " + *due + ", amount " + amount->Text()).c_str());
    }

    zt::Heap heap_;
    HWND hwnd_ = nullptr;
    HWND hint_ = nullptr;
    zt::Edit due_;
    zt::Edit amount_;
};

}  // namespace

int main()
{
    const Form form;
    form.Run();
    return 0;
}
