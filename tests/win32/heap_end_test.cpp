// Hosts that end a heap before its controls, hand in a heap that is none, or hand wide texts to the procedure.
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "tests/support/live/window_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

EditInitParams DateIn(SharedHeap heap, uint32_t options = 0)
{
    EditInitParams params = {};
    params.heap = heap;
    params.maskText = "MM/DD/YY";
    params.dataType = DT_DATE;
    params.initialData = "1995-07-04";
    params.options = options;
    params.spinIncrement = 1;
    return params;
}

bool IsControl(HWND hwnd)
{
    return ZTE_FmtGetDataType(hwnd) != 0;
}

class HeapEnd : public WindowTest {
protected:
    HeapEnd() : heap_(SharedHeapCreate()) {}
    void TearDown() override
    {
        if (IsWindow(hwnd_))
            DestroyWindow(hwnd_);
    }

    HWND Create(SharedHeap heap, uint32_t options = 0, int id = 7)
    {
        EditInitParams params = DateIn(heap, options);
        return CreateWindowExA(0, ZTEDIT_CLASS, "", WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, 0, 0, 100, 24, form_.hwnd(),
                               reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, &params);
    }
    void MakeIt(uint32_t options = 0)
    {
        hwnd_ = Create(heap_, options);
        typist_.Use(hwnd_);
    }

    SharedHeap heap_;
    HWND hwnd_ = nullptr;
};

TEST_F(HeapEnd, LeavesAPlainEditWithItsText)
{
    MakeIt();
    SharedHeapDestroy(heap_);
    EXPECT_FALSE(IsControl(hwnd_));
    EXPECT_EQ(GetPropA(hwnd_, "MAIN"), nullptr);
    EXPECT_EQ(TextOf(hwnd_), "07/04/95");
    SendMessageA(hwnd_, EM_SETSEL, 0, 0);
    Play("abc{Back}");
    EXPECT_EQ(TextOf(hwnd_), "ab07/04/95");
}

TEST_F(HeapEnd, IsSurvivedByEveryExport)
{
    MakeIt(ZTEO_SPIN);
    SharedHeapDestroy(heap_);
    const double number = 1.0;
    EXPECT_EQ(ZTE_FmtSetMask(hwnd_, "MM/DD/YY", DT_DATE), 1);
    EXPECT_EQ(ZTE_FmtSetData(hwnd_, &number), 0);
    EXPECT_EQ(ZTE_FmtSetDataString(hwnd_, "1995-07-04"), 0);
    EXPECT_EQ(ZTE_FmtGetData(hwnd_), nullptr);
    EXPECT_EQ(ZTE_FmtFormatData(hwnd_, nullptr), nullptr);
    ZTE_SetSpin(hwnd_, 1, "~", "A\tB", SPINSTYLE_CODETABLE);
    ZTE_CreateSpin(hwnd_);
    ZTE_DestroySpin(hwnd_);
    EXPECT_EQ(ZTE_GetSpinWidth(hwnd_, nullptr), 0);
    EXPECT_EQ(TextOf(hwnd_), "07/04/95");
}

// Painting and placing may use the record that was used last without asking for it.
class PaintedHeapEnd : public HeapEnd {
protected:
    void PaintAndPlace()
    {
        InvalidateRect(hwnd_, nullptr, TRUE);
        UpdateWindow(hwnd_);
        MoveWindow(hwnd_, 10, 10, 140, 30, TRUE);
        UpdateWindow(hwnd_);
        const HDC dc = GetDC(hwnd_);
        const RECT place = {0, 0, 16, 24};
        ZTE_PaintSpin(hwnd_, dc, &place);
        ReleaseDC(hwnd_, dc);
    }
};

TEST_F(PaintedHeapEnd, IsSurvivedByWhatIsPaintedAfterAKey)
{
    MakeIt(ZTEO_SPIN);
    Play("1");
    PaintAndPlace();
    SharedHeapDestroy(heap_);
    PaintAndPlace();
    EXPECT_FALSE(IsControl(hwnd_));
}

TEST_F(PaintedHeapEnd, IsSurvivedWithoutTheProperty)
{
    MakeIt(ZTEO_SPIN);
    Play("1");
    RemovePropA(hwnd_, "MAIN");
    PaintAndPlace();
    SharedHeapDestroy(heap_);
    PaintAndPlace();
    EXPECT_FALSE(IsControl(hwnd_));
}

