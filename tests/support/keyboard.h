// A typist at an American keyboard: what is typed becomes keys going down and up, and the characters that they make.
#pragma once

#include <string>

namespace zttest {

enum Modifiers { kPlain = 0, kShift = 1, kCtrl = 2 };

class Keyboard {
public:
    // Types the characters one after another, each key pressed and released.
    void Type(const std::string& text);

    // Types characters and keys named in braces: "12{Left}{Shift+End}{Del}". The names stand in the table in
    // keyboard.cpp; an unknown one fails the test.
    void Play(const std::string& keys);

    // Presses and releases a key with modifiers held. Keys that make a character send it too.
    void Press(int key, int modifiers = kPlain);
    void Backspace() { KeyDownOf('\b'), KeyUpOf('\b'); }

    // The two halves of a key, for keys that overlap. KeyDown sends the character as well: it is always in the queue
    // right behind the key.
    void KeyDown(int key, int modifiers = kPlain);
    void KeyUp(int key, int modifiers = kPlain);

    // A key going down whose character never comes: taken out of the queue by a filter of the program, say.
    void KeyDownAlone(int key);

    // The same for the key of a character.
    void KeyDownOf(char character);
    void KeyUpOf(char character);

protected:
    ~Keyboard() = default;

    void HoldModifiers(int modifiers, bool down);

    // What the keyboard is connected to: whether a key counts as held, and what the control is sent. key 0: no key of
    // the keyboard makes the character.
    virtual void Hold(int key, bool down) = 0;
    virtual void SendKeyDown(int key) = 0;
    virtual void SendKeyUp(int key) = 0;
    virtual void SendChar(char character, int key) = 0;
};

}  // namespace zttest
