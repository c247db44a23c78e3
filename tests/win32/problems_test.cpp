// What a program is told where a window is no control, or not the one that was asked for.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/live/window_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

class Problems : public WindowTest {
protected:
    Problems() : heap_(SharedHeapCreate()) {}
    ~Problems() override
    {
        if (hwnd_)
            DestroyWindow(hwnd_);
        SharedHeapDestroy(heap_);
    }

    EditInitParams Params(const char* mask = "MM/DD/YY", int32_t type = DT_DATE) const
    {
        EditInitParams params = {};
        params.heap = heap_;
        params.maskText = mask;
        params.dataType = type;
        return params;
    }
    int32_t Create(const EditInitParams* params, const char* windowClass = ZTEDIT_CLASS)
    {
        if (hwnd_)
            DestroyWindow(hwnd_);
        hwnd_ = CreateWindowExA(0, windowClass, "", WS_CHILD, 0, 0, 100, 24, form_.hwnd(), nullptr, nullptr,
                                const_cast<EditInitParams*>(params));
        return ZTE_GetLastProblem(hwnd_);
    }

    SharedHeap heap_;
    HWND hwnd_ = nullptr;
};

TEST_F(Problems, OfACreationAreTold)
{
    EditInitParams params = Params();
    EXPECT_EQ(Create(&params), ZTP_NONE);
    params.options = ZTEO_MODERN;
    EXPECT_EQ(Create(&params), ZTP_NONE);
    EXPECT_EQ(Create(nullptr), ZTP_NO_PARAMETERS);
    params.heap = nullptr;
    EXPECT_EQ(Create(&params), ZTP_NO_HEAP);
    params.heap = reinterpret_cast<SharedHeap>(&params);
    EXPECT_EQ(Create(&params), ZTP_FOREIGN_HEAP);
    for (const int32_t type : {0, 7, -1}) {
        params = Params("##", type);
        EXPECT_EQ(Create(&params), ZTP_DATA_TYPE) << type;
    }
    for (const uint32_t options : {0, ZTEO_MODERN}) {
        params = Params("MM/DD");
        params.options = options;
        EXPECT_EQ(Create(&params), ZTP_MASK);
        params = Params(nullptr);
        params.options = options;
        EXPECT_EQ(Create(&params), ZTP_NONE) << "no mask asks for the default";
    }
}

TEST_F(Problems, OfALaterConfigurationAreTold)
{
    EditInitParams params = Params();
    Create(nullptr);
    params.heap = nullptr;
    EXPECT_EQ(ZTE_Init(hwnd_, &params), 0);
    EXPECT_EQ(ZTE_GetLastProblem(hwnd_), ZTP_NO_HEAP);
    EXPECT_EQ(ZTE_Init(hwnd_, nullptr), 0);
    EXPECT_EQ(ZTE_GetLastProblem(hwnd_), ZTP_NO_PARAMETERS);
    params = Params("MM/DD");
    EXPECT_EQ(ZTE_Init(hwnd_, &params), 1);
    EXPECT_EQ(ZTE_GetLastProblem(hwnd_), ZTP_MASK);
    params = Params();
    EXPECT_EQ(ZTE_Init(hwnd_, &params), 1);
    EXPECT_EQ(ZTE_GetLastProblem(hwnd_), ZTP_NONE);
    params.heap = nullptr;
    EXPECT_EQ(ZTE_Init(hwnd_, &params), 0);
    EXPECT_EQ(ZTE_GetLastProblem(hwnd_), ZTP_NO_HEAP);
    EXPECT_EQ(ZTE_FmtGetDataType(hwnd_), DT_DATE) << "it is the control that it was";
}