TEST_F(PaintedHeapEnd, IsSurvivedByAControlWhoseWindowWentWithoutTheProperty)
{
    MakeIt(ZTEO_SPIN);
    Play("1");
    RemovePropA(hwnd_, "MAIN");
    DestroyWindow(hwnd_);
    SharedHeapDestroy(heap_);
    heap_ = SharedHeapCreate();
    MakeIt();
    PaintAndPlace();
    EXPECT_TRUE(IsControl(hwnd_));
    DestroyWindow(hwnd_);
    SharedHeapDestroy(heap_);
}

TEST_F(HeapEnd, TakesTheSpinAlongAndGivesTheMarginBack)
{
    MakeIt(ZTEO_SPIN);
    UpdateWindow(hwnd_);
    ASSERT_NE(GetWindow(hwnd_, GW_CHILD), nullptr);
    SharedHeapDestroy(heap_);
    EXPECT_EQ(GetWindow(hwnd_, GW_CHILD), nullptr);
    const HWND plain = CreateWindowExA(0, "EDIT", "", WS_CHILD | ES_AUTOHSCROLL, 0, 0, 100, 24, form_.hwnd(), nullptr,
                                       nullptr, nullptr);
    EXPECT_EQ(SendMessageA(hwnd_, EM_GETMARGINS, 0, 0), SendMessageA(plain, EM_GETMARGINS, 0, 0));
    DestroyWindow(plain);
}

TEST_F(HeapEnd, EndsAllItsControlsAndNoOthers)
{
    const SharedHeap other = SharedHeapCreate();
    const HWND first = Create(heap_);
    const HWND second = Create(heap_, ZTEO_SPIN);
    hwnd_ = Create(other);
    SharedHeapDestroy(heap_);
    EXPECT_FALSE(IsControl(first));
    EXPECT_FALSE(IsControl(second));
    EXPECT_TRUE(IsControl(hwnd_));
    DestroyWindow(first);
    DestroyWindow(second);
    DestroyWindow(hwnd_);
    SharedHeapDestroy(other);
}

TEST_F(HeapEnd, DoesNotSpeakOfControlsThatAreGone)
{
    MakeIt();
    DestroyWindow(hwnd_);
    SharedHeapDestroy(heap_);
    SUCCEED();
}

TEST_F(HeapEnd, LetsTheWindowBeAControlAgain)
{
    MakeIt();
    SharedHeapDestroy(heap_);
    heap_ = SharedHeapCreate();
    const EditInitParams params = DateIn(heap_);
    EXPECT_EQ(ZTE_Init(hwnd_, &params), 1);
    EXPECT_TRUE(IsControl(hwnd_));
    DestroyWindow(hwnd_);
    SharedHeapDestroy(heap_);
}

// The heap ends inside a notification of the control, which stays.
struct EndingKey {
    const char* name;
    uint32_t options;
    const char* keys;
    int notification;
};
void PrintTo(const EndingKey& row, std::ostream* out)
{
    *out << row.name;
}

class HeapEndInANotification : public HeapEnd, public OfRow<EndingKey> {};

ROW_TEST(HeapEndInANotification, LeavesAPlainEdit)
{
    const EndingKey& row = GetParam();
    MakeIt(row.options);
    form_.onNotification = [&](const Notification& notification) {
        if (notification.code == row.notification && heap_)
            SharedHeapDestroy(std::exchange(heap_, nullptr));
    };
    SendMessageA(hwnd_, EM_SETSEL, 7, 7);
    Play(row.keys);
    ASSERT_EQ(heap_, nullptr) << "the notification never came";
    EXPECT_TRUE(IsWindow(hwnd_));
    EXPECT_FALSE(IsControl(hwnd_));
    const std::string text = TextOf(hwnd_);
    Play("xyz");
    EXPECT_NE(TextOf(hwnd_), text) << "a plain edit takes letters";
}

// clang-format off
constexpr EndingKey kEndingKeys[] = {
    {"OfAKey",      0,                         "6",       EN_CHANGE   },
    {"OfAnUpdate",  0,                         "6",       EN_UPDATE   },
    {"OfADeletion", 0,                         "{Back}",  EN_CHANGE   },
    {"OfAutoskip",  ZTEO_AUTOSKIP,             "6",       ZTN_AUTOSKIP},
    {"OfAStep",     ZTEO_SPIN,                 "{Up}",    EN_CHANGE   },
    {"OfAStepSet",  ZTEO_SPIN,                 "{Down}",  EN_UPDATE   },
};
// clang-format on
TEST_ROWS(Keys, HeapEndInANotification, kEndingKeys);

class ForeignHeap : public WindowTest {};

