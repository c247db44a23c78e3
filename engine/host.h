// What the engine asks of the program around it: a field that holds the text, and a clock. One call, one effect, in the order
// made: hosts watch that order message by message.
#pragma once

#include <cstdint>
#include <optional>

#include "engine/text/text.h"
#include "ztvalues.h"

namespace zte {

struct Selection {
    int32_t start;
    int32_t end;  // one past the last selected position
    bool IsEmpty() const { return start == end; }
};

// Keys, by the numbers under which keyboards report them.
enum Key : int32_t {
    KEY_BACKSPACE = 0x08,
    KEY_TAB = 0x09,
    KEY_SHIFT = 0x10,
    KEY_CONTROL = 0x11,
    KEY_PAGE_UP = 0x21,
    KEY_PAGE_DOWN = 0x22,
    KEY_END = 0x23,
    KEY_HOME = 0x24,
    KEY_LEFT = 0x25,
    KEY_UP = 0x26,
    KEY_RIGHT = 0x27,
    KEY_DOWN = 0x28,
    KEY_INSERT = 0x2D,
    KEY_DELETE = 0x2E,
};

// The details of a key message: made by the field, handed back to it, never looked into; 0 when there was no key.
using KeyData = intptr_t;

// An edit control of one line. A call that lets the program around act (by a notification, say) may end in the field's
// destruction; the field then does not return into the engine: it unwinds to its caller.
class Field {
public:
    // What stands there.
    virtual Text ReadText() const = 0;
    virtual Selection ReadSelection() const = 0;
    virtual bool IsHeld(Key key) const = 0;                 // whether a key is down
    virtual bool RefusesInput() const = 0;                  // read-only or disabled
    virtual std::optional<Text> ReadClipboard() const = 0;  // none when it is busy or holds no text

    // The caret is brought into view, then the range is selected. Ends behind the text are brought into it.
    virtual void Select(int32_t start, int32_t end) = 0;

    // Brings the caret into view where it stands now: behind a text that was set anew and is wider than the field.
    virtual void ScrollToCaret() = 0;

    // Puts text in the place of the selection, without an undo step; the caret stands behind it.
    virtual void ReplaceSelection(const Char* text) = 0;

    // Copies the selection to the clipboard.
    virtual void CopySelection() = 0;

    // Sets the whole text; the caret stands before it. Leaves no undo step.
    virtual void SetText(const Char* text) = 0;

    // As the field's own keys: an arrow pressed and released as often as told; Delete pressed.
    virtual void PressArrow(Key key, KeyData keyData, int32_t times) = 0;
    virtual void PressDelete(KeyData keyData) = 0;

    // Makes the Shift key count as held down, or as released.
    virtual void HoldShift(bool down) = 0;

    // Redrawing off, or on again where it was turned off by this call.
    virtual void SetRedraw(bool on) = 0;

    // Keeps the text off the arrows of a spin that the control was created with.
    virtual void KeepLayout() = 0;

    virtual void Repaint() = 0;
    virtual void RepaintSpin() = 0;

    // The user has changed the text; a text that is set counts as unchanged.
    virtual bool IsModified() const = 0;
    virtual void SetModified() = 0;

    virtual void Beep() = 0;
    virtual void NotifyFull() = 0;  // the last position was filled, or the end reached by Right: the focus may move on
    virtual void NotifyStepped() = 0;  // the spin has made a step
    // Tells the parent that the user's act was refused: a ZTR_ reason, the place, the character typed (0: none). True when the parent
    // does without the beep.
    virtual bool NotifyRejected(int32_t reason, int32_t position, Char character) = 0;
    virtual void NotifyState(int32_t was, int32_t is) = 0;  // ZTS_ values
    // Another value stands there than the user has typed: by a step, a choice, an undo. For those who cannot see it.
    virtual void NotifyValue() {}

    // Of any clock, and going round: only differences count.
    virtual uint32_t Milliseconds() const = 0;

protected:
    ~Field() = default;
};

// The current local date and time.
using Clock = DateTimeValue (*)();

}  // namespace zte