TEST_F(Problems, OfAMaskSetLaterAreTold)
{
    const EditInitParams params = Params();
    Create(&params);
    EXPECT_EQ(ZTE_FmtSetMask(hwnd_, "HH:SS", DT_TIME), 0);
    EXPECT_EQ(ZTE_GetLastProblem(hwnd_), ZTP_MASK);
    EXPECT_EQ(ZTE_FmtSetMask(hwnd_, "HH:MM", DT_TIME), 1);
    EXPECT_EQ(ZTE_GetLastProblem(hwnd_), ZTP_NONE);
    ZTE_FmtSetMask(hwnd_, "", DT_STRING);
    EXPECT_EQ(ZTE_GetLastProblem(hwnd_), ZTP_NONE);
    ZTE_FmtSetMask(hwnd_, "##", 9);
    EXPECT_EQ(ZTE_GetLastProblem(hwnd_), ZTP_DATA_TYPE);
}

TEST_F(Problems, OfOtherWindowsAreTold)
{
    const EditInitParams params = Params();
    Create(nullptr, "edit");
    EXPECT_EQ(ZTE_GetLastProblem(hwnd_), ZTP_NONE);
    EXPECT_EQ(ZTE_Init(hwnd_, &params), 0);
    EXPECT_EQ(ZTE_GetLastProblem(hwnd_), ZTP_NOT_SUBCLASSED);
    DestroyWindow(hwnd_);
    hwnd_ = CreateWindowExW(0, L"EDIT", L"", WS_CHILD, 0, 0, 100, 24, form_.hwnd(), nullptr, nullptr, nullptr);
    SetWindowLongPtrW(
        hwnd_, GWLP_WNDPROC,
        reinterpret_cast<LONG_PTR>(GetProcAddress(GetModuleHandleA("ztedit050.dll"), "ZTE_SuperEditWndProc")));
    EXPECT_EQ(ZTE_Init(hwnd_, &params), 0);
    EXPECT_EQ(ZTE_GetLastProblem(hwnd_), ZTP_WIDE_TEXTS);
    EXPECT_EQ(ZTE_GetLastProblem(nullptr), ZTP_NONE);
    EXPECT_EQ(ZTE_GetLastProblem(reinterpret_cast<HWND>(static_cast<intptr_t>(0x1234))), ZTP_NONE);
}

TEST_F(Problems, OfAHeapThatWasDestroyedAreTold)
{
    EditInitParams params = Params();
    const SharedHeap heap = SharedHeapCreate();
    params.heap = heap;
    EXPECT_EQ(Create(&params), ZTP_NONE);
    SharedHeapDestroy(heap);
    EXPECT_EQ(ZTE_GetLastProblem(hwnd_), ZTP_FOREIGN_HEAP);
    params.heap = heap_;
    EXPECT_EQ(ZTE_Init(hwnd_, &params), 1);
    EXPECT_EQ(ZTE_GetLastProblem(hwnd_), ZTP_NONE);
}

TEST(Version, OfTheLibraryIsThatOfItsHeader)
{
    EXPECT_EQ(ZTE_Initialize(), static_cast<uint32_t>(ZTEDIT_VERSION));
    EXPECT_EQ(ZTE_Initialize(), 0x000500u);
}

class CheckedMask : public WindowTest {};

TEST_F(CheckedMask, IsToldWithItsPosition)
{
    int32_t position = 99;
    EXPECT_EQ(ZTE_CheckMask("MM/DD/YY", DT_DATE, &position), ZTM_FITS);
    EXPECT_EQ(position, -1);
    EXPECT_EQ(ZTE_CheckMask("MM/DD", DT_DATE, &position), ZTM_FIELD_MISSING);
    EXPECT_EQ(position, 5);
    EXPECT_EQ(ZTE_CheckMask("##x##", DT_NUMBER, nullptr), ZTM_OUT_OF_PLACE);
    EXPECT_EQ(ZTE_CheckMask(nullptr, DT_TIME, &position), ZTM_EMPTY);
    EXPECT_EQ(position, 0);
    EXPECT_EQ(ZTE_CheckMask("[date]", DT_DATE, &position), ZTM_FITS);
}

}  // namespace
}  // namespace zttest
