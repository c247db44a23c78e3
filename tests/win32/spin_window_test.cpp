// The spin's window: making and removing it, the mouse on its arrows, and every order of destruction.
#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>

#include "engine/format/code_table.h"
#include "tests/support/live/base_recorder.h"
#include "tests/support/live/import_patch.h"
#include "tests/support/live/spin_window_test.h"
#include "tests/support/rows.h"

namespace zttest {
namespace {

// The timers that the library sets and ends, in order; none runs meanwhile. One at a time.
struct TimerCall {
    char kind;  // 's'et or 'k'ill
    HWND window;
    UINT_PTR id;
    UINT milliseconds;
    bool operator==(const TimerCall& other) const
    {
        return kind == other.kind && window == other.window && id == other.id && milliseconds == other.milliseconds;
    }
};
std::ostream& operator<<(std::ostream& out, const TimerCall& call)
{
    return out << call.kind << call.id << " " << call.milliseconds << " ms";
}
std::vector<TimerCall> timerCalls;

UINT_PTR WINAPI RecordSetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC)
{
    timerCalls.push_back({'s', window, id, milliseconds});
    return id;
}

BOOL WINAPI RecordKillTimer(HWND window, UINT_PTR id)
{
    timerCalls.push_back({'k', window, id, 0});
    return TRUE;
}

class TimerRecorder {
public:
    TimerRecorder() { timerCalls.clear(); }
    ~TimerRecorder() { timerCalls.clear(); }

private:
    ImportPatch set_{"user32.dll", "SetTimer", reinterpret_cast<void*>(RecordSetTimer)};
    ImportPatch kill_{"user32.dll", "KillTimer", reinterpret_cast<void*>(RecordKillTimer)};
};

class SpinWindow : public SpinWindowTest {
protected:
    RECT PlaceOf(HWND window) const
    {
        RECT place{};
        GetWindowRect(window, &place);
        MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    static bool IsShown(HWND window) { return (GetWindowLongPtrA(window, GWL_STYLE) & WS_VISIBLE) != 0; }
    static RECT ClientOf(HWND window)
    {
        RECT client{};
        GetClientRect(window, &client);
        return client;
    }
    void MakeNumber(const char* range = "0~99") { MakeSpin("##0", DT_NUMBER, range, 1, "7"); }
};

// ---- Made and removed

TEST_F(SpinWindow, SharesTheRecordOfItsControl)
{
    MakeNumber();
    ASSERT_NE(RecordOf(Window()), nullptr);
    EXPECT_EQ(RecordOf(Spin()), RecordOf(Window()));
    EXPECT_NE(GetPropA(Spin(), "MAIN"), GetPropA(Window(), "MAIN")) << "each has a block of its own";
    EXPECT_EQ(RecordOf(Window())->hwndSpin, Spin());
}

struct HeightCase {
    const char* name;
    int height;
    int width;  // unless the scroll bar of the system is narrower
};
void PrintTo(const HeightCase& row, std::ostream* out)
{
    *out << row.name;
}

class CreatedSpin : public SpinWindow, public OfRow<HeightCase> {};

ROW_TEST(CreatedSpin, StandsAtTheRightEdge)
{
    Config config;
    config.mask = "##0";
    config.type = DT_NUMBER;
    config.height = GetParam().height;
    Make(config);
    ZTE_CreateSpin(Window());
    const HWND spin = Spin();
    ASSERT_NE(spin, nullptr);
    const int width = std::min(GetParam().width, GetSystemMetrics(SM_CXVSCROLL) + 2);
    const RECT place = PlaceOf(spin);
    const RECT client = ClientOf(Window());
    EXPECT_EQ(place.left, client.right - width);
    EXPECT_EQ(place.right, client.right);
    EXPECT_EQ(place.top, 0);
    EXPECT_EQ(place.bottom, client.bottom);
    EXPECT_TRUE(IsShown(spin));
}

TEST_ROWS_OF(Heights, CreatedSpin, HeightCase{"Six", 6, 7}, HeightCase{"Twenty", 20, 15},
             HeightCase{"TwentyOne", 21, 16}, HeightCase{"Hundred", 100, 68});

TEST_F(SpinWindow, OfAControlTwentyHighIsNarrowerThanReported)
{
    Given("##0", DT_NUMBER, "7|");
    ZTE_CreateSpin(Window());
    EXPECT_EQ(ClientOf(Spin()).right, 15);
    EXPECT_EQ(ZTE_GetSpinWidth(Window(), nullptr), 16);
}

// What the edit control underneath makes of the rectangle is its own affair.
TEST_F(SpinWindow, CreatingAndRemovingItSetsTheFormattingRectangle)
{
    Given("##0", DT_NUMBER, "7|");
    BaseRecorder recorder;
    ZTE_CreateSpin(Window());
    EXPECT_EQ(recorder.Of(EM_SETRECT).size(), 1u);
    recorder.Forget();
    ZTE_DestroySpin(Window());
    EXPECT_EQ(recorder.Of(EM_SETRECT).size(), 1u);
}

TEST_F(SpinWindow, TheTextSurvivesCreationAndRemoval)
{
    const std::string text(1000, 'x');
    Given("", DT_STRING, "|");
    SetWindowTextA(Window(), text.c_str());
    ZTE_CreateSpin(Window());
    EXPECT_EQ(Text(), text);
    ZTE_DestroySpin(Window());
    EXPECT_EQ(Text(), text);
    EXPECT_EQ(Spin(), nullptr);
}

// The blocks that a destroyed control leaves in its heap, with what was set on it.
uint32_t BlocksLeft(HWND parent, uint32_t options, const char* codes)
{
    const SharedHeap heap = SharedHeapCreate();
    EditInitParams params = {};
    params.heap = heap;
    params.maskText = "XXXX";
    params.dataType = DT_STRING;
    params.options = options;
    const HWND control = CreateWindowExA(0, ZTEDIT_CLASS, "", WS_CHILD | ES_AUTOHSCROLL, 0, 0, 100, 20, parent, nullptr,
                                         nullptr, &params);
    for (int i = 0; i < 3; ++i)
        ZTE_SetSpin(control, 1, nullptr, codes, SPINSTYLE_CODETABLE);
    DestroyWindow(control);
    const uint32_t left = SharedHeapBlockCount(heap);
    SharedHeapDestroy(heap);
    return left;
}

TEST_F(SpinWindow, ACodeTableGoesWithItsControl)
{
    std::string codes;
    for (int i = 0; i < 120; ++i)
        codes += "display" + std::to_string(i) + "\t" + std::to_string(i) + "/";
    for (const uint32_t options : {0u, static_cast<uint32_t>(ZTEO_SPIN)})
        EXPECT_EQ(BlocksLeft(form_.hwnd(), options, codes.c_str()), BlocksLeft(form_.hwnd(), options, nullptr))
            << options;
}

TEST_F(SpinWindow, ASecondOneIsNotCreated)
{
    MakeNumber();
    const HWND spin = Spin();
    ZTE_CreateSpin(Window());
    EXPECT_EQ(Spin(), spin);
    EXPECT_EQ(GetWindow(spin, GW_HWNDNEXT), nullptr);
}

TEST_F(SpinWindow, AnEmptyControlGetsNone)
{
    Config config;
    config.mask = "##0";
    config.type = DT_NUMBER;
    config.height = 0;
    Make(config);
    ZTE_CreateSpin(Window());
    EXPECT_EQ(Spin(), nullptr);
    SetWindowPos(Window(), nullptr, 0, 0, 0, 20, SWP_NOMOVE | SWP_NOZORDER);
    ZTE_CreateSpin(Window());
    EXPECT_EQ(Spin(), nullptr);
}

TEST_F(SpinWindow, RemovingItTakesRangeAndCodeTableAndLeavesTheRest)
{
    MakeSpin("##0", DT_NUMBER, "2~9", 3, "5");
    ZTE_SetSpin(Window(), 3, "2~9", "a\t1/b\t2", 0);
    ZTE_DestroySpin(Window());
    control_->AcceptHeap();
    const zte::EditInstance& record = *RecordOf(Window());
    EXPECT_EQ(record.hwndSpin, nullptr);
    EXPECT_EQ(record.spinRange, nullptr);
    EXPECT_EQ(record.codeTable, nullptr);
    EXPECT_EQ(record.spinIncrement, 3u);
    EXPECT_EQ(record.spinMin, 2.0);
    EXPECT_EQ(record.spinMax, 9.0);
}

TEST_F(SpinWindow, MayBeCreatedAgain)
{
    MakeNumber();
    ZTE_DestroySpin(Window());
    ZTE_DestroySpin(Window());  // nothing is left to destroy
    ZTE_CreateSpin(Window());
    ZTE_SetSpin(Window(), 2, "0~99", nullptr, 0);
    control_->AcceptHeap();
    Up();
    EXPECT_EQ(Text(), "9");
}

TEST_F(SpinWindow, WindowsThatAreNoControlsAreLeftAlone)
{
    for (const HWND window : {form_.hwnd(), reinterpret_cast<HWND>(0x7ABC)}) {
        ZTE_CreateSpin(window);
        ZTE_DestroySpin(window);
        EXPECT_EQ(GetPropA(window, "MAIN"), nullptr);
    }
    EXPECT_EQ(GetWindow(form_.hwnd(), GW_CHILD), nullptr);
}

// ---- The mouse

class SpinMouse : public SpinWindow {
protected:
    void SetUp() override { MakeNumber(); }

