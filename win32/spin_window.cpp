// The spin's child window: creation and destruction, and the mouse: press, tracking, repeat, release.
#include "win32/spin_window.h"

#include <utility>

#include "engine/editing.h"
#include "engine/spin/spin_settings.h"
#include "engine/spin/step.h"
#include "win32/known_record.h"
#include "win32/library.h"
#include "win32/life_guard.h"
#include "win32/native_spin.h"
#include "win32/record_store.h"
#include "win32/spin_accessible.h"
#include "win32/spin_layout.h"
#include "ztedit.h"

namespace zte {

namespace {

constexpr char kSpinClass[] = "spin";
constexpr UINT_PTR kRepeatTimer = 1;
constexpr UINT kClassicRepeat = 150;  // milliseconds, from the first press on, without a longer first delay

// Of modern controls.
constexpr UINT kRepeat = 100;
constexpr UINT kFastRepeat = 30;
constexpr UINT kFastAfter = 2000;
constexpr UINT kKeyboardDelay = 250;  // what the system counts a keyboard's delay in

void Invalidate(HWND spin)
{
    InvalidateRect(spin, nullptr, TRUE);
}

POINT PointOf(LPARAM lParam)
{
    return {LOWORD(lParam), HIWORD(lParam)};
}

void MoveFlag(EditInstance& edit, uint32_t from, uint32_t to)
{
    SetFlag(edit, to, Has(edit, from));
}

// The spin takes the range and the code table with it; the increment and the bounds stay. A press does not outlive it.
void OnDestroy(HWND spin, EditInstance& edit)
{
    SetFlag(edit, SPIN_UP | SPIN_DOWN | SPIN_TRACKING | SPIN_UP_HELD | SPIN_DOWN_HELD, false);
    DropFaces(edit);
    DropSpinTexts(edit);
    DetachEditInstance(spin);
    if (edit.hwndSpin != spin)
        return;
    edit.hwndSpin = nullptr;
    GiveMarginBack(edit);
}

void OnPaint(HWND spin, const EditInstance& edit)
{
    PAINTSTRUCT paint;
    HDC dc = BeginPaint(spin, &paint);
    PaintSpin(edit, dc, ClientOf(spin));
    FieldOf(edit).arrowsShown = ArrowsPressed(edit);
    EndPaint(spin, &paint);
}

// False once the spin is gone, or the button was let go inside a message that the press has led to.
bool IsPressed(HWND spin, const EditInstance& edit)
{
    return edit.hwndSpin == spin && Has(edit, SPIN_TRACKING);
}

UINT KeyboardDelay()
{
    int delay = 1;
    SystemParametersInfoA(SPI_GETKEYBOARDDELAY, 0, &delay, 0);
    return kKeyboardDelay * static_cast<UINT>(delay + 1);
}

UINT FirstDelay(const EditInstance& edit)
{
    return edit.editor ? KeyboardDelay() : kClassicRepeat;
}

// A press steps at once and again at each turn of the timer. Of a classic control while the pointer is outside, too: kept.
void StepPressed(EditInstance& edit, bool repeated)
{
    if (!edit.editor)
        SpinStep(edit);
    else if (ArrowsPressed(edit) != 0)
        EditingOf(edit).step(edit, Has(edit, SPIN_UP), repeated);
}

void OnPress(HWND spin, EditInstance& edit, LPARAM lParam)
{
    if (edit.field->RefusesInput())
        return;
    RECT upper{};
    GetClientRect(spin, &upper);
    upper.bottom /= 2;
    edit.flags |= PtInRect(&upper, PointOf(lParam)) ? SPIN_UP : SPIN_DOWN;
    edit.flags |= SPIN_TRACKING;
    const LifeCheck life(edit);
    SetCapture(spin);
    SetFocus(WindowOf(edit));
    life.Check();
    if (IsPressed(spin, edit))
        StepPressed(edit, false);
    life.Check();
    if (!IsPressed(spin, edit))
        return;
    FieldOf(edit).pressedAt = GetTickCount();
    SetTimer(spin, kRepeatTimer, FirstDelay(edit), nullptr);
    Invalidate(spin);
}

// The timer of a modern control goes faster with the time.
void OnTimer(HWND spin, EditInstance& edit)
{
    const LifeCheck life(edit);
    StepPressed(edit, true);
    life.Check();
    if (!edit.editor || !IsPressed(spin, edit))
        return;
    const bool fast = GetTickCount() - FieldOf(edit).pressedAt >= kFastAfter;
    SetTimer(spin, kRepeatTimer, fast ? kFastRepeat : kRepeat, nullptr);
}

// Which arrow the pointer is over, for what is drawn.
void SetHotArrow(HWND spin, EditInstance& edit, uint32_t arrow)
{
    if (std::exchange(FieldOf(edit).hotArrow, arrow) != arrow)
        Invalidate(spin);
}

void OnHover(HWND spin, EditInstance& edit, LPARAM lParam)
{
    if (!edit.editor)
        return;
    if (FieldOf(edit).hotArrow == 0) {
        TRACKMOUSEEVENT leaving = {sizeof leaving, TME_LEAVE, spin, 0};
        TrackMouseEvent(&leaving);
    }
    SetHotArrow(spin, edit, ArrowAt(spin, PointOf(lParam)));
}

// The button may have been let go over another window: a message box that a step has led to, say.
void OnCaptureLost(HWND spin, EditInstance& edit)
{
    if (!edit.editor || !Has(edit, SPIN_TRACKING))
        return;
    SetFlag(edit, SPIN_UP | SPIN_DOWN | SPIN_UP_HELD | SPIN_DOWN_HELD | SPIN_TRACKING, false);
    KillTimer(spin, kRepeatTimer);
    Invalidate(spin);
}

// While the pointer is outside, the arrows are shown up; coming back presses the first one again. The timer runs on.
void OnTrack(HWND spin, EditInstance& edit, LPARAM lParam)
{
    RECT client{};
    GetClientRect(spin, &client);
    const bool inside = PtInRect(&client, PointOf(lParam)) != FALSE;
    const bool pressed = Has(edit, SPIN_UP | SPIN_DOWN);
    if (pressed == inside)
        return;
    if (pressed) {
        MoveFlag(edit, SPIN_UP, SPIN_UP_HELD);
        MoveFlag(edit, SPIN_DOWN, SPIN_DOWN_HELD);
        SetFlag(edit, SPIN_UP | SPIN_DOWN, false);
    } else {
        MoveFlag(edit, SPIN_UP_HELD, SPIN_UP);
        MoveFlag(edit, SPIN_DOWN_HELD, SPIN_DOWN);
    }
    Invalidate(spin);
}

void OnRelease(HWND spin, EditInstance& edit)
{
    SetFlag(edit, SPIN_UP | SPIN_DOWN, false);
    const LifeCheck life(edit);
    ReleaseCapture();
    life.Check();
    SetFlag(edit, SPIN_TRACKING, false);
    KillTimer(spin, kRepeatTimer);
    Invalidate(spin);
}

// Turning redrawing on hides the spin, so that it does not flicker over a text being laid anew; the paint of the control
// shows it again.
void OnSetRedraw(HWND spin, WPARAM on)
{
    if (on)
        ShowWindow(spin, SW_HIDE);
}

bool IsAskedFor(const EditInstance* edit, LPARAM object)
{
    return edit && edit->editor && static_cast<LONG>(object) == OBJID_CLIENT;
}

// What Route takes; for all others the record is not looked up, which is a call into the window manager.
bool IsRouted(UINT message)
{
    switch (message) {
    case WM_DESTROY:
    case WM_SETREDRAW:
    case WM_PAINT:
    case WM_TIMER:
    case WM_MOUSEMOVE:
    case WM_MOUSELEAVE:
    case WM_CAPTURECHANGED:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP: return true;
    default: return false;
    }
}

EditInstance* RecordFor(HWND spin, UINT message)
{
    if (message == WM_PAINT)
        return KnownRecord(spin);
    return IsRouted(message) ? GetEditInstance(spin) : nullptr;
}

// True when the message is handled, with the result 0.
bool Route(HWND spin, EditInstance& edit, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_DESTROY: OnDestroy(spin, edit); return true;
    case WM_SETREDRAW: OnSetRedraw(spin, wParam); return true;
    case WM_PAINT: OnPaint(spin, edit); return true;
    case WM_TIMER: OnTimer(spin, edit); return true;
    case WM_MOUSEMOVE:
        if (Has(edit, SPIN_TRACKING))
            OnTrack(spin, edit, lParam);
        OnHover(spin, edit, lParam);
        return true;
    case WM_MOUSELEAVE: SetHotArrow(spin, edit, 0); return true;
    case WM_CAPTURECHANGED: OnCaptureLost(spin, edit); return true;
    case WM_LBUTTONDOWN: OnPress(spin, edit, lParam); return true;
    case WM_LBUTTONUP: OnRelease(spin, edit); return true;
    default: return false;
    }
}

// The record knows its spin from here on: the control may be destroyed before its creation is over. A spin that cannot know its
// record is not created.
LRESULT OnCreate(HWND spin, const CREATESTRUCTA* creation)
{
    auto* edit = creation ? static_cast<EditInstance*>(creation->lpCreateParams) : nullptr;
    if (!edit)
        return 0;
    if (!AttachEditInstance(spin, edit))
        return -1;
    edit->hwndSpin = spin;
    return 0;
}

// Creates the spin, which stores itself in the record.
void CreateSpinWindow(EditInstance& edit, DWORD style, const RECT& place)
{
    const LifeCheck life(edit);
    CreateWindowExA(0, kSpinClass, "", style, place.left, place.top, place.right - place.left, place.bottom - place.top,
                    WindowOf(edit), nullptr, libraryInstance, &edit);
    life.Check();
}

// Setting the formatting rectangle loses the text in some edit controls; it is put back.
void SetFormatRect(const EditInstance& edit, RECT rect, const Text& text)
{
    FieldOf(edit).ToBase(EM_SETRECT, 0, reinterpret_cast<LPARAM>(&rect));
    if (!text.empty())
        edit.field->SetText(text.c_str());
}

void DropFace(void*& face)
{
    if (void* old = std::exchange(face, nullptr))
        DeleteObject(old);
}

}  // namespace

