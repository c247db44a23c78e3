// How Windows Forms hosts a control of a class of the system or a library: a class of its own with wide texts, whose procedure hands on to
// the library's, and that procedure replaced once more. What bindings/csharp rests on, without a managed program.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "include/ztedit.h"
#include "tests/support/live/form.h"
#include "tests/support/live/typist.h"

namespace {

WNDPROC libraryProc = nullptr;
int messagesSeen = 0;

LRESULT CALLBACK OuterProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    ++messagesSeen;
    return CallWindowProcW(libraryProc, hwnd, message, wParam, lParam);
}

class ManagedHost : public testing::Test {
protected:
    ManagedHost()
    {
        WNDCLASSW made = {};
        EXPECT_TRUE(GetClassInfoW(nullptr, L"" ZTEDIT_CLASS, &made)) << "the class must be found by any module";
        libraryProc = made.lpfnWndProc;
        made.lpfnWndProc = OuterProc;
        made.hInstance = GetModuleHandleW(nullptr);
        made.lpszClassName = L"managed ztedit";
        RegisterClassW(&made);
        hwnd_ = CreateWindowExW(0, made.lpszClassName, L"", WS_CHILD | ES_AUTOHSCROLL, 0, 0, 100, 20, form_.hwnd(),
                                nullptr, made.hInstance, nullptr);
        SetWindowLongPtrW(hwnd_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(OuterProc));
    }
    ~ManagedHost() override
    {
        DestroyWindow(hwnd_);
        SharedHeapDestroy(heap_);
        UnregisterClassW(L"managed ztedit", GetModuleHandleW(nullptr));
    }

    zttest::Form form_;
    SharedHeap heap_ = SharedHeapCreate();
    HWND hwnd_;
};

TEST_F(ManagedHost, ConfiguresTheControlAfterItsCreation)
{
    ASSERT_TRUE(IsWindowUnicode(hwnd_));
    EditInitParams params = {};
    params.heap = heap_;
    params.maskText = "MM/DD/YYYY";
    params.dataType = DT_DATE;
    params.options = ZTEO_MODERN;
    ASSERT_EQ(ZTE_Init(hwnd_, &params), 1);
    zttest::Typist typist(hwnd_);
    messagesSeen = 0;
    typist.Play("{Home}11212026");
    EXPECT_GT(messagesSeen, 0);
    EXPECT_EQ(ZTE_GetState(hwnd_), ZTS_COMPLETE);
    wchar_t shown[32] = L"";
    GetWindowTextW(hwnd_, shown, 32);
    EXPECT_EQ(std::wstring(shown), L"11/21/2026");
    char* text = ZTE_GetDataString(hwnd_);
    EXPECT_STREQ(text, "2026-11-21");
    SharedHeapFree(heap_, text);
}

}  // namespace