    // What the record says of a press: the arrow that is down, the one held outside, the mouse followed.
    uint32_t ArrowFlags() const
    {
        return RecordOf(Window())->flags &
               (zte::SPIN_UP | zte::SPIN_DOWN | zte::SPIN_UP_HELD | zte::SPIN_DOWN_HELD | zte::SPIN_TRACKING);
    }

    TimerRecorder timers_;
};

TEST_F(SpinMouse, APressInTheUpperHalfStepsUpAtOnce)
{
    PressArrow(Arrow::Up);
    EXPECT_EQ(Text(), "8");
    EXPECT_EQ(ArrowFlags(), zte::SPIN_UP | zte::SPIN_TRACKING);
    Release();
}

TEST_F(SpinMouse, APressInTheLowerHalfStepsDownAtOnce)
{
    PressArrow(Arrow::Down);
    EXPECT_EQ(Text(), "6");
    EXPECT_EQ(ArrowFlags(), zte::SPIN_DOWN | zte::SPIN_TRACKING);
    Release();
}

TEST_F(SpinMouse, APressStartsTheTimerAndTakesTheMouse)
{
    PressArrow(Arrow::Up);
    const TimerCall set = {'s', Spin(), 1, 150};
    EXPECT_EQ(timerCalls, std::vector<TimerCall>{set});
    EXPECT_EQ(GetCapture(), Spin());
    Release();
}

TEST_F(SpinMouse, TheHalvesMeetInTheMiddle)
{
    const LONG middle = ClientOf(Spin()).bottom / 2;
    MouseAt(WM_LBUTTONDOWN, {1, middle - 1});
    Release();
    EXPECT_EQ(Text(), "8");
    MouseAt(WM_LBUTTONDOWN, {1, middle});
    Release();
    EXPECT_EQ(Text(), "7");
}

TEST_F(SpinMouse, EveryTickStepsAgain)
{
    PressArrow(Arrow::Up);
    Tick();
    Tick();
    EXPECT_EQ(Text(), "10");
    EXPECT_EQ(timerCalls.size(), 1u) << "the timer is set once";
    Release();
}

TEST_F(SpinMouse, AnyTimerSteps)
{
    PressArrow(Arrow::Up);
    SendMessageA(Spin(), WM_TIMER, 77, 0);
    EXPECT_EQ(Text(), "9");
    Release();
}

TEST_F(SpinMouse, EveryStepNotifies)
{
    std::vector<std::string> texts;
    form_.onNotification = [&](const Notification& notification) {
        if (notification.code == EN_CHANGE && (texts.empty() || texts.back() != Text()))
            texts.push_back(Text());
    };
    PressArrow(Arrow::Up);
    Tick();
    Release();
    EXPECT_EQ(texts, (std::vector<std::string>{"8", "9"}));
}

TEST_F(SpinMouse, ReleasingEndsThePress)
{
    PressArrow(Arrow::Up);
    Release();
    EXPECT_EQ(ArrowFlags(), 0u);
    EXPECT_NE(GetCapture(), Spin());
    const TimerCall set = {'s', Spin(), 1, 150};
    const TimerCall ended = {'k', Spin(), 1, 0};
    EXPECT_EQ(timerCalls, (std::vector<TimerCall>{set, ended}));
}

TEST_F(SpinMouse, APressGivesTheControlTheFocus)
{
    Form shown(true);
    Config config;
    config.mask = "##0";
    config.type = DT_NUMBER;
    const Control control(shown.hwnd(), 3, config);
    ZTE_CreateSpin(control.hwnd());
    SetFocus(shown.hwnd());
    const HWND spin = GetWindow(control.hwnd(), GW_CHILD);
    SendMessageA(spin, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
    EXPECT_EQ(GetFocus(), control.hwnd());
    SendMessageA(spin, WM_LBUTTONUP, 0, 0);
}

struct ArrowCase {
    const char* name;
    Arrow arrow;
    uint32_t down;
    uint32_t parked;
    const char* afterATick;
};
void PrintTo(const ArrowCase& row, std::ostream* out)
{
    *out << row.name;
}

class PressThatLeaves : public SpinMouse, public OfRow<ArrowCase> {
protected:
    static constexpr POINT kLeft = {-5, 3};
    static constexpr POINT kOneRowBelow = {3, 20};
};

ROW_TEST(PressThatLeaves, IsParked)
{
    for (const POINT& outside : {kLeft, kOneRowBelow}) {
        PressArrow(GetParam().arrow);
        MouseAt(WM_MOUSEMOVE, outside);
        EXPECT_EQ(ArrowFlags(), GetParam().parked | zte::SPIN_TRACKING) << outside.x;
        MouseAt(WM_MOUSEMOVE, {0, 0});
        Release();
    }
}

ROW_TEST(PressThatLeaves, StaysParkedOutside)
{
    PressArrow(GetParam().arrow);
    MouseAt(WM_MOUSEMOVE, kLeft);
    MouseAt(WM_MOUSEMOVE, {200, 200});
    EXPECT_EQ(ArrowFlags(), GetParam().parked | zte::SPIN_TRACKING);
    Release();
}

ROW_TEST(PressThatLeaves, IsTakenUpAgainAtAnyPlaceInside)
{
    for (const Arrow inside : {Arrow::Up, Arrow::Down}) {
        PressArrow(GetParam().arrow);
        MouseAt(WM_MOUSEMOVE, kLeft);
        MouseAt(WM_MOUSEMOVE, MiddleOf(inside));
        EXPECT_EQ(ArrowFlags() & (zte::SPIN_UP | zte::SPIN_DOWN), GetParam().down);
        Release();
    }
}

ROW_TEST(PressThatLeaves, StepsItsOwnWayWhenItIsBack)
{
    PressArrow(GetParam().arrow);
    MouseAt(WM_MOUSEMOVE, kLeft);
    MouseAt(WM_MOUSEMOVE, {0, 0});
    Tick();
    EXPECT_EQ(Text(), GetParam().afterATick);
    Release();
}

constexpr ArrowCase kArrows[] = {
    {"Up",   Arrow::Up,   zte::SPIN_UP,   zte::SPIN_UP_HELD,   "9"},
    {"Down", Arrow::Down, zte::SPIN_DOWN, zte::SPIN_DOWN_HELD, "5"},
};
TEST_ROWS(Arrows, PressThatLeaves, kArrows);

TEST_F(SpinMouse, StepsGoOnOutside)
{
    PressArrow(Arrow::Down);
    MouseAt(WM_MOUSEMOVE, {-5, -5});
    Tick();
    Tick();
    EXPECT_EQ(Text(), "8");  // 6, then upward without a direction
    EXPECT_EQ(timerCalls.size(), 1u);
    Release();
}

TEST_F(SpinMouse, ReleasingOutsideKeepsTheParkedArrowOnly)
{
    PressArrow(Arrow::Up);
    MouseAt(WM_MOUSEMOVE, {-5, -5});
    Release();
    EXPECT_EQ(ArrowFlags(), zte::SPIN_UP_HELD);
}

TEST_F(SpinMouse, AnArrowReleasedOutsideIsNotTakenUpByAMove)
{
    PressArrow(Arrow::Up);
    MouseAt(WM_MOUSEMOVE, {-5, -5});
    Release();
    MouseAt(WM_MOUSEMOVE, {2, 2});
    EXPECT_FALSE(HasFlag(zte::SPIN_UP)) << "moves count while an arrow is held only";
}

TEST_F(SpinMouse, AnArrowReleasedOutsideIsNotTakenUpByTheNextPress)
{
    PressArrow(Arrow::Up);
    MouseAt(WM_MOUSEMOVE, {-5, -5});
    Release();
    PressArrow(Arrow::Down);
    MouseAt(WM_MOUSEMOVE, {-5, -5});
    MouseAt(WM_MOUSEMOVE, {2, 2});
    EXPECT_FALSE(HasFlag(zte::SPIN_UP));
    EXPECT_EQ(Text(), "7");  // one up and one down
    Release();
}

TEST_F(SpinMouse, MovingWithoutAPressDoesNothing)
{
    MouseAt(WM_MOUSEMOVE, {2, 2});
    MouseAt(WM_MOUSEMOVE, {-2, -2});
    EXPECT_EQ(ArrowFlags(), 0u);
    EXPECT_EQ(Text(), "7");
}

TEST_F(SpinMouse, ReleasedInsideTheNotificationNoTimerIsLeft)
{
    form_.onNotification = [this](const Notification&) {
        form_.onNotification = nullptr;
        Release();
    };
    PressArrow(Arrow::Up);
    EXPECT_FALSE(HasFlag(zte::SPIN_UP | zte::SPIN_TRACKING));
    ASSERT_FALSE(timerCalls.empty());
    EXPECT_EQ(timerCalls.back().kind, 'k') << "a timer would run for ever";
}

TEST_F(SpinMouse, RedrawingOnHidesTheSpin)
{
    ShowWindow(Spin(), SW_SHOW);
    EXPECT_EQ(SendMessageA(Spin(), WM_SETREDRAW, FALSE, 0), 0);
    EXPECT_TRUE(IsShown(Spin()));
    EXPECT_EQ(SendMessageA(Spin(), WM_SETREDRAW, TRUE, 0), 0);
    EXPECT_FALSE(IsShown(Spin()));
}

TEST_F(SpinMouse, HandledMessagesGiveZero)
{
    for (const UINT message :
         std::initializer_list<UINT>{WM_PAINT, WM_TIMER, WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP})
        EXPECT_EQ(SendMessageA(Spin(), message, 0, 0), 0) << message;
}

// A timer that really runs: the queue delivers its message to the spin, which steps.
TEST_F(SpinWindow, TheTimerOfAHeldArrowRunsUntilTheRelease)
{
    MakeNumber();
    PressArrow(Arrow::Up);
    MSG message{};
    const DWORD start = GetTickCount();
    while (Text() == "8" && GetTickCount() - start < 5000)
        if (GetMessageA(&message, nullptr, 0, 0) > 0)
            DispatchMessageA(&message);
    EXPECT_EQ(Text(), "9");
    const HWND spin = Spin();
    Release();
    EXPECT_FALSE(KillTimer(spin, 1)) << "the timer was left running";
}

// ---- Destruction

// A window procedure put in front of a window's own. One at a time.
WNDPROC procedureBehind;
class Subclass {
public:
    Subclass(HWND window, WNDPROC procedure)
    {
        procedureBehind =
            reinterpret_cast<WNDPROC>(SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
    }
};

LRESULT CALLBACK EndAtTheBirthOfAChild(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_PARENTNOTIFY && LOWORD(wParam) == WM_CREATE)
        DestroyWindow(hwnd);
    return CallWindowProcA(procedureBehind, hwnd, message, wParam, lParam);
}

HWND controlToLoseItsSpin;
LRESULT CALLBACK RemoveTheSpinWhenLeft(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_KILLFOCUS)
        ZTE_DestroySpin(controlToLoseItsSpin);
    return CallWindowProcA(procedureBehind, hwnd, message, wParam, lParam);
}

class SpinDestruction : public SpinWindow {
protected:
    // A control in a heap of its own, which is destroyed with the window at the first EN_CHANGE.
    void MakeDoomed(const char* mask, int32_t type, const char* data, const char* codes = nullptr, uint32_t options = 0)
    {
        heap_ = SharedHeapCreate();
        EditInitParams params{};
        params.heap = heap_;
        params.maskText = mask;
        params.dataType = type;
        params.initialData = data;
        params.options = ZTEO_SPIN | options;
        params.spinIncrement = 1;
        params.codeTableText = codes;
        doomed_ = CreateWindowExA(0, ZTEDIT_CLASS, "", WS_CHILD | WS_VISIBLE, 0, 0, 100, 20, form_.hwnd(),
                                  reinterpret_cast<HMENU>(5), nullptr, &params);
        SetWindowPos(doomed_, nullptr, 0, 0, 100, 22, SWP_NOMOVE | SWP_NOZORDER);
        spin_ = GetWindow(doomed_, GW_CHILD);
        ASSERT_NE(spin_, nullptr);
        typist_.Use(doomed_);
        form_.onNotification = [this](const Notification& notification) {
            if (notification.code == EN_CHANGE)
                Destroy();
        };
    }
    void Destroy()
    {
        if (!heap_)
            return;
        DestroyWindow(doomed_);
        SharedHeapDestroy(heap_);
        heap_ = nullptr;
    }
    void TearDown() override { Destroy(); }
    void Send(UINT message, int x, int y) const { SendMessageA(spin_, message, MK_LBUTTON, MAKELPARAM(x, y)); }
    void ExpectGone()
    {
        EXPECT_FALSE(IsWindow(doomed_));
        EXPECT_FALSE(IsWindow(spin_));
        EXPECT_EQ(heap_, nullptr) << "the notification never came";
        EXPECT_NE(GetCapture(), spin_);
        DrainMessages();
    }

