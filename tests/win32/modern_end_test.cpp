// A parent may destroy a modern control, its heap, or its way of being edited, in whatever it is told.
#include "tests/support/clipboard.h"
#include "tests/support/rows.h"
#include "tests/win32/modern_window.h"

namespace zttest {
namespace {

struct EndCase {
    const char* name;
    const char* at;  // how the notification begins in which it ends
    UINT message;    // 0: keys
    WPARAM wParam;
    const char* text;  // the clipboard's, the message's, or the keys
};
void PrintTo(const EndCase& row, std::ostream* out)
{
    *out << row.name;
}

class ModernEnd : public ModernWindow, public OfRow<EndCase> {
protected:
    // A phone number with an undo step, all but its area code selected, and the focus.
    void Prepare()
    {
        CopyToClipboard(GetParam().text);
        Make(kPhone, DT_STRING, "5551234567", ZTEO_AUTOSKIP);
        SetFocus(Window());
        Select(1, 4);
        Type("9");
        Select(6, 14);
        TakeTold();
    }

    // At the first notification of that beginning.
    template <class What>
    void DoAtNotification(What what)
    {
        parent_.onTold = [this, what](const std::string& told) {
            if (told.find(GetParam().at) != 0)
                return;
            parent_.onTold = nullptr;
            what();
            ++ended_;
        };
    }

    void Act()
    {
        const EndCase& row = GetParam();
        if (row.message == 0)
            return Play(row.text);
        const bool takesText = row.message == EM_REPLACESEL || row.message == WM_SETTEXT;
        Send(row.message, row.wParam, takesText ? reinterpret_cast<LPARAM>(row.text) : 0);
    }

