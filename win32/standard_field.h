// The field of a control in a window: the standard edit control underneath. Calls that may make the control go away (by what its
// parent does on a notification) throw ControlGone when it did; see life_guard.h.
#pragma once

#include <windows.h>

#include "engine/record.h"

namespace zte {

class LifeGuard;

extern WNDPROC baseEditProc;  // procedure of the system "edit" class

LRESULT CallBaseEdit(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

class StandardField final : public Field {
public:
    explicit StandardField(EditInstance& edit) : edit_(edit) {}

    Text ReadText() const override;
    Selection ReadSelection() const override;
    bool IsHeld(Key key) const override;
    bool RefusesInput() const override;
    std::optional<Text> ReadClipboard() const override;

    // Sent to the control, so that a host's subclass sees them.
    void Select(int32_t start, int32_t end) override;
    void SetText(const Char* text) override;

    // To the standard edit control alone.
    void ReplaceSelection(const Char* text) override;
    void CopySelection() override;
    void PressArrow(Key key, KeyData keyData, int32_t times) override;
    void PressDelete(KeyData keyData) override;
    void ScrollToCaret() override;
    bool IsModified() const override;
    void SetModified() override;

    void HoldShift(bool down) override;
    void SetRedraw(bool on) override;
    void KeepLayout() override;
    void Repaint() override;
    void RepaintSpin() override;

    void Beep() override;
    void NotifyFull() override;
    void NotifyStepped() override;
    bool NotifyRejected(int32_t reason, int32_t position, Char character) override;
    void NotifyState(int32_t was, int32_t is) override;
    void NotifyValue() override;
    uint32_t Milliseconds() const override;

    // True for a message to the control that the library sends itself, and once for each: what a host sends meanwhile is its own.
    static bool TakeOwnMessage(HWND hwnd);

    // A message to the standard edit control, or to the control itself.
    LRESULT ToBase(UINT message, WPARAM wParam, LPARAM lParam);
    void ToControl(UINT message, WPARAM wParam, LPARAM lParam);

    uint16_t stripInMargin = 0;  // pixels of the right margin that the spin's strip takes, beside the host's own
    uint32_t arrowsShown = 0;    // the arrows that the spin's window shows pressed
    int32_t wheelRest = 0;       // what the wheel has turned beside whole notches
    uint32_t hotArrow = 0;       // the arrow of a modern control's spin that the pointer is over
    bool isPointToCome = false;  // the keypad's decimal key has gone down in a modern control, its character is to come
    int32_t bytesToCome = 0;     // of a character of several bytes that was refused
    uint32_t pressedAt = 0;      // when the mouse button went down on the spin, in milliseconds
    int32_t problem = ZTP_NONE;  // of the configuration, and of the mask set last
    LifeGuard* guard = nullptr;  // innermost entry into the library that works on this control

private:
    HWND Window() const { return static_cast<HWND>(edit_.hwnd); }

    template <typename Notification>
    LRESULT Tell(Notification& notification, UINT code);

    EditInstance& edit_;
    bool redrawOff_ = false;  // redrawing was turned off by the library
};

inline HWND WindowOf(const EditInstance& edit)
{
    return static_cast<HWND>(edit.hwnd);
}
inline HWND SpinOf(const EditInstance& edit)
{
    return static_cast<HWND>(edit.hwndSpin);
}
inline StandardField& FieldOf(const EditInstance& edit)
{
    return static_cast<StandardField&>(*edit.field);
}

// The arrows of the spin that are pressed: SPIN_UP, SPIN_DOWN, or none.
inline uint32_t ArrowsPressed(const EditInstance& edit)
{
    return edit.flags & (SPIN_UP | SPIN_DOWN);
}

// The client rectangle of a window, in pixels.
RECT ClientOf(HWND hwnd);

}  // namespace zte