// A host may have created it already, in a notification of the control's first text.
void CreateHiddenSpin(EditInstance& edit)
{
    if (edit.hwndSpin)
        return;
    CreateSpinWindow(edit, WS_CHILD, {});
    KeepTextOffSpin(edit);
    ShowCaretBesideSpin(edit);
}

void CreateSpin(EditInstance& edit)
{
    const Text text = edit.field->ReadText();
    RECT window{};
    GetWindowRect(WindowOf(edit), &window);
    if (window.right <= window.left || window.bottom <= window.top)
        return;
    RECT client = ClientOf(WindowOf(edit));
    RECT place = client;
    place.left = client.right - SpinWidthForHeight(edit, static_cast<int16_t>(client.bottom - client.top));
    CreateSpinWindow(edit, WS_CHILD | WS_VISIBLE, place);
    KeepTextOffSpin(edit);
    client.right = place.left;
    SetFormatRect(edit, client, text);
    ShowCaretBesideSpin(edit);
}

void DestroySpin(EditInstance& edit)
{
    const Text text = edit.field->ReadText();
    const LifeCheck life(edit);
    DestroyWindow(SpinOf(edit));
    life.Check();
    edit.hwndSpin = nullptr;
    SetFormatRect(edit, ClientOf(WindowOf(edit)), text);
}

void DropFaces(EditInstance& edit)
{
    DropFace(edit.spinFaceNormal);
    DropFace(edit.spinFacePressed);
}

}  // namespace zte

using namespace zte;

LRESULT CALLBACK ZTE_SpinWndProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_CREATE)
        return OnCreate(hwnd, reinterpret_cast<const CREATESTRUCTA*>(lParam));
    if (message == WM_NCPAINT)  // there is no frame; the system would ask for a context first, and then see that
        return 0;
    if (message == WM_GETOBJECT && IsAskedFor(GetEditInstance(hwnd), lParam))
        if (const LRESULT answer = AnswerAssistance(hwnd, wParam))
            return answer;
    EditInstance* edit = RecordFor(hwnd, message);
    if (edit && WhileAlive(*edit, true, [&] { return Route(hwnd, *edit, message, wParam, lParam); }))
        return 0;
    return DefWindowProcA(hwnd, message, wParam, lParam);
}