    int ended_ = 0;
};

ROW_TEST(ModernEnd, OfTheWindowIsSurvived)
{
    Prepare();
    const HWND hwnd = Window();
    DoAtNotification([&] {
        DestroyWindow(hwnd);
        TakeTold();  // the focus is lost while the window goes
    });
    Act();
    EXPECT_EQ(ended_, 1);
    EXPECT_FALSE(IsWindow(hwnd));
    // The standard edit itself may tell the rest of a change of which it has told the beginning.
    for (const std::string& told : TakeTold())
        EXPECT_EQ(told, "change") << "of a window that is gone";
}

ROW_TEST(ModernEnd, OfTheHeapLeavesAPlainEdit)
{
    const SharedHeap heap = SharedHeapCreate();
    CopyToClipboard(GetParam().text);
    EditInitParams params = {};
    params.heap = heap;
    params.maskText = kPhone;
    params.dataType = DT_STRING;
    params.initialData = "5551234567";
    params.options = ZTEO_MODERN | ZTEO_AUTOSKIP;
    const HWND hwnd = CreateWindowExA(0, ZTEDIT_CLASS, "", WS_CHILD | ES_AUTOHSCROLL, 0, 0, 100, 20, parent_.hwnd(),
                                      reinterpret_cast<HMENU>(11), nullptr, &params);
    SetFocus(hwnd);
    typist_.Use(hwnd);
    SendMessageA(hwnd, EM_SETSEL, 1, 4);
    Type("9");
    SendMessageA(hwnd, EM_SETSEL, 6, 14);
    DoAtNotification([heap] { SharedHeapDestroy(heap); });
    const EndCase& row = GetParam();
    if (row.message == 0)
        Play(row.text);
    else
        SendMessageA(hwnd, row.message, row.wParam, reinterpret_cast<LPARAM>(row.text));
    EXPECT_EQ(ended_, 1);
    EXPECT_TRUE(IsWindow(hwnd));
    EXPECT_EQ(ZTE_GetState(hwnd), -1);
    SendMessageA(hwnd, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("plain"));
    EXPECT_EQ(TextOf(hwnd), "plain");
    DestroyWindow(hwnd);
}

ROW_TEST(ModernEnd, OfModernEditingIsSurvived)
{
    Prepare();
    DoAtNotification([this] { EXPECT_EQ(ZTE_SetModern(Window(), 0), 1); });
    Act();
    EXPECT_EQ(ended_, 1);
    EXPECT_EQ(ZTE_SetModern(Window(), 1), 0);
    SetWindowTextA(Window(), "(123) 456-7890");
    EXPECT_EQ(State(), ZTS_COMPLETE);
}

ROW_TEST(ModernEnd, OfTheControlByAnotherConfigurationIsSurvived)
{
    Prepare();
    DoAtNotification([this] {
        EditInitParams params = {};
        params.heap = control_->heap();
        params.maskText = "MM/DD/YYYY";
        params.dataType = DT_DATE;
        params.options = ZTEO_MODERN;
        ZTE_Init(Window(), &params);
    });
    Act();
    EXPECT_EQ(ended_, 1);
    EXPECT_EQ(ZTE_FmtGetDataType(Window()), DT_DATE);
    EXPECT_EQ(ZTE_TrySetDataString(Window(), "2024-02-29"), 0);
    control_->AcceptHeap();
}

// What is put in by the parent stays.
ROW_TEST(ModernEnd, OfTheTextByOtherDataIsSurvived)
{
    Prepare();
    DoAtNotification([this] { ZTE_FmtSetDataString(Window(), "1112223333"); });
    Act();
    EXPECT_EQ(ended_, 1);
    EXPECT_EQ(control_->Text(), "(111) 222-3333");
    EXPECT_EQ(State(), ZTS_COMPLETE);
}

// clang-format off
const EndCase kEnds[] = {
    {"AtTheUpdateOfAKey",         "update",   0, 0, "1"},
    {"AtTheChangeOfAKey",         "change",   0, 0, "1"},
    {"AtTheStateOfADeletion",     "state",    0, 0, "{Ctrl+A}{Del}"},
    {"AtTheRefusalOfAKey",        "rejected", 0, 0, "x"},
    {"AtTheSkip",                 "skip",     0, 0, "9234567"},
    {"AtTheUpdateOfAPaste",       "update",   WM_PASTE, 0, "7654321"},
    {"AtTheRefusalOfAPaste",      "rejected", WM_PASTE, 0, "none"},
    {"AtTheChangeOfACut",         "change",   WM_CUT, 0, ""},
    {"AtTheChangeOfAClearing",    "change",   WM_CLEAR, 0, ""},
    {"AtTheChangeOfAnUndo",       "change",   WM_UNDO, 0, ""},
    {"AtTheUpdateOfAnUndo",       "update",   EM_UNDO, 0, ""},
    {"AtTheChangeOfAReplacement", "change",   EM_REPLACESEL, 1, "7654321"},
    {"AtTheRefusalOfAReplacement", "rejected", EM_REPLACESEL, 0, "none"},
    {"AtTheStateOfAWindowText",   "state",    WM_SETTEXT, 0, "any"},
};
// clang-format on
TEST_ROWS(Rows, ModernEnd, kEnds);

class ModernEndElsewhere : public ModernWindow {};

TEST_F(ModernEndElsewhere, WithTheFocusTheEditBelowStillLosesIt)
{
    Make("MM/DD/YYYY", DT_DATE);
    SetFocus(Window());
    Select(0, 0);
    Type("1");
    parent_.onTold = [this](const std::string& told) {
        if (told == "change")
            ZTE_SetModern(Window(), 0);
    };
    BaseRecorder recorder;
    SetFocus(parent_.hwnd());
    EXPECT_EQ(recorder.Of(WM_KILLFOCUS).size(), 1u);
}

TEST_F(ModernEndElsewhere, InAStepOfTheWheelIsSurvived)
{
    Config config;
    config.mask = "MM/DD/YYYY";
    config.type = DT_DATE;
    config.data = "2024-02-28";
    config.options = ZTEO_SPIN;
    Make(config);
    SetFocus(Window());
    const HWND hwnd = Window();
    parent_.onTold = [hwnd](const std::string&) { DestroyWindow(hwnd); };
    Send(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
    EXPECT_FALSE(IsWindow(hwnd));
}

// The window is created, and a control, whatever its parent makes of it meanwhile.
TEST_F(ModernEndElsewhere, OfModernEditingWhileItIsCreated)
{
    parent_.onTold = [&](const std::string&) {
        ZTE_SetModern(FindWindowExA(parent_.hwnd(), nullptr, ZTEDIT_CLASS, nullptr), 0);
    };
    Make("MM/DD/YYYY", DT_DATE, "2024-02-29", ZTEO_MODERN);
    parent_.onTold = nullptr;
    ASSERT_TRUE(IsWindow(Window()));
    EXPECT_EQ(ZTE_FmtGetDataType(Window()), DT_DATE);
    EXPECT_EQ(ZTE_TrySetDataString(Window(), "2024-02-28"), 0);
    EXPECT_EQ(control_->Text(), "02/28/2024");
}

TEST_F(ModernEndElsewhere, InAStateMadeByACallIsSurvived)
{
    const std::function<void()> calls[] = {
        [&] { ZTE_FmtSetDataString(Window(), "2024-02-28"); },
        [&] { EXPECT_EQ(ZTE_TrySetDataString(Window(), "2024-02-28"), 0); },
        [&] { ZTE_FmtSetMask(Window(), "(###)", DT_STRING); },
        [&] { ZTE_SetSpin(Window(), 1, "2020-01-01~2020-01-02", nullptr, 0); },
        [&] { Select(0, 0); },
        [&] { SetWindowTextA(Window(), "any"); },
    };
    for (const auto& call : calls) {
        Make("MM/DD/YYYY", DT_DATE, "2024-02-29");
        if (&call == &calls[4])  // a digit that is to be completed
            ZTE_FmtSetData(Window(), nullptr), Select(3, 3), Type("1");
        if (&call == &calls[0] || &call == &calls[1])
            ZTE_FmtSetData(Window(), nullptr);
        const HWND hwnd = Window();
        parent_.onTold = [hwnd](const std::string&) { DestroyWindow(hwnd); };
        call();
        EXPECT_FALSE(IsWindow(hwnd)) << &call - calls;
        parent_.onTold = nullptr;
    }
}

}  // namespace
}  // namespace zttest
