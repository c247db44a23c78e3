// A typist and a mouse: send a control what the keyboard and the mouse of a user would send.
#pragma once

#include <windows.h>

#include <string>

namespace zttest {

enum Modifiers { kPlain = 0, kShift = 1, kCtrl = 2 };

// The keys work on one control at a time. A key is held in the thread's keyboard state from KeyDown to KeyUp, and the
// state before the typist's first key is put back at the end. The window may be destroyed by what it is sent.
class Typist {
public:
    explicit Typist(HWND control = nullptr) : control_(control) { GetKeyboardState(before_); }
    Typist(const Typist&) = delete;
    Typist& operator=(const Typist&) = delete;
    ~Typist() { SetKeyboardState(before_); }

    void Use(HWND control) { control_ = control; }

    // Types the characters one after another, each key pressed and released.
    void Type(const std::string& text);

    // Types characters and keys named in braces: "12{Left}{Shift+End}{Del}". The names stand in the table in
    // typist.cpp; an unknown one fails the test.
    void Play(const std::string& keys);

    // Presses and releases a key with modifiers held. Keys that make a character send it too.
    void Press(int key, int modifiers = kPlain);
    void Backspace() { Press(VK_BACK); }

    // The two halves of a key, for keys that overlap. KeyDown sends the character as well: it is always in the queue
    // right behind the key.
    void KeyDown(int key, int modifiers = kPlain);
    void KeyUp(int key, int modifiers = kPlain);

    // The same for the key of a character.
    void KeyDownOf(char character);
    void KeyUpOf(char character);

    // A click in front of the character at a position; and a selection made by dragging.
    void Click(int position, int modifiers = kPlain);
    void Drag(int from, int to);

private:
    void Hold(int key, bool down);
    void HoldModifiers(int modifiers, bool down);
    POINT PointOf(int position) const;

    HWND control_;
    BYTE before_[256] = {};
};

}  // namespace zttest
