// A typist and a mouse at a window: send a control what the keyboard and the mouse of a user would send.
#pragma once

#include <windows.h>

#include "tests/support/keyboard.h"

namespace zttest {

// The keys work on one control at a time. A key is held in the thread's keyboard state from KeyDown to KeyUp, and the
// state before the typist's first key is put back at the end. The window may be destroyed by what it is sent.
class Typist : public Keyboard {
public:
    explicit Typist(HWND control = nullptr) : control_(control) { GetKeyboardState(before_); }
    Typist(const Typist&) = delete;
    Typist& operator=(const Typist&) = delete;
    ~Typist() { SetKeyboardState(before_); }

    void Use(HWND control) { control_ = control; }

    // A click in front of the character at a position; and a selection made by dragging.
    void Click(int position, int modifiers = kPlain);
    void Drag(int from, int to);

private:
    void Hold(int key, bool down) override;
    void SendKeyDown(int key) override;
    void SendKeyUp(int key) override;
    void SendChar(char character, int key) override;
    POINT PointOf(int position) const;

    HWND control_;
    BYTE before_[256] = {};
};

}  // namespace zttest