    HWND doomed_ = nullptr;
    HWND spin_ = nullptr;
    SharedHeap heap_ = nullptr;
};

struct DoomedControl {
    const char* name;
    const char* mask;
    int32_t type;
    const char* data;
    const char* codes;
    uint32_t options;
};
void PrintTo(const DoomedControl& row, std::ostream* out)
{
    *out << row.name;
}

class DestroyedInItsStep : public SpinDestruction, public OfRow<DoomedControl> {
protected:
    void SetUp() override
    {
        const DoomedControl& row = GetParam();
        MakeDoomed(row.mask, row.type, row.data, row.codes, row.options);
    }
};

ROW_TEST(DestroyedInItsStep, OfAKey)
{
    Press(VK_UP);
    ExpectGone();
}

ROW_TEST(DestroyedInItsStep, OfAPress)
{
    Send(WM_LBUTTONDOWN, 2, 18);
    ExpectGone();
}

ROW_TEST(DestroyedInItsStep, OfATick)
{
    auto doom = std::move(form_.onNotification);
    form_.onNotification = nullptr;
    Send(WM_LBUTTONDOWN, 2, 2);
    form_.onNotification = doom;
    SendMessageA(spin_, WM_TIMER, 1, 0);
    ExpectGone();
}

constexpr DoomedControl kDoomed[] = {
    {"Number",    "##0",      DT_NUMBER,  "7",          nullptr,     0                },
    {"Decimal",   "##0.00",   DT_DECIMAL, "7",          nullptr,     0                },
    {"Date",      "MM/DD/YY", DT_DATE,    "1995-07-04", nullptr,     0                },
    {"Time",      "HH:MM:SS", DT_TIME,    "10:20:30",   nullptr,     0                },
    {"String",    "AAAA",     DT_STRING,  "abcd",       nullptr,     0                },
    {"CodeTable", "XXXX",     DT_STRING,  "1",          "a\t1/b\t2", ZTEO_CODE_DISPLAY},
};
TEST_ROWS(Types, DestroyedInItsStep, kDoomed);

TEST_F(SpinDestruction, InTheFlipOfAmPm)
{
    MakeDoomed("HH:MM AM/PM", DT_TIME, "10:20");
    SendMessageA(doomed_, EM_SETSEL, 6, 6);
    Press(VK_UP);
    ExpectGone();
}

TEST_F(SpinDestruction, InTypeAhead)
{
    MakeDoomed("XXXX", DT_STRING, "1", "a\t1/b\t2", ZTEO_CODE_DISPLAY | ZTEO_CODE_PICK);
    Type("b");
    ExpectGone();
}

TEST_F(SpinDestruction, InTheCreationOfASpin)
{
    MakeDoomed("##0", DT_NUMBER, "7");
    auto doom = std::move(form_.onNotification);
    form_.onNotification = nullptr;
    ZTE_DestroySpin(doomed_);
    form_.onNotification = doom;
    ZTE_CreateSpin(doomed_);  // sets the text again, which notifies
    ExpectGone();
}

TEST_F(SpinDestruction, InTheRemovalOfASpin)
{
    MakeDoomed("##0", DT_NUMBER, "7");
    ZTE_DestroySpin(doomed_);
    ExpectGone();
}

TEST_F(SpinDestruction, WhileAnArrowIsHeld)
{
    MakeDoomed("##0", DT_NUMBER, "7");
    form_.onNotification = nullptr;
    Send(WM_LBUTTONDOWN, 2, 2);
    EXPECT_EQ(GetCapture(), spin_);
    Destroy();
    ExpectGone();
}

// A host that subclasses the control and ends it when it hears of the spin's birth.
TEST_F(SpinDestruction, WhileItsSpinIsBeingMade)
{
    MakeDoomed("##0", DT_NUMBER, "7");
    form_.onNotification = nullptr;
    ZTE_DestroySpin(doomed_);
    const Subclass ending(doomed_, EndAtTheBirthOfAChild);
    ZTE_CreateSpin(doomed_);
    EXPECT_FALSE(IsWindow(doomed_));
    EXPECT_EQ(SharedHeapBlockCount(heap_), 1u);  // the mask: neither the record nor a part of the spin is left
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(SpinDestruction, OfTheSpinAloneLeavesAWorkingControl)
{
    MakeNumber();
    DestroyWindow(Spin());
    control_->AcceptHeap();
    EXPECT_EQ(RecordOf(Window())->hwndSpin, nullptr);
    EXPECT_EQ(RecordOf(Window())->spinRange, nullptr);
    Play("{Home}4");
    Press(VK_UP);
    SendMessageA(Window(), WM_PAINT, 0, 0);
    SetWindowPos(Window(), nullptr, 0, 0, 90, 30, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Text(), "47");
}

TEST_F(SpinDestruction, OfTheSpinInItsOwnStepEndsThePress)
{
    MakeNumber();
    const HWND spin = Spin();
    form_.onNotification = [this](const Notification&) {
        form_.onNotification = nullptr;
        ZTE_DestroySpin(Window());
    };
    PressArrow(Arrow::Up);
    control_->AcceptHeap();
    EXPECT_FALSE(IsWindow(spin));
    EXPECT_FALSE(HasFlag(zte::SPIN_UP | zte::SPIN_DOWN | zte::SPIN_TRACKING));
    ZTE_CreateSpin(Window());
    EXPECT_FALSE(HasFlag(zte::SPIN_UP));
}

TEST_F(SpinDestruction, OfTheSpinAtTheFocusChangeOfAPressTakesNoStep)
{
    Form shown(true);
    Config config;
    config.mask = "##0";
    config.type = DT_NUMBER;
    config.data = "7";
    config.options = ZTEO_SPIN;
    Control own(shown.hwnd(), 3, config);
    const HWND spin = GetWindow(own.hwnd(), GW_CHILD);
    const HWND other = CreateWindowExA(0, "edit", "", WS_CHILD | WS_VISIBLE, 200, 200, 50, 20, shown.hwnd(), nullptr,
                                       nullptr, nullptr);
    SetFocus(other);
    ASSERT_EQ(GetFocus(), other);
    const Subclass leaving(other, RemoveTheSpinWhenLeft);
    controlToLoseItsSpin = own.hwnd();
    SendMessageA(spin, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 1));
    own.AcceptHeap();
    EXPECT_FALSE(IsWindow(spin));
    EXPECT_EQ(own.Text(), "7");
}

TEST_F(SpinDestruction, LeavesNoBlockBehindWithRangeAndTable)
{
    MakeSpin("XXXX", DT_STRING, "1~2", 1, nullptr);
    const uint32_t with = SharedHeapBlockCount(control_->heap());
    DestroyWindow(Spin());
    const uint32_t without = SharedHeapBlockCount(control_->heap());
    EXPECT_LT(without, with);
    control_->AcceptHeap();
}

TEST_F(SpinDestruction, AManualCreateMessageIsHarmless)
{
    MakeNumber();
    EXPECT_EQ(SendMessageA(Spin(), WM_CREATE, 0, 0), 0);
    Up();
    EXPECT_EQ(Text(), "8");
}

TEST_F(SpinDestruction, TheProcedureWithoutARecordIsThatOfAnyWindow)
{
    SetWindowTextA(form_.hwnd(), "caption");
    EXPECT_EQ(ZTE_SpinWndProc(form_.hwnd(), WM_GETTEXTLENGTH, 0, 0), 7);
    for (const UINT message : std::initializer_list<UINT>{WM_TIMER, WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP})
        EXPECT_EQ(ZTE_SpinWndProc(form_.hwnd(), message, 0, 0), 0);
}

}  // namespace
}  // namespace zttest