// Something that is no heap: a block of the program's own, never written to.
SharedHeap NoHeap()
{
    static const char block[64] = "this is no heap";
    return reinterpret_cast<SharedHeap>(const_cast<char*>(block));
}

TEST_F(ForeignHeap, LeavesAPlainEditAtCreation)
{
    EditInitParams params = DateIn(NoHeap());
    const HWND hwnd =
        CreateWindowExA(0, ZTEDIT_CLASS, "text", WS_CHILD, 0, 0, 100, 24, form_.hwnd(), nullptr, nullptr, &params);
    ASSERT_NE(hwnd, nullptr);
    EXPECT_FALSE(IsControl(hwnd));
    EXPECT_EQ(TextOf(hwnd), "text");
    DestroyWindow(hwnd);
}

TEST_F(ForeignHeap, IsRefusedByInit)
{
    const HWND hwnd =
        CreateWindowExA(0, ZTEDIT_CLASS, "text", WS_CHILD, 0, 0, 100, 24, form_.hwnd(), nullptr, nullptr, nullptr);
    const EditInitParams params = DateIn(NoHeap());
    EXPECT_EQ(ZTE_Init(hwnd, &params), 0);
    EXPECT_FALSE(IsControl(hwnd));
    DestroyWindow(hwnd);
}

TEST_F(ForeignHeap, ThatIsGoneIsRefusedAndTheControlStays)
{
    Given("MM/DD/YY", DT_DATE, "|07/04/95");
    const SharedHeap gone = SharedHeapCreate();
    SharedHeapDestroy(gone);
    const EditInitParams params = DateIn(gone);
    EXPECT_EQ(ZTE_Init(Window(), &params), 0);
    EXPECT_EQ(Shown(), "|07/04/95");
    EXPECT_TRUE(IsControl(Window()));
}

class WideSubclass : public WindowTest {};

// The procedure itself: what a program calls it by may be a jump to it.
LONG_PTR LibraryProcedure()
{
    return reinterpret_cast<LONG_PTR>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("ztedit050.dll"), "ZTE_SuperEditWndProc")));
}

TEST_F(WideSubclass, IsRefusedByInit)
{
    const HWND hwnd =
        CreateWindowExW(0, L"EDIT", L"", WS_CHILD, 0, 0, 100, 24, form_.hwnd(), nullptr, nullptr, nullptr);
    SetWindowLongPtrW(hwnd, GWLP_WNDPROC, LibraryProcedure());
    const SharedHeap heap = SharedHeapCreate();
    const EditInitParams params = DateIn(heap);
    EXPECT_EQ(ZTE_Init(hwnd, &params), 0);
    EXPECT_FALSE(IsControl(hwnd));
    DestroyWindow(hwnd);
    EXPECT_EQ(SharedHeapBlockCount(heap), 0u);
    SharedHeapDestroy(heap);
}

TEST_F(WideSubclass, OfAWideEditByTheNarrowFunctionIsTaken)
{
    const HWND hwnd =
        CreateWindowExW(0, L"EDIT", L"", WS_CHILD, 0, 0, 100, 24, form_.hwnd(), nullptr, nullptr, nullptr);
    SetWindowLongPtrA(hwnd, GWLP_WNDPROC, LibraryProcedure());
    const SharedHeap heap = SharedHeapCreate();
    const EditInitParams params = DateIn(heap);
    EXPECT_EQ(ZTE_Init(hwnd, &params), 1);
    EXPECT_EQ(TextOf(hwnd), "07/04/95");
    DestroyWindow(hwnd);
    SharedHeapDestroy(heap);
}

WNDPROC libraryProc = nullptr;

LRESULT CALLBACK HostProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return CallWindowProcW(libraryProc, hwnd, message, wParam, lParam);
}

TEST_F(WideSubclass, OfTheHostsOwnBeforeAControlIsTaken)
{
    const SharedHeap heap = SharedHeapCreate();
    const HWND hwnd =
        CreateWindowExA(0, ZTEDIT_CLASS, "", WS_CHILD, 0, 0, 100, 24, form_.hwnd(), nullptr, nullptr, nullptr);
    libraryProc =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrW(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&HostProc)));
    const EditInitParams params = DateIn(heap);
    EXPECT_EQ(ZTE_Init(hwnd, &params), 1);
    typist_.Use(hwnd);
    SendMessageA(hwnd, EM_SETSEL, 0, 0);
    Play("12");
    EXPECT_EQ(TextOf(hwnd), "12/04/95");
    DestroyWindow(hwnd);
    SharedHeapDestroy(heap);
}

}  // namespace
}  // namespace zttest
